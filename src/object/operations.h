#pragma once

/// Whether a shape supports the host operation with that number, without asking the host's base class.
bool isShapeOperation(int operation);
