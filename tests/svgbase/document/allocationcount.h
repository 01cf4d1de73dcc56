#pragma once

/// How often this thread has taken memory from the heap, by whatever function.
long allocationCount();
