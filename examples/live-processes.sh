# Sourced by the live demonstrations: private bus, service and other processes, all of which end with the script. Needs
# the variables `build`, the build folder, and `config`, the folder of the shipped documents.
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
    echo "${0##*/}: no \"$3\" from the $1" >&2
    return 1
}

change() { # document, sed script for the shipped one; replaces the file, as editors do
    sed "$2" "$config/$1" >"$folder/$1.new"
    mv "$folder/$1.new" "$folder/$1"
}

cp "$config"/{units,default-units,dependencies}.json "$folder"

start_service() { # on a private bus, with copies of the shipped documents
    start 3 dbus-daemon --session --nofork --nopidfile --address="$DEVICE_BUS" --print-address
    read -r -t 20 _ <&3
    start 4 "$build/service/configuration-file-service" --directory "$folder" --bus "$DEVICE_BUS"
    show_until service 4 "serving"
}
