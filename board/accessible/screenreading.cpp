#include "accessible/screenreading.h"

#include "accessible/pageaccess.h"
#include "core/commands.h"
#include "core/workspace.h"
#include "look/accessiblerole.h"
#include "page/pageview.h"

#include <QtWidgets/QAction>

namespace board {

namespace {

ScreenReading *present = nullptr;

QAccessibleInterface *interfaceOf(const QString &, QObject *object)
{
    auto *view = qobject_cast<PageView *>(object);
    if (view && present) {
        auto *reader = new PageReader(present->workspace(), view);
        if (present->hasMenu(view))
            reader->setMenu([reading = QPointer<ScreenReading>(present)] {
                if (reading)
                    reading->openMenu();
            });
        return new PageAccess(view, reader);
    }
    auto *widget = qobject_cast<QWidget *>(object);
    const auto role = widget ? accessibleRoleOf(*widget) : std::nullopt;
    return role ? new QAccessibleWidget(widget, *role) : nullptr;
}

} // namespace

ScreenReading::ScreenReading(const Workspace *workspace, Commands *commands, PageView *view, QObject *parent)
    : QObject(parent)
    , m_workspace(workspace)
    , m_commands(commands)
    , m_view(view)
{
    present = this;
    QAccessible::installFactory(interfaceOf);
}

ScreenReading::~ScreenReading()
{
    if (present != this)
        return;
    present = nullptr;
    QAccessible::removeFactory(interfaceOf);
}

void ScreenReading::openMenu() const
{
    m_commands->action(Command::ContextMenu)->trigger();
}

} // namespace board
