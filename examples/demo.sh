#!/usr/bin/env bash
# Demonstrates the main functions with the shipped documents: examples/demo.sh BUILD_FOLDER
set -euo pipefail
build=${1:?usage: examples/demo.sh BUILD_FOLDER}
unitmanager=$(realpath "$build")/tools/unitmanager

show() { # a command as typed by a user, and its output
    printf '\n$ unitmanager'
    printf ' %s' "$@"
    printf '\n'
    "$unitmanager" "$@"
}

show_failing() {
    local status=0
    show "$@" 2>&1 || status=$?
    echo "(exit code $status)"
    [ "$status" -ne 0 ]
}

echo "Units from documents: list types and units"
show types
show units Pressure

echo
echo "Convert: to the default unit, to a given unit, without rounding, to all units"
show convert 1.01325 Pressure Bar
show convert 72 AbsoluteTemperature DegreeFahrenheit DegreeCelsius
show convert 14.5 Pressure PoundForcePerSquareInch HectoPascal --raw
show table 1 Pressure StandardAtmosphere

echo
echo "Units by their labels, which determine the type"
show convert 14.5 psi bar
show convert 20 °C °F

echo
echo "Labels in three languages, and of a fixed unit"
for language in en de fr; do
    show label RelativeHumidity RelHumidity --language "$language"
done
show label UnitManager/UnitType/Pressure/InchOfMercury --language de

echo
echo "A stream of values"
printf '$ printf "0\\n20.5\\n100\\n" | unitmanager convert - AbsoluteTemperature DegreeCelsius Kelvin\n'
printf '0\n20.5\n100\n' | "$unitmanager" convert - AbsoluteTemperature DegreeCelsius Kelvin

echo
echo "Errors are explained"
show_failing convert 1 Pressure Baar
show_failing convert 1 Presure Bar
show_failing convert one Pressure Bar

echo
echo "Mistakes in documents are found: a decimal comma in a coefficient"
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
sed 's/\[0.06894757293168362\]/["0,06894757293168362"]/' "$build/share/unitmanager/units.json" >"$folder/units.json"
cd "$folder"
show_failing check --units units.json
cd - >/dev/null

"$(dirname "${BASH_SOURCE[0]}")/live-demo.sh" "$build"
