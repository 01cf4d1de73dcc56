#include "panels/fields/letteredfield.h"

#include "core/workspace.h"
#include "panels/fields/numberfield.h"

#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>

namespace board {

NumberField *addLetteredField(const Workspace *workspace, QGridLayout *grid, const GridPlace &place,
                              const FieldLetter &name, const NumberRange &range, const QString &unit)
{
    const QString text = workspace->text(name.nameKey);
    auto *caption = new QLabel(name.letter);
    auto *field = new NumberField(workspace, range, unit);
    field->setButtonSymbols(QAbstractSpinBox::NoButtons);
    field->setAccessibleName(text);
    field->setToolTip(text);
    caption->setBuddy(field);
    caption->setToolTip(text);
    grid->addWidget(caption, place.row, place.column);
    grid->addWidget(field, place.row, place.column + 1);
    return field;
}

} // namespace board
