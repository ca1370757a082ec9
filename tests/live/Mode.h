#pragma once

#include <QtCore/QMetaType>
#include <QtCore/QString>
#include <QtCore/QStringList>

/// In which way a situation is played.
struct Mode
{
    /// How configurations are read.
    enum Reading
    {
        Blocking,
        Asynchronous
    };
    /// How changes are heard of; with polled ones no event loop ever runs.
    enum Changes
    {
        Delivered,
        Polled
    };
    /// What the application holds: the wrapper as devices do, the connector alone, or only its state machine,
    /// which it steps itself.
    enum Level
    {
        Wrapper,
        Connector,
        Machine
    };
    /// When the state machine enters a state that was selected: at once, or at the next step.
    enum Entry
    {
        Immediate,
        Deferred
    };

    Reading reading = Blocking;
    Changes changes = Delivered;
    Level level = Wrapper;
    Entry entry = Immediate;

    /// The mode in words: one of blocking and asynchronous, of delivered and polled, of wrapper, connector
    /// and machine, of immediate and deferred.
    QStringList words() const;

    /// Whether each word of @p condition, between blanks, is one of the mode's words.
    bool fulfils(const QString& condition) const;

    /// What a situation's record must be in this mode, of its description for all modes.
    ///
    /// A line "[words] text" stands only in modes that fulfil the words. In the text, {start} stands for the
    /// states entered by the construction, {read} for those of a read, and {noticed} for what a step shows
    /// that finds a change. Signals, written "*name", are seen by the connector's holder alone.
    QStringList expected(const QStringList& description) const;

private:
    QString expectedLine(QString text) const;
};

Q_DECLARE_METATYPE(Mode)
