#pragma once

#include <QtCore/QString>

#include "JsonText.h"

/// What a document must be beyond JSON: one that the unit library loads. A document that it does not load
/// would leave every application of the device without units.
///
/// Each function takes a JSON text without problem, and returns what is wrong with it; nothing when it is
/// good.
namespace DocumentRules {

/// At least one unit type, and at least one unit label. The library's warnings about single units are logged.
QString unitsProblem(const JsonText& json);

/// At least one entry, and each a selection of a unit.
QString defaultUnitsProblem(const JsonText& json);

/// Lists of texts, each under the key that they depend on. There may be none.
QString dependenciesProblem(const JsonText& json);

} // namespace DocumentRules
