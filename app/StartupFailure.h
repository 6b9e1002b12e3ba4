// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

namespace kavenda {

class Log;
struct StartupProblem;

// Tells of a start that cannot go on: the log line always, and a message box where the
// program has a display. Returns the exit status of such a start.
int reportStartupProblem(const StartupProblem& problem, Log& log);

}  // namespace kavenda
