#pragma once

#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QVariant>

#include "DeviceSupportExport.h"

/// A text in several languages.
///
/// The text object passed in and returned is a map from language to text (`{"en": "bar", "de": "Bar"}`), or
/// one plain string for all languages. Languages have names like "de" or "de_AT", which must match exactly.
class DEVICESUPPORT_EXPORT TranslateableTextHelper : public QObject
{
    Q_OBJECT

public:
    /// Creates a helper without a text.
    ///
    /// @param language the language used by getText() without an argument.
    explicit TranslateableTextHelper(const QString& language, QObject* parent = nullptr);
    ~TranslateableTextHelper() override;

    /// Sets the text object; a variant that is neither a map nor a text removes the text.
    void setTranslateableTextObject(const QVariant& object);
    /// @return the text object, with the changes made by setText(); an invalid variant when there is none.
    QVariant getTranslateableTextObject() const;

    /// Sets the text of one language. A plain string is first converted to the text of the last fallback
    /// language.
    void setText(const QString& text, const QString& language);

    /// @return the text in @p language. If it is missing: that of the language without its last section ("de"
    /// for "de_AT"), then of the last fallback language, then of the alphabetically first language, then "".
    QString getText(const QString& language) const;
    /// @return the text in the language given to the constructor.
    QString getText() const;

    /// @return the language used when the requested one is missing: "en".
    static const QString& getLastFallbackLanguage();

private:
    QString m_language;
    QVariant m_object;
};
