#include "object/operations.h"

#include <framework/operationtype.h>

#include <algorithm>
#include <iterator>

namespace {

constexpr int shapeOperations[] = {0, 1, 2, 10, 11, 20, 21, 22, 23, 24, 30, 31, 32, 36, 100, 200};

} // namespace

bool isShapeOperation(int operation)
{
    if (operation >= OperationFirstShapeAction && operation <= OperationLastShapeAction)
        return true;
    return std::find(std::begin(shapeOperations), std::end(shapeOperations), operation) !=
           std::end(shapeOperations);
}
