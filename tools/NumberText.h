#pragma once

#include <QtCore/QString>

#include <optional>

/// Numbers as text: with a decimal point and without grouping, regardless of the locale.
namespace NumberText {

/// Parses a decimal number with an optional sign and exponent, "nan", "inf" or "-inf"; surrounding blanks are
/// ignored.
///
/// @return no value for any other text and for a number outside the range of a double
std::optional<double> parse(const QString& text);

/// The expected form of a number, for messages.
QString expectation();

/// The shortest text that parse() reads as the same double.
QString shortest(double value);

/// Fixed notation with @p decimalPlaces digits after the decimal point, without a negative zero. With more
/// places than a double can represent, see shortest().
QString fixed(double value, unsigned int decimalPlaces);

} // namespace NumberText
