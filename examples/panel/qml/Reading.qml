import QtQuick 2.15

// A row with a process value.
PanelRow {
    id: reading

    property real value
    property bool alarm: false

    Text {
        objectName: reading.objectName + "Number"
        anchors.fill: parent
        text: reading.units.number(reading.value, reading.unitType, reading.unit)
        color: reading.alarm ? Style.alarm : Style.text
        font.pixelSize: Style.large
        horizontalAlignment: Text.AlignRight
        verticalAlignment: Text.AlignVCenter
    }
}
