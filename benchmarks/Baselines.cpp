#include "Baselines.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

#include <cmath>

#include "Documents.h"
#include "FloatRound.h"
#include "PropertyManagerConst.h"

namespace {

const QLatin1Char separator('/');
const int separatorsOfFixedUnit = 3;

std::vector<double> readCoefficients(const QJsonValue& rows)
{
    std::vector<double> coefficients;
    for (const QJsonValue row : rows.toArray())
        coefficients.insert(coefficients.begin(), row.toArray().first().toDouble());
    return coefficients;
}

Baselines::Unit readUnit(const QJsonObject& object)
{
    return {readCoefficients(object.value(QLatin1String("Polynomial"))),
            readCoefficients(object.value(QLatin1String("InversePolynomial"))),
            static_cast<unsigned int>(object.value(QLatin1String("DecimalPlaces")).toInt()),
            object.value(QLatin1String("UnitLabel"))
                .toObject()
                .value(QLatin1String("@value"))
                .toObject()
                .toVariantMap()};
}

QJsonObject parse(const QString& text)
{
    return QJsonDocument::fromJson(text.toUtf8()).object();
}

} // namespace

Baselines::Baselines()
{
    const QString prefix = PropertyManagerConst::getUnitTypeNamePrefix();
    const QJsonObject types = parse(Documents::shippedUnits());
    for (auto type = types.begin(); type != types.end(); ++type) {
        QHash<QString, Unit>& units = m_units[prefix + type.key()];
        const QJsonObject objects = type->toObject();
        for (auto unit = objects.begin(); unit != objects.end(); ++unit)
            units.insert(unit.key(), readUnit(unit->toObject()));
    }
    const QJsonObject defaults = parse(Documents::shippedDefaultUnits());
    for (auto unit = defaults.begin(); unit != defaults.end(); ++unit)
        m_defaultUnits.insert(prefix + unit.key(),
                              unit->toObject().value(QLatin1String("@value")).toString());

    for (auto type = m_units.cbegin(); type != m_units.cend(); ++type) {
        for (auto unit = type->cbegin(); unit != type->cend(); ++unit)
            m_resolved.insert({QStringView(type.key()), QStringView(unit.key())}, *unit);
    }
}

const Baselines& Baselines::instance()
{
    static const Baselines baselines;
    return baselines;
}

double Baselines::polynomial(const std::vector<double>& coefficients, double x)
{
    double result = 0.0;
    for (const double coefficient : coefficients)
        result = std::fma(x, result, coefficient);
    return result;
}

namespace {

double fusedPolynomial(const std::vector<double>& coefficients, double x)
{
    return Baselines::polynomial(coefficients, x);
}

#ifdef __x86_64__

__attribute__((target("fma"))) double inlineFmaPolynomial(const std::vector<double>& coefficients, double x)
{
    double result = 0.0;
    for (const double coefficient : coefficients)
        result = std::fma(x, result, coefficient);
    return result;
}

const bool hasFma = __builtin_cpu_supports("fma");
const auto hardware = hasFma ? &inlineFmaPolynomial : &fusedPolynomial;

#else

const auto hardware = &fusedPolynomial;

#endif

} // namespace

double Baselines::hardwarePolynomial(const std::vector<double>& coefficients, double x)
{
    return hardware(coefficients, x);
}

void Baselines::polynomials(const std::vector<double>& coefficients, const double* in, double* out,
                            std::size_t count)
{
    for (std::size_t index = 0; index < count; ++index)
        out[index] = polynomial(coefficients, in[index]);
}

uint Baselines::hashKeys(const QString& unitType, const QString& unit)
{
    return qHash(unitType, 1) ^ qHash(unit, 1);
}

const Baselines::Unit* Baselines::find(const QString& unitType, const QString& unit) const
{
    const auto units = m_units.constFind(unitType);
    if (units == m_units.constEnd())
        return nullptr;
    const auto found = units->constFind(unit);
    return found != units->constEnd() ? &*found : nullptr;
}

double Baselines::nested(double value, const QString& unitType, const QString& unit) const
{
    const Unit* found = find(unitType, unit);
    return found ? polynomial(found->polynomial, value) : value;
}

QVariant Baselines::nestedVariant(const QVariant& value, const QString& unitType, const QString& unit) const
{
    return nested(value.toDouble(), unitType, unit);
}

QString Baselines::unitOrDefault(const QString& unitType, const QString& unit) const
{
    return unit.isEmpty() ? m_defaultUnits.value(unitType) : unit;
}

QVariant Baselines::literalFromBaseUnit(const QVariant& value, const QString& unitType,
                                        const QString& unit) const
{
    return literal(value, unitType, unit, &Unit::polynomial);
}

QVariant Baselines::literalToBaseUnit(const QVariant& value, const QString& unitType,
                                      const QString& unit) const
{
    return literal(value, unitType, unit, &Unit::inversePolynomial);
}

QVariant Baselines::literal(const QVariant& value, const QString& unitType, const QString& unit,
                            Coefficients coefficients) const
{
    QVariant converted = value;
    if (unitType.count(separator) != separatorsOfFixedUnit) {
        if (const Unit* found = find(unitType, unitOrDefault(unitType, unit)))
            converted = polynomial(found->*coefficients, value.toDouble());
    }

    QString plainType = unitType;
    QString plainUnit = unit;
    if (unitType.count(separator) == separatorsOfFixedUnit) {
        plainType = unitType.left(unitType.lastIndexOf(separator));
        plainUnit = unitType.mid(unitType.lastIndexOf(separator) + 1);
    }
    const Unit* found = find(plainType, unitOrDefault(plainType, plainUnit));
    return found ? QVariant(FloatRound::roundValue(converted.toDouble(), found->decimalPlaces)) : converted;
}

QVariant Baselines::resolvedFromBaseUnit(const QVariant& value, const QString& unitType,
                                         const QString& unit) const
{
    return resolved(value, unitType, unit, &Unit::polynomial);
}

QVariant Baselines::resolvedToBaseUnit(const QVariant& value, const QString& unitType,
                                       const QString& unit) const
{
    return resolved(value, unitType, unit, &Unit::inversePolynomial);
}

QVariant Baselines::resolved(const QVariant& value, const QString& unitType, const QString& unit,
                             Coefficients coefficients) const
{
    const auto found = m_resolved.constFind({QStringView(unitType), QStringView(unit)});
    if (found == m_resolved.constEnd())
        return value;
    return FloatRound::roundValue(polynomial((*found).*coefficients, value.toDouble()), found->decimalPlaces);
}

QVariant Baselines::resolvedFixedUnit(const QVariant& value, const QString& unitType,
                                      const QString& /*unit*/) const
{
    if (unitType.count(separator) != separatorsOfFixedUnit)
        return value;
    const QStringView whole(unitType);
    const int last = unitType.lastIndexOf(separator);
    const auto found = m_resolved.constFind({whole.left(last), whole.mid(last + 1)});
    return found == m_resolved.constEnd()
               ? value
               : QVariant(FloatRound::roundValue(value.toDouble(), found->decimalPlaces));
}

QString Baselines::defaultUnit(const QString& unitType) const
{
    return m_defaultUnits.value(unitType);
}

QString Baselines::label(const QString& unitType, const QString& language, const QString& unit) const
{
    const Unit* found = find(unitType, unitOrDefault(unitType, unit));
    return found ? found->label.value(language).toString() : QString();
}
