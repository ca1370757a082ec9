#include "PrintableText.h"

#include <algorithm>

bool PrintableText::isPrintable(uint character)
{
    const bool isJoinerOrMark = character >= 0x200C && character <= 0x200F;
    switch (QChar::category(character)) {
    case QChar::Other_Control:
    case QChar::Other_Surrogate:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return false;
    case QChar::Other_Format:
        return isJoinerOrMark;
    default:
        return true;
    }
}

QString PrintableText::of(const QString& text)
{
    // Most text needs no change; surrogates are examined in pairs below.
    const auto isPlain = [](QChar unit) {
        return isPrintable(unit.unicode());
    };
    if (std::all_of(text.begin(), text.end(), isPlain))
        return text;

    QString shown;
    for (int i = 0; i < text.size(); ++i) {
        uint character = text[i].unicode();
        const bool isPair = text[i].isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate();
        if (isPair)
            character = QChar::surrogateToUcs4(text[i], text[i + 1]);
        shown += isPrintable(character) ? text.mid(i, isPair ? 2 : 1) : QStringLiteral("?");
        i += isPair ? 1 : 0;
    }
    return shown;
}
