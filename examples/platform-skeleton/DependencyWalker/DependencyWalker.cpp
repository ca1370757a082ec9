#include "DependencyWalker.h"

UnitManipulatorBase::UnitManipulatorBase() = default;

UnitManipulatorBase::~UnitManipulatorBase() = default;

DependencyWalker::DependencyWalker() = default;

bool DependencyWalker::initDependencyGraphByJsonString(const QString& /*json*/)
{
    return false;
}

bool DependencyWalker::traverseDependencyGraph(
    const QString& /*key*/, const QSharedPointer<ConfigurationAndProcessDataBase>& /*node*/,
    const QSharedPointer<ConfigurationAndProcessDataBase>& /*startNode*/, QList<QVariant>& /*results*/,
    QList<QVariant> /*seed*/, QSharedPointer<UnitManipulatorBase> /*manipulator*/) const
{
    return false;
}
