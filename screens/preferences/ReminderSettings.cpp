// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "screens/preferences/ReminderSettings.h"

#include "data/IntValue.h"
#include "data/MyDB.h"
#include "data/Statements.h"
#include "text/Format.h"
#include "text/Utility.h"

#include <algorithm>

namespace kavenda {

namespace {

const std::array<std::string, ReminderSettings::itemCount> labels = {
    "اذان صبح", "اذان ظهر", "اذان مغرب", "طلوع آفتاب", "وقت سحر", "وقت افطار",
};

}  // namespace

ReminderSettings::ReminderSettings(MyDB& db) : db_(db)
{
}

void ReminderSettings::load()
{
    const RowSet rows = db_.Execute(sql::allSettings);
    notifications_.fill(0);
    difArray_.fill(minutesPerStep);
    for (int item = 0; item < itemCount; ++item) {
        const int value = intValue(MyDB::getValue(rows, 0, format("Item%d", {item})).value_or(""));
        if (value == 0)
            continue;
        notifications_[item] = 1;
        if (item >= firstWarning)
            difArray_[item - firstWarning] = value;
    }
    saveEnabled_ = false;
}

const std::string& ReminderSettings::label(int item)
{
    return labels.at(item);
}

int ReminderSettings::rowCount(int section, const std::array<int, itemCount>& flags)
{
    if (section == 0)
        return firstWarning;
    if (section < sectionCount)
        return 1 + flags[section + 2];
    return 0;
}

ReminderSettings::RowChange ReminderSettings::valueChanged(int item, bool on, int shownRows)
{
    saveEnabled_ = true;
    notifications_.at(item) = on ? 1 : 0;
    if (item < firstWarning)
        return RowChange::none;
    if (on && shownRows == 1)
        return RowChange::insertSlider;
    if (!on && shownRows >= 2)
        return RowChange::removeSlider;
    return RowChange::none;
}

void ReminderSettings::sliderChanged(int index, int position)
{
    saveEnabled_ = true;
    difArray_.at(index) = std::clamp(position, 0, sliderPositions - 1) * minutesPerStep + minutesPerStep;
}

int ReminderSettings::sliderPosition(int index) const
{
    return std::max(difArray_.at(index) / minutesPerStep - 1, 0);
}

std::string ReminderSettings::leadText(int index) const
{
    return Utility::ConvertToPersian(format("%d", {difArray_.at(index)}));
}

std::string ReminderSettings::updateStatement() const
{
    // A warning that is on is written as its lead; the in-memory flags stay 0 or 1.
    std::array<int, itemCount> values = notifications_;
    for (int item = firstWarning; item < itemCount; ++item)
        if (values[item] == 1)
            values[item] = difArray_[item - firstWarning];
    std::string assignments;
    for (int item = 0; item < itemCount; ++item)
        assignments = format(sql::settingsAssignment, {assignments, item, values[item]});
    return format(sql::updateSettings, {std::string_view(assignments).substr(1)});
}

bool ReminderSettings::save()
{
    if (!db_.ExecuteNonQuery(updateStatement()))
        return false;
    saveEnabled_ = false;
    return true;
}

}  // namespace kavenda
