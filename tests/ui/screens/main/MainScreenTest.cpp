// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "calendar/DateTimePersian.h"
#include "desktop/SystemClock.h"
#include "screens/main/ShadowedLabel.h"
#include "tests/ui/screens/ScreenFixture.h"
#include "widgets/FocusRingStyle.h"
#include "widgets/PageIndicator.h"
#include "widgets/Pager.h"

#include <QtTest>
#include <QtWidgets>

#include <algorithm>

namespace kavenda {
namespace {

using test::ScreenFixture;

// 10 Tir 1392, 12:00: a summer day of 1392, with the summer hour.
const Instant summerDay = test::tehran(2013, 7, 1, 12, 0);
constexpr int tehran = 32, isfahan = 33, mashhad = 34;

// The roles a control of each kind may be announced with; an empty list for any role but none.
QList<QAccessible::Role> rolesFor(const QWidget* widget)
{
    using R = QAccessible::Role;
    if (qobject_cast<const QAbstractButton*>(widget))
        return {R::Button, R::CheckBox, R::RadioButton, R::PageTab, R::Link};
    if (qobject_cast<const QAbstractSlider*>(widget))
        return {R::Slider, R::Dial, R::SpinBox};
    if (qobject_cast<const QLineEdit*>(widget))
        return {R::EditableText};
    if (qobject_cast<const QAbstractItemView*>(widget))
        return {R::List, R::Table, R::Tree};
    return {};
}

// Every shown control a person can reach under root that a screen reader could not name in
// Persian (letters of the Arabic script) or would announce with a role that does not say what
// it does. Scroll bars are Qt's own, announced by their role.
QStringList unnamedControls(QWidget* root)
{
    QStringList faults;
    for (QWidget* widget : root->findChildren<QWidget*>()) {
        if (!widget->isVisibleTo(root) || qobject_cast<QScrollBar*>(widget)
            || (widget->focusPolicy() == Qt::NoFocus && rolesFor(widget).isEmpty()))
            continue;
        QAccessibleInterface* face = QAccessible::queryAccessibleInterface(widget);
        const QString what = QStringLiteral("%1 \"%2\": ").arg(widget->metaObject()->className(), widget->objectName());
        const QString name = face ? face->text(QAccessible::Name) : QString();
        if (std::none_of(name.begin(), name.end(),
                         [](QChar c) { return c.isLetterOrNumber() && c.script() == QChar::Script_Arabic; }))
            faults << what + QStringLiteral("name \"%1\"").arg(name);
        const QList<QAccessible::Role> roles = rolesFor(widget);
        if (face && (face->role() == QAccessible::NoRole || (!roles.isEmpty() && !roles.contains(face->role()))))
            faults << what + QStringLiteral("role %1").arg(int(face->role()));
    }
    return faults;
}

}  // namespace

class MainScreenTest : public QObject {
    Q_OBJECT

private slots:
    // The shadow is the text's own shape, black, moved by the offset; the text keeps to its side of
    // the frame and to its middle, whichever way it reads; a text too long for the frame is cut
    // short on the screen and stays whole for a screen reader.
    void aShadowedLabelCastsItsTextAtTheOffsetWhereTheLabelPutsIt()
    {
        const QRect frame(10, 10, 150, 40);
        const QString long_ = QStringLiteral("سالروز شهادت امام جعفر صادق علیه السلام");
        for (const auto& [text, side] :
             {std::pair{QStringLiteral("تهران"), Qt::AlignRight}, std::pair{QStringLiteral("۱۳:۲۹"), Qt::AlignLeft},
              std::pair{long_, Qt::AlignRight}}) {
            QWidget page;
            page.resize(200, 60);
            QPalette grey = page.palette();
            grey.setColor(QPalette::Window, Qt::gray);
            grey.setColor(QPalette::WindowText, Qt::white);
            page.setPalette(grey);
            page.setAutoFillBackground(true);
            auto* label = new ShadowedLabel(text, frame, QPoint(-1, 3), &page);
            label->setAlignment(Qt::AlignAbsolute | side | Qt::AlignVCenter);
            QFont font = label->font();
            font.setPixelSize(20);
            label->setFont(font);
            const QImage shot = page.grab().toImage();
            QRect white, black;
            for (int y = 0; y < shot.height(); ++y)
                for (int x = 0; x < shot.width(); ++x) {
                    const QRgb pixel = shot.pixel(x, y) & 0xffffff;
                    if (pixel == 0xffffff)
                        white |= QRect(x, y, 1, 1);
                    else if (pixel == 0)
                        black |= QRect(x, y, 1, 1);
                }
            QVERIFY2(!white.isEmpty() && !black.isEmpty(), qPrintable(text));
            QCOMPARE(black.left(), white.left() - 1);
            QCOMPARE(black.bottom(), white.bottom() + 3);
            const int gap = side == Qt::AlignRight ? frame.right() - white.right() : white.left() - frame.left();
            QVERIFY2(gap >= 0 && gap <= 4, qPrintable(QStringLiteral("%1: %2 from its side").arg(text).arg(gap)));
            QVERIFY2(std::abs(white.center().y() - frame.center().y()) <= 6, qPrintable(text));
            QVERIFY2(white.left() >= frame.left(), qPrintable(text));
            QCOMPARE(label->text(), text);
        }
    }

    // The last chosen city on the left, the screen opening on the first; the indicator moves the
    // pages; a rebuild that finds the same cities on the same day keeps its page widgets and opens
    // on the first city again, another day or another list makes new pages.
    void threeCitiesOpenOnTheFirstAndTheIndicatorMovesThePages()
    {
        ScreenFixture f(summerDay);
        f.choose({tehran, isfahan, mashhad});
        MainViewController& main = f.show();
        QList<QString> firstLines;
        for (const QStringList& page : f.pages())
            firstLines << page[0];
        QCOMPARE(firstLines, (QStringList{QStringLiteral("مشهد"), QStringLiteral("اصفهان"), QStringLiteral("تهران")}));
        auto* pager = f.find<Pager>(QStringLiteral("scrollView"));
        auto* indicator = f.find<PageIndicator>(QStringLiteral("pageControl"));
        QCOMPARE(pager->contentOffset(), 640.0);
        QCOMPARE(indicator->currentPage(), 2);
        f.saveScreenshot(QStringLiteral("main-1392-04-10.png"));
        // On a dot, its page; beside the dots, one page that way: through the window, as the
        // desktop delivers a click, to whichever widget takes it there.
        const int middle = indicator->height() / 2;
        const QList<QPair<QPoint, int>> clicks{{indicator->dotRect(0).center(), 0},
                                               {indicator->dotRect(1).center() + QPoint(5, 0), 1},
                                               {QPoint(2, middle), 0},
                                               {QPoint(2, middle), 0},
                                               {QPoint(indicator->width() - 2, middle), 1}};
        for (const auto& [at, page] : clicks) {
            QTest::mouseClick(main.window()->windowHandle(), Qt::LeftButton, {}, indicator->mapTo(main.window(), at));
            QCOMPARE(indicator->currentPage(), page);
            QTRY_COMPARE(pager->contentOffset(), 320.0 * page);
        }
        const QList<QWidget*> widgets = pager->pages();
        const QList<QPointer<QWidget>> before(widgets.begin(), widgets.end());
        main.refresh();
        main.closeForm();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCOMPARE(pager->pages(), widgets);
        QVERIFY(std::all_of(before.begin(), before.end(), [](const auto& page) { return page; }));
        QCOMPARE(pager->contentOffset(), 640.0);
        QCOMPARE(indicator->currentPage(), 2);
        main.closeCalendar(DateTimePersian::initWithPersianDate("920411", f.calendar), nullptr);
        main.updateDataSource();
        main.Bind();
        QCOMPARE(f.pages().first()[2], QStringLiteral("١١ تیر"));
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(std::none_of(before.begin(), before.end(), [](const auto& page) { return page; }));
        f.choose({65});
        main.refresh();
        QCOMPARE(f.pages().size(), 4);
    }

    // Every screen and tab, walked as a screen reader meets it and as Tab moves through it in the
    // style the program runs with: every control has a Persian name and a role, and every place
    // Tab stops at looks different from the place before it.
    void everyScreenNamesItsControlsAndShowsItsFocus()
    {
        QApplication::setStyle(new FocusRingStyle);
        ScreenFixture f(summerDay);
        f.choose({tehran, isfahan});
        QWidget* window = f.show().window();
        QStringList faults;
        const auto walk = [&](const QString& screen) {
            for (const QString& fault : unnamedControls(f.top()))
                faults << screen + QStringLiteral(": ") + fault;
            QImage before = window->grab().toImage();
            QWidget* first = nullptr;
            for (int stop = 0; stop < 40; ++stop) {
                QTest::keyClick(QApplication::focusWidget() ? QApplication::focusWidget() : window, Qt::Key_Tab);
                QWidget* focused = QApplication::focusWidget();
                const QImage after = window->grab().toImage();
                if (after == before) {
                    faults << screen + QStringLiteral(": focus unseen on ") + QDebug::toString(focused);
                    break;
                }
                before = after;
                if (focused == first)
                    break;
                first = first ? first : focused;
            }
        };
        walk(QStringLiteral("main"));
        f.click(QStringLiteral("calendarButton"));
        walk(QStringLiteral("calendar"));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
        CustomUITabBarController& tabs = f.openOptions();
        for (int tab = tabs.count() - 1; tab >= 0; --tab) {
            f.clickTab(tab);
            walk(QStringLiteral("tab ") + tabs.tabText(tab));
        }
        f.click(QStringLiteral("btnSearch"));
        walk(QStringLiteral("search"));
        f.click(QStringLiteral("cancelButton"));
        f.clickRow(f.find<QListWidget>(QStringLiteral("createNewCityTable")), 0);
        walk(QStringLiteral("new city"));
        QApplication::setStyle(QStringLiteral("Fusion"));
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join(QLatin1Char('\n'))));
    }

    void threeCitiesToday()
    {
        ScreenFixture f(SystemClock().now(), ScreenFixture::Data::generated);
        f.choose({39, 35, 42});  // تهران, اصفهان, مشهد of the generated database
        f.show();
        QCOMPARE(f.pages().size(), 3);
        QVERIFY(!f.pages().last()[3].isEmpty());
        f.saveScreenshot(QStringLiteral("main-today.png"));
    }
};

}  // namespace kavenda

QTEST_MAIN(kavenda::MainScreenTest)
#include "MainScreenTest.moc"
