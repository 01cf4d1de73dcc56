#pragma once

#include "core/onceperturn.h"

#include <QtCore/QObject>

class QWidget;

namespace board {

/// Brings a panel up to date: once per turn of the event loop however much happens, and only while the panel can be
/// seen. A panel behind others that share its place waits until it comes to the front.
class PanelRefresh : public QObject
{
public:
    /// `work` brings `panel` up to date; the panel must outlive this.
    PanelRefresh(QWidget *panel, const std::function<void()> &work);

    /// When control returns to the event loop.
    void request();
    /// At once, for causes that come once per turn themselves.
    void refreshNow();
    /// At once, when it was requested and has not been done.
    void finish();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void refresh();

    QWidget *m_panel;
    std::function<void()> m_work;
    OncePerTurn m_turn;
    bool m_isStale = false;
};

} // namespace board
