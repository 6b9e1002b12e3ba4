// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "screens/preferences/AboutRows.h"

#include <QWidget>

#include <memory>

class QListWidget;

namespace Ui {
class AboutController;
}

namespace kavenda {

class UrlOpener;

// Who made the program and how to reach them; a tap opens the web site or a new mail.
class AboutController : public QWidget {
    Q_OBJECT

public:
    // Without a URL opener a tap opens nothing.
    AboutController(AboutRows rows, UrlOpener* urls, QWidget* parent = nullptr);
    ~AboutController() override;

    QListWidget* tbl() const;
    void didSelectRow(int row);

private:
    std::unique_ptr<::Ui::AboutController> layout_;
    AboutRows rows_;
    UrlOpener* urls_;
};

}  // namespace kavenda
