#include "TypedNumber.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QLocale>

#include <cmath>

namespace {

const QString pointAndComma = ".,";

QString tr(const char* text)
{
    return QCoreApplication::translate("TypedNumber", text);
}

/// @return NaN for a text that is not a number
double numberIn(const QString& text, QLocale::NumberOption option)
{
    QLocale locale;
    locale.setNumberOptions(option);
    bool isNumber = false;
    const double number = locale.toDouble(text, &isNumber);
    return isNumber || std::isinf(number) ? number : qQNaN();
}

/// Why a text is not a number.
QString refusal(const QString& text)
{
    const QChar separator = QLocale().decimalPoint();
    QString corrected = text;
    for (const QChar character : pointAndComma)
        corrected.replace(character, separator);
    return std::isnan(numberIn(corrected, QLocale::RejectGroupSeparator))
               ? tr("\"%1\" is not a number.").arg(text)
               : tr("The decimal separator is \"%1\": write %2.").arg(separator).arg(corrected);
}

} // namespace

double typedNumber(const QString& typed, QString& error)
{
    const QString text = typed.trimmed();
    const QChar group = QLocale().groupSeparator();
    const QChar point = QLocale().decimalPoint();
    double number = numberIn(text, QLocale::RejectGroupSeparator);
    const bool isGrouped = std::isnan(number);
    if (isGrouped)
        number = numberIn(text, QLocale::DefaultNumberOptions);
    if (text.isEmpty())
        error = tr("Enter a number.");
    else if (std::isnan(number))
        error = refusal(text);
    else if (std::isinf(number))
        error = tr("The number is too large.");
    else if (isGrouped && pointAndComma.contains(group) && text.count(group) == 1 && !text.contains(point))
        error = tr("\"%1\" is ambiguous: write %2 or %3.")
                    .arg(text, QString(text).remove(group), QString(text).replace(group, point));
    else
        error.clear();
    return number;
}
