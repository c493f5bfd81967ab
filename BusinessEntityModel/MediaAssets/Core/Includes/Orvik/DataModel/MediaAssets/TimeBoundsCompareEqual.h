#pragma once

// TimeBoundsCompareEqual is defined with the array it orders.
#include <Orvik/DataModel/MediaAssets/TimeBoundsArray.h>
