import QtQuick 2.15

// A button that takes the focus, so that an edit field is left before the click has an effect.
Rectangle {
    id: button

    property string text
    property bool selected: false
    property alias label: label
    signal clicked()

    radius: Style.radius
    color: mouse.pressed || selected ? Style.accent : Style.raised
    implicitWidth: label.implicitWidth + 2 * Style.margin
    implicitHeight: 36 * Style.scale

    Text {
        id: label
        anchors { fill: parent; leftMargin: Style.gap; rightMargin: Style.gap }
        text: button.text
        color: mouse.pressed || button.selected ? Style.background : Style.text
        font.pixelSize: Style.medium
        fontSizeMode: Text.HorizontalFit
        minimumPixelSize: Style.small
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        elide: Text.ElideRight
    }
    MouseArea {
        id: mouse
        anchors.fill: parent
        onPressed: forceActiveFocus()
        onClicked: button.clicked()
    }
}
