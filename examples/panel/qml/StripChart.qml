import QtQuick 2.15
import Panel 1.0
import UnitManager 1.0

// A strip chart of the last values of a quantity, with an axis in the unit that is shown.
Rectangle {
    id: chart

    property Units units
    property string name
    property string unitType
    property string unit
    property var values: []
    property real limit
    property string limitName
    property int capacity
    property real duration

    readonly property var shownValues: units.ready ? values.map(value => units.fromBase(value, unitType, unit)) : []
    readonly property real shownLimit: units.fromBase(limit, unitType, unit)
    readonly property var ticks: ticksFor(Math.min(...shownValues), Math.max(...shownValues), shownLimit)
    readonly property real minimum: ticks[0]
    readonly property real maximum: ticks[ticks.length - 1]
    readonly property string fixedUnit: unitType + "/" + (unit || units.defaultUnit(unitType))

    // Round numbers that enclose the values, and the limit unless it is far away.
    function ticksFor(lowest, highest, near) {
        if (!(lowest < highest))
            return [0, 1]
        if (near > highest && near < 2 * highest - lowest)
            highest = near
        if (near < lowest && near > 2 * lowest - highest)
            lowest = near
        const rough = (highest - lowest) / 4
        const power = Math.pow(10, Math.floor(Math.log10(rough)))
        const step = power * [1, 2, 5, 10].find(factor => factor * power >= rough)
        const result = []
        for (let index = Math.floor(lowest / step); index <= Math.ceil(highest / step); ++index)
            result.push(index * step)
        return result
    }
    function position(shownValue) {
        return plot.height * (maximum - shownValue) / (maximum - minimum)
    }

    radius: Style.radius
    color: Style.surface

    Text {
        objectName: "chartTitle"
        anchors { left: parent.left; leftMargin: Style.margin; top: parent.top; topMargin: Style.margin }
        text: chart.name + " (" + chart.units.label(chart.unitType, chart.unit) + ")"
        color: Style.muted
        font.pixelSize: Style.medium
    }
    Item {
        id: plot
        anchors {
            fill: parent
            leftMargin: 72 * Style.scale; rightMargin: Style.margin
            topMargin: 48 * Style.scale; bottomMargin: 36 * Style.scale
        }

        Repeater {
            model: chart.units.ready ? chart.ticks : []

            Rectangle {
                y: Math.round(chart.position(modelData))
                width: plot.width
                height: 1
                color: Style.line

                Text {
                    objectName: "tick" + index
                    anchors { right: parent.left; rightMargin: Style.gap; verticalCenter: parent.verticalCenter }
                    text: chart.units.number(modelData, chart.fixedUnit)
                    color: Style.muted
                    font.pixelSize: Style.small
                }
            }
        }
        Rectangle {
            objectName: "limitLine"
            y: Math.round(chart.position(chart.shownLimit))
            visible: chart.shownLimit >= chart.minimum && chart.shownLimit <= chart.maximum
            width: plot.width
            height: Math.max(1, Math.round(1.5 * Style.scale))
            color: Style.alarm

            Text {
                anchors { right: parent.right; bottom: parent.top }
                text: chart.limitName
                color: Style.alarm
                font.pixelSize: Style.small
            }
        }
        TrendLine {
            anchors.fill: parent
            values: chart.shownValues
            capacity: chart.capacity
            minimum: chart.minimum
            maximum: chart.maximum
            color: Style.accent
            lineWidth: 2 * Style.scale
        }
        Text {
            anchors { left: parent.left; top: parent.bottom; topMargin: Style.gap }
            text: "-" + chart.duration + " " + chart.units.label("UnitManager/UnitType/Time", "Seconds")
            color: Style.muted
            font.pixelSize: Style.small
        }
        Text {
            anchors { right: parent.right; top: parent.bottom; topMargin: Style.gap }
            text: qsTr("now")
            color: Style.muted
            font.pixelSize: Style.small
        }
    }
}
