#pragma once

#include "output/pageexport.h"

#include <QtCore/QSizeF>
#include <QtWidgets/QDialog>

class QButtonGroup;
class QGridLayout;
class QLabel;

namespace board {

class NumberField;
class Workspace;

enum class ExportScope { CurrentPage, AllPages, Selection };

struct ExportChoice
{
    ExportScope scope = ExportScope::CurrentPage;
    ExportFormat format;
};

/// Asks what to write, as what, and how large.
class ExportDialog : public QDialog
{
    Q_OBJECT

public:
    /// Sizes in scene units; `selection` is empty when nothing is selected.
    ExportDialog(const Workspace *workspace, const QSizeF &page, const QSizeF &selection, QWidget *window);

    ExportChoice choice() const;

Q_SIGNALS:
    void chosen(const board::ExportChoice &choice);

private:
    QButtonGroup *addChoices(QGridLayout *grid, const char *nameKey, const QVector<const char *> &choiceKeys);
    void addSize(QGridLayout *grid);
    NumberField *addNumber(QGridLayout *grid, const char *nameKey, double largest, const QString &unit);
    QSizeF shownSize() const;
    void takeWidth(double pixels);
    void takePercent(double percent);
    void showSize();

    const Workspace *m_workspace;
    QSizeF m_page;
    QSizeF m_selection;
    double m_scale = 1;
    QButtonGroup *m_scope;
    QButtonGroup *m_format;
    NumberField *m_width;
    NumberField *m_percent;
    QLabel *m_pixels;
};

} // namespace board
