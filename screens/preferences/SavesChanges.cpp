// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "screens/preferences/SavesChanges.h"

#include <QMessageBox>
#include <QPushButton>

namespace kavenda {

bool mayLeave(SavesChanges& screen, QWidget* parent)
{
    if (!screen.hasUnsavedChange())
        return true;
    QMessageBox box(QMessageBox::Question, QString(), QStringLiteral("تغییرات ذخیره شود؟"), QMessageBox::NoButton,
                    parent);
    box.setLayoutDirection(Qt::RightToLeft);
    QPushButton* save = box.addButton(QStringLiteral("ذخیره"), QMessageBox::AcceptRole);
    QPushButton* discard = box.addButton(QStringLiteral("دور انداختن"), QMessageBox::DestructiveRole);
    box.addButton(QStringLiteral("انصراف"), QMessageBox::RejectRole);
    box.setDefaultButton(save);
    box.exec();
    if (box.clickedButton() == save)
        screen.save();
    else if (box.clickedButton() == discard)
        screen.discard();
    else
        return false;
    return true;
}

}  // namespace kavenda
