// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "screens/preferences/AboutRows.h"

#include "platform/UrlOpener.h"

#include <utility>

namespace kavenda {

AboutRows::AboutRows(std::string homepage, std::string supportEmail)
    : homepage_(std::move(homepage)), supportEmail_(std::move(supportEmail))
{
}

AboutRows AboutRows::shipped()
{
    return AboutRows(KAVENDA_HOMEPAGE, KAVENDA_SUPPORT_EMAIL);
}

std::string AboutRows::text(int row) const
{
    switch (row) {
    case 0:
        return "تیم کاوندا";
    case 1:
        return "فروردین ۹۲";
    case 2:
        return "نسخه :" + std::string(41, ' ') + "۱.۶";
    case 3:
        return "پست الکترونیک :" + std::string(11, ' ') + supportEmail_;
    case webRow:
        return "وب سایت :" + std::string(18, ' ') + homepage_;
    default:
        return {};
    }
}

std::string AboutRows::address(int row) const
{
    if (row == webRow)
        return homepage_;
    return "mailto:?to=" + supportEmail_ + "&subject=KavendaV1.5";
}

void AboutRows::didSelectRow(int row, UrlOpener& urls) const
{
    if (row >= 0 && row < rowCount)
        urls.open(address(row));
}

}  // namespace kavenda
