#pragma once

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QVariant>

/// Location of a configuration: module and object on the bus, and its name. All empty: not configured.
struct SourceName
{
    QString module;
    QString object;
    QString configuration;
};

/// Reaction of the service to one read.
struct Answer
{
    enum Kind
    {
        Value, ///< replies with the value
        Error, ///< replies with an error
        Never, ///< does not reply
        Held,  ///< replies with the value when the reply is released
        Death  ///< the module leaves the bus without a reply
    };

    Kind kind = Value;
    QVariant value = {};
    SourceName changed = {}; ///< a change of this configuration is announced just before the reply
};

/// One configuration of the service, with its answers to the first read, the second and so on; the last
/// answer is also the answer to all further reads.
struct Source
{
    SourceName name;
    QList<Answer> answers;
};

/// The configurations of the service.
using World = QList<Source>;
