#include "Panel.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QLocale>
#include <QtQml/QQmlContext>
#include <QtQml/QQmlEngine>
#include <QtQuick/QQuickItem>
#include <QtQuick/QSGRendererInterface>

#include "TrendLine.h"

void Panel::useSoftwareRenderer()
{
    QQuickWindow::setSceneGraphBackend(QSGRendererInterface::Software);
}

Panel::Panel(const QString& language, const QSize& size)
{
    qmlRegisterType<TrendLine>("Panel", 1, 0, "TrendLine");
    QCoreApplication::installTranslator(&m_texts);
    setLanguage(language);
#ifdef UNITMANAGER_QML_DIR
    m_window.engine()->addImportPath(UNITMANAGER_QML_DIR);
#endif
    m_window.rootContext()->setContextProperty("panel", this);
    m_window.setResizeMode(QQuickView::SizeRootObjectToView);
    m_window.resize(size);
    m_window.setSource(QUrl("qrc:/panel/Main.qml"));
    m_window.show();
}

Panel::~Panel()
{
    // The bindings must not see the objects that they read disappear.
    m_window.setSource(QUrl());
    QCoreApplication::removeTranslator(&m_texts);
}

QString Panel::language() const
{
    return m_language;
}

void Panel::setLanguage(const QString& language)
{
    if (m_language == language)
        return;
    m_language = language;
    QLocale::setDefault(QLocale(language));
    m_texts.setLanguage(language);
    Q_EMIT languageChanged();
    m_window.engine()->retranslate();
}

ProcessValues* Panel::process()
{
    return &m_process;
}

DocumentStates* Panel::documents()
{
    return &m_documents;
}

QQuickView& Panel::window()
{
    return m_window;
}

const QQuickView& Panel::window() const
{
    return m_window;
}

QSharedPointer<QQuickItemGrabResult> Panel::picture() const
{
    return m_window.rootObject()->grabToImage();
}
