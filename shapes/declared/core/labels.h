#pragma once

#include <declared/core/labellayout.h>
#include <declared/core/labeltitles.h>
#include <declared/core/shapestate.h>

#include <shapekit/property.h>
#include <shapekit/styledshape.h>

#include <QtCore/QJsonObject>

#include <memory>
#include <vector>

class QXmlStreamWriter;
class QZeSvgTinyDocument;

namespace declared {

/// The labels of one shape: texts in boxes that the user writes, each with its size, weight, colour and alignment
/// as properties.
///
/// The document shows their letters as outlines, so that they look alike everywhere; exported pictures have them as
/// SVG text.
class Labels
{
public:
    /// Registers the properties. The declarations and their titles outlive the labels.
    Labels(shapekit::PropertiedShape *shape, const QVector<LabelDeclaration> &declarations,
           const std::vector<LabelTitles> &titles);

    void draw(QZeSvgTinyDocument &document, ShapeState &state);
    /// Where the labels stand, document units; those without a box are left out.
    QVector<shapekit::LabelPlace> places() const;
    /// An exported picture with text instead of outlines.
    QByteArray withTexts(const QByteArray &svg) const;
    /// By id; empty without labels.
    QJsonObject toJson() const;
    void fromJson(const QJsonObject &labels);

private:
    struct Label
    {
        const LabelDeclaration *declared = nullptr;
        std::unique_ptr<shapekit::TextValue> text;
        std::unique_ptr<shapekit::RealNumber> size;
        std::unique_ptr<shapekit::Switch> bold;
        std::unique_ptr<shapekit::ColorValue> colour;
        std::unique_ptr<shapekit::Choice> alignment;
        QRectF box; ///< null while it has none
        LabelLook look;
        LabelLayout layout; ///< for that look
    };

    static LabelLook lookOf(const Label &label);
    static void writeText(QXmlStreamWriter &writer, const Label &label);
    const Label *labelWithId(const QString &id) const;

    std::vector<Label> m_labels;
};

} // namespace declared
