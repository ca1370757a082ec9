#pragma once

#include <QtCore/QMap>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVariant>

/// In a program that is built with this, every polling handler does what the test has set for its object, and
/// writes down how it is used. Nothing is subscribed on a bus.
namespace ScriptedPollingHandler {

/// The parameter of the signal that has occurred, by object; objects without an entry have had none.
QMap<QString, QVariant>& occurredSignals();

/// What has been called since the last time, oldest first.
QStringList takeCalls();

} // namespace ScriptedPollingHandler
