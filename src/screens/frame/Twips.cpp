#include "frame/Twips.h"

namespace zorvane::screens {

static_assert(px(4815) == 321, "a pixel is 15 twips");

} // namespace zorvane::screens
