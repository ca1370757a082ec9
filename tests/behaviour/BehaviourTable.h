#pragma once

#include <QtCore/QList>
#include <QtCore/QString>

#include <functional>

/// One operation with its arguments. It returns its result, and what it left in its arguments, as text.
struct BehaviourRow
{
    QString name;
    std::function<QString()> operation;
};

using BehaviourRows = QList<BehaviourRow>;

/// Conversions of single values: facade, core, catalogue and unit type.
BehaviourRows valueRows();
/// Values of nodes and process data.
BehaviourRows nodeRows();
/// Rows of two-dimensional arrays, and arrays of numbers.
BehaviourRows arrayRows();
