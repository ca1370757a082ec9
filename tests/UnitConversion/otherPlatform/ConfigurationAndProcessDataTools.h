#pragma once

#include <QtCore/QVariant>

/// The tests for the marker on another platform: its marker is a number or a NaN, and it declares nothing
/// about it.
class ConfigurationAndProcessDataTools
{
public:
    static bool isVariantNumber(const QVariant& value);
    static bool isNoInputValueIndicatorSet(const QVariant& value);
};
