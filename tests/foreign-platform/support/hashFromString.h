#pragma once

#include <QtCore/QVariant>

/// @return the CRC-32 of the text in UTF-8.
unsigned int hashFromString(const QVariant& text);
