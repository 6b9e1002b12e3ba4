// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "data/RowSet.h"
#include "platform/Instant.h"

#include <string>
#include <string_view>

namespace kavenda {

class Clock;
class DateTimePersian;
class Log;
class MyDB;
class NotificationService;
class PersianCalendar;
class Random;

// Rebuilds the pending local notifications from the database: the coming occasions, then the
// prayer-time reminders of the first chosen city for the next few days.
class MyNotification {
public:
    // The program's shared instance on the shared database, made on the first call from what
    // the shell gave at start.
    static MyNotification& initialize();
    static void setUp(const Clock& clock, const PersianCalendar& calendar, NotificationService& notifications,
                      Random& random, Log& log);

    MyNotification(MyDB& db, const Clock& clock, const PersianCalendar& calendar, NotificationService& notifications,
                   Random& random, Log& log);

    void update();
    // Whether the settings ask for any reminder at all: a call, a warning or the occasions.
    bool anyReminderOn();
    void cancelAll();
    // The moment of a stored standard time on the day of a date key, with that day's summer hour.
    Instant getDate(std::string_view dateKey, std::string_view time) const;
    // Builds one notification of a reminder type (0 to 6) and hands it to the platform.
    void add(Instant moment, std::string_view cityName, int type, int value, int sound);
    // Announces the next dates with occasions at a wall-clock time ("0": not at all).
    void updateCalendarEvents(std::string_view time);
    // Whether a notification's text is one of the three calls (dawn, noon, evening).
    static bool isCall(std::string_view alertBody);

private:
    void schedulePrayerTimes(const RowSet& city, const RowSet& settings, int sound);
    Instant momentOf(const DateTimePersian& day, int hour, int minute) const;

    MyDB& db_;
    const Clock& clock_;
    const PersianCalendar& calendar_;
    NotificationService& notifications_;
    Random& random_;
    Log& log_;
};

}  // namespace kavenda
