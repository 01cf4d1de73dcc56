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
    /// Where it stands in the text.
    int offset = 0;
};

/// Selectors with what they give.
struct StyleRule
{
    QVector<Selector> selectors;
    QVector<SheetDeclaration> declarations;
    /// Of the sheet's layers; `CascadeLayers::none` outside of all.
    int layer = CascadeLayers::none;
};

/// What could not be read, and where in the text it stands.
struct StyleProblem
{
    int offset = 0;
    QString text;
    /// Whether a limit is the reason.
    bool tooMany = false;
};

struct StyleSheet
{
    /// In the order of the text; rules inside of rules stand for themselves.
    QVector<StyleRule> rules;
    /// What each "@font-face" describes.
    QVector<QVector<SheetDeclaration>> fontFaces;
    QVector<StyleProblem> problems;

    /// Notes a problem, unless there are many.
    void report(const StyleProblem &problem);
};

/// What a style sheet is read with.
struct SheetSurroundings
{
    /// Whether a declaration would have an effect, as "@supports" asks.
    std::function<bool(const SheetDeclaration &)> supports;
    /// Layers of the document so far; those of the sheet are added.
    CascadeLayers *layers = nullptr;
};

/// The rules of a style sheet that concern a picture on a screen. A rule with an error is dropped, the rest kept.
StyleSheet parseStyleSheet(QStringView text, const SheetSurroundings &surroundings);

} // namespace Svg
