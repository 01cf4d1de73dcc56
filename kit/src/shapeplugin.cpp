#include <shapekit/shapeplugin.h>
