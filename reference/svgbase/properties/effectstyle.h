#pragma once

#include "grammar/blendmodes.h"
#include "grammar/filterlists.h"

#include <QtCore/QSharedData>
#include <QtCore/QString>
#include <QtGui/QColor>
#include <QtGui/QPainter>

namespace Svg {

/// Channel of a mask's picture: as its own element says, or one of both (CSS Masking 1 §7.2).
enum class MaskMode : quint8 { MatchSource, Alpha, Luminance };

enum class Overflow : quint8 { Visible, Hidden };

/// Properties that few elements have and none inherits. Ids are empty where nothing is referred to.
struct EffectStyle : QSharedData
{
    QString clipPath;
    /// The text of the rectangle that a viewport is cut at instead of its box; empty for "auto".
    QString clipRect;
    /// The text of a shape that clips instead.
    QString clipShape;
    QString mask;
    MaskMode maskMode = MaskMode::MatchSource;
    /// The text of a list of filter functions and references; empty for "none".
    QString filter;
    FilterUnits filterUnits = FilterUnits::Required;
    BlendMode blendMode = BlendMode::Normal;
    bool isolated = false;
    Overflow overflow = Overflow::Visible;
    /// Of a mask: whether its alpha counts instead of its luminance.
    bool alphaMask = false;
    QColor floodColor = Qt::black;
    double floodOpacity = 1;
    QColor lightingColor = Qt::white;
};

/// Ids of the markers of an element; inherited. Empty where there is none.
struct MarkerStyle : QSharedData
{
    QString start;
    QString mid;
    QString end;
};

} // namespace Svg
