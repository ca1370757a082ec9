# shellcheck shell=bash
# Functions for roots: folders with a small Debian system.
source tests/support/debian_root.sh

# create_root FOLDER VARIANT ARCHITECTURES PACKAGES: creates a root, unless one with the same packages exists.
create_root() {
    local folder=$1 packages=$4
    [ "$(cat "$folder.content" 2>/dev/null)" != "$packages" ] || return 0
    debian_root "$@" --dpkgopt=force-unsafe-io --aptopt='APT::Install-Recommends "false"'
    echo "$packages" >"$folder.content"
}

# in_root FOLDER SHARED COMMAND...: runs a command in a root, without a network. It sees the folder SHARED as /mnt. Its
# mounts and its processes end with it.
in_root() {
    local folder=$1 shared=$2
    shift 2
    # shellcheck disable=SC2016 # the inner shell expands them
    unshare --mount --pid --net --fork --kill-child bash -c '
        mount -t proc proc "$0/proc" && mount --bind "$1" "$0/mnt" && shift && exec chroot "$0" "$@"
    ' "$folder" "$shared" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin LC_ALL=C.UTF-8 HOME=/root "$@"
}
