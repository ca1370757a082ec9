#include "Corpus.h"

#include <QtCore/QDir>
#include <QtCore/QDirIterator>
#include <QtCore/QFile>

namespace {

const QString& folder()
{
    static const QString path = QDir::cleanPath(QStringLiteral(DOCUMENT_CORPUS));
    return path;
}

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", qPrintable(path));
    return file.readAll();
}

/// @param name of a folder for documents of one kind, or of a document of a device without ".json"
DocumentKind kindNamed(const QString& name)
{
    const QStringList kinds{QStringLiteral("units"), QStringLiteral("default-units"),
                            QStringLiteral("dependencies")};
    const int index = kinds.indexOf(name);
    if (index < 0)
        qFatal("%s is not a kind of document", qPrintable(name));
    return static_cast<DocumentKind>(index);
}

std::vector<CorpusFile> filesOf(const QString& entry)
{
    const QFileInfo info(folder() + '/' + entry);
    if (!info.isDir())
        return {{kindNamed(info.dir().dirName()), info.filePath()}};
    std::vector<CorpusFile> files;
    for (const QFileInfo& file : QDir(info.filePath()).entryInfoList(QDir::Files))
        files.push_back({kindNamed(file.completeBaseName()), file.filePath()});
    return files;
}

} // namespace

std::optional<JsonDocument> CorpusFile::read(Finding& finding) const
{
    DocumentProblem problem;
    std::optional<JsonDocument> document = JsonDocument::read(contentOf(path), problem);
    if (!document)
        finding = DocumentChecker::readingFinding(kind, problem);
    return document;
}

bool CorpusEntry::isDevice() const
{
    return name.startsWith(QLatin1String("devices/"));
}

std::vector<CorpusEntry> Corpus::entries()
{
    DocumentProblem problem;
    const auto expected = JsonDocument::read(contentOf(folder() + "/expected.json"), problem);
    if (!expected)
        qFatal("expected.json: %s", qPrintable(problem.withPlace()));
    std::vector<CorpusEntry> result;
    for (const JsonValue& member : expected->root().children()) {
        CorpusEntry entry{
            member.name(), filesOf(member.name()), {}, member.member(QStringLiteral("service"))->string()};
        for (const JsonValue& finding : member.member(QStringLiteral("findings"))->children())
            entry.findings.append(finding.string());
        result.push_back(entry);
    }
    return result;
}

QStringList Corpus::paths()
{
    QStringList result;
    QDirIterator files(folder(), {QStringLiteral("*.json")}, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext())
        result.append(files.next());
    result.removeOne(folder() + "/expected.json");
    result.sort();
    return result;
}

QString Corpus::textOf(const Finding& finding)
{
    const RuleDescription& rule = Rules::describe(finding.rule);
    const QString text = QStringLiteral("%1:%2 %3 %4")
                             .arg(finding.place.line)
                             .arg(finding.place.column)
                             .arg(Rules::severityName(rule.severity), QLatin1String(rule.name));
    return finding.path.isEmpty() ? text : text + ' ' + finding.path;
}
