#!/usr/bin/env bash
# root.sh FOLDER: creates the root of a Debian system for ARM hard-float, with everything that the project is built
# against. The release and the mirror are those of this machine.
set -euo pipefail
folder=$1
library_folder=$folder/usr/lib/arm-linux-gnueabihf
shim=/usr/lib/arm-linux-gnueabihf/libwait-shim.so
[ ! -e "$folder/etc/ld.so.preload" ] || exit 0

release=$(. /etc/os-release && echo "$VERSION_CODENAME")
mirror=$(apt-get indextargets --format '$(REPO_URI)' "Created-By: Packages" "Component: main" "Codename: $release" | head -n 1)
[ -n "$mirror" ] || {
    echo "root.sh: APT knows no main component of $release; run apt-get update" >&2
    exit 1
}
rm -rf "$folder"
mmdebstrap --quiet --variant=extract --architectures=armhf \
    --include=libc6-dev,libstdc++-12-dev,qtbase5-dev,nlohmann-json3-dev "$release" "$folder" "$mirror"

# The linker follows absolute links outside the root.
find "$library_folder" -type l -lname '/*' | while read -r link; do
    ln -sf --relative "$folder$(readlink "$link")" "$link"
done
# The build runs the generators, which have to be programs of this machine.
cp /usr/lib/qt5/bin/{moc,rcc,qdbusxml2cpp} "$folder/usr/lib/qt5/bin/"

arm-linux-gnueabihf-g++ --sysroot="$folder" -O2 -Wall -Wextra -fPIC -shared -o "$folder$shim" "$(dirname "$0")/WaitShim.cpp"
# Written last: a complete root has this file.
echo "$shim" >"$folder/etc/ld.so.preload"
