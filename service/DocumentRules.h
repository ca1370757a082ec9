#pragma once

#include <QtCore/QString>

#include "JsonText.h"

/// What a document must satisfy beyond JSON: the unit library must be able to load it. A document that cannot
/// be loaded would leave every application of the device without units.
///
/// Each function takes a JSON text without problem and returns what is wrong with the document; empty when it
/// is valid.
namespace DocumentRules {

/// Requires a unit type and a unit label at least. The library's warnings about single units are logged.
QString unitsProblem(const JsonText& json);

/// Requires at least one entry; each must select a unit.
QString defaultUnitsProblem(const JsonText& json);

/// Requires lists of texts, each under the key that they depend on. The document may be empty.
QString dependenciesProblem(const JsonText& json);

} // namespace DocumentRules
