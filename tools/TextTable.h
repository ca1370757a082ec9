#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVector>

/// Rows of text in columns as wide as their longest cell, two blanks apart. Columns without text are left
/// out.
class TextTable
{
public:
    /// All rows have the same number of cells.
    void addRow(const QStringList& cells);

    /// The rows, without blanks at their ends.
    QStringList lines() const;

private:
    QVector<QStringList> rows;
};
