#pragma once

#include "ConfigurationAndProcessDataBase.h"
#include "DependencyWalkerExport.h"
#include "UnitManipulatorBase.h"

#include <QtCore/QHash>
#include <QtCore/QList>
#include <QtCore/QSharedPointer>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVariant>

/// Finds the values that depend on a value, from a document that maps a key to the keys that depend on it:
///
///     { "PressureUnit": ["Pressure", "PressureRange"] }
///
/// A plain value without threads or locks.
class DEPENDENCYWALKER_EXPORT DependencyWalker
{
public:
    /// A walker without dependencies.
    DependencyWalker();

    /// Loads the document in place of what was loaded before.
    /// @return false when the text is not JSON of that shape; the walker then knows no dependencies, and one
    /// warning names the reason.
    bool initDependencyGraphByJsonString(const QString& json);

    /// Visits every key that depends on `key`, directly or through others, once each: depth first, in the
    /// order of the document, whatever cycles there are. The key itself is not visited.
    /// @param node where `key` was changed; serves as the start node when that is null.
    /// @param startNode the node whose children the visited keys name; a key without a child there is visited
    /// without being manipulated.
    /// @param results every visited key is appended to it.
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
