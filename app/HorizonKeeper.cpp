// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/HorizonKeeper.h"

#include "data/DataHorizon.h"
#include "platform/Log.h"

#include <QThread>

#include <exception>

#include <sys/resource.h>
#include <unistd.h>

namespace kavenda {

HorizonKeeper::HorizonKeeper(std::filesystem::path database, Log& log, QObject* parent)
    : QObject(parent), database_(std::move(database)), log_(log)
{
}

HorizonKeeper::~HorizonKeeper()
{
    if (worker_)
        worker_->wait();
}

HorizonKeeper::Outcome HorizonKeeper::attempt(const std::function<std::vector<int>()>& add)
{
    try {
        return Outcome{add(), {}};
    } catch (const std::exception& error) {
        return Outcome{{}, error.what()};
    }
}

void HorizonKeeper::report(const Outcome& outcome)
{
    if (!outcome.failure.empty())
        log_.line("kavenda: the coming years could not be added: " + outcome.failure);
    if (!outcome.added.empty())
        log_.line(DataHorizon::report(outcome.added));
}

void HorizonKeeper::keepAhead(int today)
{
    if (worker_)
        pending_ = today;
    else
        start(today);
}

void HorizonKeeper::start(int today)
{
    worker_ = QThread::create([this, today] {
        // Behind the window's thread on a shared core: a year is a fraction of a second of work
        // that nobody waits for.
        setpriority(PRIO_PROCESS, static_cast<id_t>(gettid()), 10);
        outcome_ = attempt([&] { return DataHorizon(database_).keepAhead(today); });
    });
    connect(worker_, &QThread::finished, this, &HorizonKeeper::finish);
    worker_->start();
}

void HorizonKeeper::finish()
{
    worker_->deleteLater();
    worker_ = nullptr;
    report(outcome_);
    if (!outcome_.added.empty())
        emit yearsAdded();
    if (pending_) {
        const int today = *pending_;
        pending_.reset();
        start(today);
        return;
    }
    emit settled();
}

}  // namespace kavenda
