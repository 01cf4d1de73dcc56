#include <shapekit/shape.h>

using namespace shapekit;

/// A speech balloon. Its sides grow with the page object; its corners and the root of its tail keep their size. The
/// control point is the tip of the tail.
class Callout : public ShapeOfType<6>
{
public:
    using ShapeOfType::ShapeOfType;

protected:
    QSizeF smallestSize() const override { return {72, 60}; }
    QRectF range(int) override { return between({4, height() - tailHeight + 4}, {width() - 4, height() - 4}); }
    void draw() override
    {
        const QRectF box = frame().adjusted(0, 0, 0, -tailHeight);
        const QPointF tip = point(1) - box.bottomLeft() - QPointF(48, 0);
        // The pieces "h" and "v" grow; the first piece of the tail starts 48 from the left, the second ends at 28.
        QString path = QStringLiteral("M10,0h120a10,10 0 0 1 10,10v60a10,10 0 0 1-10,10h-82l%1l%2l-18,0"
                                      "a10,10 0 0 1-10-10v-60a10,10 0 0 1 10-10z")
                           .arg(numbersToString({tip.x(), tip.y()}), numbersToString({-20 - tip.x(), -tip.y()}));
        path = changePathWidth(path, box.width() - 140, 0);
        path = changePathHeight(path, box.height() - 80, 0);
        set("figure", "d", changePathBeginPoint(path, box.left(), box.top()));
    }

private:
    static constexpr double tailHeight = 30;
};

QVector<shapekit::Kind> shapekit::pluginKinds()
{
    Kind kind = kindOf<Callout>(QStringLiteral(SHAPEKIT_NAME), inEnglishAndGerman("Callout", "Sprechblase"));
    kind.rank = 5;
    return {kind};
}
