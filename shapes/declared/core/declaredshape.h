#pragma once

#include <declared/core/figure.h>
#include <declared/core/labels.h>
#include <declared/core/savedplaces.h>
#include <declared/core/shapekind.h>

#include <shapekit/shape.h>

#include <QtCore/QJsonObject>

#include <functional>
#include <memory>
#include <vector>

namespace declared {

/// A shape that a file declares: its points, properties and figure are what the file's expressions say.
///
/// Behind the data of every shape it saves one JSON object under "SVG_Declared": "form" 1, the "id" of the shape,
/// the hash of the file's text, the places where the points were put, and the values of the properties by name,
/// choices by the name of their entry; for hosts that keep no texts also the text itself. Other members stay. A
/// shape that succeeds a coded one saves what that one saved.
class DeclaredShape : public shapekit::Shape
{
public:
    /// Type numbers of a shape that the page object fills, and of one that its document fills.
    static constexpr int pageFilledType = 24;
    static constexpr int shapeFilledType = 1024;
    /// Action of undo steps and lessons in which the page object becomes one of another text. Its data are the JSON
    /// of the core, whose "SVG_Declared" names the text. Lies below the ids of properties.
    static constexpr int versionAction = 1048574;
    /// Action of undo steps and lessons at the end of a drag: where all points were put. The library's own action
    /// names where one point stands, which other points and the size may keep from where it was put.
    static constexpr int placesAction = 1048575;

    /// `kind` outlives the shape.
    DeclaredShape(CSVGObj *owner, const ShapeKind &kind);

    const ShapeKind &shapeKind() const { return m_kind; }
    /// Whether the file's text is saved with the shape, which it is unless the host keeps it.
    void setTextInlined(bool inlined) { m_isTextInlined = inlined; }
    /// Takes the place of a shape that another text declares: points by number, properties by name.
    void takeOver(DeclaredShape &former);
    /// Receives versionAction, and after retire() everything that is replayed.
    using Replay = std::function<bool(int actionId, QDataStream &in)>;
    void setReplay(const Replay &replay) { m_replay = replay; }
    /// Another core is the present one of the page object from now on.
    void retire();
    /// Becomes the present core again.
    void resume() { m_isRetired = false; }
    /// False as long as no undo step can refer to the shape.
    bool isDragged() const { return activeControlPoint != nullptr; }
    bool mayHaveUndoSteps() const { return m_mayHaveUndoSteps; }
    void noteUndoStep() { m_mayHaveUndoSteps = true; }

    QString getSVG() override;
    bool mousePressEvent(QGraphicsSceneMouseEvent *event) override;
    bool mouseReleaseEvent(QGraphicsSceneMouseEvent *event) override;
    bool getInnerProperty(int propId, QDataStream &out) override;
    bool setInnerProperty(int propId, QDataStream &in, bool record, bool addUndo) override;
    int actionIdToPropId(int actionId) override;
    void initSpecialPropItems() override;
    bool DoPlaybackActionEx(int actionId, QDataStream &in) override;
    bool GetSpecialProperty(int propId, QDataStream &out) override;
    int getMaxPenWidth() override { return m_declaration.widestPen; }
    void setPenColor(QColor color, bool record) override;
    void setFillBrush(const QBrush &brush, bool record, bool notify) override;
    QRectF paintedArea() override;
    /// Those of the file, if it has any.
    QVector<shapekit::Connection> connections() override;
    QVector<shapekit::LabelPlace> labelPlaces() override;
    bool hideLabel(int propertyId) override;
    QByteArray toSvg() override;
    /// Those of labels in the section of letters.
    bool GetSettingArray(QJsonArray &settings) override;
    bool SetSettingArray(QMap<QString, QString> &values, bool record, bool undo) override;
    QString getPropName(int propId) override;
    /// A picture for palettes, SVG; empty: the look of a new shape.
    QByteArray icon() const { return m_declaration.icon; }

    /// @name Seen by a review of the file
    /// @{
    QZeSvgTinyDocument *drawing() const { return document; }
    /// The values of the present moment.
    ShapeState &presentState();
    QVector<QPointF> standingPoints() const;
    /// The limits of a point that its file leaves open.
    QRectF freeRange(int number) { return Shape::range(number); }
    /// @}

protected:
    QRectF range(int number) override;
    QPointF settled(int number, QPointF centre) override;
    QSizeF smallestSize() const override { return m_declaration.smallest; }
    bool mayMove(int number, QPointF centre) override;
    void pointMoved(int number, QPointF centre) override;
    QString hint(int number) override;
    void draw() override;
    void propertyChanged(const shapekit::Property *property) override;
    void saveValues(QDataStream &out) override;
    void loadValues(QDataStream &in) override;
    void saveValues(QJsonObject &object) override;
    void loadValues(const QJsonObject &object) override;
    QByteArray furtherValue() const override;
    void takeFurtherValue(const QByteArray &bytes) override;

private:
    /// Takes values that are recorded under the id of an earlier version of the file.
    struct FormerValue
    {
        std::unique_ptr<shapekit::Property> property;
        PropertyKind kind;
        int successor; ///< index of the declared property
    };

    void addProperties(const ShapeKind &kind);
    void addFormerProperties(const ShapeKind &kind, int index);
    std::unique_ptr<shapekit::Property> makeProperty(const ShapeKind &kind, int index, PropertyKind valueKind);
    /// Hands the present size, look, points and properties to the expressions.
    void updateState();
    void updateProperty(int index);
    void finishDrag();
    /// The hint of a point that were put to `centre`; document units.
    QString hintAt(int number, QPointF centre);
    void writePointEnds(QDataStream &out);
    void addLetterControls(QJsonArray &settings);
    bool setLetters(LetterStyle::Part part, QDataStream &in, bool record, bool addUndo);
    bool writeRound(int id, QDataStream &in, bool record, bool addUndo);
    void putPoints(const Places &places);
    QJsonObject values() const;
    void takeValues(const QJsonObject &values);

    const ShapeKind &m_kind;
    const Declaration &m_declaration;
    QJsonObject m_unknown; ///< members that a newer version has saved
    bool m_isTextInlined = true;
    bool m_mayHaveUndoSteps = false;
    bool m_isRetired = false;
    Replay m_replay;
    Places m_placesBeforeDrag;
    ShapeState m_state;
    Figure m_figure;
    std::vector<std::unique_ptr<shapekit::Property>> m_values; ///< by index of the declared property
    std::vector<FormerValue> m_former;
    Labels m_labels;
};

} // namespace declared
