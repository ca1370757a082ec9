#pragma once

#include <QtCore/QVariant>

#include "DeviceSupportExport.h"

/// @return the 32-bit FNV-1a hash of the UTF-8 form of @p text; the same number on every machine and in every
/// run. A variant that cannot be converted to a string counts as an empty text.
DEVICESUPPORT_EXPORT unsigned int hashFromString(const QVariant& text);
