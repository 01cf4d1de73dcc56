#pragma once

#include <QtCore/QVector>
#include <QtWidgets/QWidget>

class QLineEdit;
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
    QVector<PaletteButton *> buttons() const { return m_buttons; }
    /// Room for two kinds beside each other.
    QSize sizeHint() const override;

Q_SIGNALS:
    /// The user wants to draw one; an empty id when the user no longer wants to.
    void kindPicked(const QString &kindId);
    /// The user wants one in the middle of the page.
    void placeRequested(const QString &kindId);

protected:
    void changeEvent(QEvent *event) override;

private:
    void fill();
    void addGroups(QVBoxLayout *column);
    void addButton(ButtonFlow *flow, const PaletteEntry &entry);
    int widthOfColumns(int columns) const;
    void paintPictures();
    void filter(const QString &words);

    const Workspace *m_workspace;
    QLineEdit *m_search;
    QScrollArea *m_scroll;
    QString m_waitingKind;
    QVector<PaletteButton *> m_buttons;
    QVector<ButtonFlow *> m_flows;
};

} // namespace board
