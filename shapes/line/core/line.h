#pragma once

#include "line/core/joints.h"
#include "line/core/linecourse.h"

#include <shapekit/shape.h>

class CBaseObject;

namespace line {

/// A line between two points that the user drags anywhere, with a third point that bends it, and with arrow heads
/// or dots at its ends. Its box fits it. Ends that are joined to other objects stay at them wherever those go: as
/// long as there is one, document units are scene units, and the line goes nowhere else.
class Line : public shapekit::ShapeOfType<43>
{
public:
    enum End { Plain, Arrow, Dot };
    enum Way { Direct, Angled };

    explicit Line(CSVGObj *owner);

    /// The line of a page object; null for an object that is none.
    static Line *of(CBaseObject *object);

    /// Makes a new object, in the creating state, a line that begins and ends at a place (scene coordinates).
    void begin(QPointF place, const QColor &color, double width, End end, Way way = Direct);
    /// Gives a line that is being drawn another end (scene coordinates), and records it; `bend` as in LineCourse.
    void drawTo(QPointF end, QPointF bend);
    /// Joins an end to an object, or to none; nobody records it.
    void join(int end, quint32 object, const QString &place);
    /// Gives a line that is being drawn another end (scene coordinates) on an object, or on none, and records it.
    void drawTo(QPointF end, quint32 object, const QString &place);

    void setSize(QSizeF oldSize, QSizeF newSize) override;
    void notifyObjectCreated() override {}
    bool updateSVG(QZeSvgNode *node, QPointF delta, bool refresh) override;
    bool DoPlaybackActionEx(int actionId, QDataStream &in) override;
    bool GetSpecialProperty(int propId, QDataStream &out) override;
    bool SetSpecialProperty(int propId, QDataStream &in, bool record) override;
    void setPenWidth(int width, bool record) override;
    QSizeF getDefaultSVGSize() override;
    int getMaxPenWidth() override;
    bool permits(OperationType operation) override;
    /// The text in the middle of the way, which leaves room for it.
    QVector<shapekit::LabelPlace> labelPlaces() override;
    bool hideLabel(int propertyId) override;
    /// Those of the label in the section of letters.
    bool GetSettingArray(QJsonArray &settings) override;

protected:
    QRectF range(int number) override;
    QSizeF smallestSize() const override { return {1, 1}; }
    QPointF wantedPoint(int number) override;
    void pointMoved(int number, QPointF centre) override;
    void propertyChanged(const shapekit::Property *property) override;
    void draw() override;

private:
    double headLength();
    double margin();
    void keep(const LineCourse &course);
    void take(const LineCourse &course);
    bool replayJoint(QDataStream &in);
    void keepJoints(const Joints &joints);
    void keepDetour(const QVector<QPointF> &detour);
    /// Scene coordinates of the origin of the document, of a line that is not turned.
    QPointF origin();
    /// @name The drag of an end (pagehost::DraggedEnd)
    /// @{
    /// Its data are those of endState().
    static constexpr int endsAction = 1193;
    bool isUpright() const;
    bool dragEnd(QDataStream &in);
    bool moveEnd(int end, QPointF place, quint32 object, const QString &name);
    void finishEndDrag();
    QByteArray endState();
    bool takeEndState(QDataStream &in);
    /// @}
    bool hasLabel() const { return !m_labelExtent.isEmpty(); }
    QRectF labelBox() const;
    void measureLabel();
    void addWay(shapekit::PathText &path, QPointF start, QPointF end);
    void drawLabel();
    /// Gives the course the parts that are saved elsewhere.
    void completeCourse();
    bool isJoined() const { return m_isEndJoined[0] || m_isEndJoined[1]; }
    /// A point that stays where it is whatever the user does.
    bool isFixed(int number) const;
    bool isHeld(int number) const;
    void follow(const QVector<std::optional<JoinedObject>> &objects);
    void putOnPage();
    bool isOnPage();
    /// The smallest view box with room for the line and its heads.
    QRectF fittingBox();
    /// The view box of an object of that size, with the line in its middle.
    QRectF boxOfSize(const QSizeF &size);
    void addHead(shapekit::PathText &path, End end, QPointF tip, QPointF direction);

    LineCourse m_course; ///< decoded from the property
    shapekit::Choice m_startEnd;
    shapekit::Choice m_endEnd;
    shapekit::DataValue m_saved;
    shapekit::Choice m_way;
    Joints m_joints; ///< decoded from the property
    shapekit::DataValue m_savedJoints;
    shapekit::DataValue m_savedDetour;
    shapekit::TextValue m_label;
    shapekit::RealNumber m_labelSize;
    QVector<QPointF> m_detour;           ///< decoded from the property
    QSizeF m_labelExtent;                ///< document units; empty without a label
    QByteArray m_endsBefore;             ///< the drag of an end
    std::array<bool, 2> m_isEndJoined{}; ///< to an object that is there
    bool m_isLabelHidden = false;        ///< its letters and the point among them
};

} // namespace line
