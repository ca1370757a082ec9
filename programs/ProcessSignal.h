#pragma once

#include <QtCore/QObject>
#include <QtCore/QSocketNotifier>

#include <initializer_list>

/// Delivers signals sent to the process, such as SIGTERM, as a signal of the event loop.
///
/// The constructor blocks these signals for the rest of the process. Create one object per signal, after the
/// QCoreApplication and before any thread, because threads inherit the signal mask of their creator.
class ProcessSignal : public QObject
{
    Q_OBJECT

public:
    explicit ProcessSignal(std::initializer_list<int> signalNumbers);
    ~ProcessSignal() override;

Q_SIGNALS:
    /// The process received one of the signals.
    void received();

private:
    void receive();

    const int m_descriptor;
    QSocketNotifier m_notifier;
};
