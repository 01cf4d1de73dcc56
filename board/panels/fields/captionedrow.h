#pragma once

#include <QtWidgets/QWidget>

class QBoxLayout;
class QLabel;

namespace board {

/// A field with its caption in a column that all rows share. A caption that is longer than the column
/// stands above.
class CaptionedRow : public QWidget
{
    Q_OBJECT

public:
    CaptionedRow(const QString &caption, QWidget *field, QWidget *parent = nullptr);

    /// For a field that needs the whole width.
    void putCaptionAbove();

protected:
    void changeEvent(QEvent *event) override;

private:
    void arrange();

    QBoxLayout *m_layout;
    QLabel *m_caption;
    bool m_isAbove = false; ///< however short it is
};

} // namespace board
