#pragma once

#include <QtWidgets/QLineEdit>

class QLabel;

namespace board {

/// A field for text with a remark at its end, such as how often the text was found.
class RemarkField : public QLineEdit
{
    Q_OBJECT

public:
    explicit RemarkField(QWidget *parent = nullptr);

    /// A fault has the colour of faults.
    void setRemark(const QString &remark, bool isFault = false);
    QString remark() const;

protected:
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void place();
    void paintRemark();

    QLabel *m_remark;
    bool m_isFault = false;
};

} // namespace board
