#!/usr/bin/env bash
# abi.sh PACKAGES RECORD [--update]: compares the ABI of the packaged library with the record of the first packaged
# version. Additions are allowed. With --update, writes the record first.
set -euo pipefail
packages=$1 record=$2
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

for package in "$packages"/libunitmanager*.deb; do
    dpkg-deb --extract "$package" "$scratch"
done
library=$(echo "$scratch"/usr/lib/*/libunitmanager.so.?)
headers=$scratch/usr/include/unitmanager
symbols=$scratch/usr/lib/debug
if [ "${3:-}" = --update ]; then
    abidw --headers-dir "$headers" --drop-private-types --no-show-locs --no-comp-dir-path --no-corpus-path \
        --debug-info-dir "$symbols" "$library" | xz -9 >"$record"
fi
xz --decompress --stdout "$record" >"$scratch/recorded.abi"
abidiff --no-added-syms --drop-private-types --headers-dir2 "$headers" --debug-info-dir2 "$symbols" \
    "$scratch/recorded.abi" "$library"
echo "== packages: $(basename "$library") offers what the first packaged version offered"
