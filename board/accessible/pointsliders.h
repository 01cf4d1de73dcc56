#pragma once

#include <QtCore/QString>
#include <QtCore/QVector>

class CBaseObject;

namespace board {

class KeyHand;
class PageView;
class Workspace;

/// A number with its limits that screen readers change at a control point.
struct PointSlider
{
    enum Way {
        Meaning, ///< the number that the point sets
        Across,  ///< its place in the object, item units
        Down
    };

    int number = 0; ///< of the control point; 0 for none
    Way way = Meaning;
    QString name;
    double value = 0;
    double minimum = 0;
    double maximum = 0;
    double step = 1; ///< of an arrow key
};

/// Of all points that can be moved, in their order. A point has one for the number that it sets; one that sets
/// none, or moves both ways, has one for each way.
QVector<PointSlider> slidersOf(CBaseObject &object, PageView &view, const Workspace &workspace);
/// Number 0 where the object has none such any more.
PointSlider sliderOf(CBaseObject &object, int number, PointSlider::Way way, PageView &view,
                     const Workspace &workspace);
/// As keys do it: one undo step. Values outside of the limits become the nearest one. False where nothing can be
/// changed.
bool setSlider(CBaseObject &object, const PointSlider &slider, double value, KeyHand &keys);

} // namespace board
