#!/usr/bin/env bash
# Demonstrates an application that follows its configuration over D-Bus: examples/live-demo.sh BUILD_FOLDER
# Starts and stops a private bus, the service and the application; does not use the user's bus.
set -euo pipefail
build=$(realpath "${1:?usage: examples/live-demo.sh BUILD_FOLDER}")
config=$(realpath "$(dirname "${BASH_SOURCE[0]}")/../config")
# shellcheck source=examples/live-processes.sh
source "$(dirname "${BASH_SOURCE[0]}")/live-processes.sh"

echo
echo "Live: a private bus, the configuration service, and a device application in German"
start_service
start 5 "$build/examples/measuring-device/measuring-device" --language de --changes 2
device=$!
show_until device 5 "pressure range"
start 6 "$build/tools/unitmanager" watch
show_until "unitmanager watch" 6 "adopted"

echo
echo "Edit default-units.json: pressure in kilopascal"
change default-units.json 's/"HectoPascal"/"KiloPascal"/'
show_until service 4 "loaded"
show_until device 5 "->"
show_until "unitmanager watch" 6 "adopted"

echo
echo "Break units.json: the service refuses it, the application continues"
change units.json 's/"DegreeCelsius": {/"DegreeCelsius": /'
show_until service 4 "cannot use"

echo
echo "Correct units.json: temperatures with two decimals"
change units.json '/"DegreeCelsius"/,/}/ s/"DecimalPlaces": 1/"DecimalPlaces": 2/'
show_until service 4 "loaded"
show_until device 5 "->"
show_until "unitmanager watch" 6 "adopted"

wait "$device"
echo
echo "The application has ended with exit code 0; bus and service are stopped."
