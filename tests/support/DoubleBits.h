#pragma once

#include <QtCore/QtGlobal>

#include <cstring>

/// The bits of a number, which distinguish every NaN and the signs of zero.
inline quint64 bitsOf(double number)
{
    quint64 bits = 0;
    std::memcpy(&bits, &number, sizeof bits);
    return bits;
}

/// The number with the given bits.
inline double doubleFromBits(quint64 bits)
{
    double number = 0.0;
    std::memcpy(&number, &bits, sizeof number);
    return number;
}
