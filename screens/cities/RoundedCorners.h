// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

class QWidget;

namespace kavenda {

// Clips a widget to a rectangle with rounded corners, as the grouped lists of the options look.
void roundCorners(QWidget* widget, int radius);

}  // namespace kavenda
