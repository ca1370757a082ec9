#include "ConversionCheck.h"

#include <QtCore/QHash>
#include <QtCore/QLocale>
#include <QtCore/QRegularExpression>

#include <algorithm>
#include <cmath>

#include "MemberNames.h"
#include "RoundTrip.h"

namespace {

/// Beyond this relative error a value is another value, not an inaccurate one.
const double wrongError = 1e-4;
/// Below this error, in units of the last place, coefficients are as good as doubles can be.
const double accurateUlps = 8;
/// The share of one unit of the last displayed digit that is not noticed.
const double invisibleDigits = 0.5;
const int monotonicitySteps = 1000;

QString text(double number)
{
    return QString::number(number, 'g', QLocale::FloatingPointShortest);
}

QString shortText(double number)
{
    return QString::number(number, 'g', 6);
}

/// "[[C0], [C1]]".
QString listText(double constant, double factor)
{
    return "[[" + text(constant) + "], [" + text(factor) + "]]";
}

std::vector<double> reversed(std::vector<double> coefficients)
{
    std::reverse(coefficients.begin(), coefficients.end());
    return coefficients;
}

bool isClose(double left, double right)
{
    return std::abs(left - right) <= 1e-6 * std::abs(right);
}

/// The inverse of a linear unit's polynomial.
std::vector<double> inverseOf(const std::vector<double>& linear)
{
    return {0.0 - linear[0] / linear[1], 1 / linear[1]};
}

QString inverseText(const UnitNode& unit)
{
    const std::vector<double> inverse = inverseOf(unit.coefficients);
    return listText(inverse[0], inverse[1]);
}

/// What is wrong with the inverse of a linear unit, if that can be recognised.
QString mistakeIn(const UnitNode& unit)
{
    std::vector<double> inverse = unit.inverseCoefficients;
    if (inverse == unit.coefficients)
        return QStringLiteral("it is a copy of \"Polynomial\"");
    inverse.resize(2);
    const std::vector<double> right = inverseOf(unit.coefficients);
    const std::vector<double> mirrored = reversed(inverse);
    if (isClose(mirrored[0], right[0]) && isClose(mirrored[1], right[1]))
        return QStringLiteral("it is mirrored; the constant term comes first");
    return {};
}

/// The English label; empty if there is none.
QString labelOf(const UnitNode& unit)
{
    const auto texts = unit.label ? unit.label->member(QStringLiteral("@value")) : std::nullopt;
    const auto english = texts ? texts->member(QStringLiteral("en")) : std::nullopt;
    return english ? english->string() : QString();
}

struct Prefix
{
    QString text;
    int exponent;
};

const std::vector<Prefix>& prefixes()
{
    static const std::vector<Prefix> table = {
        {QStringLiteral("p"), -12}, {QStringLiteral("n"), -9},      {QStringLiteral("u"), -6},
        {QStringLiteral("µ"), -6},  {QStringLiteral("\u03BC"), -6}, {QStringLiteral("m"), -3},
        {QStringLiteral("c"), -2},  {QStringLiteral("d"), -1},      {QStringLiteral("h"), 2},
        {QStringLiteral("k"), 3},   {QStringLiteral("M"), 6},       {QStringLiteral("G"), 9}};
    return table;
}

/// The power to which a prefix of the label is raised: 3 for "m³/h".
int prefixPower(const QString& label)
{
    static const QRegularExpression power(QStringLiteral("^\\p{L}+\\^?(?:([2²])|[3³])(?![\\p{L}\\d])"));
    const QRegularExpressionMatch match = power.match(label);
    if (!match.hasMatch())
        return 1;
    return match.captured(1).isEmpty() ? 3 : 2;
}

} // namespace

ConversionCheck::ConversionCheck(const TypeNode& type, const DocumentChecker::Options& options,
                                 Findings& findings)
    : m_type(type), m_options(options), m_findings(findings)
{}

void ConversionCheck::run()
{
    const UnitNode* const base = checkBaseUnits();
    for (const UnitNode& unit : m_type.units) {
        if (!unit.coefficients.empty())
            checkUnit(unit, &unit == base);
    }
    checkPrefixes();
}

/// @return the first unit at position 0; null if there is none
const UnitNode* ConversionCheck::checkBaseUnits()
{
    const UnitNode* first = nullptr;
    // Units that were reported already may be meant as base unit.
    bool isPositionUnknown = m_type.hasUnusableUnits;
    for (const UnitNode& unit : m_type.units) {
        isPositionUnknown = isPositionUnknown || !unit.displayPosition;
        if (unit.displayPosition != 0)
            continue;
        if (first != nullptr)
            m_findings.addAtValue(Rule::BaseAmbiguous, *unit.position, unit.path + "/@displayPosition",
                                  DocumentProblem::quoted(unit.name) + " is a second base unit beside " +
                                      DocumentProblem::quoted(first->name),
                                  QStringLiteral("give it another position"));
        else
            first = &unit;
    }
    if (m_type.baseUnit.isEmpty() && first == nullptr && !isPositionUnknown)
        m_findings.addAtName(Rule::BaseMissing, m_type.value, m_type.name,
                             "unit type " + DocumentProblem::quoted(m_type.name) + " has no base unit",
                             QStringLiteral("give the unit in which values are stored the position 0"));
    return first;
}

void ConversionCheck::checkUnit(const UnitNode& unit, bool isBase)
{
    const QString path = unit.path + "/Polynomial";
    const std::vector<double> identity{0, 1};
    const bool isCurve = unit.coefficients.size() > 2;
    if (isBase && unit.coefficients != identity) {
        m_findings.addAtName(Rule::BaseNotIdentity, *unit.polynomial, path,
                             "the base unit " + DocumentProblem::quoted(unit.name) + " changes values",
                             "write " + listText(0, 1));
        return;
    }
    if (unit.coefficients.size() == 1) {
        checkConstant(unit);
        return;
    }
    const bool isUsable = !isCurve || isMonotonic(unit);
    if (!isUsable)
        m_findings.addAtName(
            Rule::NotMonotonic, *unit.polynomial, path,
            QStringLiteral("different values between %1 and %2 in the base unit become equal")
                .arg(text(m_options.lowest), text(m_options.highest)));
    if (!unit.inverse)
        m_findings.addAtName(
            Rule::InverseMissing, unit.value, unit.path,
            QStringLiteral("the unit has no \"InversePolynomial\": every value is stored as 0"),
            MemberNames::adviceForMissing(unit.value, QStringLiteral("InversePolynomial"),
                                          isCurve ? QString()
                                                  : "write \"InversePolynomial\": " + inverseText(unit)));
    else if (isUsable && !unit.inverseCoefficients.empty())
        checkInverse(unit);
}

void ConversionCheck::checkConstant(const UnitNode& unit)
{
    const double constant = unit.coefficients[0];
    const bool isMirrored = constant != 0 && unit.polynomial->children().size() == 2;
    m_findings.addAtName(Rule::ConversionConstant, *unit.polynomial, unit.path + "/Polynomial",
                         "every value becomes " + text(constant),
                         isMirrored ? "the constant term comes first: write " + listText(0, constant)
                                    : QString());
}

bool ConversionCheck::isMonotonic(const UnitNode& unit) const
{
    const double lowest = m_options.lowest;
    const double step = (m_options.highest - lowest) / monotonicitySteps;
    double previous = unit.conversion.convertValue(lowest);
    const bool isRising = unit.conversion.convertValue(m_options.highest) > previous;
    for (int index = 1; index <= monotonicitySteps; ++index) {
        const double value = unit.conversion.convertValue(lowest + index * step);
        if (isRising ? value <= previous : value >= previous)
            return false;
        previous = value;
    }
    return true;
}

void ConversionCheck::checkInverse(const UnitNode& unit)
{
    const RoundTrip worst = unit.isLinear() ? RoundTrip::ofLinear(unit)
                                            : RoundTrip::between(unit, m_options.lowest, m_options.highest);
    // Nobody knows which part of a curve a device uses, so its inverse is never called wrong.
    const bool isWrong = unit.isLinear() && worst.relativeError > wrongError;
    const bool isInaccurate = unit.isLinear() ? worst.ulps > accurateUlps : worst.digits > invisibleDigits;
    if (!isWrong && !isInaccurate)
        return;
    QString message =
        QStringLiteral("converting to the base unit and back turns %1 into %2; values are off by up to %3 "
                       "ulp, or %4 units of the last displayed digit")
            .arg(text(worst.value), text(worst.result), shortText(worst.ulps), shortText(worst.digits));
    const QString mistake = isWrong ? mistakeIn(unit) : QString();
    if (!mistake.isEmpty())
        message += "; " + mistake;
    m_findings.addAtName(isWrong ? Rule::InverseWrong : Rule::InverseInaccurate, *unit.inverse,
                         unit.path + "/InversePolynomial", message,
                         unit.isLinear() ? "write " + inverseText(unit) : QString());
}

/// A label such as "kPa" beside "Pa" gives the factor. A factor that is the reciprocal of the right one comes
/// from polynomials that were interchanged, which agree with each other.
void ConversionCheck::checkPrefixes()
{
    QHash<QString, const UnitNode*> unitsByLabel;
    for (const UnitNode& unit : m_type.units) {
        const QString label = labelOf(unit);
        if (unit.isLinear() && !label.isEmpty())
            unitsByLabel.insert(label, &unit);
    }
    QSet<const UnitNode*> swapped;
    for (auto entry = unitsByLabel.cbegin(); entry != unitsByLabel.cend(); ++entry) {
        for (const Prefix& prefix : prefixes()) {
            const QString plainLabel = entry.key().mid(prefix.text.size());
            const UnitNode* const plain =
                entry.key().startsWith(prefix.text) ? unitsByLabel.value(plainLabel) : nullptr;
            if (plain == nullptr)
                continue;
            const double multiple = std::pow(10.0, prefix.exponent * prefixPower(plainLabel));
            const double factor = entry.value()->coefficients[1] * multiple;
            const double plainFactor = plain->coefficients[1];
            const double swappedFactor = multiple / entry.value()->coefficients[1];
            if (isClose(factor, plainFactor))
                continue;
            if (isClose(swappedFactor, plainFactor))
                swapped.insert(entry.value());
            else if (isClose(factor, 1 / plainFactor))
                swapped.insert(plain);
        }
    }
    for (const UnitNode* unit : qAsConst(swapped))
        m_findings.addAtName(Rule::ConversionSwapped, *unit->polynomial, unit->path + "/Polynomial",
                             "the prefix in the label " + DocumentProblem::quoted(labelOf(*unit)) +
                                 " or in that of another unit shows that the conversion is reversed",
                             QStringLiteral("interchange \"Polynomial\" and \"InversePolynomial\""));
}
