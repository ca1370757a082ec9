#pragma once

#include <QtCore/QMetaType>

/// How a scenario runs.
struct Mode
{
    /// What the application holds: the wrapper, as devices do; only the connector; or only the connector's
    /// state machine, which it steps itself.
    enum Level
    {
        Wrapper,
        Connector,
        Machine
    };

    bool isBlocking = true; ///< configurations are read with blocking calls instead of asynchronous ones
    bool isPolled = false;  ///< changes are polled, without an event loop, instead of delivered by it
    Level level = Wrapper;
    bool isDeferred = false; ///< a selected state is entered at the next step instead of at once

    bool isWrapper() const
    {
        return level == Wrapper;
    }
};

Q_DECLARE_METATYPE(Mode)
