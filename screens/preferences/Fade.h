// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QEasingCurve>

class QWidget;

namespace kavenda {

// Fades a widget in (shown first) or out (hidden at the end); at once while animations are off.
void fade(QWidget* widget, bool in, int milliseconds, QEasingCurve::Type curve);

}  // namespace kavenda
