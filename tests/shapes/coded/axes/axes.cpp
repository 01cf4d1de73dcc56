#include <shapekit/shape.h>

using namespace shapekit;

const Text gridText("Grid", "Gitter"), acrossText("Label across", "Beschriftung waagrecht"),
    upText("Label up", "Beschriftung senkrecht");

/// Two axes with a tick every 20 units from their origin, which the control point moves; larger axes have more
/// ticks.
class Axes : public ShapeOfType<33>
{
public:
    using ShapeOfType::ShapeOfType;

protected:
    QSizeF smallestSize() const override { return {60, 60}; }
    QRectF range(int) override { return between({12, 12}, {width() - 24, height() - 12}); }
    void draw() override
    {
        const double x = point(1).x(), y = point(1).y(), right = width() - 3, bottom = height() - 3;
        PathText ticks, lines;
        for (double at = x - spacing * int((x - 3) / spacing); at < right - 12; at += spacing) {
            lines.line({at, 3}, {at, bottom});
            ticks.line({at, y - 3}, {at, y + 3});
        }
        for (double at = y - spacing * int((y - 15) / spacing); at < bottom; at += spacing) {
            lines.line({3, at}, {right, at});
            ticks.line({x - 3, at}, {x + 3, at});
        }
        setPath("grid", grid ? lines : PathText());
        setPath("figure", PathText().line({3, y}, {right - 2, y}).line({x, bottom}, {x, 5}));
        setPath("ticks", ticks);
        setPath("arrows", PathText()
                              .polygon({{right, y}, {right - 9, y - 4.5}, {right - 9, y + 4.5}})
                              .polygon({{x, 3}, {x - 4.5, 12}, {x + 4.5, 12}}));
        setPath("labels", PathText().text({right - 5, y + 13}, across, 9).text({x + 12, 9}, up, 9));
    }

private:
    static constexpr double spacing = 20;
    Switch grid{this, gridText, true};
    TextValue across{this, acrossText, QStringLiteral("x")}, up{this, upText, QStringLiteral("y")};
};

SHAPEKIT_PLUGIN(Axes, "Axes", "Achsenkreuz", Mathematics)
