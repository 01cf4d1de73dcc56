#include <pagehost/pagepainter.h>

#include <framework/cbaseobject.h>

#include <pagehost/page.h>
#include <pagehost/paper.h>

#include <QtGui/QPainter>

#include <cmath>

namespace pagehost {

namespace {

constexpr double mostPixels = 268435456; // 2^28

/// The page's rectangle inside `target`, as large as its aspect ratio allows.
QRectF fitted(const QSizeF &size, const QRectF &target)
{
    const QSizeF fit = size.scaled(target.size(), Qt::KeepAspectRatio);
    return {target.center() - QPointF(fit.width(), fit.height()) / 2, fit};
}

void paintObject(CBaseObject *object, QPainter *painter)
{
    painter->save();
    painter->setTransform(object->sceneTransform(), true);
    painter->setOpacity(painter->opacity() * object->effectiveOpacity());
    object->OnQPainterDraw(painter);
    painter->restore();
}

void paintPaper(const Page &page, QPainter *painter, const QRectF &target)
{
    const CPageBgProp &background = page.background();
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setClipRect(target, Qt::IntersectClip);
    painter->setOpacity(painter->opacity() * background.opacity() / 255);
    painter->translate(target.topLeft());
    painter->scale(target.width() / page.size().width(), target.height() / page.size().height());
    const QVector<PaperLines> all = paperLines(paperOf(background), page.size(), background.fillColor());
    for (const PaperLines &paper : all) {
        painter->setPen(QPen(paper.color, paper.width, Qt::SolidLine, Qt::RoundCap));
        painter->drawLines(paper.lines);
    }
    painter->restore();
}

} // namespace

void paintPageBackground(const Page *page, QPainter *painter, const QRectF &target)
{
    const CPageBgProp &background = page->background();
    const bool isPicture = background.isFillEnable() && background.fillType() == CPageBgProp::PictureFill &&
                           !background.pixmap().isNull();
    if (!isPicture) {
        painter->fillRect(target, background.createBrushByProp(target, true));
        if (paperOf(background) != Paper::Blank)
            paintPaper(*page, painter, target);
        return;
    }
    painter->save();
    painter->setRenderHint(QPainter::SmoothPixmapTransform);
    painter->setOpacity(painter->opacity() * background.opacity() / 255);
    painter->drawPixmap(target, background.pixmap(), QRectF());
    painter->restore();
}

void paintPage(Page *page, QPainter *painter, const QRectF &target)
{
    if (target.isEmpty())
        return;
    const QRectF area = fitted(page->size(), target);
    painter->save();
    painter->setClipRect(area, Qt::IntersectClip);
    painter->setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing | QPainter::SmoothPixmapTransform);
    paintPageBackground(page, painter, area);
    painter->translate(area.topLeft());
    painter->scale(area.width() / page->size().width(), area.height() / page->size().height());
    const QVector<CBaseObject *> objects = page->objects();
    for (CBaseObject *object : objects)
        if (object->isVisible())
            paintObject(object, painter);
    painter->restore();
}

QImage pageImage(Page *page, double scale)
{
    const double width = std::ceil(page->size().width() * scale);
    const double height = std::ceil(page->size().height() * scale);
    if (!std::isfinite(scale) || width < 1 || height < 1 || width * height > mostPixels || width > 32767 ||
        height > 32767)
        return {};
    QImage image(int(width), int(height), QImage::Format_ARGB32_Premultiplied);
    if (image.isNull())
        return {};
    image.fill(Qt::transparent);
    QPainter painter(&image);
    paintPage(page, &painter, image.rect());
    return image;
}

} // namespace pagehost
