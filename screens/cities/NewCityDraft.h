// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <array>
#include <string>
#include <string_view>

namespace kavenda {

class MyDB;

// A city the database lacks, as it is being defined: the committed name, its province and how
// many minutes each of the six daily times differs from the province centre's; and its Save.
class NewCityDraft {
public:
    static constexpr int offsetCount = 6;
    static constexpr int minimumOffset = -10;
    static constexpr int maximumOffset = 10;
    // The offset row's date: above every date key, so the readers from today on find it.
    static constexpr std::string_view offsetRowDate = "14000101";

    explicit NewCityDraft(MyDB& db);

    const std::string& cityName() const { return cityName_; }
    const std::string& provinceName() const { return provinceName_; }
    int provinceID() const { return provinceID_; }
    const std::array<int, offsetCount>& difArray() const { return difArray_; }

    // The name as it stands in the field becomes the city's name; typing alone does not.
    void commitName(std::string_view typed) { cityName_ = typed; }
    void setProvince(int provinceId, std::string_view provinceName);
    // Stores the offset of a slider position, floored to whole minutes, and returns it.
    int setOffset(int index, double position);
    // Whole minutes of a slider position: -0.2 is -1, and only the right end gives 10.
    static int offsetAt(double position);

    // Save may run: a name ("" only is refused) and a province.
    bool validate() const { return !cityName_.empty() && provinceID_ != 0; }

    // Writes the place, its offset row and its place at the end of the chosen cities, all or
    // nothing; false when nothing was written.
    bool save();

private:
    int insertPlace();

    MyDB& db_;
    std::string cityName_;
    std::string provinceName_;
    int provinceID_ = 0;
    std::array<int, offsetCount> difArray_{};
};

}  // namespace kavenda
