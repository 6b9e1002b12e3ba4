// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "screens/preferences/AboutController.h"

#include "ui_AboutController.h"
#include "widgets/AccessibleFactory.h"
#include "widgets/ListRowsAccessible.h"

#include <QListWidget>

#include <utility>

namespace kavenda {

namespace {

constexpr int rowHeight = 44;

}  // namespace

AboutController::AboutController(AboutRows rows, UrlOpener* urls, QWidget* parent)
    : QWidget(parent), layout_(std::make_unique<::Ui::AboutController>()), rows_(std::move(rows)), urls_(urls)
{
    installAccessibleInterface<QListWidget, ListRowsAccessible>();
    layout_->setupUi(this);
    for (int row = 0; row < AboutRows::rowCount; ++row) {
        const QString text = QString::fromStdString(rows_.text(row));
        auto* item = new QListWidgetItem(text, layout_->tbl);
        item->setSizeHint(QSize(0, rowHeight));
        item->setData(Qt::AccessibleTextRole, text.simplified());
        item->setTextAlignment(AboutRows::isCentred(row) ? Qt::AlignCenter
                                                         : Qt::AlignRight | Qt::AlignAbsolute | Qt::AlignVCenter);
        if (!AboutRows::highlightsOnTap(row))
            item->setFlags(Qt::ItemIsEnabled);
    }
    layout_->tbl->setFixedHeight(rowHeight * AboutRows::rowCount);
    connect(layout_->tbl, &QListWidget::activated, this, [this](const QModelIndex& row) { didSelectRow(row.row()); });
}

AboutController::~AboutController() = default;

QListWidget* AboutController::tbl() const
{
    return layout_->tbl;
}

void AboutController::didSelectRow(int row)
{
    layout_->tbl->clearSelection();
    if (urls_)
        rows_.didSelectRow(row, *urls_);
}

}  // namespace kavenda
