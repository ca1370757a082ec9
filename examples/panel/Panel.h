#pragma once

#include <QtCore/QObject>
#include <QtCore/QSharedPointer>
#include <QtCore/QSize>
#include <QtQuick/QQuickItemGrabResult>
#include <QtQuick/QQuickView>

#include "DocumentStates.h"
#include "PanelTexts.h"
#include "ProcessValues.h"

/// The window of the panel and what its QML files use under the name `panel`. Needs the software renderer,
/// see useSoftwareRenderer().
class Panel : public QObject
{
    Q_OBJECT
    /// "en", "de" or "fr": language of the texts and labels, and locale of the numbers.
    Q_PROPERTY(QString language READ language WRITE setLanguage NOTIFY languageChanged)
    Q_PROPERTY(ProcessValues* process READ process CONSTANT)
    Q_PROPERTY(DocumentStates* documents READ documents CONSTANT)

public:
    /// Draws without a GPU. Call it before any window is created.
    static void useSoftwareRenderer();

    /// Creates and shows the window.
    Panel(const QString& language, const QSize& size);
    ~Panel() override;

    QString language() const;
    void setLanguage(const QString& language);
    ProcessValues* process();
    DocumentStates* documents();

    QQuickView& window();
    const QQuickView& window() const;
    /// Draws the panel into a picture, which the result has when it emits ready().
    QSharedPointer<QQuickItemGrabResult> picture() const;

Q_SIGNALS:
    void languageChanged();
    /// Emitted when the panel has its first units to show.
    void unitsAvailable();

private:
    QString m_language;
    PanelTexts m_texts;
    ProcessValues m_process;
    DocumentStates m_documents;
    QQuickView m_window;
};
