// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "reminders/ReplanWatch.h"

#include <QFileSystemWatcher>
#include <QObject>
#include <QTimer>

#include <functional>

namespace kavenda {

class Clock;
class SystemPersianCalendar;
class Log;

// Tells a program that runs for weeks when to rebuild its reminders. It looks at the clocks at
// the start of every minute, and at once when the desktop says something changed: a resume from
// suspend (logind), a new time zone (timedated, the zone file). Its minute is the idle program's
// only timer: what shows the time left listens to minuteBegan.
class Replanning : public QObject {
    Q_OBJECT

public:
    // What is due is delivered before a rebuild, which would drop what is only a little late.
    Replanning(const Clock& clock, SystemPersianCalendar& calendar, Log& log, std::function<void()> deliverDue,
               std::function<void(ReplanWatch::Change)> replan, QObject* parent = nullptr);

    void look();

signals:
    void minuteBegan();

private slots:
    void prepareForSleep(bool sleeping);
    // The zone is read anew only when something says it may have changed: without a zone
    // link, finding the zone means comparing the zone file with every zone there is.
    void zoneMayHaveChanged();

private:
    void watchZoneFile();

    const Clock& clock_;
    SystemPersianCalendar& calendar_;
    Log& log_;
    std::function<void()> deliverDue_;
    std::function<void(ReplanWatch::Change)> replan_;
    ReplanWatch watch_;
    QTimer timer_;
    QFileSystemWatcher zoneFile_;
};

}  // namespace kavenda
