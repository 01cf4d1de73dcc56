#pragma once

#include "grammar/selectors.h"

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
    QVector<StyleRule> rules;
    QVector<StyleProblem> problems;

    /// Notes a problem, unless there are many.
    void report(const StyleProblem &problem);
};

/// Declarations between braces, in their order. What is no declaration is left out and
/// added to `problems`, when given, with its place counted from `offset`.
QVector<SheetDeclaration> parseDeclarations(QStringView text, QVector<StyleProblem> *problems = nullptr,
                                            int offset = 0);

/// The rules of a style sheet that concern a picture on a screen. A rule with an error is dropped, the rest kept.
StyleSheet parseStyleSheet(QStringView text);
/// Whether a list of media types, as of a "media" attribute, includes screens; an empty one does.
bool includesScreens(QStringView media);

} // namespace Svg
