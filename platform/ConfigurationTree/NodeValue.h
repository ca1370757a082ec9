#pragma once

#include <QtCore/QString>
#include <QtCore/QVariant>

/// The kinds of values that nodes hold, and the data types that accept them.
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

/// @return the kind of a value; Kind::None for an invalid variant and for a value that nodes cannot hold.
Kind kindOf(const QVariant& value);

/// @return the data type of a node that holds a value of @p kind and has no explicit type.
const QString& typeOf(Kind kind);

/// @return whether a node of the data type @p type accepts a value of @p kind. An unknown type accepts every
/// kind except Kind::None.
bool isTakenBy(const QString& type, Kind kind);

/// @return @p value in the form in which nodes store its kind: numbers as `double`, arrays as `QVariantList`,
/// maps as `QVariantMap`, also inside arrays and maps.
QVariant asStored(const QVariant& value);

/// @return whether two values in stored form have the same type and are exactly equal; any two NaNs are
/// equal. (QVariant's comparison would convert between types.)
bool isEqual(const QVariant& left, const QVariant& right);

} // namespace NodeValue
