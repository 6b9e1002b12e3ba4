// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/StartupFailure.h"
#include "data/DatabaseCheck.h"
#include "tests/support/RecordingLog.h"

#include <QtTest>
#include <QtWidgets>

namespace kavenda {

// With a display, a start that cannot go on says why in a box before it ends.
class StartupFailureBoxTest : public QObject {
    Q_OBJECT

private slots:
    void theBoxShowsTheMessageAndTheStartFails()
    {
        const auto problem = shippedDatabaseProblem("/nowhere/share/kavenda/Icons");
        QVERIFY(problem);
        test::RecordingLog log;
        QString text, button;
        QTimer::singleShot(0, this, [&] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            QVERIFY(box && box->buttons().size() == 1);
            text = box->text();
            button = box->buttons().value(0)->text();
            box->buttons().value(0)->click();
        });
        QCOMPARE(reportStartupProblem(*problem, log), 1);
        QCOMPARE(log.lines, std::vector<std::string>{problem->logLine});
        QCOMPARE(text, QString::fromStdString(problem->message));
        QCOMPARE(button, QStringLiteral("باشه"));
    }
};

}  // namespace kavenda

QTEST_MAIN(kavenda::StartupFailureBoxTest)
#include "StartupFailureBoxTest.moc"
