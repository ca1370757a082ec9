#pragma once

#include "ConfigurationAndProcessDataBase.h"

class ConfigurationAndProcessDataTools
{
public:
    static QVariant extractConfigValue(const QString& key, const BaseClassSharedPointer& node);
    static int setConfigValueWithStatus(const QString& key, const BaseClassSharedPointer& node,
                                        const QVariant& value);
    static bool isVariantNumber(const QVariant& value);
    static bool isNoInputValueIndicatorSet(const QVariant& value);

    // If only a NaN can be the marker, getNanOnlyNoInputTest() may promise that: conversions are then faster.
};
