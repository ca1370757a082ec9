#include "DependencyWalker.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

#include "ConfigurationAndProcessDataDefinitions.h"

namespace {

bool isHandled(const BaseClassSharedPointer& parent, const QString& key, UnitManipulatorBase& manipulator)
{
    const BaseClassSharedPointer node = parent ? parent->getChild(key) : BaseClassSharedPointer();
    if (!node)
        return false;
    bool handled = false;
    bool changed = false;
    const QString& unitType = ConfigurationAndProcessDataDefinitions::getKeyDataPropertyUnitType();
    manipulator.manipulate(node, node->getProperty(unitType).toString(), handled, changed);
    return handled;
}

} // namespace

UnitManipulatorBase::UnitManipulatorBase() = default;

UnitManipulatorBase::~UnitManipulatorBase() = default;

DependencyWalker::DependencyWalker() = default;

bool DependencyWalker::initDependencyGraphByJsonString(const QString& json)
{
    m_dependents.clear();
    const QJsonDocument document = QJsonDocument::fromJson(json.toUtf8());
    if (!document.isObject())
        return false;
    const QVariantMap entries = document.object().toVariantMap();
    for (auto entry = entries.begin(); entry != entries.end(); ++entry) {
        if (!entry.key().startsWith(QLatin1Char('$')))
            m_dependents.insert(entry.key(), entry.value().toStringList());
    }
    return true;
}

bool DependencyWalker::traverseDependencyGraph(
    const QString& key, const QSharedPointer<ConfigurationAndProcessDataBase>& node,
    const QSharedPointer<ConfigurationAndProcessDataBase>& startNode, QList<QVariant>& results,
    QList<QVariant> seed, QSharedPointer<UnitManipulatorBase> manipulator) const
{
    bool areAllHandled = true;
    seed.append(key);
    QStringList pending = m_dependents.value(key);
    while (!pending.isEmpty()) {
        const QString dependent = pending.takeFirst();
        if (seed.contains(dependent))
            continue;
        seed.append(dependent);
        results.append(dependent);
        if (manipulator && !isHandled(startNode ? startNode : node, dependent, *manipulator))
            areAllHandled = false;
        pending += m_dependents.value(dependent);
    }
    return areAllHandled;
}
