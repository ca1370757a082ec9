pragma Singleton
import QtQuick 2.15

// Colours, and lengths that grow with the window.
QtObject {
    // The size of the window in units of 800x480; set by Main.qml.
    property real scale: 1

    readonly property real margin: 12 * scale
    readonly property real gap: 8 * scale
    readonly property real radius: 6 * scale
    readonly property int small: 13 * scale
    readonly property int medium: 16 * scale
    readonly property int large: 28 * scale

    readonly property color background: "#10151c"
    readonly property color surface: "#1b2430"
    readonly property color raised: "#2a3646"
    readonly property color line: "#344356"
    readonly property color text: "#eef3f8"
    readonly property color muted: "#9db0c5"
    readonly property color accent: "#4fc3f7"
    readonly property color good: "#66bb6a"
    readonly property color warning: "#ffb74d"
    readonly property color alarm: "#ff6e67"
}
