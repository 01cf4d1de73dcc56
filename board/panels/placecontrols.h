#pragma once

#include <QtCore/QRectF>
#include <QtWidgets/QWidget>

namespace board {

class NumberField;
class Workspace;

/// Where the selection is, how large and how turned, as numbers.
class PlaceControls : public QWidget
{
    Q_OBJECT

public:
    explicit PlaceControls(const Workspace *workspace, QWidget *parent = nullptr);

    /// Shows the top-left corner of the selection's bounds (scene units).
    void showPos(const QPointF &pos);
    /// Shows the size of one object (item units) and its rotation (degrees, clockwise).
    void showForm(const QSizeF &size, double rotation);
    /// Several objects have no common size and rotation.
    void showNoForm();

Q_SIGNALS:
    void movePicked(const QPointF &delta);
    void sizePicked(const QSizeF &size);
    void rotationPicked(double degrees);

private:
    QPointF m_pos;
    NumberField *m_x;
    NumberField *m_y;
    NumberField *m_width;
    NumberField *m_height;
    NumberField *m_rotation;
};

} // namespace board
