// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "calendar/DateTimePersian.h"
#include "desktop/SystemPersianCalendar.h"
#include "reminders/MyNotification.h"
#include "screens/cities/ChosenCities.h"
#include "screens/cities/CitySearch.h"
#include "screens/main/CityPages.h"
#include "tests/support/FixedClock.h"
#include "tests/support/FixtureDatabase.h"
#include "tests/support/RecordingNotificationService.h"
#include "tests/support/ScriptedRandom.h"
#include "tests/support/TehranTime.h"

namespace kavenda {
namespace {

// A working copy whose columns were renamed by hand or by another program: every screen's
// data layer and the scheduler read what they can and never throw, and every chosen city
// keeps its page (a renamed tStates.Name used to abort the program as the main screen was built).
class DamagedSchema : public test::WorkingCopy, public ::testing::WithParamInterface<const char*> {
protected:
    DamagedSchema() : WorkingCopy({"fixture-data.sql", "offset-city.sql"})
    {
        exec("INSERT INTO tSelectedStates VALUES(32, 0), (63, 1)");
        exec("UPDATE tSetting SET Item0 = 1, Item3 = 1, Item7 = '8:30'");
        exec(GetParam());
    }
};

TEST_P(DamagedSchema, NoScreenAndNoRebuildThrows)
{
    FixedClock clock{test::tehran(2013, 5, 22, 0, 1)};
    SystemPersianCalendar calendar;
    CityPages pages(db);
    EXPECT_NO_THROW(pages.updateDataSource(DateTimePersian::init(clock, calendar)));
    if (std::string_view(GetParam()).find("COLUMN Name ") != std::string_view::npos) {
        EXPECT_EQ(pages.datasource().size(), 2u);
    }
    for (const Row& page : pages.datasource())
        EXPECT_EQ(page.count("Name"), 1u);

    test::RecordingNotificationService notifications;
    test::ScriptedRandom random{{3, 7, 1}};
    MyNotification scheduler(db, clock, calendar, notifications, random, log);
    EXPECT_NO_THROW(scheduler.update());

    ChosenCities chosen(db, [] {});
    EXPECT_NO_THROW(chosen.updateDataSource());
    CitySearch search(db);
    EXPECT_NO_THROW(search.updateDataSource("ت"));
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(RenamedColumns, DamagedSchema, ::testing::Values(
    "ALTER TABLE tStates RENAME COLUMN Name TO Title",
    "ALTER TABLE tStates RENAME COLUMN IsCenter TO Centre",
    "ALTER TABLE tStates RENAME COLUMN StateID TO Id",
    "ALTER TABLE tStates RENAME COLUMN ParentID TO Parent",
    "ALTER TABLE tSelectedStates RENAME COLUMN Ordering TO Position",
    "ALTER TABLE tTimes RENAME COLUMN T1 TO Dawn",
    "ALTER TABLE tEvents RENAME COLUMN Description TO Text",
    "ALTER TABLE tSetting RENAME COLUMN Item7 TO AnnounceAt"),
    [](const auto& named) {
        // "ALTER TABLE tStates RENAME COLUMN Name TO Title" is named tStates_Name.
        const std::string sql = named.param;
        const auto word = [&sql](std::size_t after) { const auto end = sql.find(' ', after); return sql.substr(after, end - after); };
        return word(sql.find("TABLE ") + 6) + "_" + word(sql.find("COLUMN ") + 7);
    });
// clang-format on

}  // namespace
}  // namespace kavenda
