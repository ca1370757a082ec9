#include "PanelTexts.h"

#include <QtCore/QFile>
#include <QtCore/QJsonDocument>

PanelTexts::PanelTexts()
{
    QFile file(":/panel/texts.json");
    if (file.open(QIODevice::ReadOnly))
        m_languages = QJsonDocument::fromJson(file.readAll()).object();
}

void PanelTexts::setLanguage(const QString& language)
{
    m_texts = m_languages.value(language).toObject();
}

bool PanelTexts::isEmpty() const
{
    return m_languages.isEmpty();
}

QString PanelTexts::translate(const char* /*context*/, const char* sourceText, const char* /*disambiguation*/,
                              int /*n*/) const
{
    const auto text = m_texts.constFind(QString::fromUtf8(sourceText));
    return text == m_texts.constEnd() ? QString() : text->toString();
}
