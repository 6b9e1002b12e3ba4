// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "screens/preferences/HistoryViewController.h"
#include "screens/preferences/SettingController.h"
#include "screens/preferences/SoundChoice.h"
#include "screens/preferences/SoundsViewController.h"
#include "tests/ui/screens/ScreenFixture.h"
#include "widgets/ToggleSwitch.h"

#include <QtTest>
#include <QtWidgets>

#include <algorithm>
#include <fstream>

namespace kavenda {
namespace {

using Calls = std::vector<std::string>;

// The media machinery opens a file in the background, slowly on a busy machine.
constexpr int mediaTimeout = 30'000;

// The options opened from the main screen with Tehran chosen and these settings stored.
struct Preferences : test::ScreenFixture {
    explicit Preferences(const std::string& settings = "")
        : ScreenFixture(test::tehran(2013, 5, 22, 0, 1), Data::cities)
    {
        choose({32});
        if (!settings.empty())
            QVERIFY(db->ExecuteNonQuery("UPDATE tSetting SET " + settings));
        show();
        openOptions();
    }

    template <typename Screen> Screen* showTab(int index)
    {
        clickTab(index);
        return find<CustomUITabBarController>()->currentIndex() == index ? find<Screen>() : nullptr;
    }

    std::string setting(const std::string& column) { return query("SELECT " + column + " FROM tSetting"); }
};

using test::ScreenFixture;
// Opens the file dialog of the own recording, names the file in it and presses Enter, as a person would.
void pickFile(SoundsViewController* screen, const std::filesystem::path& file)
{
    ScreenFixture::click(screen->findChild<QPushButton*>(QStringLiteral("btnOwnFile")));
    QFileDialog* dialog = nullptr;
    QTRY_VERIFY((dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget())));
    dialog->selectFile(QString::fromStdString(file.string()));
    QTest::keyClick(dialog, Qt::Key_Return);
}

// Answers the question the next step asks by the text of its button, and keeps its text.
void answerNextQuestion(const QString& button, QString* asked)
{
    QTimer::singleShot(0, [button, asked] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (!box)
            return;
        *asked = box->text();
        for (QAbstractButton* choice : box->buttons())
            if (choice->text() == button)
                choice->click();
    });
}

// A Save the database refuses is said under the screen, which keeps the change and its Save;
// the same Save goes through once the database takes writes again.
template <typename Screen> void saveRefusedFirst(Preferences& f, Screen* screen, const std::string& column)
{
    const std::string before = f.setting(column);
    f.refuse("refuse", "UPDATE ON tSetting");
    f.click(screen->saveButton());
    auto* line = screen->template findChild<QLabel*>(QStringLiteral("writeFailureLine"));
    QVERIFY2(line && line->isVisible() && line->text().startsWith(QStringLiteral("ذخیره نشد")), column.c_str());
    QCOMPARE(f.setting(column), before);
    QVERIFY(f.db->ExecuteNonQuery("DROP TRIGGER refuse"));
    f.click(screen->saveButton());
    QVERIFY2(!line->isVisible() && !screen->saveButton()->isEnabled(), "saved on the second try");
}

std::string wav(int number)
{
    return KAVENDA_RESOURCE_DIR "/" + std::to_string(number) + ".wav";
}

}  // namespace

class PreferencesScreensTest : public QObject {
    Q_OBJECT

private slots:
    // A tap, Enter or a screen reader's press on a row previews and chooses it; an own recording
    // is checked, copied and played from then on; leaving the tab stops the preview, and a
    // dropped choice gives way to the stored one.
    void soundRowsAndOwnRecordings()
    {
        Preferences f("Item6 = 0");
        auto* screen = f.showTab<SoundsViewController>(2);
        auto* list = screen->findChild<QListWidget*>(QStringLiteral("tbl"));
        QAccessibleInterface* rows = QAccessible::queryAccessibleInterface(list);
        QVERIFY(rows->child(0)->state().checked);
        f.clickRow(list, 7);
        QCOMPARE(f.audio.calls, (Calls{"open " + wav(7), "play"}));
        f.clickRow(list, 9);
        list->setCurrentRow(8);
        QTest::keyClick(list, Qt::Key_Return);
        QCOMPARE(f.audio.calls.back(), "play");
        f.saveScreenshot(QStringLiteral("preferences-sounds.png"));
        saveRefusedFirst(f, screen, "Item6");
        QCOMPARE(f.setting("Item6"), "8");
        f.clickRow(list, 9);
        QVERIFY2(!screen->findChild<QPushButton*>(QStringLiteral("btnOwnFile"))->isEnabled(), "the random row");
        f.clickRow(list, 3);
        const QString label = list->item(3)->text();
        const auto own = f.paths.documentsFolder() / "sounds" / "3.wav";
        const auto text = f.paths.documentsFolder() / "notes.wav";
        std::ofstream(text) << "no sound in here";
        pickFile(screen, text);
        QTRY_COMPARE_WITH_TIMEOUT(f.alerts.messages.size(), std::size_t{1}, mediaTimeout);
        QVERIFY(QString::fromStdString(f.alerts.messages[0]).contains(QStringLiteral("notes.wav")));
        QVERIFY(!std::filesystem::exists(own));
        f.audio.calls.clear();
        pickFile(screen, wav(11));
        QTRY_VERIFY_WITH_TIMEOUT(!f.audio.calls.empty() && f.audio.calls.back() == "play", mediaTimeout);
        QCOMPARE(std::filesystem::file_size(own), std::filesystem::file_size(wav(11)));
        QVERIFY(std::find(f.audio.calls.begin(), f.audio.calls.end(), "open " + own.string()) != f.audio.calls.end());
        QCOMPARE(list->item(3)->text(), label + QStringLiteral(" (صدای شما)"));
        // A file too large for a call is refused before anything is read of it.
        const auto large = f.paths.documentsFolder() / "large.wav";
        std::filesystem::copy_file(wav(11), large);
        std::filesystem::resize_file(large, SoundChoice::largestOwnRecording + 1);
        pickFile(screen, large);
        QTRY_COMPARE_WITH_TIMEOUT(f.alerts.messages.size(), std::size_t{2}, mediaTimeout);
        QVERIFY(QString::fromStdString(f.alerts.messages[1]).contains(QStringLiteral("۵۰ مگابایت")));
        QCOMPARE(std::filesystem::file_size(own), std::filesystem::file_size(wav(11)));
        auto* shipped = screen->findChild<QPushButton*>(QStringLiteral("shippedButton"));
        f.click(shipped);
        QVERIFY(!std::filesystem::exists(own));
        QCOMPARE(list->item(3)->text(), label);
        QVERIFY(!shipped->isEnabled());
        f.audio.calls.clear();
        rows->child(7)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QVERIFY(rows->child(7)->state().checked && !rows->child(8)->state().checked);
        QCOMPARE(f.audio.calls.back(), "play");
        QString asked;
        answerNextQuestion(QStringLiteral("دور انداختن"), &asked);
        QVERIFY(f.showTab<HistoryViewController>(3));
        QCOMPARE(f.audio.calls.back(), "stop");
        QVERIFY(rows->child(8)->state().checked);
        QCOMPARE(f.setting("Item6"), "8");
    }

    // Switches and sliders saved as shown. Leaving a tab with an unsaved change asks: Cancel stays
    // and asks again, Discard drops the change, Save stores it; once answered, nothing is asked.
    // The occasions' switch shows the time picker, whose digits are Persian; Escape closes the
    // options as Done does, once an unsaved change is answered.
    void settingsAskedForOnLeavingAndTheOccasionsTime()
    {
        Preferences f("Item3 = 15");
        auto* screen = f.showTab<SettingController>(1);
        const auto switches = screen->findChildren<ToggleSwitch*>();
        const auto sliders = screen->findChildren<QSlider*>();
        QVERIFY(sliders[0]->isVisible());
        QCOMPARE(sliders[0]->value(), 2);
        QVERIFY(!sliders[2]->isVisible());
        f.click(switches[1]);
        f.click(switches[5]);
        QVERIFY(sliders[2]->isVisible());
        QTest::keyClick(sliders[2], Qt::Key_End);
        QCOMPARE(sliders[2]->accessibleName(), QStringLiteral("وقت افطار: ٦٠ دقیقه قبل"));
        QTest::keyClick(sliders[0], Qt::Key_Home);
        f.saveScreenshot(QStringLiteral("preferences-settings.png"));
        saveRefusedFirst(f, screen, "Item5");
        QCOMPARE(f.setting("Item0 || ',' || Item1 || ',' || Item2 || ',' || Item3 || ',' || Item4 || ',' || Item5"),
                 "1,0,1,5,0,60");
        f.click(switches[5]);
        QVERIFY(!sliders[2]->isVisible());
        QString asked;
        const auto leave = [&](const char* answer, int tab) {
            asked.clear();
            answerNextQuestion(QString::fromUtf8(answer), &asked);
            f.clickTab(tab);
            return f.find<CustomUITabBarController>()->currentIndex();
        };
        QCOMPARE(leave("انصراف", 2), 1);
        QCOMPARE(asked, QStringLiteral("تغییرات ذخیره شود؟"));
        QVERIFY(!switches[5]->isChecked() && screen->saveButton()->isEnabled());
        QCOMPARE(leave("دور انداختن", 0), 0);
        QCOMPARE(asked, QStringLiteral("تغییرات ذخیره شود؟"));
        QVERIFY(switches[5]->isChecked());
        f.clickTab(1);
        f.click(switches[0]);
        QCOMPARE(leave("ذخیره", 2), 2);
        QCOMPARE(f.setting("Item0 || ',' || Item5"), "0,60");
        QVERIFY(!switches[0]->isChecked() && !screen->saveButton()->isEnabled());
        QCOMPARE(leave("انصراف", 0), 0);
        QVERIFY(asked.isEmpty());

        auto* occasions = f.showTab<HistoryViewController>(3);
        auto* picker = occasions->findChild<QTimeEdit*>(QStringLiteral("picker"));
        QVERIFY(!picker->isVisible() && !picker->isEnabled());
        f.click(occasions->switchOn());
        QVERIFY(picker->isVisible() && picker->isEnabled());
        f.saveScreenshot(QStringLiteral("preferences-occasions.png"));
        saveRefusedFirst(f, occasions, "Item7");
        QCOMPARE(f.setting("Item7"), "08:00");
        picker->setFocus();
        QTest::keyClick(picker, Qt::Key_Up);
        QCOMPARE(picker->text(), QStringLiteral("٠٩:٠٠"));
        QVERIFY(occasions->saveButton()->isEnabled());
        QTest::keyClick(picker, Qt::Key_Down);
        QVERIFY2(!occasions->saveButton()->isEnabled(), "back at the stored time");
        f.click(occasions->switchOn());
        QVERIFY(!picker->isVisible());
        answerNextQuestion(QStringLiteral("انصراف"), &asked);
        QTest::keyClick(occasions->switchOn(), Qt::Key_Escape);
        QCOMPARE(asked, QStringLiteral("تغییرات ذخیره شود؟"));
        QCOMPARE(f.presentation->depth(), 2);
        answerNextQuestion(QStringLiteral("ذخیره"), &asked);
        QTest::keyClick(occasions->switchOn(), Qt::Key_Escape);
        QCOMPARE(f.top(), f.main);
        QCOMPARE(f.setting("Item7"), "0");
        QCOMPARE(f.rebuilds, 1);
    }
};

}  // namespace kavenda

QTEST_MAIN(kavenda::PreferencesScreensTest)
#include "PreferencesScreensTest.moc"
