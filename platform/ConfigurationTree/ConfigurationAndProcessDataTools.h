#pragma once

#include <QtCore/QString>
#include <QtCore/QVariant>

#include "ConfigurationAndProcessDataBase.h"
#include "ConfigurationTreeExport.h"

/// Helper functions for the values of configuration-tree nodes. Nothing is logged.
class CONFIGURATIONTREE_EXPORT ConfigurationAndProcessDataTools
{
public:
    ConfigurationAndProcessDataTools() = delete;

    /// @return the value of the child @p key of @p node; an invalid variant when the node is null, has no
    /// such child, or the child has no value.
    static QVariant extractConfigValue(const QString& key, const BaseClassSharedPointer& node);

    /// Writes the value of the child @p key of @p node.
    ///
    /// @return the status of the write: 0 changed, 1 already equal, 2 refused; 2 also when the node is null
    /// or has no such child.
    static int setConfigValueWithStatus(const QString& key, const BaseClassSharedPointer& node,
                                        const QVariant& value);

    /// @return whether @p value is of an integer or floating-point type. A boolean, a character and a string
    /// are not numbers.
    static bool isVariantNumber(const QVariant& value);

    /// @return the no-input marker: a `double` that is a quiet NaN.
    static QVariant getNoInputValueIndicator();

    /// @return whether @p value is the no-input marker: any NaN of a floating-point type.
    static bool isNoInputValueIndicatorSet(const QVariant& value);

    /// Function type of the test for the no-input marker.
    using NoInputTest = bool (*)(const QVariant& value);
    /// Promises that isNoInputValueIndicatorSet() is false for every number except NaN, so that callers can
    /// skip the test for other numbers. A platform that cannot promise this omits the function.
    ///
    /// @return the function to which the promise applies. If another function is called under that name, the
    /// promise is void.
    static NoInputTest getNanOnlyNoInputTest();
};
