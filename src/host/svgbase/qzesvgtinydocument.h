#pragma once

#include <svgbase/qzesvgstructurenode.h>

#include <QtCore/QByteArray>
#include <QtCore/QVector>
#include <QtGui/QBrush>
#include <QtGui/QColor>

#include <functional>

class QPainter;

/// A loaded SVG document: the root structure node, document-wide styling, and drawing.
class SVGBASE_EXPORT QZeSvgTinyDocument : public QZeSvgStructureNode
{
public:
    /// A message of parsing or drawing. Line and column count from 1; 0 when there is no position.
    struct Message
    {
        /// With an error there is no document.
        enum Severity { Warning, Error };
        /// Stable identification for programs; names and numbers never change.
        enum Code {
            Unspecified = 0,
            /// @name Unreadable text
            /// @{
            NotWellFormed = 1,
            NoSvgRoot = 2,
            DamagedCompression = 3,
            /// @}
            /// @name Not understood and without effect
            /// @{
            InvalidProperty = 20,
            InvalidTransform = 21,
            InvalidPathData = 22,
            InvalidPoints = 23,
            InvalidStyleSheet = 24,
            InvalidImage = 25,
            ForeignReference = 26,
            /// @}
            /// @name Limits exceeded; the excess is left out
            /// @{
            TextTooLong = 100,
            NestedTooDeep = 101,
            TooManyElements = 102,
            TooManyAttributes = 103,
            TooManyNamespaces = 104,
            TooManySegments = 105,
            TooManyStyleRules = 106,
            TooManySelectorSteps = 107,
            TooManyPatterns = 108,
            TooManyGradientStops = 109,
            GradientChainTooLong = 110,
            UseTooDeep = 111,
            TooManyReferences = 112,
            TooManyCharacters = 113,
            TooManyTextPaths = 114,
            TextPathTooLong = 115,
            TooManyTextLengths = 116,
            TransformTooLarge = 118,
            TooManyDashes = 119,
            TooManyBoundsVisits = 120,
            EffectsTooDeep = 121,
            TooMuchPainting = 122,
            TooManyLayerPixels = 123,
            TooManyImagePixels = 124,
            ImagesTooDeep = 125,
            TooManyFilterPrimitives = 126,
            TooManyAnimationValues = 127,
            TooManyAnimationConditions = 128,
            TooManyAnimationEvents = 129,
            MotionPathsTooLong = 130,
            TooManyStrokeElements = 131,
            ListTooLong = 132,
            /// @}
        };
        Severity severity = Warning; ///< how bad it is
        QString text;                ///< in English for people
        qint64 line = 0;             ///< of the text
        qint64 column = 0;           ///< in the line
        QString elementId;           ///< id of the element; empty where there is none
        Code code = Unspecified;     ///< what it is about
    };

    /// Arguments of the last draw().
    struct DrawRecord
    {
        QRectF target;         ///< painter units
        float scale = 0;       ///< see draw()
        bool viewFlag = false; ///< see draw()
    };

    /// Parses UTF-8 SVG text into a new document that the caller owns. Null when the text is not well-formed XML
    /// with an "svg" root or exceeds a limit of the library; `messages`, if given, then receives reason and
    /// position.
    static QZeSvgTinyDocument *load(const QByteArray &text, QVector<Message> *messages = nullptr);
    ~QZeSvgTinyDocument() override;

    /// Messages of parsing this document, and of parts left out by its last drawing.
    QVector<Message> messages() const;

    /// The node with that id, control points and definitions included; null when there is none. The first in
    /// document order where an id stands twice.
    QZeSvgNode *namedNode(const QString &id) const;

    /// The visible part, document units. While the stored one is null (width and height both 0), the transformed
    /// bounds are computed, stored as the view box and returned.
    QRectF viewBox() const;
    /// Sets the visible part, document units; a null one is computed when it is asked for.
    void setViewBox(const QRectF &box);

    /// Stores a function that draw() calls with its painter, before the first node is drawn and with the painter in
    /// document units. An empty function removes it.
    void setCallback(const std::function<void(QPainter *)> &callback);

    /// @name Document-wide styling
    /// Setters reach every node whose stroke (or fill) is enabled. Getters give what was last set, else the value
    /// of the first such node in document order that has one (control points, whose flags are off, aside), else the
    /// initial values: black, solid, 1, no brush.
    /// @{

    /// Of every stroke.
    void setAllStrokeColor(QColor color);
    /// Of every stroke.
    void setAllStrokeStyle(Qt::PenStyle style);
    /// Of every stroke, user units.
    void setAllStrokeWidth(double width);
    /// Of every fill.
    void setAllFillBrush(const QBrush &brush);
    /// Of the strokes.
    QColor getAllStrokeColor() const;
    /// Of the strokes.
    Qt::PenStyle getAllStrokeStyle() const;
    /// Of the strokes, user units.
    double getAllStrokeWidth() const;
    /// Of the fills.
    QBrush getAllFillBrush() const;
    /// @}

    /// Draws the document with its view box stretched over `target` (painter units, no regard for aspect ratio),
    /// magnified by `scale` about the target's centre. Control points (ids "control_1", "control_2", ...) are drawn
    /// above everything else, with their own template style and counter-scaled about their centres so that they
    /// look square, with lines as wide on screen as the template says at every zoom, and only while `viewFlag` is
    /// set and the selection state is 1. An empty target or view box draws nothing. The painter's state is the same
    /// afterwards.
    void draw(QPainter *painter, const QRectF &target, float scale, bool viewFlag);

    /// 1 while the shape is selected, else 0.
    int selectionState() const;
    /// See selectionState().
    void setSelectionState(int state);
    /// Asks the next draw() to settle pending changes before it draws; draw() clears the flag.
    bool isBeforeDraw() const;
    /// See isBeforeDraw().
    void setBeforeDraw(bool on);
    /// All zeros before the first one.
    DrawRecord lastDraw() const;

    /// @name Animation
    /// @{

    /// Whether the document contains animation elements, running or not.
    bool animated() const;
    /// Starts the document's clock, or resumes it where it was stopped. Before the first start nothing is animated;
    /// animated values show in draw() alone, and reading a node gives its base values.
    void startAnimate();
    /// Stops the clock; the drawing stays frozen at that moment.
    void stopAnimate();
    /// Sets the clock, seconds since its start; a running clock goes on from there. True when that changes the
    /// drawing. Ignores NaN.
    bool setAnimationTime(double seconds);
    /// The present time of the clock, seconds.
    double animationTime() const;
    /// @}

    /// Draws the document as a viewer shows a file: its view box is fitted into `viewport` (painter units) by the
    /// root's own "preserveAspectRatio", and nothing outside of `viewport` is painted. A root without "viewBox"
    /// shows the area of its "width" and "height"; where those are absent or percentages, user units are painter
    /// units. Nothing is drawn when a size is 0 or negative (SVG 1.1 §5.1.2, §7.7).
    void drawFitted(QPainter *painter, const QRectF &viewport);
    /// The document as UTF-8 text that draws identically: attributes as last set, document-wide styling as "style"
    /// attributes, the view box as last set. Comments, scripts and text that is never drawn are not written;
    /// control points are, under their ids. A brush that SVG has no paint for is written as its colour.
    QByteArray toSvg() const;

private:
    explicit QZeSvgTinyDocument(std::unique_ptr<QZeSvgNodePrivate> record);
    friend class QZeSvgNodePrivate;
};
