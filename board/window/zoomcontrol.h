#pragma once

#include <QtCore/QVector>
#include <QtWidgets/QWidget>

class QToolButton;

namespace board {

class Actions;
class PageView;
class Workspace;

/// Smaller, the present zoom with a list of others, larger.
class ZoomControl : public QWidget
{
    Q_OBJECT

public:
    ZoomControl(const Workspace *workspace, const Actions *actions, PageView *view, QWidget *parent = nullptr);

    /// Leaves only the button with the list.
    void setFolded(bool folded);

private:
    void showZoom(double rate);

    QToolButton *m_rate;
    QVector<QToolButton *> m_steps;
};

} // namespace board
