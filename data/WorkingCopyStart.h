// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "data/DatabaseCheck.h"

#include <optional>

namespace kavenda {

class Log;
class Paths;

// What every start does before it reads the data: makes the working copy in the data folder from
// the shipped file, checked first, when there is none, and checks that copy. The shared MyDB is
// set up on the way. A first start that fails leaves nothing behind. None when all went well.
std::optional<StartupProblem> startWorkingCopy(const Paths& paths, Log& log);

}  // namespace kavenda
