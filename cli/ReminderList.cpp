// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/ReminderList.h"

#include "platform/PersianCalendar.h"

#include <algorithm>
#include <cstdio>

namespace kavenda {

std::string reminderList(std::vector<NotificationRecord> pending, const PersianCalendar& calendar)
{
    std::stable_sort(pending.begin(), pending.end(),
                     [](const NotificationRecord& a, const NotificationRecord& b) { return a.fireDate < b.fireDate; });
    std::string out;
    for (const NotificationRecord& record : pending) {
        const CivilTime t = calendar.gregorianFields(record.fireDate);
        char moment[32];
        std::snprintf(moment, sizeof moment, "%04d-%02d-%02d %02d:%02d", t.year, t.month, t.day, t.hour, t.minute);
        std::string text;
        for (char c : record.alertBody)
            text += c == '\n' ? std::string("\\n") : std::string(1, c);
        out += std::string(moment) + '\t' + record.soundName + '\t' + text + '\n';
    }
    return out;
}

}  // namespace kavenda
