# shellcheck shell=bash
# Functions of the scripts that use packages.

step() {
    echo "== packages: $*"
}

fail() {
    echo "$*" >&2
    exit 1
}

# wait_until COMMAND...: repeats a command until it succeeds, for at most one minute.
wait_until() {
    local deadline=$((SECONDS + 60))
    until "$@" >/dev/null 2>&1; do
        [ "$SECONDS" -lt "$deadline" ] || fail "not within one minute: $*"
        sleep 0.1
    done
}

# qml_shows_units BUS: loads the QML module, which reads a value from the service on the bus.
qml_shows_units() {
    cat >/tmp/units.qml <<'QML'
import QtQuick.Window 2.15
import UnitManager 1.0

Window {
    property Units units: Units {
        onConfigurationAdopted: {
            console.log(text(1.01325, "UnitManager/UnitType/Pressure", "HectoPascal"))
            Qt.quit()
        }
    }
}
QML
    DEVICE_BUS=$1 QT_QPA_PLATFORM=offscreen QT_QUICK_BACKEND=software QML_DISABLE_DISK_CACHE=1 \
        timeout 60 /usr/lib/qt5/bin/qml /tmp/units.qml >/tmp/qml.log 2>&1 || true
    grep -x 'qml: 1013.3 hPa' /tmp/qml.log || fail "the QML module shows: $(cat /tmp/qml.log)"
}
