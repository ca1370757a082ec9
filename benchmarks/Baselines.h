#pragma once

#include <QtCore/QHash>
#include <QtCore/QPair>
#include <QtCore/QString>
#include <QtCore/QStringView>
#include <QtCore/QVariant>

#include <vector>

/// Hand-written lower bounds for the library's work, on Qt's own containers; the library's times are divided
/// by theirs. Holds the shipped documents, read with Qt's own parser.
class Baselines
{
public:
    /// All data of a unit. Coefficients are ordered from the highest degree to the constant.
    struct Unit
    {
        std::vector<double> polynomial;
        std::vector<double> inversePolynomial;
        unsigned int decimalPlaces = 0;
        QVariantMap label;
    };

    Baselines();

    /// The instance that all benchmarks share.
    static const Baselines& instance();

    /// The fused polynomial alone. @param coefficients highest degree first
    static double polynomial(const std::vector<double>& coefficients, double x);
    /// The fused polynomial, see polynomial(), with the processor's own fused multiply-add inlined if
    /// available.
    static double hardwarePolynomial(const std::vector<double>& coefficients, double x);
    /// A plain loop of polynomial() over @p count values.
    static void polynomials(const std::vector<double>& coefficients, const double* in, double* out,
                            std::size_t count);
    /// Hashes both keys once.
    static uint hashKeys(const QString& unitType, const QString& unit);

    /// Two nested look-ups and the polynomial; number in, number out.
    double nested(double value, const QString& unitType, const QString& unit) const;
    /// Two nested look-ups and the polynomial; variant in, variant out.
    QVariant nestedVariant(const QVariant& value, const QString& unitType, const QString& unit) const;

    /// The visible work of a rounded conversion done literally: two queries (the value and its decimal
    /// places). For each, "/" is counted, the default unit is looked up if none is given, and two nested
    /// look-ups follow. Variant in and out, rounded.
    QVariant literalFromBaseUnit(const QVariant& value, const QString& unitType, const QString& unit) const;
    QVariant literalToBaseUnit(const QVariant& value, const QString& unitType, const QString& unit) const;

    /// The result of literalFromBaseUnit() by a single look-up. @p unit must not be empty.
    QVariant resolvedFromBaseUnit(const QVariant& value, const QString& unitType, const QString& unit) const;
    QVariant resolvedToBaseUnit(const QVariant& value, const QString& unitType, const QString& unit) const;

    /// Detects a fixed unit, splits it without a copy, and rounds after one look-up.
    QVariant resolvedFixedUnit(const QVariant& value, const QString& unitType, const QString& unit) const;

    /// The name of a unit type's default unit.
    QString defaultUnit(const QString& unitType) const;

    /// Two nested look-ups and the language; the default unit is looked up if none is given.
    QString label(const QString& unitType, const QString& language, const QString& unit) const;

    /// @return null if there is no such unit.
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
    QHash<Keys, Unit> m_resolved; // the keys refer to the texts of m_units
};
