// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/Random.h"

#include <random>

namespace kavenda {

class DeviceRandom final : public Random {
public:
    DeviceRandom() : engine_(std::random_device{}()) {}
    int uniform(int n) override { return std::uniform_int_distribution<int>(0, n - 1)(engine_); }

private:
    std::mt19937 engine_;
};

}  // namespace kavenda
