#pragma once

#include <framework/framework_global.h>

#include <QtGui/QColor>

class IDocument;

namespace pagehost {

/// Makes `document` the current document of the library's framework object (GetFramework()); the caller keeps
/// ownership. Null restores the built-in document, which is always editable at zoom 1. Returns the document set
/// before, null for none.
FRAMEWORK_EXPORT IDocument *setCurrentDocument(IDocument *document);

/// Sets the colour that IFramework::colorSetting() returns for `settingId` (IFramework::ColorSetting) in the
/// editing or the `presentation` theme. An invalid colour removes the setting.
FRAMEWORK_EXPORT void setColorSetting(int settingId, bool presentation, const QColor &color);

} // namespace pagehost
