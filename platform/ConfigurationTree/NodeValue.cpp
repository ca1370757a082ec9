#include "NodeValue.h"

#include <algorithm>
#include <cmath>

#include "ConfigurationAndProcessDataDefinitions.h"
#include "ConfigurationAndProcessDataTools.h"

namespace {

using Definitions = ConfigurationAndProcessDataDefinitions;

bool isEqualNumber(double left, double right)
{
    return left == right || (std::isnan(left) && std::isnan(right));
}

bool isEqualArray(const QVariantList& left, const QVariantList& right)
{
    return std::equal(left.begin(), left.end(), right.begin(), right.end(), NodeValue::isEqual);
}

bool isEqualMap(const QVariantMap& left, const QVariantMap& right)
{
    return left.keys() == right.keys() &&
           std::equal(left.begin(), left.end(), right.begin(), right.end(), NodeValue::isEqual);
}

} // namespace

NodeValue::Kind NodeValue::kindOf(const QVariant& value)
{
    if (ConfigurationAndProcessDataTools::isVariantNumber(value))
        return Kind::Number;
    switch (value.userType()) {
    case QMetaType::QString:
        return Kind::Text;
    case QMetaType::Bool:
        return Kind::Boolean;
    case QMetaType::QVariantList:
    case QMetaType::QStringList:
        return Kind::Array;
    case QMetaType::QVariantMap:
    case QMetaType::QVariantHash:
        return Kind::Map;
    default:
        return Kind::None;
    }
}

const QString& NodeValue::typeOf(Kind kind)
{
    switch (kind) {
    case Kind::Number:
        return Definitions::getKeyDataTypeNumber();
    case Kind::Text:
        return Definitions::getKeyDataTypeText();
    case Kind::Boolean:
        return Definitions::getKeyDataTypeBoolean();
    case Kind::Array:
        return Definitions::getKeyDataTypeArray();
    case Kind::Map:
        return Definitions::getKeyDataTypeTranslateableText();
    case Kind::None:
        break;
    }
    return Definitions::getKeyDataTypeTreeNode();
}

bool NodeValue::isTakenBy(const QString& type, Kind kind)
{
    if (kind == Kind::None || type == Definitions::getKeyDataTypeTreeNode())
        return false;
    if (type == Definitions::getKeyDataTypeNumber())
        return kind == Kind::Number;
    if (type == Definitions::getKeyDataTypeText() || type == Definitions::getKeyDataTypeSelection())
        return kind == Kind::Text;
    if (type == Definitions::getKeyDataTypeBoolean())
        return kind == Kind::Boolean;
    if (type == Definitions::getKeyDataTypeArray())
        return kind == Kind::Array;
    if (type == Definitions::getKeyDataTypeTranslateableText())
        return kind == Kind::Map || kind == Kind::Text;
    return true;
}

QVariant NodeValue::asStored(const QVariant& value)
{
    switch (kindOf(value)) {
    case Kind::Number:
        return value.toDouble();
    case Kind::Array: {
        QVariantList list = value.toList();
        std::transform(list.cbegin(), list.cend(), list.begin(), asStored);
        return QVariant(list);
    }
    case Kind::Map: {
        QVariantMap map = value.toMap();
        for (QVariant& entry : map)
            entry = asStored(entry);
        return map;
    }
    default:
        return value;
    }
}

bool NodeValue::isEqual(const QVariant& left, const QVariant& right)
{
    if (left.userType() != right.userType())
        return false;
    switch (left.userType()) {
    case QMetaType::Double:
        return isEqualNumber(left.toDouble(), right.toDouble());
    case QMetaType::QVariantList:
        return isEqualArray(left.toList(), right.toList());
    case QMetaType::QVariantMap:
        return isEqualMap(left.toMap(), right.toMap());
    default:
        return left == right;
    }
}
