#pragma once

#include <QtCore/QString>

/// Whether a text is empty but not null; Qt's own comparison treats both as equal.
inline bool isEmptyText(const QString& text)
{
    return text.isEmpty() && !text.isNull();
}
