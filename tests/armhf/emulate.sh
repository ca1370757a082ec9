#!/usr/bin/env bash
# emulate.sh ROOT COMMAND...: runs a command that may start ARM programs, as may its children. QEMU is registered in a
# user namespace, which needs Linux 6.7 or later, so the registrations of the machine do not change. The command
# runs in a nested one as an ordinary user, even if root calls this script.
set -euo pipefail
QEMU_LD_PREFIX=$(realpath "$1")
export QEMU_LD_PREFIX
shift
# shellcheck disable=SC2016 # expanded by the inner shell
exec unshare --user --map-root-user --mount bash -c '
    set -e
    mount -t binfmt_misc binfmt_misc /proc/sys/fs/binfmt_misc
    cat /usr/lib/binfmt.d/qemu-arm.conf >/proc/sys/fs/binfmt_misc/register
    exec unshare --user --map-user=1000 --map-group=1000 "$@"' emulate.sh "$@"
