#include "app/PersianFont.h"
#include "screens/cities/CustomUITabBarController.h"
#include "screens/cities/NewCityController.h"
#include "screens/cities/SearchController.h"
#include "screens/cities/SelectionController.h"
#include "screens/main/MainViewController.h"
#include "tests/support/TehranTime.h"
#include "tests/ui/main/MainScreenFixture.h"
#include "widgets/Animations.h"
#include "widgets/FineSlider.h"
#include "widgets/NavigationStack.h"
#include "widgets/Pager.h"
#include "widgets/PresentationStack.h"

#include <QAbstractButton>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QtTest>

namespace kavenda {
namespace {

using test::MainScreenFixture;

constexpr int tehran = 32;

void typeText(QWidget* field, const QString& text)
{
    for (const QChar letter : text) {
        QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, QString(letter));
        QCoreApplication::sendEvent(field, &press);
    }
}

void clickRow(QListWidget* list, int row)
{
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(list->item(row)).center());
}

}  // namespace

// A city made in the options reaches the main screen as soon as the options close.
class NewCityMainScreenTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase()
    {
        setAnimationsEnabled(false);
        usePersianFont();
    }

    void aNewCityGetsItsOwnPageWithItsCentresTimesShifted()
    {
        MainScreenFixture f(test::tehran(2013, 7, 1, 12, 0));  // 10 Tir 1392
        f.choose({tehran});
        MainViewController& main = f.show();
        QTest::mouseClick(main.findChild<QAbstractButton*>(QStringLiteral("optionsButton")), Qt::LeftButton);
        auto* options = qobject_cast<CustomUITabBarController*>(f.presentation().top());
        QVERIFY(options);
        auto* navigation = qobject_cast<NavigationStack*>(options->widget(0));
        auto* selection = navigation->findChild<SelectionController*>();
        QVERIFY(selection);

        clickRow(selection->createNewCityTable(), 0);
        auto* editor = qobject_cast<NewCityController*>(navigation->top());
        QVERIFY(editor);
        typeText(editor->nameField(), QStringLiteral("پاکدشت"));
        QTest::keyClick(editor->nameField(), Qt::Key_Return);
        QTest::keyClick(editor->slider(0), Qt::Key_Up);
        QTest::keyClick(editor->slider(0), Qt::Key_Up);
        editor->slider(3)->setValue(-310);
        QTest::mouseClick(editor->provinceRow(), Qt::LeftButton);
        auto* search = qobject_cast<SearchController*>(navigation->top());
        QVERIFY(search);
        typeText(search->searchBar(), QStringLiteral("تهر"));
        clickRow(search->tblResult(), 0);
        QCOMPARE(navigation->top(), editor);
        QTest::mouseClick(editor->btnSave(), Qt::LeftButton);
        QCOMPARE(navigation->top(), selection);
        QTest::mouseClick(selection->btnDone(), Qt::LeftButton);
        QCOMPARE(f.presentation().top(), &main);
        QCOMPARE(f.reminderRebuilds, 1);

        // Pages run from the last city of the list to the first: the new one is on the left.
        QCOMPARE(main.pageCount(), 2);
        const QStringList texts = MainScreenFixture::texts(f.pages().first());
        QCOMPARE(texts[0], QStringLiteral("پاکدشت"));
        // تهران on 920410: 3:51 5:26 12:07 19:25 19:45 23:16, the next day 3:52 5:27, an hour
        // later in summer; the new city is two minutes later at dawn and four earlier at sunset.
        QCOMPARE(texts.mid(3),
                 (QStringList{QStringLiteral("٠٤:٥٣"), QStringLiteral("٠٦:٢٦"), QStringLiteral("١٣:٠٧"),
                              QStringLiteral("٢٠:٢١"), QStringLiteral("٢٠:٤٥"), QStringLiteral("٠٠:١٦"),
                              QStringLiteral("٠٤:٥٤"), QStringLiteral("٠٦:٢٧")}));
        QCOMPARE(MainScreenFixture::texts(f.pages().last())[3], QStringLiteral("٠٤:٥١"));
        main.scrollView()->setContentOffset(0, false);
        f.saveScreenshot(QStringLiteral("main-new-city.png"));
    }
};

}  // namespace kavenda

QTEST_MAIN(kavenda::NewCityMainScreenTest)
#include "NewCityMainScreenTest.moc"
