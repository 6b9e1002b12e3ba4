// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/AudioPlayer.h"

namespace kavenda {

class Alerts;
class Clock;
class Log;
class NotificationService;
class Paths;
class PersianCalendar;
class Random;
class Screen;
class UrlOpener;

// The services the shell makes at start and hands to the window and the shared instances.
struct AppServices {
    Clock* clock = nullptr;
    PersianCalendar* calendar = nullptr;
    Paths* paths = nullptr;
    Log* log = nullptr;
    NotificationService* notifications = nullptr;
    Random* random = nullptr;
    AudioPlayer* audio = nullptr;
    UrlOpener* urls = nullptr;
    Alerts* alerts = nullptr;
    Screen* screen = nullptr;
    PlayableCheck isPlayable = {};
};

}  // namespace kavenda
