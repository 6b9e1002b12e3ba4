// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "screens/calendar/MonthGrid.h"

#include "data/MyDB.h"
#include "data/Statements.h"
#include "text/Format.h"
#include "text/Utility.h"

#include <algorithm>

namespace kavenda {

namespace {

constexpr int friday = 6;
constexpr int months = 12;
constexpr int lastMonth = 11;
// 1392's calendar never handed on its last day, 29 Esfand; later years hand it on.
constexpr int yearKeepingItsLastDay = 1392;
constexpr int lastDayOf1392 = 29;

}  // namespace

std::vector<std::string> MonthGrid::occasions(const std::string& text)
{
    std::vector<std::string> pieces;
    std::size_t start = 0;
    for (;;) {
        const std::size_t at = text.find('@', start);
        pieces.push_back(text.substr(start, at == std::string::npos ? std::string::npos : at - start));
        if (at == std::string::npos)
            return pieces;
        start = at + 1;
    }
}

DayCell* MonthPage::cell(int day)
{
    auto found = std::find_if(cells.begin(), cells.end(), [day](const DayCell& c) { return c.place.day == day; });
    return found == cells.end() ? nullptr : &*found;
}

const DayCell* MonthPage::cell(int day) const
{
    return const_cast<MonthPage*>(this)->cell(day);
}

MonthGrid::MonthGrid(MyDB& db, const PersianCalendar& calendar, const DateTimePersian& opened,
                     const DateTimePersian& now)
    : db_(db), calendar_(calendar), year_(opened.fullYear()), month_(opened.month() - 1), yearNow_(now.fullYear()),
      monthNow_(now.month() - 1), today_(opened.day()), dayNow_(now.day()), held_(readHeldMonths(db))
{
}

std::optional<MonthGrid::HeldMonths> MonthGrid::readHeldMonths(MyDB& db)
{
    const RowSet range = db.Execute(sql::heldDays);
    const auto month = [&range](const char* column) -> std::optional<int> {
        const std::string key = MyDB::getValue(range, 0, column).value_or("");
        if (key.size() < 6)
            return std::nullopt;
        // The year is what stands before the month and the day, two characters each.
        const int year = 1300 + std::stoi(key.substr(0, key.size() - 4));
        return year * months + std::stoi(key.substr(key.size() - 4, 2)) - 1;
    };
    const std::optional<int> first = month("first");
    const std::optional<int> last = month("last");
    if (!first || !last)
        return std::nullopt;
    return HeldMonths{*first, *last};
}

std::string MonthGrid::monthStatement(int year, int m)
{
    return formatSql(sql::monthEvents, {format(sql::monthPattern, {year % 1300, m + 1})});
}

MonthGrid::Switch MonthGrid::viewDidLoad()
{
    canChange_ = true;
    const Switch done = switchMonth(year_, month_);
    canChange_ = true;
    return done;
}

MonthGrid::Switch MonthGrid::switchMonth(int year, int m)
{
    canChange_ = false;
    title_ = DateTimePersian::getMonthName(m) + " " + Utility::ConvertToPersian(format("%d", {year}));
    const int target = year * months + m;
    const int shown = year_ * months + month_;
    if (target != shown) {
        buildPage(year, m);
        return {true, target > shown ? Slot::bottom : Slot::top, true};
    }
    canChange_ = true;
    if (!pages_.empty()) {
        setSelected(lastBtn_, false);
        setSelected(todayBtn_, true);
        lastBtn_ = todayBtn_;
        return {false, Slot::middle, false};
    }
    buildPage(year, m);
    return {true, Slot::middle, false};
}

void MonthGrid::buildPage(int year, int m)
{
    datasource_ = db_.Execute(monthStatement(year, m));
    MonthPage page;
    page.id = nextPageId_++;
    page.year = year;
    page.month = m;
    for (const GridPlace& place : placeDays(MonthShape::of(calendar_, year, m))) {
        const int day = place.day;
        const ButtonRef ref{page.id, day};
        DayCell cell;
        cell.place = place;
        cell.description = description(day);
        cell.holiday = place.column == friday
            || MyDB::getValue(datasource_, static_cast<std::size_t>(day - 1), "IsHoliday").value_or("") == "1";
        if (day == today_ && year == year_ && m == month_) {
            cell.selected = true;
            lastBtn_ = ref;
        }
        if (day == dayNow_ && year == yearNow_ && m == monthNow_) {
            cell.today = true;
            if (dayNow_ == today_)
                cell.selected = true;
            lastBtn_ = ref;
            todayBtn_ = ref;
        }
        page.cells.push_back(std::move(cell));
    }
    pages_.push_back(std::move(page));
}

void MonthGrid::scrollViewDidEndScrollingAnimation()
{
    while (pages_.size() > 1)
        pages_.pop_front();
    canChange_ = true;
}

std::optional<MonthGrid::Switch> MonthGrid::changeMonth(int step)
{
    if (!canChange_ || !canStep(step))
        return std::nullopt;
    const int next = year_ * months + month_ + step;
    const Switch done = switchMonth(next / months, next % months);
    lastBtn_.reset();
    today_ = 0;
    year_ = next / months;
    month_ = next % months;
    return done;
}

// A month outside the data may still step back towards it, so no arrow is dead there.
bool MonthGrid::canStep(int step) const
{
    if (!held_)
        return false;
    const int next = year_ * months + month_ + step;
    return step < 0 ? next >= held_->first : next <= held_->last;
}

int MonthGrid::dayAfter(int day, int step) const
{
    const int next = day + step;
    return next >= 1 && next <= static_cast<int>(pages_.back().cells.size()) ? next : day;
}

std::optional<MonthGrid::Switch> MonthGrid::showToday()
{
    if (!canChange_)
        return std::nullopt;
    today_ = dayNow_;
    const Switch done = switchMonth(yearNow_, monthNow_);
    month_ = monthNow_;
    year_ = yearNow_;
    return done;
}

void MonthGrid::showEvents(ButtonRef button)
{
    setSelected(lastBtn_, false);
    setSelected(button, true);
    today_ = button.day;
    lastBtn_ = button;
}

std::optional<DateTimePersian> MonthGrid::showDetails()
{
    if (today_ == 0) {
        today_ = dayNow_;
        month_ = monthNow_;
        year_ = yearNow_;
    }
    if (year_ == yearKeepingItsLastDay && month_ == lastMonth && today_ == lastDayOf1392)
        return std::nullopt;
    const std::string key = format("%d%02d%02d", {year_ % 1300, month_ + 1, today_});
    return DateTimePersian::initWithPersianDate(key, calendar_);
}

int MonthGrid::numberOfRows() const
{
    if (today_ == 0)
        return 1;
    return static_cast<int>(occasionsOfSelection().size());
}

std::string MonthGrid::cellText(int row) const
{
    if (today_ == 0)
        return std::string(noOccasion);
    const std::vector<std::string> pieces = occasionsOfSelection();
    if (pieces.front().empty())
        return std::string(noOccasion);
    return row >= 0 && row < static_cast<int>(pieces.size()) ? pieces[static_cast<std::size_t>(row)] : std::string();
}

std::vector<std::string> MonthGrid::occasionsOfSelection() const
{
    return occasions(description(today_));
}

std::string MonthGrid::description(int day) const
{
    if (day < 1)
        return {};
    return MyDB::getValue(datasource_, static_cast<std::size_t>(day - 1), "Description").value_or("");
}

void MonthGrid::setSelected(std::optional<ButtonRef> button, bool selected)
{
    if (!button)
        return;
    for (MonthPage& page : pages_)
        if (page.id == button->page)
            if (DayCell* cell = page.cell(button->day))
                cell->selected = selected;
}

}  // namespace kavenda
