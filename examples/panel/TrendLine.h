#pragma once

#include <QtCore/QVariantList>
#include <QtGui/QColor>
#include <QtQuick/QQuickPaintedItem>

/// A line through values at equal distances, the last one at the right edge.
class TrendLine : public QQuickPaintedItem
{
    Q_OBJECT
    Q_PROPERTY(QVariantList values MEMBER m_values NOTIFY changed)
    /// The number of values in the full width.
    Q_PROPERTY(int capacity MEMBER m_capacity NOTIFY changed)
    /// The values at the lower and upper edge.
    Q_PROPERTY(double minimum MEMBER m_minimum NOTIFY changed)
    Q_PROPERTY(double maximum MEMBER m_maximum NOTIFY changed)
    Q_PROPERTY(QColor color MEMBER m_color NOTIFY changed)
    Q_PROPERTY(double lineWidth MEMBER m_lineWidth NOTIFY changed)

public:
    TrendLine();

    void paint(QPainter* painter) override;

Q_SIGNALS:
    void changed();

private:
    QVariantList m_values;
    int m_capacity = 2;
    double m_minimum = 0.0;
    double m_maximum = 1.0;
    QColor m_color;
    double m_lineWidth = 1.0;
};
