#pragma once

#include <QtCore/qglobal.h>

#if defined(SVGOBJ_STATIC)
#define SVGOBJ_EXPORT
#elif defined(SVGOBJ_LIBRARY)
#define SVGOBJ_EXPORT Q_DECL_EXPORT
#else
#define SVGOBJ_EXPORT Q_DECL_IMPORT
#endif

/// Ids of the properties that every shape may offer to the host's panels.
enum PropId : int {
    PROP_SVG_NONE = 0,       ///< never a property; result of a lookup that finds none
    PROP_SVG_DRAWSCALE = 26, ///< double, shapes of type 26 only: item units per drawn unit
    PROP_SVG_PENCOLOR = 5002,
    PROP_SVG_PENSTYLE = 5003,
    PROP_SVG_PENWIDTH = 5004,
    PROP_SVG_FILLCOLOR = 5005
};

/// Ids of recorded actions; they key undo steps and playback records.
enum ActionId : int {
    ACT_SVG_CONTROLPOINT = 1001, ///< QString node id, QPointF top-left in document units
    ACT_SVG_PENCOLOR = 1002,     ///< QColor
    ACT_SVG_PENSTYLE = 1003,     ///< qint32, a Qt::PenStyle number
    ACT_SVG_PENWIDTH = 1004,     ///< qint32, the width as applied
    ACT_SVG_FILLCOLOR = 1005     ///< recorded as QColor, replayed as QBrush
};

/// Attribute ids that are not properties: they save and restore a shape's style.
enum StyleAttributeId : int { ACT_SVG_STYLE_SNAPSHOT = 2804, ACT_SVG_STYLE_RESTORE = 2805 };
