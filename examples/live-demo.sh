#!/usr/bin/env bash
# Demonstrates an application that follows its configuration over D-Bus: examples/live-demo.sh BUILD_FOLDER
# Starts and stops a private bus, the service and the application; does not use the user's bus.
set -euo pipefail
build=$(realpath "${1:?usage: examples/live-demo.sh BUILD_FOLDER}")
config=$(realpath "$(dirname "${BASH_SOURCE[0]}")/../config")
folder=$(mktemp -d)
export DEVICE_BUS=unix:path=$folder/bus

stop() {
    local started
    started=$(jobs -p)
    # shellcheck disable=SC2086 # one word for each process
    [ -z "$started" ] || kill $started 2>/dev/null || true
    wait
    rm -rf "$folder"
}
trap stop EXIT

start() { # descriptor for its output, program and arguments
    local descriptor=$1
    shift
    mkfifo "$folder/output-$descriptor"
    "$@" >"$folder/output-$descriptor" 2>&1 &
    eval "exec $descriptor<'$folder/output-$descriptor'"
}

show_until() { # label, descriptor of its output, text of the last line to show
    local line
    while IFS= read -r -t 20 line <&"$2"; do
        echo "  $1 | ${line//$folder/documents}"
        [[ $line != *"$3"* ]] || return 0
    done
    echo "live-demo.sh: no \"$3\" from the $1" >&2
    return 1
}

change() { # document, sed script for the shipped one; replaces the file, as editors do
    sed "$2" "$config/$1" >"$folder/$1.new"
    mv "$folder/$1.new" "$folder/$1"
}

cp "$config"/{units,default-units,dependencies}.json "$folder"

echo
echo "Live: a private bus, the configuration service, and a device application in German"
start 3 dbus-daemon --session --nofork --nopidfile --address="$DEVICE_BUS" --print-address
read -r -t 20 _ <&3
start 4 "$build/service/configuration-file-service" --directory "$folder" --bus "$DEVICE_BUS"
show_until service 4 "serving"
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
