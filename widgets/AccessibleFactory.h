// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QAccessible>

namespace kavenda {

// Makes every widget of a kind answer screen readers with its own interface. The first widget
// of the kind installs it, before anyone can ask for the widget's interface.
template <typename Widget, typename Interface> void installAccessibleInterface()
{
    static const bool installed = [] {
        QAccessible::installFactory([](const QString&, QObject* object) -> QAccessibleInterface* {
            auto* widget = qobject_cast<Widget*>(object);
            return widget ? new Interface(widget) : nullptr;
        });
        return true;
    }();
    (void)installed;
}

}  // namespace kavenda
