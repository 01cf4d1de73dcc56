#pragma once

#include "grammar/blendmodes.h"
#include "grammar/filterlists.h"

#include <QtCore/QSharedData>
#include <QtCore/QString>
#include <QtGui/QColor>
#include <QtGui/QPainter>

namespace Svg {

/// Channel of a mask's picture: as the mask element says, or always one of both (CSS Masking 1 §7.2).
enum class MaskMode : quint8 { MatchSource, Alpha, Luminance };

enum class Overflow : quint8 { Visible, Hidden };

/// Properties that few elements have and that aren't inherited. Ids are empty without a reference.
struct EffectStyle : QSharedData
{
    QString clipPath;
    /// The text of the rectangle that clips a viewport instead of its box; empty for "auto".
    QString clipRect;
    /// The text of a basic shape that clips.
    QString clipShape;
    QString mask;
    MaskMode maskMode = MaskMode::MatchSource;
    /// The text of a list of filter functions and references; empty for "none".
    QString filter;
    FilterUnits filterUnits = FilterUnits::Required;
    BlendMode blendMode = BlendMode::Normal;
    bool isolated = false;
    Overflow overflow = Overflow::Visible;
    /// Of a mask: whether its alpha is used instead of its luminance.
    bool alphaMask = false;
    QColor floodColor = Qt::black;
    double floodOpacity = 1;
    QColor lightingColor = Qt::white;
};

/// Ids of the markers of an element; inherited. Empty without a marker.
struct MarkerStyle : QSharedData
{
    QString start;
    QString mid;
    QString end;
};

} // namespace Svg
