#pragma once

#include <QtCore/QPair>
#include <QtCore/QPointF>
#include <QtCore/QRectF>
#include <QtCore/QString>
#include <QtCore/QVector>

#include <optional>

class CBaseObject;

namespace pagehost {
class Page;
} // namespace pagehost

namespace board {

/// A control point of an object, item coordinates as they are seen.
struct ControlPoint
{
    int number = 0; ///< from 1
    QString hint;   ///< what it sets, in the user's language; may be empty
    QPointF place;  ///< its centre
    QPointF press;  ///< where a press takes it
    QRectF range;   ///< of its centre
    bool movesAcross = false;
    bool movesDown = false;

    bool moves() const { return movesAcross || movesDown; }
};

/// The points that users see and can move, in their order.
QVector<ControlPoint> controlPointsOf(CBaseObject &object);
/// The one with this number; number 0 when the object has none.
ControlPoint controlPointOf(CBaseObject &object, int number);
/// The range, within the page where it has no limits of its own.
QRectF limitsOf(const ControlPoint &point, const CBaseObject &object);
/// The value that it sets, or its place in the object: "120", "120; 40".
QString valueOf(const ControlPoint &point);
/// The only number of a text; none where it has several.
std::optional<double> numberIn(const QString &text);
/// The numbers in what a point that moves one way sets at the ends of its range, the smaller one first; none where
/// the shape doesn't say.
std::optional<QPair<double, double>> valueRangeOf(CBaseObject &object, int number);
/// The place that such a text names; the present one where the text is none.
QPointF placeFrom(const QString &text, const ControlPoint &point);

} // namespace board
