#pragma once

#include <QtCore/QString>

/// Makes external text safe for terminals and logs.
namespace PrintableText {

/// Whether a character (code point) may be shown: false for control characters, line separators, and
/// invisible format characters, which could change what a terminal shows. Joiners and directional marks may
/// be shown; scripts need them.
bool isPrintable(uint character);

/// The text with "?" in place of every other character and of incomplete surrogate pairs.
QString of(const QString& text);

} // namespace PrintableText
