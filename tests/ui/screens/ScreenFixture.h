// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "data/MyDB.h"
#include "desktop/FixedScreen.h"
#include "desktop/SystemPersianCalendar.h"
#include "reminders/MyNotification.h"
#include "screens/cities/CustomUITabBarController.h"
#include "screens/main/MainViewController.h"
#include "tests/support/FixedClock.h"
#include "tests/support/FixedPaths.h"
#include "tests/support/RecordingAlerts.h"
#include "tests/support/RecordingAudioPlayer.h"
#include "tests/support/RecordingLog.h"
#include "tests/support/RecordingNotificationService.h"
#include "tests/support/RecordingUrlOpener.h"
#include "tests/support/ScriptedRandom.h"
#include "tests/support/TehranTime.h"
#include "tests/support/TempFolder.h"
#include "widgets/NavigationStack.h"
#include "widgets/PresentationStack.h"

#include <QtTest>
#include <QtWidgets>

#include <algorithm>
#include <initializer_list>
#include <memory>
#include <optional>

namespace kavenda {

namespace test {

// The program's screens in a window of the phone's size with the main screen at the root, on a
// fixture database or the generated one, with a fixed clock, real reminders over a recording
// notification service, and recording fakes for the rest.
class ScreenFixture {
public:
    // The fixture's places and days for the main screen, or for the city list and its search.
    enum class Data { mainScreen, cities, generated };
    explicit ScreenFixture(Instant now, Data data = Data::mainScreen);
    ~ScreenFixture();

    // Chooses the places in this order (Ordering 0, 1, ...).
    void choose(std::initializer_list<int> stateIds);
    // The first value the query finds, or "<none>"; "id:ordering" of the chosen cities in order.
    std::string query(const std::string& sql) { return db->ExecuteScaler(sql).value_or("<none>"); }
    QStringList orderings();
    // Shows the window with the main screen, active; the options opened by its button.
    MainViewController& show();
    CustomUITabBarController& openOptions();
    void clickTab(int index);
    void click(const QString& objectName) { click(find<QAbstractButton>(objectName)); }
    static void click(QWidget* widget);
    static void clickRow(QListWidget* list, int row);
    static QStringList texts(const QListWidget* list);
    // One key press per letter, as a Persian keyboard sends them (QTest types Latin letters only).
    static void type(QWidget* field, const QString& text);
    // The top of the cities' tab, and that tab's navigation; the search's results.
    QWidget* citiesTop() const { return citiesNavigation()->top(); }
    NavigationStack* citiesNavigation() const { return find<NavigationStack>(QStringLiteral("citiesNavigation")); }
    QListWidget* results() const { return find<QListWidget>(QStringLiteral("tblResult")); }
    // A write the database refuses: a trigger of that name before the event ("DELETE ON tStates").
    void refuse(const std::string& trigger, const std::string& event);

    // The widget of that name on show: screens closed may still wait to be deleted.
    template <typename T = QWidget> T* find(const QString& objectName = {}) const
    {
        const QList<T*> all = window_->findChildren<T*>(objectName);
        const auto shown = std::find_if(all.begin(), all.end(), [](T* widget) { return widget->isVisible(); });
        return shown != all.end() ? *shown : all.value(0);
    }
    QWidget* top() const { return presentation->top(); }
    // The main screen's pages from left to right, each the texts of its labels in their order.
    QList<QStringList> pages() const;
    void saveScreenshot(const QString& name);

    TempFolder temp;
    RecordingLog log;
    FixedClock clock;
    SystemPersianCalendar calendar;
    FixedScreen screen;
    RecordingNotificationService notifications;
    ScriptedRandom random{{0}};
    RecordingAudioPlayer audio;
    RecordingAlerts alerts;
    RecordingUrlOpener urls;
    // Where the screens look: the generated resources, and the working copy's folder.
    FixedPaths paths;
    std::optional<MyDB> db;
    std::optional<MyNotification> reminders;
    int rebuilds = 0;
    PresentationStack* presentation = nullptr;
    MainViewController* main = nullptr;

private:
    FixedPaths dataPaths_;
    std::unique_ptr<QWidget> window_;
};

}  // namespace test
}  // namespace kavenda
