// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "screens/main/CustomUIImageViewAccessible.h"

#include <QWidget>

namespace kavenda {

CustomUIImageViewAccessible::CustomUIImageViewAccessible(QWidget* page) : QAccessibleWidget(page, QAccessible::Pane)
{
}

QAccessible::State CustomUIImageViewAccessible::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    if (widget()->isVisible() && widget()->visibleRegion().isEmpty())
        state.offscreen = true;
    return state;
}

}  // namespace kavenda
