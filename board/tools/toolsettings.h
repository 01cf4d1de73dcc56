#pragma once

#include "core/toolchoice.h"

#include <QtCore/QMap>
#include <QtCore/QObject>
#include <QtCore/QVector>
#include <QtGui/QColor>

namespace board {

/// Colour, width and variant of each tool, remembered from one start to the next.
class ToolSettings : public QObject
{
    Q_OBJECT

public:
    /// Reads what was remembered.
    explicit ToolSettings(QObject *parent = nullptr);

    /// Colours on offer; empty for a tool without colour.
    QVector<QColor> colors(Tool tool) const;
    /// The localisation key of the name of a colour on offer; empty for others.
    static QString colorKey(const QColor &color);
    /// Widths on offer, scene units, in ascending order: of a line, of the eraser, the height of letters. Empty for
    /// a tool without width.
    QVector<double> widths(Tool tool) const;
    /// Localisation keys of the variants on offer, in the order of their numbers; empty for a tool with one kind.
    QVector<QString> variants(Tool tool) const;

    QColor color(Tool tool) const { return m_chosen.value(tool).color; }
    double width(Tool tool) const { return m_chosen.value(tool).width; }
    int variant(Tool tool) const { return m_chosen.value(tool).variant; }

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
        QColor color;
        double width = 0;
        int variant = 0;
    };

    void set(Tool tool, const Setting &setting);

    QMap<Tool, Setting> m_chosen;
};

} // namespace board
