// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "calendar/DateTimePersian.h"
#include "data/RowSet.h"
#include "screens/calendar/MonthShape.h"

#include <deque>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kavenda {

class MyDB;
class PersianCalendar;

// One day button of a month page, told by what it means; how it looks is the screen's matter.
struct DayCell {
    // The title's colour by meaning: a picked day's number stands out on the selection's ground.
    enum class Ink { plain, holiday, onSelection };

    GridPlace place;
    // A Friday, or a holiday by the data.
    bool holiday = false;
    bool today = false;
    bool selected = false;
    // The day's occasions, "@" between them.
    std::string description;

    bool hasOccasion() const { return !description.empty(); }
    Ink ink(bool picked) const { return picked ? Ink::onSelection : holiday ? Ink::holiday : Ink::plain; }
};

// The day buttons of one month. Pages are numbered in the order they are built.
struct MonthPage {
    int id = 0;
    int year = 0;
    int month = 0;
    std::vector<DayCell> cells;

    DayCell* cell(int day);
    const DayCell* cell(int day) const;
};

// A button of a page: the page's id and the day.
struct ButtonRef {
    int page = 0;
    int day = 0;
    bool operator==(const ButtonRef&) const = default;
};

// The month calendar's state and decisions: which month is on show, what each day button
// carries, which button is selected, the occasions of the selected day, the day handed on.
// The screen mirrors the pages and asks for the slides that a month switch reports.
class MonthGrid {
public:
    static constexpr std::string_view noOccasion = "بدون رویداد";

    enum class Slot { top, middle, bottom };
    // What a month switch asks of the screen: a page built in a slot and whether to slide to it.
    struct Switch {
        bool built = false;
        Slot slot = Slot::middle;
        bool animated = false;
    };

    // Opened on a date: its year and month on show, its day selected; now is today.
    MonthGrid(MyDB& db, const PersianCalendar& calendar, const DateTimePersian& opened, const DateTimePersian& now);

    Switch viewDidLoad();
    Switch switchMonth(int year, int m);
    void scrollViewDidEndScrollingAnimation();
    // Each returns the switch it ran, none when the request was ignored.
    // A step crosses into the next or previous year, within the months the database holds.
    std::optional<Switch> changeMonth(int step);
    // Whether a step leads to a month the database holds (or back towards them).
    bool canStep(int step) const;
    std::optional<Switch> showToday();
    void showEvents(ButtonRef button);
    // The date to hand on, none when nothing is handed on.
    std::optional<DateTimePersian> showDetails();

    // The day a grid key moves to from a day of the month on show: a step of days, kept
    // within the month.
    int dayAfter(int day, int step) const;

    int numberOfRows() const;
    std::string cellText(int row) const;

    // The occasions of a description, in their order; one empty piece when there is none.
    static std::vector<std::string> occasions(const std::string& description);
    // "SELECT ... LIKE" of one month: the key prefix (year mod 1300) and the two-digit month.
    static std::string monthStatement(int year, int m);

    // The shown page first; during a slide the page being slid to is the last, which is always
    // the page of the month in month().
    const std::deque<MonthPage>& pages() const { return pages_; }
    // The month's name and the year in Persian digits.
    std::string title() const { return title_; }
    int year() const { return year_; }
    int month() const { return month_; }
    int monthNow() const { return monthNow_; }
    int today() const { return today_; }
    int dayNow() const { return dayNow_; }
    bool canChange() const { return canChange_; }
    const RowSet& datasource() const { return datasource_; }
    std::optional<ButtonRef> lastBtn() const { return lastBtn_; }
    std::optional<ButtonRef> todayBtn() const { return todayBtn_; }

private:
    // The first and last months the occasions table holds, as year * 12 + month index.
    struct HeldMonths {
        int first = 0;
        int last = 0;
    };
    static std::optional<HeldMonths> readHeldMonths(MyDB& db);
    void buildPage(int year, int m);
    void setSelected(std::optional<ButtonRef> button, bool selected);
    std::string description(int day) const;
    std::vector<std::string> occasionsOfSelection() const;

    MyDB& db_;
    const PersianCalendar& calendar_;
    int year_;
    int month_;
    int yearNow_;
    int monthNow_;
    int today_;
    int dayNow_;
    bool canChange_ = true;
    RowSet datasource_;
    std::deque<MonthPage> pages_;
    int nextPageId_ = 1;
    std::optional<ButtonRef> lastBtn_;
    std::optional<ButtonRef> todayBtn_;
    std::string title_;
    std::optional<HeldMonths> held_;
};

}  // namespace kavenda
