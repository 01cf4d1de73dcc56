#pragma once

#include <pagehost/pointer.h>

#include <QtCore/QPointF>
#include <QtCore/QRectF>
#include <QtCore/QString>
#include <QtCore/QVector>
#include <QtCore/QtGlobal>
#include <QtGui/QColor>
#include <QtGui/QCursor>

class CBaseObject;

namespace pagehost {

/// The purpose of a tool. A plug-in implements some of them; applications offer those that some plug-in implements.
enum class ToolRole { Pen, Highlighter, Eraser, Text, Line, Connector };

/// The settings of a tool that the user chooses before using it.
struct ToolStyle
{
    QColor color;             ///< of the line or the letters
    double width = 0;         ///< of the line, of the eraser, or the height of letters, scene units
    int variant = 0;          ///< 0 for the usual one; see the role's variants
    bool usesPressure = true; ///< strokes are wider under more pressure
    bool straightens = true;  ///< holding the pen still makes a stroke a line, an arc or a circle
};

/// @name Variants of tools
/// @{

/// Of ToolRole::Eraser.
enum EraserVariant { WholeStrokes, StrokeParts };
/// Of ToolRole::Line.
enum LineVariant { PlainLine, ArrowLine, CurvedLine };
/// Of ToolRole::Connector; arrows have a head at the end.
enum ConnectorVariant { StraightConnector, AngledConnector, StraightArrow, AngledArrow };
/// @}

/// One position of the mouse, the pen or a finger.
struct ToolPointer
{
    QPointF pos;                     ///< scene coordinates
    double pressure = -1;            ///< 0 to 1; below 0 for a device that measures none
    double pixel = 1;                ///< a pixel of the view, scene units
    Qt::KeyboardModifiers modifiers; ///< held keys
    bool movesStart = false;         ///< a drag moves the place where it began along with the pointer
    Pointer kind = Pointer::Mouse;   ///< the device
};

/// The page as tools see it. Changes show at once; those since the last commit() are one undo step.
class ToolPage
{
public:
    /// How a change is followed up.
    enum Afterwards {
        Stay,   ///< the tool stays in use
        Select, ///< the added objects become the selection, and the user goes on with selecting
        Write   ///< like Select; the user writes the first label of the added object
    };
    /// Where a line is joined to an object; without an object it is not.
    struct Connection
    {
        CBaseObject *object = nullptr; ///< null where the line is not joined
        QString place;                 ///< the name of one of its ConnectionPlaces; empty for its outline
    };

    virtual ~ToolPage() = default;

    /// A new object of the kind, in the creating state and on no page; null for an unknown kind. add() or the
    /// caller owns it.
    virtual CBaseObject *createObject(const QString &kindId) = 0;
    /// Puts an object on the page, which owns it from then on: directly above `below`, or on top.
    virtual void add(CBaseObject *object, const CBaseObject *below = nullptr) = 0;
    /// Takes an object off the page.
    virtual void remove(CBaseObject *object) = 0;
    /// Objects whose bounds meet the area (scene coordinates), bottom to top.
    virtual QVector<CBaseObject *> objectsIn(const QRectF &area) const = 0;
    /// Makes the changes an undo step. `textKey` is its localisation key. Without a change nothing happens.
    virtual void commit(const QString &textKey, Afterwards afterwards) = 0;
    /// Has the user go on with the text that an object has at the position (scene coordinates), as with Write.
    /// False where there is none.
    virtual bool writeAt(const QPointF &pos) = 0;
    /// Takes the changes back, without a trace.
    virtual void revert() = 0;
    /// The object that a line which ends at the pointer can be joined to, and where. Objects that can follow others
    /// are not offered.
    virtual Connection connectionAt(const ToolPointer &pointer) const = 0;
    /// The number by which others follow the object (FollowedObjects); from then on it has one. 0 on a page without
    /// document.
    virtual quint32 numberOf(CBaseObject *object) = 0;
    /// Highlights the object that a line is about to be joined to, and its ConnectionPlaces; null for none.
    virtual void highlight(CBaseObject *object) = 0;
};

/// Draws on a page with the pointer. The scene hands it each press of the main button with the moves that follow
/// and the release; positions are in scene coordinates.
class PageTool
{
public:
    PageTool() = default;
    virtual ~PageTool() = default;
    PageTool(const PageTool &) = delete;
    PageTool &operator=(const PageTool &) = delete;

    /// Takes effect with the next press.
    virtual void setStyle(const ToolStyle &style) { Q_UNUSED(style) }
    /// Of the waiting tool. `pixel` is a pixel of the view, scene units.
    virtual QCursor cursor(double pixel) const
    {
        Q_UNUSED(pixel)
        return Qt::CrossCursor;
    }

    /// The main button, the pen or a finger goes down.
    virtual void press(const ToolPointer &pointer) = 0;
    /// It moves.
    virtual void move(const ToolPointer &pointer) = 0;
    /// It goes up.
    virtual void release(const ToolPointer &pointer) = 0;
    /// Between press and release, or between the clicks of one drawing.
    virtual bool isDrawing() const = 0;
    /// Takes back the drawing that is going on, or ends waiting. False when there was nothing to cancel.
    virtual bool cancel() = 0;

    /// The pointer moves over the page without being pressed, while nothing is drawn.
    virtual void hover(const ToolPointer &pointer) { Q_UNUSED(pointer) }
    /// The pointer has left the view in which it hovered.
    virtual void hoverEnd() {}
    /// Milliseconds after which heldStill() is due while the pressed pointer rests; 0 for never.
    virtual int stillTime() const { return 0; }
    /// The pressed pointer has rested for stillTime().
    virtual void heldStill() {}
    /// True when the tool used the key (Qt::Key).
    virtual bool keyPress(int key)
    {
        Q_UNUSED(key)
        return false;
    }
};

/// A plug-in that has tools. A second interface of an ObjectPlugin.
class ToolPlugin
{
public:
    virtual ~ToolPlugin() = default;
    /// The tools that the plug-in has.
    virtual QVector<ToolRole> toolRoles() const = 0;
    /// A tool that works on `page`, which outlives it; the caller owns it. Null for a role that is not among
    /// toolRoles().
    virtual PageTool *createTool(ToolRole role, ToolPage *page) const = 0;
};

} // namespace pagehost
