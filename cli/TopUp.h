// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <functional>
#include <vector>

namespace kavenda {

class Log;

// Runs a top-up of the data (DataHorizon's) for a terminal command and tells the log what it
// added or why it could not: the command then prints what the data holds.
void topUp(Log& log, const std::function<std::vector<int>()>& add);

}  // namespace kavenda
