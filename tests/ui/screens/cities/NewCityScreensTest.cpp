// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/PersianFont.h"
#include "screens/cities/CustomUITabBarController.h"
#include "screens/cities/NewCityController.h"
#include "screens/cities/SearchController.h"
#include "screens/cities/SelectionController.h"
#include "tests/ui/screens/cities/OptionsFixture.h"
#include "widgets/Animations.h"
#include "widgets/FineSlider.h"
#include "widgets/NavigationStack.h"

#include <QAccessible>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QtTest>

namespace kavenda {
namespace {

using test::OptionsFixture;

// One key press per letter with the letter as its text, as a Persian keyboard sends them:
// QTest's own key clicks carry Latin-1 letters only.
void typeText(QWidget* field, const QString& text)
{
    for (const QChar letter : text) {
        QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, QString(letter));
        QCoreApplication::sendEvent(field, &press);
    }
}

NewCityController* editorOf(const OptionsFixture& f)
{
    return qobject_cast<NewCityController*>(f.navigation()->top());
}

// Opens the editor from the city list as a user does, with the create row.
NewCityController* openEditor(OptionsFixture& f)
{
    QListWidget* createRow = f.selection()->findChild<QListWidget*>(QStringLiteral("createNewCityTable"));
    QTest::mouseClick(createRow->viewport(), Qt::LeftButton, {},
                      createRow->visualItemRect(createRow->item(0)).center());
    return editorOf(f);
}

void pickProvince(OptionsFixture& f, NewCityController* editor, const QString& typed)
{
    QTest::mouseClick(editor->findChild<QPushButton*>(QStringLiteral("provinceRow")), Qt::LeftButton);
    SearchController* search = f.search();
    QVERIFY(search);
    QCOMPARE(search->typeID(), 1);
    QVERIFY(f.navigation()->isNavigationBarHidden());
    typeText(search->findChild<QLineEdit*>(QStringLiteral("searchBar")), typed);
    QCOMPARE(search->findChild<QListWidget*>(QStringLiteral("tblResult"))->count(), 1);
    QTest::mouseClick(search->findChild<QListWidget*>(QStringLiteral("tblResult"))->viewport(), Qt::LeftButton, {},
                      search->findChild<QListWidget*>(QStringLiteral("tblResult"))
                          ->visualItemRect(search->findChild<QListWidget*>(QStringLiteral("tblResult"))->item(0))
                          .center());
    QCOMPARE(editorOf(f), editor);
    QVERIFY(!f.navigation()->isNavigationBarHidden());
}

QString persian(const char* text)
{
    return QString::fromUtf8(text);
}

}  // namespace

class NewCityScreensTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase()
    {
        setAnimationsEnabled(false);
        usePersianFont();
    }

    void typingARealNameAndPickingAProvinceSavesTheCityAtTheEndOfTheList()
    {
        OptionsFixture f;
        f.choose({32, 35, 63});
        f.open();
        NewCityController* editor = openEditor(f);
        QVERIFY(editor);

        editor->findChild<QLineEdit*>(QStringLiteral("nameField"))->setFocus();
        typeText(editor->findChild<QLineEdit*>(QStringLiteral("nameField")),
                 QStringLiteral("\u0643\u0648\u064A"));  // Arabic kaf and yeh
        QVERIFY(!editor->window()->findChild<QPushButton*>(QStringLiteral("btnSave"))->isEnabled());
        QTest::keyClick(editor->findChild<QLineEdit*>(QStringLiteral("nameField")), Qt::Key_Return);
        QCOMPARE(editor->draft().cityName(), std::string("\u0643\u0648\u064A"));
        QVERIFY2(!editor->window()->findChild<QPushButton*>(QStringLiteral("btnSave"))->isEnabled(), "no province yet");

        // Keys move a whole minute; a drag stops anywhere and counts the minutes it has passed.
        QTest::keyClick(editor->slider(1), Qt::Key_Up);
        editor->slider(4)->setValue(-120);
        editor->slider(5)->setValue(1000);
        editor->slider(0)->setValue(-20);
        QCOMPARE(editor->valueLabel(1)->text(), QStringLiteral("\u0661"));
        QCOMPARE(editor->valueLabel(4)->text(), QStringLiteral("-\u0662"));
        QCOMPARE(editor->valueLabel(5)->text(), QStringLiteral("\u0661\u0660"));
        QCOMPARE(editor->valueLabel(0)->text(), QStringLiteral("-\u0661"));
        editor->slider(0)->setValue(0);
        editor->slider(5)->setValue(550);
        QCOMPARE(editor->draft().difArray(), (std::array<int, 6>{0, 1, 0, 0, -2, 5}));

        pickProvince(f, editor, QStringLiteral("تهر"));
        QCOMPARE(editor->findChild<QLabel*>(QStringLiteral("provinceValue"))->text(), persian("تهران"));
        QCOMPARE(editor->findChild<QLineEdit*>(QStringLiteral("nameField"))->text(),
                 QStringLiteral("\u0643\u0648\u064A"));
        QVERIFY(editor->window()->findChild<QPushButton*>(QStringLiteral("btnSave"))->isEnabled());
        f.saveScreenshot(QStringLiteral("new-city-editor.png"));

        QTest::mouseClick(editor->window()->findChild<QPushButton*>(QStringLiteral("btnSave")), Qt::LeftButton);
        QCOMPARE(f.navigation()->top(), f.selection());
        QVERIFY(!f.tabs()->isTabBarHidden());
        QCOMPARE(f.listedNames().last(), persian("کوی (تهران)"));
        QCOMPARE(f.orderings().last(), QStringLiteral("64:4"));
        QCOMPARE(f.countOf("SELECT COUNT(*) FROM tTimes WHERE StateID = 64 AND Date = 14000101 AND T1 = 0 AND T2 = 1 "
                           "AND T3 = 0 AND T4 = 0 AND T5 = -2 AND T6 = 5"),
                 1);
    }

    void leavingTheNameFieldCommitsTheName()
    {
        OptionsFixture f;
        f.choose({32});
        f.open();
        QWidget* window = f.tabs()->window();
        window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(window));
        NewCityController* editor = openEditor(f);
        pickProvince(f, editor, QStringLiteral("یزد"));
        editor->findChild<QLineEdit*>(QStringLiteral("nameField"))->setFocus();
        typeText(editor->findChild<QLineEdit*>(QStringLiteral("nameField")), QStringLiteral("مهریز"));
        QVERIFY(!editor->window()->findChild<QPushButton*>(QStringLiteral("btnSave"))->isEnabled());
        QTest::keyClick(editor->findChild<QLineEdit*>(QStringLiteral("nameField")), Qt::Key_Tab);
        QVERIFY(!editor->findChild<QLineEdit*>(QStringLiteral("nameField"))->hasFocus());
        QCOMPARE(editor->draft().cityName(), persian("مهریز").toStdString());
        QVERIFY(editor->window()->findChild<QPushButton*>(QStringLiteral("btnSave"))->isEnabled());
    }

    void onlyACommittedNameCounts()
    {
        OptionsFixture f;
        f.choose({32});
        f.open();
        NewCityController* editor = openEditor(f);
        QTest::keyClick(editor->slider(0), Qt::Key_Up);
        QVERIFY2(!editor->window()->findChild<QPushButton*>(QStringLiteral("btnSave"))->isEnabled(),
                 "a slider before any name");
        pickProvince(f, editor, QStringLiteral("یزد"));
        QVERIFY2(!editor->window()->findChild<QPushButton*>(QStringLiteral("btnSave"))->isEnabled(),
                 "a province alone");

        editor->findChild<QLineEdit*>(QStringLiteral("nameField"))->setFocus();
        typeText(editor->findChild<QLineEdit*>(QStringLiteral("nameField")), QStringLiteral("مهریز"));
        QVERIFY2(!editor->window()->findChild<QPushButton*>(QStringLiteral("btnSave"))->isEnabled(),
                 "typed, not committed");
        QTest::keyClick(editor->slider(2), Qt::Key_Down);
        QVERIFY2(editor->window()->findChild<QPushButton*>(QStringLiteral("btnSave"))->isEnabled(),
                 "a slider commits the name");
        QCOMPARE(editor->draft().cityName(), persian("مهریز").toStdString());

        // Typed on but not committed again: Save keeps the last committed name.
        typeText(editor->findChild<QLineEdit*>(QStringLiteral("nameField")), QStringLiteral(" نو"));
        QTest::mouseClick(editor->window()->findChild<QPushButton*>(QStringLiteral("btnSave")), Qt::LeftButton);
        QCOMPARE(f.listedNames().last(), persian("مهریز (یزد)"));
        QCOMPARE(f.countOf("SELECT T3 FROM tTimes WHERE StateID = 64"), -1);
    }

    void cancellingTheProvinceSearchAndGoingBackWriteNothing()
    {
        OptionsFixture f;
        f.choose({32});
        f.open();
        const int places = f.countOf("SELECT COUNT(*) FROM tStates");
        NewCityController* editor = openEditor(f);
        pickProvince(f, editor, QStringLiteral("کرم"));
        QTest::mouseClick(editor->findChild<QPushButton*>(QStringLiteral("provinceRow")), Qt::LeftButton);
        QVERIFY(f.search());
        QTest::mouseClick(f.search()->findChild<QPushButton*>(QStringLiteral("cancelButton")), Qt::LeftButton);
        QCOMPARE(editorOf(f), editor);
        QCOMPARE(editor->draft().provinceID(), 4);
        QCOMPARE(editor->findChild<QLabel*>(QStringLiteral("provinceValue"))->text(), persian("کرمان"));

        editor->findChild<QLineEdit*>(QStringLiteral("nameField"))->setFocus();
        typeText(editor->findChild<QLineEdit*>(QStringLiteral("nameField")), QStringLiteral("بم"));
        QTest::keyClick(editor->findChild<QLineEdit*>(QStringLiteral("nameField")), Qt::Key_Return);
        QVERIFY(editor->window()->findChild<QPushButton*>(QStringLiteral("btnSave"))->isEnabled());
        QTest::mouseClick(editor->window()->findChild<QPushButton*>(QStringLiteral("btnBack")), Qt::LeftButton);
        QCOMPARE(f.navigation()->top(), f.selection());
        QVERIFY(!f.tabs()->isTabBarHidden());
        QCOMPARE(f.countOf("SELECT COUNT(*) FROM tStates"), places);
        QCOMPARE(f.orderings(), QStringList{QStringLiteral("32:0")});
    }

    void aRefusedSaveKeepsTheEditorOpenAndSaysSo()
    {
        OptionsFixture f;
        f.choose({32});
        f.open();
        QVERIFY(f.db().ExecuteNonQuery(
            "CREATE TRIGGER full BEFORE INSERT ON tTimes BEGIN SELECT RAISE(ABORT, 'disk full'); END"));
        NewCityController* editor = openEditor(f);
        editor->findChild<QLineEdit*>(QStringLiteral("nameField"))->setFocus();
        typeText(editor->findChild<QLineEdit*>(QStringLiteral("nameField")), QStringLiteral("بم"));
        pickProvince(f, editor, QStringLiteral("کرم"));
        QTest::mouseClick(editor->window()->findChild<QPushButton*>(QStringLiteral("btnSave")), Qt::LeftButton);
        QCOMPARE(editorOf(f), editor);
        QVERIFY(editor->failureLine()->isVisible());
        QVERIFY(!editor->failureLine()->text().isEmpty());
        QVERIFY(!editor->failureLine()->text().contains(QLatin1Char('\n')));
        QCOMPARE(f.countOf("SELECT COUNT(*) FROM tStates WHERE StateID > 63"), 0);
        QCOMPARE(f.orderings(), QStringList{QStringLiteral("32:0")});
        f.saveScreenshot(QStringLiteral("new-city-refused.png"));
    }

    // A screen reader reads and sets the sliders in minutes.
    void aScreenReaderSetsTheOffsetsInMinutes()
    {
        OptionsFixture f;
        f.choose({32});
        f.open();
        NewCityController* editor = openEditor(f);
        editor->slider(4)->setValue(-150);
        QAccessibleValueInterface* value = QAccessible::queryAccessibleInterface(editor->slider(4))->valueInterface();
        QVERIFY(value);
        QCOMPARE(value->currentValue().toInt(), -2);
        QCOMPARE(value->minimumValue().toInt(), -10);
        QCOMPARE(value->maximumValue().toInt(), 10);
        value->setCurrentValue(7);
        QCOMPARE(editor->draft().difArray()[4], 7);
        QCOMPARE(editor->valueLabel(4)->text(), QStringLiteral("\u0667"));

        pickProvince(f, editor, QStringLiteral("اصف"));
        QCOMPARE(QAccessible::queryAccessibleInterface(editor->findChild<QPushButton*>(QStringLiteral("provinceRow")))
                     ->text(QAccessible::Description),
                 persian("اصفهان"));
    }
};

}  // namespace kavenda

QTEST_MAIN(kavenda::NewCityScreensTest)
#include "NewCityScreensTest.moc"
