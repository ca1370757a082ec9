#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVariant>

/// The calls that the library makes on the platform, oldest first. One process has one list; one thread uses
/// it.
namespace RecordedCalls {

/// Adds a call that reads or changes an object, or that computes a result.
void add(const QString& call);
/// Adds a question about a value whose answer depends on nothing but that value. Such questions are listed
/// apart, because asking once more changes nothing.
void addQuestion(const QString& question);

/// The calls since the last one; they are forgotten here.
QStringList takeCalls();
/// The questions since the last one; they are forgotten here.
QStringList takeQuestions();

/// A value bit by bit: numbers in hexadecimal, a NaN with its bits unless they are the default ones.
QString exactBits(const QVariant& value);
QString exactBits(double number);

} // namespace RecordedCalls
