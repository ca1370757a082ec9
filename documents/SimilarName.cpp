#include "SimilarName.h"

#include <QtCore/QVector>

#include <algorithm>
#include <cstdlib>
#include <numeric>

namespace {

/// With more wrong characters a word is a different name, not a typing error.
const int mostSlips = 2;
/// Longer words are not compared, because the time grows with the square of the length.
const int longestName = 200;
/// From more names nothing is suggested: thousands of misspelt names would take minutes.
const int mostNames = 1000;

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

} // namespace

std::optional<int> SimilarName::slips(const QString& name, const QString& meant)
{
    const int allowed = std::min({mostSlips, name.size() - 1, meant.size() - 1});
    if (name.size() > longestName || std::abs(name.size() - meant.size()) > allowed)
        return {};
    const int count = editDistance(name.toLower(), meant.toLower());
    return count <= allowed ? std::optional<int>(count) : std::nullopt;
}

QString SimilarName::of(const QString& name, const QStringList& known)
{
    if (known.size() > mostNames)
        return {};
    QString nearest;
    std::optional<int> fewest;
    for (const QString& candidate : known) {
        const std::optional<int> count = slips(name, candidate);
        if (count && (!fewest || *count < *fewest)) {
            nearest = candidate;
            fewest = count;
        }
    }
    return nearest;
}
