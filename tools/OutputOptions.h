#pragma once

#include <QtCore/QString>

class QCommandLineParser;
class QJsonObject;
class QJsonValue;

/// The options that choose the form of what is printed, the same for every verb that has them.
namespace OutputOptions {

/// Declares --json. @p content is what an object holds, for the help.
void addJson(QCommandLineParser& parser, const QString& content);
/// Declares --raw.
void addRaw(QCommandLineParser& parser);
/// Declares --language.
void addLanguage(QCommandLineParser& parser);

bool isJson(const QCommandLineParser& options);
bool isRaw(const QCommandLineParser& options);
QString language(const QCommandLineParser& options);

/// An object as one line, without its end.
QString jsonLine(const QJsonObject& object);
/// The text; null for an empty one.
QJsonValue jsonText(const QString& text);

} // namespace OutputOptions
