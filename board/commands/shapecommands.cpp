#include "commands/shapecommands.h"

#include "core/commands.h"
#include "core/workspace.h"

namespace board {

namespace {

/// Last words of the ids of kinds that the command may draw, the best one first.
struct ShapeCommand
{
    Command command;
    QStringList names;
};

const QVector<ShapeCommand> &shapeCommands()
{
    static const QVector<ShapeCommand> commands{
        {Command::Rectangle, {QStringLiteral("rectangle"), QStringLiteral("roundedrectangle")}},
        {Command::Ellipse, {QStringLiteral("ellipse")}},
        {Command::Arrow, {QStringLiteral("arrow"), QStringLiteral("blockarrow")}}};
    return commands;
}

/// Empty when there is none.
QString kindNamed(const pagehost::ObjectRegistry &registry, const QStringList &names)
{
    const QVector<pagehost::ObjectKind> kinds = registry.kinds();
    for (const QString &name : names)
        for (const pagehost::ObjectKind &kind : kinds)
            if (kind.id.section(QLatin1Char('.'), -1) == name)
                return kind.id;
    return {};
}

} // namespace

ShapeCommands::ShapeCommands(const Workspace *workspace, Commands *commands, QObject *parent)
    : QObject(parent)
    , m_workspace(workspace)
    , m_commands(commands)
{
    connect(workspace, &Workspace::kindsChanged, this, &ShapeCommands::perform);
    perform();
}

/// Kinds that come from files may change: they are looked up when the command is used.
void ShapeCommands::perform()
{
    for (const ShapeCommand &row : shapeCommands()) {
        if (m_commands->isPerformed(row.command) || kindNamed(m_workspace->registry(), row.names).isEmpty())
            continue;
        m_commands->perform(row.command, this,
                            [this, row] { Q_EMIT kindChosen(kindNamed(m_workspace->registry(), row.names)); });
    }
}

} // namespace board
