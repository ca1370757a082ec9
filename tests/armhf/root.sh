#!/usr/bin/env bash
# root.sh FOLDER: creates the root of a Debian system for ARM hard-float, with everything that the project is built
# against. The release and the mirror are those of this machine.
set -euo pipefail
source tests/support/debian_root.sh
folder=$1
library_folder=$folder/usr/lib/arm-linux-gnueabihf
shim=/usr/lib/arm-linux-gnueabihf/libwait-shim.so
[ ! -e "$folder/etc/ld.so.preload" ] || exit 0

debian_root "$folder" extract armhf libc6-dev,libstdc++-12-dev,qtbase5-dev,nlohmann-json3-dev

# The linker follows absolute links outside the root.
find "$library_folder" -type l -lname '/*' | while read -r link; do
    ln -sf --relative "$folder$(readlink "$link")" "$link"
done
# The build runs the generators, which have to be programs of this machine.
cp /usr/lib/qt5/bin/{moc,rcc,qdbusxml2cpp} "$folder/usr/lib/qt5/bin/"

arm-linux-gnueabihf-g++ --sysroot="$folder" -O2 -Wall -Wextra -fPIC -shared -o "$folder$shim" "$(dirname "$0")/WaitShim.cpp"
# Written last: a complete root has this file.
echo "$shim" >"$folder/etc/ld.so.preload"
