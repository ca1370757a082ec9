#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVector>

/// Aligned columns of text, separated by two blanks. Empty columns are omitted.
class TextTable
{
public:
    /// Adds a row. All rows must have the same number of cells.
    void addRow(const QStringList& cells);

    /// The rows, without trailing blanks.
    QStringList lines() const;

private:
    QVector<QStringList> m_rows;
};
