#include "DrivenPanel.h"

#include <QtTest/QSignalSpy>
#include <QtTest/QTest>

#include <algorithm>

#include "WaitLimit.h"

namespace {

void addVisible(QQuickItem* item, QList<QQuickItem*>& items)
{
    if (!item->isVisible())
        return;
    items.append(item);
    for (QQuickItem* child : item->childItems())
        addVisible(child, items);
}

double top(const QQuickItem* item)
{
    return item->mapToScene(QPointF(0, 0)).y();
}

} // namespace

DrivenPanel::DrivenPanel(const QSize& size) : m_panel("en", size) {}

QList<QQuickItem*> DrivenPanel::visibleItems() const
{
    QList<QQuickItem*> items;
    addVisible(m_panel.window().contentItem(), items);
    return items;
}

QQuickItem* DrivenPanel::find(const QString& name) const
{
    for (QQuickItem* item : visibleItems()) {
        if (item->objectName() == name)
            return item;
    }
    return nullptr;
}

void DrivenPanel::click(const QString& name)
{
    const QQuickItem* item = find(name);
    if (!item)
        qFatal("there is no item %s to click on", qPrintable(name));
    const QPointF middle = item->mapToScene(QPointF(item->width() / 2, item->height() / 2));
    QTest::mouseClick(&m_panel.window(), Qt::LeftButton, Qt::NoModifier, middle.toPoint());
    draw();
}

void DrivenPanel::type(const QString& text)
{
    for (const QChar character : text)
        QTest::keyClick(&m_panel.window(), character.toLatin1());
    draw();
}

void DrivenPanel::press(Qt::Key key)
{
    QTest::keyClick(&m_panel.window(), key);
    draw();
}

void DrivenPanel::draw()
{
    QSignalSpy drawn(&m_panel.window(), &QQuickWindow::frameSwapped);
    m_panel.window().update();
    if (!drawn.wait(waitLimit))
        qFatal("the panel is not drawn");
}

QString DrivenPanel::text(const QString& name) const
{
    const QQuickItem* item = find(name);
    return item ? item->property("text").toString() : QString();
}

QStringList DrivenPanel::texts(const QString& prefix) const
{
    QList<QQuickItem*> items = visibleItems();
    std::stable_sort(items.begin(), items.end(),
                     [](const QQuickItem* left, const QQuickItem* right) { return top(left) < top(right); });
    QStringList texts;
    for (const QQuickItem* item : items) {
        if (item->objectName().startsWith(prefix))
            texts.append(item->property("text").toString());
    }
    return texts;
}

bool DrivenPanel::isVisible(const QString& name) const
{
    return find(name);
}

QColor DrivenPanel::color(const QString& name) const
{
    const QQuickItem* item = find(name);
    return item ? item->property("color").value<QColor>() : QColor();
}

QRect DrivenPanel::place(const QString& name) const
{
    const QQuickItem* item = find(name);
    return item ? item->mapRectToScene(item->boundingRect()).toRect() : QRect();
}

bool DrivenPanel::waitFor(const QString& name, const QString& text) const
{
    return QTest::qWaitFor([&] { return this->text(name) == text; }, waitLimit);
}

QStringList DrivenPanel::clippedTexts() const
{
    const QRectF window(QPointF(0, 0), m_panel.window().size());
    QStringList clipped;
    for (const QQuickItem* item : visibleItems()) {
        const bool isText = item->inherits("QQuickText") || item->inherits("QQuickTextInput");
        if (!isText || item->property("text").toString().isEmpty())
            continue;
        const bool isCut = item->property("truncated").toBool() ||
                           item->property("contentWidth").toDouble() > item->width() + 0.5 ||
                           item->property("contentHeight").toDouble() > item->height() + 0.5;
        if (isCut || !window.contains(item->mapRectToScene(item->boundingRect())))
            clipped.append(item->objectName() + ": " + item->property("text").toString());
    }
    return clipped;
}

ProcessValues& DrivenPanel::process()
{
    return *m_panel.process();
}

QImage DrivenPanel::picture() const
{
    const auto picture = m_panel.picture();
    QSignalSpy ready(picture.data(), &QQuickItemGrabResult::ready);
    return ready.wait(waitLimit) ? picture->image() : QImage();
}
