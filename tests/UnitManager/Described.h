#pragma once

#include "DebugText.h"
#include "ExpectedMessages.h"

// Previous names, which the tests of the device integration still use.
inline QString described(const QVariant& value)
{
    return toDebugText(value);
}

inline QStringList described(const QList<QVariant>& values)
{
    return toDebugText(values);
}

inline QStringList describedMessages(LogCapture& log)
{
    return takeMessageTexts(log);
}
