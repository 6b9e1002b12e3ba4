// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/PersianFont.h"
#include "screens/cities/CustomUITabBarController.h"
#include "screens/cities/SelectionController.h"
#include "screens/preferences/AboutController.h"
#include "screens/preferences/HistoryViewController.h"
#include "screens/preferences/SettingController.h"
#include "screens/preferences/SoundsViewController.h"
#include "tests/support/FixedPaths.h"
#include "tests/support/RecordingAlerts.h"
#include "tests/support/RecordingAudioPlayer.h"
#include "tests/support/RecordingLog.h"
#include "tests/support/RecordingUrlOpener.h"
#include "tests/ui/screens/cities/OptionsFixture.h"
#include "widgets/Animations.h"
#include "widgets/PresentationStack.h"
#include "widgets/ToggleSwitch.h"

#include <QAccessible>
#include <QFileDialog>
#include <QLabel>
#include <QListWidget>
#include <QMessageBox>
#include <QSlider>
#include <QTimeEdit>
#include <QTimer>
#include <QToolButton>
#include <QtTest>

#include <algorithm>
#include <ctime>
#include <fstream>
#include <optional>

namespace kavenda {
namespace {

using test::OptionsFixture;
using Calls = std::vector<std::string>;

constexpr int tehran = 32;
// The media machinery opens a file in the background, slowly on a busy machine.
constexpr int mediaTimeout = 30'000;
const std::filesystem::path shippedResources = KAVENDA_RESOURCE_DIR;

// What the preference tabs are handed, recorded; it outlives the screens that use it.
struct RecordedServices {
    test::RecordingAudioPlayer audio;
    test::RecordingUrlOpener urls;
    test::RecordingAlerts alerts;
    test::RecordingLog log;
    std::optional<FixedPaths> paths;
};

// The options on a fixture database with these cities chosen and these settings stored.
struct Preferences : RecordedServices, OptionsFixture {
    explicit Preferences(std::initializer_list<int> chosen = {tehran}, const std::string& settings = "")
    {
        choose(chosen);
        if (!settings.empty())
            QVERIFY(db().ExecuteNonQuery("UPDATE tSetting SET " + settings));
        paths.emplace(std::filesystem::path(db().dbPath()).parent_path(), shippedResources);
        open({&*paths, &log, &audio, &alerts, &urls});
    }

    template <typename Screen> Screen* showTab(int index)
    {
        clickTab(index);
        if (tabs()->currentIndex() != index)
            return nullptr;
        return tabs()->widget(index)->findChild<Screen*>();
    }

    std::string setting(const std::string& column)
    {
        return db().ExecuteScaler("SELECT " + column + " FROM tSetting").value_or("<none>");
    }

    std::filesystem::path documents() const { return paths->documentsFolder(); }
};

// The other tests run without transitions, so that a change is complete at once.
struct AnimationsOn {
    AnimationsOn() { setAnimationsEnabled(true); }
    ~AnimationsOn() { setAnimationsEnabled(false); }
};

void clickRow(QListWidget* list, int row)
{
    list->scrollToItem(list->item(row));
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(list->item(row)).center());
}

void click(QWidget* widget)
{
    QVERIFY(widget->isVisible());
    QTest::mouseClick(widget, Qt::LeftButton);
}

// Names the file in the dialog and presses Enter, as a person would.
void pickFile(QFileDialog* dialog, const std::filesystem::path& file)
{
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

std::string wav(int number)
{
    return (shippedResources / (std::to_string(number) + ".wav")).string();
}

}  // namespace

class PreferencesScreensTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase()
    {
        setAnimationsEnabled(false);
        usePersianFont();
    }

    void settingsSwitchesAndSlidersAreSavedAsShown()
    {
        Preferences f({tehran}, "Item3 = 15");
        auto* screen = f.showTab<SettingController>(1);
        QVERIFY(screen);
        QVERIFY(screen->sliderRow(0)->isVisible());
        QCOMPARE(screen->number(0)->text(), QStringLiteral("١٥"));
        QCOMPARE(screen->slider(0)->value(), 2);
        QVERIFY(!screen->sliderRow(2)->isVisible());
        QCOMPARE(screen->switchOf(5)->accessibleName(), QStringLiteral("وقت افطار"));
        QVERIFY(screen->switchOf(5)->isCheckable());

        click(screen->switchOf(1));
        QVERIFY(screen->saveButton()->isEnabled());
        click(screen->switchOf(5));
        QVERIFY(screen->switchOf(5)->isChecked());
        QVERIFY(screen->sliderRow(2)->isVisible());
        QTest::keyClick(screen->slider(2), Qt::Key_End);
        QCOMPARE(screen->number(2)->text(), QStringLiteral("٦٠"));
        QCOMPARE(screen->slider(2)->accessibleName(), QStringLiteral("وقت افطار: ٦٠ دقیقه قبل"));
        QTest::keyClick(screen->slider(0), Qt::Key_Home);
        QCOMPARE(screen->number(0)->text(), QStringLiteral("٥"));
        f.saveScreenshot(QStringLiteral("preferences-settings.png"));

        click(screen->saveButton());
        QVERIFY(!screen->saveButton()->isEnabled());
        QCOMPARE(f.setting("Item0 || ',' || Item1 || ',' || Item2 || ',' || Item3 || ',' || Item4 || ',' || Item5"),
                 std::string("1,0,1,5,0,60"));
        QVERIFY(screen->switchOf(5)->isChecked());

        click(screen->switchOf(5));
        QVERIFY(!screen->sliderRow(2)->isVisible());
        click(screen->saveButton());
        QCOMPARE(f.setting("Item5"), std::string("0"));
    }

    void soundRowsPreviewStopAndSave()
    {
        Preferences f;
        auto* screen = f.showTab<SoundsViewController>(2);
        QVERIFY(screen);
        QListWidget* list = screen->tbl();
        QCOMPARE(list->count(), 11);
        QCOMPARE(list->item(7)->data(Qt::AccessibleTextRole).toString(), QStringLiteral("اذان مدینه"));
        QCOMPARE(screen->choice().selectedPath(), std::optional<int>(0));

        clickRow(list, 7);
        QCOMPARE(f.audio.calls, (Calls{"open " + wav(7), "play"}));
        QVERIFY(screen->saveButton()->isEnabled());
        clickRow(list, 9);
        QCOMPARE(f.audio.calls, (Calls{"open " + wav(7), "play", "stop", "open " + wav(9)}));
        list->setCurrentRow(8);
        QTest::keyClick(list, Qt::Key_Return);  // the keyboard's way to the same row
        QCOMPARE(f.audio.calls.back(), std::string("play"));
        QCOMPARE(screen->choice().selectedPath(), std::optional<int>(8));
        f.saveScreenshot(QStringLiteral("preferences-sounds.png"));
        click(screen->saveButton());
        QCOMPARE(f.setting("Item6"), std::string("8"));
        QVERIFY(!screen->saveButton()->isEnabled());
        clickRow(list, 7);
        f.audio.calls.clear();
        QString asked;
        answerNextQuestion(QStringLiteral("دور انداختن"), &asked);
        QVERIFY(f.showTab<HistoryViewController>(3));
        // Leaving the tab stops the preview; the dropped choice gives way to the stored one.
        QCOMPARE(f.audio.calls.front(), std::string("stop"));
        QCOMPARE(screen->choice().selectedPath(), std::optional<int>(8));
        QCOMPARE(f.setting("Item6"), std::string("8"));
    }

    void anOwnRecordingIsCheckedCopiedAndPlayedFromThenOn()
    {
        Preferences f;
        auto* screen = f.showTab<SoundsViewController>(2);
        QVERIFY(screen);
        clickRow(screen->tbl(), 9);
        QVERIFY2(!screen->findChild<QPushButton*>(QStringLiteral("btnOwnFile"))->isEnabled(),
                 "the random row has no recording of its own");
        clickRow(screen->tbl(), 3);
        const auto own = f.documents() / "sounds" / "3.wav";

        const auto text = f.documents() / "notes.wav";
        std::ofstream(text) << "no sound in here";
        click(screen->findChild<QPushButton*>(QStringLiteral("btnOwnFile")));
        QTRY_VERIFY(screen->fileDialog());
        pickFile(screen->fileDialog(), text);
        QTRY_COMPARE_WITH_TIMEOUT(f.alerts.messages.size(), std::size_t{1}, mediaTimeout);
        QVERIFY(QString::fromStdString(f.alerts.messages[0]).contains(QStringLiteral("notes.wav")));
        QVERIFY(!std::filesystem::exists(own));

        f.audio.calls.clear();
        click(screen->findChild<QPushButton*>(QStringLiteral("btnOwnFile")));
        QTRY_VERIFY(screen->fileDialog());
        pickFile(screen->fileDialog(), wav(11));
        QTRY_VERIFY_WITH_TIMEOUT(std::filesystem::exists(own), mediaTimeout);
        QTRY_VERIFY_WITH_TIMEOUT(!f.audio.calls.empty() && f.audio.calls.back() == "play", mediaTimeout);
        QCOMPARE(f.alerts.messages.size(), std::size_t{1});
        QCOMPARE(std::filesystem::file_size(own), std::filesystem::file_size(wav(11)));
        QVERIFY(std::find(f.audio.calls.begin(), f.audio.calls.end(), "open " + own.string()) != f.audio.calls.end());
        const QString label = QString::fromStdString(SoundChoice::label(3));
        QCOMPARE(screen->tbl()->item(3)->text(), label + QStringLiteral(" (صدای شما)"));
        QCOMPARE(screen->tbl()->item(4)->text(), QString::fromStdString(SoundChoice::label(4)));

        // A file too large for a call is refused before anything is read of it.
        const auto large = f.documents() / "large.wav";
        std::filesystem::copy_file(wav(11), large);
        std::filesystem::resize_file(large, SoundChoice::largestOwnRecording + 1);
        click(screen->findChild<QPushButton*>(QStringLiteral("btnOwnFile")));
        QTRY_VERIFY(screen->fileDialog());
        pickFile(screen->fileDialog(), large);
        QTRY_COMPARE_WITH_TIMEOUT(f.alerts.messages.size(), std::size_t{2}, mediaTimeout);
        QVERIFY(QString::fromStdString(f.alerts.messages[1]).contains(QStringLiteral("۵۰ مگابایت")));
        QCOMPARE(std::filesystem::file_size(own), std::filesystem::file_size(wav(11)));

        // Back to the program's recording.
        QVERIFY(screen->findChild<QPushButton*>(QStringLiteral("shippedButton"))->isEnabled());
        click(screen->findChild<QPushButton*>(QStringLiteral("shippedButton")));
        QVERIFY(!std::filesystem::exists(own));
        QCOMPARE(screen->tbl()->item(3)->text(), label);
        QVERIFY(!screen->findChild<QPushButton*>(QStringLiteral("shippedButton"))->isEnabled());
    }

    // A Save the database refuses is said under the screen; the screen keeps the change and its
    // Save, and the same Save goes through once the database takes writes again.
    void aRefusedSaveIsSaidAndCanBeTriedAgain()
    {
        Preferences f;
        // Each tab's change is made on arrival: a tab with an unsaved change is not left unasked.
        // clang-format off
        const struct {
            int tab;
            const char* column;
            std::string saved;
        } cases[] = {
            {1, "Item0", "0"},
            {2, "Item6", "7"},
            {3, "Item7", "08:00"},
        };
        // clang-format on
        for (const auto& c : cases) {
            QWidget* screen = nullptr;
            QPushButton* save = nullptr;
            if (c.tab == 1) {
                auto* settings = f.showTab<SettingController>(1);
                QVERIFY(settings);
                click(settings->switchOf(0));
                screen = settings;
                save = settings->saveButton();
            } else if (c.tab == 2) {
                auto* sound = f.showTab<SoundsViewController>(2);
                QVERIFY(sound);
                clickRow(sound->tbl(), 7);
                screen = sound;
                save = sound->saveButton();
            } else {
                auto* occasions = f.showTab<HistoryViewController>(3);
                QVERIFY(occasions);
                click(occasions->switchOn());
                screen = occasions;
                save = occasions->saveButton();
            }
            const std::string before = f.setting(c.column);
            QVERIFY(f.db().ExecuteNonQuery(
                "CREATE TRIGGER refuse BEFORE UPDATE ON tSetting BEGIN SELECT RAISE(ABORT, 'disk full'); END"));
            click(save);
            auto* line = screen->findChild<QLabel*>(QStringLiteral("writeFailureLine"));
            QVERIFY2(line && line->isVisible(), c.column);
            QVERIFY(line->text().startsWith(QStringLiteral("ذخیره نشد")));
            QCOMPARE(f.setting(c.column), before);
            QVERIFY2(save->isEnabled(), "Save stays, to try again");

            QVERIFY(f.db().ExecuteNonQuery("DROP TRIGGER refuse"));
            click(save);
            QVERIFY(!line->isVisible());
            QCOMPARE(f.setting(c.column), c.saved);
            QVERIFY(!save->isEnabled());
        }
    }

    void occasionsSwitchShowsThePickerAndSavesTheTime()
    {
        Preferences f;
        auto* screen = f.showTab<HistoryViewController>(3);
        QVERIFY(screen);
        QTimeEdit* picker = screen->picker();
        QVERIFY(!picker->isVisible());
        QVERIFY(!picker->isEnabled());
        QCOMPARE(picker->time(), QTime(8, 0));
        QCOMPARE(screen->switchOn()->accessibleName(), QStringLiteral("تقویم تاریخ"));

        click(screen->switchOn());
        QVERIFY(picker->isVisible());
        QVERIFY(picker->isEnabled());
        QVERIFY(screen->saveButton()->isEnabled());
        f.saveScreenshot(QStringLiteral("preferences-occasions.png"));
        click(screen->saveButton());
        QCOMPARE(f.setting("Item7"), std::string("08:00"));
        QCOMPARE(f.log.lines, (std::vector<std::string>{"08:00"}));
        QVERIFY(!screen->saveButton()->isEnabled());

        picker->setFocus();
        QTest::keyClick(picker, Qt::Key_Up);
        QCOMPARE(picker->time(), QTime(9, 0));
        QCOMPARE(picker->text(), QStringLiteral("٠٩:٠٠"));  // digits as everywhere else
        QVERIFY(screen->saveButton()->isEnabled());
        QTest::keyClick(picker, Qt::Key_Down);
        QVERIFY2(!screen->saveButton()->isEnabled(), "back at the stored time");

        click(screen->switchOn());
        QVERIFY(!picker->isVisible());
        click(screen->saveButton());
        QCOMPARE(f.setting("Item7"), std::string("0"));
    }

    void anUnsavedChangeIsAskedForOnLeaving_data()
    {
        QTest::addColumn<QString>("answer");
        QTest::addColumn<QString>("storedDawn");
        QTest::addColumn<int>("tabAfter");
        QTest::addColumn<bool>("switchAfter");
        QTest::newRow("save") << QStringLiteral("ذخیره") << "1" << 2 << true;
        QTest::newRow("discard") << QStringLiteral("دور انداختن") << "0" << 2 << false;
        QTest::newRow("cancel") << QStringLiteral("انصراف") << "0" << 1 << true;
    }

    void anUnsavedChangeIsAskedForOnLeaving()
    {
        QFETCH(QString, answer);
        QFETCH(QString, storedDawn);
        QFETCH(int, tabAfter);
        QFETCH(bool, switchAfter);
        Preferences f({tehran}, "Item0 = 0");
        auto* settings = f.showTab<SettingController>(1);
        click(settings->switchOf(0));
        QString asked;
        answerNextQuestion(answer, &asked);
        f.clickTab(2);
        QCOMPARE(asked, QStringLiteral("تغییرات ذخیره شود؟"));
        QCOMPARE(f.tabs()->currentIndex(), tabAfter);
        QCOMPARE(QString::fromStdString(f.setting("Item0")), storedDawn);
        QCOMPARE(settings->switchOf(0)->isChecked(), switchAfter);
        QCOMPARE(settings->saveButton()->isEnabled(), tabAfter == 1);

        // Once answered, nothing is asked again on the way back and forth.
        asked.clear();
        answerNextQuestion(QStringLiteral("انصراف"), &asked);
        f.clickTab(0);
        QCOMPARE(asked.isEmpty(), tabAfter == 2);
    }

    // Escape closes the options as Done does, and Done too asks for an unsaved change first.
    void escapeClosesTheOptionsOnlyOnceTheChangeIsAnswered()
    {
        Preferences f({tehran}, "Item7 = '0'");
        QWidget* window = f.tabs()->window();
        window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(window));
        auto* occasions = f.showTab<HistoryViewController>(3);
        click(occasions->switchOn());
        QString asked;
        answerNextQuestion(QStringLiteral("انصراف"), &asked);
        QTest::keyClick(occasions->switchOn(), Qt::Key_Escape);
        QCOMPARE(asked, QStringLiteral("تغییرات ذخیره شود؟"));
        QCOMPARE(f.presentation()->depth(), 2);
        answerNextQuestion(QStringLiteral("ذخیره"), &asked);
        QTest::keyClick(occasions->switchOn(), Qt::Key_Escape);
        QCOMPARE(f.presentation()->depth(), 1);
        QCOMPARE(f.setting("Item7"), "08:00");
        QCOMPARE(f.pendingAtClose.size(), 1);
    }

    // A screen reader's press on a row is a tap: the sound is chosen, and reads as chosen.
    void aSoundRowPressedByAScreenReaderIsChosen()
    {
        Preferences f({tehran}, "Item6 = 0");
        auto* sounds = f.showTab<SoundsViewController>(2);
        QAccessibleInterface* list = QAccessible::queryAccessibleInterface(sounds->tbl());
        QAccessibleInterface* medina = list->child(7);
        QCOMPARE(medina->role(), QAccessible::ListItem);
        QCOMPARE(medina->text(QAccessible::Name), QStringLiteral("اذان مدینه"));
        QCOMPARE(medina->actionInterface()->actionNames(), QStringList{QAccessibleActionInterface::pressAction()});
        QVERIFY(list->child(0)->state().checked);
        QVERIFY(!medina->state().checked);
        medina->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QVERIFY(medina->state().checked);
        QVERIFY(medina->state().selected);
        QVERIFY(!list->child(0)->state().checked);
        QVERIFY(f.audio.playing);
        click(sounds->saveButton());
        QCOMPARE(f.setting("Item6"), "7");
    }

    void savedChoicesReachTheRemindersOnDone()
    {
        Preferences f;
        auto* settings = f.showTab<SettingController>(1);
        click(settings->switchOf(5));
        click(settings->saveButton());
        auto* sounds = f.showTab<SoundsViewController>(2);
        clickRow(sounds->tbl(), 7);
        click(sounds->saveButton());
        auto* occasions = f.showTab<HistoryViewController>(3);
        click(occasions->switchOn());
        click(occasions->saveButton());
        f.clickTab(0);
        click(f.selection()->window()->findChild<QPushButton*>(QStringLiteral("btnDone")));
        QCOMPARE(f.pendingAtClose.size(), 1);

        int calls = 0, iftar = 0, occasionCount = 0;
        for (const NotificationRecord& record : f.notifications.records) {
            if (record.alertBody.rfind("اذان ", 0) == 0) {
                ++calls;
                QCOMPARE(record.soundName, std::string("7.wav"));
            } else if (record.soundName == "12.wav") {
                ++iftar;
                // Five minutes before the evening call of the same day.
                const auto call = std::find_if(f.notifications.records.begin(), f.notifications.records.end(),
                                               [&record](const NotificationRecord& other) {
                                                   return other.alertBody.rfind("اذان مغرب", 0) == 0
                                                       && other.fireDate == record.fireDate + std::chrono::minutes(5);
                                               });
                QVERIFY(call != f.notifications.records.end());
            } else if (record.soundName == "times.wav") {
                ++occasionCount;
                const std::time_t at = record.fireDate.time_since_epoch().count();
                std::tm local{};
                localtime_r(&at, &local);
                QCOMPARE(local.tm_hour * 60 + local.tm_min, 8 * 60);
            }
        }
        QVERIFY(calls > 0);
        QVERIFY(iftar > 0);
        QVERIFY(occasionCount > 0);
        // The saved database, for a person to rebuild the reminders from with --reminders.
        const std::filesystem::path kept = KAVENDA_SCREENSHOT_DIR "/preferences-done";
        std::filesystem::create_directories(kept);
        std::filesystem::copy_file(f.db().dbPath(), kept / "Icons", std::filesystem::copy_options::overwrite_existing);
    }
};

}  // namespace kavenda

QTEST_MAIN(kavenda::PreferencesScreensTest)
#include "PreferencesScreensTest.moc"
