#include "recordingframework.h"

#include <framework/cundoredo.h>
#include <framework/cutil.h>
#include <framework/cwbundocmd.h>
#include <framework/graphicsviewname.h>
#include <framework/ijsonutil.h>
#include <framework/ilocalize.h>
#include <recordinghost/log/calllog.h>

#include <QtWidgets/QUndoStack>

using recording::log;

namespace recording {

Framework &framework()
{
    static Framework settings;
    return settings;
}

void resetFramework()
{
    framework() = Framework();
    SetFramework(nullptr);
    CUndoRedo::GetInstance()->stack()->clear();
}

} // namespace recording

namespace {

class RecordingFramework : public IFramework
{
public:
    void colorSetting(int settingId, QColor &color, bool flag) override
    {
        log("framework", "colorSetting", {settingId, color, flag});
        color = recording::framework().colors.value(settingId, color);
    }
    IDocument *currentDocument() override { return recording::framework().currentDocument; }
    void beginUndoGroup(const QString &titleKey) override { log("framework", "beginUndoGroup", {titleKey}); }
    void endUndoGroup() override { log("framework", "endUndoGroup"); }
};

class RecordingJsonUtil : public IJsonUtil
{
public:
    QJsonObject variantToJson(const QVariant &value) override
    {
        log("json", "variantToJson", {value});
        if (value.type() != QVariant::RectF)
            return QJsonObject::fromVariantMap(value.toMap());
        const QRectF rect = value.toRectF();
        return {{"x", rect.x()}, {"y", rect.y()}, {"width", rect.width()}, {"height", rect.height()}};
    }
    QVariant jsonToVariant(const QJsonObject &object) override
    {
        log("json", "jsonToVariant", {object});
        if (object.size() != 4 || !object["x"].isDouble() || !object["y"].isDouble() ||
            !object["width"].isDouble() || !object["height"].isDouble())
            return object.toVariantMap();
        return QRectF(object["x"].toDouble(), object["y"].toDouble(), object["width"].toDouble(),
                      object["height"].toDouble());
    }
};

IFramework *&replacement()
{
    static IFramework *framework = nullptr;
    return framework;
}

} // namespace

IFramework *GetFramework()
{
    static RecordingFramework own;
    return replacement() ? replacement() : &own;
}

IFramework *SetFramework(IFramework *framework)
{
    IFramework *before = GetFramework();
    replacement() = framework;
    return before;
}

IJsonUtil *GetJsonUtil()
{
    static RecordingJsonUtil own;
    return &own;
}

CUndoRedo::CUndoRedo()
    : m_stack(new QUndoStack)
{
}

CUndoRedo::~CUndoRedo()
{
    delete m_stack;
}

CUndoRedo *CUndoRedo::GetInstance()
{
    static CUndoRedo instance;
    return &instance;
}

void CUndoRedo::push(CWbUndoCmd *command)
{
    log("undo", "push", {command->text()});
    m_stack->push(command);
    log("undo", "pushed");
}

QUndoStack *CUndoRedo::stack() const
{
    return m_stack;
}

CWbUndoCmd::CWbUndoCmd(QUndoCommand *parent)
    : QUndoCommand(parent)
{
}

CWbUndoCmd::~CWbUndoCmd()
{
    log("undo", "delete");
}

int CWbUndoCmd::getIdxCmd() const
{
    return m_index;
}

void CWbUndoCmd::setIdxCmd(int index)
{
    m_index = index;
}

QString CWbUndoCmd::getActionName(ILocalize *localize) const
{
    return localize ? localize->text(text()) : text();
}

QPixmap CUtil::genIconForLineStyle(int width, int height, int lineWidth, int penStyle, const QColor &color)
{
    log("util", "genIconForLineStyle", {width, height, lineWidth, penStyle, color});
    if (!recording::framework().lineStyleIcons)
        return QPixmap();
    QPixmap icon(width, height);
    icon.fill(QColor(penStyle, lineWidth, 0)); // every style has a picture of its own
    return icon;
}

QString painter_getGraphicsViewName(QPainter *, QGraphicsScene *)
{
    return recording::framework().viewName;
}
