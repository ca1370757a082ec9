# shellcheck shell=bash
# debian_root FOLDER VARIANT ARCHITECTURES PACKAGES [OPTION]...: creates a Debian system in a new folder with mmdebstrap, of
# this machine's release and from its mirror.
debian_root() {
    local folder=$1 variant=$2 architectures=$3 packages=$4 release mirror
    shift 4
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
    mmdebstrap --quiet --variant="$variant" --architectures="$architectures" --include="$packages" "$@" \
        "$release" "$folder" "$mirror"
}
