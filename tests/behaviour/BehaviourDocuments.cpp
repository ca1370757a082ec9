#include "BehaviourDocuments.h"

#include <limits>

#include "DoubleBits.h"
#include "PropertyManagerConst.h"

namespace {

UnitManagerDevice loaded(const QString& units, const QString& defaultUnits)
{
    UnitManagerDevice manager;
    manager.initByJsonString(units, defaultUnits);
    return manager;
}

} // namespace

QString BehaviourDocuments::units()
{
    return QStringLiteral(R"json({
        "Pressure": {
            "Bar": { "@displayPosition": 0, "DecimalPlaces": 3,
                     "Polynomial": [[0], [1]], "InversePolynomial": [[0], [1]], "UnitLabel": "bar" },
            "HectoPascal": { "@displayPosition": 1, "DecimalPlaces": 1,
                             "Polynomial": [[0], [1000]], "InversePolynomial": [[0], [0.001]] },
            "MilliBar": { "@displayPosition": 2, "Polynomial": [[0], [1000]] },
            "Bent": { "@displayPosition": 3, "DecimalPlaces": 20,
                      "Polynomial": [[0.1], [-3], [0.7], [1e-3]], "InversePolynomial": [[7]] },
            "": { "@displayPosition": 4, "DecimalPlaces": 2, "Polynomial": [[1], [2]] }
        },
        "Ratio": {
            "Percentage": { "@displayPosition": 0, "DecimalPlaces": 2, "Polynomial": [[0], [1]] },
            "Counts": { "@displayPosition": 1, "DecimalPlaces": 2,
                        "ArbitraryTable": {}, "Table": [[0, 0], [10, 100]] },
            "Steps": { "@displayPosition": 2, "EquidistantTable": {}, "Table": [0, 100],
                       "DistanceBaseTable": 10 }
        },
        "Time": { "Second": { "@displayPosition": 0, "DecimalPlaces": 0, "Polynomial": [[0], [1]] } },
        "Voltage": { "Volt": { "@displayPosition": 0, "DecimalPlaces": 0, "Polynomial": [[0], [1]] } },
        "Odd/Name": { "Bar": { "@displayPosition": 0, "DecimalPlaces": 1, "Polynomial": [[5], [1]] } },
        "NoUnit": { "NoUnit": { "@displayPosition": 0 } },
        "Nothing": null
    })json");
}

QString BehaviourDocuments::defaultUnits()
{
    return QStringLiteral(R"json({
        "Pressure": { "@type": "Selection", "@value": "UnitManager/UnitType/Pressure/HectoPascal" },
        "Time": { "@type": "Selection", "@value": "NoUnit" },
        "Voltage": { "@type": "Selection", "@value": "Cubit" },
        "Odd/Name": { "@type": "Selection", "@value": "Bar" },
        "Nothing": { "@type": "Selection", "@value": "Bar" }
    })json");
}

const QList<BehaviourDocuments::NamedManager>& BehaviourDocuments::managers()
{
    static const QList<NamedManager> list = {{QStringLiteral("loaded"), loaded(units(), defaultUnits())},
                                             {QStringLiteral("no defaults"), loaded(units(), QString())},
                                             {QStringLiteral("empty"), UnitManagerDevice()}};
    return list;
}

QString BehaviourDocuments::UnitNames::fullType() const
{
    if (unitType.isEmpty())
        return unitType;
    return unitType.startsWith(QLatin1Char('!')) ? unitType.mid(1)
                                                 : PropertyManagerConst::getUnitTypeNamePrefix() + unitType;
}

QString BehaviourDocuments::UnitNames::text() const
{
    return QLatin1Char('"') + unitType + QLatin1String("\" \"") + unit + QLatin1Char('"');
}

QList<BehaviourDocuments::UnitNames> BehaviourDocuments::unitNames()
{
    QList<UnitNames> list;
    const char* const names[][2] = {{"Pressure", "HectoPascal"},
                                    {"Pressure", "MilliBar"},
                                    {"Pressure", "Bent"},
                                    {"Pressure", ""},
                                    {"Pressure", "NoUnit"},
                                    {"Pressure", "Cubit"},
                                    {"Pressure/Bar", ""},
                                    {"Pressure/Bar", "Cubit"},
                                    {"Pressure/Cubit", ""},
                                    {"Unknown/Bar", ""},
                                    {"Odd/Name", "Bar"},
                                    {"Ratio", "Counts"},
                                    {"Ratio", "Steps"},
                                    {"Ratio", ""},
                                    {"Time", ""},
                                    {"Voltage", ""},
                                    {"NoUnit", ""},
                                    {"NoUnit", "Bar"},
                                    {"NoUnit/NoUnit", ""},
                                    {"Nothing", "Bar"},
                                    {"Unknown", "Bar"},
                                    {"Unknown", ""},
                                    {"", ""},
                                    {"", "Bar"},
                                    {"!Pressure", "Bar"},
                                    {"!///", ""},
                                    {"Pressure/Bar/", "Bar"}};
    for (const auto& pair : names)
        list.append({QString::fromLatin1(pair[0]), QString::fromLatin1(pair[1])});
    return list;
}

QList<BehaviourDocuments::NamedValue> BehaviourDocuments::values()
{
    QList<NamedValue> list = fewValues();
    const double infinity = std::numeric_limits<double>::infinity();
    list.append({{QStringLiteral("0.0"), 0.0},
                 {QStringLiteral("-0.0"), -0.0},
                 {QStringLiteral("1/3"), 1.0 / 3.0},
                 {QStringLiteral("subnormal"), 5e-324},
                 {QStringLiteral("huge"), 1e308},
                 {QStringLiteral("infinity"), infinity},
                 {QStringLiteral("-infinity"), -infinity},
                 {QStringLiteral("signalling NaN"), doubleFromBits(0x7FF0000000000001U)},
                 {QStringLiteral("int"), -999},
                 {QStringLiteral("unsigned"), 4294967295U},
                 {QStringLiteral("long"), Q_INT64_C(9007199254740993)},
                 {QStringLiteral("float"), 2.5F},
                 {QStringLiteral("float NaN"), std::numeric_limits<float>::quiet_NaN()},
                 {QStringLiteral("bool"), true},
                 {QStringLiteral("number text"), QStringLiteral("1.23456")},
                 {QStringLiteral("bytes"), QByteArray("7")},
                 {QStringLiteral("list"), QVariantList{1.5}}});
    return list;
}

QList<BehaviourDocuments::NamedValue> BehaviourDocuments::fewValues()
{
    return {{QStringLiteral("1.01325"), 1.01325},
            {QStringLiteral("-999"), -999.0},
            {QStringLiteral("NaN"), std::numeric_limits<double>::quiet_NaN()},
            {QStringLiteral("NaN with bits"), doubleFromBits(0xFFF8000000000123U)},
            {QStringLiteral("text"), QStringLiteral("abc")},
            {QStringLiteral("invalid"), QVariant()}};
}
