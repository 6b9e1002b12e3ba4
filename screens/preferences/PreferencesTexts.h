// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

// What the preference tabs say; their layouts hold the rest.
namespace kavenda::texts::preferences {

inline const QString save = QStringLiteral("ذخیره");
inline const QString saveChanges = QStringLiteral("تغییرات ذخیره شود؟");
inline const QString discard = QStringLiteral("دور انداختن");
inline const QString cancel = QStringLiteral("انصراف");

inline const QString minutesBefore = QStringLiteral("دقیقه قبل");
// %1 the warning, %2 its minutes.
inline const QString leadSlider = QStringLiteral("%1: %2 دقیقه قبل");

inline const QString shippedSound = QStringLiteral("صدای برنامه");
inline const QString chooseSoundFile = QStringLiteral("انتخاب فایل صدا");
inline const QString soundFileFilter =
    QStringLiteral("صدا (*.wav *.ogg *.oga *.opus *.mp3 *.flac *.m4a);;همه فایل ها (*)");
inline const QString notPlayable = QStringLiteral("صدایی نیست که پخش شود");
inline const QString tooLarge = QStringLiteral("از ۵۰ مگابایت بزرگ‌تر است");
inline const QString notCopied = QStringLiteral("در پوشهٔ داده ها کپی نشد");
// %1 the file, %2 why it was refused, %3 the row.
inline const QString ownFileRefused = QStringLiteral("فایل «%1» %2. صدای «%3» تغییری نکرد.");
inline const QString ownFileKept = QStringLiteral("صدای شما برای «%1» پاک نشد.");

}  // namespace kavenda::texts::preferences
