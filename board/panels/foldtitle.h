#pragma once

#include <QtWidgets/QToolButton>

namespace board {

/// The title of a part that folds: its text where lines begin, and an arrow where they end, which points down while
/// the part is open.
class FoldTitle : public QToolButton
{
    Q_OBJECT

public:
    explicit FoldTitle(const QString &text, QWidget *parent = nullptr);

    void setOpen(bool open);
    /// Where the text is painted, and where the arrow is.
    QRect textPlace() const;
    QRect arrowPlace() const;
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    bool m_isOpen = true;
};

} // namespace board
