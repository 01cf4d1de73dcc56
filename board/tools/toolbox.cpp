#include "tools/toolbox.h"

#include "core/workspace.h"
#include "page/labels.h"
#include "page/labelwriting.h"
#include "page/pageview.h"
#include "tools/toolsettings.h"

#include <pagehost/commands.h>
#include <pagehost/page.h>

#include <framework/cbaseobject.h>
#include <framework/cundoredo.h>

#include <QtCore/QDataStream>
#include <QtWidgets/QUndoStack>

#include <optional>

namespace board {

namespace {

struct RoleOfTool
{
    Tool tool;
    pagehost::ToolRole role;
};

constexpr RoleOfTool rolesOfTools[] = {
    {Tool::Pen, pagehost::ToolRole::Pen},       {Tool::Highlighter, pagehost::ToolRole::Highlighter},
    {Tool::Eraser, pagehost::ToolRole::Eraser}, {Tool::Text, pagehost::ToolRole::Text},
    {Tool::Line, pagehost::ToolRole::Line},     {Tool::Connector, pagehost::ToolRole::Connector}};

std::optional<pagehost::ToolRole> roleOf(Tool tool)
{
    for (const RoleOfTool &entry : rolesOfTools)
        if (entry.tool == tool)
            return entry.role;
    return std::nullopt;
}

} // namespace

Toolbox::Toolbox(const Workspace *workspace, PageView *view, ToolChoice *choice, const ToolSettings *settings,
                 QObject *parent)
    : QObject(parent)
    , m_workspace(workspace)
    , m_view(view)
    , m_choice(choice)
    , m_settings(settings)
{
    for (const RoleOfTool &entry : rolesOfTools)
        if (workspace->registry().hasTool(entry.role))
            choice->offer(entry.tool);
    connect(choice, &ToolChoice::changed, this, [this] {
        if (m_choice->tool() == m_inHand)
            return;
        // Who takes another tool has written enough.
        m_view->writing()->end();
        takeUp();
    });
    connect(view, &PageView::pageShown, this, &Toolbox::takeUp);
    connect(view, &PageView::toolGivenUp, this, [this] { m_choice->choose(Tool::Select); });
    connect(view, &PageView::textWanted, this, &Toolbox::typeAt);
    connect(view, &PageView::writingEnded, this, &Toolbox::removeIfEmpty);
    connect(settings, &ToolSettings::changed, this, &Toolbox::applySettings);
    takeUp();
}

Toolbox::~Toolbox()
{
    putDown();
}

void Toolbox::takeUp()
{
    putDown();
    m_inHand = m_choice->tool();
    const std::optional<pagehost::ToolRole> role = roleOf(m_inHand);
    pagehost::Page *page = m_view->page();
    if (!role || !page)
        return;
    page->scene()->cancelDrag();
    const auto hasTextAt = [this](const QPointF &pos) {
        return m_view->writing()->hasTextAt(m_view->mapFromScene(pos));
    };
    m_session = std::make_unique<pagehost::ToolSession>(page, &m_workspace->registry(), hasTextAt);
    m_tool = m_workspace->registry().createTool(*role, m_session.get());
    if (!m_tool)
        return;
    applySettings();
    page->select({});
    m_scene = page->scene();
    m_scene->setTool(m_tool.get());
    connect(m_scene, &pagehost::PageScene::toolUsed, this, &Toolbox::followUp);
}

void Toolbox::putDown()
{
    if (m_scene) {
        disconnect(m_scene, nullptr, this, nullptr);
        if (m_tool && m_scene->tool() == m_tool.get()) {
            m_tool->cancel();
            m_scene->setTool(nullptr);
        }
    }
    m_scene = nullptr;
    m_tool.reset();
    m_session.reset();
}

void Toolbox::applySettings()
{
    if (m_tool)
        m_tool->setStyle({m_settings->color(m_inHand), m_settings->width(m_inHand), m_settings->variant(m_inHand),
                          m_settings->usesPressure(m_inHand), m_settings->straightens(m_inHand)});
}

void Toolbox::followUp()
{
    const std::optional<pagehost::ToolSession::Result> result = m_session->takeResult();
    if (!result || result->afterwards == pagehost::ToolPage::Stay)
        return;
    m_choice->finish();
    if (result->writtenText) {
        m_view->writing()->goOnAt(m_view->mapFromScene(*result->writtenText));
        return;
    }
    if (result->afterwards != pagehost::ToolPage::Write || !m_view->writeFirstLabel(true))
        return;
    m_new = result->objects.value(0);
}

/// As a click with the text tool does.
void Toolbox::typeAt(const QPointF &pos)
{
    m_choice->choose(Tool::Text);
    if (!m_tool || m_inHand != Tool::Text)
        return;
    pagehost::ToolPointer pointer;
    pointer.pos = pos;
    pointer.pixel = 1 / m_view->zoom();
    m_tool->press(pointer);
    m_tool->release(pointer);
    followUp();
}

/// A new object leaves no trace. Another one comes back with its text when its removal is undone.
void Toolbox::removeIfEmpty(CBaseObject *object, bool madeStep)
{
    const bool isNew = object && object == m_new;
    m_new = nullptr;
    if (!object || !vanishesEmpty(*object))
        return;
    QUndoStack *history = CUndoRedo::GetInstance()->stack();
    if (isNew) {
        // The stack drops an obsolete step instead of undoing it.
        auto *creation = const_cast<QUndoCommand *>(history->command(history->index() - 1));
        creation->undo();
        creation->setObsolete(true);
        history->undo();
        return;
    }
    if (madeStep)
        history->undo();
    pagehost::removeObjects(m_view->page(), {object});
}

} // namespace board
