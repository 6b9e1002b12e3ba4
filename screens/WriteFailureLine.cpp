// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "screens/WriteFailureLine.h"

#include <QLabel>

namespace kavenda {

namespace {

const QString lineName = QStringLiteral("writeFailureLine");

QLabel* makeLine(QWidget* screen)
{
    auto* line = new QLabel(QStringLiteral("ذخیره نشد: پرونده داده ها نوشتنی نیست یا در دست برنامه دیگری است. "
                                           "کمی بعد دوباره امتحان کنید."),
                            screen);
    line->setObjectName(lineName);
    line->setWordWrap(true);
    line->setLayoutDirection(Qt::RightToLeft);
    line->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    line->setAutoFillBackground(true);
    line->setStyleSheet(QStringLiteral("QLabel { background: #fdecea; color: #b00020; padding: 4px; }"));
    line->setAccessibleName(line->text());
    return line;
}

}  // namespace

void showWriteResult(QWidget* screen, bool written)
{
    auto* line = screen->findChild<QLabel*>(lineName, Qt::FindDirectChildrenOnly);
    if (written) {
        if (line)
            line->hide();
        return;
    }
    if (!line)
        line = makeLine(screen);
    const int height = line->heightForWidth(screen->width());
    line->setGeometry(0, screen->height() - height, screen->width(), height);
    line->raise();
    line->show();
}

}  // namespace kavenda
