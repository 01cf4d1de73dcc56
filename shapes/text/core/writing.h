#pragma once

#include "text/core/magnification.h"
#include "text/core/textlayout.h"

#include <shapekit/shape.h>

class CBaseObject;

namespace text {

/// A text that the user writes on the page. Its box fits the text; dragging a corner makes the letters larger.
class Writing : public shapekit::ShapeOfType<42, shapekit::Shape::Stretched>
{
public:
    explicit Writing(CSVGObj *owner);

    /// The text of a page object; null for an object that is none.
    static Writing *of(CBaseObject *object);

    /// Makes a new object, in the creating state, an empty text.
    void begin(const QColor &color, double fontSize);
    /// Breaks lines to that width (document units); 0 for no breaks but those of the text.
    void wrapTo(double width);

    QString getSVG() override;
    QSizeF getDefaultSVGSize() override;
    QVector<shapekit::LabelPlace> labelPlaces() override;
    bool hideLabel(int propertyId) override;
    bool GetSpecialProperty(int propId, QDataStream &out) override;
    bool SetSpecialProperty(int propId, QDataStream &in, bool record) override;
    /// With the colour of the letters and the kind of list, which aren't properties of their own.
    bool GetSettingArray(QJsonArray &settings) override;
    bool SetSettingArray(QMap<QString, QString> &values, bool record, bool undo) override;
    QVector<const shapekit::Text *> texts() const override;

protected:
    QSizeF smallestSize() const override { return {4, 4}; }
    void propertyChanged(const shapekit::Property *property) override;

private:
    TextLook look() const;
    void rebuild();
    void writeLinkAreas(QDataStream &out);
    bool takeLinks(QDataStream &in, bool record);

    shapekit::TextValue m_text;
    shapekit::RealNumber m_fontSize;
    shapekit::Switch m_bold;
    shapekit::Switch m_italic;
    shapekit::Choice m_alignment;
    shapekit::RealNumber m_wrapWidth;
    shapekit::Switch m_underlined;
    shapekit::DataValue m_links;
    shapekit::TextValue m_font;
    Magnification m_magnification;
    bool m_areLettersHidden = false;
};

} // namespace text
