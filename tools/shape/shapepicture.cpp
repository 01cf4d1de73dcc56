#include "shape/shapepicture.h"

#include <checklist/shapedriver.h>

#include <svgobj/csvgobj.h>

#include <pagehost/commands.h>

#include <QtGui/QPainter>
#include <QtWidgets/QUndoStack>

#include <algorithm>
#include <functional>

namespace shapetool {

namespace {

using checklist::ShapeDriver;
using checklist::Subject;

/// Pixels around a picture, for lines that leave the frame.
constexpr int margin = 12;
/// The longer side of a form on a sheet, pixels; larger ones are scaled.
constexpr int cellSide = 160;

QImage picture(const ShapeDriver &shape)
{
    const QRectF area = shape.object().getClientRect().adjusted(-margin, -margin, margin, margin);
    QImage image(area.size().toSize(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(-area.topLeft());
    shape.object().OnQPainterDraw(&painter);
    return image;
}

/// A picture of a new object that something was done to.
QImage pictureAfter(const Subject &subject, const std::function<void(ShapeDriver &)> &edit)
{
    ShapeDriver shape(subject.plugin, subject.kindId);
    shape.createByClick();
    edit(shape);
    shape.object().setSelected(false);
    return picture(shape);
}

QVector<QImage> sizesOf(const Subject &subject)
{
    QVector<QImage> row;
    for (const QSizeF &factor : {QSizeF(1, 1), QSizeF(0.3, 0.3), QSizeF(2, 1), QSizeF(1, 2), QSizeF(2, 2)})
        row.append(pictureAfter(subject, [&](ShapeDriver &shape) {
            const QSizeF size = shape.object().getClientRect().size();
            shape.object().setSize({size.width() * factor.width(), size.height() * factor.height()}, false, true);
        }));
    return row;
}

QVector<QImage> mirrorsOf(const Subject &subject)
{
    QVector<QImage> row;
    for (int mirror = 0; mirror < 4; ++mirror)
        row.append(pictureAfter(subject, [&](ShapeDriver &shape) {
            if (mirror & 1)
                pagehost::mirrorObjects({&shape.object()}, true);
            if (mirror & 2)
                pagehost::mirrorObjects({&shape.object()}, false);
        }));
    return row;
}

QVector<QImage> extremesOf(const Subject &subject, int number)
{
    QVector<QImage> row;
    for (const QPointF &way : {QPointF(-1, -1), QPointF(1, -1), QPointF(-1, 1), QPointF(1, 1)})
        row.append(pictureAfter(subject, [&](ShapeDriver &shape) {
            const QSizeF size = shape.object().getClientRect().size();
            shape.select();
            shape.dragControlPoint(number, {way.x() * size.width(), way.y() * size.height()});
        }));
    return row;
}

} // namespace

QImage pictureOf(const Subject &subject)
{
    return pictureAfter(subject, [](ShapeDriver &) {});
}

QImage sheetOf(const Subject &subject)
{
    QVector<QVector<QImage>> rows{sizesOf(subject), mirrorsOf(subject)};
    ShapeDriver shape(subject.plugin, subject.kindId);
    for (int number = 1; number <= shape.controlPointCount(); ++number)
        rows.append(extremesOf(subject, number));
    int columns = 0;
    for (const QVector<QImage> &row : qAsConst(rows))
        columns = std::max(columns, row.size());
    constexpr int cell = cellSide + 2 * margin;
    QImage sheet(columns * cell, rows.size() * cell, QImage::Format_ARGB32_Premultiplied);
    sheet.fill(Qt::white);
    QPainter painter(&sheet);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    for (int row = 0; row < rows.size(); ++row) {
        for (int column = 0; column < rows.at(row).size(); ++column) {
            const QImage &form = rows.at(row).at(column);
            const bool isLarge = form.width() > cell || form.height() > cell;
            const QImage fitted =
                isLarge ? form.scaled(cell, cell, Qt::KeepAspectRatio, Qt::SmoothTransformation) : form;
            painter.drawImage(column * cell + (cell - fitted.width()) / 2,
                              row * cell + (cell - fitted.height()) / 2, fitted);
        }
    }
    return sheet;
}

} // namespace shapetool
