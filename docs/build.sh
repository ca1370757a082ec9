#!/usr/bin/env bash
# Builds the documentation: docs/build.sh OUTPUT. Needs doxygen, graphviz and python3. Every warning is an error.
set -euo pipefail
output=$(realpath -m "${1:?usage: docs/build.sh OUTPUT}")
cd "$(dirname "${BASH_SOURCE[0]}")/.."

version=$(sed -n 's/^project(.* VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)
mkdir -p "$output"
UNITMANAGER_VERSION=$version UNITMANAGER_DOCS_OUTPUT=$output doxygen docs/Doxyfile
# Doxygen does not warn about markup that it shows instead of using it.
if grep -r -n -o -E --include='*.html' '.{0,40}(@ref |\\ilinebr|&lt;(tt|table|code)&gt;).{0,40}' "$output"; then
    exit 1
fi
