#include "MeasuringDevice.h"

#include <QtCore/QTextStream>

#include "ConfigurationAndProcessDataDefinitions.h"
#include "ConfigurationAndProcessDataParser.h"
#include "ConfigurationAndProcessDataTools.h"
#include "DependencyWalker.h"
#include "ProcessDataValue.h"
#include "ProcessMeasurementAttributes.h"
#include "PropertyManagerConst.h"
#include "UnitManagerDevice/UnitManipulatorMeasurementRange.h"

namespace {

/// The identifier of a unit type, or of a unit of it. Its prefix is the platform's.
QString identifierOf(const char* name)
{
    return PropertyManagerConst::getUnitTypeNamePrefix() + QLatin1String(name);
}

/// The settings that a user of the device can change. The application fills the attributes of the range.
QString settingsDocument()
{
    return QStringLiteral(R"({
        "AlarmLimit": { "@unitType": "%1", "@value": 1.0 },
        "PressureRange": { "@unitType": "%1", "@value": 0.9,
                           "@measurementRangeAttributes": [ { "min": 0, "max": 16 } ] }
    })")
        .arg(identifierOf("Pressure"));
}

const char* const dependencyDocument = R"({ "PressureUnit": ["PressureRange"] })";

QTextStream& out()
{
    static QTextStream stream(stdout);
    stream.setCodec("UTF-8");
    return stream;
}

} // namespace

MeasuringDevice::MeasuringDevice(const QString& language)
    : m_language(language),
      m_units(QStringLiteral("DeviceManager"), QStringLiteral("DependencyConfiguration"),
              QStringLiteral("UnitManager/Dependency"), QStringLiteral("DeviceManager"),
              QStringLiteral("DefaultUnitConfiguration"), QStringLiteral("UnitManager/DefaultUnit"), true,
              true),
      m_settings(ConfigurationAndProcessDataParser().parseFromJson(
          settingsDocument(), PropertyManagerConst::getConfigFileExtension()))
{
    addProcessValue(QStringLiteral("line pressure"), identifierOf("Pressure"), 1.01325);
    addProcessValue(QStringLiteral("dew point"), identifierOf("AbsoluteTemperature"), -40.25);
    addProcessValue(QStringLiteral("humidity"), identifierOf("RelativeHumidity"), 45.678);
    addProcessValue(QStringLiteral("supply pressure"), identifierOf("Pressure/Bar"), 6.5);
}

void MeasuringDevice::addProcessValue(const QString& name, const QString& unitType, double baseValue)
{
    const auto value = QSharedPointer<ProcessDataValue>::create(unitType);
    value->setValue(ProcessValue(baseValue, ProcessDataDefinitions::ErrorTypeNone));
    m_entries.append({name, unitType, value});
}

bool MeasuringDevice::poll()
{
    if (!m_units.checkInitialized() || !m_units.hasUnitManagerConfigurationChanged())
        return false;
    if (m_adopted++ == 0)
        setUpOnce();
    else
        printChanges();
    out().flush();
    return true;
}

int MeasuringDevice::adoptedConfigurations() const
{
    return m_adopted;
}

void MeasuringDevice::setUpOnce()
{
    out() << "ready\n";
    printTable();
    writeInCallersUnit();
    fillMeasurementRange();
    for (const ProcessEntry& entry : qAsConst(m_entries))
        m_lastShown.append(shown(entry));
}

QString MeasuringDevice::shown(const ProcessEntry& entry)
{
    const QSharedPointer<const UnitManagerDevice> units = m_units.getUnitManager();
    if (!units)
        return QStringLiteral("-");
    const QVariant value = units->getValueNoLock(entry.value, QString()).getValue();
    unsigned int places = 0;
    if (!units->getDecimalPlacesForUnit(entry.unitType, QString(), places))
        return value.toString();
    return QString::number(units->roundDouble(value, places).toDouble(), 'f', static_cast<int>(places)) +
           QLatin1Char(' ') + m_units.getUnitText(entry.unitType, m_language);
}

void MeasuringDevice::printTable()
{
    const QSharedPointer<const UnitManagerDevice> units = m_units.getUnitManager();
    for (const ProcessEntry& entry : qAsConst(m_entries)) {
        unsigned int places = 0;
        units->getDecimalPlacesForUnit(entry.unitType, QString(), places);
        out() << "  " << entry.name.leftJustified(16) << shown(entry).leftJustified(14) << places
              << " decimals, labels in " << m_language << '\n';
    }
}

void MeasuringDevice::writeInCallersUnit()
{
    const QString key = QStringLiteral("AlarmLimit");
    const bool isWritten = m_units.setValue(key, m_settings, 1500.0, QStringLiteral("MilliBar"));
    out() << "alarm limit set to 1500 mbar: " << (isWritten ? "written" : "refused") << ", stored as "
          << ConfigurationAndProcessDataTools::extractConfigValue(key, m_settings).toDouble() << " bar\n";
}

void MeasuringDevice::fillMeasurementRange()
{
    DependencyWalker walker;
    walker.initDependencyGraphByJsonString(QString::fromLatin1(dependencyDocument));
    QList<QVariant> visited;
    walker.traverseDependencyGraph(QStringLiteral("PressureUnit"), m_settings, m_settings, visited,
                                   QList<QVariant>(),
                                   QSharedPointer<UnitManipulatorMeasurementRange>::create(m_units));
    const ProcessMeasurementAttributes attributes(
        m_settings->getChild(QStringLiteral("PressureRange"))
            ->getProperty(
                ConfigurationAndProcessDataDefinitions::getKeyDataPropertyMeasurementRangeAttributes()));
    out() << "pressure range is in " << attributes.getUnit(0) << ", labelled \""
          << attributes.getUnitText(0).toMap().value(m_language).toString() << "\"\n";
}

void MeasuringDevice::printChanges()
{
    out() << "configuration changed\n";
    for (int index = 0; index < m_entries.size(); ++index) {
        const QString now = shown(m_entries.at(index));
        if (now != m_lastShown.at(index))
            out() << "  " << m_entries.at(index).name.leftJustified(16) << m_lastShown.at(index) << " -> "
                  << now << '\n';
        m_lastShown[index] = now;
    }
}
