#pragma once

#include <framework/framework_global.h>

#include <QtCore/QMap>
#include <QtCore/QString>
#include <QtCore/QVariant>
#include <QtCore/QVector>
#include <QtGui/QBrush>
#include <QtGui/QColor>

class CBaseObject;

/// Pen and fill of objects through the host base classes alone (CPSRootObject::SetAttribute and GetAttribute).
/// Every setter is one undo step, named after the property, for any number of objects, and is recorded for
/// playback; false means that no object took the value.
namespace pagehost {

/// Property ids of pen and fill.
enum StyleProperty : int {
    PenColorProperty = 5002,
    PenStyleProperty = 5003,
    PenWidthProperty = 5004,
    FillProperty = 5005
};
/// The recorded action of a changed fill: objects record its colour, a QColor, and replay a QBrush.
constexpr int FillAction = 1005;

/// The colour of the outline.
FRAMEWORK_EXPORT bool setPenColor(const QVector<CBaseObject *> &objects, const QColor &color);
/// Qt::SolidLine to Qt::DashDotDotLine.
FRAMEWORK_EXPORT bool setPenStyle(const QVector<CBaseObject *> &objects, Qt::PenStyle style);
/// Whole units, at least 1.
FRAMEWORK_EXPORT bool setPenWidth(const QVector<CBaseObject *> &objects, int width);
/// A colour with alpha 0 is "no fill".
FRAMEWORK_EXPORT bool setFill(const QVector<CBaseObject *> &objects, const QColor &color);

/// Pen and fill of an object. Each value has a flag that tells whether the object has it.
struct ObjectStyle
{
    bool hasPenColor = false;              ///< whether it has a pen colour
    QColor penColor;                       ///< of the outline
    bool hasPenStyle = false;              ///< whether it has a pen style
    Qt::PenStyle penStyle = Qt::SolidLine; ///< of the outline
    bool hasPenWidth = false;              ///< whether it has a pen width
    int penWidth = 1;                      ///< whole units
    int maxPenWidth = 1;                   ///< largest width that the object offers
    bool hasFill = false;                  ///< whether it has a fill
    QBrush fill;                           ///< of the inside
};
/// Reads pen and fill of an object; without any flag for one that has neither.
FRAMEWORK_EXPORT ObjectStyle styleOf(CBaseObject *object);

/// A look by the names of the attribute map (CPSRootObject::getAllAttributes()), with values as setAllAttributes()
/// takes them.
using StyleMap = QMap<QString, QVariant>;
/// The object's attribute map without its name, lock and position. A fill that is not a plain colour appears as its
/// first colour, no fill as a transparent colour.
FRAMEWORK_EXPORT StyleMap styleMapOf(CBaseObject *object);
/// Applies the values that each object has, as one undo step. False, without a step, when no object changes.
FRAMEWORK_EXPORT bool setStyleMap(const QVector<CBaseObject *> &objects, const StyleMap &style);

} // namespace pagehost
