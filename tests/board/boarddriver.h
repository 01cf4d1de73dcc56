#pragma once

#include <board/hands.h>

#include <core/workspace.h>

#include <framework/cobjaction.h>

#include <QtCore/QPointF>
#include <QtCore/QRect>
#include <QtCore/QVector>

#include <memory>

class CBaseObject;
class QAction;
class QPushButton;
class QUndoStack;

namespace pagehost {
class Page;
class PageScene;
} // namespace pagehost

namespace board {
class MainWindow;
class PageView;
class PaletteButton;
} // namespace board

namespace boardtest {

extern const QString rectangle;
extern const QString arrow;
extern const QString polygon;
extern const QString flask;

/// Folders of this process for settings and data, so that those of the user who runs the tests are left alone.
void useOwnFolders();

/// Makes the shown window the one that keys go to; without a window manager nobody else does. False if it never is.
bool activate(QWidget &window);

/// The board's window with its panel pinned, without snapping, an empty page at 100 %, and the user's hands.
/// Positions are scene coordinates; at 100 % they are whole pixels. The middle of the page, (640, 360), is in the
/// middle of the view.
class BoardDriver
{
public:
    explicit BoardDriver(const QString &language = QStringLiteral("en"));
    ~BoardDriver();

    board::Workspace &workspace() { return *m_workspace; }
    /// Kinds that users draw with the mouse; tools make the others.
    QVector<pagehost::ObjectKind> drawableKinds() const;
    board::MainWindow &window() const { return *m_window; }
    board::PageView &view() const;
    pagehost::Page &page() const;
    pagehost::PageScene &scene() const;
    QUndoStack &history() const;

    /// Whoever uses this board.
    Hands &user() const { return *m_hands; }

    /// @name Mouse
    /// @{
    void press(const QPointF &pos, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void moveTo(const QPointF &pos, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void release(const QPointF &pos, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void click(const QPointF &pos, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    /// A double click whose second press is held.
    void pressTwice(const QPointF &pos);
    void doubleClick(const QPointF &pos);
    /// Press, several moves, release.
    void drag(const QPointF &from, const QPointF &to, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    /// The same without the release.
    void hold(const QPointF &from, const QPointF &to, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void hover(const QPointF &pos);
    /// Turns the wheel by a notch; away from the user for +1.
    void wheel(const QPointF &pos, int notches, Qt::KeyboardModifiers modifiers);
    /// A pen, 0 to 1 hard. True if the event was used as one of a pen.
    bool pen(QEvent::Type type, const QPointF &pos, double pressure);
    /// @}

    /// @name Keys, and other widgets than the page
    /// @{
    /// Presses the key on the page of the active window.
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    /// Presses the key in a widget that has the focus.
    void keyIn(QWidget *focused, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void type(QWidget *focused, const QString &text);
    void clickOn(QWidget *widget, const QPoint &pos, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void clickOn(QWidget *widget);
    /// @}

    /// @name Widgets by their texts; null when there is none
    /// @{
    QAction *action(const QString &text) const;
    /// A visible button of the window, its bars or its dialogs.
    QPushButton *button(const QString &text) const;
    /// @}

    /// @name Shapes
    /// @{
    /// Picks a kind in the palette and drags it out.
    CBaseObject *draw(const QString &kindId, const QPointF &from, const QPointF &to);
    /// Picks a kind in the palette and waits.
    void pick(const QString &kindId);
    /// Null while the palette is closed, and for a kind that it lacks.
    board::PaletteButton *paletteButton(const QString &kindId) const;
    CBaseObject *only() const;
    QVector<CBaseObject *> selection() const;
    /// Where the object's client rectangle is on the page, for objects that are not turned.
    QRectF placeOf(const CBaseObject *object) const;
    /// The centre of a handle of the selected object, or of the frame of several, found by asking the page around
    /// them what a press would do. Null when there is none.
    QPointF handle(CObjAction::ACT_Def action) const;
    /// @}

private:
    QVector<QPoint> answering(CObjAction::ACT_Def action, const QRect &area, int step) const;
    void sendMove(const QPointF &pos, Qt::MouseButtons held, Qt::KeyboardModifiers modifiers);
    QPoint at(const QPointF &pos) const;

    std::unique_ptr<Hands> m_hands;
    std::unique_ptr<board::Workspace> m_workspace;
    std::unique_ptr<board::MainWindow> m_window;
};

} // namespace boardtest
