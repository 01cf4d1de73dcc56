#pragma once

#include "shape/constants.h"

#include <QtCore/QString>

class QZeSvgNode;

/// The id of control point `number`, counted from 1.
QString controlPointId(quint32 number);

/// Calls `action` with each control point of the table in index order. Limits the count to the table, and skips
/// entries without a node.
template<typename Action> void forEachControlPoint(QZeSvgNode *const *table, quint32 count, Action action)
{
    const quint32 end = qMin(count, maxControlPoints);
    for (quint32 i = 0; i < end; ++i)
        if (table[i])
            action(table[i]);
}
