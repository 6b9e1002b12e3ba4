// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/Random.h"

#include <vector>

namespace kavenda::test {

// Hands out the scripted numbers in turn (each taken modulo n), starting over at the end.
class ScriptedRandom final : public Random {
public:
    explicit ScriptedRandom(std::vector<int> script) : script_(std::move(script)) {}
    int uniform(int n) override
    {
        const int value = script_.empty() ? 0 : script_[next_++ % script_.size()];
        ++draws;
        return value % n;
    }
    int draws = 0;

private:
    std::vector<int> script_;
    std::size_t next_ = 0;
};

}  // namespace kavenda::test
