#pragma once

#include <QtCore/QString>

class QGridLayout;

namespace board {

class NumberField;
struct NumberRange;
class Workspace;

/// A letter that stands for a name, which is told where a letter isn't enough.
struct FieldLetter
{
    QString letter;
    const char *nameKey;
};

/// A place in a grid.
struct GridPlace
{
    int row;
    int column;
};

/// Adds a number field without buttons, its letter at `place` and the field beside it.
NumberField *addLetteredField(const Workspace *workspace, QGridLayout *grid, const GridPlace &place,
                              const FieldLetter &name, const NumberRange &range,
                              const QString &unit = QStringLiteral("px"));

} // namespace board
