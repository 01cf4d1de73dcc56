#pragma once

#include "text/documentfont.h"

namespace Svg {

/// The form of the character at a place of a text, as its neighbours let it join (Unicode §9.2).
ArabicForm arabicForm(const QString &text, int at);

} // namespace Svg
