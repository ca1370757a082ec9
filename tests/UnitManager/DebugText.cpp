#include "DebugText.h"

QString toDebugText(const QVariant& value)
{
    if (!value.isValid())
        return QStringLiteral("invalid");
    const bool isFloating = value.userType() == QMetaType::Double || value.userType() == QMetaType::Float;
    const QString text = isFloating ? QString::number(value.toDouble(), 'g', 17) : value.toString();
    return QLatin1String(value.typeName()) + QLatin1Char(' ') + text;
}

QStringList toDebugText(const QList<QVariant>& values)
{
    QStringList texts;
    for (const QVariant& value : values)
        texts.append(toDebugText(value));
    return texts;
}
