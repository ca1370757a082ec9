import QtQuick 2.15

// The label of a unit. A button if there are other units to choose.
Button {
    property bool hasChoice: false

    enabled: hasChoice
    color: hasChoice ? Style.raised : "transparent"
    label.rightPadding: arrow.width
    label.horizontalAlignment: Text.AlignLeft

    Text {
        id: arrow
        anchors { right: parent.right; rightMargin: Style.gap; verticalCenter: parent.verticalCenter }
        visible: parent.hasChoice
        text: "▾"
        color: Style.accent
        font.pixelSize: Style.medium
    }
}
