#include "UnitLabels.h"

#include <algorithm>
#include <utility>

namespace {

QString keyOf(const QString& type, const QString& unit)
{
    return type + '/' + unit;
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

UnitLabels::UnitLabels(const JsonDocument& document)
{
    for (const JsonValue& type : document.root().children()) {
        for (const JsonValue& unit : type.children())
            m_labels.insert(keyOf(type.name(), unit.name()), readLabels(unit));
    }
}

QMap<QString, QString> UnitLabels::labels(const QString& type, const QString& unit) const
{
    return m_labels.value(keyOf(type, unit));
}

QStringList UnitLabels::languages() const
{
    QStringList languages;
    for (const QMap<QString, QString>& labels : m_labels)
        languages += labels.keys();
    languages.removeDuplicates();
    std::sort(languages.begin(), languages.end(), [](const QString& left, const QString& right) {
        return std::make_pair(left != "en", left) < std::make_pair(right != "en", right);
    });
    return languages;
}
