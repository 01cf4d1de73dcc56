#include "objects/objectpictures.h"

#include "look/theme.h"
#include "objects/objectmaker.h"

#include <pagehost/application.h>
#include <pagehost/objectplugin.h>
#include <pagehost/objectregistry.h>
#include <pagehost/page.h>

#include <framework/cbaseobject.h>
#include <framework/iframework.h>

#include <QtGui/QPainter>

namespace board {

namespace {

/// Around the object, logical pixels: half a thick outline.
constexpr double pictureMargin = 3;

/// Makes new objects get another pen colour for as long as it lives.
class PenColorOverride
{
public:
    explicit PenColorOverride(const QColor &color)
    {
        GetFramework()->colorSetting(IFramework::DefaultPenColor, m_before, false);
        pagehost::setColorSetting(IFramework::DefaultPenColor, false, color);
    }
    ~PenColorOverride() { pagehost::setColorSetting(IFramework::DefaultPenColor, false, m_before); }
    PenColorOverride(const PenColorOverride &) = delete;
    PenColorOverride &operator=(const PenColorOverride &) = delete;

private:
    QColor m_before;
};

QSizeF roomOf(const QSizeF &picture)
{
    return picture - QSizeF(2 * pictureMargin, 2 * pictureMargin);
}

/// Maps the object's client rectangle into the middle of the picture.
void fit(QPainter &painter, const QRectF &client, const QSizeF &picture)
{
    const QSizeF room = roomOf(picture);
    const double scale = qMin(room.width() / client.width(), room.height() / client.height());
    painter.translate(picture.width() / 2, picture.height() / 2);
    painter.scale(scale, scale);
    painter.translate(-client.center());
}

} // namespace

QPixmap pictureOfKind(const pagehost::ObjectRegistry &registry, const QString &kindId, const QSize &size,
                      double pixelRatio)
{
    const PenColorOverride pen(themeColors().shapePen);
    pagehost::Page page(nullptr);
    CBaseObject *object = makeObject(&page, registry, kindId, QPointF(0, 0));
    if (!object || object->getClientRect().isEmpty())
        return {};
    QPixmap icon;
    if (icon.loadFromData(registry.dataOf(object, QLatin1String(pagehost::iconType)))) {
        icon = icon.scaled(size * pixelRatio, Qt::KeepAspectRatio, Qt::SmoothTransformation);
        icon.setDevicePixelRatio(pixelRatio);
        return icon;
    }
    // As large as its picture, where it may be that small, so that its lines are not scaled down with it.
    object->setSize(object->getClientRect().size().scaled(roomOf(size), Qt::KeepAspectRatio), false, true);
    QPixmap picture(size * pixelRatio);
    picture.setDevicePixelRatio(pixelRatio);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    fit(painter, object->getClientRect(), size);
    object->OnQPainterDraw(&painter);
    return picture;
}

} // namespace board
