#pragma once

#include <QtWidgets/QWidget>

namespace board {

class FoldTitle;

/// A part of a panel below a title that folds it.
class FoldingSection : public QWidget
{
    Q_OBJECT

public:
    /// Takes ownership of `content`.
    FoldingSection(const QString &title, QWidget *content, QWidget *parent = nullptr);

    /// Comes up as the user left it when the program ran last; at first, open or not. `name` stands in the
    /// settings.
    void remember(const QString &name, bool isOpenAtFirst);
    QWidget *content() const { return m_content; }
    bool isOpen() const { return m_isOpen; }
    void setOpen(bool open);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    FoldTitle *m_title;
    QWidget *m_content;
    QString m_name; ///< in the settings; empty where nothing is remembered
    bool m_isOpen = true;
};

} // namespace board
