import QtQuick 2.15
import UnitManager 1.0

// The state of the connector, and a banner while a document is refused or shortly after a configuration was adopted.
Item {
    id: bar

    property Units units
    readonly property string refusal: panel.documents.refusal
    readonly property string message: refusal ? qsTr("Configuration refused: %1").arg(refusal)
                                              : adopted.running ? qsTr("New configuration adopted") : ""

    Connections {
        target: bar.units
        property bool isFirst: true
        function onConfigurationAdopted() {
            if (!isFirst)
                adopted.restart()
            isFirst = false
        }
    }
    Timer {
        id: adopted
        interval: 8000
    }

    Rectangle {
        id: lamp
        anchors { left: parent.left; leftMargin: Style.gap; verticalCenter: parent.verticalCenter }
        width: 12 * Style.scale
        height: width
        radius: width / 2
        color: bar.units.state === "ready" ? Style.good : Style.warning
    }
    Text {
        id: state
        objectName: "state"
        anchors { left: lamp.right; leftMargin: Style.gap; verticalCenter: parent.verticalCenter }
        text: bar.units.state === "ready" ? qsTr("Connected")
                                          : bar.units.state === "reading" ? qsTr("Reading") : qsTr("Waiting for the service")
        color: Style.muted
        font.pixelSize: Style.small
    }
    Rectangle {
        anchors { left: state.right; leftMargin: Style.margin; right: parent.right; top: parent.top; bottom: parent.bottom }
        visible: bar.message
        radius: Style.radius
        color: bar.refusal ? Style.warning : Style.good

        Text {
            objectName: "banner"
            anchors { fill: parent; leftMargin: Style.margin; rightMargin: Style.margin }
            text: bar.message
            color: Style.background
            font.pixelSize: Style.small
            wrapMode: Text.Wrap
            maximumLineCount: 2
            elide: Text.ElideRight
            verticalAlignment: Text.AlignVCenter
        }
    }
}
