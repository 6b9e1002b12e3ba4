// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QAccessibleWidget>

class QAbstractButton;

namespace kavenda {

// A button for screen readers as Qt presents one (a check box while it is checkable, with its
// checked and pressed states), except that both its press and its toggle click the button as a
// tap does: Qt's toggle would flip the checked state and tell no one.
class TapButtonAccessible : public QAccessibleWidget {
public:
    explicit TapButtonAccessible(QWidget* button);

    QString text(QAccessible::Text kind) const override;
    QAccessible::State state() const override;
    QStringList actionNames() const override;
    void doAction(const QString& action) override;

private:
    QAbstractButton* button() const;
};

}  // namespace kavenda
