#include "PrintableText.h"

QString PrintableText::of(QString text)
{
    for (QChar& character : text) {
        if (character == QLatin1Char('\t'))
            character = QLatin1Char(' ');
        else if (!character.isPrint() && !character.isSurrogate())
            character = QLatin1Char('?');
    }
    return text;
}
