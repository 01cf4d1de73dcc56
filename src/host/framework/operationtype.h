#pragma once

/// Operations that a host may query a page object for. The numbers are part of the interface; values without a name
/// here are reserved for other kinds of object.
enum OperationType : int {
    OperationSelect = 0,
    OperationMove = 1,
    OperationResize = 2,
    OperationRotate = 10,
    OperationMirror = 11,
    OperationDelete = 20,
    OperationCopy = 21,
    OperationCut = 22,
    OperationDuplicate = 23,
    OperationReorder = 24,
    OperationSetPen = 30,
    OperationSetFill = 31,
    OperationSettings = 32,
    OperationLock = 36,
    OperationAnimate = 100,
    OperationRecord = 200,
    OperationFirstShapeAction = 1001,
    OperationLastShapeAction = 1201
};
