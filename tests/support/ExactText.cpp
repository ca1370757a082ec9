#include "ExactText.h"

#include <QtCore/QDebug>

#include <cmath>
#include <sstream>

QString exactText(double number)
{
    // The sign of a NaN is not significant.
    if (std::isnan(number))
        return QStringLiteral("nan");
    std::ostringstream text; // QString::asprintf() treats "%a" as "%f"
    text << std::hexfloat << number;
    return QString::fromStdString(text.str());
}

QString exactText(const QVariant& value)
{
    if (value.userType() == QMetaType::Double || value.userType() == QMetaType::Float)
        return QLatin1String(value.typeName()) + QLatin1Char(' ') + exactText(value.toDouble());
    QString text;
    QDebug(&text).nospace() << value;
    return text;
}

QStringList exactTexts(const QVector<double>& numbers)
{
    QStringList texts;
    for (const double number : numbers)
        texts.append(exactText(number));
    return texts;
}
