#pragma once

#include "text/documentfont.h"

namespace Svg {

/// The joining form of the character at an index, decided by its neighbours (Unicode §9.2).
ArabicForm arabicForm(const QString &text, int at);

} // namespace Svg
