#include "DocumentDifferences.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QStringList>

#include <algorithm>
#include <map>
#include <set>
#include <utility>
#include <vector>

namespace {

const QString valueKey = "@value";
const QString typeKey = "@type";

QJsonValue meaningOf(const JsonValue& value);

QJsonArray arrayOf(const JsonValue& value)
{
    QJsonArray array;
    for (const JsonValue& element : value.children())
        array.append(meaningOf(element));
    return array;
}

QJsonObject objectOf(const JsonValue& value)
{
    // Inserting in another order takes quadratic time.
    std::map<QString, QJsonValue> members;
    for (const JsonValue& member : value.children())
        members.emplace(member.name(), meaningOf(member));
    QJsonObject object;
    for (const auto& [name, meaning] : members)
        object.insert(name, meaning);
    return object;
}

QJsonValue meaningOf(const JsonValue& value)
{
    switch (value.type()) {
    case JsonType::Boolean:
        return value.boolean();
    case JsonType::Number:
        return value.number();
    case JsonType::String:
        return value.string();
    case JsonType::Array:
        return arrayOf(value);
    case JsonType::Object: {
        const QJsonObject object = objectOf(value);
        return object.keys() == QStringList(valueKey) ? object.value(valueKey) : object;
    }
    case JsonType::Null:
        break;
    }
    return QJsonValue::Null;
}

/// Members of the root that are for editors, such as "$schema".
bool isNote(const QString& name)
{
    return name.startsWith('$');
}

/// The entries of a document: all members but notes.
QJsonObject entriesOf(const JsonDocument& document)
{
    QJsonObject entries = objectOf(document.root());
    for (const QString& name : entries.keys()) {
        if (isNote(name))
            entries.remove(name);
    }
    return entries;
}

bool isProperty(const QString& name)
{
    return name.startsWith('@');
}

/// @return no value for an entry that no kind of document has
std::optional<DocumentKind> kindOfEntry(const JsonValue& entry)
{
    if (entry.type() == JsonType::Array)
        return DocumentKind::Dependencies;
    if (entry.type() != JsonType::Object)
        return std::nullopt;
    if (const auto value = entry.member(valueKey))
        return value->type() == JsonType::Array ? DocumentKind::Dependencies : DocumentKind::DefaultUnits;
    if (entry.member(typeKey))
        return DocumentKind::DefaultUnits;
    const std::vector<JsonValue> members = entry.children();
    const bool isUnitType = std::all_of(members.begin(), members.end(), [](const JsonValue& member) {
        return member.type() == JsonType::Object || isProperty(member.name());
    });
    return isUnitType ? std::make_optional(DocumentKind::Units) : std::nullopt;
}

/// JSON; a default unit is its name.
QString textOf(const QJsonValue& value)
{
    if (value.isObject() && value.toObject().value(valueKey).isString())
        return value.toObject().value(valueKey).toString();
    const QByteArray json = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    return QString::fromUtf8(json.mid(1, json.size() - 2));
}

/// The values of a difference. Whole units and unit types, and what is removed, are not shown.
QString valuesText(const QJsonValue& before, const QJsonValue& after)
{
    if (after.isUndefined())
        return {};
    if (!before.isUndefined())
        return ": " + textOf(before) + " -> " + textOf(after);
    const bool isWhole = after.isObject() && !after.toObject().contains(valueKey);
    return isWhole ? QString() : ": " + textOf(after);
}

/// Default units by name only, which may be given as whole identifiers.
QJsonObject withShortNames(QJsonObject defaultUnits)
{
    for (auto entry = defaultUnits.begin(); entry != defaultUnits.end(); ++entry) {
        QJsonObject selection = entry.value().toObject();
        const QString unit = selection.value(valueKey).toString();
        if (unit.contains('/')) {
            selection.insert(valueKey, unit.mid(unit.lastIndexOf('/') + 1));
            entry.value() = selection;
        }
    }
    return defaultUnits;
}

/// Collects the differences of two documents.
class Comparison
{
public:
    QVector<Difference> takeDifferences()
    {
        return std::move(m_differences);
    }

    void compareUnits(const QJsonObject& before, const QJsonObject& after)
    {
        forEachChange(before, after, [this](const QString& type, const auto& was, const auto& is) {
            if (was.isObject() && is.isObject())
                compareType(type, was.toObject(), is.toObject());
            else
                add(type, isProperty(type) ? type : "unit type " + type, was, is);
        });
    }

    void compareDefaultUnits(const QJsonObject& before, const QJsonObject& after)
    {
        forEachChange(before, after, [this](const QString& type, const auto& was, const auto& is) {
            const QString subject = "default unit of " + type;
            const bool areUnitsDifferent = was.toObject().value(valueKey) != is.toObject().value(valueKey);
            if (was.isObject() && is.isObject() && !areUnitsDifferent)
                compareMembers(type, subject, was.toObject(), is.toObject());
            else
                add(type, subject, was, is);
        });
    }

    void compareDependencies(const QJsonObject& before, const QJsonObject& after)
    {
        forEachChange(before, after, [this](const QString& setting, const auto& was, const auto& is) {
            add(setting, setting + ": dependents", was, is);
        });
    }

private:
    /// Calls @p handle with name, old and new value of each member that differs, sorted by name.
    template <typename Handle>
    static void forEachChange(const QJsonObject& before, const QJsonObject& after, Handle handle)
    {
        const QStringList oldNames = before.keys();
        const QStringList newNames = after.keys();
        std::set<QString> names(oldNames.begin(), oldNames.end());
        names.insert(newNames.begin(), newNames.end());
        for (const QString& name : names) {
            if (before.value(name) != after.value(name))
                handle(name, before.value(name), after.value(name));
        }
    }

    void compareType(const QString& type, const QJsonObject& before, const QJsonObject& after)
    {
        forEachChange(before, after, [this, &type](const QString& name, const auto& was, const auto& is) {
            const QString path = type + '/' + name;
            if (was.isObject() && is.isObject())
                compareMembers(path, path, was.toObject(), is.toObject());
            else
                add(path, isProperty(name) ? type + ": " + name : "unit " + path, was, is);
        });
    }

    void compareMembers(const QString& path, const QString& subject, const QJsonObject& before,
                        const QJsonObject& after)
    {
        forEachChange(before, after, [&](const QString& name, const auto& was, const auto& is) {
            if (name == "UnitLabel" && was.isObject() && is.isObject())
                compareLabels(path, was.toObject(), is.toObject());
            else
                add(path + '/' + name, subject + ": " + name, was, is);
        });
    }

    void compareLabels(const QString& unit, const QJsonObject& before, const QJsonObject& after)
    {
        forEachChange(before, after, [this, &unit](const QString& language, const auto& was, const auto& is) {
            add(unit + "/UnitLabel/" + language, unit + ": label " + language, was, is);
        });
    }

    void add(const QString& path, const QString& subject, const QJsonValue& before, const QJsonValue& after)
    {
        Difference difference{path, before, after, {}};
        difference.text = subject + ' ' + difference.change() + valuesText(before, after);
        m_differences.append(difference);
    }

    QVector<Difference> m_differences;
};

} // namespace

QString Difference::change() const
{
    if (before.isUndefined())
        return "added";
    return after.isUndefined() ? "removed" : "changed";
}

QJsonObject Difference::toJson(const QString& document) const
{
    const auto orNull = [](const QJsonValue& value) {
        return value.isUndefined() ? QJsonValue() : value;
    };
    return {{"document", document},
            {"path", path},
            {"change", change()},
            {"before", orNull(before)},
            {"after", orNull(after)}};
}

std::optional<DocumentKind> DocumentDifferences::kindOf(const JsonDocument& document)
{
    std::optional<DocumentKind> kind;
    for (const JsonValue& entry : document.root().children()) {
        if (isNote(entry.name()) || isProperty(entry.name()))
            continue;
        const auto kindOfThis = kindOfEntry(entry);
        if (!kindOfThis || (kind && kind != kindOfThis))
            return std::nullopt;
        kind = kindOfThis;
    }
    return kind;
}

QVector<Difference> DocumentDifferences::between(const JsonDocument& before, const JsonDocument& after,
                                                 DocumentKind kind)
{
    Comparison comparison;
    const QJsonObject old = entriesOf(before);
    const QJsonObject present = entriesOf(after);
    switch (kind) {
    case DocumentKind::Units:
        comparison.compareUnits(old, present);
        break;
    case DocumentKind::DefaultUnits:
        comparison.compareDefaultUnits(withShortNames(old), withShortNames(present));
        break;
    case DocumentKind::Dependencies:
        comparison.compareDependencies(old, present);
        break;
    }
    return comparison.takeDifferences();
}
