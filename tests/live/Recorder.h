#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

#include "LogCapture.h"

/// Records the events of a scenario (states that the machine enters, by class name, and signals) and the
/// messages that are logged. One instance at a time.
class Recorder
{
public:
    Recorder();
    ~Recorder();
    Recorder(const Recorder&) = delete;
    Recorder& operator=(const Recorder&) = delete;

    /// Adds a signal to the events.
    void addEvent(const QString& event);
    /// Records everything that has been logged so far.
    void update();
    /// Like update(), but discards the messages that update() would add.
    void discardMessages();

    /// The events since the last takeEvents(), oldest first.
    QStringList events();
    QStringList takeEvents();
    /// The number of states entered so far.
    int enteredStates();
    /// The messages, each after its level. Equal messages in a row are one line, see repeated().
    QStringList messages();

    /// The line of a message that is logged @p count times in a row: "<count> x <message>", or only the
    /// message when it is logged once.
    static QString repeated(int count, const QString& message);

private:
    void record(bool withMessages);

    LogCapture m_capture;
    QStringList m_events;
    QStringList m_messages;
    int m_enteredStates = 0;
};
