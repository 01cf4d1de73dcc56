#include <shapekit/shape.h>

#include <svgbase/qzesvgtinydocument.h>

using namespace shapekit;

const Text pictureText("Picture", "Bild"), opacityText("Opacity", "Deckkraft");

/// A dropped or pasted picture in its own colours, kept as SVG text.
class Picture : public ShapeOfType<2, Shape::Stretched>
{
public:
    static constexpr bool takesPictures = true;
    explicit Picture(CSVGObj *owner)
        : ShapeOfType(owner)
    {
        keepsItsLook = true;
        propPenEnabled = propPenStyleEnabled = propPenWidthEnabled = false;
    }
    QString getSVG() override
    {
        const QByteArray own = picture;
        return own.isEmpty() ? ShapeOfType::getSVG() : QString::fromUtf8(own);
    }
    QSizeF getDefaultSVGSize() override { return naturalSize(); }
    void takePicture(const QByteArray &svg) override
    {
        picture = svg;
        reloadTemplate();
    }

protected:
    QSizeF smallestSize() const override { return {4, 4}; }
    void propertyChanged(const Property *property) override
    {
        if (property != &opacity)
            reloadTemplate();
        draw();
    }
    void draw() override { document->setAttribute(QStringLiteral("opacity"), QString::number(opacity)); }

private:
    DataValue picture{this, pictureText};
    RealNumber opacity{this, opacityText, 1, 0.1, 1, 0.05};
};

SHAPEKIT_PLUGIN(Picture, "Picture", "Bild", Basic)
