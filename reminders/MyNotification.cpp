// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "reminders/MyNotification.h"

#include "calendar/DateTimePersian.h"
#include "calendar/TimeOfDay.h"
#include "data/IntValue.h"
#include "data/MyDB.h"
#include "data/Statements.h"
#include "platform/Clock.h"
#include "platform/Log.h"
#include "platform/NotificationService.h"
#include "platform/PersianCalendar.h"
#include "platform/Random.h"
#include "text/Format.h"
#include "text/Utility.h"
#include <cassert>

#include <algorithm>
#include <array>

namespace kavenda {

namespace {

constexpr int typeCount = 6;
constexpr int occasionType = 6;
constexpr int randomSound = 9;
constexpr int recordingCount = 9;
constexpr std::string_view offsetRowKey = "14000101";

constexpr std::string_view callText = "اذان %@ به افق %@";
constexpr std::string_view untilSunriseText = "تا طلوع %@ تنها %@ دقیفه زمان باقیست";
constexpr std::string_view untilCallText = "تا اذان %@ تنها %@ دقیفه زمان باقیست";
constexpr std::string_view occasionText = "وقایع امروز : \n%@";

// The text of a reminder type and its first word. The calls play the chosen recitation and
// name the city; the warnings have a sound of their own and tell their lead minutes.
struct Kind {
    std::string_view text;
    std::string_view word;
    std::string_view fixedSound;  // empty: the chosen recitation
};

constexpr std::array<Kind, typeCount> kinds{{
    {callText, "صبح", ""},
    {callText, "ظهر", ""},
    {callText, "مغرب", ""},
    {untilSunriseText, "آفتاب", "alarm.wav"},
    {untilCallText, "صبح", "11.wav"},
    {untilCallText, "مغرب", "12.wav"},
}};

std::string settingName(int item)
{
    return format("Item%d", {item});
}

std::string typeColumn(int type)
{
    return format("%d", {type});
}

std::string valueOf(const RowSet& rows, std::size_t row, const std::string& column)
{
    return MyDB::getValue(rows, row, column).value_or("");
}

}  // namespace

namespace {

struct Services {
    const Clock* clock = nullptr;
    const PersianCalendar* calendar = nullptr;
    NotificationService* notifications = nullptr;
    Random* random = nullptr;
    Log* log = nullptr;
} shared;

}  // namespace

MyNotification& MyNotification::initialize()
{
    assert(shared.clock && "the shell sets up the notifications at start");
    static MyNotification instance(MyDB::initialize(), *shared.clock, *shared.calendar, *shared.notifications,
                                   *shared.random, *shared.log);
    return instance;
}

void MyNotification::setUp(const Clock& clock, const PersianCalendar& calendar, NotificationService& notifications,
                           Random& random, Log& log)
{
    shared = {&clock, &calendar, &notifications, &random, &log};
}

MyNotification::MyNotification(MyDB& db, const Clock& clock, const PersianCalendar& calendar,
                               NotificationService& notifications, Random& random, Log& log)
    : db_(db), clock_(clock), calendar_(calendar), notifications_(notifications), random_(random), log_(log)
{
}

void MyNotification::update()
{
    cancelAll();
    const RowSet city = db_.Execute(sql::firstChosenCity);
    if (city.empty())
        return;
    const RowSet settings = db_.Execute(sql::allSettings);
    const int sound = intValue(valueOf(settings, 0, settingName(6)));
    updateCalendarEvents(valueOf(settings, 0, settingName(7)));
    schedulePrayerTimes(city, settings, sound);
}

void MyNotification::schedulePrayerTimes(const RowSet& city, const RowSet& settings, int sound)
{
    const bool isCenter = valueOf(city, 0, "IsCenter") == "1";
    const std::string name = valueOf(city, 0, "Name");
    const int cityId = intValue(valueOf(city, 0, "StateID"));
    const int centreId =
        isCenter ? cityId : intValue(db_.ExecuteScaler(formatSql(sql::provinceCentreOfCity, {cityId})).value_or(""));

    const std::string today = DateTimePersian::init(clock_, calendar_).getPersianDate();
    const RowSet times = db_.Execute(formatSql(sql::reminderTimes, {today, cityId, centreId}));

    std::array<int, typeCount> offsets{};
    std::size_t firstDay = 0;
    if (centreId != cityId) {
        // Without its own offset row first, the centre's times would be announced unshifted.
        if (valueOf(times, 0, "StateID") != std::to_string(cityId) || valueOf(times, 0, "Date") != offsetRowKey)
            return;
        for (int type = 0; type < typeCount; ++type)
            offsets[static_cast<std::size_t>(type)] = intValue(valueOf(times, 0, typeColumn(type)));
        firstDay = 1;
    }

    std::array<int, typeCount> values{};
    for (int type = 0; type < typeCount; ++type)
        values[static_cast<std::size_t>(type)] = intValue(valueOf(settings, 0, settingName(type)));

    const Instant now = clock_.now();
    for (std::size_t row = firstDay; row < times.size(); ++row) {
        for (int type = 0; type < typeCount; ++type) {
            const int value = values[static_cast<std::size_t>(type)];
            if (value == 0)
                continue;
            const std::string time = valueOf(times, row, typeColumn(type));
            // A day that lacks this time must not ring at midnight instead.
            if (time.find(':') == std::string::npos)
                continue;
            Instant moment = getDate(valueOf(times, row, "Date"), time);
            moment += std::chrono::minutes(offsets[static_cast<std::size_t>(type)]);
            if (value >= 2)
                moment -= std::chrono::minutes(value);
            if (moment < now)
                continue;
            add(moment, name, type, value, sound);
        }
    }
}

void MyNotification::cancelAll()
{
    notifications_.cancelAll();
}

Instant MyNotification::getDate(std::string_view dateKey, std::string_view time) const
{
    const auto day = DateTimePersian::initWithPersianDate(dateKey, calendar_);
    const TimeOfDay shown = readTimeOfDay(day.formatHour(time));
    return momentOf(day, shown.hour, shown.minute);
}

Instant MyNotification::momentOf(const DateTimePersian& day, int hour, int minute) const
{
    return calendar_.instantOf(day.fullYear(), day.month(), day.day(), hour, minute);
}

void MyNotification::add(Instant moment, std::string_view cityName, int type, int value, int sound)
{
    const CivilTime civil = calendar_.gregorianFields(moment);
    if (sound == randomSound)
        sound = random_.uniform(recordingCount);

    std::string soundName = format("%d.wav", {sound});
    std::string body;
    if (type == occasionType) {
        body = format(occasionText, {cityName});
        soundName = "times.wav";
    } else if (type >= 0 && type < typeCount) {
        const Kind& kind = kinds[static_cast<std::size_t>(type)];
        const std::string minutes = Utility::ConvertToPersian(format("%d", {value}));
        body = format(kind.text, {kind.word, kind.fixedSound.empty() ? cityName : std::string_view(minutes)});
        if (!kind.fixedSound.empty())
            soundName = kind.fixedSound;
    } else {
        return;
    }

    log_.line(format("%d %d %d / %d:%d - %d - %@",
                     {civil.day, civil.month, civil.year, civil.hour, civil.minute, sound, soundName}));
    notifications_.schedule(
        NotificationRecord{moment, calendar_.timeZoneId(), body, "Ok", soundName, {{"someKey", "someValue"}}});
}

bool MyNotification::isCall(std::string_view alertBody)
{
    const std::string_view lead = callText.substr(0, callText.find('%'));
    return alertBody.starts_with(lead);
}

bool MyNotification::anyReminderOn()
{
    const RowSet settings = db_.Execute(sql::allSettings);
    for (int item = 0; item < typeCount; ++item) {
        if (intValue(valueOf(settings, 0, settingName(item))) != 0)
            return true;
    }
    return valueOf(settings, 0, settingName(7)).find(':') != std::string::npos;
}

void MyNotification::updateCalendarEvents(std::string_view time)
{
    // "0", and anything else that is not a time with a colon, means the announcements are off.
    if (time.find(':') == std::string_view::npos)
        return;
    log_.line(std::string(time));

    const std::string today = DateTimePersian::init(clock_, calendar_).getPersianDate();
    const RowSet occasions = db_.Execute(formatSql(sql::comingOccasions, {today}));
    const Instant now = clock_.now();
    const TimeOfDay at = readTimeOfDay(time);
    for (std::size_t row = 0; row < occasions.size(); ++row) {
        // The chosen time is already wall-clock time: no summer hour to add or take off.
        const Instant moment = momentOf(
            DateTimePersian::initWithPersianDate(valueOf(occasions, row, "Date"), calendar_), at.hour, at.minute);
        if (moment < now)
            continue;
        std::string text = valueOf(occasions, row, "Description");
        std::replace(text.begin(), text.end(), '@', '-');
        add(moment, text, occasionType, 0, 0);
    }
}

}  // namespace kavenda
