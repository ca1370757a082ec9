#!/usr/bin/env bash
# Demonstrates the device panel: examples/panel-demo.sh BUILD_FOLDER
# Starts and stops a private bus, the service and the panel; does not use the user's bus. PANEL_SIZE is the size of its
# window, 800x480 by default. Without a display, saves pictures of the panel in BUILD_FOLDER/panel.
set -euo pipefail
build=$(realpath "${1:?usage: examples/panel-demo.sh BUILD_FOLDER}")
config=$(realpath "$(dirname "${BASH_SOURCE[0]}")/../config")
# shellcheck source=examples/live-processes.sh
source "$(dirname "${BASH_SOURCE[0]}")/live-processes.sh"
panel=$build/examples/panel/panel

start_service
if [ -n "${WAYLAND_DISPLAY:-}${DISPLAY:-}" ]; then
    echo "Edit the documents in $folder, and watch the panel. Close its window to end the demonstration."
    "$panel" --size "${PANEL_SIZE:-800x480}"
    exit
fi

echo "There is no display: neither DISPLAY nor WAYLAND_DISPLAY is set. These pictures show the panel:"
mkdir -p "$build/panel"
for size in 800x480 1920x1080; do
    for language in en de fr; do
        picture=$build/panel/$size-$language.png
        XDG_RUNTIME_DIR=$folder QT_QPA_PLATFORM=offscreen "$panel" --size "$size" --language "$language" --screenshot "$picture"
        echo "  $picture"
    done
done
