#pragma once

#include <framework/framework_global.h>

#include <QtCore/QRectF>
#include <QtGui/QBrush>
#include <QtGui/QColor>
#include <QtGui/QPixmap>

class IPsPage;
class QDataStream;
class QJsonObject;

/// How an area of a page (the page itself or an object) is filled. A plain value: copying copies all of it.
class FRAMEWORK_EXPORT CPageBgProp
{
public:
    /// Kinds of fill; the numbers are saved.
    enum FillType { NoFill = 0, SolidFill = 1, GradientFill = 2, PatternFill = 3, PictureFill = 4 };

    /// A disabled solid white fill of full opacity. `page` is the page whose background the fill may show through;
    /// it may be null.
    explicit CPageBgProp(IPsPage *page);

    /// While on, the area shows its page's background instead of a fill of its own. Off after construction.
    bool isFollowingPage() const { return m_followsPage; }
    /// See isFollowingPage().
    void setFollowingPage(bool on) { m_followsPage = on; }
    /// A FillType number.
    int fillType() const { return m_fillType; }
    /// Takes a FillType number.
    void setFillType(int type) { m_fillType = type; }
    /// Whether anything is filled.
    bool isFillEnable() const { return m_fillEnabled; }
    /// See isFillEnable().
    void setFillEnable(bool on) { m_fillEnabled = on; }

    /// The fill colour; opaque, its transparency stands in opacity().
    QColor fillColor() const { return m_color; }
    /// Takes the colour's red, green and blue; ignores its alpha.
    void setFillColor(const QColor &color) { m_color = QColor(color.rgb()); }
    /// 0 (transparent) to 255 (opaque); of the whole fill, whatever its type.
    int opacity() const { return m_opacity; }
    /// Clamps to 0 to 255.
    void setOpacity(int opacity) { m_opacity = qBound(0, opacity, 255); }

    /// Second colour of a gradient fill; the first is fillColor().
    QColor gradientColor() const { return m_gradientColor; }
    /// See gradientColor().
    void setGradientColor(const QColor &color) { m_gradientColor = color; }
    /// Direction of a gradient fill in degrees, counter-clockwise from left to right.
    double gradientAngle() const { return m_gradientAngle; }
    /// See gradientAngle().
    void setGradientAngle(double degrees) { m_gradientAngle = degrees; }
    /// Pattern of a pattern fill.
    Qt::BrushStyle pattern() const { return m_pattern; }
    /// See pattern().
    void setPattern(Qt::BrushStyle pattern) { m_pattern = pattern; }
    /// Picture of a picture fill; null when there is none.
    QPixmap pixmap() const { return m_pixmap; }
    /// See pixmap().
    void setPixmap(const QPixmap &pixmap) { m_pixmap = pixmap; }

    /// True when the brush depends on the filled rectangle and must be recreated for each: enabled gradient fills.
    bool needCreatBrush(const QRectF &rect) const;
    /// The brush that fills `rect`: no brush for a disabled fill, else one whose colour() is fillColor() with
    /// opacity() as its alpha whatever the type. A picture is a texture stretched over `rect` only when
    /// `forTexture` is set; otherwise a picture fill gives a solid brush for code that cannot draw the picture
    /// itself.
    QBrush createBrushByProp(const QRectF &rect, bool forTexture) const;

    /// Equal in every value, the page included.
    bool operator==(const CPageBgProp &other) const;
    /// The opposite.
    bool operator!=(const CPageBgProp &other) const { return !(*this == other); }

    /// Writes all values; false where the stream fails.
    bool save(QDataStream &out) const;
    /// False when the stream ends early or holds invalid values; the fill is then unchanged.
    bool load(QDataStream &in);
    /// Adds all values to the object.
    bool saveJson(QJsonObject &object) const;
    /// Missing and mistyped members keep their present values; false when there were any.
    bool loadJson(const QJsonObject &object);

private:
    IPsPage *m_page;
    bool m_followsPage = false;
    int m_fillType = SolidFill;
    bool m_fillEnabled = false;
    QColor m_color = Qt::white;
    int m_opacity = 255;
    QColor m_gradientColor = Qt::lightGray;
    double m_gradientAngle = 0;
    Qt::BrushStyle m_pattern = Qt::BDiagPattern;
    QPixmap m_pixmap;
};
