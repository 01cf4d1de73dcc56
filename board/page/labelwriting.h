#pragma once

#include <pagehost/page.h>

#include <QtCore/QObject>
#include <QtCore/QPointer>

#include <optional>

class CBaseObject;

namespace board {

class LabelEditor;
class PageView;
struct EditableLabel;

/// Labels of the objects on a view's page while the user writes them.
class LabelWriting : public QObject
{
    Q_OBJECT

public:
    explicit LabelWriting(PageView *view);

    bool isWriting() const;
    /// The one that is open; null while nothing is written.
    LabelEditor *editor() const;
    /// Whether the only selected object has a label that can be written.
    bool canWriteSelected() const;
    /// Begins to write the first label of the only selected object. False where there is none.
    bool writeSelected(bool isNewObject);
    /// Begins to write the label there (viewport coordinates). False where there is none.
    bool writeAt(const QPoint &pos);
    /// Whether there are letters that goOnAt() can go on with (viewport coordinates).
    bool hasTextAt(const QPoint &pos) const;
    /// Selects the object there and opens its text with the cursor at the letter there. False where hasTextAt() is.
    bool goOnAt(const QPoint &pos);
    /// Whether a new text may begin there: on the page, where no object has a label of its own.
    bool isFree(const QPoint &pos) const;
    void end();

Q_SIGNALS:
    void begun();
    /// Null for an object that is gone. `madeStep` unless the text has stayed as it was.
    void ended(CBaseObject *object, bool madeStep);

private:
    CBaseObject *objectAt(const QPoint &pos) const;
    std::optional<EditableLabel> labelAt(CBaseObject *object, const QPoint &pos) const;
    void write(CBaseObject *object, const EditableLabel &label, bool isNewObject);

    PageView *m_view;
    QPointer<LabelEditor> m_editor;
};

} // namespace board
