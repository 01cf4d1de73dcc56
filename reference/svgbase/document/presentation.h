#pragma once

#include "animation/model.h"
#include "document/document.h"
#include "scene/drawreport.h"

namespace Svg {

/// A document's look at a moment of its animation: a copy that shares everything that is not animated. The document
/// keeps its own values; its changes appear at the next moment.
class Presentation
{
public:
    explicit Presentation(const Document &base);

    /// Advances to a moment. Returns whether that changes the drawing.
    bool show(Document &base, ClockTime time);
    Document &document() { return m_document; }
    /// Parts left out because of limits.
    DrawReport report() const;
    /// The view box at the moment, if it is animated.
    std::optional<QRectF> viewBox() const;

private:
    void takeOver(Document &base);
    void showAttribute(AnimatedAttribute *attribute, const Document &base);
    bool update(AnimatedAttribute *attribute);
    void write(const AnimatedAttribute &attribute, const Document &base);
    void writeStyle(NodeIndex target, const Document &base);

    Document m_document;
    AnimationModel m_model;
    quint32 m_baseRevision = 0;
    bool m_read = false;
};

} // namespace Svg
