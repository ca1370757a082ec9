#include "LoadedUnits.h"

#include <QtQml/QQmlComponent>
#include <QtQml/QQmlError>
#include <QtQml/QQmlExpression>
#include <QtTest/QTest>

#include "WaitLimit.h"

namespace {

const char* const source = R"(
import UnitManager 1.0

Units {
    readonly property string pressure: "UnitManager/UnitType/Pressure"
    readonly property string fixedBar: "UnitManager/UnitType/Pressure/Bar"
    readonly property string temperature: "UnitManager/UnitType/AbsoluteTemperature"
    readonly property string humidity: "UnitManager/UnitType/RelativeHumidity"
    readonly property string resistance: "UnitManager/UnitType/Resistance"
    readonly property string noUnit: "UnitManager/UnitType/NoUnit"
    readonly property string unknown: "UnitManager/UnitType/Unknown"

    property int adoptions: 0
    // Not a property of its own: a binding that reads what it changes would be a loop.
    readonly property var counter: ({ evaluations: 0 })
    readonly property string shown: counted(text(101.325, pressure, "Bar") + ", " + text(45.678, humidity))
    function counted(text) { ++counter.evaluations; return text }

    onConfigurationAdopted: ++adoptions
}
)";

} // namespace

LoadedUnits::LoadedUnits()
{
    m_engine.addImportPath(qEnvironmentVariable("UNITMANAGER_QML_DIR", UNITMANAGER_QML_DIR));
    QQmlComponent component(&m_engine);
    component.setData(source, QUrl());
    m_units.reset(component.create());
    if (!m_units)
        qFatal("%s", qPrintable(component.errorString()));
}

QVariant LoadedUnits::evaluate(const QString& expression)
{
    QQmlExpression evaluated(QQmlEngine::contextForObject(m_units.get()), m_units.get(), expression);
    const QVariant value = evaluated.evaluate();
    return evaluated.hasError() ? evaluated.error().toString() : value;
}

bool LoadedUnits::waitFor(const QString& expression, const QVariant& value)
{
    return QTest::qWaitFor([&] { return evaluate(expression) == value; }, waitLimit);
}
