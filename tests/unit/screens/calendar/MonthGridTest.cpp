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

    static const DayCell& cell(const MonthGrid& grid, int day)
    {
        const DayCell* found = shown(grid).cell(day);
        EXPECT_NE(found, nullptr) << "no button for day " << day;
        static const DayCell none;
        return found ? *found : none;
    }

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
    struct Case {
        int year;
        CivilTime newYear;
        int farvardinColumn;
        int esfandLength;
    };
    for (const Case& c : {Case{1392, {2013, 3, 21}, 5, 29}, Case{1405, {2026, 3, 21}, 0, 29},
                          Case{1408, {2029, 3, 20}, 3, 30}}) {
        const CivilTime first = calendar.gregorianFields(calendar.instantOf(c.year, 1, 1, 12, 0));
        EXPECT_EQ(std::tie(first.year, first.month, first.day),
                  std::tie(c.newYear.year, c.newYear.month, c.newYear.day));
        int column = c.farvardinColumn;
        for (int m = 0; m < 12; ++m) {
            const int length = m < 6 ? 31 : m < 11 ? 30 : c.esfandLength;
            const MonthGrid grid = open(format("%d%02d01", {c.year % 1300, m + 1}));
            const MonthPage& page = shown(grid);
            ASSERT_EQ(page.cells.size(), static_cast<std::size_t>(length)) << c.year << " month " << m;
            EXPECT_EQ(grid.datasource().size(), static_cast<std::size_t>(length)) << c.year << " month " << m;
            for (const DayCell& cellOfDay : page.cells) {
                const int slot = column + cellOfDay.place.day - 1;
                EXPECT_EQ(cellOfDay.place, (GridPlace{(slot / 7) % 5, slot % 7, cellOfDay.place.day}))
                    << c.year << " month " << m;
            }
            column = (column + length) % 7;
        }
    }
}

TEST_F(MonthGridTest, DaysCarryTheirMeaningsAndAPickedNumberIsAlwaysOnTheSelectionsInk)
{
    struct Case {
        int day;
        bool holiday, occasion, today, selected;
        Ink normal;
    };
    // Opened on 13 Farvardin 1392 with today 20 Farvardin. 1: a holiday with an occasion;
    // 9: a Friday the data does not call a holiday; 13: a holiday, picked; 20: today, with an
    // occasion; 5: a plain day.
    // clang-format off
    const Case cases[] = {
        {1,  true,  true,  false, false, Ink::holiday},
        {9,  true,  false, false, false, Ink::holiday},
        {13, true,  true,  false, true,  Ink::holiday},
        {20, false, true,  true,  false, Ink::plain},
        {5,  false, false, false, false, Ink::plain},
    };
    // clang-format on
    ASSERT_EQ(scalar("SELECT IsHoliday FROM tEvents WHERE Date = 920109"), "0");
    const MonthGrid grid = open("920113", test::tehran(2013, 4, 9, 12));
    for (const Case& c : cases) {
        const DayCell& found = cell(grid, c.day);
        EXPECT_EQ(std::tuple(found.holiday, found.hasOccasion(), found.today, found.selected, found.ink(false)),
                  std::tuple(c.holiday, c.occasion, c.today, c.selected, c.normal))
            << c.day;
        EXPECT_EQ(found.ink(true), Ink::onSelection) << c.day;
    }
    EXPECT_EQ(cell(grid, 20).description,
              "روز ملی فناوری هسته‌ای؛ روز هنر انقلاب اسلامی");
}

TEST_F(MonthGridTest, AStepSlidesToTheNextMonthWithNothingSelected)
{
    MonthGrid grid = open("920415");
    const std::optional<MonthGrid::Switch> step = grid.changeMonth(+1);
    ASSERT_TRUE(step);
    EXPECT_TRUE(step->built && step->animated);
    EXPECT_EQ(grid.pages().size(), 2u);
    EXPECT_EQ(grid.month(), 4);
    EXPECT_EQ(grid.today(), 0);
    EXPECT_EQ(grid.cellText(0), MonthGrid::noOccasion);
    EXPECT_EQ(grid.title(), "مرداد ١٣٩٢");

    // While sliding, steps and today are refused.
    EXPECT_FALSE(grid.canChange());
    EXPECT_FALSE(grid.changeMonth(+1));
    EXPECT_FALSE(grid.showToday());

    grid.scrollViewDidEndScrollingAnimation();
    EXPECT_TRUE(grid.canChange());
    ASSERT_EQ(grid.pages().size(), 1u);
    EXPECT_TRUE(selectedDays(grid.pages().front()).empty());

    grid.changeMonth(-1);
    grid.scrollViewDidEndScrollingAnimation();
    EXPECT_EQ(grid.month(), 3);
    // Back in today's month: its button is built unselected, as no day was selected.
    EXPECT_TRUE(selectedDays(grid.pages().front()).empty());
    EXPECT_EQ(grid.todayBtn()->page, grid.pages().front().id);

    // Stepping into today's month from the same day selected elsewhere selects today.
    MonthGrid fromTheMonthBefore = open("920310");  // today is 10 Tir
    fromTheMonthBefore.changeMonth(+1);
    EXPECT_EQ(selectedDays(fromTheMonthBefore.pages().back()), std::vector<int>{10});
    EXPECT_EQ(fromTheMonthBefore.today(), 0);
    EXPECT_FALSE(fromTheMonthBefore.lastBtn());
}

TEST_F(MonthGridTest, StepsCrossTheYearWithinTheMonthsTheDatabaseHolds)
{
    struct Case {
        const char* opened;
        int step;
        std::optional<std::pair<int, int>> reached;  // year and month index
    };
    // The generated data runs from Farvardin 1392 to Esfand 1410.
    // clang-format off
    const Case cases[] = {
        {"921220",  +1, std::pair{1393, 0}},
        {"1050101", -1, std::pair{1404, 11}},
        {"1051201", +1, std::pair{1406, 0}},
        {"920107",  -1, std::nullopt},
        {"1101201", +1, std::nullopt},
    };
    // clang-format on
    for (const Case& c : cases) {
        MonthGrid grid = open(c.opened);
        const int day = grid.today();
        EXPECT_EQ(grid.canStep(c.step), c.reached.has_value()) << c.opened;
        const std::optional<MonthGrid::Switch> step = grid.changeMonth(c.step);
        ASSERT_EQ(step.has_value(), c.reached.has_value()) << c.opened;
        if (!step) {
            // Refused: the screen keeps its month and its selection.
            EXPECT_EQ(grid.pages().size(), 1u) << c.opened;
            EXPECT_EQ(grid.today(), day) << c.opened;
            EXPECT_EQ(selectedDays(shown(grid)), std::vector<int>{day}) << c.opened;
            continue;
        }
        EXPECT_EQ(step->slot, c.step > 0 ? MonthGrid::Slot::bottom : MonthGrid::Slot::top) << c.opened;
        grid.scrollViewDidEndScrollingAnimation();
        EXPECT_EQ(std::pair(grid.year(), grid.month()), *c.reached) << c.opened;
        EXPECT_EQ(grid.datasource().size(), shown(grid).cells.size()) << c.opened;
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
    EXPECT_TRUE(past.canStep(-1));
    EXPECT_FALSE(past.canStep(+1));

    exec("DELETE FROM tEvents");
    const MonthGrid empty = open("920601");
    EXPECT_FALSE(empty.canStep(-1));
    EXPECT_FALSE(empty.canStep(+1));
}

TEST_F(MonthGridTest, ATapMovesTheSelectionAndListsTheDaysOccasions)
{
    exec("UPDATE tEvents SET Description = 'یکم@دوم' WHERE Date = 920418");
    MonthGrid grid = open("920415");
    const int page = shown(grid).id;
    grid.showEvents({page, 18});
    EXPECT_EQ(selectedDays(shown(grid)), std::vector<int>{18});
    EXPECT_EQ(grid.today(), 18);
    ASSERT_EQ(grid.numberOfRows(), 2);
    EXPECT_EQ(grid.cellText(1), "دوم");
    grid.showEvents({page, 16});
    EXPECT_EQ(grid.cellText(0), MonthGrid::noOccasion);
    EXPECT_EQ(selectedDays(shown(grid)), std::vector<int>{16});
}

TEST_F(MonthGridTest, TodayReturnsToTodaysMonthOrReselectsItsButton)
{
    MonthGrid grid = open("920415");
    grid.showEvents({shown(grid).id, 20});
    const std::optional<MonthGrid::Switch> same = grid.showToday();
    ASSERT_TRUE(same);
    EXPECT_FALSE(same->built);
    EXPECT_EQ(selectedDays(shown(grid)), std::vector<int>{10});

    for (int step = 0; step < 2; ++step) {
        grid.changeMonth(+1);
        grid.scrollViewDidEndScrollingAnimation();
    }
    const std::optional<MonthGrid::Switch> back = grid.showToday();
    ASSERT_TRUE(back);
    EXPECT_TRUE(back->built);
    EXPECT_EQ(back->slot, MonthGrid::Slot::top);
    grid.scrollViewDidEndScrollingAnimation();
    EXPECT_EQ(grid.month(), 3);
    EXPECT_EQ(grid.today(), 10);
    EXPECT_EQ(selectedDays(shown(grid)), std::vector<int>{10});
    EXPECT_EQ(grid.lastBtn(), grid.todayBtn());
}

TEST_F(MonthGridTest, DetailsHandOnTheSelectedDayOrToday)
{
    struct Case {
        const char* opened;
        Instant now;
        int step;
        std::optional<std::string> handedOn;
    };
    // clang-format off
    const Case cases[] = {
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
    for (const Case& c : cases) {
        MonthGrid grid = open(c.opened, c.now);
        if (c.step != 0) {
            grid.changeMonth(c.step);
            grid.scrollViewDidEndScrollingAnimation();
        }
        const std::optional<DateTimePersian> date = grid.showDetails();
        ASSERT_EQ(date.has_value(), c.handedOn.has_value()) << c.opened;
        if (date) {
            EXPECT_EQ(date->getPersianDate(), *c.handedOn) << c.opened;
            EXPECT_EQ(date->dayOfYear(), calendar.dayOfYear(date->fullYear(), date->month(), date->day()));
        }
    }
}

}  // namespace
}  // namespace kavenda
