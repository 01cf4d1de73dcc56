#pragma once

#include <shapekit/label.h>
#include <shapekit/shape.h>

namespace callout {

/// A speech balloon. Its sides grow with the page object; its corners and the root of its tail keep their size. The
/// control point is the tip of the tail, which points anywhere: the page object's box has room for balloon and tip.
///
/// The origin of the document is the corner of the balloon's frame, which has room for a tail below the balloon; a
/// tip outside of it extends the view box.
class Callout : public shapekit::ShapeOfType<6>
{
public:
    explicit Callout(CSVGObj *owner);

    void setSize(QSizeF oldSize, QSizeF newSize) override;
    void notifyObjectCreated() override;
    /// @name Undo steps that bring balloon, tip and box back to the last bit
    /// @{
    bool mousePressEvent(QGraphicsSceneMouseEvent *event) override;
    bool mouseReleaseEvent(QGraphicsSceneMouseEvent *event) override;
    bool DoPlaybackActionEx(int actionId, QDataStream &in) override;
    /// @}
    bool updateSVG(QZeSvgNode *node, QPointF delta, bool refresh) override;
    QVector<shapekit::Connection> connections() override;
    QVector<shapekit::LabelPlace> labelPlaces() override;
    bool hideLabel(int propertyId) override;
    bool GetSettingArray(QJsonArray &settings) override;

protected:
    QRectF range(int number) override;
    QSizeF smallestSize() const override;
    QPointF wantedPoint(int number) override;
    void pointMoved(int number, QPointF centre) override;
    void propertyChanged(const shapekit::Property *property) override;
    void draw() override;
    /// @name The label, where it isn't that of a new callout
    /// @{
    using ShapeOfType::loadValues;
    using ShapeOfType::saveValues;
    void saveValues(QJsonObject &object) override;
    void loadValues(const QJsonObject &object) override;
    QByteArray furtherValue() const override;
    void takeFurtherValue(const QByteArray &bytes) override;
    /// @}

private:
    QSizeF balloonFrame() const;
    QRectF fittingBox() const;
    void keepFrame(const QSizeF &size);
    QByteArray state() const;
    bool takeState(QDataStream &in);
    QString pathWithTailBelow(const QRectF &box);
    QRectF balloonBox();
    QRectF labelBox();
    void takeFrame();
    void drawLabel();

    QSizeF m_frame;                               ///< of the balloon; empty for the whole view box
    shapekit::Place m_tip{{24, 106}, {142, 112}}; ///< where it was put, and the frame of that time
    QByteArray m_beforeDrag;                      ///< the state
    /// The frame, where it isn't the whole view box; files of earlier versions lack it.
    shapekit::DataValue m_savedFrame;
    shapekit::Label m_label;
    shapekit::LabelLayout m_letters;
    bool m_isLabelHidden = false;
};

} // namespace callout
