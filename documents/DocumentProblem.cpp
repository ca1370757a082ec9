#include "DocumentProblem.h"

#include "PrintableText.h"

namespace {

const int longestQuotation = 60;

} // namespace

QString DocumentProblem::inFile(const QString& path) const
{
    // Not with arg(), which would replace "%1" in the path.
    const QString position =
        place.line == 0 ? QString() : QStringLiteral(":%1:%2").arg(place.line).arg(place.column);
    return PrintableText::of(path + position + ": " + reason);
}

QString DocumentProblem::withPlace() const
{
    const QString position = place.line == 0
                                 ? QString()
                                 : QStringLiteral("line %1, column %2: ").arg(place.line).arg(place.column);
    return PrintableText::of(position + reason);
}

QString DocumentProblem::quoted(const QString& text)
{
    const QString shown = PrintableText::of(text.left(longestQuotation));
    return '"' + shown + (text.size() > longestQuotation ? "...\"" : "\"");
}
