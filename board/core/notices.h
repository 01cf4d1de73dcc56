#pragma once

#include <QtCore/QStringList>
#include <QtCore/QVector>
#include <QtGui/QPixmap>
#include <QtWidgets/QWidget>

#include <functional>

class QVBoxLayout;

namespace board {

class Workspace;

/// One thing that people should know, with what they can do about it.
struct Notice
{
    struct Answer
    {
        QString text;
        std::function<void()> work;
    };

    QString text;
    QStringList details;     ///< one message each; the first few are shown, all of them on request
    QVector<Answer> answers; ///< an answer closes the notice
    /// A notice with an id takes the place of the one that has the same.
    QString id;
    QPixmap picture{}; ///< in place of the sign
};

/// Bars above the page that stay until the user closes or answers them.
class Notices : public QWidget
{
    Q_OBJECT

public:
    explicit Notices(const Workspace *workspace, QWidget *parent = nullptr);

    /// The bar, which deletes itself when it is closed.
    QWidget *add(const Notice &notice);
    /// Closes the bar of that id, if there is one.
    void remove(const QString &id);

private:
    void close(QWidget *bar);
    QWidget *makeBar(const Notice &notice);
    QWidget *makeTexts(const Notice &notice, QWidget *bar) const;
    void showAll(const Notice &notice);

    const Workspace *m_workspace;
    QVBoxLayout *m_column;
};

} // namespace board
