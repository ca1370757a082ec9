#pragma once

#include <QtCore/QString>

#include <optional>

/// Numbers as text: a decimal point and no grouping, whatever the locale.
namespace NumberText {

/// Reads a decimal number with an optional sign and exponent, "nan", "inf" or "-inf"; blanks around it do not
/// matter.
///
/// @return nothing for any other text and for a number beyond the range of a double
std::optional<double> parse(const QString& text);

/// What a number has to look like, for messages.
QString expectation();

/// The shortest text that parse() reads as the same double.
QString shortest(double value);

/// Fixed notation with @p decimalPlaces digits behind the point, without a negative zero. With more places
/// than a double carries the same as shortest().
QString fixed(double value, unsigned int decimalPlaces);

} // namespace NumberText
