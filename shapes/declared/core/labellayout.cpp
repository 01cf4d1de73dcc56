#include <declared/core/labellayout.h>

#include <declared/reader/filelimits.h>

#include <QtGui/QFont>
#include <QtGui/QFontMetricsF>
#include <QtGui/QGlyphRun>
#include <QtGui/QRawFont>
#include <QtGui/QTextLayout>

#include <algorithm>

namespace declared {

namespace {

/// Text is laid out at this size and then scaled, so that hinting doesn't show.
constexpr int layoutPixels = 100;
/// Steps of sizes that are tried for a text that fits its box.
constexpr double sizeStep = 0.5;
constexpr int mostLines = 200;
/// Width of text that isn't broken.
constexpr double unlimited = 1e6;

QFont fontOf(const LabelLook &look)
{
    QFont font(QStringLiteral("sans-serif"));
    font.setPixelSize(layoutPixels);
    font.setBold(look.isBold);
    return font;
}

/// Lines of one paragraph or of several, in layout pixels.
class LineMaker
{
public:
    LineMaker(const LabelLook &look, double size)
        : m_look(look)
        , m_font(fontOf(look))
        , m_scale(size / layoutPixels)
    {
        const QStringList paragraphs = look.text.left(limits::drawnLetters).split(QLatin1Char('\n'));
        for (const QString &paragraph : paragraphs)
            addParagraph(paragraph);
    }

    bool fits() const
    {
        const double height = m_count * lineHeight() * m_scale;
        return m_widest * m_scale <= m_look.box.width() && height <= m_look.box.height() && !m_breaksWords;
    }

    LabelLayout finished(double size)
    {
        const double height = m_count * lineHeight() * m_scale;
        const double room = m_look.box.height() - height;
        const double top = m_look.vertical == LabelAlignment::Start ? 0
                           : m_look.vertical == LabelAlignment::End ? room
                                                                    : room / 2;
        LabelLayout layout;
        layout.size = size;
        layout.outline = QTransform(m_scale, 0, 0, m_scale, 0, top).map(m_outline);
        layout.outline.setFillRule(Qt::WindingFill);
        for (LabelLine &line : m_lines)
            line.anchor = QPointF(line.anchor.x() * m_scale, top + line.anchor.y() * m_scale);
        layout.lines = m_lines;
        return layout;
    }

private:
    double lineHeight() const { return QFontMetricsF(m_font).height(); }
    double boxWidth() const { return m_look.box.width() / m_scale; }

    void addParagraph(const QString &paragraph)
    {
        QString text = paragraph;
        if (!m_look.hasManyLines)
            text.replace(QLatin1Char('\n'), QLatin1Char(' '));
        QTextLayout layout(text, m_font);
        QTextOption option(Qt::AlignLeft | Qt::AlignAbsolute);
        const bool isRightToLeft = text.isRightToLeft();
        option.setTextDirection(isRightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
        option.setWrapMode(m_look.hasManyLines ? QTextOption::WrapAtWordBoundaryOrAnywhere : QTextOption::NoWrap);
        layout.setTextOption(option);
        layout.beginLayout();
        for (QTextLine line = layout.createLine(); line.isValid() && m_count < mostLines;
             line = layout.createLine()) {
            line.setLineWidth(m_look.hasManyLines ? std::max(1.0, boxWidth()) : unlimited);
            line.setPosition({0, 0});
            addLine(text, line, isRightToLeft);
        }
        layout.endLayout();
    }

    void addLine(const QString &text, const QTextLine &line, bool isRightToLeft)
    {
        const QString part = text.mid(line.textStart(), line.textLength());
        const int end = line.textStart() + line.textLength();
        m_breaksWords = m_breaksWords || (end < text.size() && !part.isEmpty() && !part.back().isSpace() &&
                                          text.at(end).isLetterOrNumber() && part.back().isLetterOrNumber() &&
                                          part.back().script() == QChar::Script_Latin);
        const double width = line.naturalTextWidth();
        const double room = boxWidth() - width;
        const bool isAtLeft = (m_look.alignment == LabelAlignment::Start) != isRightToLeft;
        const double left = m_look.alignment == LabelAlignment::Middle ? room / 2 : isAtLeft ? 0 : room;
        const double baseline = m_count * lineHeight() + QFontMetricsF(m_font).ascent();
        const double start = isRightToLeft ? left + width : left;
        const double finish = isRightToLeft ? left : left + width;
        const double anchor = m_look.alignment == LabelAlignment::Start ? start
                              : m_look.alignment == LabelAlignment::End ? finish
                                                                        : left + width / 2;
        m_lines.append({part.trimmed(), {anchor, baseline}, isRightToLeft});
        m_widest = std::max(m_widest, width);
        addOutline(line, {left - line.naturalTextRect().left(), baseline - line.ascent()});
        ++m_count;
    }

    void addOutline(const QTextLine &line, QPointF origin)
    {
        const QList<QGlyphRun> runs = line.glyphRuns();
        for (const QGlyphRun &run : runs) {
            const QVector<quint32> glyphs = run.glyphIndexes();
            const QVector<QPointF> places = run.positions();
            for (int i = 0; i < glyphs.size(); ++i)
                m_outline.addPath(run.rawFont().pathForGlyph(glyphs.at(i)).translated(places.at(i) + origin));
        }
    }

    const LabelLook &m_look;
    QFont m_font;
    double m_scale;
    int m_count = 0;
    double m_widest = 0;
    bool m_breaksWords = false;
    QVector<LabelLine> m_lines;
    QPainterPath m_outline;
};

} // namespace

bool LabelLook::operator==(const LabelLook &other) const
{
    return text == other.text && box.width() == other.box.width() && box.height() == other.box.height() &&
           size == other.size && smallest == other.smallest && isBold == other.isBold &&
           hasManyLines == other.hasManyLines && alignment == other.alignment && vertical == other.vertical;
}

LabelLayout layOut(const LabelLook &look)
{
    // Most cells of a table are empty.
    if (look.text.isEmpty())
        return {{}, {}, look.size};
    const double smallest = look.smallest > 0 ? std::min(look.smallest, look.size) : look.size;
    // A size that fits has smaller ones that fit: the largest is found by halving.
    int fits = 0;
    int tooMany = int((look.size - smallest) / sizeStep) + 1;
    while (tooMany - fits > 1) {
        const int middle = (fits + tooMany) / 2;
        if (LineMaker(look, smallest + middle * sizeStep).fits())
            fits = middle;
        else
            tooMany = middle;
    }
    const double size = smallest + fits * sizeStep;
    return LineMaker(look, size).finished(size);
}

} // namespace declared
