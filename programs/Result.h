#pragma once

#include <QtCore/QString>

#include <optional>
#include <utility>

#include "ExitCode.h"

/// The reason of a failure, as one line for the user, and the exit code that it causes.
struct Failure
{
    QString reason;
    ExitCode exitCode = Failed;
};

/// The failure of a command line that is itself invalid.
inline Failure wrongUsage(const QString& reason)
{
    return {reason, WrongUsage};
}

/// A value, or the failure that prevented it.
template <typename T>
class Result
{
public:
    Result(T given) : m_value(std::move(given)) {}
    Result(Failure given) : m_failure(std::move(given)) {}

    /// Whether there is a value.
    explicit operator bool() const
    {
        return m_value.has_value();
    }
    /// The value. Call only if there is one.
    const T& operator*() const
    {
        return *m_value;
    }
    const T* operator->() const
    {
        return &*m_value;
    }
    /// The failure; its reason is empty if there is a value.
    const Failure& error() const
    {
        return m_failure;
    }

private:
    std::optional<T> m_value;
    Failure m_failure;
};
