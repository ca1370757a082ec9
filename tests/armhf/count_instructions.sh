#!/usr/bin/env bash
# count_instructions.sh ROOT: prints the instructions of a conversion in the three builds release, armhf and cortex-a7.
# Counts of two runs are subtracted, so that starting the program and loading the documents do not matter.
set -euo pipefail
root=$1
counter=build/armhf-tools/instruction-counter.so
mkdir -p "$(dirname "$counter")"
g++ -std=c++17 -O2 -Wall -Wextra -fPIC -shared -o "$counter" "$(dirname "$0")/InstructionCounter.cpp"

count() { # preset, form, number of calls
    local emulator=(qemu-arm -L "$root")
    [ "$1" != release ] || emulator=(qemu-x86_64 -cpu max)
    # A fixed seed makes the counts repeatable; with 0, Qt would not use the processor's checksum instructions.
    QT_HASH_SEED=1 "${emulator[@]}" -plugin "$counter" "build/$1/tests/armhf/conversion-costs" "$2" "$3" 2>&1 | tail -n 1
}

per_thousand() { # preset, form
    local more fewer
    more=$(count "$1" "$2" 2000) || return
    fewer=$(count "$1" "$2" 1000) || return
    echo $((more - fewer))
}

printf '%-12s %22s %22s\n' build 'one raw conversion' 'a number of an array'
for preset in release armhf cortex-a7; do
    single=$(per_thousand "$preset" single)
    run=$(per_thousand "$preset" run)
    # An array has a thousand numbers.
    printf '%-12s %22d %22.1f\n' "$preset" $((single / 1000)) "${run}e-6"
done
