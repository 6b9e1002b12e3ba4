// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/PersianFont.h"
#include "platform/UrlOpener.h"
#include "screens/cities/CustomUITabBarController.h"
#include "screens/cities/EditableCityList.h"
#include "screens/cities/NewCityController.h"
#include "screens/cities/OptionsViewController.h"
#include "screens/cities/SearchController.h"
#include "screens/cities/SearchControllerDelegate.h"
#include "screens/cities/SelectionController.h"
#include "tests/ui/screens/cities/OptionsFixture.h"
#include "widgets/Animations.h"
#include "widgets/EnterPressesButtons.h"
#include "widgets/FlipTransition.h"
#include "widgets/FocusRingStyle.h"
#include "widgets/NavigationStack.h"
#include "widgets/PresentationStack.h"

#include <QAccessible>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabBar>
#include <QToolButton>
#include <QtTest>

namespace kavenda {
namespace {

using test::OptionsFixture;

constexpr int tehran = 32, isfahan = 33, kerman = 35, yazd = 36, kashan = 62, shahriar = 63;

QStringList resultNames(const SearchController& search)
{
    QStringList names;
    for (int row = 0; row < search.findChild<QListWidget*>(QStringLiteral("tblResult"))->count(); ++row)
        names.append(search.findChild<QListWidget*>(QStringLiteral("tblResult"))->item(row)->text());
    names.sort();
    return names;
}

// One key press per letter, as a Persian keyboard sends them (QTest types Latin letters only).
void typeText(QLineEdit* field, const QString& text)
{
    for (const QChar letter : text) {
        QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, QString(letter));
        QCoreApplication::sendEvent(field, &press);
    }
}

void clickAt(QWidget* viewport, const QPoint& at)
{
    QTest::mouseClick(viewport, Qt::LeftButton, {}, at);
}

// Confirms the delete control of a row, as a user does: the control, then the delete button.
void deleteRow(EditableCityList* list, int row)
{
    clickAt(list->viewport(), list->deleteControlRect(row).center());
    QCOMPARE(list->confirmingRow(), row);
    clickAt(list->viewport(), list->confirmRect(row).center());
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

struct RecordingSearchDelegate final : SearchControllerDelegate {
    void closeForm() override { calls.append(QStringLiteral("closeForm")); }
    void setProvince(int provinceId, const std::string& provinceName) override
    {
        calls.append(QStringLiteral("setProvince %1 %2").arg(provinceId).arg(QString::fromStdString(provinceName)));
    }
    QStringList calls;
};

// Animations for one case, off again whatever happens in it.
struct Animated {
    Animated() { setAnimationsEnabled(true); }
    ~Animated() { setAnimationsEnabled(false); }
};

}  // namespace

class CitiesScreensTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase()
    {
        setAnimationsEnabled(false);
        usePersianFont();
    }

    void aFirstStartOpensTheSearchOnceAndLeavesEverythingButTheAboutTabDisabled()
    {
        OptionsFixture f;
        f.open();
        QCOMPARE(f.tabs()->currentIndex(), 0);
        QTRY_VERIFY(f.search());
        QVERIFY(f.tabs()->isTabBarHidden());
        QVERIFY(f.navigation()->isNavigationBarHidden());
        QCOMPARE(f.search()->typeID(), 0);
        QCOMPARE(f.search()->findChild<QListWidget*>(QStringLiteral("tblResult"))->count(), 6);

        QTest::mouseClick(f.search()->findChild<QPushButton*>(QStringLiteral("cancelButton")), Qt::LeftButton);
        QCOMPARE(f.navigation()->top(), f.selection());
        QVERIFY(!f.tabs()->isTabBarHidden());
        QVERIFY(!f.navigation()->isNavigationBarHidden());
        QVERIFY(f.orderings().isEmpty());
        QVERIFY(!f.selection()->window()->findChild<QPushButton*>(QStringLiteral("btnDone"))->isEnabled());
        QVERIFY(f.selection()->window()->findChild<QPushButton*>(QStringLiteral("btnSearch"))->isEnabled());
        QVERIFY(f.tabs()->isTabEnabled(0));
        for (int tab = 1; tab <= 3; ++tab)
            QVERIFY2(!f.tabs()->isTabEnabled(tab), qPrintable(QString::number(tab)));
        QVERIFY(f.tabs()->isTabEnabled(4));
        QTest::qWait(50);
        QCOMPARE(f.navigation()->top(), f.selection());

        f.clickTab(2);
        QCOMPARE(f.tabs()->currentIndex(), 0);
        QAccessible::queryAccessibleInterface(f.tabs()->tabBar())
            ->child(2)
            ->actionInterface()
            ->doAction(QAccessibleActionInterface::pressAction());
        QCOMPARE(f.tabs()->currentIndex(), 0);
        f.clickTab(4);
        QCOMPARE(f.tabs()->currentIndex(), 4);
        f.clickTab(0);
        // the search does not come back with the tab
        QCOMPARE(f.navigation()->top(), f.selection());
    }

    void typingWithArabicLettersFindsAndAddsTheCity()
    {
        OptionsFixture f;
        f.choose({tehran});
        f.open();
        QTest::qWait(20);
        // with a city chosen the search waits to be asked
        QCOMPARE(f.navigation()->top(), f.selection());
        QTest::mouseClick(f.selection()->window()->findChild<QPushButton*>(QStringLiteral("btnSearch")),
                          Qt::LeftButton);
        SearchController* search = f.search();
        QVERIFY(search);

        typeText(search->findChild<QLineEdit*>(QStringLiteral("searchBar")), QStringLiteral("\u0643\u0631"));
        QCOMPARE(resultNames(*search), QStringList{QStringLiteral("کرمان (کرمان)")});
        search->findChild<QLineEdit*>(QStringLiteral("searchBar"))->clear();
        typeText(search->findChild<QLineEdit*>(QStringLiteral("searchBar")), QStringLiteral("تهران"));
        // a chosen city is no candidate
        QCOMPARE(resultNames(*search), QStringList{QStringLiteral("شهریار (تهران)")});
        search->findChild<QLineEdit*>(QStringLiteral("searchBar"))->clear();
        typeText(search->findChild<QLineEdit*>(QStringLiteral("searchBar")), QStringLiteral("'"));
        QCOMPARE(search->findChild<QListWidget*>(QStringLiteral("tblResult"))->count(), 0);
        search->findChild<QLineEdit*>(QStringLiteral("searchBar"))->clear();
        typeText(search->findChild<QLineEdit*>(QStringLiteral("searchBar")), QStringLiteral("\u0627\u0646"));
        QCOMPARE(search->findChild<QListWidget*>(QStringLiteral("tblResult"))->count(), 4);
        f.saveScreenshot(QStringLiteral("cities-search.png"));

        const QString kermanName = QStringLiteral("کرمان (کرمان)");
        const auto items =
            search->findChild<QListWidget*>(QStringLiteral("tblResult"))->findItems(kermanName, Qt::MatchExactly);
        QCOMPARE(items.size(), 1);
        QTest::mouseClick(
            search->findChild<QListWidget*>(QStringLiteral("tblResult"))->viewport(), Qt::LeftButton, {},
            search->findChild<QListWidget*>(QStringLiteral("tblResult"))->visualItemRect(items.first()).center());
        QCOMPARE(f.navigation()->top(), f.selection());
        QCOMPARE(f.orderings(), (QStringList{QStringLiteral("32:0"), QStringLiteral("35:2")}));
        QCOMPARE(f.listedNames(), (QStringList{QStringLiteral("تهران (تهران)"), kermanName}));
        QVERIFY(f.selection()->window()->findChild<QPushButton*>(QStringLiteral("btnDone"))->isEnabled());
    }

    void addingTheFirstCityEnablesDoneAndThePreferenceTabs()
    {
        OptionsFixture f;
        f.open();
        QTRY_VERIFY(f.search());
        typeText(f.search()->findChild<QLineEdit*>(QStringLiteral("searchBar")),
                 QStringLiteral("\u064A\u0632\u062F"));  // Arabic yeh
        QCOMPARE(f.search()->findChild<QListWidget*>(QStringLiteral("tblResult"))->count(), 1);
        QTest::keyClick(f.search()->findChild<QLineEdit*>(QStringLiteral("searchBar")), Qt::Key_Return);
        QCOMPARE(f.orderings(), QStringList{QStringLiteral("36:1")});
        QVERIFY(f.selection()->window()->findChild<QPushButton*>(QStringLiteral("btnDone"))->isEnabled());
        for (int tab = 1; tab <= 3; ++tab)
            QVERIFY(f.tabs()->isTabEnabled(tab));
    }

    // A removal or a move the database refuses is said under the list, which shows what is stored.
    void aRefusedRemovalOrMoveIsSaidAndTheListShowsWhatIsStored()
    {
        OptionsFixture f;
        f.choose({tehran, isfahan, kerman});
        f.open();
        EditableCityList* list = f.selection()->tbl();
        const QStringList names = f.listedNames();
        const QStringList orderings = f.orderings();
        QVERIFY(f.db().ExecuteNonQuery(
            "CREATE TRIGGER refuse BEFORE DELETE ON tSelectedStates BEGIN SELECT RAISE(ABORT, 'disk full'); END"));
        QVERIFY(f.db().ExecuteNonQuery(
            "CREATE TRIGGER refuseMove BEFORE UPDATE ON tSelectedStates BEGIN SELECT RAISE(ABORT, 'full'); END"));
        for (int attempt = 0; attempt < 2; ++attempt) {
            attempt == 0 ? deleteRow(list, 1) : dragRow(list, 0, 2);
            auto* line = f.selection()->findChild<QLabel*>(QStringLiteral("writeFailureLine"));
            QVERIFY(line && line->isVisible());
            QVERIFY(line->text().startsWith(QStringLiteral("ذخیره نشد")));
            QCOMPARE(f.listedNames(), names);
            QCOMPARE(f.orderings(), orderings);
        }
        QVERIFY(f.db().ExecuteNonQuery("DROP TRIGGER refuse"));
        deleteRow(list, 1);
        QCOMPARE(f.listedNames().size(), 2);
        QVERIFY(!f.selection()->findChild<QLabel*>(QStringLiteral("writeFailureLine"))->isVisible());
    }

    void theKeyboardRemovesAndMovesRows()
    {
        OptionsFixture f;
        f.choose({tehran, isfahan, kerman});
        f.open();
        EditableCityList* list = f.selection()->tbl();
        list->setFocus();
        list->setCurrentRow(2);
        QTest::keyClick(list, Qt::Key_Up, Qt::ControlModifier);
        QCOMPARE(f.orderings(), (QStringList{"32:0", "35:1", "33:2"}));
        QCOMPARE(list->currentRow(), 1);
        QTest::keyClick(list, Qt::Key_Delete);
        QCOMPARE(list->confirmingRow(), 1);
        QTest::keyClick(list, Qt::Key_Escape);
        QCOMPARE(list->confirmingRow(), -1);
        QCOMPARE(list->count(), 3);
        QCOMPARE(f.presentation()->depth(), 2);  // Escape went to the row, not to the options
        QTest::keyClick(list, Qt::Key_Return);
        QCOMPARE(list->count(), 3);  // Enter while nothing is asked removes nothing
        QTest::keyClick(list, Qt::Key_Delete);
        QTest::keyClick(list, Qt::Key_Return);
        QCOMPARE(f.listedNames(), (QStringList{QStringLiteral("تهران (تهران)"), QStringLiteral("اصفهان (اصفهان)")}));
        QCOMPARE(list->currentRow(), 1);
        QCOMPARE(f.orderings(), (QStringList{"32:0", "33:2"}));  // a removal renumbers nothing
        QTest::keyClick(list, Qt::Key_Down, Qt::ControlModifier);  // already the last row
        QCOMPARE(f.orderings(), (QStringList{"32:0", "33:2"}));
    }

    // Every place Tab stops at looks different from the place before it, on every screen of the
    // options, in the style the program runs with.
    void everyFocusStopShowsItself()
    {
        QApplication::setStyle(new FocusRingStyle);
        OptionsFixture f;
        f.choose({tehran, isfahan});
        f.open();
        QWidget* window = f.tabs()->window();
        window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(window));
        const auto unseenStop = [window](const QString& screen) {
            QImage before = window->grab().toImage();
            QWidget* first = nullptr;
            for (int stop = 0; stop < 40; ++stop) {
                QWidget* focused = QApplication::focusWidget();
                QTest::keyClick(focused ? focused : window, Qt::Key_Tab);
                focused = QApplication::focusWidget();
                const QImage after = window->grab().toImage();
                if (after == before)
                    return screen + QStringLiteral(": ")
                        + (focused ? QString::fromLatin1(focused->metaObject()->className()) + QLatin1Char(' ')
                                   + focused->objectName() + QLatin1Char(' ') + focused->accessibleName()
                                   : QStringLiteral("nothing"));
                before = after;
                if (focused == first)
                    break;
                if (!first)
                    first = focused;
            }
            return QString();
        };
        for (int tab = 0; tab < f.tabs()->count(); ++tab) {
            f.clickTab(tab);
            QCOMPARE(unseenStop(f.tabs()->tabText(tab)), QString());
        }
        f.clickTab(0);
        QTest::mouseClick(f.selection()->window()->findChild<QPushButton*>(QStringLiteral("btnSearch")),
                          Qt::LeftButton);
        QCOMPARE(unseenStop(QStringLiteral("search")), QString());
        QTest::mouseClick(f.search()->findChild<QPushButton*>(QStringLiteral("cancelButton")), Qt::LeftButton);
        QListWidget* create = f.selection()->findChild<QListWidget*>(QStringLiteral("createNewCityTable"));
        QTest::mouseClick(create->viewport(), Qt::LeftButton, {}, create->visualItemRect(create->item(0)).center());
        QCOMPARE(unseenStop(QStringLiteral("editor")), QString());
        QApplication::setStyle(QStringLiteral("Fusion"));
    }

    // Escape steps back from the search and the editor and closes the options as Done does;
    // Enter presses the focused button.
    void escapeStepsBackAndEnterPresses()
    {
        EnterPressesButtons enter;
        qApp->installEventFilter(&enter);
        OptionsFixture f;
        f.choose({tehran});
        f.open();
        QWidget* window = f.tabs()->window();
        window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(window));

        f.selection()->window()->findChild<QPushButton*>(QStringLiteral("btnSearch"))->setFocus();
        QTest::keyClick(f.selection()->window()->findChild<QPushButton*>(QStringLiteral("btnSearch")), Qt::Key_Return);
        QVERIFY(f.search());
        QTest::keyClick(f.search()->findChild<QLineEdit*>(QStringLiteral("searchBar")), Qt::Key_Escape);
        QCOMPARE(f.navigation()->top(), f.selection());

        QListWidget* create = f.selection()->findChild<QListWidget*>(QStringLiteral("createNewCityTable"));
        create->setFocus();
        create->setCurrentRow(0);
        QTest::keyClick(create, Qt::Key_Return);
        auto* editor = qobject_cast<NewCityController*>(f.navigation()->top());
        QVERIFY(editor);
        QTest::keyClick(editor->findChild<QLineEdit*>(QStringLiteral("nameField")), Qt::Key_Escape);
        QCOMPARE(f.navigation()->top(), f.selection());

        f.selection()->tbl()->setFocus();
        QTest::keyClick(f.selection()->tbl(), Qt::Key_Escape);
        QCOMPARE(f.pendingAtClose.size(), 1);
        QCOMPARE(f.presentation()->depth(), 1);
        qApp->removeEventFilter(&enter);
    }

    // Enter on a focused row reaches what a tap reaches, for keyboard and screen-reader users.
    void theKeyboardPicksAResultAndOpensTheNewCityEditor()
    {
        OptionsFixture f;
        f.choose({tehran});
        f.open();
        QTest::mouseClick(f.selection()->window()->findChild<QPushButton*>(QStringLiteral("btnSearch")),
                          Qt::LeftButton);
        SearchController* search = f.search();
        QVERIFY(search);
        typeText(search->findChild<QLineEdit*>(QStringLiteral("searchBar")), QStringLiteral("\u0627\u0646"));
        QListWidget* results = search->findChild<QListWidget*>(QStringLiteral("tblResult"));
        QCOMPARE(results->count(), 4);
        results->setFocus();
        results->setCurrentItem(results->findItems(QStringLiteral("کرمان (کرمان)"), Qt::MatchExactly).value(0));
        QTest::keyClick(results, Qt::Key_Return);
        QCOMPARE(f.navigation()->top(), f.selection());
        QCOMPARE(f.orderings(), (QStringList{QStringLiteral("32:0"), QStringLiteral("35:2")}));

        QListWidget* createRow = f.selection()->findChild<QListWidget*>(QStringLiteral("createNewCityTable"));
        QVERIFY(createRow->focusPolicy() & Qt::TabFocus);
        createRow->setFocus(Qt::TabFocusReason);
        createRow->setCurrentRow(0);
        QTest::keyClick(createRow, Qt::Key_Enter);
        QTRY_VERIFY(f.navigation()->top() != f.selection());
        QCOMPARE(f.navigation()->top()->metaObject()->className(), "kavenda::NewCityController");
    }
};

}  // namespace kavenda

QTEST_MAIN(kavenda::CitiesScreensTest)
#include "CitiesScreensTest.moc"
