#include "window/fontmenu.h"

#include "core/fontfamilies.h"
#include "core/workspace.h"

#include <QtGui/QFontDatabase>
#include <QtGui/QFontMetrics>
#include <QtWidgets/QActionGroup>

#include <algorithm>

namespace board {

namespace {

/// A family takes about 3 ms the first time.
constexpr int mostShownInThemselves = 100;

/// Families of symbols have those in the places of letters.
bool hasLettersOf(const QFont &font, const QString &name)
{
    if (QFontDatabase().writingSystems(font.family()).contains(QFontDatabase::Symbol))
        return false;
    const QFontMetrics metrics(font);
    return std::all_of(name.begin(), name.end(), [&metrics](QChar letter) { return metrics.inFont(letter); });
}

} // namespace

FontMenu::FontMenu(const Workspace *workspace, QWidget *parent)
    : QMenu(parent)
    , m_workspace(workspace)
    , m_group(new QActionGroup(this))
{
    connect(this, &QMenu::aboutToShow, this, &FontMenu::fill);
    connect(m_group, &QActionGroup::triggered, this, [this](const QAction *action) {
        if (action->data().toString() != m_family)
            Q_EMIT familyPicked(action->data().toString());
    });
}

QString FontMenu::nameOf(const QString &family) const
{
    return family.isEmpty() ? m_workspace->text("IDS_BOARD_USUAL_FONT") : family;
}

/// Not before it opens: that takes time where there are many.
void FontMenu::fill()
{
    clear();
    const QStringList families = fontFamilies();
    QAction *present = add({});
    if (!m_family.isEmpty() && !families.contains(m_family))
        present = add(m_family);
    addSeparator();
    for (const QString &family : families) {
        QAction *action = add(family);
        QFont own = font();
        own.setFamily(family);
        if (families.size() <= mostShownInThemselves && hasLettersOf(own, family))
            action->setFont(own);
        if (family == m_family)
            present = action;
    }
    present->setChecked(true);
    // Long menus scroll, which they know only once they are there.
    const auto bringIntoView = [this, present] { setActiveAction(present); };
    QMetaObject::invokeMethod(present, bringIntoView, Qt::QueuedConnection);
}

QAction *FontMenu::add(const QString &family)
{
    // A lone ampersand would be a letter for Alt.
    QAction *action = addAction(nameOf(family).replace(QLatin1Char('&'), QLatin1String("&&")));
    action->setData(family);
    action->setCheckable(true);
    m_group->addAction(action);
    return action;
}

} // namespace board
