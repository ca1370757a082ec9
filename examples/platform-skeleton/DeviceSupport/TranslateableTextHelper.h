#pragma once

#include <QtCore/QString>
#include <QtCore/QVariant>

class QObject;

class TranslateableTextHelper
{
public:
    explicit TranslateableTextHelper(const QString& language, QObject* parent = nullptr);
    virtual ~TranslateableTextHelper();

    void setTranslateableTextObject(const QVariant& object);
    QVariant getTranslateableTextObject() const;
    void setText(const QString& text, const QString& language);
    QString getText(const QString& language) const;
    static const QString& getLastFallbackLanguage();
};
