// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/NotificationRecord.h"

#include <string>
#include <vector>

namespace kavenda {

class PersianCalendar;

// The pending reminders in fire order, one a line: local "YYYY-MM-DD HH:MM", a tab, the sound
// file, a tab, and the text with each line feed written as the two characters "\n".
std::string reminderList(std::vector<NotificationRecord> pending, const PersianCalendar& calendar);

}  // namespace kavenda
