#pragma once

#include <QtGui/QAccessible>

#include <optional>

class QWidget;

namespace board {

/// Tells screen readers what a widget is that Qt takes for a mere rectangle. Once a reader has seen the widget, it
/// keeps its role.
void setAccessibleRole(QWidget *widget, QAccessible::Role role);
/// None for a widget that was given none.
std::optional<QAccessible::Role> accessibleRoleOf(const QWidget &widget);
/// Gives a widget that has appeared these words as its name, and has a reader say them.
void announce(QWidget *widget, const QString &words);

} // namespace board
