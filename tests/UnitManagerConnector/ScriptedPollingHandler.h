#pragma once

#include <QtCore/QMap>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVariant>

/// In a program that links this, every polling handler behaves as the test has set for its object, and
/// records its calls. No bus subscriptions are made.
namespace ScriptedPollingHandler {

/// The parameter of the last signal, by object; objects without an entry have had no signal.
QMap<QString, QVariant>& occurredSignals();

/// The calls since the last takeCalls(), oldest first.
QStringList takeCalls();

} // namespace ScriptedPollingHandler
