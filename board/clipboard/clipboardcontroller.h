#pragma once

#include "clipboard/lookclipboard.h"

#include <pagehost/groups.h>

#include <QtCore/QObject>
#include <QtCore/QPointF>
#include <QtCore/QVector>

#include <optional>

class CBaseObject;
class QMimeData;

namespace board {

class Notices;
class PageView;
class Workspace;

/// Cut, copy and paste of objects, within the board, between boards, and with other programs.
class ClipboardController : public QObject
{
    Q_OBJECT

public:
    /// All must outlive this.
    ClipboardController(Workspace *workspace, PageView *view, Notices *notices, QObject *parent = nullptr);

    /// Puts the selected objects on the clipboard, with a picture of them and, where all of them have one, their
    /// look as SVG for other programs.
    void copy();
    void cut();
    /// Pastes what is on the clipboard as one undo step: at the mouse while it is over the page, else beside where
    /// it was copied.
    void paste();
    /// Whether paste() has something to try.
    bool canPaste() const { return m_canPaste; }

    void copyLook();
    void pasteLook();
    bool hasLook() const { return m_look.isSet(); }

    /// Whether data other than documents can be dropped on the page.
    bool accepts(const QMimeData &data) const;
    /// Puts what was dropped on the page, its middle at `scenePos`. What other programs give stays wholly on the
    /// page.
    void drop(const QMimeData &data, const QPointF &scenePos);

Q_SIGNALS:
    /// canPaste() or hasLook() may have changed.
    void stateChanged();

private:
    struct Pasted
    {
        QVector<CBaseObject *> objects;
        pagehost::ObjectGroups groups;
        bool havePlaces = false; ///< they stood on a page before
    };

    void look();
    bool isBusy() const;
    Pasted read(const QMimeData &data);
    void place(const Pasted &pasted, const std::optional<QPointF> &middle);
    void keepOnPage(const Pasted &pasted);
    void add(const Pasted &pasted);
    QPointF nextOffset(const QByteArray &data, const std::optional<QPointF> &middle);

    Workspace *m_workspace;
    PageView *m_view;
    Notices *m_notices;
    LookClipboard m_look;
    std::optional<QPointF> m_pointer; ///< the mouse, while it is over the view; scene coordinates
    QByteArray m_lastData;            ///< what was pasted last
    std::optional<QPointF> m_lastMiddle;
    bool m_canPaste = false;
    int m_repeats = 0; ///< pastes of the same at the same place
};

} // namespace board
