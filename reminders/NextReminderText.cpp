// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "reminders/NextReminderText.h"

#include "platform/PersianCalendar.h"
#include "text/Format.h"
#include "text/Utility.h"

#include <algorithm>

namespace kavenda {

namespace {

// "٢ ساعت و ١٥ دقیقه": the whole minutes left, rounded up, so the last minute still counts.
std::string timeLeft(std::chrono::seconds left)
{
    const auto minutes = std::chrono::ceil<std::chrono::minutes>(left).count();
    const long long parts[] = {minutes / (24 * 60), minutes / 60 % 24, minutes % 60};
    const char* const units[] = {"روز", "ساعت", "دقیقه"};
    std::string text;
    for (std::size_t i = 0; i < 3; ++i) {
        if (parts[i] == 0)
            continue;
        if (!text.empty())
            text += " و ";
        text += format("%d %@", {parts[i], units[i]});
    }
    return text.empty() ? "کمتر از یک دقیقه" : text;
}

}  // namespace

std::string nextReminderText(const std::vector<NotificationRecord>& pending, Instant now,
                             const PersianCalendar& calendar)
{
    const auto next =
        std::min_element(pending.begin(), pending.end(), [](const NotificationRecord& a, const NotificationRecord& b) {
            return a.fireDate < b.fireDate;
        });
    if (next == pending.end())
        return {};
    // An occasion's text spans lines; a tooltip reads better on one.
    std::string body = next->alertBody;
    std::replace(body.begin(), body.end(), '\n', ' ');
    const CivilTime at = calendar.gregorianFields(next->fireDate);
    const std::string left = timeLeft(std::max(next->fireDate - now, std::chrono::seconds(0)));
    return Utility::ConvertToPersian(format("%@، %02d:%02d (%@ دیگر)", {body, at.hour, at.minute, left}));
}

}  // namespace kavenda
