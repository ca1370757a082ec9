import QtQuick 2.15
import QtQuick.Layouts 1.15
import UnitManager 1.0

// A quantity of the device: its name, its number, which is the content, and its unit.
Rectangle {
    id: row

    property Units units
    property string name
    property string unitType
    // The unit that is shown, empty for the default unit.
    property string unit
    default property alias content: place.data
    signal unitRequested()

    radius: Style.radius
    color: Style.surface
    Layout.fillWidth: true
    Layout.fillHeight: true

    Text {
        anchors { left: parent.left; leftMargin: Style.margin; verticalCenter: parent.verticalCenter }
        width: place.x - x
        text: row.name
        color: Style.muted
        font.pixelSize: Style.medium
        elide: Text.ElideRight
    }
    Item {
        id: place
        anchors { right: unitButton.left; rightMargin: 2 * Style.gap; top: parent.top; bottom: parent.bottom }
        width: 140 * Style.scale
    }
    UnitButton {
        id: unitButton
        objectName: row.objectName + "Unit"
        anchors { right: parent.right; rightMargin: Style.gap; verticalCenter: parent.verticalCenter }
        width: 96 * Style.scale
        text: row.units.label(row.unitType, row.unit)
        hasChoice: row.units.units(row.unitType).length > 1
        onClicked: row.unitRequested()
    }
}
