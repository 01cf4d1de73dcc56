#pragma once

#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtCore/QVector>
#include <QtWidgets/QWidget>

namespace board {

class Commands;

/// The parts of the window in the order in which F6 walks them. A part that is entered again gives the focus to the
/// control that had it last.
class WindowParts : public QObject
{
    Q_OBJECT

public:
    /// Parts may lie on others. All must outlive this.
    WindowParts(Commands *commands, const QVector<QWidget *> &parts, QObject *parent);

    /// Gives the focus to the next part that is shown and has something to focus.
    void enterNext(bool forward);

private:
    int partOf(const QWidget *widget) const;
    QWidget *entranceOf(int index) const;
    void remember(QWidget *focused);

    QVector<QWidget *> m_parts;
    QVector<QPointer<QWidget>> m_last; ///< the control of each part that had the focus last
};

} // namespace board
