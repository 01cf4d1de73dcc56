#pragma once

#include "panels/forms/objectform.h"
#include "panels/panelrefresh.h"

#include <pagehost/page.h>
#include <pagehost/preview.h>

#include <QtCore/QPointer>
#include <QtWidgets/QWidget>

class CBaseObject;
class QLabel;

namespace board {

class Workspace;

/// A panel about the selected objects: a row for each thing that all of them have. While the user is choosing, the
/// objects show the value; a choice is one undo step for all of them.
class SelectionPanel : public QWidget
{
    Q_OBJECT

public:
    explicit SelectionPanel(const Workspace *workspace, QWidget *parent = nullptr);

    void setPage(pagehost::Page *page);
    /// The panel has come to the front of those that share its place.
    void comeToFront() { m_refresh.finish(); }
    /// Shows the selected objects at once, also while the panel is hidden.
    void refresh();
    /// Takes back what is shown only while the user chooses.
    void settle();
    ObjectForm *form() const { return m_form; }

protected:
    /// Lays the rows out for a bar, and says nothing where there are none.
    void makeCompact();
    const Workspace &workspace() const { return *m_workspace; }
    /// The rows for these objects, at least one, none of them null.
    virtual QVector<FormRow> describe(const QVector<CBaseObject *> &objects) = 0;
    /// The localisation key of what a row sets.
    virtual QString titleKey(int row) const = 0;
    /// Gives an object the value of a row; `forGood` for the choice, else for a look at it.
    virtual void apply(CBaseObject *object, int row, const QVariant &value, bool forGood) = 0;

    void changeEvent(QEvent *event) override;

private:
    void changeSelection();
    bool bringUpToDate();
    void preview(int row, const QVariant &value);
    void pick(int row, const QVariant &value);
    QString stepName(int row, const QVariant &value) const;
    QVector<CBaseObject *> selection() const;

    const Workspace *m_workspace;
    QPointer<pagehost::Page> m_page;
    QLabel *m_hint;
    ObjectForm *m_form;
    pagehost::Preview m_preview;
    PanelRefresh m_refresh;
    bool m_isCompact = false;
};

} // namespace board
