#pragma once

#include "page/keydrag.h"

#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtCore/QString>
#include <QtCore/QVector>

class CBaseObject;
class QKeyEvent;
class QLineEdit;
class QGraphicsView;
class QPainter;

namespace board {

struct ControlPoint;

/// Does with keys what the mouse does at the grips of the selected object. One thing has the focus: the object, one
/// of its control points, its size grip or its turn grip; arrow keys change that.
class KeyHand : public QObject
{
    Q_OBJECT

public:
    enum Part { Whole, Point, Size, Turn };

    explicit KeyHand(QGraphicsView *view);

    /// The page that the view shows; null for none.
    void setPage(pagehost::Page *page);

    /// How points without a meaning are called ("Point %1").
    void setPointName(const QString &pattern) { m_pointName = pattern; }
    /// The present one of the object: what it sets, else its name and place.
    QString told(CBaseObject *object, int number) const;
    /// To the next thing on the page, from the last to the first; false on an empty page.
    bool walk(bool forward);
    /// To the next object.
    bool walkObjects(bool forward);
    /// True when the key changed what has the focus.
    bool keyPress(const QKeyEvent &event);
    /// From a grip to its object; false where there was no grip.
    bool goBack();
    /// The key was let go: what it has done is one undo step.
    void finish() { m_drag.finish(); }
    /// Selects the object and takes it, or a part of it. False where the page can't be edited.
    bool take(CBaseObject *object, Part part = Whole, int number = 0);
    /// Moves a point as keys do, as an undo step of its own, and takes it; item coordinates.
    bool putPoint(CBaseObject *object, int number, const QPointF &place);
    /// The same to where it sets a number, for a point whose hint has one and that moves one way.
    bool putValue(CBaseObject *object, int number, double value);
    /// Turns an object that can be turned to an angle, in degrees, as an undo step of its own.
    bool turnTo(CBaseObject *object, double degrees);

    Part part() const;
    /// Number of the control point that has the focus; 0 without one.
    int point() const { return part() == Point ? m_stop.number : 0; }
    /// The only selected object; null without one.
    CBaseObject *object() const;
    void paint(QPainter *painter) const;

Q_SIGNALS:
    /// To another thing, or that has changed by keys.
    void focusMoved();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct Stop
    {
        Part part = Whole;
        int number = 0;

        bool operator==(const Stop &other) const { return part == other.part && number == other.number; }
    };

    bool isEditable() const;
    static QVector<Stop> stopsOf(CBaseObject *object);
    void focus(CBaseObject *object, const Stop &stop);
    bool movePoint(const QKeyEvent &event);
    bool moveBy(const QPointF &sceneStep);
    bool moveTo(const QPointF &place);
    bool resize(const QKeyEvent &event);
    bool turn(const QKeyEvent &event);
    void ask(const QString &firstLetter);
    void answer();
    void approach(const ControlPoint &point, double wanted);
    QPointF placeOfFocus() const;
    void paintRing(QPainter *painter, const QPoint &middle) const;
    void paintBubble(QPainter *painter, const QPoint &top) const;

    QGraphicsView *m_view;
    QPointer<pagehost::Page> m_page;
    KeyDrag m_drag;
    QPointer<CBaseObject> m_of; ///< the object that m_stop is of
    Stop m_stop;
    QString m_pointName;
    QPointer<QLineEdit> m_field; ///< for the value that is typed
};

} // namespace board
