#pragma once

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QVariant>

/// Where a configuration is found: module and object on the bus, and its name. All empty: not configured.
struct SourceName
{
    QString module;
    QString object;
    QString configuration;

    QString path() const
    {
        return QLatin1Char('/') + object;
    }
};

inline bool operator==(const SourceName& left, const SourceName& right)
{
    return left.module == right.module && left.object == right.object &&
           left.configuration == right.configuration;
}

/// What the service does with one read.
struct Answer
{
    enum Kind
    {
        Value, ///< replies with the value
        Error, ///< replies with an error
        Never, ///< stays silent
        Held,  ///< replies with the value when it is told to
        Death  ///< leaves the bus without a reply
    };

    Kind kind = Value;
    QVariant value;
    SourceName changed; ///< the configuration that is announced to have changed, just before

    static Answer with(const QVariant& value)
    {
        return {Value, value, {}};
    }
    static Answer held(const QVariant& value)
    {
        return {Held, value, {}};
    }
    static Answer afterChange(const SourceName& changed, const QVariant& value)
    {
        return {Value, value, changed};
    }
    static Answer of(Kind kind)
    {
        return {kind, QVariant(), {}};
    }
};

/// One configuration that the service has, and its answers to the first read, the second and so on; the last
/// one serves all further reads.
struct Source
{
    SourceName name;
    QList<Answer> answers;
};

/// What the application meets on the bus.
struct World
{
    QList<Source> sources;
    QStringList absentModules; ///< modules that are not on the bus at first
    bool hasBus = true;
    int callTimeout = 60000; ///< milliseconds after which the application gives up a call
};
