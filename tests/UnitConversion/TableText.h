#pragma once

#include <QtCore/QStringList>

#include "ExactText.h"
#include "UnitConversion/ValueConverterBase.h"

/// One row of a table as text.
inline QString tableText(const ValueConverterBase::ConversionTableEntry& entry)
{
    const auto& [x, y] = entry;
    return exactText(x) + QStringLiteral(" -> ") + exactText(y);
}

/// The rows of a table in order, followed by the rows with the largest and the smallest x.
inline QStringList tableTexts(const ValueConverterBase::ConversionTable& table)
{
    const auto& [entries, maxEntry, minEntry] = table;
    QStringList texts;
    for (const ValueConverterBase::ConversionTableEntry& entry : entries)
        texts.append(tableText(entry));
    return texts << QStringLiteral("max ") + tableText(maxEntry)
                 << QStringLiteral("min ") + tableText(minEntry);
}
