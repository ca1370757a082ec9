#pragma once

#include <QtCore/QVariant>

unsigned int hashFromString(const QVariant& text);
