#pragma once

#include <QtCore/QString>
#include <QtCore/QVariant>

#include "ConfigurationAndProcessDataBase.h"

/// Functions on values. The marker for values that were not entered is a number, so this platform cannot
/// promise that only a NaN carries it.
class ConfigurationAndProcessDataTools
{
public:
    static QVariant extractConfigValue(const QString& key, const BaseClassSharedPointer& node);
    static int setConfigValueWithStatus(const QString& key, const BaseClassSharedPointer& node,
                                        const QVariant& value);
    static bool isVariantNumber(const QVariant& value);
    static QVariant getNoInputValueIndicator();
    static bool isNoInputValueIndicatorSet(const QVariant& value);
};
