#include "hashFromString.h"

#include <QtCore/QByteArray>

unsigned int hashFromString(const QVariant& text)
{
    unsigned int crc = 0xFFFFFFFFU;
    const QByteArray bytes = text.toString().toUtf8();
    for (const char byte : bytes) {
        crc ^= static_cast<unsigned char>(byte);
        for (int bit = 0; bit < 8; ++bit)
            crc = (crc >> 1U) ^ ((crc & 1U) ? 0xEDB88320U : 0U);
    }
    return ~crc;
}
