#pragma once

#include <QtCore/QVariant>

/// Another platform's questions about values: its marker is a number or a NaN, and it promises nothing.
class ConfigurationAndProcessDataTools
{
public:
    static bool isVariantNumber(const QVariant& value);
    static bool isNoInputValueIndicatorSet(const QVariant& value);
};
