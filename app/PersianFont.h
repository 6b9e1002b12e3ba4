// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

namespace kavenda {

// Makes a font that writes Persian well the application's font: Nazli, else DejaVu Sans.
void usePersianFont();

}  // namespace kavenda
