#include "BehaviourTable.h"

#include "BehaviourDocuments.h"
#include "ConfigurationAndProcessDataParser.h"
#include "PropertyManagerConst.h"
#include "RecordedCalls.h"
#include "UnitConversion/UnitConversionLookUp.h"
#include "UnitManagerCore.h"

namespace {

using namespace BehaviourDocuments;
using RecordedCalls::exactBits;

using FacadeOperation = QVariant (UnitManager::*)(const QVariant&, const QString&, const QString&) const;

struct NamedOperation
{
    QString name;
    FacadeOperation operation;
};

QList<NamedOperation> facadeOperations()
{
    return {{QStringLiteral("fromBaseUnit"), &UnitManager::fromBaseUnit},
            {QStringLiteral("toBaseUnit"), &UnitManager::toBaseUnit},
            {QStringLiteral("fromBaseUnitRaw"), &UnitManager::fromBaseUnitRaw},
            {QStringLiteral("toBaseUnitRaw"), &UnitManager::toBaseUnitRaw},
            {QStringLiteral("getValue"), &UnitManager::getValue}};
}

QString rowName(const QString& operation, const QString& manager, const UnitNames& names,
                const QString& value)
{
    return QStringLiteral("%1 (%2) %3 %4").arg(operation, manager, names.text(), value);
}

QString resultText(bool isSuccess, const QVariant& value)
{
    return (isSuccess ? QLatin1String("true ") : QLatin1String("false ")) + exactBits(value);
}

/// The content of a copy of @p value after an operation that converts in place.
template <typename Convert>
QString inPlace(QVariant value, const Convert& convert)
{
    const bool isSuccess = convert(value);
    return resultText(isSuccess, value);
}

BehaviourRows facadeRows(const NamedManager& manager, const UnitNames& names, const NamedValue& value)
{
    BehaviourRows rows;
    const UnitManager* const units = &manager.manager;
    for (const NamedOperation& operation : facadeOperations()) {
        rows.append({rowName(operation.name, manager.name, names, value.name), [=] {
                         return exactBits(
                             (units->*operation.operation)(value.value, names.fullType(), names.unit));
                     }});
    }
    return rows;
}

BehaviourRows decimalPlaceRows(const NamedManager& manager, const UnitNames& names)
{
    const UnitManager* const units = &manager.manager;
    return {{rowName(QStringLiteral("getDecimalPlacesForUnit"), manager.name, names, QString()), [=] {
                 unsigned int places = 77;
                 const bool isKnown = units->getDecimalPlacesForUnit(names.fullType(), names.unit, places);
                 return resultText(isKnown, places);
             }}};
}

const UnitManagerCore& core()
{
    static const UnitManagerCore loaded = [] {
        UnitManagerCore made;
        made.updateUnitConversionByJsonString(units());
        made.updateDefaultUnitsByJsonString(defaultUnits());
        return made;
    }();
    return loaded;
}

const UnitConversionLookUp& lookUp()
{
    static const UnitConversionLookUp loaded{units()};
    return loaded;
}

const UnitConversionUnitTypeHandler& pressure()
{
    static const UnitConversionUnitTypeHandler loaded(
        ConfigurationAndProcessDataParser()
            .parseFromJson(units(), PropertyManagerConst::getConfigFileExtension())
            ->getChild(QStringLiteral("Pressure")),
        QStringLiteral("Pressure"));
    return loaded;
}

BehaviourRows coreRows(const UnitNames& names, const NamedValue& value)
{
    return {{rowName(QStringLiteral("core.toBaseUnit"), QStringLiteral("loaded"), names, value.name),
             [=] {
                 return inPlace(value.value, [&](QVariant& number) {
                     return core().toBaseUnit(number, names.fullType(), names.unit);
                 });
             }},
            {rowName(QStringLiteral("core.fromBaseUnit"), QStringLiteral("loaded"), names, value.name), [=] {
                 return exactBits(core().fromBaseUnit(value.value, names.fullType(), names.unit));
             }}};
}

/// Operations of @p target that convert in place.
template <typename Target, typename... Names>
BehaviourRows inPlaceRows(const QString& prefix, const QString& suffix, const Target* target,
                          const NamedValue& value, const Names&... names)
{
    return {{prefix + QLatin1String(".toBaseUnit ") + suffix,
             [=] {
                 return inPlace(value.value,
                                [&](QVariant& number) { return target->toBaseUnit(number, names...); });
             }},
            {prefix + QLatin1String(".fromBaseUnit ") + suffix, [=] {
                 return inPlace(value.value,
                                [&](QVariant& number) { return target->fromBaseUnit(number, names...); });
             }}};
}

BehaviourRows catalogueRows(const UnitNames& names, const NamedValue& value)
{
    const QString suffix = names.text() + QLatin1Char(' ') + value.name;
    return inPlaceRows(QStringLiteral("lookUp"), suffix, &lookUp(), value, names.fullType(), names.unit);
}

BehaviourRows unitTypeRows(const NamedValue& value)
{
    BehaviourRows rows;
    for (const char* unit : {"HectoPascal", "Bent", "", "NoUnit", "Cubit"}) {
        const QString name = QString::fromLatin1(unit);
        rows.append(inPlaceRows(QStringLiteral("unitType"), QStringLiteral("\"%1\" %2").arg(name, value.name),
                                &pressure(), value, name));
    }
    return rows;
}

BehaviourRows roundingRows()
{
    BehaviourRows rows;
    const UnitManager* const units = &managers().first().manager;
    for (const NamedValue& value : values()) {
        for (const unsigned int places : {0U, 2U, 20U}) {
            rows.append({QStringLiteral("roundDouble %1 %2").arg(value.name).arg(places), [=] {
                             return exactBits(units->roundDouble(value.value, places));
                         }});
        }
    }
    return rows;
}

} // namespace

BehaviourRows valueRows()
{
    // Load before recording starts, because loading visits a document in the order of its hash.
    core();
    lookUp();
    pressure();

    BehaviourRows rows;
    for (const NamedManager& manager : managers()) {
        const bool isFirst = &manager == &managers().first();
        for (const UnitNames& names : unitNames()) {
            rows.append(decimalPlaceRows(manager, names));
            for (const NamedValue& value : fewValues())
                rows.append(facadeRows(manager, names, value));
            for (const NamedValue& value : fewValues()) {
                if (isFirst)
                    rows.append(coreRows(names, value) + catalogueRows(names, value));
            }
        }
    }
    for (const NamedValue& value : values().mid(fewValues().size())) {
        for (const UnitNames& names : unitNames().mid(0, 7))
            rows.append(facadeRows(managers().first(), names, value));
    }
    for (const NamedValue& value : values())
        rows.append(unitTypeRows(value));
    return rows + roundingRows();
}
