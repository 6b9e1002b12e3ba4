// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/NotificationRecord.h"

#include <string>
#include <vector>

namespace kavenda {

class PersianCalendar;

// The earliest pending reminder, its wall-clock time and the time left, in Persian:
// "اذان مغرب به افق تهران، ١٧:١٣ (٢ ساعت و ١٥ دقیقه دیگر)". Empty when nothing is pending.
std::string nextReminderText(const std::vector<NotificationRecord>& pending, Instant now,
                             const PersianCalendar& calendar);

}  // namespace kavenda
