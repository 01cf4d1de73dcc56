#include <shapekit/shape.h>

using namespace shapekit;

namespace {

const Text thoughtText("Thought", "Gedanke");

/// A bubble whose tip the user drags to the person who is speaking, or thinking.
class SpeechBubble : public ShapeOfType<101, Shape::Stretched>
{
public:
    using ShapeOfType::ShapeOfType;

protected:
    void draw() override
    {
        PathText bubble;
        bubble.moveTo({20, 5}).lineTo({120, 5}).arcTo(15, {135, 20});
        bubble.lineTo({135, 52}).arcTo(15, {120, 67});
        if (!thought)
            bubble.lineTo({68, 67}).lineTo(point(1)).lineTo({44, 67});
        bubble.lineTo({20, 67}).arcTo(15, {5, 52});
        bubble.lineTo({5, 20}).arcTo(15, {20, 5}).close();
        const QPointF middle = (QPointF(56, 67) + point(1)) / 2;
        if (thought)
            bubble.ellipse(QRectF(-4, -4, 8, 8).translated(middle))
                .ellipse(QRectF(-2, -2, 4, 4).translated(point(1)));
        setPath("figure", bubble);
    }

private:
    Switch thought{this, thoughtText, false};
};

} // namespace

SHAPEKIT_PLUGIN(SpeechBubble, "Speech bubble", "Sprechblase", Basic)
