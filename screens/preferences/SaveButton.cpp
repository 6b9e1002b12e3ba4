// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "screens/preferences/SaveButton.h"
#include "screens/preferences/PreferencesTexts.h"

#include <QPushButton>

namespace kavenda {

QPushButton* makeSaveButton(QWidget* parent)
{
    auto* button = new QPushButton(texts::preferences::save, parent);
    button->setAccessibleName(button->text());
    button->setDefault(true);
    button->setEnabled(false);
    button->hide();
    return button;
}

}  // namespace kavenda
