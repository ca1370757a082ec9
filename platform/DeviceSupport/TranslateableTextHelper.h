#pragma once

#include "DeviceSupportExport.h"

#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QVariant>

/// A text in several languages.
///
/// The text object that it reads and gives back is a map from language to text (`{"en": "bar", "de":
/// "Bar"}`), or one plain string that serves every language. Languages are named as in "de" or "de_AT",
/// exactly spelled.
class DEVICESUPPORT_EXPORT TranslateableTextHelper : public QObject
{
    Q_OBJECT

public:
    /// Starts with no text at all.
    ///
    /// @param language the language of getText() without argument.
    explicit TranslateableTextHelper(const QString& language, QObject* parent = nullptr);
    ~TranslateableTextHelper() override;

    /// Takes over a text object; a variant that is neither a map nor a text leaves no text at all.
    void setTranslateableTextObject(const QVariant& object);
    /// @return the text object: the one taken over, with what setText() has put into it; an invalid variant
    /// when there is none.
    QVariant getTranslateableTextObject() const;

    /// Sets the text of one language. A plain string becomes the text of the last fallback language before
    /// that.
    void setText(const QString& text, const QString& language);

    /// @return the text in @p language. Where it is missing: that of the language without its last section
    /// ("de" for "de_AT"), then of the last fallback language, then of the alphabetically first language,
    /// then "".
    QString getText(const QString& language) const;
    /// @return the text in the language given to the constructor.
    QString getText() const;

    /// @return the language that serves when the wanted one is missing: "en".
    static const QString& getLastFallbackLanguage();

private:
    QString m_language;
    QVariant m_object;
};
