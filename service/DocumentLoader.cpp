#include "DocumentLoader.h"

#include <QtCore/QStringList>

#include "DocumentWatcher.h"
#include "FindingLog.h"

DocumentLoader::DocumentLoader(const QList<ConfigurationDocument>& documents) : m_documents(documents) {}

DocumentLoader::~DocumentLoader() = default;

void DocumentLoader::start()
{
    QStringList files;
    for (const ConfigurationDocument& document : qAsConst(m_documents))
        files.append(document.paths());
    // Watch before reading, so that no change is missed in between.
    m_watcher = std::make_unique<DocumentWatcher>(files, DocumentWatcher::Debounce());
    connect(m_watcher.get(), &DocumentWatcher::touched, this, &DocumentLoader::update);
    update();
}

void DocumentLoader::update()
{
    bool hasNewText = false;
    for (int index = 0; index < m_documents.size(); ++index) {
        const QString text = m_documents[index].state().text;
        if (!m_documents[index].update())
            continue;
        hasNewText = hasNewText || m_documents[index].state().text != text;
        Q_EMIT stateChanged(index, m_documents[index].state());
    }
    if (hasNewText)
        logDisagreements();
    Q_EMIT updated();
}

/// Logs where the active documents do not fit together, such as a default unit that does not exist. What was
/// logged after the last update is not repeated.
void DocumentLoader::logDisagreements()
{
    DocumentSet set;
    for (const ConfigurationDocument& document : qAsConst(m_documents)) {
        DocumentProblem unused;
        set.of(document.kind()) = JsonDocument::read(document.state().text.toUtf8(), unused);
    }
    QSet<QString> disagreements;
    for (const Finding& finding : DocumentChecker::check(set, {})) {
        if (Rules::describe(finding.rule).scope != Scope::Documents)
            continue;
        disagreements.insert(finding.text());
        if (m_disagreements.contains(finding.text()))
            continue;
        for (const ConfigurationDocument& document : qAsConst(m_documents)) {
            if (document.kind() == finding.document)
                FindingLog::writeWarning(document.name(), document.path(), finding);
        }
    }
    m_disagreements = disagreements;
}
