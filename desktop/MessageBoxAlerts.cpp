// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "desktop/MessageBoxAlerts.h"

#include <QGuiApplication>
#include <QMessageBox>

namespace kavenda {

MessageBoxAlerts::MessageBoxAlerts(QWidget* parent) : parent_(parent)
{
}

void MessageBoxAlerts::setParent(QWidget* parent)
{
    parent_ = parent;
}

void MessageBoxAlerts::show(const std::string& title, const std::string& message, const std::string& button)
{
    auto* box = new QMessageBox(parent_);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setWindowTitle(title.empty() ? QGuiApplication::applicationDisplayName() : QString::fromStdString(title));
    if (title.empty()) {
        box->setText(QString::fromStdString(message));
    } else {
        box->setText(QString::fromStdString(title));
        box->setInformativeText(QString::fromStdString(message));
    }
    box->addButton(QString::fromStdString(button), QMessageBox::AcceptRole);
    current_ = box;
    box->open();
}

QMessageBox* MessageBoxAlerts::current() const
{
    return current_;
}

}  // namespace kavenda
