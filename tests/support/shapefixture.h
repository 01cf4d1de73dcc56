#pragma once

#include <recordinghost/framework/recordingframework.h>
#include <recordinghost/log/calllog.h>
#include <recordinghost/svgbase/recordingsvg.h>
#include <support/testobject.h>
#include <support/testshape.h>
#include <svgbase/qzesvgtinydocument.h>
#include <svgobj/csvganimate.h>

#include <QtWidgets/QGraphicsScene>
#include <QtWidgets/QUndoStack>

namespace support {

/// A template of 100 × 50 with a rectangle "body" and two control points of 8 × 8 at (10, 20) and (60, 30).
QString twoPointTemplate();
/// An svg element with the given view box ("x y width height"; empty for none) and content.
QString svgText(const QString &viewBox, const QString &content);
/// `count` control points "control_1" ... of 8 × 8, point i at (10 i, 0).
QString controlPointsText(int count);

/// The process-wide undo stack, emptied by every fixture.
QUndoStack &undoStack();

/// A page object with a core, on a page of a document that is edited at 100 %. The recording host starts afresh
/// with every fixture. Typical use:
///
///     ShapeFixture fixture(twoPointTemplate());
///     fixture.shape->rawControlPoints = true;  // mode flags first
///     fixture.load();                          // loads, forgets the calls made so far
///     fixture.shape->setPenWidth(3, false);
///     QCOMPARE(recording::lastArguments("document", "setAllStrokeWidth"), QVariantList({3.0}));
class ShapeFixture
{
public:
    /// `zoom` is the page object's zoom rate and that of the document.
    explicit ShapeFixture(const QString &templateText = {}, int type = 27, double zoom = 1);
    ~ShapeFixture();

    /// Loads the template, makes the object as large as the view box unless place() was called, marks the object
    /// as created, and clears the call log.
    void load();
    /// The object's client rectangle (item coordinates), as if it had always been so.
    void place(QRectF rect);
    /// As a selection of the item does it, without the item: control points can be dragged. The log is cleared.
    void select();

private:
    struct FreshHost
    {
        explicit FreshHost(double zoom);
    };
    FreshHost freshHost; // first: the object below asks the host when it is made
    bool placed = false;

public:
    recording::Document document;
    recording::Page page;
    QGraphicsScene scene;
    TestObject object;
    TestShape *shape;
};

} // namespace support
