#pragma once

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QSet>
#include <QtCore/QString>

#include <memory>

#include "ConfigurationDocument.h"

class DocumentWatcher;

/// Reads documents, and reads them again when their files change. Meant for a thread of its own, because a
/// file system may stall for a long time. Needs the event loop of its thread.
class DocumentLoader : public QObject
{
    Q_OBJECT

public:
    explicit DocumentLoader(const QList<ConfigurationDocument>& documents);
    ~DocumentLoader() override;

    /// Watches the files and reads them. Call once, in the loader's thread.
    void start();
    /// Reads the files again. Call in the loader's thread.
    void update();

Q_SIGNALS:
    /// The state of a document has changed. @param index its index in the list given to the constructor
    void stateChanged(int index, const DocumentState& state);
    /// All files have been read; stateChanged() was emitted for every document with a new state.
    void updated();

private:
    void logDisagreements();

    QList<ConfigurationDocument> m_documents;
    std::unique_ptr<DocumentWatcher> m_watcher;
    /// Those that were logged after the last update.
    QSet<QString> m_disagreements;
};
