#pragma once

#include <QtWidgets/QWidget>

class QButtonGroup;
class QHBoxLayout;
class QStackedWidget;
class QToolButton;

namespace board {

class Workspace;

/// Parts behind tabs, with a button that pins them to the window.
class SidePanel : public QWidget
{
    Q_OBJECT

public:
    explicit SidePanel(const Workspace *workspace, QWidget *parent = nullptr);

    void addTab(const QString &title, QWidget *part);
    /// Brings a part, or the part that has this widget in it, to the front.
    void showTab(const QWidget *part);
    QToolButton *pin() const { return m_pin; }

private:
    QHBoxLayout *m_tabRow;
    QButtonGroup *m_tabs;
    QStackedWidget *m_parts;
    QToolButton *m_pin;
};

} // namespace board
