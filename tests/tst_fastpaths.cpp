// Shortcuts taken for speed give what the long way gives: stretched image pieces drawn
// as tiles match Qt's scaling pixel for pixel, and the pages of the ribbon that keep
// their updates switched off while hidden paint again as soon as they are shown,
// however they come to the front.

#include "ZelTest.h"

#include "RibbonApplication.h"
#include "RibbonCatSimpleAction.h"
#include "RibbonCategoriesPanelAction.h"
#include "RibbonCategoryAction.h"
#include "RibbonCategoryPanel.h"
#include "RibbonCategoryPanels.h"
#include "RibbonCategoryPanelsProxy.h"
#include "RibbonMainWindow.h"
#include "RibbonMenuBar.h"
#include "RibbonPaint_p.h"
#include "RibbonStyle.h"

#include <QAbstractButton>
#include <QPainter>

#include <algorithm>
#include <memory>

using namespace zel;

namespace {

// A translucent 12 x 10 image whose columns 4-7 are all alike and whose rows 3-6 are all
// alike, with distinct pixels elsewhere.
QPixmap testImage()
{
    QImage image(12, 10, QImage::Format_ARGB32);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const int column = (x >= 4 && x < 8) ? 4 : x;
            const int row = (y >= 3 && y < 7) ? 3 : y;
            image.setPixelColor(x, y, QColor(17 * column, 23 * row, 255 - 19 * column, 120 + 6 * column + 5 * row));
        }
    }
    return QPixmap::fromImage(image);
}

QImage drawn(const QPixmap &pixmap, const QRect &target, const QRect &source, bool throughHelper,
             const QPoint &painterOffset)
{
    QImage canvas(64, 48, QImage::Format_ARGB32_Premultiplied);
    canvas.fill(QColor(30, 60, 90, 200));
    QPainter painter(&canvas);
    painter.translate(painterOffset);
    if (throughHelper)
        RibbonPaint::drawPart(painter, target, pixmap, source);
    else
        painter.drawPixmap(target, pixmap, source);
    return canvas;
}

struct Ribbon
{
    RibbonMenuBar &bar() const { return window->ribbonMenuBar(); }
    RibbonCategoryPanels *panels() const { return bar().categoryPanels()->subject(); }

    RibbonCategoriesPanelAction *addTab(const QString &text)
    {
        auto *tab = new RibbonCategoriesPanelAction(text, window.get());
        auto *group = new RibbonCategoryAction(text + QStringLiteral(" group"), window.get());
        group->addAction(new RibbonCatSimpleAction(text + QStringLiteral(" command"), RibbonCatSimpleAction::SizeLarge,
                                                   window.get()),
                         -1);
        tab->addCategory(group);
        bar().addAction(tab);
        return tab;
    }

    std::unique_ptr<RibbonMainWindow> window{new RibbonMainWindow};
};

// Every widget of the page takes updates, so whatever changes on it gets painted.
bool takesUpdates(QWidget *page)
{
    if (!page || !page->updatesEnabled())
        return false;
    const QList<QWidget *> children = page->findChildren<QWidget *>();
    return std::all_of(children.cbegin(), children.cend(), [](QWidget *w) { return w->isWindow() || w->updatesEnabled(); });
}

class PaintCounter : public QObject
{
public:
    int paints = 0;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            ++paints;
        return QObject::eventFilter(watched, event);
    }
};

} // namespace

class tst_FastPaths : public QObject
{
    Q_OBJECT

private slots:
    void stretchedPieceMatchesScaling_data()
    {
        QTest::addColumn<QRect>("target");
        QTest::addColumn<QRect>("source");
        QTest::addColumn<QPoint>("painterOffset");
        QTest::addColumn<bool>("solid"); // one translucent colour instead of the test image

        // Pieces alike along the stretch: the helper tiles them.
        QTest::newRow("alike columns, wider") << QRect(3, 2, 41, 10) << QRect(4, 0, 4, 10) << QPoint() << false;
        QTest::newRow("alike columns, narrower") << QRect(3, 2, 3, 10) << QRect(4, 0, 4, 10) << QPoint() << false;
        QTest::newRow("alike rows, taller") << QRect(5, 1, 12, 37) << QRect(0, 3, 12, 4) << QPoint() << false;
        QTest::newRow("alike both ways, both") << QRect(0, 0, 50, 30) << QRect(4, 3, 4, 4) << QPoint() << false;
        QTest::newRow("one colour, both") << QRect(2, 3, 50, 30) << QRect(1, 1, 6, 5) << QPoint() << true;
        QTest::newRow("translated painter") << QRect(1, 1, 33, 10) << QRect(4, 0, 4, 10) << QPoint(7, 5) << false;
        // Pieces that are not alike along the stretch: the helper scales as Qt does.
        QTest::newRow("alike rows, wider") << QRect(0, 0, 40, 4) << QRect(0, 3, 12, 4) << QPoint() << false;
        QTest::newRow("alike columns, taller") << QRect(0, 0, 4, 33) << QRect(4, 0, 4, 10) << QPoint() << false;
        QTest::newRow("alike columns, both") << QRect(0, 0, 40, 33) << QRect(4, 0, 4, 10) << QPoint() << false;
        QTest::newRow("nothing alike") << QRect(2, 2, 30, 30) << QRect(0, 0, 4, 3) << QPoint() << false;
        QTest::newRow("not stretched") << QRect(9, 9, 12, 10) << QRect(0, 0, 12, 10) << QPoint() << false;
    }

    void stretchedPieceMatchesScaling()
    {
        QFETCH(QRect, target);
        QFETCH(QRect, source);
        QFETCH(QPoint, painterOffset);
        QFETCH(bool, solid);
        QPixmap pixmap = testImage();
        if (solid)
            pixmap.fill(QColor(200, 120, 40, 150));
        // Twice: the second draw reads what the first one learnt about the piece.
        for (int round = 0; round < 2; ++round)
            QCOMPARE(drawn(pixmap, target, source, true, painterOffset),
                     drawn(pixmap, target, source, false, painterOffset));
    }

    void paletteSlicesMatchScaling_data()
    {
        QTest::addColumn<int>("width");
        QTest::newRow("narrow") << 90;
        QTest::newRow("wide") << 1600;
    }

    void paletteSlicesMatchScaling()
    {
        // The panel background: a three-slice of the palette's categories image.
        QFETCH(int, width);
        const QPixmap &image = RibbonApplication::theApp().ribbonStyle().categories();
        if (!qFuzzyCompare(image.devicePixelRatio(), 1.0))
            QSKIP("the shortcut is for images at their own resolution");
        const QRect target(0, 0, width, 92);
        const QRect sources[] = {QRect(0, 0, 5, 92), QRect(5, 0, 70, 92), QRect(75, 0, 5, 92)};
        const QRect targets[] = {QRect(0, 0, 5, 92), QRect(5, 0, width - 10, 92), QRect(width - 5, 0, 5, 92)};
        QImage viaHelper(target.size(), QImage::Format_ARGB32_Premultiplied);
        viaHelper.fill(Qt::transparent);
        QImage viaQt = viaHelper;
        {
            QPainter painter(&viaHelper);
            for (int i = 0; i < 3; ++i)
                RibbonPaint::drawPart(painter, targets[i], image, sources[i]);
        }
        {
            QPainter painter(&viaQt);
            for (int i = 0; i < 3; ++i)
                painter.drawPixmap(targets[i], image, sources[i]);
        }
        QCOMPARE(viaHelper, viaQt);
    }

    void shownPageTakesUpdates()
    {
        Ribbon ribbon;
        RibbonCategoriesPanelAction *first = ribbon.addTab(QStringLiteral("First"));
        RibbonCategoriesPanelAction *second = ribbon.addTab(QStringLiteral("Second"));
        RibbonCategoriesPanelAction *third = ribbon.addTab(QStringLiteral("Third"));
        ribbon.window->resize(700, 300);
        ribbon.window->show();
        QVERIFY(QTest::qWaitForWindowExposed(ribbon.window.get()));
        RibbonCategoryPanels *panels = ribbon.panels();
        QVERIFY(takesUpdates(panels->currentWidget()));

        // By the tab, by the host through the stack, and by removing the current tab.
        second->setChecked(true);
        QCOMPARE(panels->currentWidget(), panels->panel(second));
        QVERIFY(takesUpdates(panels->currentWidget()));
        panels->setCurrentWidget(panels->panel(third));
        QVERIFY(takesUpdates(panels->currentWidget()));
        first->setChecked(true);
        QVERIFY(takesUpdates(panels->currentWidget()));
        ribbon.bar().removeAction(first);
        QVERIFY(panels->currentWidget());
        QVERIFY(takesUpdates(panels->currentWidget()));

        // And what changes on the page shown is painted.
        third->setChecked(true);
        QTest::qWait(0);
        QWidget *page = panels->currentWidget();
        QVERIFY(takesUpdates(page));
        const QList<QAbstractButton *> buttons = page->findChildren<QAbstractButton *>();
        QVERIFY(!buttons.isEmpty());
        PaintCounter counter;
        buttons.first()->installEventFilter(&counter);
        buttons.first()->update();
        QTRY_VERIFY(counter.paints > 0);

        // A hidden page the host takes out of the stack paints where it goes next.
        QWidget *hidden = panels->panel(second);
        QVERIFY(hidden && hidden != panels->currentWidget());
        panels->removeWidget(hidden);
        QWidget elsewhere;
        hidden->setParent(&elsewhere);
        QVERIFY(takesUpdates(hidden));
    }

    void minimisedPopupShowsItsPage()
    {
        Ribbon ribbon;
        RibbonCategoriesPanelAction *first = ribbon.addTab(QStringLiteral("First"));
        RibbonCategoriesPanelAction *second = ribbon.addTab(QStringLiteral("Second"));
        ribbon.window->resize(700, 300);
        ribbon.window->show();
        QVERIFY(QTest::qWaitForWindowExposed(ribbon.window.get()));
        ribbon.bar().setMinimizeRibbon(true);
        for (RibbonCategoriesPanelAction *tab : {second, first, second}) {
            tab->setChecked(true);
            QTRY_VERIFY(ribbon.panels()->isVisible());
            QCOMPARE(ribbon.panels()->currentWidget(), ribbon.panels()->panel(tab));
            QVERIFY(takesUpdates(ribbon.panels()->currentWidget()));
            ribbon.bar().collapse();
            QTRY_VERIFY(!ribbon.panels()->isVisible());
        }
    }
};

ZEL_TEST_MAIN(tst_FastPaths)
#include "tst_fastpaths.moc"
