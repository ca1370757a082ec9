#!/usr/bin/env bash
# use_unpacked.sh: uses tool and service of packages that were unpacked into the root in which this script runs, on a
# private bus of this root.
set -euo pipefail
source "$(dirname "$0")/steps.sh"
documents=/usr/share/unitmanager
export DBUS_SESSION_BUS_ADDRESS=unix:path=/tmp/bus
trap 'kill $(jobs -p)' EXIT

expect() { # expected output, command
    local expected=$1 output
    shift
    output=$("$@")
    [ "$output" = "$expected" ] || fail "$*: \"$output\" instead of \"$expected\""
    echo "$*: $output"
}

step "tool, unpacked on $(uname -m)"
expect "1.000 bar" unitmanager convert 14.5 psi bar
expect "999.7398075094125" unitmanager convert 14.5 Pressure PoundForcePerSquareInch HectoPascal --raw
expect "% r.F." unitmanager label RelativeHumidity RelHumidity --language de
unitmanager check --units "$documents/units.json" --default-units "$documents/default-units.json"

step "service, unpacked on $(uname -m), on a private bus"
dbus-daemon --session --nofork --address="$DBUS_SESSION_BUS_ADDRESS" &
wait_until test -S /tmp/bus
configuration-file-service --directory /etc/unitmanager --directory "$documents" &
is_served() { # document
    unitmanager get "$1" | cmp - "$documents/$1.json"
}

for document in units default-units dependencies; do
    wait_until is_served "$document"
    echo "$document is served"
done
qml_shows_units session
