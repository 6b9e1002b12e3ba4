// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

// What the shell says: the program's name, the tray's menu, the start's failure and the notice
// that the program stays in the background.
namespace kavenda::texts::app {

inline const QString displayName = QStringLiteral("کاوندا");
inline const QString show = QStringLiteral("نمایش");
inline const QString quit = QStringLiteral("خروج");
inline const QString stopCall = QStringLiteral("توقف اذان");
inline const QString ok = QStringLiteral("باشه");
inline const QString staysInBackground = QStringLiteral(
    "کاوندا در پس‌زمینه می‌ماند تا وقت‌های اذان و یادآوری‌ها را اعلام کند.");

}  // namespace kavenda::texts::app
