// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "desktop/DesktopUrlOpener.h"

#include <QDesktopServices>
#include <QUrl>

namespace kavenda {

void DesktopUrlOpener::open(const std::string& address)
{
    QDesktopServices::openUrl(QUrl::fromUserInput(QString::fromStdString(address)));
}

}  // namespace kavenda
