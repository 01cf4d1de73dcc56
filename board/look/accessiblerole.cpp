#include "look/accessiblerole.h"

#include <QtCore/QVariant>
#include <QtWidgets/QWidget>

namespace board {

namespace {

constexpr char roleName[] = "accessibleRole";

} // namespace

void setAccessibleRole(QWidget *widget, QAccessible::Role role)
{
    widget->setProperty(roleName, int(role));
}

std::optional<QAccessible::Role> accessibleRoleOf(const QWidget &widget)
{
    const QVariant role = widget.property(roleName);
    return role.isValid() ? std::optional<QAccessible::Role>(QAccessible::Role(role.toInt())) : std::nullopt;
}

void announce(QWidget *widget, const QString &words)
{
    // A new name is told by the widget itself.
    const bool isTold = widget->accessibleName() == words;
    widget->setAccessibleName(words);
    QAccessibleEvent name(widget, QAccessible::NameChanged);
    if (isTold)
        QAccessible::updateAccessibility(&name);
    QAccessibleEvent alert(widget, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

} // namespace board
