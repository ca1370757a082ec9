#include "UnitManagerDevice/UnitManipulatorMeasurementRange.h"

#include "ConfigurationAndProcessDataDefinitions.h"
#include "Diagnostics.h"
#include "ProcessMeasurementAttributes.h"
#include "UnitManagerDevice/UnitManagerWrapper.h"
#include "WriteResult.h"

namespace {

const char* const sourceName = "UnitManagerDevice/UnitManipulatorMeasurementRange";

} // namespace

UnitManipulatorMeasurementRange::UnitManipulatorMeasurementRange(UnitManagerWrapper& wrapper)
    : m_wrapper(wrapper)
{}

UnitManipulatorMeasurementRange::~UnitManipulatorMeasurementRange() = default;

void UnitManipulatorMeasurementRange::manipulate(const QSharedPointer<ConfigurationAndProcessDataBase>& node,
                                                 const QString& unitType, bool& handled, bool& changed)
{
    if (!m_wrapper.checkInitialized()) {
        LogContext{sourceName, __LINE__, Q_FUNC_INFO}.warning() << "Unitmanager is not initialized.";
        return;
    }
    const QString& key =
        ConfigurationAndProcessDataDefinitions::getKeyDataPropertyMeasurementRangeAttributes();
    if (!node || !node->hasProperty(key))
        return;

    const QVariant textMap = m_wrapper.getUnitTextJsonMap(unitType);
    const QString baseUnit = m_wrapper.getBaseUnit(unitType);
    ProcessMeasurementAttributes attributes(node->getProperty(key));
    attributes.setUnit(0, baseUnit);
    attributes.setUnitText(0, textMap);

    const int status = node->changeProperty(key, attributes.getMeasurementAttributeObject());
    if (status == WriteResult::changed || status == WriteResult::unchanged)
        handled = true;
    if (status == WriteResult::changed)
        changed = true;
}
