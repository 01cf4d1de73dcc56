#pragma once

#include "core/toolchoice.h"

#include <QtCore/QMap>
#include <QtCore/QObject>
#include <QtCore/QVector>
#include <QtGui/QColor>

namespace board {

/// The colour and the width that a tool draws with.
struct PenLook
{
    QColor color;
    double width = 0; ///< scene units
};

/// Colour, width and variant of each tool, remembered from one start to the next. A tool may have several pens, one
/// of them in hand: what is set is the look of that one.
class ToolSettings : public QObject
{
    Q_OBJECT

public:
    /// Reads what was remembered.
    explicit ToolSettings(QObject *parent = nullptr);

    /// Colours on offer; empty for a tool without colour.
    QVector<QColor> colors(Tool tool) const;
    /// The same and others, for who looks further.
    QVector<QColor> moreColors(Tool tool) const;
    /// The localisation key of the name of a colour on offer; empty for others.
    static QString colorKey(const QColor &color);
    /// Widths on offer, scene units, in ascending order: of a line, of the eraser, the height of letters. Empty for
    /// a tool without width.
    QVector<double> widths(Tool tool) const;
    /// Localisation keys of the variants on offer, in the order of their numbers; empty for a tool with one kind.
    QVector<QString> variants(Tool tool) const;

    QColor color(Tool tool) const { return look(tool).color; }
    double width(Tool tool) const { return look(tool).width; }
    int variant(Tool tool) const { return m_chosen.value(tool).variant; }

    /// Looks of the tool's pens; one for a tool without several.
    QVector<PenLook> pens(Tool tool) const { return m_chosen.value(tool).pens; }
    /// The one in hand, its number.
    int pen(Tool tool) const { return m_chosen.value(tool).pen; }
    /// Ignored for numbers that there are not.
    void takePen(Tool tool, int pen);

    /// Whether strokes become wider under more pressure; true until somebody sets it.
    bool usesPressure(Tool tool) const { return m_chosen.value(tool).usesPressure; }
    void setUsesPressure(Tool tool, bool uses);
    /// Whether holding the pen still makes a stroke a line, an arc or a circle; true until somebody sets it.
    bool straightens(Tool tool) const { return m_chosen.value(tool).straightens; }
    void setStraightens(Tool tool, bool straightens);

    /// Any colour, not only those on offer. Ignored for a tool without colour and for invalid ones.
    void setColor(Tool tool, const QColor &color);
    /// Limited to the narrowest and the widest on offer.
    void setWidth(Tool tool, double width);
    /// Takes the next width on offer: wider for 1, narrower for -1.
    void stepWidth(Tool tool, int direction);
    /// Ignored unless it is on offer.
    void setVariant(Tool tool, int variant);

Q_SIGNALS:
    void changed();

private:
    struct Setting
    {
        QVector<PenLook> pens;
        int pen = 0;
        int variant = 0;
        bool usesPressure = true;
        bool straightens = true;
    };

    static bool isEqual(const Setting &one, const Setting &other);
    PenLook look(Tool tool) const { return m_chosen.value(tool).pens.value(pen(tool)); }
    void set(Tool tool, const Setting &setting);
    static void remember(Tool tool, const Setting &setting);

    QMap<Tool, Setting> m_chosen;
};

} // namespace board
