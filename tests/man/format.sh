#!/bin/sh
# format.sh CMAKE SCRIPT: installs the manual pages with the CMake script, and formats each of them by its name, as a
# user does. Any warning is a failure.
set -eu
prefix=$(mktemp -d)
trap 'rm -rf "$prefix"' EXIT
"$1" -DCMAKE_INSTALL_PREFIX="$prefix" -P "$2" >/dev/null

count=0
for page in "1 unitmanager" "5 unitmanager-documents" "8 configuration-file-service"; do
    # shellcheck disable=SC2086 # section and name
    warnings=$(LC_ALL=C.UTF-8 MANWIDTH=80 man -M "$prefix/share/man" --warnings -Tutf8 $page 2>&1 >"$prefix/text")
    [ -z "$warnings" ] || { echo "$page: $warnings"; exit 1; }
    # The footer.
    tail -n 1 "$prefix/text" | grep -q "^UnitManager " || { echo "$page: incomplete"; exit 1; }
    count=$((count + 1))
done
installed=$(find "$prefix" -type f -path '*/man/man[158]/*' | wc -l)
[ "$installed" -eq "$count" ] || { echo "$installed pages are installed instead of $count"; exit 1; }
echo "$count pages without a warning"
