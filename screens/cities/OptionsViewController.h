// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/AudioPlayer.h"

#include <QPointer>
#include <QWidget>

#include <functional>

namespace kavenda {

class Alerts;
class CustomUITabBarController;
class Log;
class MyDB;
class Paths;
class UrlOpener;

// Builds the options' tab bar from its layout and hands it out; the tab bar is what gets
// presented. Once built, the tab bar owns this loader.
class OptionsViewController : public QWidget {
    Q_OBJECT

public:
    struct Services {
        MyDB& db;
        const Paths& paths;
        std::function<void()> rebuildReminders;
        Log* log = nullptr;
        AudioPlayer* audio = nullptr;
        PlayableCheck isPlayable = {};
        Alerts* alerts = nullptr;
        UrlOpener* urls = nullptr;
    };

    explicit OptionsViewController(Services services, QWidget* parent = nullptr);

    // Loads the layout on the first call only.
    CustomUITabBarController* tabBarControl();
    void setTabBarControl(CustomUITabBarController* tabBar) { tabBarControl_ = tabBar; }

private:
    Services services_;
    QPointer<CustomUITabBarController> tabBarControl_;
};

}  // namespace kavenda
