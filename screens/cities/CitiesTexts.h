// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

// What the city list, the search and the new-city editor say; their layouts hold the rest.
namespace kavenda::texts::cities {

inline const QString citiesTitle = QStringLiteral("شهرها");
inline const QString search = QStringLiteral("جستجو");
inline const QString done = QStringLiteral("تمام");
inline const QString chosenCities = QStringLiteral("شهرهای انتخاب شده");
inline const QString createCity = QStringLiteral("ایجاد شهر جدید");
inline const QString rowKeys = QStringLiteral("حذف با Delete، جابجایی با Ctrl و بالا یا پایین");
inline const QString remove = QStringLiteral("حذف");

inline const QString provinceName = QStringLiteral("نام استان");
inline const QString clearField = QStringLiteral("پاک کردن");

inline const QString newCityTitle = QStringLiteral("شهر جدید");
inline const QString save = QStringLiteral("ذخیره");
inline const QString back = QStringLiteral("بازگشت");
inline const QString cityName = QStringLiteral("نام شهر");
inline const QString unnamed = QStringLiteral("بدون نام");
inline const QString province = QStringLiteral("استان");
// The blanks after the title are the table's own.
inline const QString offsetsHeader = QStringLiteral("اختلاف تا مرکز استان(دقیقه)       ");
inline const QString offsetCaptions[] = {
    QStringLiteral("اذان صبح"),   QStringLiteral("طلوع آفتاب"), QStringLiteral("اذان ظهر"),
    QStringLiteral("غروب آفتاب"), QStringLiteral("اذان مغرب"),  QStringLiteral("نیمه شب شرعی"),
};
inline const QString cityNotSaved = QStringLiteral("شهر ذخیره نشد: پایگاه داده آن را نپذیرفت.");

}  // namespace kavenda::texts::cities
