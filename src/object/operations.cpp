#include "object/operations.h"

#include <framework/operationtype.h>

#include <algorithm>
#include <iterator>

namespace {

constexpr OperationType shapeOperations[] = {
    OperationSelect,   OperationMove, OperationResize,    OperationRotate,  OperationMirror, OperationDelete,
    OperationCopy,     OperationCut,  OperationDuplicate, OperationReorder, OperationSetPen, OperationSetFill,
    OperationSettings, OperationLock, OperationAnimate,   OperationRecord};

} // namespace

bool isShapeOperation(int operation)
{
    if (operation >= OperationFirstShapeAction && operation <= OperationLastShapeAction)
        return true;
    return std::find(std::begin(shapeOperations), std::end(shapeOperations), operation) !=
           std::end(shapeOperations);
}
