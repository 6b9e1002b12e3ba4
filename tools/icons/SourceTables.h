#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace kavenda::icons {

// A tab-separated source file: its header line dropped, every other line split into fields.
std::vector<std::vector<std::string>> readTable(const std::filesystem::path& file, std::size_t columns);

struct Province {
    std::string name;
    std::string centre;
    double latitude;
    double longitude;
    double elevation;
};

std::vector<Province> readProvinces(const std::filesystem::path& file);

// One occasion on a day given by a month and a day of some calendar.
struct Occasion {
    int month;
    int day;
    bool holiday;
    std::string name;
};

// Columns: month, day, [skipped columns,] holiday, name.
std::vector<Occasion> readOccasions(const std::filesystem::path& file, std::size_t skippedColumns = 0);

}  // namespace kavenda::icons
