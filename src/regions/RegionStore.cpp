#include "regions/RegionStore.h"
