#pragma once

#include <pagehost/application.h>
#include <pagehost/document.h>
#include <pagehost/page.h>
#include <pagehost/pagescene.h>

#include "framework/testobject.h"

#include <QtTest/QtTest>
#include <QtWidgets/QGraphicsView>
#include <QtWidgets/QScrollBar>

/// A document with one page in a real view, and the user's hands.
class Editor
{
public:
    explicit Editor(double zoom = 1)
    {
        undoStack()->clear();
        pagehost::setCurrentDocument(&document);
        page = document.appendPage();
        view.setScene(page->scene());
        view.setObjectName(QStringLiteral("mainGraphicsView"));
        view.setDragMode(QGraphicsView::RubberBandDrag);
        view.setAlignment(Qt::AlignLeft | Qt::AlignTop);
        view.setFrameShape(QFrame::NoFrame);
        view.viewport()->setMouseTracking(true);
        view.resize(1000, 800);
        view.show();
        if (!QTest::qWaitForWindowExposed(&view))
            qFatal("the view is not shown");
        setZoom(zoom);
    }

    void setZoom(double zoom)
    {
        view.setTransform(QTransform::fromScale(zoom, zoom));
        document.setZoomRate(zoom);
        view.horizontalScrollBar()->setValue(view.horizontalScrollBar()->minimum());
        view.verticalScrollBar()->setValue(view.verticalScrollBar()->minimum());
    }

    template<typename Object = TestObject, typename... Arguments> Object *add(Arguments &&...arguments)
    {
        auto *object = new Object(std::forward<Arguments>(arguments)...);
        page->addObject(object);
        return object;
    }

    /// Positions in scene coordinates.
    QPoint at(const QPointF &pos) const { return view.mapFromScene(pos); }
    void press(const QPointF &pos, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        moveMouse(pos, Qt::NoButton, modifiers);
        QTest::mousePress(view.viewport(), Qt::LeftButton, modifiers, at(pos));
    }
    void moveTo(const QPointF &pos, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        moveMouse(pos, Qt::LeftButton, modifiers);
    }
    void hover(const QPointF &pos) { moveMouse(pos, Qt::NoButton, Qt::NoModifier); }
    void release(const QPointF &pos, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::mouseRelease(view.viewport(), Qt::LeftButton, modifiers, at(pos));
    }
    void click(const QPointF &pos, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        press(pos, modifiers);
        release(pos, modifiers);
    }
    void drag(const QPointF &from, const QPointF &to, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        press(from, modifiers);
        moveTo((from + to) / 2, modifiers);
        moveTo(to, modifiers);
        release(to, modifiers);
    }
    void pressKey(Qt::Key key) { QTest::keyClick(view.viewport(), key); }

    pagehost::Document document;
    pagehost::Page *page;
    QGraphicsView view;

private:
    void moveMouse(const QPointF &pos, Qt::MouseButton held, Qt::KeyboardModifiers modifiers)
    {
        QMouseEvent event(QEvent::MouseMove, at(pos), view.viewport()->mapToGlobal(at(pos)), Qt::NoButton, held,
                          modifiers);
        QApplication::sendEvent(view.viewport(), &event);
    }
};
