// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>

namespace kavenda {

class Log;
class MyDB;

// The time of day of the occasion announcements, or "0" when they are off: what the history
// screen shows, what its Save would store, and what is stored.
class OccasionTime {
public:
    static constexpr int defaultHour = 8;

    OccasionTime(MyDB& db, Log* log);

    // Reads the stored time; one without ":" is off, as the reminders read it.
    void load();

    bool isOn() const { return on_; }
    int hour() const { return hour_; }
    int minute() const { return minute_; }
    const std::string& currentDate() const { return currentDate_; }
    const std::string& selectedDate() const { return selectedDate_; }

    void valueChanged(bool on);
    void pickerValueChanged(int hour, int minute);
    bool saveEnabled() const { return currentDate_ != selectedDate_; }
    // False when the database refused: the shown time stays, to be saved again.
    bool save();

private:
    std::string shownValue() const;

    MyDB& db_;
    Log* log_;
    bool on_ = false;
    int hour_ = defaultHour;
    int minute_ = 0;
    std::string currentDate_ = "0";
    std::string selectedDate_ = "0";
};

}  // namespace kavenda
