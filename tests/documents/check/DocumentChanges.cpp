#include "DocumentChanges.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

namespace {

struct ChangedValue
{
    QString change;
    QJsonValue value;
};

const QJsonArray& replacements()
{
    static const QJsonArray values = QJsonDocument::fromJson(R"([
        null, true, 0, 1, -1, 0.4, 1e10, "", "0", "1,5", "Bar", [], [null], [[0], [1]], {},
        { "NoUnit": {} }, { "@value": null }, { "@value": "hPa" }, { "@value": { "de": "hPa" } }
    ])")
                                         .array();
    return values;
}

QString textOf(const QJsonValue& value)
{
    const QByteArray list = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    return QString::fromUtf8(list.mid(1, list.size() - 2));
}

/// The value with each node below it changed, and the replacements of the value itself.
std::vector<ChangedValue> changesOf(const QJsonValue& value, const QString& path)
{
    std::vector<ChangedValue> result;
    for (const QJsonValue& replacement : replacements())
        result.push_back({path + " = " + textOf(replacement), replacement});

    const QJsonObject object = value.toObject();
    for (auto member = object.begin(); member != object.end(); ++member) {
        const QString memberPath = path.isEmpty() ? member.key() : path + '/' + member.key();
        QJsonObject changed = object;
        changed.remove(member.key());
        result.push_back({memberPath + " removed", changed});
        for (const ChangedValue& change : changesOf(member.value(), memberPath)) {
            changed.insert(member.key(), change.value);
            result.push_back({change.change, changed});
        }
    }
    const QJsonArray array = value.toArray();
    for (int index = 0; index < array.size(); ++index) {
        const QString elementPath = path + '/' + QString::number(index);
        QJsonArray changed = array;
        changed.removeAt(index);
        result.push_back({elementPath + " removed", changed});
        for (const ChangedValue& change : changesOf(array[index], elementPath)) {
            changed = array;
            changed.replace(index, change.value);
            result.push_back({change.change, changed});
        }
    }
    return result;
}

} // namespace

std::vector<ChangedDocument> DocumentChanges::of(const QByteArray& document)
{
    std::vector<ChangedDocument> result;
    for (const ChangedValue& changed : changesOf(QJsonDocument::fromJson(document).object(), {})) {
        if (changed.value.isObject())
            result.push_back({changed.change, QJsonDocument(changed.value.toObject()).toJson()});
    }
    return result;
}
