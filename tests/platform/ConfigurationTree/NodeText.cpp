#include "NodeText.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonValue>
#include <QtCore/QLocale>
#include <QtCore/QMap>
#include <QtCore/QStringList>

#include <cmath>

#include "ConfigurationAndProcessDataParser.h"

namespace {

const QStringList knownProperties = {QStringLiteral("@type"),
                                     QStringLiteral("@value"),
                                     QStringLiteral("@unitType"),
                                     QStringLiteral("@readOnly"),
                                     QStringLiteral("@displayPosition"),
                                     QStringLiteral("@measurementRangeAttributes"),
                                     QStringLiteral("@note")};

QString listText(const QVariantList& list)
{
    QStringList texts;
    for (const QVariant& element : list)
        texts.append(valueText(element));
    return QLatin1Char('[') + texts.join(QLatin1String(", ")) + QLatin1Char(']');
}

QString mapText(const QVariantMap& map)
{
    QStringList texts;
    for (auto entry = map.begin(); entry != map.end(); ++entry)
        texts.append(entry.key() + QLatin1Char(':') + valueText(entry.value()));
    return QLatin1Char('<') + texts.join(QLatin1String(", ")) + QLatin1Char('>');
}

QString numberText(double number)
{
    if (std::isnan(number))
        return QStringLiteral("marker");
    return QString::number(number, 'g', QLocale::FloatingPointShortest);
}

QString joined(const QStringList& parts)
{
    return QLatin1Char('{') + parts.join(QLatin1String(", ")) + QLatin1Char('}');
}

/// The expected value of a JSON value: every number a double, null invalid.
QVariant expectedValue(const QJsonValue& value)
{
    if (value.isDouble())
        return value.toDouble();
    if (value.isArray()) {
        QVariantList list;
        for (const QJsonValue element : value.toArray())
            list.append(expectedValue(element));
        return QVariant(list);
    }
    if (value.isObject()) {
        QVariantMap map;
        const QJsonObject object = value.toObject();
        for (auto member = object.begin(); member != object.end(); ++member)
            map.insert(member.key(), expectedValue(member.value()));
        return map;
    }
    return value.isNull() ? QVariant() : value.toVariant();
}

QString expectedType(const QJsonValue& value)
{
    switch (value.type()) {
    case QJsonValue::Double:
        return QStringLiteral("Number");
    case QJsonValue::String:
        return QStringLiteral("Text");
    case QJsonValue::Bool:
        return QStringLiteral("Boolean");
    case QJsonValue::Array:
        return QStringLiteral("Array");
    case QJsonValue::Object:
        return QStringLiteral("TranslateableText");
    default:
        return QStringLiteral("TreeNode");
    }
}

QString expectedChildText(const QJsonValue& value)
{
    if (value.isNull())
        return QStringLiteral("null");
    if (value.isObject())
        return expectedNodeText(value.toObject());
    return expectedNodeText(QJsonObject{{QStringLiteral("@value"), value}});
}

} // namespace

QString valueText(const QVariant& value)
{
    switch (value.userType()) {
    case QMetaType::UnknownType:
        return QStringLiteral("invalid");
    case QMetaType::Double:
        return numberText(value.toDouble());
    case QMetaType::Bool:
        return value.toBool() ? QStringLiteral("true") : QStringLiteral("false");
    case QMetaType::QString:
        return QLatin1Char('"') + value.toString() + QLatin1Char('"');
    case QMetaType::QVariantList:
        return listText(value.toList());
    case QMetaType::QVariantMap:
        return mapText(value.toMap());
    default:
        return QLatin1String(value.typeName()) + QLatin1Char('(') + value.toString() + QLatin1Char(')');
    }
}

QString nodeText(const BaseClassSharedPointer& node)
{
    if (!node)
        return QStringLiteral("null");
    QStringList parts;
    for (const QString& property : knownProperties) {
        if (node->hasProperty(property) != node->getProperty(property).isValid())
            parts.append(property + QLatin1String(" is contradictory"));
        if (node->hasProperty(property))
            parts.append(property + QLatin1Char('=') + valueText(node->getProperty(property)));
    }
    QStringList keys = node->getChildMap().keys();
    keys.sort();
    for (const QString& key : qAsConst(keys))
        parts.append(key + QLatin1Char('=') + nodeText(node->getChild(key)));
    return joined(parts);
}

QString expectedNodeText(const QJsonObject& document)
{
    const QString given = document.value(QLatin1String("@type")).toString();
    const QString type = given.isEmpty() ? expectedType(document.value(QLatin1String("@value"))) : given;
    QStringList parts = {QStringLiteral("@type=") + valueText(type)};
    for (const QString& property : knownProperties.mid(1)) {
        QVariant value = expectedValue(document.value(property));
        if (property == QLatin1String("@value") && document.value(property).isNull() &&
            type == QLatin1String("Number"))
            value = std::nan("");
        if (value.isValid() && !document.value(property).isUndefined())
            parts.append(property + QLatin1Char('=') + valueText(value));
    }
    QStringList children = document.keys();
    children.sort();
    for (const QString& key : qAsConst(children)) {
        if (!key.startsWith(QLatin1Char('@')))
            parts.append(key + QLatin1Char('=') + expectedChildText(document.value(key)));
    }
    return joined(parts);
}

BaseClassSharedPointer parse(const QString& json)
{
    return ConfigurationAndProcessDataParser().parseFromJson(json, QStringLiteral("json"));
}
