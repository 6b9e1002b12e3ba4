// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

class QWidget;

namespace kavenda {

// One line along the bottom of a screen that says its last write did not reach the database;
// it stays until a write of that screen succeeds. The screen keeps its state, so the person
// can try again.
void showWriteResult(QWidget* screen, bool written);

}  // namespace kavenda
