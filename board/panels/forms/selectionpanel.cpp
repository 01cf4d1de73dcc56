#include "panels/forms/selectionpanel.h"

#include "core/workspace.h"
#include "look/theme.h"

#include <framework/cbaseobject.h>
#include <framework/iframework.h>

#include <QtCore/QEvent>
#include <QtCore/QLocale>
#include <QtWidgets/QLabel>
#include <QtWidgets/QVBoxLayout>

namespace board {

namespace {

/// Of more objects than these, the rest are taken to be like them: asking all of them would take too long.
constexpr int mostDescribed = 500;

} // namespace

SelectionPanel::SelectionPanel(const Workspace *workspace, QWidget *parent)
    : QWidget(parent)
    , m_workspace(workspace)
    , m_hint(new QLabel(workspace->text("IDS_BOARD_NOTHING_IN_COMMON"), this))
    , m_form(new ObjectForm(this))
    , m_refresh(this, [this] { refresh(); })
{
    // Without rows, too, there is something to see, and so a reason to be brought up to date.
    setMinimumHeight(1);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(largeGap);
    m_hint->setForegroundRole(QPalette::PlaceholderText);
    m_hint->setWordWrap(true);
    column->addWidget(m_hint);
    column->addWidget(m_form);
    connect(m_form, &ObjectForm::previewed, this, &SelectionPanel::preview);
    connect(m_form, &ObjectForm::abandoned, this, &SelectionPanel::settle);
    connect(m_form, &ObjectForm::picked, this, &SelectionPanel::pick);
}

void SelectionPanel::makeCompact()
{
    m_isCompact = true;
    m_hint->hide();
    m_form->setCompact(true);
}

void SelectionPanel::setPage(pagehost::Page *page)
{
    settle();
    if (m_page)
        disconnect(m_page, nullptr, this, nullptr);
    m_page = page;
    if (page) {
        connect(page, &pagehost::Page::selectionChanged, this, &SelectionPanel::changeSelection);
        connect(page, &pagehost::Page::contentChanged, this, [this] { m_refresh.refreshNow(); });
    }
    m_refresh.request();
}

QVector<CBaseObject *> SelectionPanel::selection() const
{
    return m_page ? m_page->selectedObjects() : QVector<CBaseObject *>();
}

void SelectionPanel::settle()
{
    m_preview.takeBack();
}

void SelectionPanel::changeSelection()
{
    settle();
    m_refresh.request();
}

/// False when the rows that the user sees were about other objects than are selected by now.
bool SelectionPanel::bringUpToDate()
{
    const QVector<ValueEditor *> shown = m_form->editors();
    m_refresh.finish();
    return m_form->editors() == shown;
}

void SelectionPanel::refresh()
{
    // While something is only shown, the rows stay what they are.
    if (m_preview.isShowing())
        return;
    const QVector<CBaseObject *> objects = selection();
    const QVector<FormRow> rows = objects.isEmpty() ? QVector<FormRow>() : describe(objects.mid(0, mostDescribed));
    m_hint->setVisible(rows.isEmpty() && objects.size() > 1 && !m_isCompact);
    m_form->showRows(rows);
}

void SelectionPanel::preview(int row, const QVariant &value)
{
    if (!bringUpToDate())
        return;
    const QVector<CBaseObject *> objects = selection();
    m_preview.show([&] {
        for (CBaseObject *object : objects)
            apply(object, row, value, false);
    });
}

/// Of one object, its name and the number that it gets; of several, or for other values, the key of the row's
/// title.
QString SelectionPanel::stepName(int row, const QVariant &value) const
{
    const QVector<CBaseObject *> objects = selection();
    if (objects.size() != 1 || value.type() != QVariant::Double)
        return titleKey(row);
    const QLocale locale(m_workspace->localizer().language());
    return QStringLiteral("%1: %2 %3")
        .arg(m_workspace->text(objects.first()->kindName()), m_workspace->text(titleKey(row)),
             locale.toString(value.toDouble(), 'g'));
}

void SelectionPanel::pick(int row, const QVariant &value)
{
    settle();
    if (!bringUpToDate())
        return;
    const QVector<CBaseObject *> objects = selection();
    GetFramework()->beginUndoGroup(stepName(row, value));
    for (CBaseObject *object : objects)
        apply(object, row, value, true);
    GetFramework()->endUndoGroup();
    // Shows the objects' resulting value, which may differ.
    m_refresh.refreshNow();
}

void SelectionPanel::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::PaletteChange) {
        m_form->forgetEditors();
        m_refresh.refreshNow();
    }
    QWidget::changeEvent(event);
}

} // namespace board
