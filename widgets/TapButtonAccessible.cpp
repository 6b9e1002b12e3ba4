// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/TapButtonAccessible.h"

#include <QAbstractButton>

namespace kavenda {

namespace {

QAccessible::Role roleOf(QWidget* button)
{
    auto* tappable = qobject_cast<QAbstractButton*>(button);
    return tappable && tappable->isCheckable() ? QAccessible::CheckBox : QAccessible::Button;
}

}  // namespace

TapButtonAccessible::TapButtonAccessible(QWidget* button) : QAccessibleWidget(button, roleOf(button))
{
}

QString TapButtonAccessible::text(QAccessible::Text kind) const
{
    const QString text = QAccessibleWidget::text(kind);
    return kind == QAccessible::Name && text.isEmpty() ? button()->text() : text;
}

QAccessible::State TapButtonAccessible::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    state.checkable = button()->isCheckable();
    state.checked = button()->isChecked();
    state.pressed = button()->isDown();
    return state;
}

QStringList TapButtonAccessible::actionNames() const
{
    QStringList names;
    if (button()->isEnabled()) {
        if (button()->isCheckable())
            names << toggleAction();
        names << pressAction();
    }
    return names + QAccessibleWidget::actionNames();
}

// A disabled button stays refused, as it is to a tap.
void TapButtonAccessible::doAction(const QString& action)
{
    if (action == toggleAction() || action == pressAction()) {
        if (button()->isEnabled())
            button()->click();
    } else {
        QAccessibleWidget::doAction(action);
    }
}

QAbstractButton* TapButtonAccessible::button() const
{
    return static_cast<QAbstractButton*>(widget());
}

}  // namespace kavenda
