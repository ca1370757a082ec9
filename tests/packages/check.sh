#!/usr/bin/env bash
# check.sh FOLDER: checks the Debian packages in a folder with lintian and hardening-check. Runs in the root that has
# built them, with FOLDER as its /mnt, which also has the log of the build.
set -euo pipefail
shopt -s nullglob
folder=$1
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

echo "== packages: lintian, without overrides"
lintian --allow-root --no-override --fail-on error --tag-display-limit 0 "$folder"/*.changes

echo "== packages: hardening-check"
# Calls whose sizes the compiler does not know look unprotected in the files, so the log shows that all are fortified.
# Debian 12's own start files lack control-flow protection, so no program can have it. For ARM, stack-clash protection is
# not checked: it is recognised in disassembled x86 code only.
compiled=$(grep -c -e ' -c ' "$folder/build.log")
fortified=$(grep -e ' -c ' "$folder/build.log" | grep -c -e '-D_FORTIFY_SOURCE=2')
[ "$compiled" -eq "$fortified" ] || {
    echo "$fortified of $compiled compiler calls are fortified" >&2
    exit 1
}
for package in "$folder"/*.deb; do
    [[ $package == *-dbgsym_* ]] || dpkg-deb --extract "$package" "$scratch"
done
count=0
while read -r file; do
    hardening-check --quiet --nofortify --nocfprotection "$file" 2> >(sed "/can't disassemble/d; /^$/d" >&2)
    count=$((count + 1))
done < <(find "$scratch" -type f -exec sh -c 'head -c 4 "$1" | grep -q ELF' sh {} \; -print)
[ "$count" -ge 9 ] || {
    echo "only $count programs and libraries" >&2
    exit 1
}
echo "$count programs and libraries are hardened"
