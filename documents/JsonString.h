#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

/// Strings within a JSON text that has been checked.
namespace JsonString {

/// The bytes between the quotes, with escapes as written.
///
/// @param quote the opening quote
QByteArray encoded(const char* quote);

/// The string's value, with escapes replaced.
QString decoded(const char* quote);

/// Whether the string's value is @p utf8. Faster than to decode it.
bool equals(const char* quote, const QByteArray& utf8);

/// The code unit of four hexadecimal digits; -1 if there are fewer than four before the end.
int codeUnit(const char* digits, const char* end);

} // namespace JsonString
