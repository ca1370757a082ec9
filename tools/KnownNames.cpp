#include "KnownNames.h"

#include <algorithm>
#include <cstdlib>
#include <numeric>
#include <optional>

#include "Console.h"

namespace {

/// With more wrong characters a word is a different name, not a typing error.
const int mostSlips = 2;

/// The number of insertions, deletions and replacements that turn one text into the other.
int editDistance(const QString& left, const QString& right)
{
    QVector<int> row(right.size() + 1);
    std::iota(row.begin(), row.end(), 0);
    for (int i = 0; i < left.size(); ++i) {
        int diagonal = row[0];
        row[0] = i + 1;
        for (int j = 0; j < right.size(); ++j) {
            const int replaced = diagonal + (left[i] == right[j] ? 0 : 1);
            diagonal = row[j + 1];
            row[j + 1] = std::min({replaced, row[j] + 1, diagonal + 1});
        }
    }
    return row.last();
}

/// The wrong characters in @p name if it stands for @p spelling; no value if it is a different name.
std::optional<int> slips(const QString& name, const QString& spelling)
{
    const int allowed = std::min({mostSlips, name.size() - 1, spelling.size() - 1});
    if (std::abs(name.size() - spelling.size()) > allowed)
        return {};
    const int count = editDistance(name.toLower(), spelling.toLower());
    return count <= allowed ? std::optional<int>(count) : std::nullopt;
}

/// The wrong characters in @p name if it stands for the nearest of @p spellings.
std::optional<int> fewestSlips(const QString& name, const QStringList& spellings)
{
    std::optional<int> fewest;
    for (const QString& spelling : spellings) {
        const std::optional<int> count = slips(name, spelling);
        if (count && (!fewest || *count < *fewest))
            fewest = count;
    }
    return fewest;
}

QStringList nearest(const QString& name, const QVector<KnownName>& known)
{
    QStringList nearest;
    int fewest = mostSlips;
    for (const KnownName& candidate : known) {
        const std::optional<int> count = fewestSlips(name, candidate.spellings);
        if (!count || *count > fewest)
            continue;
        if (*count < fewest)
            nearest.clear();
        fewest = *count;
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
