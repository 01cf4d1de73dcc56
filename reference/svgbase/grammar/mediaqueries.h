#pragma once

#include <QtCore/QStringView>

namespace Svg {

/// Whether a list of media queries, as of a "media" attribute, includes screens (Media Queries 4 §3); an empty one
/// does. Pictures are shown on screens that have colours, are wider than high, show dark on light and are as large
/// as is asked for, however large that is.
bool includesScreens(QStringView media);

} // namespace Svg
