#pragma once

#include <pagehost/page.h>

#include <QtCore/QPointer>
#include <QtWidgets/QGraphicsView>
#include <QtWidgets/QWidget>

namespace board {

class Curtain;
class LaserPointer;
class Stage;
class ToolChoice;

/// A page on black as the audience sees it: no frames, no handles, nothing to touch.
class AudienceView : public QGraphicsView
{
    Q_OBJECT

public:
    explicit AudienceView(QWidget *parent = nullptr);
    void setPage(pagehost::Page *page);
    pagehost::Page *page() const { return m_page; }

protected:
    void resizeEvent(QResizeEvent *event) override;
    void drawBackground(QPainter *painter, const QRectF &rect) override;
    void drawForeground(QPainter *painter, const QRectF &rect) override;

private:
    void fit();

    QPointer<pagehost::Page> m_page;
};

/// The window on the second screen. It shows the page of a stage, with its curtain and laser pointer.
class AudienceWindow : public QWidget
{
    Q_OBJECT

public:
    /// Both must outlive this.
    AudienceWindow(Stage *stage, const ToolChoice *tools, QWidget *parent);

    AudienceView *view() const { return m_view; }
    Curtain *curtain() const { return m_curtain; }
    LaserPointer *laser() const { return m_laser; }

private:
    void showCurtain();

    Stage *m_stage;
    AudienceView *m_view;
    Curtain *m_curtain;
    LaserPointer *m_laser;
};

} // namespace board
