// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/PersianFont.h"

#include <QApplication>
#include <QFontDatabase>

#include <fontconfig/fontconfig.h>

namespace kavenda {

void readFontConfiguration()
{
    FcInit();
}

void usePersianFont()
{
    for (const QString& family : {QStringLiteral("Nazli"), QStringLiteral("DejaVu Sans")}) {
        if (QFontDatabase::hasFamily(family)) {
            QFont font(family);
            font.setPointSizeF(10.5);
            QApplication::setFont(font);
            return;
        }
    }
}

}  // namespace kavenda
