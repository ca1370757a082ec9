#pragma once

#include <QtCore/QHash>
#include <QtCore/QList>
#include <QtCore/QSharedPointer>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVariant>

#include "ConfigurationAndProcessDataBase.h"
#include "DependencyWalkerExport.h"
#include "UnitManipulatorBase.h"

/// Finds the values that depend on a value. The document maps a key to the keys that depend on it:
///
///     { "PressureUnit": ["Pressure", "PressureRange"] }
///
/// Members whose names begin with "$" are notes for editors and are ignored.
///
/// A plain value; takes no locks.
class DEPENDENCYWALKER_EXPORT DependencyWalker
{
public:
    /// A walker without dependencies.
    DependencyWalker();

    /// Loads the document and replaces the one loaded before.
    /// @return false when the text is not JSON of that form or names a key twice; the walker then has no
    /// dependencies, and one warning gives the reason.
    bool initDependencyGraphByJsonString(const QString& json);

    /// Visits every key that depends on `key`, directly or indirectly, exactly once: depth first, in the
    /// order of the document, also if there are cycles. The key itself is not visited.
    /// @param node where `key` was changed; used as the start node when that is null.
    /// @param startNode the node whose children the visited keys name; a key without a child there is visited
    /// without being manipulated.
    /// @param results receives every visited key, appended.
    /// @param seed keys that count as visited already.
    /// @param manipulator applied to the child of each visited key, with the child's unit type; may be null.
    /// @return true when the manipulator, if there is one, handled every visited key.
    bool traverseDependencyGraph(const QString& key,
                                 const QSharedPointer<ConfigurationAndProcessDataBase>& node,
                                 const QSharedPointer<ConfigurationAndProcessDataBase>& startNode,
                                 QList<QVariant>& results, QList<QVariant> seed,
                                 QSharedPointer<UnitManipulatorBase> manipulator) const;

private:
    QHash<QString, QStringList> m_dependents;
};
