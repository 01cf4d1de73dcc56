#include "panels/palettebutton.h"

#include "core/searchwords.h"
#include "look/sizes.h"
#include "page/pageview.h"

#include <QtCore/QMimeData>
#include <QtGui/QDrag>
#include <QtGui/QMouseEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QStyleOptionToolButton>
#include <QtWidgets/QStylePainter>

namespace board {

namespace {

/// How much higher than wide.
constexpr int extraHeight = 6;
constexpr int edge = 5;
/// Smaller letters cannot be read; a longer word is cut into two lines instead.
constexpr double smallestPointSize = 8;

bool fits(const QString &text, const QFont &font, const QSize &room)
{
    // Drawn letters aren't rounded: a word may be a part of a pixel wider than the sum of rounded ones.
    const QFontMetricsF metrics(font);
    const QStringList words = text.split(QLatin1Char(' '));
    for (const QString &word : words)
        if (metrics.horizontalAdvance(word) > room.width())
            return false;
    const QRectF lines = metrics.boundingRect(QRectF(0, 0, room.width(), QWIDGETSIZE_MAX), Qt::TextWordWrap, text);
    return lines.height() <= room.height();
}

/// The font, smaller where the longest word of `text` would be wider than `room`, or all of it higher.
QFont fittingFont(QFont font, const QString &text, const QSize &room)
{
    // Large letters are so many pixels high.
    if (font.pointSizeF() <= 0)
        font.setPointSizeF(QFontInfo(font).pointSizeF());
    while (!fits(text, font, room) && font.pointSizeF() > smallestPointSize)
        font.setPointSizeF(font.pointSizeF() - 0.5);
    return font;
}

} // namespace

PaletteButton::PaletteButton(const QString &kindId, const QString &name, QWidget *parent)
    : QToolButton(parent)
    , m_kindId(kindId)
{
    setText(name);
    setAccessibleName(name);
    setCheckable(true);
    setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    setFocusPolicy(Qt::StrongFocus);
}

bool PaletteButton::isFoundBy(const QString &searched) const
{
    return hasAllWords(m_searchWords, searched);
}

QSize PaletteButton::sizeHint() const
{
    const int twoLines = iconSize().height() + 2 * fontMetrics().lineSpacing() + 4 * edge;
    return {sizes().kind, qMax(sizes().kind + extraHeight, twoLines)};
}

QSize PaletteButton::nameRoom() const
{
    const QSize size = sizeHint();
    return {size.width() - 2 * edge, size.height() - iconSize().height() - 3 * edge};
}

QFont PaletteButton::nameFont() const
{
    return fittingFont(font(), text(), nameRoom());
}

/// Names are wrapped to two lines, which a tool button does not do by itself.
void PaletteButton::paintEvent(QPaintEvent *)
{
    QStylePainter painter(this);
    QStyleOptionToolButton option;
    initStyleOption(&option);
    option.text.clear();
    option.icon = QIcon();
    painter.drawComplexControl(QStyle::CC_ToolButton, option);
    const QRect inside = rect().adjusted(edge, edge, -edge, -edge);
    const QRect picture(QPoint(inside.center().x() - iconSize().width() / 2, inside.top() + edge), iconSize());
    icon().paint(&painter, picture);
    const QRect name(inside.left(), picture.bottom() + edge, inside.width(),
                     inside.bottom() - picture.bottom() - edge);
    painter.setPen(palette().color(QPalette::ButtonText));
    painter.setFont(nameFont());
    QTextOption wrapped(Qt::AlignHCenter | Qt::AlignVCenter);
    wrapped.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    painter.drawText(QRectF(name), text(), wrapped);
}

void PaletteButton::mousePressEvent(QMouseEvent *event)
{
    m_pressPos = event->pos();
    QToolButton::mousePressEvent(event);
}

void PaletteButton::mouseMoveEvent(QMouseEvent *event)
{
    const bool far = (event->pos() - m_pressPos).manhattanLength() >= QApplication::startDragDistance();
    if (far && event->buttons() & Qt::LeftButton)
        return dragOut();
    QToolButton::mouseMoveEvent(event);
}

void PaletteButton::mouseDoubleClickEvent(QMouseEvent *event)
{
    QToolButton::mouseDoubleClickEvent(event);
    Q_EMIT placeRequested();
}

void PaletteButton::keyPressEvent(QKeyEvent *event)
{
    if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter)
        return QToolButton::keyPressEvent(event);
    Q_EMIT placeRequested();
    event->accept();
}

/// A file of shapes that changes meanwhile builds the palette anew, and this button is no more when the drag ends.
void PaletteButton::dragOut()
{
    setDown(false);
    auto *data = new QMimeData;
    data->setData(kindMimeType, m_kindId.toUtf8());
    auto *drag = new QDrag(window());
    drag->setMimeData(data);
    drag->setPixmap(icon().pixmap(iconSize()));
    drag->exec(Qt::CopyAction);
}

} // namespace board
