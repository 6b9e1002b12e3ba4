// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

class QPushButton;
class QWidget;

namespace kavenda {

// The "ذخیره" button of a preference screen's bar: disabled until there is something to save.
QPushButton* makeSaveButton(QWidget* parent);

}  // namespace kavenda
