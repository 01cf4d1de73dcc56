#pragma once

#include <pagehost/thumbnailpainter.h>

#include <QtCore/QPointer>
#include <QtWidgets/QLabel>
#include <QtWidgets/QListWidget>

class QVBoxLayout;

namespace pagehost {
class Document;
class Page;
} // namespace pagehost

namespace board {

class Stage;
class Workspace;

/// The pages of a stage's document in small, and the next one in large. A click turns to a page.
class PagePictures : public QWidget
{
    Q_OBJECT

public:
    /// Both must outlive this.
    PagePictures(const Workspace *workspace, Stage *stage, QWidget *middle, QWidget *parent = nullptr);

    QListWidget *list() const { return m_list; }
    /// Names the next page.
    QLabel *nextName() const { return m_nextName; }
    pagehost::ThumbnailPainter *thumbnails() { return &m_painter; }

private:
    void makeList();
    void showPage();
    void rebuild();
    void request(pagehost::Page *page);
    void showPicture(pagehost::Page *page, const QImage &picture);
    void addHeading(QVBoxLayout *column);
    pagehost::Document *document() const;

    const Workspace *m_workspace;
    Stage *m_stage;
    QLabel *m_nextName;
    QLabel *m_next;
    QListWidget *m_list;
    QVector<pagehost::Page *> m_pages; ///< as listed
    pagehost::ThumbnailPainter m_painter;
};

} // namespace board
