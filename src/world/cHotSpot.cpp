#include "world/cHotSpot.h"
