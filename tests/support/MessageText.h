#pragma once

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include "LogCapture.h"

/// Stands for a line number that is positive, whichever.
constexpr int anyLine = -1;

/// Whether line numbers are written out, or replaced by "any" where they are positive.
enum class LineNumbers
{
    Exact,
    Any
};

/// Everything about a message in one line of text: level, file, line, function, category, text.
QString messageText(const LoggedMessage& message);

/// The messages one by one.
QStringList messageTexts(const QList<LoggedMessage>& messages, LineNumbers lineNumbers = LineNumbers::Exact);

/// The text that messageText() gives for a warning of the default category.
QString warningText(const QString& file, int line, const QString& function, const QString& text);
