#!/usr/bin/env bash
# install_use_purge.sh PACKAGES README: installs the packages of a folder, uses them as a developer and as a device do,
# and purges them. Runs in a root without a network that has what the packages depend on.
set -euo pipefail
source "$(dirname "$0")/steps.sh"
packages=$1 readme=$2
service=configuration-file-service
bus_name=org.measuringdevice.DeviceManager
documents=/usr/share/unitmanager
own_documents=/etc/unitmanager

# Every file with its owner and mode, the content of the configuration, and the users. Left out: what dpkg and other
# programs keep about the past.
state() {
    find / -xdev \( -path /proc -o -path /sys -o -path /dev -o -path /run -o -path /tmp -o -path /mnt \
        -o -path /var/log -o -path /var/cache -o -path /var/lib/dpkg -o -path /etc/ld.so.cache \) -prune \
        -o -printf '%p %M %u:%g %l\n' | sort
    find /var/lib/dpkg/info | sort
    find /etc -type f ! -name '*-' ! -name ld.so.cache -exec sha256sum {} + | sort
}

bus_call() { # destination, object, method, arguments
    local destination=$1 object=$2 method=$3
    shift 3
    dbus-send --system --print-reply=literal --dest="$destination" "$object" "$method" "$@"
}

has_owner() {
    bus_call org.freedesktop.DBus / org.freedesktop.DBus.NameHasOwner "string:$bus_name" | grep -q 'boolean true'
}

has_no_owner() {
    ! has_owner
}

service_process() {
    bus_call org.freedesktop.DBus / org.freedesktop.DBus.GetConnectionUnixProcessID "string:$bus_name" |
        sed 's/.*uint32 //'
}

# The packaged service user runs the service; everybody can read the packaged documents from it.
service_works() {
    wait_until has_owner
    [ "$(stat -c %U "/proc/$(service_process)")" = measuringdevice ] || fail "another user runs the service"
    documents_are_served
}

stop_service() {
    kill "$(service_process)"
    wait_until has_no_owner
}

# The documents on the bus are the product's own or else the packaged ones, for a user without any right.
documents_are_served() {
    local document path
    for document in units default-units dependencies; do
        path=$own_documents/$document.json
        [ -e "$path" ] || path=$documents/$document.json
        runuser -u nobody -- unitmanager get "$document" --bus system | cmp - "$path"
    done
}

install_packages() {
    step "install"
    state >/tmp/before
    dpkg --install "$packages"/*.deb >/tmp/install.log 2>&1 || { cat /tmp/install.log; exit 1; }
    dpkg --audit
    dpkg-query --show 'libunitmanager*' 'libdeviceplatform*' 'unitmanager*' 'qml-module-unitmanager*'
}

use_as_developer() {
    step "the README's commands"
    python3 -B "$(dirname "$0")/../structure/readme_commands.py" "$readme"
}

build_examples() {
    local example
    step "the example applications"
    for example in measuring-device panel; do
        cmake -S "/usr/share/doc/unitmanager/examples/$example" -B "/tmp/$example" >/tmp/build.log 2>&1 &&
            cmake --build "/tmp/$example" >>/tmp/build.log 2>&1 || { cat /tmp/build.log; exit 1; }
        QT_QPA_PLATFORM=offscreen "/tmp/$example/$example" --help >/tmp/help || fail "$example does not start"
        echo "$example builds and starts"
    done
}

use_tool() {
    step "tool"
    [ "$(unitmanager convert 14.5 psi bar)" = "1.000 bar" ]
    unitmanager check --units "$documents/units.json"
}

find_pages_and_completion() {
    step "manual pages and completion are where the shells look"
    for page in 'unitmanager.1' 'configuration-file-service.8' 'unitmanager-documents.5'; do
        [ -e "/usr/share/man/man${page##*.}/$page.gz" ] || fail "no manual page $page"
    done
    [ -e /usr/share/bash-completion/completions/unitmanager ] || fail "no completion for bash"
    [ -e /usr/share/zsh/vendor-completions/_unitmanager ] || fail "no completion for zsh"
}

find_system_files() {
    step "unit, user, bus policy and activation are where the system looks"
    systemctl is-enabled "$service"
    systemd-analyze verify "$service.service"
    systemd-sysusers --cat-config | grep '^u measuringdevice '
    getent passwd measuringdevice
    systemd-sysusers --dry-run
}

use_service() {
    local command
    step "service on a private bus, with the packaged policy and command"
    mkdir -p /run/dbus
    dbus-daemon --system --fork --nopidfile
    command=$(sed -n 's/^ExecStart=//p' "/lib/systemd/system/$service.service")
    # shellcheck disable=SC2086 # several words on purpose
    ! timeout 60 runuser -u nobody -- $command 2>/tmp/refused || fail "everybody may own $bus_name"
    grep "cannot take the name $bus_name" /tmp/refused
    # shellcheck disable=SC2086
    runuser -u measuringdevice -- $command &
    service_works
    qml_shows_units system
    stop_service

    step "service, started by the bus"
    bus_call "$bus_name" / org.freedesktop.DBus.Peer.Ping
    service_works
    stop_service
}

upgrade_with_own_document() {
    step "an upgrade leaves the product's own document as it is"
    sed 's/"HectoPascal"/"KiloPascal"/' "$documents/default-units.json" >"$own_documents/default-units.json"
    cp "$own_documents/default-units.json" /tmp/own.json
    ! cmp --quiet /tmp/own.json "$documents/default-units.json" || fail "the product's document is the shipped one"
    dpkg --install "$packages"/unitmanager_*.deb >/tmp/install.log 2>&1 || { cat /tmp/install.log; exit 1; }
    cmp /tmp/own.json "$own_documents/default-units.json"
    [ "$(unitmanager convert 1 Pressure Bar)" = "100.00 kPa" ] || fail "the tool uses the shipped document"
    bus_call "$bus_name" / org.freedesktop.DBus.Peer.Ping
    service_works
    stop_service
    rm "$own_documents/default-units.json"
}

purge_packages() {
    step "purge"
    for package in "$packages"/*.deb; do
        dpkg-deb --field "$package" Package
    done | xargs dpkg --purge >/tmp/purge.log 2>&1 || { cat /tmp/purge.log; exit 1; }
    state >/tmp/after
    diff /tmp/before /tmp/after || fail "purging leaves a difference"
    echo "nothing is left: $(wc -l </tmp/after) facts are as before"
}

install_packages
use_as_developer
build_examples
use_tool
find_pages_and_completion
find_system_files
use_service
upgrade_with_own_document
purge_packages
