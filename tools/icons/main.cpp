// Writes the database file Icons from the text sources: the schema, the places, the times of
// every centre computed astronomically, the calendar of occasions and the settings row.
#include "text/Format.h"
#include "tools/astronomy/PrayerTimes.h"
#include "tools/icons/DayCalendar.h"
#include "tools/icons/OccasionCalendar.h"
#include "tools/icons/SourceTables.h"

#include <sqlite3.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>

namespace fs = std::filesystem;
using namespace kavenda;

namespace {

constexpr int firstYear = 1392;
constexpr int lastYear = 1410;
constexpr int provinceCount = 31;
constexpr double iranStandardTime = 3.5;

class Database {
public:
    explicit Database(const fs::path& file)
    {
        if (sqlite3_open(file.c_str(), &db_) != SQLITE_OK)
            fail("open");
    }
    ~Database() { sqlite3_close(db_); }

    void exec(const std::string& sql)
    {
        char* error = nullptr;
        if (sqlite3_exec(db_, sql.c_str(), nullptr, nullptr, &error) != SQLITE_OK) {
            const std::string message = error ? error : "";
            sqlite3_free(error);
            throw std::runtime_error(message);
        }
    }

    // Runs a prepared statement once per call of `bind` with the given values (NULL for nullptr).
    class Insert {
    public:
        Insert(sqlite3* db, const char* sql) : db_(db)
        {
            if (sqlite3_prepare_v2(db, sql, -1, &statement_, nullptr) != SQLITE_OK)
                throw std::runtime_error(sqlite3_errmsg(db));
        }
        ~Insert() { sqlite3_finalize(statement_); }
        void run(std::initializer_list<const std::string*> values)
        {
            int index = 1;
            for (const std::string* value : values) {
                if (value)
                    sqlite3_bind_text(statement_, index, value->c_str(), -1, SQLITE_TRANSIENT);
                else
                    sqlite3_bind_null(statement_, index);
                ++index;
            }
            if (sqlite3_step(statement_) != SQLITE_DONE)
                throw std::runtime_error(sqlite3_errmsg(db_));
            sqlite3_reset(statement_);
        }

    private:
        sqlite3* db_;
        sqlite3_stmt* statement_ = nullptr;
    };

    Insert prepare(const char* sql) { return Insert(db_, sql); }

private:
    [[noreturn]] void fail(const char* what)
    {
        throw std::runtime_error(std::string(what) + ": " + sqlite3_errmsg(db_));
    }
    sqlite3* db_ = nullptr;
};

// The Julian day number of the last day that has occasions: 29 or 30 Esfand of the last year.
long lastDay()
{
    icons::DayCalendar calendar(lastYear + 1);
    return calendar.current().julianDayNumber - 1;
}

std::string readText(const fs::path& file)
{
    std::ifstream in(file);
    if (!in)
        throw std::runtime_error("cannot read " + file.string());
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

std::string number(double value)
{
    char buffer[32];
    std::snprintf(buffer, sizeof buffer, "%.4f", value);
    return buffer;
}

std::string joined(const std::vector<std::string>& names)
{
    std::string text;
    for (const std::string& name : names)
        text += (text.empty() ? "" : "@") + name;
    return text;
}

void writePlaces(Database& db, const std::vector<icons::Province>& provinces)
{
    auto insert = db.prepare("INSERT INTO tStates(StateID, Name, ParentID, IsCenter, Latitude, Longitude, Elevation) "
                             "VALUES(?, ?, ?, ?, ?, ?, ?)");
    for (std::size_t i = 0; i < provinces.size(); ++i) {
        const auto& p = provinces[i];
        const std::string provinceId = std::to_string(i + 1);
        const std::string centreId = std::to_string(i + 1 + provinceCount);
        const std::string zero = "0", one = "1";
        const std::string lat = number(p.latitude), lon = number(p.longitude), elevation = number(p.elevation);
        insert.run({&provinceId, &p.name, nullptr, &zero, &lat, &lon, &elevation});
        insert.run({&centreId, &p.centre, &provinceId, &one, &lat, &lon, &elevation});
    }
}

void writeDays(Database& db, const std::vector<icons::Province>& provinces, const icons::OccasionCalendar& occasions)
{
    auto times = db.prepare("INSERT INTO tTimes(StateID, Date, T1, T2, T3, T4, T5, T6) VALUES(?, ?, ?, ?, ?, ?, ?, ?)");
    auto events = db.prepare("INSERT INTO tEvents(Date, Description, IsHoliday) VALUES(?, ?, ?)");
    icons::DayCalendar calendar(firstYear);
    for (;; calendar.next()) {
        const icons::CalendarDay day = calendar.current();
        const std::string key = format("%d%02d%02d", {day.persianYear % 1300, day.persianMonth, day.persianDay});
        for (std::size_t i = 0; i < provinces.size(); ++i) {
            const astronomy::Place place{provinces[i].latitude, provinces[i].longitude, iranStandardTime};
            const auto t = astronomy::dayTimes(place, day.gregorianYear, day.gregorianMonth, day.gregorianDay);
            char b[6][8];
            const std::string id = std::to_string(i + 1 + provinceCount);
            const std::string texts[6] = {std::string(astronomy::formatTime(t.dawn, b[0])),
                                          std::string(astronomy::formatTime(t.sunrise, b[1])),
                                          std::string(astronomy::formatTime(t.noon, b[2])),
                                          std::string(astronomy::formatTime(t.sunset, b[3])),
                                          std::string(astronomy::formatTime(t.evening, b[4])),
                                          std::string(astronomy::formatTime(t.midnight, b[5]))};
            times.run({&id, &key, &texts[0], &texts[1], &texts[2], &texts[3], &texts[4], &texts[5]});
        }
        // The day after the last one carries only times: the next-day columns of the last day.
        if (day.persianYear > lastYear)
            break;
        const icons::DayEvents e = occasions.on(day);
        const std::string description = joined(e.names);
        const std::string holiday = e.holiday ? "1" : "0";
        events.run({&key, e.names.empty() ? nullptr : &description, &holiday});
    }
}

}  // namespace

int main(int argc, char** argv)
{
    if (argc != 4) {
        std::fprintf(stderr, "usage: make_icons <sources folder> <schema.sql> <output file>\n");
        return 2;
    }
    const fs::path sources = argv[1];
    const fs::path output = argv[3];
    const fs::path partial = output.string() + ".partial";
    try {
        fs::remove(partial);
        const auto provinces = icons::readProvinces(sources / "places.tsv");
        icons::HijriCalendar hijri(icons::readHijriMonthStarts(sources / "hijri-month-starts.tsv"), lastDay());
        const icons::OccasionCalendar occasions(firstYear, icons::readOccasions(sources / "occasions-1392.tsv", 1),
                                                icons::readOccasions(sources / "solar-occasions.tsv"),
                                                icons::readOccasions(sources / "lunar-occasions.tsv"),
                                                std::move(hijri));
        {
            Database db(partial);
            db.exec(readText(argv[2]));
            db.exec("BEGIN");
            writePlaces(db, provinces);
            writeDays(db, provinces, occasions);
            db.exec("INSERT INTO tSetting DEFAULT VALUES");
            db.exec("COMMIT");
            db.exec("VACUUM");
        }
        fs::rename(partial, output);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "make_icons: %s\n", error.what());
        fs::remove(partial);
        return 1;
    }
    return 0;
}
