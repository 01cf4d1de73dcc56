#include "lessons/momentcard.h"

#include "look/surface.h"
#include "look/surfaceshadow.h"
#include "look/theme.h"

#include <QtGui/QPainter>
#include <QtWidgets/QLabel>
#include <QtWidgets/QStyle>
#include <QtWidgets/QVBoxLayout>

namespace board {

namespace {

/// Logical pixels.
constexpr QSize pictureRoom(160, 90);
constexpr int tipGap = 8;

} // namespace

MomentCard::MomentCard(QWidget *window)
    : QFrame(window)
    , m_picture(new QLabel(this))
    , m_caption(new QLabel(this))
{
    m_picture->setFixedSize(pictureRoom);
    m_picture->setAlignment(Qt::AlignCenter);
    m_caption->setAlignment(Qt::AlignCenter);
    m_caption->setTextFormat(Qt::PlainText);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(smallGap, smallGap, smallGap, smallGap);
    column->setSpacing(smallGap);
    column->addWidget(m_picture);
    column->addWidget(m_caption);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
    new SurfaceShadow(this, window);
}

QSize MomentCard::pictureSize() const
{
    return pictureRoom * devicePixelRatioF();
}

void MomentCard::showAt(const QPoint &tip, const QString &caption)
{
    m_caption->setText(m_caption->fontMetrics().elidedText(caption, Qt::ElideRight, pictureRoom.width()));
    adjustSize();
    const int right = parentWidget()->width() - width();
    move(qBound(0, tip.x() - width() / 2, qMax(0, right)), tip.y() - tipGap - height());
    raise();
    show();
}

void MomentCard::setPicture(const QImage &picture)
{
    QPixmap pixmap = QPixmap::fromImage(picture);
    pixmap.setDevicePixelRatio(devicePixelRatioF());
    m_picture->setPixmap(pixmap);
    update();
}

/// Of the picture, so that pages of any shape have their edge; of the room for it while there is none.
QRect MomentCard::framedRect() const
{
    const QRect room = m_picture->geometry();
    const QPixmap picture = m_picture->pixmap(Qt::ReturnByValue);
    if (picture.isNull())
        return room;
    const QSize size = picture.size() / picture.devicePixelRatio();
    return QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, size, room) & room;
}

void MomentCard::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    paintSurface(&painter, *this);
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(framedRect().adjusted(-1, -1, 0, 0));
}

} // namespace board
