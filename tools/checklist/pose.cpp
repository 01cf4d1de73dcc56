#include <checklist/pose.h>

#include <checklist/shapedriver.h>

#include <svgobj/csvgbase.h>
#include <svgobj/csvgobj.h>

#include <pagehost/application.h>
#include <pagehost/commands.h>

#include <QtWidgets/QUndoStack>

namespace checklist {

const Pose poses[poseCount] = {
    {"as it is", false, false, 0, {1, 1}, 1},
    {"mirrored", true, false, 0, {1, 1}, 1},
    {"upside down", false, true, 0, {1, 1}, 1},
    {"turned by 30 degrees", false, false, 30, {1, 1}, 1},
    {"wide", false, false, 0, {2.5, 1.25}, 1},
    {"tall and small on screen", false, false, 0, {1.1, 2.3}, 0.5},
    {"mirrored, turned by 90 degrees, twice as large on screen", true, false, 90, {1.5, 1.5}, 2},
    {"both ways mirrored, wide, turned and three times as large", true, true, 200, {2, 1.2}, 3},
};

ZoomedDocument::ZoomedDocument(double zoom)
{
    pagehost::setCurrentDocument(&m_document);
    m_document.setZoomRate(zoom);
}

ZoomedDocument::~ZoomedDocument()
{
    pagehost::setCurrentDocument(nullptr);
}

void createInPose(ShapeDriver &shape, const Pose &pose)
{
    shape.createByClick();
    const QSizeF usual = shape.object().getClientRect().size();
    shape.object().setSize({usual.width() * pose.factor.width(), usual.height() * pose.factor.height()}, false,
                           true);
    if (pose.mirrored)
        pagehost::mirrorObjects({&shape.object()}, true);
    if (pose.flipped)
        pagehost::mirrorObjects({&shape.object()}, false);
    shape.object().setRotation(pose.rotation);
    shape.select();
    shape.core().invalidate();
    shape.core().setFlipOn(pose.mirrored, pose.flipped);
    shape.undoStack().clear();
}

} // namespace checklist
