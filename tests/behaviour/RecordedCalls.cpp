#include "RecordedCalls.h"

#include <QtCore/QDebug>

#include <cmath>
#include <utility>

#include "DoubleBits.h"
#include "ExactText.h"

namespace {

QStringList& calls()
{
    static QStringList list;
    return list;
}

QStringList& queries()
{
    static QStringList list;
    return list;
}

/// Whether the number is a NaN as computations give it. Its sign depends on the processor.
bool isDefaultNan(double number)
{
    const quint64 quietNan = 0x7FF8000000000000U;
    return (bitsOf(number) << 1U) == quietNan << 1U;
}

QString listText(const QVariantList& list)
{
    QStringList texts;
    for (const QVariant& value : list)
        texts.append(RecordedCalls::exactBits(value));
    return QLatin1Char('[') + texts.join(QLatin1String(", ")) + QLatin1Char(']');
}

} // namespace

void RecordedCalls::add(const QString& call)
{
    calls().append(call);
}

void RecordedCalls::addQuery(const QString& query)
{
    queries().append(query);
}

QStringList RecordedCalls::takeCalls()
{
    return std::exchange(calls(), {});
}

QStringList RecordedCalls::takeQueries()
{
    return std::exchange(queries(), {});
}

QString RecordedCalls::exactBits(double number)
{
    if (std::isnan(number) && !isDefaultNan(number))
        return QStringLiteral("nan:") + QString::number(bitsOf(number), 16);
    return exactText(number);
}

QString RecordedCalls::exactBits(const QVariant& value)
{
    if (value.userType() == QMetaType::Double)
        return exactBits(*static_cast<const double*>(value.constData()));
    if (value.userType() == QMetaType::QVariantList)
        return listText(value.toList());
    return exactText(value);
}
