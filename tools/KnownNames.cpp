#include "KnownNames.h"

#include <QtCore/QVector>

#include <algorithm>
#include <numeric>

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

QString suggestion(const QString& name, const QStringList& known)
{
    QString nearest;
    int fewestSlips = std::min(mostSlips, name.size() - 1) + 1;
    for (const QString& candidate : known) {
        const int slips = editDistance(name.toLower(), candidate.toLower());
        if (slips < fewestSlips) {
            nearest = candidate;
            fewestSlips = slips;
        }
    }
    return nearest;
}

} // namespace

QString KnownNames::unknown(const QString& kind, const QString& name, const QString& context,
                            QStringList known)
{
    known.sort();
    QString reason = "unknown " + kind + ' ' + Console::quoted(name) + context + "; " + list(known);
    const QString near = suggestion(name, known);
    if (!near.isEmpty())
        reason += "; did you mean " + near + '?';
    return reason;
}

QString KnownNames::list(QStringList known)
{
    known.sort();
    return "known: " + (known.isEmpty() ? "none" : known.join(", "));
}
