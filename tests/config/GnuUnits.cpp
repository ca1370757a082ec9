#include "GnuUnits.h"

GnuUnits::GnuUnits()
    : ConversionProgram(QStringLiteral("units"), {QStringLiteral("--quiet"), QStringLiteral("--terse"),
                                                  QStringLiteral("--output-format"), QStringLiteral("%.17g")})
{}

QString GnuUnits::query(const Conversion& conversion) const
{
    // name(value) multiplies by a plain unit, or calls a function such as tempC.
    return QStringLiteral("%1(%2)\n%3\n").arg(conversion.from, numberText(conversion.value), conversion.to);
}

QStringList GnuUnits::answers(const QString& output) const
{
    return output.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

double GnuUnits::deviation(const QString& answer, const Conversion& conversion, bool* ok) const
{
    return answer.toDouble(ok) - conversion.result;
}
