#pragma once

#include <QtCore/QStringList>

namespace board {

/// Families of letters that the machine has, by name: those of any size, without the system's own and without names
/// that stand for another family ("Serif").
QStringList fontFamilies();

} // namespace board
