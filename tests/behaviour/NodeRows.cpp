#include "BehaviourTable.h"

#include "BehaviourDocuments.h"
#include "ConfigurationAndProcessDataBase.h"
#include "ConfigurationAndProcessDataDefinitions.h"
#include "ProcessDataValue.h"
#include "RecordedCalls.h"

namespace {

using namespace BehaviourDocuments;
using Definitions = ConfigurationAndProcessDataDefinitions;
using RecordedCalls::exactBits;

const QString valueKey = QStringLiteral("Value");

QString writeText(const char* operation, const QString& propertyKey, const QVariant& value)
{
    return QLatin1String(operation) + QLatin1Char(' ') + propertyKey + QLatin1String(" = ") +
           exactBits(value);
}

/// A node as another library could have derived it: it has given properties, returns a given status from
/// every write, and records every call.
class ForeignNode : public ConfigurationAndProcessDataBase
{
public:
    ForeignNode(const QHash<QString, QVariant>& properties, int writeStatus)
        : m_properties(properties), m_writeStatus(writeStatus)
    {}

    /// A node without properties whose only child has the key "Value".
    static BaseClassSharedPointer parentOf(const BaseClassSharedPointer& child)
    {
        const auto parent = QSharedPointer<ForeignNode>::create(QHash<QString, QVariant>(), 2);
        parent->m_child = child;
        return parent;
    }

    BaseClassSharedPointer getChild(const QString& key) const override
    {
        RecordedCalls::add(QStringLiteral("getChild ") + key);
        return key == valueKey ? m_child : BaseClassSharedPointer();
    }
    QVariant getProperty(const QString& propertyKey) const override
    {
        RecordedCalls::add(QStringLiteral("getProperty ") + propertyKey);
        return m_properties.value(propertyKey);
    }
    bool hasProperty(const QString& propertyKey) const override
    {
        RecordedCalls::add(QStringLiteral("hasProperty ") + propertyKey);
        return m_properties.contains(propertyKey);
    }
    int changeProperty(const QString& propertyKey, const QVariant& value) override
    {
        RecordedCalls::add(writeText("changeProperty", propertyKey, value));
        return m_writeStatus;
    }
    int setProperty(const QString& propertyKey, const QVariant& value) override
    {
        RecordedCalls::add(writeText("setProperty", propertyKey, value));
        return m_writeStatus;
    }

private:
    QHash<QString, QVariant> m_properties;
    int m_writeStatus;
    BaseClassSharedPointer m_child;
};

/// The properties of a node.
struct NodeKind
{
    QString name;
    QVariant type;
    QVariant unitType;
    int writeStatus;
};

QList<NodeKind> nodeKinds()
{
    const QString pressure = UnitNames{QStringLiteral("Pressure"), QString()}.fullType();
    const QString number = Definitions::getKeyDataTypeNumber();
    return {{QStringLiteral("number of pressure"), number, pressure, 0},
            {QStringLiteral("number of a fixed unit"), number, pressure + QLatin1String("/Bar"), 1},
            {QStringLiteral("number of an unknown type"), number, QStringLiteral("Nope"), 0},
            {QStringLiteral("number without unit type"), number, QVariant(), 2},
            {QStringLiteral("number of an empty unit type"), number, QString(), 0},
            {QStringLiteral("number of a list as unit type"), number, QVariantList{1}, 0},
            {QStringLiteral("text of pressure"), Definitions::getKeyDataTypeText(), pressure, 7}};
}

BaseClassSharedPointer makeNode(const NodeKind& kind, const QVariant& value)
{
    QHash<QString, QVariant> properties;
    properties.insert(Definitions::getKeyDataPropertyType(), kind.type);
    if (kind.unitType.isValid())
        properties.insert(Definitions::getKeyDataPropertyUnitType(), kind.unitType);
    if (value.isValid())
        properties.insert(Definitions::getKeyDataPropertyValue(), value);
    return QSharedPointer<ForeignNode>::create(properties, kind.writeStatus);
}

/// Process data that record queries of their properties as a node.
class RecordingProcessData : public ProcessDataValue
{
public:
    using ProcessDataValue::ProcessDataValue;

    QVariant getProperty(const QString& propertyKey) const override
    {
        RecordedCalls::add(QStringLiteral("getProperty ") + propertyKey);
        return ProcessDataValue::getProperty(propertyKey);
    }
    bool hasProperty(const QString& propertyKey) const override
    {
        RecordedCalls::add(QStringLiteral("hasProperty ") + propertyKey);
        return ProcessDataValue::hasProperty(propertyKey);
    }
};

QString processValueText(const ProcessValue& value)
{
    return QStringLiteral("error %1 %2").arg(value.getErrorType()).arg(exactBits(value.getValue()));
}

BehaviourRows accessRows(const NodeKind& kind, const NamedValue& value, const QString& unit)
{
    const UnitManager* const units = &managers().first().manager;
    const QString suffix = QStringLiteral(" %1, %2, \"%3\"").arg(kind.name, value.name, unit);
    const BaseClassSharedPointer parent = ForeignNode::parentOf(makeNode(kind, value.value));
    return {{QLatin1String("node.getValue") + suffix,
             [=] {
                 return exactBits(units->getValue(valueKey, parent, unit));
             }},
            {QLatin1String("node.setValueStatus") + suffix,
             [=] {
                 return QString::number(units->setValueStatus(valueKey, parent, value.value, unit));
             }},
            {QLatin1String("node.setValue") + suffix, [=] {
                 return QString::number(units->setValue(valueKey, parent, value.value, unit));
             }}};
}

BehaviourRows missingNodeRows()
{
    const UnitManager* const units = &managers().first().manager;
    const BaseClassSharedPointer childless = ForeignNode::parentOf(BaseClassSharedPointer());
    BehaviourRows rows;
    for (const BaseClassSharedPointer& node : {BaseClassSharedPointer(), childless}) {
        const QString suffix = node ? QStringLiteral(" missing child") : QStringLiteral(" null node");
        rows.append({QLatin1String("node.getValue") + suffix, [=] {
                         return exactBits(units->getValue(valueKey, node, QString()));
                     }});
        rows.append({QLatin1String("node.setValueStatus") + suffix, [=] {
                         return QString::number(units->setValueStatus(valueKey, node, 1.5, QString()));
                     }});
    }
    return rows;
}

/// Reads and writes process data where the stored or given value has an error type.
BehaviourRows processDataRows(const NamedValue& value, const QString& unitType, const QString& unit,
                              int errorType)
{
    const UnitManagerDevice* const device = &managers().first().manager;
    const QString suffix =
        QStringLiteral(" \"%1\" \"%2\" %3, error %4").arg(unitType, unit, value.name).arg(errorType);
    const QString fullType = UnitNames{unitType, unit}.fullType();
    const ProcessValue given(value.value, ProcessDataDefinitions::ErrorTypes(errorType));
    return {{QLatin1String("process.getValueNoLock") + suffix,
             [=] {
                 const auto data = QSharedPointer<RecordingProcessData>::create(fullType);
                 data->setValue(given);
                 RecordedCalls::takeCalls();
                 return processValueText(device->getValueNoLock(data, unit));
             }},
            {QLatin1String("process.setValueNoLock") + suffix, [=] {
                 const auto data = QSharedPointer<RecordingProcessData>::create(fullType);
                 const bool isWritten = device->setValueNoLock(data, given, unit);
                 const QStringList calls = RecordedCalls::takeCalls();
                 const QString stored = processValueText(data->getValue());
                 RecordedCalls::takeCalls();
                 for (const QString& call : calls)
                     RecordedCalls::add(call);
                 return QString::number(isWritten) + QLatin1Char(' ') + stored;
             }}};
}

} // namespace

BehaviourRows nodeRows()
{
    BehaviourRows rows = missingNodeRows();
    for (const NodeKind& kind : nodeKinds()) {
        for (const NamedValue& value : fewValues()) {
            for (const char* unit : {"HectoPascal", "", "Cubit", "NoUnit"})
                rows.append(accessRows(kind, value, QString::fromLatin1(unit)));
        }
    }
    for (const UnitNames& names : unitNames()) {
        for (const NamedValue& value : fewValues())
            rows.append(processDataRows(value, names.unitType, names.unit, 0));
    }
    return rows + processDataRows(fewValues().first(), QStringLiteral("Pressure"), QString(), 2);
}
