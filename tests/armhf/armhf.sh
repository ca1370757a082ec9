#!/usr/bin/env bash
# Builds everything for ARM hard-float, runs all tests under QEMU, and compares the results of conversions with those of
# this machine. Run it with `./dev armhf`; it writes below build/ only.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
scripts=tests/armhf
root=$PWD/build/armhf-root

print_results() { # preset, and the command that runs its programs, if any
    local preset=$1
    shift
    "$@" "build/$preset/tests/armhf/print-conversion-results" >"build/$preset/conversion-results.txt"
}

echo "== armhf: $(date -u +%F), $(uname -srm), $(qemu-arm-static --version | head -n 1)"
$scripts/root.sh "$root"

for preset in armhf cortex-a7 release; do
    echo "== armhf: build of $preset"
    targets=(unitmanager print-conversion-results conversion-costs)
    [ $preset != armhf ] || targets=(all)
    cmake --preset $preset | { grep 'Left out' || true; }
    cmake --build --preset $preset --target "${targets[@]}"
done

echo "== armhf: tests"
$scripts/emulate.sh "$root" ctest --preset armhf --no-tests=error -j "$(nproc)"

print_results release
for preset in armhf cortex-a7; do
    echo "== armhf: results of release and $preset"
    print_results $preset $scripts/emulate.sh "$root"
    $scripts/compare_results.py build/{release,$preset}/conversion-results.txt
done

echo "== armhf: size in bytes, relocations, memory in bytes"
for preset in release armhf; do
    printf '%s: ' $preset
    $scripts/emulate.sh "$root" python3 -B tests/structure/check_footprint.py build/$preset/tests/structure/project.json
done
echo "Private dirty memory is measured for release only: under QEMU it contains the emulator's own."

echo "== armhf: instructions"
$scripts/count_instructions.sh "$root"
