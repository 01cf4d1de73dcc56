#pragma once

#include "core/textsearch.h"

#include <QtWidgets/QWidget>

class QCheckBox;

namespace board {

class Commands;
class RemarkField;
class Workspace;

/// A bar above the page with a text to find and another one to put in its place. The return key goes on to the next
/// match, with Shift to the one before; Esc closes the bar.
class FindBar : public QWidget
{
    Q_OBJECT

public:
    /// Hidden. Both must outlive the bar.
    FindBar(const Workspace *workspace, const Commands *commands, QWidget *parent = nullptr);

    /// Shows the bar and gives the focus to the text to find.
    void open(bool withReplacing);
    RemarkField *sought() const { return m_sought; }
    RemarkField *replacement() const { return m_replacement; }
    SearchOptions options() const;

Q_SIGNALS:
    /// The text to find, or an option.
    void searchChanged();
    void nextWanted();
    void previousWanted();
    void replaceWanted();
    void replaceAllWanted();
    /// The user has done with the bar.
    void closeWanted();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QWidget *makeButtons(const Commands &commands);
    QWidget *makeReplacing();
    void layOut(const Commands &commands);

    const Workspace *m_workspace;
    RemarkField *m_sought;
    RemarkField *m_replacement;
    QCheckBox *m_case;
    QCheckBox *m_words;
    QWidget *m_replacing = nullptr; ///< buttons
};

} // namespace board
