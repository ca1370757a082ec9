#include "KnownNames.h"

#include <optional>

#include "Console.h"
#include "SimilarName.h"

namespace {

/// The wrong characters in @p name if the nearest of @p spellings is meant.
std::optional<int> fewestSlips(const QString& name, const QStringList& spellings)
{
    std::optional<int> fewest;
    for (const QString& spelling : spellings) {
        const std::optional<int> count = SimilarName::slips(name, spelling);
        if (count && (!fewest || *count < *fewest))
            fewest = count;
    }
    return fewest;
}

QStringList nearest(const QString& name, const QVector<KnownName>& known)
{
    QStringList nearest;
    std::optional<int> fewest;
    for (const KnownName& candidate : known) {
        const std::optional<int> count = fewestSlips(name, candidate.spellings);
        if (!count || (fewest && *count > *fewest))
            continue;
        if (count != fewest)
            nearest.clear();
        fewest = count;
        nearest.append(candidate.shown);
    }
    return nearest;
}

} // namespace

QVector<KnownName> KnownNames::plain(const QStringList& names)
{
    QVector<KnownName> known;
    for (const QString& name : names)
        known.append({name, {name}});
    return known;
}

QString KnownNames::unknown(const QString& kind, const QString& name, const QString& context,
                            const QVector<KnownName>& known)
{
    return "unknown " + kind + ' ' + Console::quoted(name) + context + "; " + list(known) +
           suggestion(name, known);
}

QString KnownNames::joined(const QVector<KnownName>& known)
{
    QStringList shown;
    for (const KnownName& name : known)
        shown.append(name.shown);
    return shown.isEmpty() ? "none" : shown.join(", ");
}

QString KnownNames::list(const QVector<KnownName>& known)
{
    return "known: " + joined(known);
}

QString KnownNames::suggestion(const QString& name, const QVector<KnownName>& known)
{
    QStringList names = nearest(name, known);
    if (names.isEmpty())
        return {};
    const QString last = names.takeLast();
    return "; did you mean " + (names.isEmpty() ? last : names.join(", ") + " or " + last) + '?';
}
