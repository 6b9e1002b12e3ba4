// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

// What the month calendar says besides its layout's texts.
namespace kavenda::texts::calendar {

// Between a day's number and each of its occasions, for a screen reader.
inline const QString listSeparator = QStringLiteral("، ");
inline const QString holiday = QStringLiteral("تعطیل");

}  // namespace kavenda::texts::calendar
