// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QObject>

namespace kavenda {

// Enter and Return press the focused button, as Space does; installed on the application, so
// that every button, plain or drawn by a screen, answers the keyboard alike.
class EnterPressesButtons : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace kavenda
