#pragma once

#include <QtGui/QPixmap>
#include <QtWidgets/QWidget>

class QLabel;

namespace pagehost {
class Page;
} // namespace pagehost

namespace board {

class Workspace;

/// Says what the panel is about: the name of the selected object or group, its kind where the name is another, and
/// a picture of its kind; how many objects there are; or the page.
class ObjectHead : public QWidget
{
    Q_OBJECT

public:
    explicit ObjectHead(const Workspace *workspace, QWidget *parent = nullptr);

    /// Of the selection of `page`, which may be null.
    void showSelection(const pagehost::Page *page);
    QLabel *picture() const { return m_picture; }
    QLabel *title() const { return m_title; }
    QLabel *kind() const { return m_kind; }

protected:
    void changeEvent(QEvent *event) override;

private:
    void takeSizes();
    void showKind(const QString &kindId);

    const Workspace *m_workspace;
    QLabel *m_picture;
    QLabel *m_title;
    QLabel *m_kind;
    QString m_kindId; ///< whose picture is shown; empty for none
};

} // namespace board
