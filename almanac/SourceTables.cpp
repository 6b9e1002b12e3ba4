// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "almanac/SourceTables.h"

#include "almanac/DayCalendar.h"

#include <cstdio>
#include <sstream>
#include <stdexcept>

namespace kavenda::almanac {

std::vector<std::vector<std::string>> readTable(std::string_view text, std::size_t columns)
{
    std::istringstream in{std::string(text)};
    std::vector<std::vector<std::string>> rows;
    std::string header, line;
    std::getline(in, header);
    for (int number = 2; std::getline(in, line); ++number) {
        if (line.empty())
            continue;
        std::vector<std::string> fields;
        std::istringstream split(line);
        for (std::string field; std::getline(split, field, '\t');)
            fields.push_back(field);
        if (fields.size() != columns)
            throw std::runtime_error("table \"" + header + "\", line " + std::to_string(number) + ": expected "
                                     + std::to_string(columns) + " fields");
        rows.push_back(std::move(fields));
    }
    return rows;
}

std::vector<Province> readProvinces(std::string_view text)
{
    std::vector<Province> provinces;
    for (const auto& f : readTable(text, 5))
        provinces.push_back({f[0], f[1], std::stod(f[2]), std::stod(f[3]), std::stod(f[4])});
    return provinces;
}

std::vector<Occasion> readOccasions(std::string_view text, std::size_t skippedColumns)
{
    std::vector<Occasion> occasions;
    for (const auto& f : readTable(text, 4 + skippedColumns))
        occasions.push_back(
            {std::stoi(f[0]), std::stoi(f[1]), std::stoi(f[2 + skippedColumns]), f[3 + skippedColumns]});
    return occasions;
}

std::vector<HijriMonthStart> readHijriMonthStarts(std::string_view text)
{
    std::vector<HijriMonthStart> months;
    for (const auto& f : readTable(text, 5)) {
        int year = 0, month = 0, day = 0;
        char rest = 0;
        if (std::sscanf(f[2].c_str(), "%4d-%2d-%2d%c", &year, &month, &day, &rest) != 3)
            throw std::runtime_error("the table of Hijri months has no date in " + f[2]);
        months.push_back({std::stoi(f[0]), std::stoi(f[1]), julianDayNumber(year, month, day)});
    }
    return months;
}

}  // namespace kavenda::almanac
