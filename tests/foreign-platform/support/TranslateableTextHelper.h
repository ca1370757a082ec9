#pragma once

#include <QtCore/QMap>
#include <QtCore/QString>
#include <QtCore/QVariant>

class QObject;

/// A text in several languages: a map from language to text, or one text for all languages.
class TranslateableTextHelper
{
public:
    /// @param parent ignored
    explicit TranslateableTextHelper(const QString& language, QObject* parent = nullptr);
    virtual ~TranslateableTextHelper();

    void setTranslateableTextObject(const QVariant& object);
    QVariant getTranslateableTextObject() const;
    void setText(const QString& text, const QString& language);
    /// @return the text of the language, of the language without its country, of the fallback language, or of
    /// any language; the first that exists.
    QString getText(const QString& language) const;
    static const QString& getLastFallbackLanguage();

private:
    QMap<QString, QVariant> m_texts;
    bool m_isPlain = false;
};
