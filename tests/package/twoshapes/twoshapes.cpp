#include <shapekit/shape.h>

using namespace shapekit;

namespace {

/// Its control point sets the width of the hole.
class Washer : public ShapeOfType<203, Shape::Stretched>
{
public:
    using ShapeOfType::ShapeOfType;

protected:
    void draw() override { set("hole", "r", point(1).x() - middle().x()); }
};

/// Six sides around the hole of a washer.
class Nut : public ShapeOfType<204, Shape::Stretched>
{
public:
    using ShapeOfType::ShapeOfType;

protected:
    void draw() override { set("hole", "r", point(1).x() - middle().x()); }
};

} // namespace

QVector<Kind> shapekit::pluginKinds()
{
    const Group workshop(QStringLiteral("IDS_WORKSHOP"), {{QStringLiteral("en"), QStringLiteral("Workshop")}});
    const Words nut{{QStringLiteral("en"), QStringLiteral("Nut")}, {QStringLiteral("fr"), QStringLiteral("Écrou")}};
    const Words washer{{QStringLiteral("en"), QStringLiteral("Washer")}};
    QVector<Kind> kinds{kindOf<Nut>(QStringLiteral("nut"), nut, workshop),
                        kindOf<Washer>(QStringLiteral("washer"), washer, workshop)};
    for (Kind &kind : kinds)
        kind.idPrefix = QStringLiteral("workshop.");
    return kinds;
}
