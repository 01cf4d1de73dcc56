#include <shapekit/shape.h>

using namespace shapekit;

const Text rowsText("Rows", "Zeilen");
const Text columnsText("Columns", "Spalten");

/// A table to write into; the control point sets the height of its header.
class Table : public Shape
{
public:
    explicit Table(CSVGObj *owner)
        : Shape(owner, 1000)
    {
        setExternalFilled(true);
    }

protected:
    QRectF range(int) override { return between({8, 8}, {8, 0.8 * height()}); }
    void draw() override
    {
        const QRectF box = frame();
        const double head = point(1).y();
        PathText lines;
        lines.line({box.left(), head}, {box.right(), head});
        for (int row = 1; row < rows; ++row) {
            const double y = head + (box.bottom() - head) * row / rows;
            lines.line({box.left(), y}, {box.right(), y});
        }
        for (int column = 1; column < columns; ++column) {
            const double x = box.left() + box.width() * column / columns;
            lines.line({x, box.top()}, {x, box.bottom()});
        }
        setPath("figure", PathText().roundedRectangle(box, 0));
        setPath("edge", PathText().roundedRectangle(box, 0));
        setPath("head", PathText().roundedRectangle({box.topLeft(), QPointF(box.right(), head)}, 0));
        setPath("lines", lines);
    }

private:
    WholeNumber rows{this, rowsText, 3, 1, 30}, columns{this, columnsText, 3, 1, 30};
};

SHAPEKIT_PLUGIN(Table, "Table", "Tabelle", Basic)
