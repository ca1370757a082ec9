#include "TextTable.h"

#include <algorithm>

void TextTable::addRow(const QStringList& cells)
{
    m_rows.append(cells);
}

QStringList TextTable::lines() const
{
    QVector<int> widths;
    for (const QStringList& cells : m_rows) {
        widths.resize(cells.size());
        for (int column = 0; column < cells.size(); ++column)
            widths[column] = std::max(widths[column], cells[column].size());
    }

    QStringList lines;
    for (const QStringList& cells : m_rows) {
        QString line;
        for (int column = 0; column < cells.size(); ++column) {
            if (widths[column] > 0)
                line += cells[column].leftJustified(widths[column] + 2);
        }
        while (line.endsWith(' '))
            line.chop(1);
        lines.append(line);
    }
    return lines;
}
