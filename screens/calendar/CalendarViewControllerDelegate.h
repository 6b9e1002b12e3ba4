// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

class QWidget;

namespace kavenda {

class DateTimePersian;

// Whoever opened the month calendar: receives the chosen day, then dismisses the calendar.
class CalendarViewControllerDelegate {
public:
    virtual ~CalendarViewControllerDelegate() = default;
    virtual void closeCalendar(const DateTimePersian& date, QWidget* calendar) = 0;
};

}  // namespace kavenda
