#pragma once

#include <QtCore/QJsonObject>
#include <QtCore/QTranslator>

/// The translations of the panel's texts and of the messages of the QML module, from texts.json.
class PanelTexts : public QTranslator
{
public:
    PanelTexts();

    void setLanguage(const QString& language);

    bool isEmpty() const override;
    /// @return null for a text without translation: Qt then uses the text itself.
    QString translate(const char* context, const char* sourceText, const char* disambiguation,
                      int n) const override;

private:
    QJsonObject m_languages;
    QJsonObject m_texts;
};
