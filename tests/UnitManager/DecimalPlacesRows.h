#pragma once

/// Adds the columns and rows for queries of decimal places, which core and facade answer alike: unitType,
/// unit, found, places (77 when not found) and messages.
void addDecimalPlacesRows();
