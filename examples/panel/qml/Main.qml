import QtQuick 2.15
import QtQuick.Layouts 1.15
import UnitManager 1.0

Rectangle {
    id: root

    readonly property string pressure: "UnitManager/UnitType/Pressure"
    readonly property string temperature: "UnitManager/UnitType/AbsoluteTemperature"
    readonly property string humidity: "UnitManager/UnitType/RelativeHumidity"
    // The chosen unit of each unit type.
    property var chosenUnits: ({})

    // The unit in which values are shown: the default unit until one is chosen, and if the chosen one is gone.
    function shownUnit(unitType) {
        const chosen = chosenUnits[unitType] || ""
        return deviceUnits.units(unitType).some(unit => unit.name === chosen) ? chosen : ""
    }
    function choose(unitType, unit) {
        chosenUnits = Object.assign({}, chosenUnits, { [unitType]: unit })
    }

    color: Style.background

    Units {
        id: deviceUnits
        language: panel.language
        onReadyChanged: if (ready) panel.unitsAvailable()
    }
    Binding {
        target: Style
        property: "scale"
        value: Math.min(root.width / 800, root.height / 480)
    }
    // A click beside everything leaves the edit field.
    MouseArea {
        anchors.fill: parent
        onPressed: forceActiveFocus()
    }

    ColumnLayout {
        anchors { fill: parent; margins: Style.margin }
        spacing: Style.gap

        Header {
            Layout.fillWidth: true
            Layout.preferredHeight: 40 * Style.scale
        }
        RowLayout {
            spacing: Style.gap

            ColumnLayout {
                spacing: Style.gap
                Layout.preferredWidth: 432 * Style.scale
                Layout.fillWidth: false

                Reading {
                    objectName: "linePressure"
                    units: deviceUnits
                    name: qsTr("Line pressure")
                    unitType: root.pressure
                    unit: root.shownUnit(unitType)
                    value: panel.process.linePressure
                    onUnitRequested: chooser.open(this)
                    alarm: value > panel.process.alarmLimit
                }
                Reading {
                    objectName: "dewPoint"
                    units: deviceUnits
                    name: qsTr("Dew point")
                    unitType: root.temperature
                    unit: root.shownUnit(unitType)
                    value: panel.process.dewPoint
                    onUnitRequested: chooser.open(this)
                }
                Reading {
                    objectName: "humidity"
                    units: deviceUnits
                    name: qsTr("Humidity")
                    unitType: root.humidity
                    unit: root.shownUnit(unitType)
                    value: panel.process.humidity
                    onUnitRequested: chooser.open(this)
                }
                Reading {
                    objectName: "supplyPressure"
                    units: deviceUnits
                    name: qsTr("Supply pressure")
                    unitType: root.pressure + "/Bar"
                    value: panel.process.supplyPressure
                }
                PanelRow {
                    objectName: "alarmLimit"
                    units: deviceUnits
                    name: qsTr("Alarm limit")
                    unitType: root.pressure
                    unit: field.textUnit
                    onUnitRequested: chooser.open(this)

                    EditField {
                        id: field
                        objectName: "alarmLimit"
                        // Its number is aligned with those of the other rows.
                        anchors { fill: parent; margins: Style.gap; rightMargin: -Style.gap }
                        units: deviceUnits
                        unitType: root.pressure
                        unit: root.shownUnit(root.pressure)
                        value: panel.process.alarmLimit
                        onAccepted: panel.process.alarmLimit = value
                    }
                }
                Text {
                    objectName: "editError"
                    Layout.fillWidth: true
                    visible: text
                    text: field.error
                    color: Style.alarm
                    font.pixelSize: Style.small
                    fontSizeMode: Text.HorizontalFit
                    minimumPixelSize: 8
                    horizontalAlignment: Text.AlignRight
                }
            }
            StripChart {
                Layout.fillWidth: true
                Layout.fillHeight: true
                units: deviceUnits
                name: qsTr("Line pressure")
                unitType: root.pressure
                unit: root.shownUnit(root.pressure)
                values: panel.process.linePressureHistory
                limit: panel.process.alarmLimit
                limitName: qsTr("Alarm limit")
                capacity: panel.process.historyLength
                duration: panel.process.historyLength * panel.process.period
            }
        }
        StatusBar {
            Layout.fillWidth: true
            Layout.preferredHeight: 38 * Style.scale
            units: deviceUnits
        }
    }
    UnitChooser {
        id: chooser
        anchors.fill: parent
        units: deviceUnits
        onChosen: root.choose(unitType, unit)
    }
}
