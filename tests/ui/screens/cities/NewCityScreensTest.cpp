// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "screens/cities/EditableCityList.h"
#include "screens/cities/NewCityController.h"
#include "screens/cities/SearchController.h"
#include "tests/ui/screens/ScreenFixture.h"
#include "widgets/FineSlider.h"

#include <QtTest>
#include <QtWidgets>

namespace kavenda {
namespace {

using test::ScreenFixture;

// The options over the main screen with these cities chosen, and the editor opened from the
// city list's create row as a user does.
struct Editor : ScreenFixture {
    explicit Editor(std::initializer_list<int> chosen) : ScreenFixture(test::tehran(2013, 5, 22, 0, 1), Data::cities)
    {
        choose(chosen);
        show();
        openOptions();
        open();
    }

    void open()
    {
        clickRow(find<QListWidget>(QStringLiteral("createNewCityTable")), 0);
        editor = qobject_cast<NewCityController*>(citiesTop());
        if (!editor)
            qFatal("the create row opened no editor");
        name = editor->findChild<QLineEdit*>(QStringLiteral("nameField"));
    }

    bool saveEnabled() const { return find<QPushButton>(QStringLiteral("btnSave"))->isEnabled(); }
    QString lastListed() const { return texts(find<EditableCityList>()).last(); }

    void pickProvince(const QString& typed)
    {
        click(QStringLiteral("provinceRow"));
        QVERIFY(qobject_cast<SearchController*>(citiesTop()) && citiesNavigation()->isNavigationBarHidden());
        type(find<QLineEdit>(QStringLiteral("searchBar")), typed);
        QCOMPARE(results()->count(), 1);
        clickRow(results(), 0);
        QCOMPARE(citiesTop(), editor);
    }

    NewCityController* editor = nullptr;
    QLineEdit* name = nullptr;
};

}  // namespace

class NewCityScreensTest : public QObject {
    Q_OBJECT

private slots:
    // Keys move an offset a whole minute, a drag counts the minutes it has passed, a screen
    // reader reads and sets minutes; the saved city comes at the end of the list. The name counts
    // once committed; a refused save is said; going back writes nothing.
    void newCitiesSavedRefusedAndLeft()
    {
        Editor f({32, 35, 63});
        f.name->setFocus();
        f.type(f.name, QStringLiteral("\u0643\u0648\u064A"));  // Arabic kaf and yeh
        QTest::keyClick(f.name, Qt::Key_Return);
        QVERIFY2(!f.saveEnabled(), "no province yet");
        QTest::keyClick(f.editor->slider(1), Qt::Key_Up);
        f.editor->slider(5)->setValue(550);
        f.editor->slider(4)->setValue(-150);
        QAccessibleValueInterface* value = QAccessible::queryAccessibleInterface(f.editor->slider(4))->valueInterface();
        QCOMPARE(
            (QList<int>{value->currentValue().toInt(), value->minimumValue().toInt(), value->maximumValue().toInt()}),
            (QList<int>{-2, -10, 10}));
        value->setCurrentValue(7);
        QCOMPARE(value->currentValue().toInt(), 7);
        value->setCurrentValue(-2);
        f.pickProvince(QStringLiteral("تهر"));
        QCOMPARE(f.editor->findChild<QLabel*>(QStringLiteral("provinceValue"))->text(), QStringLiteral("تهران"));
        QCOMPARE(QAccessible::queryAccessibleInterface(f.find<QPushButton>(QStringLiteral("provinceRow")))
                     ->text(QAccessible::Description),
                 QStringLiteral("تهران"));
        QCOMPARE(f.name->text(), QStringLiteral("\u0643\u0648\u064A"));
        f.saveScreenshot(QStringLiteral("new-city-editor.png"));
        f.click(QStringLiteral("btnSave"));
        QCOMPARE(f.citiesTop()->metaObject()->className(), "kavenda::SelectionController");
        QCOMPARE(f.lastListed(), QStringLiteral("کوی (تهران)"));
        QCOMPARE(f.orderings().last(), QStringLiteral("64:4"));
        QCOMPARE(f.query("SELECT T1 || T2 || T3 || T4 || T5 || T6 FROM tTimes WHERE StateID = 64 AND Date = 14000101"),
                 "0100-25");
        f.open();
        QTest::keyClick(f.editor->slider(0), Qt::Key_Up);
        QVERIFY2(!f.saveEnabled(), "a slider before any name");
        f.pickProvince(QStringLiteral("یزد"));
        QVERIFY2(!f.saveEnabled(), "a province alone");
        f.name->setFocus();
        f.type(f.name, QStringLiteral("مهریز"));
        QVERIFY2(!f.saveEnabled(), "typed, not committed");
        QTest::keyClick(f.name, Qt::Key_Tab);
        QVERIFY2(f.saveEnabled(), "leaving the field commits the name");
        f.name->setFocus();
        f.type(f.name, QStringLiteral(" نو"));
        QTest::keyClick(f.editor->slider(2), Qt::Key_Down);
        f.type(f.name, QStringLiteral("ی"));
        f.click(QStringLiteral("btnSave"));
        QCOMPARE(f.lastListed(), QStringLiteral("مهریز نو (یزد)"));
        QCOMPARE(f.query("SELECT T1 || ',' || T3 FROM tTimes WHERE StateID = 65"), "1,-1");
        f.open();
        const QStringList orderings = f.orderings();
        const std::string places = f.query("SELECT COUNT(*) FROM tStates");
        f.refuse("full", "INSERT ON tTimes");
        f.name->setFocus();
        f.type(f.name, QStringLiteral("بم"));
        f.pickProvince(QStringLiteral("کرم"));
        // A province search cancelled keeps the province picked.
        f.click(QStringLiteral("provinceRow"));
        f.click(QStringLiteral("cancelButton"));
        QCOMPARE(f.editor->findChild<QLabel*>(QStringLiteral("provinceValue"))->text(), QStringLiteral("کرمان"));
        f.click(QStringLiteral("btnSave"));
        QCOMPARE(f.citiesTop(), f.editor);
        auto* line = f.editor->findChild<QLabel*>(QStringLiteral("failureLine"));
        QVERIFY(line->isVisible() && !line->text().isEmpty() && !line->text().contains(QLatin1Char('\n')));
        f.saveScreenshot(QStringLiteral("new-city-refused.png"));
        QVERIFY(f.db->ExecuteNonQuery("DROP TRIGGER full"));
        f.click(QStringLiteral("btnBack"));
        QCOMPARE(f.citiesTop()->metaObject()->className(), "kavenda::SelectionController");
        QVERIFY(!f.find<CustomUITabBarController>()->isTabBarHidden());
        QCOMPARE(f.query("SELECT COUNT(*) FROM tStates"), places);
        QCOMPARE(f.orderings(), orderings);
    }
};

}  // namespace kavenda

QTEST_MAIN(kavenda::NewCityScreensTest)
#include "NewCityScreensTest.moc"
