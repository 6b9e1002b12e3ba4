// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "data/MyDB.h"
#include "desktop/IcuPersianCalendar.h"
#include "platform/Screen.h"
#include "tests/support/FixedClock.h"
#include "tests/support/FixedPaths.h"
#include "tests/support/RecordingLog.h"
#include "tests/support/TempFolder.h"

#include <QStringList>
#include <QWidget>

#include <initializer_list>
#include <memory>
#include <optional>

namespace kavenda {

class CustomUIImageView;
class MainViewController;
class PresentationStack;

namespace test {

class SettableScreen final : public Screen {
public:
    int boundsHeight() const override { return height; }
    int height = 480;
};

// A main screen on a fixture database, in a window of the phone's size, with a fixed clock.
class MainScreenFixture {
public:
    enum class Data { fixture, shippedWhereBuilt };
    explicit MainScreenFixture(Instant now, int screenHeight = 480, Data data = Data::fixture);
    ~MainScreenFixture();

    // Chooses the places in the user's order: Ordering 0, 1, 2, ...
    void choose(std::initializer_list<int> stateIds);
    int centreNamed(const std::string& name);
    // Copies the fixture's times and occasions of 920410 to the day of a date key.
    void copyDay(const std::string& dateKey);
    // Builds the window and shows it, which makes the main screen appear.
    MainViewController& show();

    // The pages from left to right, and the texts of one page in the order they were added.
    QList<CustomUIImageView*> pages() const;
    static QStringList texts(const CustomUIImageView* page);

    QWidget& window() { return *window_; }
    PresentationStack& presentation() { return *presentation_; }
    MainViewController& main() { return *main_; }
    void saveScreenshot(const QString& name);

    TempFolder temp;
    FixedPaths paths;
    RecordingLog log;
    FixedClock clock;
    IcuPersianCalendar calendar;
    SettableScreen screen;
    std::optional<MyDB> db;
    bool shipped = false;
    int reminderRebuilds = 0;

private:
    std::unique_ptr<QWidget> window_;
    PresentationStack* presentation_ = nullptr;
    MainViewController* main_ = nullptr;
};

}  // namespace test
}  // namespace kavenda
