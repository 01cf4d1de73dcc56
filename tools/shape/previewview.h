#pragma once

#include <QtWidgets/QGraphicsView>

namespace checklist {
class ShapeDriver;
}

namespace shapetool {

/// Shows a shape, and the range of each of its control points as a dashed box.
class PreviewView : public QGraphicsView
{
public:
    explicit PreviewView(QWidget *parent);
    /// `shape` may be null, and otherwise outlives the view or the next call.
    void setShape(checklist::ShapeDriver *shape);

protected:
    void drawForeground(QPainter *painter, const QRectF &area) override;

private:
    checklist::ShapeDriver *m_shape = nullptr;
};

} // namespace shapetool
