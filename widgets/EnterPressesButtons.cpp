// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/EnterPressesButtons.h"

#include <QAbstractButton>
#include <QKeyEvent>

namespace kavenda {

bool EnterPressesButtons::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress)
        return QObject::eventFilter(watched, event);
    const auto* key = static_cast<QKeyEvent*>(event);
    auto* button = qobject_cast<QAbstractButton*>(watched);
    const bool enter = key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter;
    if (!enter || !button || !button->hasFocus() || !button->isEnabled() || key->modifiers() & ~Qt::KeypadModifier)
        return QObject::eventFilter(watched, event);
    button->click();
    return true;
}

}  // namespace kavenda
