// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

namespace kavenda {

// Qt's own texts, such as a text field's edit menu, in Persian where Qt has them.
void usePersianQtTexts();

}  // namespace kavenda
