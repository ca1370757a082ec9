#include "UnitTypeNames.h"

#include <QtCore/QRegularExpression>

#include "UnitManager.h"
#include "UnitManagerDefinitions.h"

bool UnitTypeNames::isName(const QString& text)
{
    static const QRegularExpression pattern(QStringLiteral("^[A-Za-z][A-Za-z0-9]*\\z"));
    return pattern.match(text).hasMatch();
}

QString UnitTypeNames::identifierOf(const QString& name)
{
    // No identifier of the library is the prefix alone.
    static const QString prefix = UnitManagerDefinitions::getUnitTypeUrlNoUnit().chopped(
        UnitManagerDefinitions::getUnitTypeNoUnit().size());
    return prefix + name;
}

QString UnitTypeNames::afterLastSlash(const QString& text)
{
    return text.mid(text.lastIndexOf(QLatin1Char('/')) + 1);
}

QStringList UnitTypeNames::withUnits(const UnitManager& library)
{
    QStringList names;
    for (const QString& id : library.getListofUnitTypes()) {
        if (!library.getListofUnits(id).isEmpty())
            names.append(afterLastSlash(id));
    }
    names.sort();
    return names;
}
