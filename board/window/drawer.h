#pragma once

#include <QtCore/QPointer>
#include <QtCore/QVector>
#include <QtWidgets/QFrame>

#include <functional>

class QVBoxLayout;

namespace board {

class SurfaceShadow;

/// A part of the window that opens over the page and closes with Esc or a press outside. Pinned, it takes room of
/// its own and stays.
class Drawer : public QFrame
{
    Q_OBJECT

public:
    /// Lies in `area`. `slot` is a part of the area's layout, at its left or right, that keeps room for a pinned
    /// drawer; null for one that is never pinned. An unpinned one stands `inset` pixels from the area's edges, and
    /// is `tallest` pixels high at most.
    Drawer(QWidget *area, QWidget *slot, int width, int inset, int tallest);

    /// The drawer becomes wider where the content needs it.
    void setContent(QWidget *content);
    void setUsualWidth(int width);
    /// The side of the area that an unpinned drawer stands at: Qt::LeftEdge or Qt::RightEdge.
    void setSide(Qt::Edge side);
    /// Puts an unpinned drawer somewhere else: `place` gives its rectangle (the area's coordinates) from its size.
    void setPlace(const std::function<QRect(const QSize &)> &place) { m_place = place; }
    /// A press on it or in it does not close the drawer, since it does so itself.
    void addOpener(QWidget *opener) { m_openers.append(opener); }
    /// Gets the focus from a drawer that closes.
    void setHeir(QWidget *heir) { m_heir = heir; }
    void setOpen(bool open);
    bool isOpen() const { return m_isOpen; }
    void setPinned(bool pinned);
    bool isPinned() const { return m_isPinned; }

Q_SIGNALS:
    void openChanged(bool open);
    void pinnedChanged(bool pinned);

protected:
    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void keepEdges();
    bool floats() const { return m_inset > 0 && !m_isPinned; }
    void arrange();
    void place();
    bool isOutside(const QObject *watched) const;

    SurfaceShadow *m_shadow;
    QWidget *m_area;
    QWidget *m_slot;
    /// Some are gone before an open drawer is, which still looks for presses.
    QVector<QPointer<QWidget>> m_openers;
    std::function<QRect(const QSize &)> m_place;
    QWidget *m_heir = nullptr;
    QVBoxLayout *m_column;
    int m_usualWidth;
    int m_width;
    int m_inset;
    int m_tallest;
    Qt::Edge m_side = Qt::RightEdge;
    bool m_isOpen = false;
    bool m_isPinned = false;
};

} // namespace board
