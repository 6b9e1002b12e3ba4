// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "desktop/StderrLog.h"

#include <cstdio>

namespace kavenda {

void StderrLog::line(const std::string& text)
{
    std::fprintf(stderr, "%s\n", text.c_str());
}

}  // namespace kavenda
