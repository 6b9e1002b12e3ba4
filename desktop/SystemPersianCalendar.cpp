// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "desktop/SystemPersianCalendar.h"

#include "almanac/DayCalendar.h"

#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <string_view>

namespace kavenda {

namespace {

constexpr long secondsPerDay = 24 * 60 * 60;

long offsetAt(std::time_t moment)
{
    std::tm local{};
    localtime_r(&moment, &local);
    return local.tm_gmtoff;
}

// "Asia/Tehran" from a zone file's path.
std::string zoneName(std::string_view path)
{
    constexpr std::string_view folder = "zoneinfo/";
    const std::size_t at = path.rfind(folder);
    return std::string(at == std::string_view::npos ? path : path.substr(at + folder.size()));
}

}  // namespace

SystemPersianCalendar::SystemPersianCalendar()
{
    followSystemZone();
}

int SystemPersianCalendar::dayOfYear(int year, int month, int day) const
{
    const long julianDay = almanac::persianJulianDayNumber(year, month, day);
    return static_cast<int>(julianDay - almanac::persianJulianDayNumber(almanac::persianDate(julianDay).year, 1, 1))
        + 1;
}

Instant SystemPersianCalendar::instantOf(int year, int month, int day, int hour, int minute) const
{
    const long days = almanac::persianJulianDayNumber(year, month, day) - almanac::julianDayNumber(1970, 1, 1);
    // The wall-clock time counted as if it were universal time; the zone's offset is taken off.
    const std::time_t wall = days * secondsPerDay + hour * 3600L + minute * 60L;
    const long before = offsetAt(wall - secondsPerDay), after = offsetAt(wall + secondsPerDay);
    // The offset after a change of the clocks holds unless the time was skipped.
    return Instant{std::chrono::seconds{offsetAt(wall - after) == after ? wall - after : wall - before}};
}

CivilTime SystemPersianCalendar::gregorianFields(Instant instant) const
{
    const std::time_t moment = instant.time_since_epoch().count();
    std::tm local{};
    if (!localtime_r(&moment, &local))
        return CivilTime{};
    return CivilTime{local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour, local.tm_min, local.tm_sec};
}

std::string SystemPersianCalendar::timeZoneId() const
{
    return zone_;
}

std::string SystemPersianCalendar::systemZoneName()
{
    if (const char* variable = std::getenv("TZ"); variable && *variable)
        return zoneName(variable[0] == ':' ? variable + 1 : variable);
    std::error_code error;
    const std::filesystem::path target = std::filesystem::read_symlink("/etc/localtime", error);
    if (!error)
        return zoneName(target.string());
    std::string name;
    std::ifstream("/etc/timezone") >> name;
    return name.empty() ? "UTC" : name;
}

bool SystemPersianCalendar::followSystemZone()
{
    const long offsetBefore = offsetAt(std::time(nullptr));
    tzset();
    // The name of the zone the C library now computes in, not of one the file may point to later.
    std::string zone = systemZoneName();
    const bool changed = zone != zone_ || offsetAt(std::time(nullptr)) != offsetBefore;
    zone_ = std::move(zone);
    return changed;
}

}  // namespace kavenda
