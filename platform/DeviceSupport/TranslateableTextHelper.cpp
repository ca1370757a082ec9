#include "TranslateableTextHelper.h"

#include <algorithm>

namespace {

bool isMap(const QVariant& object)
{
    return object.canConvert(QVariant::Map);
}

/// Returns "de" for "de_AT" and "" for "de".
QString withoutLastSection(const QString& language)
{
    const int separator =
        std::max(language.lastIndexOf(QLatin1Char('_')), language.lastIndexOf(QLatin1Char('-')));
    return language.left(std::max(separator, 0));
}

} // namespace

TranslateableTextHelper::TranslateableTextHelper(const QString& language, QObject* parent)
    : QObject(parent), m_language(language)
{}

TranslateableTextHelper::~TranslateableTextHelper() = default;

void TranslateableTextHelper::setTranslateableTextObject(const QVariant& object)
{
    m_object = isMap(object) || object.userType() == QMetaType::QString ? object : QVariant();
}

QVariant TranslateableTextHelper::getTranslateableTextObject() const
{
    return m_object;
}

void TranslateableTextHelper::setText(const QString& text, const QString& language)
{
    QVariantMap texts = m_object.toMap();
    if (m_object.isValid() && !isMap(m_object))
        texts.insert(getLastFallbackLanguage(), m_object);
    texts.insert(language, text);
    m_object = texts;
}

QString TranslateableTextHelper::getText(const QString& language) const
{
    if (!isMap(m_object))
        return m_object.toString();
    const QVariantMap texts = m_object.toMap();
    for (QString wanted = language; !wanted.isEmpty(); wanted = withoutLastSection(wanted)) {
        const auto text = texts.constFind(wanted);
        if (text != texts.constEnd())
            return text->toString();
    }
    const auto fallback = texts.constFind(getLastFallbackLanguage());
    if (fallback != texts.constEnd())
        return fallback->toString();
    return texts.isEmpty() ? QString() : texts.first().toString();
}

QString TranslateableTextHelper::getText() const
{
    return getText(m_language);
}

const QString& TranslateableTextHelper::getLastFallbackLanguage()
{
    static const QString language = QStringLiteral("en");
    return language;
}
