#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVariant>
#include <QtCore/QVector>

/// A number as text, in hexadecimal digits: equal for the same double only, the sign of a zero included. Qt's
/// own comparison of doubles lets small differences pass.
QString exactText(double number);

/// A variant's type and value as text; numbers of floating type as above.
QString exactText(const QVariant& value);

/// The numbers one by one.
QStringList exactTexts(const QVector<double>& numbers);
