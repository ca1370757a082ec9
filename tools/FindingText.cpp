#include "FindingText.h"

#include <array>
#include <map>

#include "CheckedDocuments.h"
#include "Console.h"

namespace {

/// A longer line would hide the findings.
const int longestLine = 160;

/// The lines of a text.
class Lines
{
public:
    explicit Lines(const QByteArray& text) : m_text(text)
    {
        m_starts.push_back(0);
        for (int at = m_text.indexOf('\n'); at >= 0; at = m_text.indexOf('\n', at + 1))
            m_starts.push_back(at + 1);
    }

    /// @param number from 1. @return empty for a line that is too long to be shown
    QString line(int number) const
    {
        const int start = m_starts[static_cast<std::size_t>(number) - 1];
        const bool isLast = static_cast<std::size_t>(number) == m_starts.size();
        const int end = isLast ? m_text.size() : m_starts[static_cast<std::size_t>(number)] - 1;
        return end - start > longestLine ? QString() : QString::fromUtf8(m_text.mid(start, end - start));
    }

private:
    const QByteArray m_text;
    std::vector<int> m_starts;
};

int colorOf(Severity severity)
{
    const std::array<int, 3> colors{31, 35, 36};
    return colors[static_cast<std::size_t>(severity)];
}

void printSource(const Lines& lines, const TextPlace& place)
{
    // A tab is one column wide, like every other character.
    const QString line = lines.line(place.line).replace('\t', ' ');
    if (line.isEmpty())
        return;
    Console::printLine("  " + line);
    Console::printLine("  " + QString(place.column - 1, ' ') + '^');
}

QString countText(int count, const QString& name)
{
    return QString::number(count) + ' ' + name + (count == 1 ? "" : "s");
}

void printSummary(const std::vector<Finding>& findings)
{
    std::array<int, 3> counts{};
    for (const Finding& finding : findings)
        ++counts[static_cast<std::size_t>(Rules::describe(finding.rule).severity)];
    if (findings.empty())
        Console::printLine("no findings");
    else
        Console::printLine(countText(counts[0], "error") + ", " + countText(counts[1], "warning") + ", " +
                           countText(counts[2], "note"));
}

} // namespace

void FindingText::print(const std::vector<Finding>& findings, const CheckedDocuments& documents)
{
    std::map<DocumentKind, Lines> linesByDocument;
    for (const Finding& finding : findings) {
        const RuleDescription& rule = Rules::describe(finding.rule);
        const QString file = documents.name(finding.document);
        Console::printHighlighted(file +
                                      QString(":%1:%2: ").arg(finding.place.line).arg(finding.place.column),
                                  Rules::severityName(rule.severity), colorOf(rule.severity),
                                  ": " + finding.text() + " [" + rule.name + ']');
        const auto lines =
            linesByDocument.try_emplace(finding.document, documents.text(finding.document)).first;
        printSource(lines->second, finding.place);
    }
    printSummary(findings);
}
