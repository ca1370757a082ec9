#pragma once

#include <QtCore/QMap>
#include <QtCore/QMutex>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVariant>

#include <memory>

class FakeBusService;

/// The configuration service of a test: it serves the three documents, which the test may replace while it
/// runs.
class DocumentService
{
public:
    enum Document
    {
        Units,
        DefaultUnits,
        Dependencies
    };

    /// Serves the units and default units of TestDocuments, and dependencies of the key "Value".
    explicit DocumentService(const QString& address);
    ~DocumentService();
    DocumentService(const DocumentService&) = delete;
    DocumentService& operator=(const DocumentService&) = delete;

    bool isRunning() const;

    /// Puts another answer, which need not be a text, in the place of a document. Nothing is announced.
    void replace(Document document, const QVariant& answer);
    /// Announces a change of a document. The announcement has arrived in this process when the call returns;
    /// an event loop has not run. @return whether all that succeeded.
    bool announce(Document document) const;

    /// The documents asked for so far, each as "<object path> <operation> <name>", in alphabetical order.
    QStringList requests() const;
    /// What requests() gives after each of the documents was read once.
    static QStringList readsOf(const QList<Document>& documents);

private:
    mutable QMutex m_mutex;
    QMap<QString, QVariant> m_answers;
    std::unique_ptr<FakeBusService> m_service;
};
