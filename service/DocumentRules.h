#pragma once

#include "JsonDocument.h"

/// What a document must satisfy beyond JSON: the unit library must be able to load it. A document that cannot
/// be loaded would leave every application of the device without units.
///
/// Members of the root whose names begin with "@" or "$" are not entries. Each function returns whether the
/// document is valid; if not, @p problem says why.
namespace DocumentRules {

/// Requires a unit type and a unit label at least. The library's warnings about single units are logged.
bool isUnits(const JsonDocument& document, DocumentProblem& problem);

/// Requires at least one entry; each must select a unit.
bool isDefaultUnits(const JsonDocument& document, DocumentProblem& problem);

/// Requires lists of texts, each under the key that they depend on. The document may be empty.
bool isDependencies(const JsonDocument& document, DocumentProblem& problem);

} // namespace DocumentRules
