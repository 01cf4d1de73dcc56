#pragma once

#include <QtWidgets/QMenu>

class QActionGroup;

namespace board {

class Workspace;

/// The families of letters to choose from: the usual one, those of the machine, and the present one if the machine
/// hasn't got it. Each is shown in itself where it has the letters of its name, unless there are so many that
/// loading them would take long.
class FontMenu : public QMenu
{
    Q_OBJECT

public:
    explicit FontMenu(const Workspace *workspace, QWidget *parent = nullptr);

    /// The family that is checked; empty for the usual one.
    void setFamily(const QString &family) { m_family = family; }
    /// The name of a family, of the usual one for an empty text.
    QString nameOf(const QString &family) const;

Q_SIGNALS:
    /// Another one than the present.
    void familyPicked(const QString &family);

private:
    void fill();
    QAction *add(const QString &family);

    const Workspace *m_workspace;
    QString m_family;
    QActionGroup *m_group;
};

} // namespace board
