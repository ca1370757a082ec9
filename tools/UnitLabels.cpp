#include "UnitDocument.h"

#include <algorithm>
#include <limits>
#include <utility>

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
        return {{"*", text->string()}};

    if (text->type() != JsonType::Object)
        return {};
    QMap<QString, QString> labels;
    for (const JsonValue& label : text->children())
        labels.insert(label.name(), label.string());
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

QStringList UnitDocument::languages() const
{
    QStringList languages;
    for (const Unit& unit : m_units)
        languages += unit.labels.keys();
    languages.removeDuplicates();
    std::sort(languages.begin(), languages.end(), [](const QString& left, const QString& right) {
        return std::make_pair(left != "en", left) < std::make_pair(right != "en", right);
    });
    return languages;
}
