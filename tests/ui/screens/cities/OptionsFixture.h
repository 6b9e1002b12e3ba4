// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "data/MyDB.h"
#include "desktop/IcuPersianCalendar.h"
#include "reminders/MyNotification.h"
#include "screens/cities/SelectionControllerDelegate.h"
#include "tests/support/FixedClock.h"
#include "tests/support/FixedPaths.h"
#include "tests/support/RecordingLog.h"
#include "tests/support/RecordingNotificationService.h"
#include "tests/support/ScriptedRandom.h"
#include "tests/support/TempFolder.h"

#include <QPointer>
#include <QStringList>

#include <initializer_list>
#include <memory>

class QWidget;

namespace kavenda {

class Alerts;
class AudioPlayer;
class CustomUITabBarController;
class UrlOpener;
class NavigationStack;
class PresentationStack;
class SearchController;
class SelectionController;

namespace test {

// What the options are handed besides the database: the fixture's own paths and log unless given.
struct OptionServices {
    const Paths* paths = nullptr;
    Log* log = nullptr;
    AudioPlayer* audio = nullptr;
    Alerts* alerts = nullptr;
    UrlOpener* urls = nullptr;
};

// The options presented over a stand-in main screen, on a fixture database, with real
// reminders recorded by a fake notification service.
class OptionsFixture : public SelectionControllerDelegate {
public:
    OptionsFixture();
    ~OptionsFixture() override;

    // Chooses cities in this order (Ordering 0, 1, ...).
    void choose(std::initializer_list<int> stateIds);
    void open(OptionServices services = {});

    void closeForm() override;

    CustomUITabBarController* tabs() const { return tabs_; }
    NavigationStack* navigation() const;
    SelectionController* selection() const;
    // The search on top of the list, or null.
    SearchController* search() const;
    PresentationStack* presentation() const { return presentation_; }

    QStringList listedNames() const;
    // "id:ordering" of the chosen cities in ascending order.
    QStringList orderings();
    int countOf(const char* sql);
    // Clicks a tab of the options' bar as a person would.
    void clickTab(int index) const;
    void saveScreenshot(const QString& name) const;

    MyDB& db() { return db_; }
    RecordingNotificationService notifications;
    // How many reminders were pending each time the options were closed.
    QList<int> pendingAtClose;

private:
    TempFolder temp_;
    FixedPaths paths_;
    RecordingLog log_;
    MyDB db_;
    FixedClock clock_;
    IcuPersianCalendar calendar_;
    ScriptedRandom random_{{0}};
    MyNotification reminders_;
    std::unique_ptr<QWidget> window_;
    PresentationStack* presentation_ = nullptr;
    QPointer<CustomUITabBarController> tabs_;
};

}  // namespace test
}  // namespace kavenda
