#pragma once

#include <declared/expressions/compiler.h>

#include <shapekit/labellayout.h>

#include <QtCore/QByteArray>
#include <QtCore/QMap>
#include <QtCore/QSizeF>
#include <QtGui/QColor>

#include <array>
#include <memory>

namespace declared {

/// A text by language; English under "en".
using Texts = QMap<QString, QString>;

enum class Sizing { Redrawn, Stretched };
enum class Filling { Shape, Page, None };

enum class PropertyKind { Whole, Real, Switch, Choice, Colour, Text, Numbers, Points };

/// A name and type that a property had in an earlier version of its file.
struct FormerProperty
{
    QString name;
    PropertyKind kind = PropertyKind::Whole;
    int id = 0;
};

struct PropertyDeclaration
{
    using Kind = PropertyKind;
    static constexpr Kind Whole = Kind::Whole, Real = Kind::Real, Switch = Kind::Switch, Choice = Kind::Choice,
                          Colour = Kind::Colour, Text = Kind::Text, Numbers = Kind::Numbers, Points = Kind::Points;

    QString name;
    Kind kind = Whole;
    int id = 0;
    QVector<FormerProperty> former;
    Texts title;
    QString text; ///< of a text
    QColor colour;
    double number = 0; ///< of a whole or real number; 0 or 1 of a switch; the index of a choice
    double from = 0;
    double to = 0;
    double step = 1;
    int count = 0;           ///< of a list
    QVector<double> numbers; ///< of a list; points are pairs
    QStringList entries;     ///< names of a choice
    QVector<Texts> entryTitles;
    bool inPropertyPanel = true;
    bool inSettings = true;
    qint32 slot = 0; ///< of its value, or of its list
};

/// A value that others are made of, in an order in which each only needs what stands before it.
struct LetDeclaration
{
    qint32 slot = 0;
    Expression value;
};

/// Along one axis.
struct AxisDeclaration
{
    bool isLimited = false;
    RangeExpression range;
    Expression step;
    QString follow = QStringLiteral("side");
    double startOffset = 0;
    double endOffset = 0;
};

struct TrackDeclaration
{
    enum Kind { None, Line, Circle, Ellipse, Arc, Sector };

    Kind kind = None;
    QVector<Expression> arguments;
    Expression step;
};

struct PointDeclaration
{
    QPointF centre;
    Place source; ///< in the file
    AxisDeclaration x;
    AxisDeclaration y;
    TrackDeclaration track;
    Expression place;
    Expression allowed;
    Expression hint;
    int mirrored = 0; ///< the number of the point that it mirrors; 0 for none
    bool mirrorsX = false;
    bool mirrorsY = false;
};

/// An SVG attribute and the text that it gets.
struct AttributeDeclaration
{
    QString name;
    Expression text;
};

/// Letters, drawn as outlines.
struct LettersDeclaration
{
    Expression content;
    Expression x; ///< texts of numbers; where they aren't valid the fixed ones hold
    Expression y;
    Expression size;
    double fixedX = 0;
    double fixedY = 0;
    double fixedSize = 16;
    QString drawn;     ///< in the file
    double anchor = 0; ///< the part of the text's width that lies left of x
};

/// An element of the figure that is written anew.
struct ElementDeclaration
{
    QString id;        ///< in the template
    QVector<int> way;  ///< from the root of the file, by index of drawn child
    QVector<int> path; ///< for a part of a repeated element: the way from it, by index of child
    int repeat = -1;   ///< index of the repetition that it belongs to
    QVector<AttributeDeclaration> attributes;
    Expression visible;
    LettersDeclaration letters;
    Place place; ///< in the file
};

struct LoopDeclaration
{
    qint32 slot = 0;
    Expression from;
    Expression to;
};

/// A group whose only child is there once for each round.
struct RepeatDeclaration
{
    QString id;
    QVector<LoopDeclaration> loops;
    QVector<int> way;    ///< from the root of the file, by index of drawn child
    int drawnRounds = 0; ///< children in the file
    /// Inputs that its rounds are made of, its loops aside: slots, lists as -1 - slot.
    QVector<qint32> inputs;
};

using shapekit::LabelAlignment;

/// A text in a box that the user writes.
struct LabelDeclaration
{
    QString id; ///< of its element
    /// Ids of its properties: text, size, bold, colour, alignment.
    std::array<int, 5> ids{};
    Texts title;
    QString text;            ///< of a new shape
    QVector<Expression> box; ///< left, top, width, height
    double size = 12;        ///< of the font
    double smallest = 0;     ///< above 0: the text gets smaller, down to this, until it fits
    bool isBold = false;
    bool hasManyLines = true;
    QColor colour;
    LabelAlignment alignment = LabelAlignment::Middle;
    LabelAlignment vertical = LabelAlignment::Middle;
    /// @name Of a label that is repeated, whose text alone is the user's
    /// @{
    int repeat = -1;         ///< index of the repetition; negative for a single label
    QVector<int> path;       ///< the way from the repeated element, by index of child
    int loops = 1;           ///< of the repetition
    int firstRound = 0;      ///< ids of its texts begin here
    Expression content;      ///< the text of a new shape, where it isn't the same in all rounds
    bool followsPen = false; ///< has the pen's colour
    /// @}
};

/// A place where lines to other objects may end.
struct ConnectionDeclaration
{
    QString name;
    Expression at;
    Expression out; ///< degrees; none for any direction
};

/// Slots of what every file knows.
namespace slots_of {
enum Fixed { Width, Height, Left, Top, Right, Bottom, Middle, PointCount, At, Pen, Fill, PenWidth, Pi, FirstPoint };
/// The list of the control points.
constexpr qint32 PointList = 0;
} // namespace slots_of

/// A shape as its file declares it; never changed once it is read.
struct Declaration
{
    /// A control point by its number; one without rules for a number that damaged data has brought.
    const PointDeclaration &point(int number) const;

    /// Whether the shape succeeds one that was written in C++, and is saved as that one.
    bool isSuccessor() const { return type >= 0; }

    QString id;
    Texts name;
    Texts words;   ///< for searching, besides the name
    QString group; ///< "basic", "mathematics", "diagrams", "science", or a title
    int rank = 0;  ///< place in the group by use; 0 for after those that have one
    Texts groupTitle;
    QByteArray icon; ///< a picture for palettes, SVG; empty: the look of a new shape
    int type = -1;   ///< of the shape that it succeeds; negative: of none
    Place idPlace;   ///< in the file, as that of the layout
    Place layoutPlace;
    Sizing sizing = Sizing::Redrawn;
    Filling filling = Filling::Shape;
    bool keepsAspect = false;
    QSizeF smallest{24, 24};
    int widestPen = 8;
    QSizeF size; ///< of a new shape
    QVector<PropertyDeclaration> properties;
    QVector<LetDeclaration> lets;
    QVector<PointDeclaration> points;
    QVector<RepeatDeclaration> repeats;
    QVector<ConnectionDeclaration> connections;
    QVector<LabelDeclaration> labels;
    QVector<ElementDeclaration> elements;
    Program program;
    int slotCount = 0;
    int listCount = 1;
    QByteArray templateText; ///< plain SVG for the library
    QByteArray text;         ///< the file in one form, which declares the same shape
    QString hash;            ///< hashOf(text)
};

using SharedDeclaration = std::shared_ptr<const Declaration>;

} // namespace declared
