#pragma once

#include <QtCore/QMap>
#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtDBus/QDBusConnection>

class QDBusPendingCallWatcher;

/// What the configuration service publishes about its documents. Reads it again whenever the service starts
/// or announces a change. The bus must be running before; its restart is not detected.
class DocumentStates : public QObject
{
    Q_OBJECT
    /// Which document is refused and why: "FILE:LINE:COLUMN: REASON" or "FILE: REASON"; empty if none is.
    Q_PROPERTY(QString refusal READ refusal NOTIFY refusalChanged)

public:
    DocumentStates();

    QString refusal() const;

Q_SIGNALS:
    void refusalChanged();

private Q_SLOTS:
    void read();

private:
    void adopt(const QString& object, const QDBusPendingCallWatcher& reply);

    QDBusConnection m_bus;
    QMap<QString, QString> m_refusals; ///< by object
};
