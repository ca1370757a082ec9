#include "ExactText.h"

#include <QtCore/QDebug>

#include <cmath>

QString exactText(double number)
{
    // The sign of a NaN says nothing.
    return std::isnan(number) ? QStringLiteral("nan") : QString::asprintf("%a", number);
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
