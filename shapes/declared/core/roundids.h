#pragma once

#include <declared/reader/declaration.h>

#include <QtCore/QVector>

namespace declared {

/// @name Ids of the texts of a repeated label, one for each round of its loops
/// An id holds the label's own bits and the values of its loops: the same text has the same id in every lesson,
/// however many rounds there are.
/// @{

/// 0 for a round whose values are too far from 0.
int idOfRound(const LabelDeclaration &label, const QVector<double> &values);
bool isRoundOf(const LabelDeclaration &label, int id);
/// In saved JSON: "label_cell_2_3".
QString nameOfRound(const LabelDeclaration &label, int id);
/// 0 for a name that is none of the label.
int roundNamed(const LabelDeclaration &label, const QString &name);

/// @}

} // namespace declared
