import QtQuick 2.15
import UnitManager 1.0

// The units of a quantity in display order, over the whole panel.
Rectangle {
    id: chooser

    property Units units
    property string name
    property string unitType
    property string unit
    signal chosen(string unit)

    // For the quantity of a row.
    function open(row) {
        name = row.name
        unitType = row.unitType
        unit = row.unit || units.defaultUnit(row.unitType)
        visible = true
        forceActiveFocus()
    }

    visible: false
    color: "#c0000000"
    Keys.onEscapePressed: visible = false

    MouseArea {
        anchors.fill: parent
        onClicked: chooser.visible = false
    }
    Rectangle {
        anchors.centerIn: parent
        width: grid.width + 2 * Style.margin
        height: title.height + grid.height + 3 * Style.margin
        radius: 2 * Style.radius
        color: Style.surface

        // A click beside the buttons does not close the chooser.
        MouseArea { anchors.fill: parent }
        Text {
            id: title
            anchors { left: grid.left; top: parent.top; topMargin: Style.margin }
            text: chooser.name
            color: Style.text
            font { pixelSize: Style.medium; bold: true }
        }
        Grid {
            id: grid
            anchors { horizontalCenter: parent.horizontalCenter; top: title.bottom; topMargin: Style.margin }
            columns: Math.min(4, repeater.count)
            spacing: Style.gap

            Repeater {
                id: repeater
                model: chooser.unitType ? chooser.units.units(chooser.unitType) : []

                Button {
                    objectName: "choose" + modelData.name
                    width: 140 * Style.scale
                    height: 56 * Style.scale
                    text: modelData.label
                    selected: modelData.name === chooser.unit
                    onClicked: {
                        chooser.visible = false
                        chooser.chosen(modelData.name)
                    }
                }
            }
        }
    }
}
