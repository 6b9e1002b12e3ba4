// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QObject>

namespace kavenda {

// SIGTERM and SIGINT (a logout, Ctrl+C in a terminal) end the program as its own Quit does, so
// that the instance socket is removed and nothing is cut off mid-write. A signal handler may do
// almost nothing, so it only writes a byte that the event loop reads.
class TerminationSignals : public QObject {
    Q_OBJECT

public:
    explicit TerminationSignals(QObject* parent = nullptr);

signals:
    void received();
};

}  // namespace kavenda
