#pragma once

#include "platform/Clock.h"

namespace kavenda {

class SystemClock final : public Clock {
public:
    Instant now() const override;
};

}  // namespace kavenda
