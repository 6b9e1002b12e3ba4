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
    void findsTheResourcesOfTheLayoutItRunsIn()
    {
        const struct {
            bool installed, buildTree;
            const char* expected;
        } layouts[] = {
            {true, false, "share/kavenda"},
            {false, true, "resources"},
            // A prefix that holds some other "resources" folder beside bin/.
            {true, true, "share/kavenda"},
            // Copied alone: the installed place, which the missing files are then reported in.
            {false, false, "share/kavenda"},
        };
        for (const auto& layout : layouts) {
            const test::TempFolder root;
            std::filesystem::create_directories(root.path() / "bin");
            if (layout.installed)
                std::filesystem::create_directories(root.path() / "share" / "kavenda");
            if (layout.buildTree)
                std::filesystem::create_directories(root.path() / "resources");
            QCOMPARE(DesktopPaths::findResources(root.path() / "bin", "../share/kavenda"),
                     root.path() / layout.expected);
        }
    }
};

}  // namespace kavenda

QTEST_MAIN(kavenda::PathsTest)
#include "PathsTest.moc"
