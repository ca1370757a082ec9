#include "TranslateableTextHelper.h"

#include <QtCore/QStringList>

TranslateableTextHelper::TranslateableTextHelper(const QString& /*language*/, QObject* /*parent*/) {}

TranslateableTextHelper::~TranslateableTextHelper() = default;

void TranslateableTextHelper::setTranslateableTextObject(const QVariant& object)
{
    m_isPlain = object.userType() == QMetaType::QString;
    if (m_isPlain)
        m_texts = {{getLastFallbackLanguage(), object}};
    else
        m_texts = object.toMap();
}

QVariant TranslateableTextHelper::getTranslateableTextObject() const
{
    if (m_texts.isEmpty())
        return {};
    return m_isPlain ? m_texts.first() : QVariant(m_texts);
}

void TranslateableTextHelper::setText(const QString& text, const QString& language)
{
    m_texts.insert(language, text);
    m_isPlain = false;
}

QString TranslateableTextHelper::getText(const QString& language) const
{
    const QStringList candidates = {language, language.left(language.lastIndexOf(QLatin1Char('_'))),
                                    getLastFallbackLanguage()};
    for (const QString& candidate : candidates) {
        if (m_texts.contains(candidate))
            return m_texts.value(candidate).toString();
    }
    return m_texts.isEmpty() ? QString("") : m_texts.first().toString();
}

const QString& TranslateableTextHelper::getLastFallbackLanguage()
{
    static const QString language("en");
    return language;
}
