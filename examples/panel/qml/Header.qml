import QtQuick 2.15

// The name of the device, and the languages.
Item {
    Text {
        objectName: "title"
        anchors { left: parent.left; verticalCenter: parent.verticalCenter }
        text: qsTr("Measuring device")
        color: Style.text
        font { pixelSize: 20 * Style.scale; bold: true }
    }
    Row {
        anchors { right: parent.right; verticalCenter: parent.verticalCenter }
        spacing: Style.gap

        Repeater {
            model: ["en", "de", "fr"]

            Button {
                objectName: "language-" + modelData
                width: 56 * Style.scale
                text: modelData.toUpperCase()
                selected: panel.language === modelData
                onClicked: panel.language = modelData
            }
        }
    }
}
