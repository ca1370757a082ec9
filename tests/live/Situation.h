#pragma once

#include <QtCore/QMetaType>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include "Steps.h"
#include "World.h"

/// One row of the tables: what the world is like, what happens, and what must be seen of it.
struct Situation
{
    QString name;
    World world;
    Script script;
    /// Steps, reads and messages, in the words of Mode::expected().
    QStringList record;
    /// The modes in which it is played: those that fulfil one of these conditions.
    QStringList modes = {QStringLiteral("wrapper"), QStringLiteral("connector")};
};

Q_DECLARE_METATYPE(Situation)
