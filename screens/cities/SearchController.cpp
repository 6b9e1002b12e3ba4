// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "screens/cities/SearchController.h"

#include "screens/cities/CitiesTexts.h"
#include "screens/cities/SearchControllerDelegate.h"
#include "ui_SearchController.h"
#include "widgets/AccessibleFactory.h"
#include "widgets/ListRowsAccessible.h"

#include <QShortcut>
#include <QToolButton>

namespace kavenda {

SearchController::SearchController(MyDB& db, int typeID, QWidget* parent)
    : QWidget(parent), ui_(std::make_unique<Ui::SearchController>()), search_(db, typeID)
{
    installAccessibleInterface<QListWidget, ListRowsAccessible>();
    ui_->setupUi(this);
    if (search_.isProvinceMode())
        ui_->searchBar->setPlaceholderText(texts::cities::provinceName);
    ui_->searchBar->setAccessibleName(ui_->searchBar->placeholderText());
    // The field's clear button is Qt's own and comes without a name.
    if (auto* clear = ui_->searchBar->findChild<QToolButton*>())
        clear->setAccessibleName(texts::cities::clearField);
    connect(ui_->searchBar, &QLineEdit::textChanged, this, &SearchController::textDidChange);
    connect(ui_->cancelButton, &QPushButton::clicked, this, &SearchController::cancel);
    connect(new QShortcut(QKeySequence::Cancel, this), &QShortcut::activated, this, &SearchController::cancel);
    connect(ui_->tblResult, &QListWidget::activated, this, [this](const QModelIndex& row) { pick(row.row()); });
    // Enter picks the only candidate left.
    connect(ui_->searchBar, &QLineEdit::returnPressed, this, [this] {
        if (search_.count() == 1)
            pick(0);
    });
    // Moving through the results takes the typing focus away, as a drag puts a keyboard away.
    ui_->tblResult->viewport()->installEventFilter(this);
    updateDataSource(QString());
}

SearchController::~SearchController() = default;

void SearchController::updateDataSource(const QString& text)
{
    search_.updateDataSource(text.toStdString());
    showCandidates();
}

void SearchController::textDidChange(const QString& text)
{
    search_.textDidChange(text.toStdString());
    showCandidates();
}

void SearchController::showCandidates()
{
    ui_->tblResult->clear();
    for (int row = 0; row < search_.count(); ++row)
        ui_->tblResult->addItem(QString::fromStdString(search_.nameAt(row)));
    // The keyboard starts at the first candidate, and shows it when the list has the focus.
    if (search_.count() > 0)
        ui_->tblResult->selectionModel()->setCurrentIndex(ui_->tblResult->model()->index(0, 0),
                                                          QItemSelectionModel::NoUpdate);
}

void SearchController::pick(int row)
{
    ui_->tblResult->clearSelection();
    if (delegate_)
        search_.pick(row, *delegate_);
}

void SearchController::cancel()
{
    if (delegate_)
        delegate_->closeForm();
}

void SearchController::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    ui_->searchBar->setFocus();
}

bool SearchController::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Wheel || event->type() == QEvent::MouseMove)
        ui_->searchBar->clearFocus();
    return QWidget::eventFilter(watched, event);
}

}  // namespace kavenda
