#pragma once

#include <QtCore/QString>

/// Reads a number as typed by a person in the default locale. A group separator is accepted, unless it may be
/// meant as the decimal separator.
///
/// @param error receives the reason of a refusal, translated in the context "TypedNumber"; else empty
/// @return the number; of no use if it is refused
double typedNumber(const QString& typed, QString& error);
