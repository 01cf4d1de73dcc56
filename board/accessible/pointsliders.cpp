#include "accessible/pointsliders.h"

#include "core/workspace.h"
#include "page/controlpoints.h"
#include "page/nudging.h"
#include "page/pageview.h"

#include <cmath>

namespace board {

namespace {

/// Of places, as the bubble at the point shows them.
constexpr double placeSteps = 10;

double rounded(double place)
{
    return std::round(place * placeSteps) / placeSteps;
}

/// The hint without its number: "Corner radius 24" is a corner radius.
QString meaningOf(const QString &hint)
{
    QString words = hint;
    for (int i = words.size() - 1; i >= 0; --i)
        if (!words.at(i).isLetter() && !words.at(i).isSpace())
            words.remove(i, 1);
    return words.simplified();
}

PointSlider meaningSlider(const ControlPoint &point, const QPair<double, double> &ends, const QRectF &limits,
                          double step)
{
    PointSlider slider;
    slider.number = point.number;
    slider.name = meaningOf(point.hint);
    slider.value = numberIn(point.hint).value_or(0);
    slider.minimum = ends.first;
    slider.maximum = ends.second;
    const double way = point.movesAcross ? limits.width() : limits.height();
    slider.step = way > 0 ? step * (ends.second - ends.first) / way : step;
    return slider;
}

PointSlider placeSlider(const ControlPoint &point, PointSlider::Way way, const QRectF &limits, double step)
{
    const bool isAcross = way == PointSlider::Across;
    PointSlider slider;
    slider.number = point.number;
    slider.way = way;
    slider.value = rounded(isAcross ? point.place.x() : point.place.y());
    slider.minimum = rounded(isAcross ? limits.left() : limits.top());
    slider.maximum = rounded(isAcross ? limits.right() : limits.bottom());
    slider.step = step;
    return slider;
}

void addSliders(QVector<PointSlider> &sliders, const ControlPoint &point, CBaseObject &object, double step,
                const Workspace &workspace)
{
    const QRectF limits = limitsOf(point, object);
    const bool isOneWay = point.movesAcross != point.movesDown;
    const auto ends = isOneWay && numberIn(point.hint) ? valueRangeOf(object, point.number) : std::nullopt;
    const QString name = workspace.text("IDS_BOARD_POINT_NAME").arg(point.number);
    if (ends) {
        sliders.append(meaningSlider(point, *ends, limits, step));
        if (sliders.last().name.isEmpty())
            sliders.last().name = name;
        return;
    }
    if (point.movesAcross) {
        sliders.append(placeSlider(point, PointSlider::Across, limits, step));
        sliders.last().name = isOneWay ? name : workspace.text("IDS_BOARD_POINT_ACROSS").arg(name);
    }
    if (point.movesDown) {
        sliders.append(placeSlider(point, PointSlider::Down, limits, step));
        sliders.last().name = isOneWay ? name : workspace.text("IDS_BOARD_POINT_DOWN").arg(name);
    }
}

} // namespace

QVector<PointSlider> slidersOf(CBaseObject &object, PageView &view, const Workspace &workspace)
{
    QVector<PointSlider> sliders;
    if (!view.page())
        return sliders;
    const double step = keyStep(*view.page(), Qt::NoModifier);
    const QVector<ControlPoint> points = controlPointsOf(object);
    for (const ControlPoint &point : points)
        addSliders(sliders, point, object, step, workspace);
    return sliders;
}

PointSlider sliderOf(CBaseObject &object, int number, PointSlider::Way way, PageView &view,
                     const Workspace &workspace)
{
    const QVector<PointSlider> sliders = slidersOf(object, view, workspace);
    for (const PointSlider &slider : sliders)
        if (slider.number == number && slider.way == way)
            return slider;
    return {};
}

bool setSlider(CBaseObject &object, const PointSlider &slider, double value, KeyHand &keys)
{
    if (slider.number == 0 || std::isnan(value))
        return false;
    const double within = qBound(slider.minimum, value, slider.maximum);
    if (slider.way == PointSlider::Meaning)
        return keys.putValue(&object, slider.number, within);
    QPointF place = controlPointOf(object, slider.number).place;
    (slider.way == PointSlider::Across ? place.rx() : place.ry()) = within;
    return keys.putPoint(&object, slider.number, place);
}

} // namespace board
