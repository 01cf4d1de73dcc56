#include <framework/iframework.h>

#include <framework/idocument.h>

#include <pagehost/application.h>

#include <host/undocapture.h>

#include <QtCore/QMap>
#include <QtCore/QPair>

namespace {

/// Used until the application has created a document: editing, unblocked, at zoom 1.
class BuiltInDocument : public IDocument
{
public:
    int documentState() const override { return 0; }
    int editingBlocked() const override { return 0; }
    double zoomRate() const override { return 1; }
};

class BuiltInFramework : public IFramework
{
public:
    void colorSetting(int settingId, QColor &color, bool flag) override
    {
        color = colors.value({settingId, flag}, color);
    }
    IDocument *currentDocument() override { return document ? document : &builtInDocument; }
    void beginUndoGroup(const QString &titleKey) override { undogroups::begin(titleKey); }
    void endUndoGroup() override { undogroups::end(); }

    QMap<QPair<int, bool>, QColor> colors;
    IDocument *document = nullptr;
    BuiltInDocument builtInDocument;
};

BuiltInFramework &builtIn()
{
    static BuiltInFramework framework;
    return framework;
}

IFramework *g_replacement = nullptr;

} // namespace

IFramework *GetFramework()
{
    return g_replacement ? g_replacement : &builtIn();
}

IFramework *SetFramework(IFramework *framework)
{
    IFramework *previous = GetFramework();
    g_replacement = framework == &builtIn() ? nullptr : framework;
    return previous;
}

namespace pagehost {

IDocument *setCurrentDocument(IDocument *document)
{
    IDocument *previous = builtIn().document;
    builtIn().document = document;
    return previous;
}

void setColorSetting(int settingId, bool presentation, const QColor &color)
{
    if (color.isValid())
        builtIn().colors.insert({settingId, presentation}, color);
    else
        builtIn().colors.remove({settingId, presentation});
}

} // namespace pagehost
