#include "Udunits.h"

#include <QtCore/QRegularExpression>

#include <cmath>

Udunits::Udunits() : ConversionProgram(QStringLiteral("udunits2"), {}) {}

bool Udunits::isAnswerable(const Conversion& conversion) const
{
    constexpr double smallestOrigin = 1e-14;
    return conversion.result == 0.0 || std::abs(conversion.result) >= smallestOrigin;
}

QString Udunits::query(const Conversion& conversion) const
{
    return QStringLiteral("%1 %2\n%3 @ %4\n")
        .arg(numberText(conversion.value), conversion.from, conversion.to, numberText(conversion.result));
}

QStringList Udunits::answers(const QString& output) const
{
    QStringList texts = output.split(QStringLiteral("You have: You want:"));
    // The text before the first query is empty; the last answer is followed by another prompt.
    texts.removeFirst();
    return texts;
}

double Udunits::deviation(const QString& answer, const Conversion&, bool* ok) const
{
    // "1 bar = 2.5e-13 (hPa @ 1000)", or "1 bar = 1000 hPa" if the origin is zero.
    static const QRegularExpression firstLine(QStringLiteral("\\A[^\\n]* = (\\S+) "));
    return firstLine.match(answer).captured(1).toDouble(ok);
}
