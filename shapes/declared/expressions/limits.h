#pragma once

namespace declared::limits {

/// @name One expression
/// @{
constexpr int expressionCharacters = 2000;
constexpr int expressionDepth = 64;
/// Steps that wait for each other while evaluating, functions included: a sum of many terms needs one each.
constexpr int waitingSteps = 256;
constexpr int functionDepth = 8;
constexpr int stepsOfExpression = 20000;
constexpr int loopDepth = 3;
constexpr int loopRounds = 2000;
/// @}

/// Compiled steps of one file.
constexpr int programSteps = 200000;

/// @name All expressions of one drawing
/// @{
constexpr int stepsOfDrawing = 200000;
constexpr int charactersOfDrawing = 1 << 20;
/// @}

} // namespace declared::limits
