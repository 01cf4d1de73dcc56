#include <pagehost/preview.h>

#include <host/undocapture.h>

#include <framework/cwbundocmd.h>

namespace pagehost {

Preview::Preview() = default;

Preview::~Preview() = default;

void Preview::show(const std::function<void()> &change)
{
    takeBack();
    m_capture = std::make_unique<UndoCapture>();
    change();
    m_capture->stopTaking();
}

void Preview::takeBack()
{
    m_capture.reset();
}

} // namespace pagehost
