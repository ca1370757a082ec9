#include "DocumentProblem.h"

namespace {

const int longestQuotation = 60;

} // namespace

QString DocumentProblem::inFile(const QString& path) const
{
    if (place.line == 0)
        return path + QStringLiteral(": ") + reason;
    // Not with arg(), which would replace "%1" in the path.
    return path + QStringLiteral(":%1:%2: ").arg(place.line).arg(place.column) + reason;
}

QString DocumentProblem::withPlace() const
{
    if (place.line == 0)
        return reason;
    return QStringLiteral("line %1, column %2: ").arg(place.line).arg(place.column) + reason;
}

QString DocumentProblem::quoted(const QString& text)
{
    QString shown = text.left(longestQuotation);
    for (QChar& character : shown) {
        if (!character.isPrint() && !character.isSurrogate())
            character = QLatin1Char('?');
    }
    return '"' + shown + (text.size() > longestQuotation ? "...\"" : "\"");
}
