#include "DependencyWalker.h"

#include <QtCore/QDebug>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QJsonParseError>
#include <QtCore/QMessageLogger>
#include <QtCore/QSet>
#include <QtCore/QStack>

#include <algorithm>

#include "ConfigurationAndProcessDataDefinitions.h"

namespace {

using Dependents = QHash<QString, QStringList>;

// Reads the keys of one array; an error is stored in `reason`.
QStringList readKeys(const QJsonValue& value, QString& reason)
{
    if (!value.isArray())
        reason = QStringLiteral("a key's value is not an array");

    QStringList keys;
    const QJsonArray array = value.toArray();
    for (const QJsonValue& key : array) {
        if (!key.isString())
            reason = QStringLiteral("a dependent key is not a string");
        keys.append(key.toString());
    }
    return keys;
}

// Reads the whole document; an error is stored in `reason`.
Dependents readDocument(const QString& json, QString& reason)
{
    QJsonParseError error = {};
    const QJsonDocument document = QJsonDocument::fromJson(json.toUtf8(), &error);
    if (error.error != QJsonParseError::NoError)
        reason = error.errorString();
    else if (!document.isObject())
        reason = QStringLiteral("the document is not an object");

    Dependents dependents;
    const QJsonObject object = document.object();
    for (auto entry = object.begin(); entry != object.end(); ++entry)
        dependents.insert(entry.key(), readKeys(entry.value(), reason));
    return dependents;
}

// Whether the key needs no manipulation, or the manipulator handled its node.
bool manipulateChild(const QSharedPointer<ConfigurationAndProcessDataBase>& parent, const QString& key,
                     const QSharedPointer<UnitManipulatorBase>& manipulator)
{
    if (!manipulator)
        return true;
    const QSharedPointer<ConfigurationAndProcessDataBase> child =
        parent ? parent->getChild(key) : QSharedPointer<ConfigurationAndProcessDataBase>();
    if (!child)
        return false;

    bool handled = false;
    bool changed = false;
    const QString unitType =
        child->getProperty(ConfigurationAndProcessDataDefinitions::getKeyDataPropertyUnitType()).toString();
    manipulator->manipulate(child, unitType, handled, changed);
    return handled;
}

} // namespace

DependencyWalker::DependencyWalker() = default;

bool DependencyWalker::initDependencyGraphByJsonString(const QString& json)
{
    QString reason;
    m_dependents = readDocument(json, reason);
    if (reason.isEmpty())
        return true;

    m_dependents.clear();
    QMessageLogger("DependencyWalker", __LINE__, Q_FUNC_INFO).warning()
        << "Dependency configuration invalid:" << reason;
    return false;
}

bool DependencyWalker::traverseDependencyGraph(
    const QString& key, const QSharedPointer<ConfigurationAndProcessDataBase>& node,
    const QSharedPointer<ConfigurationAndProcessDataBase>& startNode, QList<QVariant>& results,
    QList<QVariant> seed, QSharedPointer<UnitManipulatorBase> manipulator) const
{
    const QSharedPointer<ConfigurationAndProcessDataBase>& parent = startNode ? startNode : node;
    QSet<QString> visited{key};
    for (const QVariant& seedKey : seed)
        visited.insert(seedKey.toString());

    // Uses an explicit stack, because a long chain of dependencies could overflow the thread's stack. The
    // last key pushed is visited first, so dependents are pushed in reverse order.
    bool allHandled = true;
    QStack<QString> pending;
    const auto pushDependents = [this, &pending](const QString& changedKey) {
        const QStringList dependents = m_dependents.value(changedKey);
        std::copy(dependents.rbegin(), dependents.rend(), std::back_inserter(pending));
    };
    pushDependents(key);
    while (!pending.isEmpty()) {
        const QString dependent = pending.pop();
        if (visited.contains(dependent))
            continue;
        visited.insert(dependent);
        results.append(dependent);
        if (!manipulateChild(parent, dependent, manipulator))
            allHandled = false;
        pushDependents(dependent);
    }
    return allHandled;
}
