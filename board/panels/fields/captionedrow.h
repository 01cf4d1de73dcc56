#pragma once

#include <QtWidgets/QWidget>

class QBoxLayout;
class QLabel;

namespace board {

/// A field with its caption in a column that all rows share. A caption that is longer than the column stands above.
class CaptionedRow : public QWidget
{
    Q_OBJECT

public:
    CaptionedRow(const QString &caption, QWidget *field, QWidget *parent = nullptr);

protected:
    void changeEvent(QEvent *event) override;

private:
    void arrange();

    QBoxLayout *m_layout;
    QLabel *m_caption;
};

} // namespace board
