#include "lessons/timeline.h"

#include "look/sizes.h"
#include "look/theme.h"

#include <QtCore/QSignalBlocker>
#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>

#include <limits>

namespace board {

namespace {

constexpr int smallestWidth = 120;
constexpr int usualWidth = 320;
constexpr double handleRadius = 9;
constexpr double grooveHeight = 6;
constexpr double markHeight = 12;
constexpr double chapterGap = 4;
constexpr double focusGap = 3;
/// By one press of an arrow key and of a page key, milliseconds.
constexpr int keyStep = 1000;
constexpr int largeKeyStep = 5000;
/// Of the letters of chapters' names, of those of controls.
constexpr double captionRate = 11.0 / 13;

QFont captionFont(QFont font)
{
    font.setPixelSize(qRound(QFontInfo(font).pixelSize() * captionRate));
    return font;
}

} // namespace

TimeLine::TimeLine(QWidget *parent)
    : QSlider(Qt::Horizontal, parent)
{
    setSingleStep(keyStep);
    setPageStep(largeKeyStep);
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    // Time runs to the right in every language.
    setLayoutDirection(Qt::LeftToRight);
    // Keys and the wheel change the value; what a program sets goes through setPosition().
    connect(this, &QSlider::valueChanged, this, [this](int time) { Q_EMIT momentWanted(time); });
}

void TimeLine::setDuration(qint64 duration)
{
    const QSignalBlocker quiet(this);
    setRange(0, int(qMin<qint64>(duration, std::numeric_limits<int>::max())));
    update();
}

void TimeLine::setPosition(qint64 time)
{
    const QSignalBlocker quiet(this);
    setValue(int(qMin<qint64>(time, maximum())));
    update();
}

void TimeLine::setGestures(const QVector<Gesture> &gestures)
{
    m_gestures = gestures;
    update();
}

void TimeLine::setChapters(const QVector<Chapter> &chapters)
{
    m_chapters = chapters;
    updateGeometry();
    update();
}

/// Captions in one line.
int TimeLine::namesHeight() const
{
    return m_chapters.isEmpty() ? 0 : QFontMetrics(captionFont(font())).height();
}

QSize TimeLine::sizeHint() const
{
    return {usualWidth, sizes().timeLine + namesHeight()};
}

QSize TimeLine::minimumSizeHint() const
{
    return {smallestWidth, sizes().timeLine + namesHeight()};
}

QRectF TimeLine::groove() const
{
    const double side = handleRadius + focusGap;
    return {side, (height() + namesHeight() - grooveHeight) / 2, width() - 2 * side, grooveHeight};
}

/// Where chapters begin, as far as the one before has room for a piece, and the end.
QVector<qint64> TimeLine::bounds() const
{
    QVector<qint64> times{0};
    for (const Chapter &chapter : m_chapters)
        if (xOf(chapter.start) - xOf(times.last()) > 2 * chapterGap)
            times.append(chapter.start);
    times.append(maximum());
    return times;
}

QVector<QRectF> TimeLine::pieces() const
{
    const QRectF line = groove();
    const QVector<qint64> times = bounds();
    QVector<QRectF> pieces;
    for (int i = 0; i + 1 < times.size(); ++i) {
        const double gap = i > 0 ? chapterGap : 0;
        const double left = xOf(times.at(i)) + gap;
        pieces.append({left, line.top(), qMax(0.0, xOf(times.at(i + 1)) - left), line.height()});
    }
    return pieces;
}

double TimeLine::xOf(qint64 time) const
{
    return maximum() > 0 ? groove().left() + groove().width() * double(time) / maximum() : groove().left();
}

int TimeLine::timeAt(int x) const
{
    const double share = (x - groove().left()) / groove().width();
    return qRound(qBound(0.0, share, 1.0) * maximum());
}

void TimeLine::want(int x)
{
    setValue(timeAt(x));
}

void TimeLine::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return event->ignore();
    setSliderDown(true);
    const int before = value();
    want(event->x());
    // The knob of a lesson that isn't shown stands at its beginning, too.
    if (value() == before)
        Q_EMIT momentWanted(before);
}

void TimeLine::mouseMoveEvent(QMouseEvent *event)
{
    if (isSliderDown())
        want(event->x());
    Q_EMIT pointedAt(timeAt(event->x()), event->x());
}

void TimeLine::leaveEvent(QEvent *)
{
    Q_EMIT left();
}

void TimeLine::mouseReleaseEvent(QMouseEvent *)
{
    setSliderDown(false);
}

void TimeLine::paintEvent(QPaintEvent *)
{
    const QColor accent =
        isEnabled() ? palette().color(QPalette::Active, QPalette::Highlight) : themeColors().border;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    paintPieces(painter, accent);
    paintMarks(painter, accent);
    paintNames(painter);
    if (isEnabled())
        paintKnob(painter, accent);
}

/// Played time is in the accent.
void TimeLine::paintPieces(QPainter &painter, const QColor &accent) const
{
    const double handle = xOf(value());
    const QVector<QRectF> all = pieces();
    for (const QRectF &piece : all) {
        painter.setBrush(themeColors().border);
        painter.drawRoundedRect(piece, grooveHeight / 2, grooveHeight / 2);
        QRectF played = piece;
        played.setRight(qMin(piece.right(), handle));
        painter.setBrush(accent);
        if (played.width() > 0)
            painter.drawRoundedRect(played, grooveHeight / 2, grooveHeight / 2);
    }
}

void TimeLine::paintMarks(QPainter &painter, const QColor &accent) const
{
    const double top = groove().center().y() - markHeight / 2;
    for (const Gesture &gesture : m_gestures) {
        painter.setBrush(gesture.start <= value() ? accent : themeColors().faint);
        painter.drawRect(QRectF(xOf(gesture.start) - 0.5, top, 1, markHeight));
    }
}

/// As far as they have room; that of the chapter that is shown stands out.
void TimeLine::paintNames(QPainter &painter) const
{
    const int running = chapterAt(m_chapters, value());
    for (int i = 0; i < m_chapters.size(); ++i) {
        QFont font = captionFont(this->font());
        font.setBold(i == running);
        painter.setFont(font);
        painter.setPen(i == running ? palette().color(QPalette::Highlight) : themeColors().faint);
        const double left = xOf(m_chapters.at(i).start) + (m_chapters.at(i).start > 0 ? chapterGap : 0);
        const double right = i + 1 < m_chapters.size() ? xOf(m_chapters.at(i + 1).start) : groove().right();
        const QRectF room(left, groove().top() - markHeight / 2 - namesHeight(), right - left, namesHeight());
        painter.drawText(room, Qt::AlignLeft | Qt::AlignVCenter,
                         QFontMetrics(font).elidedText(m_chapters.at(i).name, Qt::ElideRight, int(room.width())));
    }
    painter.setPen(Qt::NoPen);
}

void TimeLine::paintKnob(QPainter &painter, const QColor &accent) const
{
    const QPointF middle(xOf(value()), groove().center().y());
    painter.setBrush(accent);
    painter.setPen(QPen(palette().color(QPalette::Window), 2));
    painter.drawEllipse(middle, handleRadius, handleRadius);
    if (!hasFocus())
        return;
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(accent, 1.5));
    painter.drawEllipse(middle, handleRadius + focusGap - 1, handleRadius + focusGap - 1);
}

} // namespace board
