#include "hashFromString.h"

#include <QtCore/QByteArray>
#include <QtCore/QString>

unsigned int hashFromString(const QVariant& text)
{
    const quint32 offsetBasis = 2166136261U;
    const quint32 prime = 16777619U;
    quint32 hash = offsetBasis;
    for (const char byte : text.toString().toUtf8())
        hash = (hash ^ static_cast<unsigned char>(byte)) * prime;
    return hash;
}
