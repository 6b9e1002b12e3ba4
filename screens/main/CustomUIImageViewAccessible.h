// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QAccessibleWidget>

namespace kavenda {

// A day page as a screen reader finds it: a pane named by its city and date, off screen while
// the pager shows another page.
class CustomUIImageViewAccessible : public QAccessibleWidget {
public:
    explicit CustomUIImageViewAccessible(QWidget* page);

    QAccessible::State state() const override;
};

}  // namespace kavenda
