#include "UnitSource.h"

#include <QtCore/QLocale>

#include <cmath>
#include <utility>

#include "TypedNumber.h"
#include "UnitManagerDefinitions.h"

UnitSource::UnitSource(QObject* parent)
    : QObject(parent),
      m_units("DeviceManager", "DefaultUnitConfiguration", "UnitManager/DefaultUnit", true, true),
      m_language(QLocale().name())
{
    // Connected before any binding, so that bindings read the new number.
    connect(this, &UnitSource::revisionChanged, this, [this] { ++m_revision; });
    connect(&m_timer, &QTimer::timeout, this, &UnitSource::poll);
    m_timer.start(100);
}

void UnitSource::poll()
{
    const bool isIdle = m_units.checkInitialized();
    const bool hasChanged = isIdle && m_units.hasUnitManagerConfigurationChanged();
    const QString before = std::exchange(m_state, !m_units ? "waiting" : isIdle ? "ready" : "reading");
    if (m_state != before)
        Q_EMIT stateChanged();
    if (hasChanged)
        Q_EMIT revisionChanged();
    if (hasChanged && m_units)
        Q_EMIT configurationAdopted();
}

QString UnitSource::state() const
{
    return m_state;
}

int UnitSource::revision() const
{
    return m_revision;
}

UnitSource* UnitSource::current()
{
    return this;
}

QString UnitSource::numberOf(const QVariant& value, const QString& unitType, const QString& unit) const
{
    bool isNumber = false;
    const double number = value.toDouble(&isNumber);
    QLocale locale;
    if (!m_hasGroupSeparators)
        locale.setNumberOptions(QLocale::OmitGroupSeparator);
    if (!isNumber || !std::isfinite(number) || !m_units)
        return "–";
    if (unitType == UnitManagerDefinitions::getUnitTypeUrlNoUnit())
        return locale.toString(number, 'g', QLocale::FloatingPointShortest);
    unsigned int places = 0;
    if (!m_units.getUnitManager()->getDecimalPlacesForUnit(unitType, unit, places))
        return "–";
    // The sum is never a negative zero.
    const double rounded = m_units.getUnitManager()->fromBaseUnit(number, unitType, unit).toDouble() + 0.0;
    return locale.toString(rounded, 'f', static_cast<int>(places));
}

QString UnitSource::labelOf(const QString& unitType, const QString& unit)
{
    return unit.isEmpty() || !m_units ? m_units.getUnitText(unitType, m_language)
                                      : m_units.getUnitManager()->getUnitText(unitType, m_language, unit);
}

QVariantList UnitSource::unitsOf(const QString& unitType)
{
    QVariantList units;
    const auto manager = m_units.getUnitManager();
    for (const QString& name : m_units ? manager->getUnitsInDisplayOrder(unitType) : QStringList())
        units.append(QVariantMap{{"name", name}, {"label", labelOf(unitType, name)}});
    return units;
}

QString UnitSource::defaultUnitOf(const QString& unitType) const
{
    return m_units ? m_units.getUnitManager()->getDefaultUnit(unitType) : QString();
}

double UnitSource::convertTo(double value, const QString& unitType, const QString& unit) const
{
    const bool isKnown =
        m_units && m_units.getUnitManager()->fromBaseUnitArray(&value, &value, 1, unitType, unit);
    return isKnown ? value : qQNaN();
}

double UnitSource::convertFrom(double value, const QString& unitType, const QString& unit) const
{
    const bool isKnown =
        m_units && m_units.getUnitManager()->toBaseUnitArray(&value, &value, 1, unitType, unit);
    return isKnown ? value : qQNaN();
}

QVariantMap UnitSource::parse(const QString& text, const QString& unitType, const QString& unit) const
{
    QString error;
    const double value = convertFrom(typedNumber(text, error), unitType, unit);
    if (error.isEmpty() && !std::isfinite(value))
        error = tr("The number cannot be converted.");
    return {{"value", error.isEmpty() ? value : QVariant()}, {"error", error}};
}
