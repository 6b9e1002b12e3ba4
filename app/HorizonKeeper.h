// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QObject>

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

class QThread;

namespace kavenda {

class Log;

// Runs the top-up of the working copy (DataHorizon) on a thread of its own at idle priority,
// so that neither the first frame nor a reminder waits for the almanac; tells the window's
// thread when it added years. A request while one runs is kept and run after it, with the
// latest day.
class HorizonKeeper : public QObject {
    Q_OBJECT

public:
    HorizonKeeper(std::filesystem::path database, Log& log, QObject* parent = nullptr);
    ~HorizonKeeper() override;

    // `today` is today's date key.
    void keepAhead(int today);
    bool busy() const { return worker_ != nullptr; }

signals:
    void yearsAdded();
    // Every run ends with this, after yearsAdded when there were any.
    void settled();

private:
    struct Outcome {
        std::vector<int> added;
        std::string failure;
    };
    static Outcome attempt(const std::function<std::vector<int>()>& add);
    void report(const Outcome& outcome);
    void start(int today);
    void finish();

    std::filesystem::path database_;
    Log& log_;
    QThread* worker_ = nullptr;
    std::optional<int> pending_;
    Outcome outcome_;  // written by the worker, read after it has finished
};

}  // namespace kavenda
