#pragma once

#include <QtCore/QString>
#include <QtCore/QVariant>

/// The kinds of values that nodes hold, and how they go with the data types.
namespace NodeValue {

enum class Kind
{
    None,
    Number,
    Text,
    Boolean,
    Array,
    Map
};

/// @return the kind of a value; Kind::None for an invalid variant and for what no node holds.
Kind kindOf(const QVariant& value);

/// @return the data type of a node that holds a value of @p kind and was given no type.
const QString& typeOf(Kind kind);

/// @return whether a node of the data type @p type takes a value of @p kind. A type of another name than the
/// known ones takes every kind but Kind::None.
bool isTakenBy(const QString& type, Kind kind);

/// @return @p value in the form in which nodes hold its kind: numbers as `double`, arrays as `QVariantList`,
/// maps as `QVariantMap`, at every depth.
QVariant asStored(const QVariant& value);

/// @return whether two values in stored form are equal: of one type, and exactly the same, but that one NaN
/// is as good as another. (The comparison of QVariant would convert between types.)
bool isEqual(const QVariant& left, const QVariant& right);

} // namespace NodeValue
