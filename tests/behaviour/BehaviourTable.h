#pragma once

#include <QtCore/QList>
#include <QtCore/QString>

#include <functional>

/// An operation with its arguments. It returns its result, and the final values of its arguments, as text.
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
