#include "widgets/Animations.h"

namespace kavenda {

namespace {

bool enabled = true;

}  // namespace

void setAnimationsEnabled(bool on)
{
    enabled = on;
}

bool animationsEnabled()
{
    return enabled;
}

}  // namespace kavenda
