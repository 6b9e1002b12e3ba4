#pragma once

#include "calendar/DateTimePersian.h"
#include "data/RowSet.h"
#include "screens/calendar/MonthShape.h"

#include <deque>
#include <optional>
#include <string>
#include <vector>

namespace kavenda {

class MyDB;
class PersianCalendar;

struct Rgb {
    int red = 0;
    int green = 0;
    int blue = 0;
    bool operator==(const Rgb&) const = default;
};

// One day button of a month page, in both of its states.
struct DayCell {
    GridPlace place;
    Rgb normalTitle;
    Rgb selectedTitle;
    // Image file names; empty for none.
    std::string normalBackground;
    std::string selectedBackground;
    bool selected = false;
    // The day's occasions, "@" between them.
    std::string description;

    int x() const { return 276 - 46 * place.column; }
    int y() const { return 44 * place.row + 1; }
};

// The day buttons of one month. Pages are numbered in the order they are built.
struct MonthPage {
    int id = 0;
    int year = 0;
    int month = 0;
    std::vector<DayCell> cells;

    DayCell* cell(int day);
    const DayCell* cell(int day) const;
};

// A button of a page: the page's id and the day.
struct ButtonRef {
    int page = 0;
    int day = 0;
    bool operator==(const ButtonRef&) const = default;
};

// The month calendar's state and decisions: which month is on show, what each day button
// carries, which button is selected, the occasions of the selected day, the day handed on.
// The screen mirrors the pages and asks for the slides that a month switch reports.
class MonthGrid {
public:
    static constexpr Rgb holidayColour{195, 56, 61};
    static constexpr Rgb black{0, 0, 0};
    static constexpr Rgb white{255, 255, 255};
    static constexpr int buttonWidth = 45;
    static constexpr int buttonHeight = 43;
    static constexpr int pageWidth = 320;
    static constexpr int pageHeight = 221;
    static constexpr int rowHeight = 17;
    static constexpr std::string_view noOccasion = "بدون رویداد";

    enum class Slot { top, middle, bottom };
    // What a month switch asks of the screen: a page built in a slot and whether to slide to it.
    struct Switch {
        bool built = false;
        Slot slot = Slot::middle;
        bool animated = false;
    };

    // Opened on a date: its year and month on show, its day selected; now is today.
    MonthGrid(MyDB& db, const PersianCalendar& calendar, const DateTimePersian& opened, const DateTimePersian& now);

    Switch viewDidLoad();
    Switch switchMonth(int year, int m);
    void scrollViewDidEndScrollingAnimation();
    // Each returns the switch it ran, none when the request was ignored.
    std::optional<Switch> changeMonth(int step);
    std::optional<Switch> showToday();
    void showEvents(ButtonRef button);
    // The date to hand on, none when nothing is handed on.
    std::optional<DateTimePersian> showDetails();

    int numberOfRows() const;
    std::string cellText(int row) const;

    // The occasions of a description, in their order; one empty piece when there is none.
    static std::vector<std::string> occasions(const std::string& description);
    // "SELECT ... LIKE" of one month: the key prefix (year mod 1300) and the two-digit month.
    static std::string monthStatement(int year, int m);

    // The shown page first; during a slide the page being slid to is the last.
    const std::deque<MonthPage>& pages() const { return pages_; }
    std::string monthName() const;
    int year() const { return year_; }
    int month() const { return month_; }
    int monthNow() const { return monthNow_; }
    int today() const { return today_; }
    int dayNow() const { return dayNow_; }
    bool canChange() const { return canChange_; }
    const RowSet& datasource() const { return datasource_; }
    std::optional<ButtonRef> lastBtn() const { return lastBtn_; }
    std::optional<ButtonRef> todayBtn() const { return todayBtn_; }

private:
    void buildPage(int year, int m);
    void setSelected(std::optional<ButtonRef> button, bool selected);
    std::string description(int day) const;
    std::vector<std::string> occasionsOfSelection() const;

    MyDB& db_;
    const PersianCalendar& calendar_;
    int year_;
    int month_;
    int yearNow_;
    int monthNow_;
    int today_;
    int dayNow_;
    bool canChange_ = true;
    RowSet datasource_;
    std::deque<MonthPage> pages_;
    int nextPageId_ = 1;
    std::optional<ButtonRef> lastBtn_;
    std::optional<ButtonRef> todayBtn_;
    std::string monthLbl_;
};

}  // namespace kavenda
