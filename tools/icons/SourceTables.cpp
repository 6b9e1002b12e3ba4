#include "tools/icons/SourceTables.h"

#include "tools/icons/DayCalendar.h"

#include <cstdio>
#include <fstream>
#include <sstream>
#include <stdexcept>

namespace kavenda::icons {

std::vector<std::vector<std::string>> readTable(const std::filesystem::path& file, std::size_t columns)
{
    std::ifstream in(file);
    if (!in)
        throw std::runtime_error("cannot read " + file.string());
    std::vector<std::vector<std::string>> rows;
    std::string line;
    std::getline(in, line);
    for (int number = 2; std::getline(in, line); ++number) {
        if (line.empty())
            continue;
        std::vector<std::string> fields;
        std::istringstream split(line);
        for (std::string field; std::getline(split, field, '\t');)
            fields.push_back(field);
        if (fields.size() != columns)
            throw std::runtime_error(file.string() + ":" + std::to_string(number) + ": expected "
                                     + std::to_string(columns) + " fields");
        rows.push_back(std::move(fields));
    }
    return rows;
}

std::vector<Province> readProvinces(const std::filesystem::path& file)
{
    std::vector<Province> provinces;
    for (const auto& f : readTable(file, 5))
        provinces.push_back({f[0], f[1], std::stod(f[2]), std::stod(f[3]), std::stod(f[4])});
    return provinces;
}

std::vector<Occasion> readOccasions(const std::filesystem::path& file, std::size_t skippedColumns)
{
    std::vector<Occasion> occasions;
    for (const auto& f : readTable(file, 4 + skippedColumns))
        occasions.push_back(
            {std::stoi(f[0]), std::stoi(f[1]), std::stoi(f[2 + skippedColumns]), f[3 + skippedColumns]});
    return occasions;
}

std::vector<HijriMonthStart> readHijriMonthStarts(const std::filesystem::path& file)
{
    std::vector<HijriMonthStart> months;
    for (const auto& f : readTable(file, 5)) {
        int year = 0, month = 0, day = 0;
        char rest = 0;
        if (std::sscanf(f[2].c_str(), "%4d-%2d-%2d%c", &year, &month, &day, &rest) != 3)
            throw std::runtime_error(file.string() + ": not a date: " + f[2]);
        months.push_back({std::stoi(f[0]), std::stoi(f[1]), julianDayNumber(year, month, day)});
    }
    return months;
}

}  // namespace kavenda::icons
