#include "OutputOptions.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

#include "PrintableText.h"

namespace {

const char* const jsonName = "json";
const char* const rawName = "raw";
const char* const colorName = "color";
const char* const languageName = "language";

} // namespace

void OutputOptions::addJson(QCommandLineParser& parser, const QString& content)
{
    parser.addOption({jsonName, "Print one JSON object per line: " + content + '.'});
}

void OutputOptions::addRaw(QCommandLineParser& parser)
{
    parser.addOption(
        {rawName, "Print numbers as the shortest text that reads back the same double, without label."});
}

void OutputOptions::addLanguage(QCommandLineParser& parser)
{
    parser.addOption(
        {languageName, "Language of labels, such as de or de_AT; en when not given.", "LANGUAGE", "en"});
}

void OutputOptions::addColor(QCommandLineParser& parser)
{
    parser.addOption({colorName,
                      "When to print colors: auto (on a terminal, unless the variable NO_COLOR is set; the "
                      "default), always or never.",
                      "WHEN", "auto"});
}

QStringList OutputOptions::colorNames()
{
    // In the order of the enumeration.
    return {"auto", "always", "never"};
}

Result<Console::Color> OutputOptions::color(const QCommandLineParser& options)
{
    const int index = colorNames().indexOf(options.value(colorName));
    if (index < 0)
        return wrongUsage("--color must be auto, always or never");
    return static_cast<Console::Color>(index);
}

bool OutputOptions::isJson(const QCommandLineParser& options)
{
    return options.isSet(jsonName);
}

bool OutputOptions::isRaw(const QCommandLineParser& options)
{
    return options.isSet(rawName);
}

QString OutputOptions::language(const QCommandLineParser& options)
{
    return options.value(languageName);
}

QString OutputOptions::jsonLine(const QJsonObject& object)
{
    return escaped(QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact)));
}

QString OutputOptions::escaped(const QString& json)
{
    QString text;
    for (const QChar unit : json) {
        // Qt only escapes the first of the control characters; line breaks are not part of strings.
        if (unit == '\n' || unit.isSurrogate() || PrintableText::isPrintable(unit.unicode()))
            text += unit;
        else
            text += QStringLiteral("\\u%1").arg(unit.unicode(), 4, 16, QLatin1Char('0'));
    }
    return text;
}

QJsonValue OutputOptions::jsonText(const QString& text)
{
    return text.isEmpty() ? QJsonValue() : QJsonValue(text);
}
