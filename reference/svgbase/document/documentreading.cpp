#include "document/documentreading.h"

#include "document/prototype.h"
#include "geometry/shapegeometry.h"
#include "resolve/viewports.h"

namespace Svg {

namespace {

/// The size that CSS gives to content without one of its own.
constexpr QSizeF defaultSize(300, 150);

class PrototypeReader : public DocumentReader
{
public:
    ImagePointer read(const QByteArray &text, Problem *problem) const override;
};

bool isRelative(const Node &root, AttributeId side)
{
    const std::optional<Length> length = parseLength(root.attributes.value(side));
    return !length || length->unit == Unit::Percent;
}

ImagePointer PrototypeReader::read(const QByteArray &text, Problem *problem) const
{
    Messages messages;
    const PrototypePointer prototype = makePrototype(text, &messages);
    if (!prototype) {
        *problem = {Message::InvalidImage, QStringLiteral("The document inside the image can't be read.")};
        return nullptr;
    }
    const Node &root = prototype->tree().node(rootNode);
    const auto content = std::make_shared<ImageContent>();
    content->document = prototype;
    const QRectF viewBox = rootViewBox(root);
    const QSizeF window = viewBox.isEmpty() ? defaultSize : viewBox.size();
    content->window = window;
    content->takesSize =
        viewBox.isEmpty() && isRelative(root, AttributeId::Width) && isRelative(root, AttributeId::Height);
    content->box = shownArea(root, window);
    const LengthReader lengths(root.attributes, {window, ComputedStyle().font.size});
    content->size = QSizeF(lengths.size(AttributeId::Width, Axis::Horizontal, window.width()),
                           lengths.size(AttributeId::Height, Axis::Vertical, window.height()));
    return content;
}

} // namespace

const DocumentReader &documentReader()
{
    static const PrototypeReader reader;
    return reader;
}

} // namespace Svg
