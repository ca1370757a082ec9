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
