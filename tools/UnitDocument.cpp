#include "UnitDocument.h"

#include <limits>

namespace {

const double noPosition = std::numeric_limits<double>::infinity();

QString keyOf(const QString& type, const QString& unit)
{
    return type + '/' + unit;
}

double readPosition(const JsonValue& unit)
{
    const auto position = unit.member("@displayPosition");
    return position && position->type() == JsonType::Number ? position->number() : noPosition;
}

QMap<QString, QString> readLabels(const JsonValue& unit)
{
    auto text = unit.member("UnitLabel");
    if (text && text->type() == JsonType::Object)
        text = text->member("@value");
    if (!text)
        return {};
    if (text->type() == JsonType::String)
        return {{QString(), text->string()}};

    if (text->type() != JsonType::Object)
        return {};
    QMap<QString, QString> labels;
    for (const JsonValue& label : text->children()) {
        if (label.type() == JsonType::String)
            labels.insert(label.name(), label.string());
    }
    return labels;
}

} // namespace

UnitDocument::UnitDocument(const JsonDocument& document)
{
    for (const JsonValue& type : document.root().children()) {
        for (const JsonValue& unit : type.children())
            m_units.insert(keyOf(type.name(), unit.name()), {readPosition(unit), readLabels(unit)});
    }
}

double UnitDocument::displayPosition(const QString& type, const QString& unit) const
{
    return m_units.value(keyOf(type, unit), {noPosition, {}}).displayPosition;
}

QMap<QString, QString> UnitDocument::labels(const QString& type, const QString& unit) const
{
    return m_units.value(keyOf(type, unit)).labels;
}
