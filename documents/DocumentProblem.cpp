#include "DocumentProblem.h"

#include "PrintableText.h"

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
    return '"' + PrintableText::of(text.left(longestQuotation)) +
           (text.size() > longestQuotation ? "...\"" : "\"");
}
