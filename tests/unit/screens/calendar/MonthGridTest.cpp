// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

// The month grid on the generated database, whose 1392 is the official calendar of that year.
#include "screens/calendar/MonthGrid.h"

#include "calendar/DateTimePersian.h"
#include "desktop/SystemPersianCalendar.h"
#include "tests/support/FixtureDatabase.h"
#include "tests/support/TehranTime.h"
#include "text/Format.h"

#include <tuple>

namespace kavenda {
namespace {

using Ink = DayCell::Ink;

class MonthGridTest : public test::WorkingCopy {
protected:
    MonthGridTest() : WorkingCopy({}) {}

    // Opened on a date key, with the clock on the civil date of "now".
    MonthGrid open(std::string_view key, Instant now = test::tehran(2013, 7, 1, 12))
    {
        MonthGrid grid(db, calendar, DateTimePersian::initWithPersianDate(key, calendar),
                       DateTimePersian::init(now, calendar));
        grid.viewDidLoad();
        return grid;
    }

    static const MonthPage& shown(const MonthGrid& grid) { return grid.pages().front(); }

    static std::vector<int> selectedDays(const MonthPage& page)
    {
        std::vector<int> days;
        for (const DayCell& c : page.cells)
            if (c.selected)
                days.push_back(c.place.day);
        return days;
    }

    SystemPersianCalendar calendar;
};

// Every month of a year starts on its weekday (Saturday is column 0) and runs on row by row;
// a sixth row wraps to row 0. 1 Farvardin 1392 is Thursday 21 March 2013, 1405 Saturday 21 March
// 2026, 1408 Tuesday 20 March 2029; 1408 is a leap year, 1392 and 1405 are not.
TEST_F(MonthGridTest, EveryMonthStartsOnItsWeekdayAndFillsTheGridInTurn)
{
    const std::tuple<int, int, int, int, int> cases[] = {
        {1392, 2013, 21, 5, 29}, {1405, 2026, 21, 0, 29}, {1408, 2029, 20, 3, 30}};
    for (const auto& [year, gregorianYear, marchDay, farvardinColumn, esfandLength] : cases) {
        const CivilTime first = calendar.gregorianFields(calendar.instantOf(year, 1, 1, 12, 0));
        EXPECT_EQ(std::tie(first.year, first.month, first.day), std::tuple(gregorianYear, 3, marchDay));
        int column = farvardinColumn;
        for (int m = 0; m < 12; ++m) {
            const std::size_t length = m < 6 ? 31 : m < 11 ? 30 : esfandLength;
            const MonthGrid grid = open(format("%d%02d01", {year % 1300, m + 1}));
            ASSERT_EQ(shown(grid).cells.size(), length) << year << " month " << m;
            EXPECT_EQ(grid.datasource().size(), length) << year << " month " << m;
            for (const DayCell& cell : shown(grid).cells) {
                const int slot = column + cell.place.day - 1;
                EXPECT_EQ(cell.place, (GridPlace{(slot / 7) % 5, slot % 7, cell.place.day})) << year << " month " << m;
            }
            column = (column + static_cast<int>(length)) % 7;
        }
    }
}

TEST_F(MonthGridTest, DaysCarryTheirMeaningsAndAPickedNumberIsAlwaysOnTheSelectionsInk)
{
    // Opened on 13 Farvardin 1392 with today 20 Farvardin. 1: a holiday with an occasion;
    // 9: a Friday the data does not call a holiday; 13: a holiday, picked; 20: today, with an
    // occasion; 5: a plain day.
    // clang-format off
    const std::tuple<int, bool, bool, bool, bool, Ink> cases[] = {
        {1,  true,  true,  false, false, Ink::holiday},
        {9,  true,  false, false, false, Ink::holiday},
        {13, true,  true,  false, true,  Ink::holiday},
        {20, false, true,  true,  false, Ink::plain},
        {5,  false, false, false, false, Ink::plain},
    };
    // clang-format on
    ASSERT_EQ(scalar("SELECT IsHoliday FROM tEvents WHERE Date = 920109"), "0");
    const MonthGrid grid = open("920113", test::tehran(2013, 4, 9, 12));
    for (const auto& c : cases) {
        const DayCell* found = shown(grid).cell(std::get<0>(c));
        ASSERT_NE(found, nullptr) << std::get<0>(c);
        EXPECT_EQ(std::tuple(found->place.day, found->holiday, found->hasOccasion(), found->today, found->selected,
                             found->ink(false)),
                  c);
        EXPECT_EQ(found->ink(true), Ink::onSelection) << std::get<0>(c);
    }
    EXPECT_EQ(shown(grid).cell(20)->description,
              "روز ملی فناوری هسته‌ای؛ روز هنر انقلاب اسلامی");
}

// Opened on 15 Tir 1392, today 10 Tir: taps, a step on and back, and today from near and far.
TEST_F(MonthGridTest, TapsStepsAndTodayMoveTheSelectionAndTheMonth)
{
    exec("UPDATE tEvents SET Description = 'یکم@دوم' WHERE Date = 920418");
    MonthGrid grid = open("920415");
    grid.showEvents({shown(grid).id, 18});
    EXPECT_EQ(selectedDays(shown(grid)), std::vector<int>{18});
    EXPECT_EQ(grid.today(), 18);
    ASSERT_EQ(grid.numberOfRows(), 2);
    EXPECT_EQ(grid.cellText(1), "دوم");
    grid.showEvents({shown(grid).id, 16});
    EXPECT_EQ(grid.cellText(0), MonthGrid::noOccasion);
    EXPECT_EQ(selectedDays(shown(grid)), std::vector<int>{16});

    const std::optional<MonthGrid::Switch> step = grid.changeMonth(+1);
    ASSERT_TRUE(step);
    EXPECT_TRUE(step->built && step->animated);
    EXPECT_EQ(grid.pages().size(), 2u);
    EXPECT_EQ(std::tuple(grid.month(), grid.today(), grid.cellText(0), grid.title()),
              std::tuple(4, 0, std::string(MonthGrid::noOccasion), std::string("مرداد ١٣٩٢")));
    // While sliding, steps and today are refused.
    EXPECT_FALSE(grid.canChange() || grid.changeMonth(+1) || grid.showToday());
    grid.scrollViewDidEndScrollingAnimation();
    EXPECT_TRUE(grid.canChange());
    ASSERT_EQ(grid.pages().size(), 1u);
    EXPECT_TRUE(selectedDays(shown(grid)).empty());

    grid.changeMonth(-1);
    grid.scrollViewDidEndScrollingAnimation();
    EXPECT_EQ(grid.month(), 3);
    // Back in today's month: its button is built unselected, as no day was selected.
    EXPECT_TRUE(selectedDays(shown(grid)).empty());
    EXPECT_EQ(grid.todayBtn()->page, shown(grid).id);

    grid.showEvents({shown(grid).id, 20});
    const std::optional<MonthGrid::Switch> same = grid.showToday();
    ASSERT_TRUE(same);
    EXPECT_FALSE(same->built) << "today's month on show: its button is selected again";
    EXPECT_EQ(selectedDays(shown(grid)), std::vector<int>{10});
    for (int steps = 0; steps < 2; ++steps) {
        grid.changeMonth(+1);
        grid.scrollViewDidEndScrollingAnimation();
    }
    const std::optional<MonthGrid::Switch> back = grid.showToday();
    ASSERT_TRUE(back);
    EXPECT_TRUE(back->built && back->slot == MonthGrid::Slot::top);
    grid.scrollViewDidEndScrollingAnimation();
    EXPECT_EQ(std::tuple(grid.month(), grid.today(), selectedDays(shown(grid))), std::tuple(3, 10, std::vector{10}));
    EXPECT_EQ(grid.lastBtn(), grid.todayBtn());

    // Stepping into today's month from the same day selected elsewhere selects today.
    MonthGrid fromTheMonthBefore = open("920310");
    fromTheMonthBefore.changeMonth(+1);
    EXPECT_EQ(selectedDays(fromTheMonthBefore.pages().back()), std::vector<int>{10});
    EXPECT_EQ(fromTheMonthBefore.today(), 0);
    EXPECT_FALSE(fromTheMonthBefore.lastBtn());
}

TEST_F(MonthGridTest, StepsCrossTheYearWithinTheMonthsTheDatabaseHolds)
{
    // The generated data runs from Farvardin 1392 to Esfand 1410; reached: year and month index.
    // clang-format off
    const std::tuple<const char*, int, std::optional<std::pair<int, int>>> cases[] = {
        {"921220",  +1, std::pair{1393, 0}},
        {"1050101", -1, std::pair{1404, 11}},
        {"1051201", +1, std::pair{1406, 0}},
        {"920107",  -1, std::nullopt},
        {"1101201", +1, std::nullopt},
    };
    // clang-format on
    for (const auto& [opened, by, reached] : cases) {
        MonthGrid grid = open(opened);
        const int day = grid.today();
        EXPECT_EQ(grid.canStep(by), reached.has_value()) << opened;
        const std::optional<MonthGrid::Switch> step = grid.changeMonth(by);
        ASSERT_EQ(step.has_value(), reached.has_value()) << opened;
        if (!step) {
            // Refused: the screen keeps its month and its selection.
            EXPECT_EQ(std::tuple(grid.pages().size(), grid.today(), selectedDays(shown(grid))),
                      std::tuple(1u, day, std::vector{day}))
                << opened;
            continue;
        }
        EXPECT_EQ(step->slot, by > 0 ? MonthGrid::Slot::bottom : MonthGrid::Slot::top) << opened;
        grid.scrollViewDidEndScrollingAnimation();
        EXPECT_EQ(std::pair(grid.year(), grid.month()), *reached) << opened;
        EXPECT_EQ(grid.datasource().size(), shown(grid).cells.size()) << opened;
    }
}

// The ends come from the data: a database whose occasions stop in Mehr 1400 ends there.
TEST_F(MonthGridTest, TheLastMonthHeldIsReadFromTheDatabase)
{
    exec("DELETE FROM tEvents WHERE Date > 1000715");
    EXPECT_TRUE(open("1000601").canStep(+1));
    EXPECT_FALSE(open("1000701").canStep(+1));
    // Opened past the data, it can still step back towards it, and no further on.
    const MonthGrid past = open("1050101");
    EXPECT_TRUE(past.canStep(-1) && !past.canStep(+1));

    exec("DELETE FROM tEvents");
    const MonthGrid empty = open("920601");
    EXPECT_FALSE(empty.canStep(-1) || empty.canStep(+1));
}

TEST_F(MonthGridTest, DetailsHandOnTheSelectedDayOrToday)
{
    // clang-format off
    const std::tuple<const char*, Instant, int, std::optional<std::string>> cases[] = {
        {"920705", test::tehran(2013, 7, 1, 12), 0, "920705"},
        {"921229", test::tehran(2013, 7, 1, 12), 0, std::nullopt},
        // No selection after a step: today's month and day.
        {"920105", test::tehran(2013, 8, 11, 12), +1, "920520"},
        // Today is 29 Esfand 1392 and nothing is selected: nothing is handed on.
        {"921101", test::tehran(2014, 3, 20, 12), +1, std::nullopt},
        // Later years hand their last day on like any other.
        {"1081230", test::tehran(2029, 7, 1, 12), 0, "1081230"},
    };
    // clang-format on
    for (const auto& [opened, now, step, handedOn] : cases) {
        MonthGrid grid = open(opened, now);
        if (step != 0) {
            grid.changeMonth(step);
            grid.scrollViewDidEndScrollingAnimation();
        }
        const std::optional<DateTimePersian> date = grid.showDetails();
        EXPECT_EQ(date ? std::optional(date->getPersianDate()) : std::nullopt, handedOn) << opened;
        if (date) {
            EXPECT_EQ(date->dayOfYear(), calendar.dayOfYear(date->fullYear(), date->month(), date->day()));
        }
    }
}

}  // namespace
}  // namespace kavenda
