#include "UnitTypeNames.h"

#include <algorithm>

#include "UnitManager.h"
#include "UnitManagerDefinitions.h"

namespace {

bool isLetter(QChar character)
{
    const QChar lowerCase = character.toLower();
    return character.unicode() < 0x80 && lowerCase >= QLatin1Char('a') && lowerCase <= QLatin1Char('z');
}

bool isLetterOrDigit(QChar character)
{
    return isLetter(character) || (character >= QLatin1Char('0') && character <= QLatin1Char('9'));
}

} // namespace

bool UnitTypeNames::isTooLong(const QString& text)
{
    const int longest = 255;
    return text.size() > longest && text.toUcs4().size() > longest;
}

bool UnitTypeNames::isUsable(const QString& text)
{
    return !text.isEmpty() && !text.contains(QLatin1Char('/')) && !isTooLong(text);
}

bool UnitTypeNames::isUsual(const QString& text)
{
    return !text.isEmpty() && isLetter(text[0]) && std::all_of(text.begin(), text.end(), isLetterOrDigit);
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
