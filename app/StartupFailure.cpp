// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/StartupFailure.h"

#include "app/AppTexts.h"
#include "data/DatabaseCheck.h"
#include "platform/Log.h"

#include <QApplication>
#include <QMessageBox>

namespace kavenda {

int reportStartupProblem(const StartupProblem& problem, Log& log)
{
    log.line(problem.logLine);
    if (qobject_cast<QApplication*>(QCoreApplication::instance())) {
        QMessageBox box(QMessageBox::Critical, QApplication::applicationDisplayName(),
                        QString::fromStdString(problem.message), QMessageBox::NoButton);
        box.setLayoutDirection(Qt::RightToLeft);
        box.addButton(texts::app::ok, QMessageBox::AcceptRole);
        box.exec();
    }
    return 1;
}

}  // namespace kavenda
