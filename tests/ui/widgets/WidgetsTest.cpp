// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/Animations.h"
#include "widgets/FocusRingStyle.h"
#include "widgets/ImageButton.h"
#include "widgets/NavigationStack.h"
#include "widgets/NetpbmImage.h"
#include "widgets/PageIndicator.h"
#include "widgets/Pager.h"
#include "widgets/ResourcePixmap.h"

#include <QtTest>
#include <QtWidgets>

#include <fstream>

namespace kavenda {
namespace {

QList<QWidget*> labels(int count)
{
    QList<QWidget*> pages;
    for (int i = 0; i < count; ++i)
        pages.append(new QLabel(QString::number(i)));
    return pages;
}

}  // namespace

class WidgetsTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { setAnimationsEnabled(false); }

    // Colour and colour with transparency come back pixel for pixel; anything else reads as
    // nothing rather than as a garbled image.
    void netpbmImagesReadBackAsWrittenAndNothingElse()
    {
        const QTemporaryDir folder;
        const auto file = [&](const char* name) { return std::filesystem::path(folder.filePath(name).toStdString()); };
        QImage image(3, 2, QImage::Format_ARGB32);
        const QRgb pixels[] = {qRgba(255, 0, 0, 255), qRgba(0, 255, 0, 128),     qRgba(0, 0, 255, 0),
                               qRgba(17, 34, 51, 68), qRgba(255, 255, 255, 255), qRgba(1, 2, 3, 4)};
        for (int i = 0; i < 6; ++i)
            image.setPixel(i % 3, i / 3, pixels[i]);
        QVERIFY(writeNetpbm(image, file("a.pam")));
        QCOMPARE(readNetpbm(file("a.pam")), image.convertToFormat(QImage::Format_ARGB32_Premultiplied));
        QVERIFY(writeNetpbm(image, file("a.ppm")));
        QCOMPARE(readNetpbm(file("a.ppm")),
                 image.convertToFormat(QImage::Format_RGB888).convertToFormat(QImage::Format_RGB32));
        QVERIFY(!writeNetpbm(image, file("a.png")));
        // Read ahead on another thread, the same pixels reach the pixmap.
        prefetchResourceImage(file("a.pam"));
        QCOMPARE(resourcePixmap(file("a.pam")).toImage(), readNetpbm(file("a.pam")));

        const struct {
            const char* name;
            std::string bytes;
        } broken[] = {
            {"cut short", "P6\n3 2\n255\n" + std::string(17, 'x')},
            {"sixteen bits", "P6\n1 1\n65535\n" + std::string(6, 'x')},
            {"grey", "P7\nWIDTH 1\nHEIGHT 1\nDEPTH 1\nMAXVAL 255\nTUPLTYPE GRAYSCALE\nENDHDR\nx"},
            {"no size", "P6\n0 0\n255\n"},
            {"a png", "\x89PNG\r\n\x1a\n"},
        };
        for (const auto& b : broken) {
            std::ofstream(file("b")) << b.bytes;
            QVERIFY2(readNetpbm(file("b")).isNull(), b.name);
        }
        QVERIFY(readNetpbm(file("missing")).isNull());
    }

    // The ring is white until the keyboard brings the focus, in the highlight colour; a press
    // lightens the inside; a click works and leaves the focus where it was.
    void anImageButtonShowsItsRingItsPressAndTheKeyboardsFocus()
    {
        QWidget window;
        window.setStyle(new FocusRingStyle);
        QPalette black = window.palette();
        black.setColor(QPalette::Window, Qt::black);
        black.setColor(QPalette::Highlight, QColor(0, 120, 215));
        window.setPalette(black);
        window.setAutoFillBackground(true);
        auto* before = new QPushButton(QStringLiteral("x"), &window);
        QPixmap blank(4, 4);
        blank.fill(Qt::transparent);
        auto* button = new ImageButton(blank, 9, true, &window);
        button->setGeometry(20, 0, 18, 19);
        window.resize(60, 30);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        const auto at = [&](QPoint point) { return button->grab().toImage().pixelColor(point); };
        const QPoint ring(1, 9), inside(5, 9);
        QCOMPARE(at(ring).lightness(), 255);
        QCOMPARE(at(inside).lightness(), 0);
        button->setDown(true);
        QVERIFY2(at(inside).lightness() > 60, "a press lightens the button");
        button->setDown(false);
        QSignalSpy clicked(button, &QAbstractButton::clicked);
        before->setFocus();
        QTest::mouseClick(button, Qt::LeftButton);
        QCOMPARE(clicked.size(), 1);
        QVERIFY(before->hasFocus());
        QTest::keyClick(&window, Qt::Key_Tab);
        QVERIFY(button->hasFocus());
        QCOMPARE(at(ring), QColor(0, 120, 215));
    }

    // Pages side by side, every offset reported; a drag followed, and snapped to the nearest page.
    void pagerPlacesFollowsADragAndSnaps()
    {
        Pager pager;
        pager.resize(320, 460);
        pager.show();
        QVERIFY(QTest::qWaitForWindowExposed(&pager));
        QSignalSpy scrolled(&pager, &Pager::didScroll);
        QSignalSpy ended(&pager, &Pager::didEndScrolling);
        const QList<QWidget*> pages = labels(3);
        pager.setPages(pages);
        QCOMPARE(pages[2]->geometry(), QRect(640, 0, 320, 460));
        for (double offset : {640.0, 639.5, 650.0}) {
            pager.setContentOffset(offset, false);
            QCOMPARE(pager.contentOffset(), offset);
            QCOMPARE(scrolled.takeLast().first().toDouble(), offset);
        }
        // Back to the same page, past half way to the previous one, towards the next, never beyond
        // the last page, never before the first.
        const struct {
            double start;
            int drag;
            double settled;
        } drags[] = {
            {640.0, 100, 640.0}, {640.0, 200, 320.0}, {0.0, -170, 320.0}, {640.0, -300, 640.0}, {0.0, 250, 0.0}};
        const QPoint from(160, 200);
        for (const auto& d : drags) {
            pager.setContentOffset(d.start, false);
            ended.clear();
            QTest::mousePress(pager.viewport(), Qt::LeftButton, {}, from);
            QTest::mouseMove(pager.viewport(), from + QPoint(d.drag / 2, 0));
            QCOMPARE(pager.contentOffset(), std::clamp(d.start - d.drag / 2, 0.0, 640.0));
            QTest::mouseRelease(pager.viewport(), Qt::LeftButton, {}, from + QPoint(d.drag, 0));
            QCOMPARE(pager.contentOffset(), d.settled);
            QCOMPARE(ended.size(), 1);
            QCOMPARE(ended.first().first().toInt(), static_cast<int>(d.settled) / 320);
        }
    }

    // Keys and clicks the user makes are reported; pages set by code are not.
    void pageIndicatorReportsOnlyTheUsersChanges()
    {
        PageIndicator indicator;
        indicator.resize(320, 36);
        indicator.setNumberOfPages(4);
        indicator.setCurrentPage(3);
        indicator.show();
        QSignalSpy chosen(&indicator, &PageIndicator::valueChanged);
        indicator.setCurrentPage(2);
        QCOMPARE(chosen.size(), 0);
        const QList<QPair<int, int>> keys{{Qt::Key_Left, 1}, {Qt::Key_Left, 0}, {Qt::Key_Left, 0}, {Qt::Key_Right, 1}};
        for (const auto& [key, page] : keys) {
            QTest::keyClick(&indicator, static_cast<Qt::Key>(key));
            QCOMPARE(indicator.currentPage(), page);
        }
        QCOMPARE(chosen.size(), 3);  // the press at the first page changed nothing
        QTest::mouseClick(&indicator, Qt::LeftButton, {}, indicator.dotRect(3).center());
        QCOMPARE(chosen.takeLast().first().toInt(), 3);
        QCOMPARE(indicator.pageAt(indicator.dotRect(0).left() - 6), 2);  // beside the dots: one step
        QCOMPARE(indicator.pageAt(indicator.dotRect(2).right() + 3), 2);  // the gap belongs to the dot
    }

    // Push and pop themselves are the screens' tests'; the title follows the top screen's.
    void navigationPushPopTitlesAndButtons()
    {
        NavigationStack stack;
        stack.resize(320, 460);
        stack.show();
        auto* list = new QWidget;
        list->setWindowTitle(QStringLiteral("شهرها"));
        stack.push(list, false);
        auto* done = new QPushButton(QStringLiteral("Done"));
        stack.setBarButtons(list, nullptr, done);
        QCOMPARE(stack.title(), QStringLiteral("شهرها"));
        QVERIFY(done->isVisible());
        auto* search = new QWidget;
        search->setWindowTitle(QStringLiteral("جستجو"));
        stack.push(search, true);
        QCOMPARE(stack.title(), QStringLiteral("جستجو"));
        QVERIFY(!done->isVisible());
        search->setWindowTitle(QStringLiteral("افزودن"));
        QCOMPARE(stack.title(), QStringLiteral("افزودن"));
        stack.pop(true);
        QCOMPARE(stack.title(), QStringLiteral("شهرها"));
        QVERIFY(done->isVisible());
    }
};

}  // namespace kavenda

QTEST_MAIN(kavenda::WidgetsTest)
#include "WidgetsTest.moc"
