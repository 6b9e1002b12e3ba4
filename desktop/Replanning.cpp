// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "desktop/Replanning.h"

#include "desktop/SystemPersianCalendar.h"
#include "platform/Clock.h"
#include "platform/Log.h"

#include <QDBusConnection>
#include <QDir>
#include <QFileInfo>

#include <utility>

namespace kavenda {

namespace {

const QString zoneFile = QStringLiteral("/etc/localtime");

const char* nameOf(ReplanWatch::Change change)
{
    switch (change) {
    case ReplanWatch::Change::newDay:
        return "a new day";
    case ReplanWatch::Change::clockJump:
        return "the clock jumped";
    case ReplanWatch::Change::zone:
        return "a new time zone";
    case ReplanWatch::Change::none:
        break;
    }
    return "";
}

}  // namespace

Replanning::Replanning(const Clock& clock, SystemPersianCalendar& calendar, Log& log, std::function<void()> deliverDue,
                       std::function<void(ReplanWatch::Change)> replan, QObject* parent)
    : QObject(parent), clock_(clock), calendar_(calendar), log_(log), deliverDue_(std::move(deliverDue)),
      replan_(std::move(replan)), watch_(calendar)
{
    timer_.setSingleShot(true);
    // A coarse timer may fire a little before the minute it waits for.
    timer_.setTimerType(Qt::PreciseTimer);
    connect(&timer_, &QTimer::timeout, this, &Replanning::look);

    // The zone file is replaced, not written: watch the folder too, and the file anew.
    connect(&zoneFile_, &QFileSystemWatcher::fileChanged, this, &Replanning::zoneMayHaveChanged);
    connect(&zoneFile_, &QFileSystemWatcher::directoryChanged, this, &Replanning::zoneMayHaveChanged);
    watchZoneFile();

    QDBusConnection system = QDBusConnection::systemBus();
    if (system.isConnected()) {
        system.connect(QStringLiteral("org.freedesktop.login1"), QStringLiteral("/org/freedesktop/login1"),
                       QStringLiteral("org.freedesktop.login1.Manager"), QStringLiteral("PrepareForSleep"), this,
                       SLOT(prepareForSleep(bool)));
        system.connect(QStringLiteral("org.freedesktop.timedate1"), QStringLiteral("/org/freedesktop/timedate1"),
                       QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("PropertiesChanged"), this,
                       SLOT(zoneMayHaveChanged()));
    }
    look();
}

void Replanning::look()
{
    deliverDue_();
    const Instant now = clock_.now();
    const ReplanWatch::Change change = watch_.look(now, std::chrono::steady_clock::now().time_since_epoch());
    if (change != ReplanWatch::Change::none) {
        log_.line(std::string("reminders rebuilt: ") + nameOf(change));
        replan_(change);
    }
    emit minuteBegan();
    const auto intoMinute = now.time_since_epoch() % std::chrono::minutes(1);
    timer_.start(watch_.nextLookIn(now, std::chrono::minutes(1) - intoMinute));
}

void Replanning::prepareForSleep(bool sleeping)
{
    if (!sleeping)
        look();
}

void Replanning::zoneMayHaveChanged()
{
    watchZoneFile();
    calendar_.followSystemZone();
    look();
}

void Replanning::watchZoneFile()
{
    const QFileInfo file(zoneFile);
    if (!zoneFile_.directories().contains(file.absolutePath()) && file.dir().exists())
        zoneFile_.addPath(file.absolutePath());
    if (!zoneFile_.files().contains(zoneFile) && file.exists())
        zoneFile_.addPath(zoneFile);
}

}  // namespace kavenda
