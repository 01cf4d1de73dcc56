#pragma once

#include <QtCore/QHash>
#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtCore/QVector>

class QAction;
class QDialog;
class QMenu;

namespace board {

/// Gives each entry of a menu a letter of its own while the menu is shown, and the controls of dialogs when they
/// open. Commands are in several menus, beside other ones in each, so that their names have no marks.
class AltKeys : public QObject
{
    Q_OBJECT

public:
    /// For all windows of the program.
    explicit AltKeys(QObject *parent);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct MarkedEntry
    {
        QPointer<QAction> action;
        QString before;
        QString marked;
    };

    void mark(QMenu *menu);
    void unmark(QMenu *menu);
    void mark(QDialog *dialog) const;

    QHash<QMenu *, QVector<MarkedEntry>> m_marked; ///< of menus that are shown
};

} // namespace board
