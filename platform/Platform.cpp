#include "platform/Platform.h"

namespace kavenda {

namespace {
Platform current;
}

Platform& Platform::installed()
{
    return current;
}

void Platform::install(const Platform& services)
{
    current = services;
}

}  // namespace kavenda
