// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "desktop/DesktopPaths.h"
#include "tests/support/TempFolder.h"

#include <QTest>

namespace kavenda {

// Where the program looks for its resources, from the folders that exist around it.
class PathsTest : public QObject {
    Q_OBJECT

private slots:
    void findsTheResourcesOfTheLayoutItRunsIn_data()
    {
        QTest::addColumn<bool>("installed");
        QTest::addColumn<bool>("buildTree");
        QTest::addColumn<QString>("expected");
        QTest::newRow("installed") << true << false << "share/kavenda";
        QTest::newRow("build tree") << false << true << "resources";
        // A prefix that holds some other "resources" folder beside bin/.
        QTest::newRow("installed beside a resources folder") << true << true << "share/kavenda";
        // Copied alone: the installed place, which the missing files are then reported in.
        QTest::newRow("neither") << false << false << "share/kavenda";
    }

    void findsTheResourcesOfTheLayoutItRunsIn()
    {
        QFETCH(bool, installed);
        QFETCH(bool, buildTree);
        QFETCH(QString, expected);
        const test::TempFolder root;
        std::filesystem::create_directories(root.path() / "bin");
        if (installed)
            std::filesystem::create_directories(root.path() / "share" / "kavenda");
        if (buildTree)
            std::filesystem::create_directories(root.path() / "resources");
        const std::filesystem::path found = DesktopPaths::findResources(root.path() / "bin", "../share/kavenda");
        QCOMPARE(QString::fromStdString(found.string()),
                 QString::fromStdString((root.path() / expected.toStdString()).string()));
    }
};

}  // namespace kavenda

QTEST_MAIN(kavenda::PathsTest)
#include "PathsTest.moc"
