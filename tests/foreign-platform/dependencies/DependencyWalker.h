#pragma once

#include <QtCore/QList>
#include <QtCore/QMap>
#include <QtCore/QStringList>

#include "UnitManipulatorBase.h"

/// Visits what depends on a value. The document maps a key to the list of its dependents.
class DependencyWalker
{
public:
    DependencyWalker();

    /// @return false, with no dependencies loaded, when the text is not such a document.
    bool initDependencyGraphByJsonString(const QString& json);

    /// Visits each dependent once, breadth first.
    /// @param startNode parent of the dependents; @p node if it is null
    /// @param results receives the visited keys
    /// @param seed keys that are not visited
    /// @param manipulator edits each visited node; may be null
    /// @return whether every visited key was handled; true without a manipulator.
    bool traverseDependencyGraph(const QString& key,
                                 const QSharedPointer<ConfigurationAndProcessDataBase>& node,
                                 const QSharedPointer<ConfigurationAndProcessDataBase>& startNode,
                                 QList<QVariant>& results, QList<QVariant> seed,
                                 QSharedPointer<UnitManipulatorBase> manipulator) const;

private:
    QMap<QString, QStringList> m_dependents;
};
