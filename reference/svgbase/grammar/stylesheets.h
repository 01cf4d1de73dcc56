#pragma once

#include "grammar/cascadelayers.h"
#include "grammar/selectors.h"

#include <functional>

namespace Svg {

/// One "name: value" of a style sheet.
struct SheetDeclaration
{
    QString name;
    QString value;
    bool important = false;
    /// Offset in the text.
    int offset = 0;
};

/// Selectors with their declarations.
struct StyleRule
{
    QVector<Selector> selectors;
    QVector<SheetDeclaration> declarations;
    /// One of the sheet's layers; `CascadeLayers::none` outside of all.
    int layer = CascadeLayers::none;
};

/// Unreadable text and its position.
struct StyleProblem
{
    int offset = 0;
    QString text;
    /// Whether a limit was exceeded.
    bool tooMany = false;
};

struct StyleSheet
{
    /// In the order of the text; nested rules have entries of their own.
    QVector<StyleRule> rules;
    /// Descriptors of each "@font-face".
    QVector<QVector<SheetDeclaration>> fontFaces;
    QVector<StyleProblem> problems;

    /// Records a problem, unless there are too many.
    void report(const StyleProblem &problem);
};

/// Context for reading a style sheet.
struct SheetSurroundings
{
    /// Whether a declaration would have an effect, for "@supports".
    std::function<bool(const SheetDeclaration &)> supports;
    /// Layers of the document so far; those of the sheet are appended.
    CascadeLayers *layers = nullptr;
};

/// The rules of a style sheet that apply to a picture on a screen. A rule with an error is dropped, the rest kept.
StyleSheet parseStyleSheet(QStringView text, const SheetSurroundings &surroundings);

} // namespace Svg
