#include "map/MapView.h"
