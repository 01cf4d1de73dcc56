#pragma once

#include "resolve/styleoverride.h"
#include "tree/tree.h"

#include <QtGui/QGradient>

namespace Svg {

class XmlText;

/// Gradients of document-wide styling, which a written document has to define.
class PaintDefinitions
{
public:
    /// The tree tells which ids are taken.
    explicit PaintDefinitions(const Tree &tree)
        : m_tree(tree)
    {
    }

    /// The value of a "fill" or "stroke" that paints with the brush.
    QString paintText(const QBrush &brush);
    /// Writes the gradients that were referred to.
    void write(XmlText *xml) const;

private:
    struct Definition
    {
        QString id;
        QBrush brush;
    };

    QString referenceTo(const QBrush &brush);
    QString freshId();

    const Tree &m_tree;
    QVector<Definition> m_definitions;
    int m_lastNumber = 0;
};

/// The document-wide styling of a node of the given style, as declarations that override all others.
QString overrideText(const StyleOverride &override, const ComputedStyle &style, PaintDefinitions *paints);

} // namespace Svg
