#pragma once

#include <QtCore/QString>

/// Whether a text is empty, and not a null one: Qt's own comparison makes no difference between the two.
inline bool isEmptyText(const QString& text)
{
    return text.isEmpty() && !text.isNull();
}
