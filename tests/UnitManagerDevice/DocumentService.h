#pragma once

#include <QtCore/QMap>
#include <QtCore/QMutex>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVariant>

#include <memory>

class FakeBusService;

/// The configuration service of a test: it serves the three documents, which the test may replace at any
/// time.
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

    /// Replaces a document by another answer, which need not be a text. Nothing is announced.
    void replace(Document document, const QVariant& answer);
    /// Announces a change of a document. On return, the announcement has arrived in this process, but no
    /// event loop has run. @return whether all that succeeded.
    bool announce(Document document) const;

    /// The requests received so far, each as "<object path> <operation> <name>", in alphabetical order.
    QStringList requests() const;
    /// The result of requests() after each of the documents was read once.
    static QStringList readsOf(const QList<Document>& documents);

private:
    mutable QMutex m_mutex;
    QMap<QString, QVariant> m_answers;
    std::unique_ptr<FakeBusService> m_service;
};
