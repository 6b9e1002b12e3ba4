// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/Log.h"

namespace kavenda {

// The system log (the journal where systemd runs): for the terminal commands, whose own output
// is what the person asked for.
class JournalLog final : public Log {
public:
    JournalLog();
    ~JournalLog() override;
    JournalLog(const JournalLog&) = delete;
    JournalLog& operator=(const JournalLog&) = delete;

    void line(const std::string& text) override;
};

}  // namespace kavenda
