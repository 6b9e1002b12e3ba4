// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/Log.h"

namespace kavenda {

class StderrLog final : public Log {
public:
    void line(const std::string& text) override;
};

}  // namespace kavenda
