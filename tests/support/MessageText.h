#pragma once

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include "LogCapture.h"

/// Represents any positive line number.
constexpr int anyLine = -1;

/// Whether positive line numbers are printed or replaced by "any".
enum class LineNumbers
{
    Exact,
    Any
};

/// A message as one line of text: level, file, line, function, category, text.
QString messageText(const LoggedMessage& message);

/// The texts of the messages, see messageText().
QStringList messageTexts(const QList<LoggedMessage>& messages, LineNumbers lineNumbers = LineNumbers::Exact);

/// The result of messageText() for a warning of the default category.
QString warningText(const QString& file, int line, const QString& function, const QString& text);
