#pragma once

#include <framework/idocument.h>
#include <framework/iframework.h>
#include <framework/ipspage.h>

#include <QtCore/QList>
#include <QtCore/QMap>
#include <QtCore/QString>
#include <QtGui/QColor>

namespace recording {

/// Answers of the recording framework, set by tests. resetFramework() restores the defaults.
struct Framework
{
    /// CPSRootObject::getCurZoomRate() of every page object.
    double zoomRate = 1;
    /// The current document of the framework.
    IDocument *currentDocument = nullptr;
    /// Configured colours by setting id.
    QMap<int, QColor> colors;
    /// The attribute ids that a page object has after the host base's constructor.
    QList<int> attributeIds;
    /// Result of painter_getGraphicsViewName().
    QString viewName;
    /// Answers of the host base where a shape declines: hit test, canDo, attributes, special properties.
    bool baseAnswer = false;
    /// The host base's answer after it wrote or read what a lesson starts from.
    bool playbackAnswer = true;
    /// Action written by the base's CheckHitTestHandlers() when baseAnswer is set.
    int baseAction = 0;
    /// Result of ParseSettingJson().
    QMap<QString, QString> settings;
    bool settingsParse = true;
    /// Whether CUtil::genIconForLineStyle() gives pictures, whose encoding depends on the picture library, or null
    /// ones.
    bool lineStyleIcons = true;
};

Framework &framework();
/// The defaults again, with an empty undo stack.
void resetFramework();

/// A document whose answers a test sets.
class Document : public IDocument
{
public:
    int documentState() const override { return state; }
    int editingBlocked() const override { return blocked; }
    double zoomRate() const override { return zoom; }

    int state = 0;
    int blocked = 0;
    double zoom = 1;
};

/// A page of that document.
class Page : public IPsPage
{
public:
    explicit Page(IDocument *document)
        : belongsTo(document)
    {
    }
    IDocument *document() const override { return belongsTo; }

    IDocument *belongsTo;
};

} // namespace recording
