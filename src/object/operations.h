#pragma once

/// Whether a shape can do the host operation with that number, so that the host's base class need not be asked.
bool isShapeOperation(int operation);
