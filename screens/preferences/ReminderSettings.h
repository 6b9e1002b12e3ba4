// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <array>
#include <string>

namespace kavenda {

class MyDB;

// The reminder switches and the three warnings' lead times, kept in memory until saved:
// the settings screen's state and every decision it makes.
class ReminderSettings {
public:
    static constexpr int itemCount = 6;
    // Items from here on are warnings with a lead time.
    static constexpr int firstWarning = 3;
    static constexpr int sectionCount = 4;
    static constexpr int sliderPositions = 12;
    static constexpr int minutesPerStep = 5;

    // What a switch change does to the warning's slider row.
    enum class RowChange { none, insertSlider, removeSlider };

    explicit ReminderSettings(MyDB& db);

    // Reads the settings row; a column that is empty or not a number is off.
    void load();

    static const std::string& label(int item);
    static int rowCount(int section, const std::array<int, itemCount>& flags);
    int rowCount(int section) const { return rowCount(section, notifications_); }
    // The item of a section's switch row.
    static int itemOfSwitch(int section, int row) { return section == 0 ? row : section + 2; }

    bool isOn(int item) const { return notifications_.at(item) == 1; }
    // Flags the switch and enables Save; `shownRows` is what the section showed before.
    RowChange valueChanged(int item, bool on, int shownRows);
    // Takes a slider position 0..11 of warning `index` (item − 3) and enables Save.
    void sliderChanged(int index, int position);
    int lead(int index) const { return difArray_.at(index); }
    int sliderPosition(int index) const;
    // The lead in Persian digits, as the slider row shows it.
    std::string leadText(int index) const;

    bool saveEnabled() const { return saveEnabled_; }
    // The one statement that writes Item0..Item5 as the screen holds them.
    std::string updateStatement() const;
    // False when the database refused: the values stay, to be saved again.
    bool save();

    const std::array<int, itemCount>& notifications() const { return notifications_; }

private:
    MyDB& db_;
    std::array<int, itemCount> notifications_{};
    std::array<int, itemCount - firstWarning> difArray_{5, 5, 5};
    bool saveEnabled_ = false;
};

}  // namespace kavenda
