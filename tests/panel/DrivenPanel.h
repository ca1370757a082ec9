#pragma once

#include <QtCore/QRect>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtGui/QColor>
#include <QtGui/QImage>
#include <QtQuick/QQuickItem>

#include "Panel.h"

/// The panel with the mouse and the keys of a person. Its items are found by their object names; a click
/// on a name that no visible item has ends the program.
class DrivenPanel
{
public:
    explicit DrivenPanel(const QSize& size = QSize(800, 480));

    /// Clicks into the middle of an item.
    void click(const QString& name);
    /// Presses and releases the keys of a text.
    void type(const QString& text);
    void press(Qt::Key key);

    /// The text that an item displays.
    QString text(const QString& name) const;
    /// The texts of all visible items whose names begin with @p prefix, from top to bottom.
    QStringList texts(const QString& prefix) const;
    bool isVisible(const QString& name) const;
    QColor color(const QString& name) const;
    /// The place of an item in the panel; empty if there is no such item.
    QRect place(const QString& name) const;
    /// Runs the event loop until an item displays the text. @return false if it does not within a minute
    bool waitFor(const QString& name, const QString& text) const;
    /// The names of all visible items with a text that is cut off or exceeds its item.
    QStringList clippedTexts() const;

    ProcessValues& process();
    /// @return a null image if the panel cannot be drawn
    QImage picture() const;

private:
    /// Returns when the panel is drawn, and thus all items are in their places.
    void draw();
    QList<QQuickItem*> visibleItems() const;
    QQuickItem* find(const QString& name) const;

    Panel m_panel;
};
