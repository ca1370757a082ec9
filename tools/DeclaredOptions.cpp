#include "DeclaredOptions.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QRegularExpression>

// The help is the only place where Qt's parser lists its options.
QVector<DeclaredOption> DeclaredOptions::of(const QCommandLineParser& parser)
{
    static const QRegularExpression entry(R"(^  (-[^<\n]*?)(?: <([^>]+)>)?  +(\S.*(?:\n {4,}\S.*)*)$)",
                                          QRegularExpression::MultilineOption);
    QVector<DeclaredOption> options;
    auto matches = entry.globalMatch(parser.helpText());
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        options.append({match.captured(1).split(", "), match.captured(2), match.captured(3).simplified()});
    }
    return options;
}
