// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/TopUp.h"

#include "data/DataHorizon.h"
#include "platform/Log.h"

#include <exception>
#include <string>

namespace kavenda {

void topUp(Log& log, const std::function<std::vector<int>()>& add)
{
    try {
        const std::vector<int> added = add();
        if (!added.empty())
            log.line(DataHorizon::report(added));
    } catch (const std::exception& failure) {
        log.line(std::string("kavenda: the coming years could not be added: ") + failure.what());
    }
}

}  // namespace kavenda
