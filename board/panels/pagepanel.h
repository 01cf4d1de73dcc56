#pragma once

#include <pagehost/thumbnailpainter.h>

#include <QtWidgets/QWidget>

class QListWidget;
class QToolButton;

namespace pagehost {
class Page;
} // namespace pagehost

namespace board {

class Workspace;

/// The pages in order, as thumbnails that worker threads paint. A click makes a page current, dragging moves it.
class PagePanel : public QWidget
{
    Q_OBJECT

public:
    /// The actions are shown as buttons beside the pages.
    PagePanel(Workspace *workspace, const QList<QAction *> &actions, QWidget *parent = nullptr);

    QListWidget *list() const { return m_list; }
    pagehost::ThumbnailPainter *thumbnails() { return &m_thumbnails; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void makeList();
    void connectList();
    void connectDocument();
    void rebuild();
    void showCurrent(int index);
    void requestThumbnail(pagehost::Page *page);
    void showThumbnail(pagehost::Page *page, const QImage &picture);

    Workspace *m_workspace;
    QListWidget *m_list;
    pagehost::ThumbnailPainter m_thumbnails;
};

} // namespace board
