// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

// Writes the database file Icons from the text sources: the schema, the places, the times of
// every centre and the calendar of occasions of the shipped years (the almanac's, year by year,
// as the program computes the years after them), and the settings row.
#include "almanac/Almanac.h"
#include "data/Connection.h"
#include "data/YearRowsWriter.h"

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

void writePlaces(Connection& db, const std::vector<almanac::Province>& provinces)
{
    Connection::Statement insert(db,
                                 "INSERT INTO tStates(StateID, Name, ParentID, IsCenter, Latitude, Longitude, "
                                 "Elevation) VALUES(?, ?, ?, ?, ?, ?, ?)");
    for (std::size_t i = 0; i < provinces.size(); ++i) {
        const auto& p = provinces[i];
        const std::string lat = number(p.latitude), lon = number(p.longitude), elevation = number(p.elevation);
        const int province = almanac::Almanac::provinceId(i);
        insert.bind(1, province).bind(2, p.name).bind(3, std::nullopt).bind(4, 0);
        insert.bind(5, lat).bind(6, lon).bind(7, elevation).run();
        insert.bind(1, almanac::Almanac::centreId(i)).bind(2, p.centre).bind(3, province).bind(4, 1);
        insert.bind(5, lat).bind(6, lon).bind(7, elevation).run();
    }
}

}  // namespace

int main(int argc, char** argv)
{
    if (argc != 3) {
        std::fprintf(stderr, "usage: make_database <schema.sql> <output file>\n");
        return 2;
    }
    const fs::path output = argv[2];
    const fs::path partial = output.string() + ".partial";
    try {
        fs::remove(partial);
        std::ofstream(partial).close();
        almanac::Almanac almanac;
        {
            Connection db(partial);
            db.exec(readText(argv[1]));
            db.exec("BEGIN");
            writePlaces(db, almanac.provinces());
            for (int year = firstYear; year <= lastYear; ++year)
                writeYearRows(db, almanac.year(year));
            db.exec("INSERT INTO tSetting DEFAULT VALUES");
            db.exec("COMMIT");
            db.exec("VACUUM");
        }
        fs::rename(partial, output);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "make_database: %s\n", error.what());
        fs::remove(partial);
        return 1;
    }
    return 0;
}
