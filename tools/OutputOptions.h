#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

#include "Console.h"
#include "Result.h"

class QCommandLineParser;
class QJsonObject;
class QJsonValue;

/// The options for the output format, shared by all verbs that have them.
namespace OutputOptions {

/// Declares --json. @param content the content of an object, for the help
void addJson(QCommandLineParser& parser, const QString& content);
/// Declares --raw.
void addRaw(QCommandLineParser& parser);
/// Declares --language.
void addLanguage(QCommandLineParser& parser);

/// Declares --color.
void addColor(QCommandLineParser& parser);
/// The values of --color.
QStringList colorNames();
/// When output is colored. @return a failure if the value of --color is not valid
Result<Console::Color> color(const QCommandLineParser& options);

bool isJson(const QCommandLineParser& options);
bool isRaw(const QCommandLineParser& options);
QString language(const QCommandLineParser& options);

/// An object as one line, without line break; characters that are not printable are escaped.
QString jsonLine(const QJsonObject& object);
/// JSON with characters that are not printable escaped.
QString escaped(const QString& json);
/// The text; null if it is empty.
QJsonValue jsonText(const QString& text);

} // namespace OutputOptions
