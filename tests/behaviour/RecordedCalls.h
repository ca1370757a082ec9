#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVariant>

/// The calls from the library to the platform, oldest first. There is one list per process, for use by one
/// thread.
namespace RecordedCalls {

/// Adds a call that reads or changes an object, or computes a result.
void add(const QString& call);
/// Adds a query of a value whose result depends only on that value. Such queries are listed separately,
/// because repeating them changes nothing.
void addQuery(const QString& query);

/// Takes the calls since the last takeCalls() out of the list.
QStringList takeCalls();
/// Takes the queries since the last takeQueries() out of the list.
QStringList takeQueries();

/// A value bit by bit: numbers in hexadecimal; a NaN with its bits, unless it is the default one.
QString exactBits(const QVariant& value);
QString exactBits(double number);

} // namespace RecordedCalls
