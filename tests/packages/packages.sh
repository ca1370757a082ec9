#!/usr/bin/env bash
# Builds the Debian packages for amd64 and armhf into build/packages, and checks them. Runs as root, because it installs
# packages into roots, which are below build/packages, too.
set -euo pipefail
shopt -s nullglob
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
source tests/packages/roots.sh
folder=$PWD/build/packages
build_root=$folder/build-root
install_root=$folder/install-root

# build_in PLACE ARCHITECTURE: builds the tracked files in a folder of the root. The package for all architectures is built
# with the machine's own.
build_in() {
    local place=$1 architecture=$2 kind=any
    [ "$architecture" != amd64 ] || kind=binary
    rm -rf "${build_root:?}$place"
    mkdir -p "$build_root$place/unitmanager"
    git ls-files -z | xargs -0 cp --parents -t "$build_root$place/unitmanager"
    in_root "$build_root" "$folder" env --chdir="$place/unitmanager" DEB_BUILD_OPTIONS="parallel=$(nproc)" \
        dpkg-buildpackage --build=$kind --no-sign --host-arch="$architecture" >"$build_root$place/build.log" 2>&1 || {
        tail -n 40 "$build_root$place/build.log"
        return 1
    }
}

build_packages() { # architecture
    local architecture=$1 packages=$folder/$1 package count=0 expected=10
    [ "$architecture" != amd64 ] || expected=11
    echo "== packages: build for $architecture"
    build_in /build/first "$architecture"
    rm -rf "$packages"
    mkdir "$packages"
    find "$build_root/build/first" -maxdepth 1 -type f -exec cp -t "$packages" {} +

    build_in /srv/in-another/folder "$architecture"
    for package in "$packages"/*.deb; do
        cmp "$package" "$build_root/srv/in-another/folder/${package##*/}"
        count=$((count + 1))
    done
    [ "$count" -eq "$expected" ] || {
        echo "$count packages, including those with debug symbols, instead of $expected" >&2
        return 1
    }
    echo "$count files are identical when built in another folder:"
    (cd "$packages" && ls -s -1 --block-size=1 -- *.deb)
}

install_use_purge() { # architecture
    local packages=$folder/$1 test_root=$folder/test-root
    create_root "$install_root" apt "$1" \
        "cmake,g++,make,pkg-config,python3,qml,qml-module-qtquick-window2,qtdeclarative5-dev,systemd,$(dependency_names "$packages")"
    rm -rf "$test_root"
    cp -a "$install_root" "$test_root"
    mkdir "$test_root/srv/unitmanager"
    git ls-files -z tests README.md | xargs -0 cp --parents -t "$test_root/srv/unitmanager"
    in_root "$test_root" "$packages" /srv/unitmanager/tests/packages/install_use_purge.sh /mnt /srv/unitmanager/README.md
    rm -rf "$test_root"
}

# Packages of another architecture are unpacked, and run under QEMU, which would take too long for their scripts.
use_unpacked() { # architecture
    local packages=$folder/$1 root=$folder/$1-root package
    create_root "$root" extract "$1" "bash,coreutils,diffutils,dbus-daemon,grep,libc-bin,qml,qml-module-qtquick-window2,$(dependency_names "$packages")"
    # The bus asks for the name of its user.
    echo root:x:0:0:root:/root:/bin/bash >"$root/etc/passwd"
    for package in "$packages"/*.deb; do
        dpkg-deb --extract "$package" "$root"
    done
    mkdir -p "$root/srv/unitmanager"
    cp tests/packages/{steps,use_unpacked}.sh "$root/srv/unitmanager"
    # shellcheck disable=SC2016 # the inner shell expands it
    tests/armhf/emulate.sh "$root" unshare --user --map-root-user --mount bash -c '
        mount --rbind /dev "$0/dev" && mount --rbind /proc "$0/proc" && exec chroot "$0" "$@"
    ' "$root" env -i PATH=/usr/bin:/bin LC_ALL=C.UTF-8 /srv/unitmanager/use_unpacked.sh
}

# dependency_names PACKAGES: the names of the packages that the packages of a folder depend on, except each other. Where
# several would do, the first one.
dependency_names() {
    local package
    for package in "$1"/*.deb; do
        dpkg-deb --field "$package" Pre-Depends Depends | sed 's/^[^:]*: //' | sed 's/, /\n/g' | sed 's/[ :].*//'
    done | grep -v -E '^(libunitmanager|libdeviceplatform|unitmanager|qml-module-unitmanager)' | sort -u | paste -s -d ,
}

check_packages() { # architecture
    cp -t "$build_root/srv" tests/packages/check.sh
    in_root "$build_root" "$folder/$1" bash /srv/check.sh /mnt
}

check_abi() { # architecture
    local record=libunitmanager1-$1.abi.xz
    cp -r -t "$build_root/srv" tests/packages/{abi.sh,data}
    in_root "$build_root" "$folder/$1" bash /srv/abi.sh /mnt "/srv/data/$record" ${UPDATE_RECORDS:+--update}
    [ -z "${UPDATE_RECORDS:-}" ] || cp "$build_root/srv/data/$record" tests/packages/data/
}

create_root "$build_root" apt amd64,armhf "build-essential,crossbuild-essential-armhf,debhelper,cmake,ninja-build,\
nlohmann-json3-dev,qtbase5-dev:amd64,qtbase5-dev:armhf,qtdeclarative5-dev:amd64,qtdeclarative5-dev:armhf,doxygen,graphviz,\
python3,lintian,devscripts,abigail-tools"
for architecture in amd64 armhf; do
    build_packages "$architecture"
    check_packages "$architecture"
    check_abi "$architecture"
done
install_use_purge amd64
use_unpacked armhf
