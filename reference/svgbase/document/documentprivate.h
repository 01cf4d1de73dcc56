#pragma once

#include "document/document.h"
#include "document/handles.h"
#include "document/presentation.h"

#include <svgbase/qzesvgtinydocument.h>

#include <QtCore/QElapsedTimer>
#include <QtCore/QHash>
#include <QtCore/QSet>

/// Implementation of a public document.
class DocumentPrivate : public QZeSvgNodePrivate
{
public:
    explicit DocumentPrivate(const Svg::PrototypePointer &prototype);
    /// A copy without node objects.
    DocumentPrivate(const DocumentPrivate &other);
    ~DocumentPrivate() override;

    static DocumentPrivate *of(const QZeSvgTinyDocument *document);

    /// The node object of an index; made on first use, the document itself for the root.
    QZeSvgNode *nodeObject(Svg::NodeIndex index);
    /// A node object for a copy, owned by the caller.
    QZeSvgNode *looseNode(Svg::NodeIndex index);
    /// Takes ownership of a node from its caller.
    void adopt(QZeSvgNode *node);
    /// Call this when a node object is deleted while the document exists.
    void nodeDeleted(QZeSvgNodePrivate *node);
    /// Writes the styling flags of node objects below `top` to the tree, from which copies are made.
    void storeFlags(Svg::NodeIndex top);

    bool takesFill(Svg::NodeIndex index) const;
    bool takesStroke(Svg::NodeIndex index) const;
    /// Replaces the override of every enabled node by the result of `change`.
    void restyle(bool (DocumentPrivate::*enabled)(Svg::NodeIndex) const,
                 const std::function<void(Svg::StyleOverride *)> &change);
    /// The first enabled node in document order with a stroke (a fill), except in definitions and control points.
    Svg::NodeIndex firstStroked();
    Svg::NodeIndex firstFilled();
    bool hasAnimations() const;
    /// Outline and pen of a node as drawn, with its override; a default one without geometry.
    Svg::Outline drawnOutline(Svg::NodeIndex index);

    QRectF settledViewBox();
    /// Sets the view box from the root's attributes.
    void readViewBox();
    void draw(QPainter *painter, const QRectF &target, float scale, bool viewFlag);
    void drawFitted(QPainter *painter, const QRectF &viewport);

    Svg::Document content;
    QZeSvgTinyDocument *publicDocument = nullptr;
    QRectF viewBox;
    /// Whether the view box is the bounds of the drawing because the text gives none.
    bool viewBoxMeasured = false;
    std::function<void(QPainter *)> callback;
    /// Document-wide values as last set.
    Svg::StyleOverride lastSet;
    QZeSvgTinyDocument::DrawRecord lastDraw;
    /// Messages about parts left out by the last drawing.
    QVector<Svg::Message> drawMessages;
    int selectionState = 0;
    bool beforeDraw = false;

    /// @name Animation
    /// @{
    void startAnimation();
    void stopAnimation();
    /// Sets the clock. Returns whether that changes the drawing.
    bool setAnimationTime(Svg::ClockTime time);
    Svg::ClockTime animationTime() const;
    /// The document to draw: the content, or its animated state at the last displayed time.
    Svg::Document &shown();
    /// @}

private:
    bool showMoment();
    QRectF shownViewBox();
    Svg::NodeIndex firstStyled(const std::function<bool(Svg::NodeIndex)> &wanted) const;
    void paint(QPainter *painter, const QTransform &stretch, bool withControlPoints);

    /// Made when a moment of the animation is first shown.
    std::unique_ptr<Svg::Presentation> m_presentation;
    QElapsedTimer m_clock;
    /// The time when the clock was last started, stopped or set.
    Svg::ClockTime m_clockTime = 0;
    bool m_clockRuns = false;
    /// Whether the clock was ever started or set; until then animations are not shown.
    bool m_clockUsed = false;
    QHash<Svg::NodeIndex, QZeSvgNode *> m_nodes;
    /// Copies that are in no document yet; their callers delete them.
    QSet<Svg::NodeIndex> m_loose;
};
