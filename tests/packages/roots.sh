# shellcheck shell=bash
# Functions for roots: folders with a small Debian system, of this machine's release and from its mirror.

# create_root FOLDER ARCHITECTURES PACKAGES [HOOK]: creates a root, unless one with the same content exists. HOOK is a
# shell command that may install more.
create_root() {
    local folder=$1 architectures=$2 packages=$3 hook=${4:-true} release mirror
    [ "$(cat "$folder.content" 2>/dev/null)" != "$packages $hook" ] || return 0
    release=$(. /etc/os-release && echo "$VERSION_CODENAME")
    # shellcheck disable=SC2016 # APT expands it
    mirror=$(apt-get indextargets --format '$(REPO_URI)' 'Created-By: Packages' 'Component: main' "Codename: $release" |
        head -n 1)
    [ -n "$mirror" ] || {
        echo "APT knows no main component of $release; run apt-get update" >&2
        return 1
    }
    rm -rf "$folder"
    mkdir -p "$(dirname "$folder")"
    mmdebstrap --quiet --variant=apt --architectures="$architectures" --dpkgopt=force-unsafe-io \
        --aptopt='APT::Install-Recommends "false"' \
        --include="$packages" --customize-hook="$hook" "$release" "$folder" "$mirror"
    echo "$packages $hook" >"$folder.content"
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
