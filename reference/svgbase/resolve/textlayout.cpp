#include "resolve/textlayout.h"

#include "resolve/fonts.h"
#include "resolve/geometry.h"
#include "style/cascade.h"

#include <QtGui/QFontMetricsF>
#include <QtGui/QGuiApplication>

namespace Svg {

namespace {

/// A text or tspan element that is open while its characters are set.
struct TextLevel
{
    NodeIndex node;
    ComputedStyle style;
    bool preservesSpace;
};

class TextLayout
{
public:
    TextLayout(const Tree &tree, const QSizeF &viewport)
        : m_tree(tree)
        , m_viewport(viewport)
    {
    }

    QVector<TextRun> run(NodeIndex text, const ComputedStyle &style);

private:
    void open(NodeIndex node, const ComputedStyle &style);
    void place(const Node &node, const ComputedStyle &style);
    void set(const QString &characters, const TextLevel &level);
    void finishChunk();
    QString collapsed(const QString &characters, bool preservesSpace);

    const Tree &m_tree;
    QSizeF m_viewport;
    QVector<TextLevel> m_levels;
    QVector<TextRun> m_runs;
    QPointF m_position;
    /// Runs from here on are aligned together (SVG 1.1 §10.5).
    int m_chunkBegin = 0;
    double m_chunkX = 0;
    TextAnchor m_chunkAnchor = TextAnchor::Start;
    bool m_pendingSpace = false;
    bool m_anyCharacter = false;
};

// A space is set together with the next character that is none, so that none is left at the end.
QString TextLayout::collapsed(const QString &characters, bool preservesSpace)
{
    QString result;
    for (const QChar c : characters) {
        const bool space =
            c == QLatin1Char(' ') || c == QLatin1Char('\t') || c == QLatin1Char('\n') || c == QLatin1Char('\r');
        if (space && preservesSpace) {
            result += QLatin1Char(' ');
        } else if (space) {
            m_pendingSpace = m_anyCharacter;
        } else {
            if (m_pendingSpace)
                result += QLatin1Char(' ');
            m_pendingSpace = false;
            m_anyCharacter = true;
            result += c;
        }
    }
    return result;
}

void TextLayout::finishChunk()
{
    const double advance = m_position.x() - m_chunkX;
    const double share = m_chunkAnchor == TextAnchor::Middle ? 0.5 : m_chunkAnchor == TextAnchor::End ? 1 : 0;
    if (share > 0) {
        for (int i = m_chunkBegin; i < m_runs.size(); ++i)
            m_runs[i].path.translate(-advance * share, 0);
        m_position.rx() -= advance * share;
    }
    m_chunkBegin = m_runs.size();
}

void TextLayout::place(const Node &node, const ComputedStyle &style)
{
    const LengthReader lengths(node, style, m_viewport);
    const bool hasX = lengths.has(AttributeId::X);
    const bool hasY = lengths.has(AttributeId::Y);
    if (hasX || hasY) {
        finishChunk();
        m_position = QPointF(lengths.value(AttributeId::X, Axis::Horizontal, m_position.x()),
                             lengths.value(AttributeId::Y, Axis::Vertical, m_position.y()));
        m_chunkX = m_position.x();
        m_chunkAnchor = style.textAnchor;
    }
    m_position +=
        QPointF(lengths.value(AttributeId::Dx, Axis::Horizontal), lengths.value(AttributeId::Dy, Axis::Vertical));
}

void TextLayout::open(NodeIndex node, const ComputedStyle &style)
{
    const Attributes &attributes = m_tree.node(node).attributes;
    const QString space = attributes.value(AttributeId::XmlSpace);
    const bool above = !m_levels.isEmpty() && m_levels.constLast().preservesSpace;
    m_levels.append({node, style, space.isEmpty() ? above : space == QLatin1String("preserve")});
    place(m_tree.node(node), style);
}

void TextLayout::set(const QString &characters, const TextLevel &level)
{
    const QString text = collapsed(characters, level.preservesSpace);
    if (text.isEmpty() || level.style.font.size <= 0)
        return;
    const QFont font = outlineFont(level.style.font);
    const double scale = level.style.font.size / outlineFontSize;
    QPainterPath outlines;
    outlines.addText(0, 0, font, text);
    const QTransform place(scale, 0, 0, scale, m_position.x(), m_position.y());
    if (level.style.displayed && level.style.visible && !outlines.isEmpty())
        m_runs.append({level.style, place.map(outlines)});
    if (level.style.displayed)
        m_position.rx() += QFontMetricsF(font).horizontalAdvance(text) * scale;
}

QVector<TextRun> TextLayout::run(NodeIndex text, const ComputedStyle &style)
{
    m_chunkAnchor = style.textAnchor;
    open(text, style);
    for (NodeIndex at = m_tree.following(text, text); at != noNode; at = m_tree.following(at, text)) {
        const Node &node = m_tree.node(at);
        while (m_levels.constLast().node != node.parent && m_levels.size() > 1)
            m_levels.removeLast();
        const TextLevel level = m_levels.constLast();
        if (level.node != node.parent)
            continue;
        if (node.kind == ElementKind::Characters)
            set(node.text, level);
        else if (node.kind == ElementKind::Tspan)
            open(at, cascade(m_tree, at, {level.style, m_viewport}));
    }
    finishChunk();
    return m_runs;
}

} // namespace

QVector<TextRun> layOutText(const Tree &tree, NodeIndex text, const ComputedStyle &style, const QSizeF &viewport)
{
    if (!qobject_cast<QGuiApplication *>(QCoreApplication::instance()))
        return {};
    return TextLayout(tree, viewport).run(text, style);
}

} // namespace Svg
