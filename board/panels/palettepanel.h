#pragma once

#include <QtCore/QVector>
#include <QtWidgets/QWidget>

class QLabel;
class QLineEdit;
class QMenu;
class QPushButton;
class QToolButton;
class QScrollArea;
class QVBoxLayout;

namespace board {

class ButtonFlow;
class PaletteButton;
class Workspace;
struct PaletteEntry;

/// The kinds of shape to draw with, by group, with pictures that the shapes paint themselves.
class PalettePanel : public QWidget
{
    Q_OBJECT

public:
    explicit PalettePanel(const Workspace *workspace, QWidget *parent = nullptr);

    /// Shows the present kinds in place of those before.
    void showKinds();
    /// Shows which kind waits to be drawn; an empty id for none.
    void showWaitingKind(const QString &kindId);
    /// Gives the search the focus.
    void startSearch();
    /// One for each kind.
    QVector<PaletteButton *> buttons() const { return m_buttons; }
    /// Of the kinds that were used last, the latest first.
    QVector<PaletteButton *> recentButtons() const { return m_recentButtons; }
    QToolButton *pin() const { return m_pin; }
    /// The menu of what is done with shapes as a whole.
    QMenu *menu() const { return m_menu; }
    /// Remembers that a kind was used.
    void remember(const QString &kindId);
    /// Room for three kinds beside each other.
    QSize sizeHint() const override;

Q_SIGNALS:
    /// The user wants to draw one; an empty id when the user no longer wants to.
    void kindPicked(const QString &kindId);
    /// The user wants one in the middle of the page.
    void placeRequested(const QString &kindId);

protected:
    void changeEvent(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void fill();
    void addGroups(QVBoxLayout *column);
    void addRecent(QVBoxLayout *column);
    PaletteButton *makeButton(ButtonFlow *flow, const PaletteEntry &entry);
    QWidget *makeHead();
    QWidget *makeNothing();
    PaletteButton *firstHit() const;
    void showFound();
    int widthOfColumns(int columns) const;
    void letWheelGoByRows();
    void paintPictures();
    void filter(const QString &words);

    const Workspace *m_workspace;
    QLineEdit *m_search;
    QScrollArea *m_scroll;
    QToolButton *m_pin;
    QMenu *m_menu;
    QLabel *m_nothing;
    QPushButton *m_all;
    QString m_waitingKind;
    QVector<PaletteButton *> m_buttons;
    QVector<PaletteButton *> m_found; ///< by the search, best ones first
    QVector<PaletteButton *> m_recentButtons;
    ButtonFlow *m_recentFlow = nullptr; ///< null while no kind has been used
    QVector<ButtonFlow *> m_flows;
};

} // namespace board
