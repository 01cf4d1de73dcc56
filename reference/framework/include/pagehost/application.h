#pragma once

#include <framework/framework_global.h>

#include <QtGui/QColor>

class IDocument;

namespace pagehost {

/// Makes `document` the one that the library's own framework object (GetFramework()) gives as the current document;
/// the caller keeps owning it. Null brings back the built-in document, which is always editable at zoom 1. Gives
/// the one that was set before, null for none.
FRAMEWORK_EXPORT IDocument *setCurrentDocument(IDocument *document);

/// Configures the colour that IFramework::colorSetting() gives for `settingId` (IFramework::ColorSetting), for the
/// editing theme or the `presentation` theme. An invalid colour takes the setting away.
FRAMEWORK_EXPORT void setColorSetting(int settingId, bool presentation, const QColor &color);

} // namespace pagehost
