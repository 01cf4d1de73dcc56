#pragma once

#include <QtWidgets/QWidget>

class QComboBox;

namespace board {

class NumberField;
class Workspace;

/// The size of a page: usual ones by name, others as numbers.
class PageSizeControls : public QWidget
{
    Q_OBJECT

public:
    explicit PageSizeControls(const Workspace *workspace, QWidget *parent = nullptr);

    /// Shows the size of a page, scene units.
    void showSize(const QSizeF &size);

Q_SIGNALS:
    void sizePicked(const QSizeF &size);

private:
    QComboBox *m_names;
    NumberField *m_width;
    NumberField *m_height;
};

} // namespace board
