#include "UnitConversion/DefaultUnitHandler.h"

#include <QtCore/QFileInfo>
#include <QtCore/QVariant>

#include "ConfigurationAndProcessDataDefinitions.h"
#include "ConfigurationAndProcessDataParser.h"
#include "ConfigurationDataAndProcessDescriptionAccess.h"
#include "Diagnostics.h"
#include "FixedUnit.h"
#include "PropertyManagerConst.h"
#include "UnitManagerDefinitions.h"

namespace {

const char* const sourceName = "UnitConversion/DefaultUnitHandler";

} // namespace

DefaultUnitHandler::DefaultUnitHandler() = default;

DefaultUnitHandler::~DefaultUnitHandler() = default;

bool DefaultUnitHandler::initByJsonString(const QString& json)
{
    reset();
    if (json.isEmpty())
        return false;

    const BaseClassSharedPointer root = ConfigurationAndProcessDataParser().parseFromJson(
        json, PropertyManagerConst::getConfigFileExtension());
    if (!root) {
        LogContext{sourceName, __LINE__, Q_FUNC_INFO}.warning() << "DefaultUnit file is not valid";
        return false;
    }
    const QVariant selectionType(ConfigurationAndProcessDataDefinitions::getKeyDataTypeSelection());
    const QHash<QString, BaseClassSharedPointer>& children = root->getChildMap();
    for (auto child = children.begin(); child != children.end(); ++child) {
        const BaseClassSharedPointer& node = child.value();
        if (!node || node->getProperty(ConfigurationAndProcessDataDefinitions::getKeyDataPropertyType()) !=
                         selectionType)
            continue;
        const QVariant unit =
            node->getProperty(ConfigurationAndProcessDataDefinitions::getKeyDataPropertyValue());
        if (unit.canConvert(QVariant::String))
            m_defaultUnits.insert(FixedUnit::unitTypeNamed(child.key()), unit.toString());
    }
    return isValid();
}

bool DefaultUnitHandler::initByJsonFile(const QString& path)
{
    return initByJsonString(ConfigurationDataAndProcessDescriptionAccess().getConfiguration(QFileInfo(path)));
}

QString DefaultUnitHandler::getDefaultUnit(const QString& unitType) const
{
    const auto unit = m_defaultUnits.constFind(unitType);
    if (unit != m_defaultUnits.constEnd())
        return FixedUnit::unitOf(*unit);

    if (unitType != UnitManagerDefinitions::getUnitTypeUrlNoUnit())
        LogContext{sourceName, __LINE__, Q_FUNC_INFO}.warning()
            << "Cannot find default unit for unitType" << unitType << "!";
    return {};
}

void DefaultUnitHandler::reset()
{
    m_defaultUnits.clear();
}

bool DefaultUnitHandler::isValid() const
{
    return !m_defaultUnits.isEmpty();
}

DefaultUnitHandler::operator bool() const
{
    return isValid();
}
