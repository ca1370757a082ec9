#include "UnitStructureCheck.h"

#include <algorithm>
#include <cmath>

#include "MemberNames.h"
#include "UnitManager.h"

namespace {

const int mostDecimalPlaces = 17;

const QStringList& conversionKinds()
{
    static const QStringList kinds{QStringLiteral("Polynomial"), QStringLiteral("ArbitraryTable"),
                                   QStringLiteral("EquidistantTable")};
    return kinds;
}

QStringList knownMembers(const QString& conversionKind)
{
    const QStringList common{QStringLiteral("@displayPosition"), QStringLiteral("UnitLabel"), conversionKind};
    if (conversionKind == conversionKinds()[0])
        return common + QStringList{QStringLiteral("DecimalPlaces"), QStringLiteral("InversePolynomial")};
    const QStringList table = common + QStringList{QStringLiteral("Table"), QStringLiteral("InverseTable")};
    if (conversionKind == conversionKinds()[1])
        return table;
    return table +
           QStringList{QStringLiteral("DistanceBaseTable"),    QStringLiteral("DistanceBaseInverseTable"),
                       QStringLiteral("OrdinateMin"),          QStringLiteral("OrdinateMax"),
                       QStringLiteral("OrdinateMinInversion"), QStringLiteral("OrdinateMaxInversion")};
}

/// The members that every unit must have. Their absence is reported on its own.
QStringList requiredMembers(const QString& conversionKind)
{
    const QStringList common{QStringLiteral("@displayPosition"), QStringLiteral("UnitLabel"), conversionKind};
    if (conversionKind != conversionKinds()[0])
        return common + QStringList{QStringLiteral("Table")};
    return common + QStringList{QStringLiteral("DecimalPlaces"), QStringLiteral("InversePolynomial")};
}

QString adviceForMissingConversion(const JsonValue& unit)
{
    QString advice = QStringLiteral("add \"Polynomial\" and \"InversePolynomial\"");
    for (const QString& kind : conversionKinds())
        advice = MemberNames::adviceForMissing(unit, kind, advice);
    return advice;
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
    unit.polynomial = value.member(conversionKinds()[0]);
    unit.inverse = value.member(QStringLiteral("InversePolynomial"));
    unit.position = value.member(QStringLiteral("@displayPosition"));
    unit.decimals = value.member(QStringLiteral("DecimalPlaces"));
    unit.label = value.member(QStringLiteral("UnitLabel"));
    checkConversion(unit, type, library);
    checkPosition(unit);
    type.units.push_back(unit);
}

void UnitStructureCheck::checkConversion(UnitNode& unit, const TypeNode& type, const UnitManager& library)
{
    const bool isAccepted = type.accepted.contains(unit.name);
    if (isAccepted)
        library.getConversion(type.id, unit.name, unit.conversion);

    std::vector<JsonValue> kinds;
    for (const QString& kind : conversionKinds()) {
        if (const auto member = unit.value.member(kind))
            kinds.push_back(*member);
    }
    if (kinds.size() > 1) {
        m_findings.addAtName(Rule::ConversionAmbiguous, unit.value, unit.path,
                             "the unit has both " + DocumentProblem::quoted(kinds[0].name()) + " and " +
                                 DocumentProblem::quoted(kinds[1].name()),
                             QStringLiteral("keep one of them"));
        return;
    }
    if (kinds.empty() || !isAccepted) {
        const bool isNull = !kinds.empty() && kinds[0].type() == JsonType::Null;
        if (!isNull)
            m_findings.addAtName(Rule::ConversionMissing, unit.value, unit.path,
                                 QStringLiteral("the library ignores the unit: it has no conversion"),
                                 adviceForMissingConversion(unit.value));
        checkMembers(unit, conversionKinds()[0]);
        return;
    }
    checkMembers(unit, kinds[0].name());
    if (unit.polynomial)
        checkPolynomialUnit(unit);
    else
        checkTableUnit(unit, kinds[0]);
}

/// Reports null and unknown members. A misspelt member is reported where the right one is missing.
void UnitStructureCheck::checkMembers(const UnitNode& unit, const QString& conversionKind)
{
    QStringList misspelt;
    for (const QString& required : requiredMembers(conversionKind))
        misspelt.append(MemberNames::misspelling(unit.value, required));
    const QStringList known = knownMembers(conversionKind);
    for (const JsonValue& member : unit.value.children()) {
        const QString name = member.name();
        const QString path = unit.path + '/' + name;
        if (!known.contains(name) && !misspelt.contains(name)) {
            m_findings.addAtName(Rule::UnknownMember, member, path,
                                 "no program reads " + DocumentProblem::quoted(name) + " of this unit",
                                 MemberNames::suggestion(name, known));
        } else if (member.type() == JsonType::Null) {
            m_findings.addAtName(Rule::NullNode, member, path, DocumentProblem::quoted(name) + " is null");
        }
    }
}

void UnitStructureCheck::checkPolynomialUnit(UnitNode& unit)
{
    checkDecimals(unit);
    unit.coefficients = readCoefficients(unit.polynomial, unit.path + "/Polynomial");
    unit.inverseCoefficients = readCoefficients(unit.inverse, unit.path + "/InversePolynomial");
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
            checkRows(member, memberPath, columns);
        else if (name.startsWith(QLatin1String("Distance")) || name.startsWith(QLatin1String("Ordinate")))
            checkNumber(member, memberPath);
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
std::vector<double> UnitStructureCheck::readCoefficients(const std::optional<JsonValue>& list,
                                                         const QString& path)
{
    std::vector<double> result;
    if (!list || list->type() == JsonType::Null || !checkRows(*list, path, 1))
        return result;
    for (const JsonValue& row : list->children())
        result.push_back(row.children().front().number());
    while (result.size() > 1 && result.back() == 0)
        result.pop_back();
    return result;
}

bool UnitStructureCheck::checkRows(const JsonValue& list, const QString& path, std::size_t columns)
{
    const std::vector<JsonValue> rows = list.children();
    if (list.type() != JsonType::Array || rows.empty()) {
        m_findings.addAtValue(Rule::CoefficientsInvalid, list, path,
                              list.type() == JsonType::Array ? QStringLiteral("the list is empty")
                                                             : QStringLiteral("this is not a list of lists"),
                              columns == 1
                                  ? QStringLiteral("write one list per number, as in [[0], [1000]]")
                                  : QStringLiteral("write one list per point, as in [[0, 4], [10, 20]]"));
        return false;
    }
    for (std::size_t index = 0; index < rows.size(); ++index) {
        if (!checkRow(rows[index], path + '/' + QString::number(index), columns))
            return false;
    }
    return true;
}

bool UnitStructureCheck::checkRow(const JsonValue& row, const QString& path, std::size_t columns)
{
    const std::vector<JsonValue> cells = row.children();
    if (row.type() != JsonType::Array || cells.size() != columns) {
        QString advice =
            QStringLiteral("write %1 in brackets").arg(columns == 1 ? "one number" : "two numbers");
        if (columns == 1 && cells.size() == 2)
            advice = QStringLiteral("write a decimal point instead of the comma");
        m_findings.addAtValue(Rule::CoefficientsInvalid, row, path,
                              columns == 1 ? QStringLiteral("this is not a list with one number")
                                           : QStringLiteral("this is not a list with two numbers"),
                              advice);
        return false;
    }
    for (std::size_t index = 0; index < cells.size(); ++index) {
        if (!checkNumber(cells[index], path + '/' + QString::number(index)))
            return false;
    }
    return true;
}

bool UnitStructureCheck::checkNumber(const JsonValue& number, const QString& path)
{
    if (number.type() == JsonType::Number)
        return true;
    if (number.type() == JsonType::Null) {
        m_findings.addAtValue(Rule::NullNode, number, path, QStringLiteral("null in place of a number"));
        return false;
    }
    QString advice;
    if (number.type() == JsonType::String) {
        bool isNumber = false;
        const QString text = number.string().replace(QLatin1Char(','), QLatin1Char('.')).trimmed();
        text.toDouble(&isNumber);
        advice = isNumber ? "write " + text + " without quotes"
                          : QStringLiteral("write the number without quotes");
    }
    m_findings.addAtValue(Rule::CoefficientsInvalid, number, path, QStringLiteral("this is not a number"),
                          advice);
    return false;
}
