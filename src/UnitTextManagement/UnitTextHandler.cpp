#include "UnitTextManagement/UnitTextHandler.h"

#include <QtCore/QFileInfo>

#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

#include "ConfigurationAndProcessDataDefinitions.h"
#include "ConfigurationAndProcessDataParser.h"
#include "ConfigurationAndProcessDataTools.h"
#include "ConfigurationDataAndProcessDescriptionAccess.h"
#include "Diagnostics.h"
#include "FixedUnit.h"
#include "PropertyManagerConst.h"
#include "TranslateableTextHelper.h"
#include "UnitManagerDefinitions.h"

namespace {

const char* const sourceName = "UnitTextManagement/UnitTextHandler";

/// Never part of the name of a unit.
const QLatin1Char separator('/');

/// The result without a text: empty, but not null.
const QLatin1String noText("");

/// Source of the messages about a document, no matter which function parsed it: device logs are searched by
/// this function.
const LogContext loading{sourceName, __LINE__, "bool UnitTextHandler::initByJsonString(const QString&)"};

/// Whether @p unitType is the unit-less type.
bool isNoUnitType(const QString& unitType)
{
    static const QString noUnitType = FixedUnit::unitTypeNamed(UnitManagerDefinitions::getUnitTypeNoUnit());
    return unitType == noUnitType;
}

void warnUnknownUnitType(const LogContext& context, const QString& unitType)
{
    context.warning() << "Unknown unit type given" << unitType;
}

void warnUnknownUnit(const LogContext& context, const QString& unit, const QString& unitType)
{
    context.warning() << "Unknown unit given" << unit << "for unittype" << unitType;
}

/// The position of the unit in lists; 0 for the base unit. No value, with a warning, if it is not an integer.
std::optional<int> displayPosition(const ConfigurationAndProcessDataBase& node)
{
    const QVariant position =
        node.getProperty(ConfigurationAndProcessDataDefinitions::getKeyDataPropertyDisplayPosition());
    if (position.canConvert(QVariant::Int))
        return position.toInt();
    loading.warning() << "Cannot convert displayPosition to int:" << position << "!";
    return {};
}

/// The key of a unit type's display order.
QString displayOrderKey(const QString& unitType)
{
    return unitType + separator;
}

} // namespace

UnitTextHandler::UnitTextHandler() = default;

UnitTextHandler::UnitTextHandler(const QString& json)
{
    initByJsonString(json);
}

UnitTextHandler::~UnitTextHandler() = default;

bool UnitTextHandler::initByJsonString(const QString& json)
{
    reset();
    if (json.isEmpty())
        return false;
    return initByDocument(ConfigurationAndProcessDataParser().parseFromJson(
        json, PropertyManagerConst::getConfigFileExtension()));
}

bool UnitTextHandler::initByDocument(const BaseClassSharedPointer& root)
{
    reset();
    if (!root)
        return false;

    const QHash<QString, BaseClassSharedPointer>& children = root->getChildMap();
    for (auto child = children.begin(); child != children.end(); ++child)
        addUnitType(FixedUnit::unitTypeNamed(child.key()), child.value());
    return isValid();
}

void UnitTextHandler::addUnitType(const QString& unitType, const BaseClassSharedPointer& node)
{
    if (node)
        addUnits(unitType, node->getChildMap());
    if (!m_baseUnitLabels.contains(unitType))
        loading.warning() << "No Base unit label given for" << unitType;
}

void UnitTextHandler::addUnits(const QString& unitType, const QHash<QString, BaseClassSharedPointer>& units)
{
    const QVariant treeNodeType(ConfigurationAndProcessDataDefinitions::getKeyDataTypeTreeNode());
    QHash<QString, QVariant> texts;
    std::vector<std::pair<int, QString>> positions;
    for (auto unit = units.begin(); unit != units.end(); ++unit) {
        const BaseClassSharedPointer& node = unit.value();
        if (!node || node->getProperty(ConfigurationAndProcessDataDefinitions::getKeyDataPropertyType()) !=
                         treeNodeType)
            continue;
        const QVariant text = ConfigurationAndProcessDataTools::extractConfigValue(
            UnitManagerDefinitions::getUnitLabelUrl(), node);
        if (text.isValid())
            texts.insert(unit.key(), text);
        const std::optional<int> position = displayPosition(*node);
        if (position == 0)
            m_baseUnitLabels.insert(unitType, unit.key());
        if (position)
            positions.emplace_back(*position, unit.key());
    }
    std::sort(positions.begin(), positions.end());
    QStringList order;
    for (const auto& [position, unit] : positions)
        order.append(unit);
    m_baseUnitLabels.insert(displayOrderKey(unitType), order.join(separator));
    if (!texts.isEmpty())
        m_unitTexts.insert(unitType, texts);
}

QStringList UnitTextHandler::displayOrder(const QString& unitType) const
{
    return m_baseUnitLabels.value(displayOrderKey(unitType)).split(separator, Qt::SkipEmptyParts);
}

bool UnitTextHandler::initByJsonFile(const QString& path)
{
    return initByJsonString(ConfigurationDataAndProcessDescriptionAccess().getConfiguration(QFileInfo(path)));
}

QString UnitTextHandler::getUnitText(const QString& unitType, const QString& language,
                                     const QString& unit) const
{
    if (isNoUnitType(unitType))
        return noText;
    const bool isFixed = FixedUnit::isFixedUnit(unitType);
    const QString plainType = isFixed ? FixedUnit::unitTypeOf(unitType) : unitType;
    const QString plainUnit = isFixed ? FixedUnit::unitOf(unitType) : unit;

    const auto texts = m_unitTexts.constFind(plainType);
    if (texts == m_unitTexts.constEnd()) {
        warnUnknownUnitType({sourceName, __LINE__, Q_FUNC_INFO}, unitType);
        return noText;
    }
    auto text = texts->constFind(plainUnit);
    if (text == texts->constEnd()) {
        if (!plainUnit.isEmpty()) {
            warnUnknownUnit({sourceName, __LINE__, Q_FUNC_INFO}, unit, unitType);
            return noText;
        }
        text = texts->constFind(m_baseUnitLabels.value(plainType));
    }
    if (text == texts->constEnd() || !text->isValid())
        return noText;
    TranslateableTextHelper helper(language);
    helper.setTranslateableTextObject(*text);
    return helper.getText(language);
}

QString UnitTextHandler::getUnitText(const QSharedPointer<ConfigurationAndProcessDataBase>& node,
                                     const QString& language, const QString& unit) const
{
    if (!node)
        return noText;
    const QVariant unitType =
        node->getProperty(ConfigurationAndProcessDataDefinitions::getKeyDataPropertyUnitType());
    return unitType.canConvert(QVariant::String) ? getUnitText(unitType.toString(), language, unit) : noText;
}

QString UnitTextHandler::getUnitText(const QString& key,
                                     const QSharedPointer<ConfigurationAndProcessDataBase>& node,
                                     const QString& language, const QString& unit) const
{
    return node ? getUnitText(node->getChild(key), language, unit) : noText;
}

QVariant UnitTextHandler::getUnitTextJsonMap(const QString& unitType) const
{
    if (isNoUnitType(unitType)) {
        TranslateableTextHelper helper(noText);
        helper.setText(noText, helper.getLastFallbackLanguage());
        return helper.getTranslateableTextObject();
    }
    const bool isFixed = FixedUnit::isFixedUnit(unitType);
    const QString plainType = isFixed ? FixedUnit::unitTypeOf(unitType) : unitType;
    const QString unit = isFixed ? FixedUnit::unitOf(unitType) : QString();

    const auto texts = m_unitTexts.constFind(plainType);
    if (texts == m_unitTexts.constEnd()) {
        warnUnknownUnitType({sourceName, __LINE__, Q_FUNC_INFO}, unitType);
        return {};
    }
    if (unit.isEmpty())
        return texts->value(m_baseUnitLabels.value(plainType));
    if (!texts->contains(unit))
        warnUnknownUnit({sourceName, __LINE__, Q_FUNC_INFO}, unit, unitType);
    return texts->value(unit);
}

bool UnitTextHandler::isFixedUnitType(const QString& unitType) const
{
    return FixedUnit::isFixedUnit(unitType);
}

void UnitTextHandler::reset()
{
    m_unitTexts.clear();
    m_baseUnitLabels.clear();
}

bool UnitTextHandler::isValid() const
{
    return !m_unitTexts.isEmpty();
}

UnitTextHandler::operator bool() const
{
    return isValid();
}
