#pragma once

#include <QtCore/QStringView>

namespace Svg {

/// Whether a list of media queries, as of a "media" attribute, includes screens (Media Queries 4 §3); an empty one
/// does. Pictures are shown on screens in landscape format with colours, dark on light, that satisfy every
/// condition on their size.
bool includesScreens(QStringView media);

} // namespace Svg
