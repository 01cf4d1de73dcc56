#pragma once

#include <declared/expressions/limits.h>

#include <shapekit/typesetting.h>

namespace declared::limits {

/// @name One file
/// @{
constexpr int fileBytes = 1 << 20;
constexpr int elements = 5000;
constexpr int elementDepth = 64;
constexpr int attributesOfElement = 200;
constexpr int controlPoints = 32;
constexpr int properties = 64;
constexpr int lets = 256;
constexpr int parametersOfLet = 8;
constexpr int entriesOfChoice = 64;
constexpr int entriesOfList = 200;
constexpr int repeats = 64;
constexpr int connections = 64;
constexpr int labels = 256;
constexpr int textCharacters = 10000;
/// @}

/// @name One drawing
/// @{
constexpr int repeatedElements = 1000;
/// Of one text that is drawn as outlines.
constexpr int drawnLetters = shapekit::Typesetting::mostLetters;
/// @}

} // namespace declared::limits
