#pragma once

#include "platform/Clock.h"

#include <chrono>

namespace kavenda {

// The device clock set to a chosen moment at start, running on with real time from there.
class AdvancingClock final : public Clock {
public:
    explicit AdvancingClock(Instant start) : start_(start), began_(std::chrono::steady_clock::now()) {}
    Instant now() const override
    {
        return start_ + std::chrono::duration_cast<std::chrono::seconds>(std::chrono::steady_clock::now() - began_);
    }

private:
    Instant start_;
    std::chrono::steady_clock::time_point began_;
};

}  // namespace kavenda
