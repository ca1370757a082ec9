#include "DependencyWalker.h"

#include <QtCore/QDebug>
#include <QtCore/QMessageLogger>
#include <QtCore/QSet>
#include <QtCore/QStack>

#include <algorithm>

#include "ConfigurationAndProcessDataDefinitions.h"
#include "JsonDocument.h"

namespace {

using Dependents = QHash<QString, QStringList>;

// Members for editors, such as "$schema".
bool isNote(const JsonValue& member)
{
    return member.name().startsWith(QLatin1Char('$'));
}

// Reads the keys of one array; an error is stored in `problem`.
QStringList readKeys(const JsonValue& value, DocumentProblem& problem)
{
    QStringList keys;
    if (value.type() != JsonType::Array) {
        problem = {QStringLiteral("a key's value is not an array"), value.place()};
        return keys;
    }
    for (const JsonValue& key : value.children()) {
        if (key.type() != JsonType::String)
            problem = {QStringLiteral("a dependent key is not a string"), key.place()};
        keys.append(key.string());
    }
    return keys;
}

// Reads the whole document; an error is stored in `problem`.
Dependents readDocument(const QString& json, DocumentProblem& problem)
{
    Dependents dependents;
    const std::optional<JsonDocument> document = JsonDocument::read(json.toUtf8(), problem);
    if (!document)
        return dependents;
    for (const JsonValue& member : document->root().children()) {
        if (!isNote(member))
            dependents.insert(member.name(), readKeys(member, problem));
    }
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
    DocumentProblem problem;
    m_dependents = readDocument(json, problem);
    if (problem.reason.isEmpty())
        return true;

    m_dependents.clear();
    QMessageLogger("DependencyWalker", __LINE__, Q_FUNC_INFO).warning()
        << "Dependency configuration invalid:" << problem.withPlace();
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
