#include "UnitStructureCheck.h"

#include <cmath>
#include <limits>
#include <utility>

#include "MemberNames.h"
#include "NumberLists.h"
#include "UnitManager.h"

namespace {

const int mostDecimalPlaces = 17;

/// A kind of conversion, named by the member that selects it.
struct ConversionKind
{
    QString name;
    /// The members of a unit. The absence of a required one is reported on its own.
    QStringList required;
    QStringList optional;
};

const std::vector<ConversionKind>& conversionKinds()
{
    static const std::vector<ConversionKind> kinds = {
        {"Polynomial",
         {"@displayPosition", "DecimalPlaces", "Polynomial", "InversePolynomial", "UnitLabel"},
         {}},
        {"ArbitraryTable", {"@displayPosition", "ArbitraryTable", "Table", "UnitLabel"}, {"InverseTable"}},
        {"EquidistantTable",
         {"@displayPosition", "EquidistantTable", "Table", "UnitLabel"},
         {"InverseTable", "DistanceBaseTable", "DistanceBaseInverseTable", "OrdinateMin", "OrdinateMax",
          "OrdinateMinInversion", "OrdinateMaxInversion"}}};
    return kinds;
}

QString adviceForMissingConversion(const JsonValue& unit)
{
    QString advice = QStringLiteral("add \"Polynomial\" and \"InversePolynomial\"");
    for (const ConversionKind& kind : conversionKinds())
        advice = MemberNames::adviceForMissing(unit, kind.name, advice);
    return advice;
}

/// The members that are misspelt ones of those that the unit lacks.
QStringList misspeltMembers(const JsonValue& unit, const QStringList& required)
{
    QStringList result;
    for (const QString& name : required)
        result.append(MemberNames::misspelling(unit, name));
    result.removeAll(QString());
    return result;
}

/// The whole number from 0 to a maximum; no value for anything else.
std::optional<int> wholeNumber(const JsonValue& value, double most)
{
    const double number = value.number();
    if (value.type() != JsonType::Number || number < 0 || number > most || number != std::floor(number))
        return {};
    return static_cast<int>(number);
}

} // namespace

UnitStructureCheck::UnitStructureCheck(Findings& findings) : m_findings(findings) {}

void UnitStructureCheck::checkUnit(const JsonValue& value, TypeNode& type, const UnitManager& library)
{
    const QString path = type.name + '/' + value.name();
    if (value.type() == JsonType::Null) {
        m_findings.addAtName(Rule::NullNode, value, path,
                             "unit " + DocumentProblem::quoted(value.name()) + " is null",
                             QStringLiteral("write an object"));
        return;
    }
    if (value.type() != JsonType::Object) {
        m_findings.addAtName(Rule::UnitInvalid, value, path,
                             "unit " + DocumentProblem::quoted(value.name()) + " is not an object",
                             QStringLiteral("write an object"));
        return;
    }
    UnitNode unit{value.name(), path, value, {}, {}, {}, {}, {}, {}, {}, {}, {}, {}};
    unit.polynomial = value.member(QStringLiteral("Polynomial"));
    unit.inverse = value.member(QStringLiteral("InversePolynomial"));
    unit.position = value.member(QStringLiteral("@displayPosition"));
    unit.decimals = value.member(QStringLiteral("DecimalPlaces"));
    unit.label = value.member(QStringLiteral("UnitLabel"));
    checkConversion(unit, type, library);
    checkPosition(unit);
    type.units.push_back(std::move(unit));
}

void UnitStructureCheck::checkConversion(UnitNode& unit, const TypeNode& type, const UnitManager& library)
{
    const bool isAccepted = type.accepted.contains(unit.name);
    if (isAccepted)
        library.getConversion(type.id, unit.name, unit.conversion);

    std::vector<std::pair<const ConversionKind*, JsonValue>> kinds;
    for (const ConversionKind& kind : conversionKinds()) {
        if (const auto member = unit.value.member(kind.name))
            kinds.emplace_back(&kind, *member);
    }
    if (kinds.size() > 1) {
        m_findings.addAtName(Rule::ConversionAmbiguous, unit.value, unit.path,
                             "the unit has both " + DocumentProblem::quoted(kinds[0].first->name) + " and " +
                                 DocumentProblem::quoted(kinds[1].first->name),
                             QStringLiteral("keep one of them"));
        return;
    }
    const ConversionKind& kind = kinds.empty() ? conversionKinds()[0] : *kinds[0].first;
    checkMembers(unit, kind.required, kind.optional);
    if (kinds.empty() || !isAccepted) {
        const bool isNull = !kinds.empty() && kinds[0].second.type() == JsonType::Null;
        if (!isNull)
            m_findings.addAtName(Rule::ConversionMissing, unit.value, unit.path,
                                 QStringLiteral("the library ignores the unit: it has no conversion"),
                                 adviceForMissingConversion(unit.value));
        return;
    }
    if (unit.polynomial)
        checkPolynomialUnit(unit);
    else
        checkTableUnit(unit, kinds[0].second);
}

/// Reports null and unknown members. A misspelt member is reported where the right one is missing.
void UnitStructureCheck::checkMembers(const UnitNode& unit, const QStringList& required,
                                      const QStringList& optional)
{
    const QStringList misspelt = misspeltMembers(unit.value, required);
    for (const JsonValue& member : unit.value.children()) {
        const QString name = member.name();
        const bool isKnown = required.contains(name) || optional.contains(name);
        if (isKnown && member.type() == JsonType::Null) {
            m_findings.addAtName(Rule::NullNode, member, unit.path + '/' + name,
                                 DocumentProblem::quoted(name) + " is null");
        } else if (!isKnown && !misspelt.contains(name)) {
            m_findings.addAtName(Rule::UnknownMember, member, unit.path + '/' + name,
                                 "no program reads " + DocumentProblem::quoted(name) + " of this unit",
                                 MemberNames::suggestion(name, required + optional));
        }
    }
}

void UnitStructureCheck::checkPolynomialUnit(UnitNode& unit)
{
    checkDecimals(unit);
    unit.coefficients = readCoefficients(unit, unit.polynomial);
    unit.inverseCoefficients = readCoefficients(unit, unit.inverse);
}

void UnitStructureCheck::checkTableUnit(const UnitNode& unit, const JsonValue& kind)
{
    const QString path = unit.path + '/' + kind.name();
    m_findings.addAtName(Rule::ConversionTable, kind, path,
                         "values are not converted: the library returns them unchanged for " +
                             DocumentProblem::quoted(kind.name()),
                         QStringLiteral("write a \"Polynomial\""));
    if (kind.type() != JsonType::Object || !kind.children().empty())
        m_findings.addAtName(Rule::CoefficientsInvalid, kind, path,
                             DocumentProblem::quoted(kind.name()) + " is not an empty object",
                             QStringLiteral("write {}; the table is beside it"));
    if (!unit.value.member(QStringLiteral("Table")))
        m_findings.addAtName(Rule::CoefficientsInvalid, unit.value, unit.path,
                             QStringLiteral("the unit has no \"Table\""));
    const std::size_t columns = kind.name() == QLatin1String("ArbitraryTable") ? 2 : 1;
    for (const JsonValue& member : unit.value.children()) {
        const QString name = member.name();
        const QString memberPath = unit.path + '/' + name;
        if (member.type() == JsonType::Null)
            continue;
        if (name == QLatin1String("Table") || name == QLatin1String("InverseTable"))
            NumberLists::check(member, memberPath, columns, m_findings);
        else if (name.startsWith(QLatin1String("Distance")) || name.startsWith(QLatin1String("Ordinate")))
            NumberLists::checkNumber(member, memberPath, m_findings);
    }
}

void UnitStructureCheck::checkPosition(UnitNode& unit)
{
    const QString advice = QStringLiteral("write a whole number; 0 is the base unit");
    if (!unit.position) {
        m_findings.addAtName(
            Rule::PositionInvalid, unit.value, unit.path,
            QStringLiteral("the unit has no \"@displayPosition\""),
            MemberNames::adviceForMissing(unit.value, QStringLiteral("@displayPosition"), advice));
    } else if (unit.position->type() != JsonType::Null) {
        unit.displayPosition = wholeNumber(*unit.position, std::numeric_limits<int>::max());
        if (!unit.displayPosition)
            m_findings.addAtValue(Rule::PositionInvalid, *unit.position, unit.path + "/@displayPosition",
                                  QStringLiteral("the position is not a whole number from 0 on"), advice);
    }
}

void UnitStructureCheck::checkDecimals(UnitNode& unit)
{
    const QString advice = QStringLiteral("write a whole number from 0 to 17, without quotes");
    if (!unit.decimals) {
        m_findings.addAtName(
            Rule::DecimalsInvalid, unit.value, unit.path,
            QStringLiteral("the unit has no \"DecimalPlaces\", so it is shown without any"),
            MemberNames::adviceForMissing(unit.value, QStringLiteral("DecimalPlaces"), advice));
    } else if (unit.decimals->type() != JsonType::Null) {
        unit.decimalPlaces = wholeNumber(*unit.decimals, mostDecimalPlaces);
        if (!unit.decimalPlaces)
            m_findings.addAtValue(Rule::DecimalsInvalid, *unit.decimals, unit.path + "/DecimalPlaces",
                                  QStringLiteral("the decimal places are not a whole number from 0 to 17"),
                                  advice);
    }
}

/// @return empty if there is no list, or if it is not valid, which is reported
std::vector<double> UnitStructureCheck::readCoefficients(const UnitNode& unit,
                                                         const std::optional<JsonValue>& list)
{
    std::vector<double> result;
    if (!list || list->type() == JsonType::Null ||
        !NumberLists::check(*list, unit.path + '/' + list->name(), 1, m_findings))
        return result;
    for (const JsonValue& row : list->children())
        result.push_back(row.children().front().number());
    while (result.size() > 1 && result.back() == 0)
        result.pop_back();
    return result;
}
