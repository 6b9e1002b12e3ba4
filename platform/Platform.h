#pragma once

namespace kavenda {

class Alerts;
class AudioPlayer;
class Clock;
class Log;
class NotificationService;
class Paths;
class PersianCalendar;
class Random;
class Screen;
class UrlOpener;

// The services that the shell installs at start and the shared instances are built from.
// Tests install their own, or hand collaborators to the classes directly.
struct Platform {
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

    static Platform& installed();
    static void install(const Platform& services);
};

}  // namespace kavenda
