#pragma once

#include <QtCore/QHash>
#include <QtCore/QPair>
#include <QtCore/QString>
#include <QtCore/QStringView>
#include <QtCore/QVariant>

#include <vector>

/// Hand-written lower bounds for the library's work, on Qt's own containers: the library's times are divided
/// by theirs. Holds the shipped documents, read with Qt's own parser.
class Baselines
{
public:
    /// Everything known about a unit. Coefficients are ordered from the highest degree to the constant.
    struct Unit
    {
        std::vector<double> polynomial;
        std::vector<double> inversePolynomial;
        unsigned int decimalPlaces = 0;
        QVariantMap label;
    };

    Baselines();

    /// The one that all benchmarks use.
    static const Baselines& instance();

    /// The fused polynomial alone. @p coefficients highest degree first
    static double polynomial(const std::vector<double>& coefficients, double x);
    /// polynomial() with the processor's own fused multiply-add in line, where it has one.
    static double hardwarePolynomial(const std::vector<double>& coefficients, double x);
    /// The plain loop of it over @p count values.
    static void polynomials(const std::vector<double>& coefficients, const double* in, double* out,
                            std::size_t count);
    /// Hashing both keys, once each.
    static uint hashKeys(const QString& unitType, const QString& unit);

    /// Two nested look-ups and the polynomial; number in, number out.
    double nested(double value, const QString& unitType, const QString& unit) const;
    /// The same, variant in, variant out.
    QVariant nestedVariant(const QVariant& value, const QString& unitType, const QString& unit) const;

    /// The visible work of a rounded conversion done literally: two questions (the value, the decimal
    /// places), for each "/" counted, the default unit looked up where none is given, two nested look-ups.
    /// Variant in and out, rounded.
    QVariant literalFromBaseUnit(const QVariant& value, const QString& unitType, const QString& unit) const;
    QVariant literalToBaseUnit(const QVariant& value, const QString& unitType, const QString& unit) const;

    /// The same result with everything resolved by one look-up. @p unit is not empty.
    QVariant resolvedFromBaseUnit(const QVariant& value, const QString& unitType, const QString& unit) const;
    QVariant resolvedToBaseUnit(const QVariant& value, const QString& unitType, const QString& unit) const;

    /// A fixed unit, recognised, split without a copy, and rounded after one look-up.
    QVariant resolvedFixedUnit(const QVariant& value, const QString& unitType, const QString& unit) const;

    /// The name of a unit type's default unit.
    QString defaultUnit(const QString& unitType) const;

    /// Two nested look-ups and the language; the default unit is looked up where none is given.
    QString label(const QString& unitType, const QString& language, const QString& unit) const;

    /// @return null when there is no such unit.
    const Unit* find(const QString& unitType, const QString& unit) const;

private:
    using Coefficients = std::vector<double> Unit::*;
    using Keys = QPair<QStringView, QStringView>;

    QVariant literal(const QVariant& value, const QString& unitType, const QString& unit,
                     Coefficients coefficients) const;
    QVariant resolved(const QVariant& value, const QString& unitType, const QString& unit,
                      Coefficients coefficients) const;
    QString unitOrDefault(const QString& unitType, const QString& unit) const;

    QHash<QString, QHash<QString, Unit>> m_units;
    QHash<QString, QString> m_defaultUnits;
    QHash<Keys, Unit> m_resolved; // the keys' texts are those of m_units
};
