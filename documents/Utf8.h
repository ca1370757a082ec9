#pragma once

#include <QtCore/QByteArray>

#include "DocumentProblem.h"

/// Checks UTF-8 text and locates bytes in it.
namespace Utf8 {

/// Removes the byte order mark at the start, if there is one.
QByteArray withoutByteOrderMark(const QByteArray& bytes);

/// The offset of the first byte that does not begin a valid character; -1 if the whole text is valid.
int firstInvalidByte(const QByteArray& bytes);

/// The line and column of the character at @p offset, which may be the end of the text. Lines end with a line
/// feed.
TextPlace placeOf(const QByteArray& bytes, int offset);

} // namespace Utf8
