import QtQuick 2.15
import UnitManager 1.0

// Edits a value in its unit. What the person did not edit is never written: neither an untouched field nor a text that is
// again what the field showed at first changes the value, although the text is rounded.
Rectangle {
    id: field

    property Units units
    property real value
    property string unitType
    property string unit
    readonly property string shown: units.number(value, unitType, unit)
    // The unit that the text is in: the one in which editing began.
    readonly property string textUnit: edited ? editedUnit : unit
    // Why the text is refused.
    property string error
    property bool edited: false
    property string editedUnit
    signal accepted(real value)

    function begin() {
        error = ""
        if (edited)
            return
        editedUnit = unit || units.defaultUnit(unitType)
        edited = true
    }
    function cancel() {
        edited = false
        error = ""
        input.text = shown
    }
    function finish() {
        if (!edited)
            return
        if (input.text === units.number(value, unitType, editedUnit)) {
            cancel()
            return
        }
        const result = units.toBase(input.text, unitType, editedUnit)
        error = result.error
        if (error)
            return
        edited = false
        accepted(result.value)
        cancel()
    }

    onShownChanged: if (!edited) input.text = shown

    radius: Style.radius
    color: Style.background
    border { width: Math.max(1, Style.scale); color: error ? Style.alarm : input.activeFocus ? Style.accent : Style.line }

    // A text in another locale would be another number.
    Connections {
        target: panel
        function onLanguageChanged() { field.cancel() }
    }
    TextInput {
        id: input
        objectName: field.objectName + "Input"
        anchors { fill: parent; leftMargin: Style.gap; rightMargin: Style.gap }
        color: Style.text
        selectionColor: Style.accent
        selectedTextColor: Style.background
        font.pixelSize: Style.large
        horizontalAlignment: TextInput.AlignRight
        verticalAlignment: TextInput.AlignVCenter
        inputMethodHints: Qt.ImhFormattedNumbersOnly
        selectByMouse: true
        clip: true
        onTextEdited: field.begin()
        onActiveFocusChanged: if (activeFocus) selectAll()
        onEditingFinished: field.finish()
        Keys.onEscapePressed: field.cancel()
    }
}
