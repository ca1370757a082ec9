#include "Conversion.h"

#include <QtCore/QVariant>

#include "DependencyWalker.h"
#include "UnitManagerDevice/UnitManagerDevice.h"
#include "UnitManagerDevice/UnitManagerWrapper.h"

namespace {

const QVariant twoBar(2.0);
const QString pressure = QStringLiteral("UnitManager/UnitType/Pressure");
const QString language = QStringLiteral("en");

QString line(bool isUsable, const QVariant& hectoPascal, const QVariant& shown, const QString& label)
{
    return QStringLiteral("%1: %2 HectoPascal, %3 %4 by default")
        .arg(isUsable ? QLatin1String("usable") : QLatin1String("raw"), hectoPascal.toString(),
             shown.toString(), label)
        .simplified();
}

} // namespace

QString Conversion::by(UnitManagerWrapper& wrapper)
{
    return line(wrapper, wrapper.getValue(twoBar, pressure, QStringLiteral("HectoPascal")),
                wrapper.getValue(twoBar, pressure, QString()), wrapper.getUnitText(pressure, language));
}

QString Conversion::by(const QSharedPointer<const UnitManagerDevice>& units)
{
    if (!units || !units->isValid())
        return line(false, twoBar, twoBar, QString());
    return line(true, units->getValue(twoBar, pressure, QStringLiteral("HectoPascal")),
                units->getValue(twoBar, pressure, QString()),
                units->getUnitText(pressure, language, QString()));
}

QString Conversion::dependentsBy(const QSharedPointer<DependencyWalker>& walker)
{
    QList<QVariant> visited;
    if (walker)
        walker->traverseDependencyGraph(QStringLiteral("PressureUnit"), {}, {}, visited, {}, {});
    QStringList keys;
    for (const QVariant& key : qAsConst(visited))
        keys.append(key.toString());
    return keys.isEmpty() ? QStringLiteral("none") : keys.join(QLatin1Char(' '));
}
