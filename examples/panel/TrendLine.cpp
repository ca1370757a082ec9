#include "TrendLine.h"

#include <QtGui/QPainter>
#include <QtGui/QPolygonF>

TrendLine::TrendLine()
{
    setAntialiasing(true);
    connect(this, &TrendLine::changed, this, [this] { update(); });
}

void TrendLine::paint(QPainter* painter)
{
    const double xScale = width() / (m_capacity - 1);
    const double yScale = height() / (m_maximum - m_minimum);
    double x = width() - xScale * (m_values.size() - 1);
    QPolygonF line;
    for (const QVariant& value : qAsConst(m_values)) {
        line.append({x, (m_maximum - value.toDouble()) * yScale});
        x += xScale;
    }
    painter->setPen(QPen(m_color, m_lineWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter->drawPolyline(line);
}
