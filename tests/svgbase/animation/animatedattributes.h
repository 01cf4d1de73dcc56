#pragma once

#include "document/documentprivate.h"
#include "svgbase/svgdrawing.h"

/// A node as drawn at its document's present time.
class ShownNode
{
public:
    ShownNode(QZeSvgTinyDocument &document, const QString &id)
        : m_shown(DocumentPrivate::of(&document)->shown())
        , m_index(m_shown.tree().findId(id))
    {
    }

    QString attribute(const QString &name) const { return m_shown.attribute(m_index, name); }
    Svg::FactsPointer facts() const { return m_shown.facts(m_index); }
    Svg::ComputedStyle style() const { return static_cast<const Svg::ComputedStyle &>(*facts()->style); }
    QRectF bounds() const { return facts()->bounds; }
    QPointF mapped(double x, double y) const { return facts()->toDocument.map(QPointF(x, y)); }

private:
    Svg::Document &m_shown;
    Svg::NodeIndex m_index;
};

/// The node "t" of a document of 100 × 100 at a moment.
inline ShownNode shownAt(QZeSvgTinyDocument &document, double seconds, const QString &id = QStringLiteral("t"))
{
    document.setAnimationTime(seconds);
    return ShownNode(document, id);
}
