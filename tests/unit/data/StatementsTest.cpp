#include "data/Statements.h"
#include "data/MyDB.h"
#include "tests/support/FixedPaths.h"
#include "tests/support/FixtureDatabase.h"
#include "tests/support/RecordingLog.h"
#include "tests/support/TempFolder.h"
#include "text/Format.h"

#include <gtest/gtest.h>

namespace kavenda {
namespace {

class StatementsTest : public ::testing::Test {
protected:
    StatementsTest() : paths(temp.path() / "documents", temp.path() / "resources")
    {
        test::buildFixtureDatabase(paths.resourceFolder());
    }

    void choose(int stateId, int ordering)
    {
        ASSERT_TRUE(db().ExecuteNonQuery(formatSql(sql::insertChosenCity, {stateId, ordering})));
    }

    MyDB& db()
    {
        if (!db_)
            db_.emplace("Icons", paths, log);
        return *db_;
    }

    test::TempFolder temp;
    FixedPaths paths;
    test::RecordingLog log;
    std::optional<MyDB> db_;
};

TEST_F(StatementsTest, DayQueryReadsTheNextDayAcrossMonthAndYearEnds)
{
    choose(32, 1);
    const struct {
        const char* key;
        const char* t7;
        const char* description;
        // clang-format off
    } cases[] = {
        {"920231", "4:40", ""},          // the next stored day is 1 Khordad
        {"921229", "4:39", "روز ملی شدن صنعت نفت"},   // and 1 Farvardin of 1393
        {"1000101", "4:35", "عید نوروز"},             // seven-character keys
    };
    // clang-format on
    for (const auto& c : cases) {
        const RowSet rows = db().Execute(formatSql(sql::dayTimes, {c.key, 32}));
        ASSERT_EQ(rows.size(), 1u) << c.key;
        EXPECT_EQ(rows[0].at("Name"), "تهران");
        EXPECT_EQ(rows[0].at("Date"), c.key);
        EXPECT_EQ(rows[0].at("T7"), c.t7) << c.key;
        EXPECT_EQ(rows[0].at("Description"), c.description);
        EXPECT_EQ(rows[0].size(), 12u);  // Name, StateID, Date, T1..T8, Description
    }
    EXPECT_TRUE(db().Execute(formatSql(sql::dayTimes, {"920103", 32})).empty());
}

TEST_F(StatementsTest, OffsetRowsSortAfterEveryDateKeyAndStayOutOfTheView)
{
    ASSERT_TRUE(db().ExecuteNonQuery(formatSql(sql::insertCity, {"شهریار", 1})));
    EXPECT_EQ(db().ExecuteScaler(sql::highestPlaceId), "34");
    ASSERT_TRUE(
        db().ExecuteNonQuery(formatSql(sql::insertOffsetRow, {34, "14000101", "-3", "-2", "-1", "0", "1", "2"})));

    const RowSet times = db().Execute(formatSql(sql::reminderTimes, {"1020101", 34, 32}));
    ASSERT_EQ(times.size(), 3u);
    EXPECT_EQ(times[0].at("Date"), "14000101");
    EXPECT_EQ(times[0].at("0"), "-3");
    EXPECT_EQ(times[0].at("3"), "-2");
    EXPECT_EQ(times[1].at("Date"), "1020101");
    EXPECT_EQ(times[2].at("Date"), "1020102");

    EXPECT_EQ(db().ExecuteScaler(formatSql(sql::provinceCentreOfCity, {34})), "32");
    const RowSet offsets = db().Execute(formatSql(sql::cityOffsets, {34}));
    ASSERT_EQ(offsets.size(), 1u);
    EXPECT_EQ(offsets[0].at("7"), "-3");
    EXPECT_EQ(offsets[0].at("8"), "-2");
    EXPECT_EQ(db().ExecuteScaler("SELECT COUNT(*) FROM vTimes WHERE Date = 14000101"), "0");
}

TEST_F(StatementsTest, OccasionsMonthsAndSettings)
{
    const RowSet coming = db().Execute(formatSql(sql::comingOccasions, {"920231"}));
    ASSERT_EQ(coming.size(), 5u);
    EXPECT_EQ(coming[0].at("Date"), "920302");
    EXPECT_EQ(coming[4].at("Date"), "930101");

    const RowSet month = db().Execute(formatSql(sql::monthEvents, {format(sql::monthPattern, {92, 2})}));
    ASSERT_EQ(month.size(), 3u);
    EXPECT_EQ(month[2].at("Description"), "");

    std::string assignments;
    for (int item = 0; item <= 5; ++item)
        assignments = format(sql::settingsAssignment, {assignments, item, item * 10});
    ASSERT_TRUE(db().ExecuteNonQuery(formatSql(sql::updateSettings, {assignments.substr(1)})));
    ASSERT_TRUE(db().ExecuteNonQuery(formatSql(sql::updateSoundChoice, {9})));
    ASSERT_TRUE(db().ExecuteNonQuery(formatSql(sql::updateOccasionTime, {"08:30"})));
    const Row settings = db().Execute(sql::allSettings).at(0);
    EXPECT_EQ(settings.at("Item5"), "50");
    EXPECT_EQ(db().ExecuteScaler(sql::soundChoice), "9");
    EXPECT_EQ(db().ExecuteScaler(sql::occasionTime), "08:30");
}

}  // namespace
}  // namespace kavenda
