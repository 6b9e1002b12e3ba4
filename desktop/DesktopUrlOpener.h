// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/UrlOpener.h"

namespace kavenda {

// Opens an address with the desktop's browser or mail program.
class DesktopUrlOpener final : public UrlOpener {
public:
    void open(const std::string& address) override;
};

}  // namespace kavenda
