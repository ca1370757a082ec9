#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

#include "LogCapture.h"

/// What a run shows: a line for each step, the states that the machine entered, signals, messages. One at a
/// time.
class Journal
{
public:
    Journal();
    ~Journal();
    Journal(const Journal&) = delete;
    Journal& operator=(const Journal&) = delete;

    /// Notes a signal among the states entered.
    static void noteSignal(const QString& name);

    /// Adds a line "<step>: <states and signals since the last line> = <result>".
    void addStep(const QString& step, const QString& result);
    /// Adds a line "<step>: <result>".
    void addAnswer(const QString& step, const QString& result);
    /// Takes in what has been logged so far.
    void update();
    /// Forgets the messages logged since the last update().
    void dropMessages();

    /// States and signals since the last step.
    QStringList events();
    /// How many states were entered so far.
    int enteredStates();

    /// The lines so far; what came after the last step in a line "end: <states and signals>".
    QStringList takeLines();
    /// The messages, each behind its level; how often one came in a row stands in front.
    QStringList messages() const;

private:
    void takeIn(bool withMessages);

    LogCapture m_capture;
    QStringList m_lines;
    QStringList m_events;
    QStringList m_messages;
    int m_enteredStates = 0;
};
