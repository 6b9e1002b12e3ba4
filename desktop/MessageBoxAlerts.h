// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/Alerts.h"

#include <QPointer>
#include <QWidget>

class QMessageBox;

namespace kavenda {

// A one-button message over the given window. It does not block: the caller (often a timer)
// goes on, and the box closes itself when its button is pressed.
class MessageBoxAlerts final : public Alerts {
public:
    explicit MessageBoxAlerts(QWidget* parent = nullptr);

    void setParent(QWidget* parent);
    void show(const std::string& title, const std::string& message, const std::string& button) override;
    // The box shown last while it is open, for tests that press its button.
    QMessageBox* current() const;

private:
    QPointer<QWidget> parent_;
    QPointer<QMessageBox> current_;
};

}  // namespace kavenda
