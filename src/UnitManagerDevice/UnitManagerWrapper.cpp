#include "UnitManagerDevice/UnitManagerWrapper.h"

#include "Array2dDataTypeWrapper.h"
#include "ConfigurationAndProcessDataTools.h"
#include "DependencyWalker.h"
#include "Diagnostics.h"
#include "UnitManagerDevice/UnitManagerDevice.h"
#include "UnitManipulatorBase.h"
#include "WriteResult.h"

namespace {

const char* const sourceName = "UnitManagerDevice/UnitManagerWrapper";

/// Used for the name of a source that is not configured, the default unit, and an empty result: empty, but
/// not null.
const QLatin1String noText("");

} // namespace

UnitManagerWrapper::UnitManagerWrapper(bool useAsynchronInterface, bool useSignalPolling)
    : m_connector(nullptr, false, false, noText, noText, noText, noText, noText, noText)
{
    m_connector.init(useAsynchronInterface, noText, noText, noText, noText, noText, noText);
    if (!useSignalPolling)
        checkInitialized();
}

UnitManagerWrapper::UnitManagerWrapper(const QString& defaultUnitService, const QString& defaultUnitObject,
                                       const QString& defaultUnitConfiguration, bool useAsynchronInterface,
                                       bool useSignalPolling)
    : UnitManagerWrapper(noText, noText, noText, defaultUnitService, defaultUnitObject,
                         defaultUnitConfiguration, useAsynchronInterface, useSignalPolling)
{}

UnitManagerWrapper::UnitManagerWrapper(const QString& dependencyService, const QString& dependencyObject,
                                       const QString& dependencyConfiguration,
                                       const QString& defaultUnitService, const QString& defaultUnitObject,
                                       const QString& defaultUnitConfiguration, bool useAsynchronInterface,
                                       bool useSignalPolling)
    : m_connector(nullptr, useSignalPolling, false, noText, noText, noText, noText, noText, noText)
{
    m_connector.init(useAsynchronInterface, dependencyService, dependencyObject, dependencyConfiguration,
                     defaultUnitService, defaultUnitObject, defaultUnitConfiguration);
    if (!useSignalPolling)
        checkInitialized();
}

UnitManagerWrapper::~UnitManagerWrapper() = default;

bool UnitManagerWrapper::init(bool useAsynchronInterface, const QString& dependencyService,
                              const QString& dependencyObject, const QString& dependencyConfiguration,
                              const QString& defaultUnitService, const QString& defaultUnitObject,
                              const QString& defaultUnitConfiguration)
{
    m_unitManager.reset();
    m_dependencyWalker.reset();
    return m_connector.init(useAsynchronInterface, dependencyService, dependencyObject,
                            dependencyConfiguration, defaultUnitService, defaultUnitObject,
                            defaultUnitConfiguration);
}

bool UnitManagerWrapper::checkInitialized()
{
    if (!m_connector.isUnitManagerInitialized())
        return false;
    if (!adoptConfiguration())
        LogContext{sourceName, __LINE__, Q_FUNC_INFO}.warning() << "Unable to initialize UnitManager";
    return true;
}

bool UnitManagerWrapper::hasUnitManagerConfigurationChanged()
{
    if (!m_connector.hasConfigurationChanged())
        return false;
    if (!adoptConfiguration())
        LogContext{sourceName, __LINE__, Q_FUNC_INFO}.warning()
            << "Unable to change configuration of UnitManager";
    return true;
}

bool UnitManagerWrapper::adoptConfiguration()
{
    m_connector.initializeDependencyWalker(m_dependencyWalker);
    return m_connector.initializeUnitManager(m_unitManager);
}

bool UnitManagerWrapper::reset()
{
    return m_connector.reset();
}

UnitManagerWrapper::operator bool() const
{
    return m_unitManager && m_unitManager->isValid();
}

QSharedPointer<const UnitManagerDevice> UnitManagerWrapper::getUnitManager() const
{
    return m_unitManager;
}

QVariant UnitManagerWrapper::getValue(const QString& key,
                                      const QSharedPointer<ConfigurationAndProcessDataBase>& node,
                                      const QString& unit) const
{
    return *this ? m_unitManager->getValue(key, node, unit)
                 : ConfigurationAndProcessDataTools::extractConfigValue(key, node);
}

QVariant UnitManagerWrapper::getValue(const QVariant& value, const QString& unitType,
                                      const QString& unit) const
{
    return *this ? m_unitManager->getValue(value, unitType, unit) : value;
}

QList<QVariant> UnitManagerWrapper::getValueArray(const Array2dDataTypeWrapper& array, unsigned int row,
                                                  unsigned int firstColumn, unsigned int columnCount,
                                                  const QString& unit) const
{
    return *this ? m_unitManager->getValueArray(array, row, firstColumn, columnCount, unit)
                 : array.getRowValues(row, firstColumn, columnCount);
}

bool UnitManagerWrapper::setValueArray(Array2dDataTypeWrapper& array, unsigned int row,
                                       unsigned int firstColumn, unsigned int columnCount,
                                       const QList<QVariant>& values, const QString& unit) const
{
    return *this ? m_unitManager->setValueArray(array, row, firstColumn, columnCount, values, unit)
                 : array.setRowValues(values, row, firstColumn, columnCount);
}

int UnitManagerWrapper::setValueStatus(const QString& key,
                                       const QSharedPointer<ConfigurationAndProcessDataBase>& node,
                                       const QVariant& value, const QString& unit)
{
    const int status = *this ? m_unitManager->setValueStatus(key, node, value, unit)
                             : ConfigurationAndProcessDataTools::setConfigValueWithStatus(key, node, value);
    if (!WriteResult::isSuccess(status))
        return status;
    return resolveDependency(key, node, BaseClassSharedPointer()) ? status : WriteResult::failed;
}

bool UnitManagerWrapper::setValue(const QString& key,
                                  const QSharedPointer<ConfigurationAndProcessDataBase>& node,
                                  const QVariant& value, const QString& unit)
{
    return WriteResult::isSuccess(setValueStatus(key, node, value, unit));
}

QString UnitManagerWrapper::getUnitText(const QString& key,
                                        const QSharedPointer<ConfigurationAndProcessDataBase>& node,
                                        const QString& language)
{
    return *this ? m_unitManager->getUnitText(key, node, language, noText) : noText;
}

QString UnitManagerWrapper::getUnitText(const QString& unitType, const QString& language)
{
    if (!*this)
        return noText;
    QString plainType;
    QString unit;
    if (m_unitManager->isFixedUnitType(unitType) &&
        m_unitManager->extractUnitTypeAndUnit(unitType, plainType, unit))
        return m_unitManager->getUnitText(plainType, language, unit);
    return m_unitManager->getUnitText(unitType, language, noText);
}

QString UnitManagerWrapper::getUnitTextArray(const Array2dDataTypeWrapper& array, unsigned int column,
                                             const QString& language)
{
    return *this ? m_unitManager->getUnitText(array, language, column, noText) : noText;
}

QVariant UnitManagerWrapper::getUnitTextJsonMap(const QString& unitType) const
{
    return *this ? m_unitManager->getUnitTextJsonMap(unitType) : QVariant(noText);
}

QString UnitManagerWrapper::getBaseUnit(const QString& unitType) const
{
    return *this ? m_unitManager->getBaseUnit(unitType) : noText;
}

bool UnitManagerWrapper::resolveDependency(const QString& key,
                                           const QSharedPointer<ConfigurationAndProcessDataBase>& node,
                                           const QSharedPointer<ConfigurationAndProcessDataBase>& otherNode)
{
    if (!m_dependencyWalker)
        return true;
    QList<QVariant> results;
    m_dependencyWalker->traverseDependencyGraph(key, node, otherNode ? otherNode : node, results,
                                                QList<QVariant>(), QSharedPointer<UnitManipulatorBase>());
    return true;
}
