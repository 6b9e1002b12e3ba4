// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "screens/preferences/SavesChanges.h"
#include "screens/preferences/PreferencesTexts.h"

#include <QMessageBox>
#include <QPushButton>

namespace kavenda {

bool mayLeave(SavesChanges& screen, QWidget* parent)
{
    if (!screen.hasUnsavedChange())
        return true;
    QMessageBox box(QMessageBox::Question, QString(), texts::preferences::saveChanges, QMessageBox::NoButton, parent);
    box.setLayoutDirection(Qt::RightToLeft);
    QPushButton* save = box.addButton(texts::preferences::save, QMessageBox::AcceptRole);
    QPushButton* discard = box.addButton(texts::preferences::discard, QMessageBox::DestructiveRole);
    box.addButton(texts::preferences::cancel, QMessageBox::RejectRole);
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
