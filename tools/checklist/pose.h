#pragma once

#include <pagehost/document.h>

#include <QtCore/QSizeF>

namespace checklist {

class ShapeDriver;

/// How a shape lies on its page.
struct Pose
{
    const char *name;
    bool mirrored;
    bool flipped;
    double rotation; ///< degrees
    QSizeF factor;   ///< of the usual size
    double zoom;
};

constexpr int poseCount = 8;
extern const Pose poses[poseCount];

/// The current document of the process, with the zoom of a pose, while it lives.
class ZoomedDocument
{
public:
    explicit ZoomedDocument(double zoom);
    ~ZoomedDocument();
    ZoomedDocument(const ZoomedDocument &) = delete;
    ZoomedDocument &operator=(const ZoomedDocument &) = delete;

private:
    pagehost::Document m_document;
};

/// Makes an object of the default size and lays it; selected.
void createInPose(ShapeDriver &shape, const Pose &pose);

} // namespace checklist
