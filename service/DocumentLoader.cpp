#include "DocumentLoader.h"

#include <QtCore/QStringList>

#include "DocumentWatcher.h"

DocumentLoader::DocumentLoader(const QList<ConfigurationDocument>& documents) : m_documents(documents) {}

DocumentLoader::~DocumentLoader() = default;

void DocumentLoader::start()
{
    QStringList files;
    for (const ConfigurationDocument& document : qAsConst(m_documents))
        files.append(document.path());
    // Watch before reading, so that no change is missed in between.
    m_watcher = std::make_unique<DocumentWatcher>(files, DocumentWatcher::Debounce());
    connect(m_watcher.get(), &DocumentWatcher::touched, this, &DocumentLoader::update);
    update();
}

void DocumentLoader::update()
{
    for (int index = 0; index < m_documents.size(); ++index) {
        if (m_documents[index].update())
            Q_EMIT stateChanged(index, m_documents[index].state());
    }
    Q_EMIT updated();
}
