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
constexpr double handleRadius = 6.5;
constexpr double grooveHeight = 4;
constexpr double markHeight = 9;
constexpr double focusGap = 3;
/// By one press of an arrow key and of a page key, milliseconds.
constexpr int keyStep = 1000;
constexpr int largeKeyStep = 5000;

} // namespace

TimeLine::TimeLine(QWidget *parent)
    : QSlider(Qt::Horizontal, parent)
{
    setSingleStep(keyStep);
    setPageStep(largeKeyStep);
    setFocusPolicy(Qt::StrongFocus);
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

void TimeLine::setMoments(const QVector<qint64> &moments)
{
    m_moments = moments;
    update();
}

QSize TimeLine::sizeHint() const
{
    return {usualWidth, sizes().timeLine};
}

QSize TimeLine::minimumSizeHint() const
{
    return {smallestWidth, sizes().timeLine};
}

QRectF TimeLine::groove() const
{
    const double side = handleRadius + focusGap;
    return {side, (height() - grooveHeight) / 2, width() - 2 * side, grooveHeight};
}

double TimeLine::xOf(qint64 time) const
{
    return maximum() > 0 ? groove().left() + groove().width() * double(time) / maximum() : groove().left();
}

void TimeLine::want(int x)
{
    const double share = (x - groove().left()) / groove().width();
    setValue(qRound(qBound(0.0, share, 1.0) * maximum()));
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
}

void TimeLine::mouseReleaseEvent(QMouseEvent *)
{
    setSliderDown(false);
}

void TimeLine::paintEvent(QPaintEvent *)
{
    const QPalette::ColorGroup group = isEnabled() ? QPalette::Active : QPalette::Disabled;
    const QColor accent = isEnabled() ? palette().color(group, QPalette::Highlight) : themeColors().border;
    const QRectF line = groove();
    const double middle = line.center().y();
    const double handle = xOf(value());
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(themeColors().border);
    painter.drawRoundedRect(line, grooveHeight / 2, grooveHeight / 2);
    for (const qint64 moment : qAsConst(m_moments)) {
        painter.setBrush(moment <= value() ? accent : themeColors().faint);
        painter.drawRect(QRectF(xOf(moment) - 0.5, middle - markHeight / 2, 1, markHeight));
    }
    painter.setBrush(accent);
    painter.drawRoundedRect(QRectF(line.topLeft(), QPointF(handle, line.bottom())), grooveHeight / 2,
                            grooveHeight / 2);
    if (!isEnabled())
        return;
    painter.drawEllipse(QPointF(handle, middle), handleRadius, handleRadius);
    if (!hasFocus())
        return;
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(accent, 1.5));
    painter.drawEllipse(QPointF(handle, middle), handleRadius + focusGap - 1, handleRadius + focusGap - 1);
}

} // namespace board
