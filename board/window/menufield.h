#pragma once

#include <QtWidgets/QToolButton>

namespace board {

/// A button that shows the present one of several values as a field does, and opens a menu of them all.
class MenuField : public QToolButton
{
    Q_OBJECT

public:
    explicit MenuField(QWidget *parent = nullptr);

    /// Shown as far as there is room for it.
    void setValue(const QString &value);

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    QRect textPlace() const;
    void cutValue();

    QString m_value;
};

} // namespace board
