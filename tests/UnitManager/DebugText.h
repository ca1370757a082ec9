#pragma once

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVariant>

/// A variant's type and value as text, "double 1.5", with all digits; "invalid" for an invalid one. Unlike
/// QVariant's own comparison, it distinguishes types, NaN and the signs of zero.
QString toDebugText(const QVariant& value);
QStringList toDebugText(const QList<QVariant>& values);
