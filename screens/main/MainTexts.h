// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

// What the main screen says besides its pages' own texts.
namespace kavenda::texts::main {

inline const QString screenName = QStringLiteral("اوقات شرعی");
inline const QString cities = QStringLiteral("شهرها");
// Between a page's city and its date, for a screen reader.
inline const QString listSeparator = QStringLiteral("، ");
inline const QString options = QStringLiteral("گزینه ها");
inline const QString calendar = QStringLiteral("تقویم");
// The indicator's reading, in the format of the core's texts.
inline constexpr const char* pageOf = "صفحه %d از %d";

}  // namespace kavenda::texts::main
