#include "filters/lighting.h"

#include <QtCore/QtMath>

#include <array>
#include <cmath>

namespace Svg {

namespace {

constexpr int opaque = 255;
const QVector3D towardsViewer(0, 0, 1);

/// The alpha of a picture as heights from 0 to 1.
class HeightMap
{
public:
    HeightMap(const QImage &picture, const QRect &area)
        : m_picture(picture)
        , m_area(area)
    {
    }

    double height(int x, int y) const
    {
        return qAlpha(reinterpret_cast<const QRgb *>(m_picture.constScanLine(y))[x]) / double(opaque);
    }
    /// The normal of the surface, by differences of neighbours, which are fewer at the edges.
    QVector3D normal(int x, int y, double scale) const
    {
        const QVector3D slope(float(-scale * slopeAcross(x, y)), float(-scale * slopeDown(x, y)), 1);
        return slope.normalized();
    }

private:
    double slopeAcross(int x, int y) const
    {
        const int before = qMax(x - 1, m_area.left());
        const int after = qMin(x + 1, m_area.right());
        return slope(y, m_area.top(), m_area.bottom(), after - before,
                     [&](int row) { return height(after, row) - height(before, row); });
    }
    double slopeDown(int x, int y) const
    {
        const int before = qMax(y - 1, m_area.top());
        const int after = qMin(y + 1, m_area.bottom());
        return slope(x, m_area.left(), m_area.right(), after - before,
                     [&](int column) { return height(column, after) - height(column, before); });
    }
    // Twice the mean slope of three lines, the middle one counting twice: the Sobel operator.
    template<typename Difference>
    static double slope(int middle, int first, int last, int distance, Difference difference)
    {
        if (distance == 0)
            return 0;
        double sum = 2 * difference(middle);
        int weights = 2;
        for (const int line : {middle - 1, middle + 1}) {
            if (line < first || line > last)
                continue;
            sum += difference(line);
            ++weights;
        }
        return 2 * sum / weights / distance;
    }

    const QImage &m_picture;
    QRect m_area;
};

QVector3D distantDirection(const LightSource &light)
{
    const double azimuth = qDegreesToRadians(light.azimuth);
    const double elevation = qDegreesToRadians(light.elevation);
    return QVector3D(float(std::cos(azimuth) * std::cos(elevation)), float(std::sin(azimuth) * std::cos(elevation)),
                     float(std::sin(elevation)));
}

class Lamp
{
public:
    explicit Lamp(const Lighting &lighting)
        : m_lighting(lighting)
        , m_light(lighting.light)
        , m_direction(distantDirection(lighting.light))
        , m_axis((lighting.light.pointsAt - lighting.light.place).normalized())
        , m_coneCosine(lighting.light.cone ? std::cos(qDegreesToRadians(qAbs(*lighting.light.cone))) : -1)
    {
    }

    QRgb reflected(const QVector3D &place, const QVector3D &normal) const;

private:
    double brightness(const QVector3D &towardsLight) const;

    const Lighting &m_lighting;
    const LightSource &m_light;
    QVector3D m_direction;
    QVector3D m_axis;
    double m_coneCosine;
};

double Lamp::brightness(const QVector3D &towardsLight) const
{
    if (m_light.kind != LightSource::Spot)
        return 1;
    const double along = -double(QVector3D::dotProduct(towardsLight, m_axis));
    return along <= 0 || along < m_coneCosine ? 0 : std::pow(along, m_light.focus);
}

QRgb colorOf(const QColor &color, double strength)
{
    const auto component = [strength](int value) { return qRound(qBound(0.0, strength * value, double(opaque))); };
    return qRgb(component(color.red()), component(color.green()), component(color.blue()));
}

QRgb Lamp::reflected(const QVector3D &place, const QVector3D &normal) const
{
    const QVector3D towardsLight =
        m_light.kind == LightSource::Distant ? m_direction : (m_light.place - place).normalized();
    const QVector3D facing = m_lighting.specular ? (towardsLight + towardsViewer).normalized() : towardsLight;
    const double cosine = qMax(0.0, double(QVector3D::dotProduct(normal, facing)));
    const double share = m_lighting.specular ? std::pow(cosine, m_lighting.shininess) : cosine;
    const QRgb color = colorOf(m_lighting.color, m_lighting.reflection * share * brightness(towardsLight));
    if (!m_lighting.specular)
        return color;
    const int alpha = qMax(qRed(color), qMax(qGreen(color), qBlue(color)));
    return qRgba(qRed(color), qGreen(color), qBlue(color), alpha);
}

} // namespace

void lightPicture(QImage *picture, const Lighting &lighting, const QRect &area)
{
    const QImage surface = *picture;
    picture->fill(Qt::transparent);
    const QRect lit = area & picture->rect();
    if (lighting.light.kind == LightSource::None || lit.isEmpty())
        return;
    const HeightMap map(surface, lit);
    const Lamp lamp(lighting);
    for (int y = lit.top(); y <= lit.bottom(); ++y) {
        auto *row = reinterpret_cast<QRgb *>(picture->scanLine(y));
        for (int x = lit.left(); x <= lit.right(); ++x) {
            const QVector3D place(float(x), float(y), float(lighting.surfaceScale * map.height(x, y)));
            row[x] = lamp.reflected(place, map.normal(x, y, lighting.surfaceScale));
        }
    }
}

} // namespace Svg
