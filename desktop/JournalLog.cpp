// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "desktop/JournalLog.h"

#include <syslog.h>

namespace kavenda {

JournalLog::JournalLog()
{
    ::openlog("kavenda", LOG_PID, LOG_USER);
}

JournalLog::~JournalLog()
{
    ::closelog();
}

void JournalLog::line(const std::string& text)
{
    ::syslog(LOG_INFO, "%s", text.c_str());
}

}  // namespace kavenda
