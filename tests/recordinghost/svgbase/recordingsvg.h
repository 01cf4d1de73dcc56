#pragma once

#include <functional>

#include <QtCore/QtGlobal>

class QPainter;
class QZeSvgTinyDocument;

namespace recording {

/// Behaviour of the recording SVG library, set by tests. reset() restores the defaults.
struct Svg
{
    /// So many of the next QZeSvgTinyDocument::load() calls give null, whatever the text.
    int failingLoads = 0;
    /// QZeSvgNode::clone() gives null.
    bool clonesFail = false;
    /// While false, numeric attributes are logged and stored but bounding rectangles stay as they are, as in a
    /// library that updates them lazily.
    bool boundsFollow = true;
    /// Called by draw() after it was logged.
    std::function<void(QPainter *)> drawHook;
};

Svg &svg();
/// The defaults again.
void resetSvg();
/// Whether setCallback() stored a function in the document that is not empty.
bool hasCallback(const QZeSvgTinyDocument *document);
/// Calls that function.
void callCallback(const QZeSvgTinyDocument *document, QPainter *painter);
/// How many documents are alive.
int documentCount();

} // namespace recording
