#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

class UnitManager;

/// The names and identifiers of unit types.
namespace UnitTypeNames {

/// Whether a name has more than 255 characters. The path of every finding repeats the names, so that long
/// ones would let a document within the size limit exhaust the memory.
bool isTooLong(const QString& text);
/// Whether the text can be the name of a unit type or unit: a section of an identifier.
bool isUsable(const QString& text);
/// Whether the name consists of ASCII letters and digits, and begins with a letter.
bool isUsual(const QString& text);
/// The library's identifier of a unit type, "UnitManager/UnitType/NAME".
QString identifierOf(const QString& name);
/// The text after the last "/".
QString afterLastSlash(const QString& text);
/// The names of the library's unit types that have units, sorted.
QStringList withUnits(const UnitManager& library);

} // namespace UnitTypeNames
