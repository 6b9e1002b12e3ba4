// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "screens/cities/EditableCityList.h"
#include "screens/cities/NewCityController.h"
#include "screens/cities/SearchController.h"
#include "screens/cities/SelectionController.h"
#include "tests/ui/screens/ScreenFixture.h"

#include <QtTest>
#include <QtWidgets>

namespace kavenda {
namespace {

using test::ScreenFixture;

const Instant may22 = test::tehran(2013, 5, 22, 0, 1);

// Confirms the delete control of a row, as a user does: the control, then the delete button.
void deleteRow(EditableCityList* list, int row)
{
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->deleteControlRect(row).center());
    QCOMPARE(list->confirmingRow(), row);
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->confirmRect(row).center());
}

void dragRow(EditableCityList* list, int from, int to)
{
    QWidget* viewport = list->viewport();
    const QPoint grip = list->gripRect(from).center();
    const QPoint target(grip.x(), list->visualItemRect(list->item(to)).center().y());
    QTest::mousePress(viewport, Qt::LeftButton, {}, grip);
    QMouseEvent move(QEvent::MouseMove, target, viewport->mapToGlobal(target), Qt::NoButton, Qt::LeftButton, {});
    QCoreApplication::sendEvent(viewport, &move);
    QTest::mouseRelease(viewport, Qt::LeftButton, {}, target);
}

}  // namespace

class CitiesScreensTest : public QObject {
    Q_OBJECT

private slots:
    // A first start opens the search, once; only the list and About can be used until a city is
    // added. Typing, a tap or Enter on a result, Enter on the create row; Escape steps back from
    // the search and the editor, and closes the options as Done does. Then the rows of the list.
    void theCityListFromAFirstStartOn()
    {
        ScreenFixture f(may22, ScreenFixture::Data::cities);
        f.show();
        auto* tabs = qobject_cast<CustomUITabBarController*>(f.top());
        QVERIFY(tabs);
        QTRY_VERIFY(qobject_cast<SearchController*>(f.citiesTop()));
        QVERIFY(tabs->isTabBarHidden() && f.citiesNavigation()->isNavigationBarHidden());
        QCOMPARE(f.results()->count(), 6);
        f.click(QStringLiteral("cancelButton"));
        QCOMPARE(f.citiesTop(), f.find<SelectionController>());
        QVERIFY(!tabs->isTabBarHidden() && !f.citiesNavigation()->isNavigationBarHidden());
        QVERIFY(!f.find<QPushButton>(QStringLiteral("btnDone"))->isEnabled());
        for (int tab = 1; tab <= 3; ++tab)
            QVERIFY2(!tabs->isTabEnabled(tab), qPrintable(QString::number(tab)));
        f.clickTab(2);
        QAccessible::queryAccessibleInterface(tabs->tabBar())
            ->child(2)
            ->actionInterface()
            ->doAction(QAccessibleActionInterface::pressAction());
        QCOMPARE(tabs->currentIndex(), 0);
        f.clickTab(4);
        QCOMPARE(tabs->currentIndex(), 4);
        f.clickTab(0);
        QCOMPARE(f.citiesTop(), f.find<SelectionController>());  // the search does not come back
        auto* searchButton = f.find<QPushButton>(QStringLiteral("btnSearch"));
        searchButton->setFocus();
        QTest::keyClick(searchButton, Qt::Key_Return);
        f.type(f.find<QLineEdit>(QStringLiteral("searchBar")), QStringLiteral("تهران"));
        QCOMPARE(f.texts(f.results()),
                 (QStringList{QStringLiteral("تهران (تهران)"), QStringLiteral("شهریار (تهران)")}));
        f.clickRow(f.results(), 0);
        QCOMPARE(f.orderings(), QStringList{QStringLiteral("32:1")});
        for (int tab = 1; tab <= 3; ++tab)
            QVERIFY(tabs->isTabEnabled(tab));
        f.find<EditableCityList>()->setFocus();
        QTest::keyClick(f.find<EditableCityList>(), Qt::Key_Escape);
        QCOMPARE(f.top(), f.main);
        QCOMPARE(f.rebuilds, 1);
        QCOMPARE(f.pages().size(), 1);
        f.openOptions();
        QTest::qWait(20);
        auto* selection = f.find<SelectionController>();
        QCOMPARE(f.citiesTop(), selection);  // with a city chosen the search waits to be asked
        f.click(QStringLiteral("btnSearch"));
        auto* field = f.find<QLineEdit>(QStringLiteral("searchBar"));
        f.type(field, QStringLiteral("\u0627\u0646"));
        QCOMPARE(f.results()->count(), 4);
        f.saveScreenshot(QStringLiteral("cities-search.png"));
        field->clear();
        f.type(field, QStringLiteral("\u0643\u0631"));  // Arabic kaf
        QCOMPARE(f.texts(f.results()), QStringList{QStringLiteral("کرمان (کرمان)")});
        QTest::keyClick(field, Qt::Key_Return);
        QCOMPARE(f.citiesTop(), selection);
        QCOMPARE(f.texts(f.find<EditableCityList>()),
                 (QStringList{QStringLiteral("تهران (تهران)"), QStringLiteral("کرمان (کرمان)")}));
        f.click(QStringLiteral("btnSearch"));
        f.type(f.find<QLineEdit>(QStringLiteral("searchBar")), QStringLiteral("\u0627\u0646"));
        QListWidget* found = f.results();
        found->setFocus();
        found->setCurrentRow(static_cast<int>(f.texts(found).indexOf(QStringLiteral("اصفهان (اصفهان)"))));
        QTest::keyClick(found, Qt::Key_Return);
        QCOMPARE(f.orderings().last(), QStringLiteral("33:3"));
        f.click(QStringLiteral("btnSearch"));
        QTest::keyClick(f.find<QLineEdit>(QStringLiteral("searchBar")), Qt::Key_Escape);
        QCOMPARE(f.citiesTop(), selection);
        auto* create = f.find<QListWidget>(QStringLiteral("createNewCityTable"));
        QVERIFY(create->focusPolicy() & Qt::TabFocus);
        create->setFocus(Qt::TabFocusReason);
        create->setCurrentRow(0);
        QTest::keyClick(create, Qt::Key_Enter);
        QVERIFY(qobject_cast<NewCityController*>(f.citiesTop()));
        QTest::keyClick(f.find<QLineEdit>(QStringLiteral("nameField")), Qt::Key_Escape);
        QCOMPARE(f.citiesTop(), selection);
        f.click(QStringLiteral("btnDone"));
        QCOMPARE(f.top(), f.main);
        QCOMPARE(f.rebuilds, 2);
        QCOMPARE(f.pages().size(), 3);
        // Rows moved (every row renumbered) and removed from the keyboard; a removal or a move the
        // database refuses is said under the list, which shows what is stored.
        f.openOptions();
        auto* list = f.find<EditableCityList>();
        list->setFocus();
        list->setCurrentRow(2);
        QTest::keyClick(list, Qt::Key_Up, Qt::ControlModifier);
        QCOMPARE(f.orderings(), (QStringList{"32:0", "33:1", "35:2"}));
        QCOMPARE(list->currentRow(), 1);
        QTest::keyClick(list, Qt::Key_Delete);
        QCOMPARE(list->confirmingRow(), 1);
        QTest::keyClick(list, Qt::Key_Escape);
        QCOMPARE(list->confirmingRow(), -1);
        QCOMPARE(f.presentation->depth(), 2);  // Escape went to the row, not to the options
        QTest::keyClick(list, Qt::Key_Return);
        QCOMPARE(list->count(), 3);  // Enter while nothing is asked removes nothing
        QTest::keyClick(list, Qt::Key_Delete);
        QTest::keyClick(list, Qt::Key_Return);
        const QStringList names{QStringLiteral("تهران (تهران)"), QStringLiteral("کرمان (کرمان)")};
        QCOMPARE(f.texts(list), names);
        QCOMPARE(f.orderings(), (QStringList{"32:0", "35:2"}));  // a removal renumbers nothing
        QTest::keyClick(list, Qt::Key_Down, Qt::ControlModifier);  // already the last row
        QCOMPARE(f.orderings(), (QStringList{"32:0", "35:2"}));
        f.refuse("refuse", "DELETE ON tSelectedStates");
        f.refuse("refuseMove", "UPDATE ON tSelectedStates");
        QLabel* line = nullptr;
        for (int attempt = 0; attempt < 2; ++attempt) {
            attempt == 0 ? deleteRow(list, 1) : dragRow(list, 0, 1);
            line = f.find<QLabel>(QStringLiteral("writeFailureLine"));
            QVERIFY(line && line->isVisible() && line->text().startsWith(QStringLiteral("ذخیره نشد")));
            QCOMPARE(f.texts(list), names);
            QCOMPARE(f.orderings(), (QStringList{"32:0", "35:2"}));
        }
        QVERIFY(f.db->ExecuteNonQuery("DROP TRIGGER refuse"));
        deleteRow(list, 1);
        QCOMPARE(f.orderings(), QStringList{"32:0"});
        QVERIFY(!line->isVisible());
    }
};

}  // namespace kavenda

QTEST_MAIN(kavenda::CitiesScreensTest)
#include "CitiesScreensTest.moc"
