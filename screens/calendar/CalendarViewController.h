// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "screens/calendar/MonthGrid.h"

#include <QPointer>
#include <QWidget>

#include <filesystem>
#include <map>
#include <memory>

class QLabel;
class QListWidget;
class QKeyEvent;
class QVariantAnimation;

namespace Ui {
class CalendarViewController;
}

namespace kavenda {

class CalendarViewControllerDelegate;
class Clock;
class DayButton;
class MyDB;
class PersianCalendar;

// The month calendar: one month as a grid of day buttons over a table of the selected day's
// occasions; steps a month with a vertical slide, jumps to today, and hands a day back. From
// the keyboard the arrows move through the grid right to left, Page Up and Page Down step the
// month, Home goes to today, Enter and Space press, Escape closes without a pick.
class CalendarViewController : public QWidget {
    Q_OBJECT

public:
    struct Services {
        MyDB& db;
        const Clock& clock;
        const PersianCalendar& calendar;
        std::filesystem::path resourceFolder;
    };

    // Opens on the date's month with its day selected.
    CalendarViewController(const DateTimePersian& date, const Services& services, QWidget* parent = nullptr);
    ~CalendarViewController() override;

    void setDelegate(CalendarViewControllerDelegate* delegate) { delegate_ = delegate; }
    CalendarViewControllerDelegate* delegate() const { return delegate_; }

    void changeMonth(int step);
    void showEvents(int page, DayButton* button);
    void showToday();
    void showDetails();
    void scrollViewDidEndScrollingAnimation();

    bool canChange() const { return grid_.canChange(); }
    // The day buttons of the month in the grid's month (during a slide, the page slid to), by day.
    std::map<int, DayButton*> dayButtons() const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void apply(const MonthGrid::Switch& done);
    QWidget* makePage(const MonthPage& page);
    void showSelection();
    void reloadData();
    void setOffset(int y);
    int slotY(MonthGrid::Slot slot) const;
    void updateSteps();
    // Moves the grid's one focus stop to a day of the month in the grid's month.
    void focusDay(int day, bool focus);
    DayButton* focusedDay() const;
    void dismissWithoutPick();
    int stopDay() const;

    std::unique_ptr<Ui::CalendarViewController> ui_;
    std::filesystem::path resourceFolder_;
    MonthGrid grid_;
    QWidget* content_ = nullptr;
    std::map<int, QWidget*> pageViews_;
    QPointer<QVariantAnimation> slide_;
    CalendarViewControllerDelegate* delegate_ = nullptr;
};

}  // namespace kavenda
