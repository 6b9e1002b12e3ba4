#pragma once

#include "platform/Instant.h"

namespace kavenda {

class Clock {
public:
    virtual ~Clock() = default;
    virtual Instant now() const = 0;
};

}  // namespace kavenda
