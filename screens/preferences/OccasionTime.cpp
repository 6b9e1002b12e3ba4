// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "screens/preferences/OccasionTime.h"

#include "data/IntValue.h"
#include "data/MyDB.h"
#include "data/Statements.h"
#include "platform/Log.h"
#include "text/Format.h"

#include <algorithm>

namespace kavenda {

OccasionTime::OccasionTime(MyDB& db, Log* log) : db_(db), log_(log)
{
}

void OccasionTime::load()
{
    const std::string stored = db_.ExecuteScaler(sql::occasionTime).value_or("0");
    const std::size_t colon = stored.find(':');
    on_ = colon != std::string::npos;
    hour_ = on_ ? std::clamp(intValue(stored), 0, 23) : defaultHour;
    minute_ = on_ ? std::clamp(intValue(std::string_view(stored).substr(colon + 1)), 0, 59) : 0;
    selectedDate_ = on_ ? stored : "0";
    currentDate_ = selectedDate_;
}

std::string OccasionTime::shownValue() const
{
    return on_ ? format("%02d:%02d", {hour_, minute_}) : "0";
}

void OccasionTime::valueChanged(bool on)
{
    on_ = on;
    currentDate_ = shownValue();
}

void OccasionTime::pickerValueChanged(int hour, int minute)
{
    hour_ = hour;
    minute_ = minute;
    currentDate_ = format("%02d:%02d", {hour_, minute_});
}

bool OccasionTime::save()
{
    currentDate_ = shownValue();
    if (log_)
        log_->line(currentDate_);
    if (!db_.ExecuteNonQuery(formatSql(sql::updateOccasionTime, {currentDate_})))
        return false;
    selectedDate_ = currentDate_;
    return true;
}

}  // namespace kavenda
