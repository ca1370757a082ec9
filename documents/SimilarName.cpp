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

/// The number of insertions, deletions and replacements that turn one text into the other; a larger number
/// than @p most if more are needed. Only cells that @p most steps can reach are computed.
int editDistance(const QString& left, const QString& right, int most)
{
    QVector<int> row(right.size() + 1);
    std::iota(row.begin(), row.end(), 0);
    for (int i = 0; i < left.size(); ++i) {
        const int first = std::max(0, i - most);
        const int end = std::min(right.size(), i + most + 1);
        int diagonal = row[first];
        row[first] = first == 0 ? i + 1 : most + 1;
        int fewest = row[first];
        for (int j = first; j < end; ++j) {
            const int replaced = diagonal + (left[i] == right[j] ? 0 : 1);
            diagonal = row[j + 1];
            row[j + 1] = std::min({replaced, row[j] + 1, diagonal + 1});
            fewest = std::min(fewest, row[j + 1]);
        }
        if (fewest > most)
            return fewest;
    }
    return row.last();
}

} // namespace

std::optional<int> SimilarName::slips(const QString& name, const QString& meant)
{
    const int allowed = std::min({mostSlips, name.size() - 1, meant.size() - 1});
    if (name.size() > longestName || std::abs(name.size() - meant.size()) > allowed)
        return {};
    const int count = editDistance(name.toLower(), meant.toLower(), allowed);
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
