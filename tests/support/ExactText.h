#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVariant>
#include <QtCore/QVector>

/// A number as hexadecimal text: equal only for the same double, including the sign of zero. Qt's own
/// comparison of doubles ignores small differences.
QString exactText(double number);

/// A variant's type and value as text; for floating-point numbers see exactText(double).
QString exactText(const QVariant& value);

/// The texts of the numbers, see exactText().
QStringList exactTexts(const QVector<double>& numbers);
