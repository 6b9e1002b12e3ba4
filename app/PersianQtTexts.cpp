// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/PersianQtTexts.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace kavenda {

void usePersianQtTexts()
{
    auto* translator = new QTranslator(QCoreApplication::instance());
    if (translator->load(QLocale(QLocale::Persian, QLocale::Iran), QStringLiteral("qtbase"), QStringLiteral("_"),
                         QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(translator);
    else
        delete translator;
}

}  // namespace kavenda
