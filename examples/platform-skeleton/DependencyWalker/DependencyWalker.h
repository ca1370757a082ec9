#pragma once

#include <QtCore/QList>

#include "UnitManipulatorBase.h"

class DependencyWalker
{
public:
    DependencyWalker();

    bool initDependencyGraphByJsonString(const QString& json);
    bool traverseDependencyGraph(const QString& key,
                                 const QSharedPointer<ConfigurationAndProcessDataBase>& node,
                                 const QSharedPointer<ConfigurationAndProcessDataBase>& startNode,
                                 QList<QVariant>& results, QList<QVariant> seed,
                                 QSharedPointer<UnitManipulatorBase> manipulator) const;
};
