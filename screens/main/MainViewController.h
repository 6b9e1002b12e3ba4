// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "calendar/DateTimePersian.h"
#include "platform/AudioPlayer.h"
#include "screens/calendar/CalendarViewControllerDelegate.h"
#include "screens/cities/SelectionControllerDelegate.h"
#include "screens/main/CityPages.h"

#include <QWidget>

#include <functional>
#include <optional>

class QAbstractButton;

namespace kavenda {

class Alerts;
class Clock;
class Log;
class MyDB;
class Pager;
class PageIndicator;
class Paths;
class PersianCalendar;
class PresentationStack;
class Screen;
class UrlOpener;

// The root screen: one day page per chosen city in a pager, the last city of the user's list
// on the left, opening on the first city; buttons for the options and the month calendar.
class MainViewController : public QWidget, public SelectionControllerDelegate, public CalendarViewControllerDelegate {
    Q_OBJECT

public:
    struct Services {
        MyDB& db;
        const Clock& clock;
        const PersianCalendar& calendar;
        const Screen& screen;
        const Paths& paths;
        // What the options' Done runs before they close.
        std::function<void()> rebuildReminders;
        // The options' own services; a screen without one leaves its feature out.
        Log* log = nullptr;
        AudioPlayer* audio = nullptr;
        PlayableCheck isPlayable = {};
        Alerts* alerts = nullptr;
        UrlOpener* urls = nullptr;
    };

    // The presentation stack is the one this screen is the root of; it shows the options.
    MainViewController(const Services& services, PresentationStack& presentation, QWidget* parent = nullptr);
    ~MainViewController() override;

    void refresh();
    void updateDataSource();
    void Bind();
    void showSelector();
    void closeForm() override;
    // Presents the month calendar on the date shown.
    void showCalendar();
    // The month calendar hands back the day to show until the next refresh, and is dismissed.
    void closeCalendar(const DateTimePersian& date, QWidget* calendar) override;
    void pageAction();
    void scrollViewDidScroll(double offset);

    const RowSet& datasource() const { return pages_.datasource(); }
    int pageCount() const { return pageCount_; }
    const DateTimePersian& localDtp() const { return *localDtp_; }

signals:
    // After each refresh, for whoever keeps count of the life events.
    void refreshed();

protected:
    void showEvent(QShowEvent* event) override;

private:
    void viewDidLoad();
    void viewDidAppear();
    void presentationChanged();
    bool tallScreen() const;

    Services services_;
    PresentationStack& presentation_;
    CityPages pages_;
    int pageCount_ = 0;
    std::optional<DateTimePersian> localDtp_;
    Pager* scrollView_ = nullptr;
    PageIndicator* pageControl_ = nullptr;
    bool appeared_ = false;
    // What the pages on show were made from.
    RowSet boundRows_;
    std::string boundDate_;
};

}  // namespace kavenda
