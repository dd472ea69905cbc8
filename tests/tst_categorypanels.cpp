// Pages per tab, groups folding as the width runs short, and the popup panel of a
// minimised ribbon. Heights follow the DPI: ZEL_TEST_DPI_SENSITIVE

#include "ZelTest.h"

#include "RibbonApplication.h"
#include "RibbonCatSimpleAction.h"
#include "RibbonCategoriesPanelAction.h"
#include "RibbonCategoryAction.h"
#include "RibbonCategoryPanel.h"
#include "RibbonCategoryPanelLayout.h"
#include "RibbonCategoryPanels.h"
#include "RibbonCategoryPanelsProxy.h"
#include "RibbonCategoryWrapper.h"
#include "RibbonMainWindow.h"
#include "RibbonMenuBar.h"
#include "RibbonMenuBarButton.h"
#include "RibbonScale_p.h"
#include "RibbonStyle.h"

#include <QPointer>
#include <QTimer>

#include <memory>

using namespace zel;

namespace {

struct Fixture
{
    RibbonMenuBar &bar() const { return window->ribbonMenuBar(); }
    RibbonCategoryPanels *panels() const { return bar().categoryPanels()->subject(); }

    // A group of n large buttons with one-letter captions.
    RibbonCategoryAction *group(const QString &caption, int n)
    {
        auto *c = new RibbonCategoryAction(caption, window.get());
        const auto large = RibbonCatSimpleAction::SizeLarge;
        for (int i = 0; i < n; ++i)
            c->addAction(new RibbonCatSimpleAction(QString(QChar(u'A' + i)), large, window.get()), -1);
        return c;
    }

    // A tab holding groups, added to the bar.
    RibbonCategoriesPanelAction *addTab(const QString &text, const QList<RibbonCategoryAction *> &groups)
    {
        auto *t = new RibbonCategoriesPanelAction(text, window.get());
        for (RibbonCategoryAction *g : groups)
            t->addCategory(g);
        bar().addAction(t);
        return t;
    }

    // Home and View, one group of two buttons each, in a shown window.
    bool showHomeAndView()
    {
        home = addTab(QStringLiteral("Home"), {group(QStringLiteral("A"), 2)});
        view = addTab(QStringLiteral("View"), {group(QStringLiteral("B"), 2)});
        window->resize(600, 300);
        window->show();
        return QTest::qWaitForWindowExposed(window.get());
    }

    std::unique_ptr<RibbonMainWindow> window{new RibbonMainWindow};
    RibbonCategoriesPanelAction *home = nullptr;
    RibbonCategoriesPanelAction *view = nullptr;
};

QString collapsedNames(const RibbonCategoryPanelLayout &layout)
{
    QStringList names;
    for (RibbonCategoryWrapper *w : layout.categories()) {
        if (w->isColapsed())
            names << w->categoryAction().text();
    }
    return names.join(QLatin1Char(','));
}

} // namespace

class tst_CategoryPanels : public QObject
{
    Q_OBJECT

private slots:
    void folding_data();
    void folding();
    void pinnedPages();
    void minimisedPopup();
};

void tst_CategoryPanels::folding_data()
{
    // Groups A (3 buttons), B (2), C (4) and D (2): B and D free the same width gB = gD when
    // folded, A more and C the most. The page is as wide as all groups open (F), all folded
    // (M) or nothing, plus or minus the gains of D and B and a few pixels.
    QTest::addColumn<bool>("startFolded");
    QTest::addColumn<int>("from"); // 0: F, 1: M, 2: nothing
    QTest::addColumn<int>("gD");
    QTest::addColumn<int>("gB");
    QTest::addColumn<int>("extra");
    QTest::addColumn<QString>("collapsed");
    QTest::newRow("room to spare") << false << 0 << 0 << 0 << 1 << QString();
    // Among equal gains the rightmost group folds first.
    QTest::newRow("exactly full") << false << 0 << 0 << 0 << 0 << QStringLiteral("D");
    QTest::newRow("one pixel short") << false << 0 << 0 << 0 << -1 << QStringLiteral("D");
    QTest::newRow("short by gD") << false << 0 << -1 << 0 << 0 << QStringLiteral("B,D");
    QTest::newRow("short by gD + gB") << false << 0 << -1 << -1 << 0 << QStringLiteral("A,B,D");
    QTest::newRow("nothing fits") << false << 2 << 0 << 0 << 1 << QStringLiteral("A,B,C,D");
    // A group reopens only when its full width leaves room; the rightmost of equals first.
    QTest::newRow("reopen: no room") << true << 1 << 0 << 0 << 0 << QStringLiteral("A,B,C,D");
    QTest::newRow("reopen: D would fill the page") << true << 1 << 1 << 0 << 0 << QStringLiteral("A,B,C,D");
    QTest::newRow("reopen: D fits, B would fill it") << true << 1 << 1 << 0 << 1 << QStringLiteral("A,B,C");
    QTest::newRow("reopen: B and D fit") << true << 1 << 1 << 1 << 1 << QStringLiteral("A,C");
    QTest::newRow("reopen: all fit") << true << 0 << 0 << 0 << 1 << QString();
}

void tst_CategoryPanels::folding()
{
    QFETCH(bool, startFolded);
    QFETCH(int, from);
    QFETCH(int, gD);
    QFETCH(int, gB);
    QFETCH(int, extra);
    QFETCH(QString, collapsed);

    Fixture f;
    RibbonCategoriesPanelAction *tab = f.addTab(QStringLiteral("Home"),
        {f.group(QStringLiteral("A"), 3), f.group(QStringLiteral("B"), 2), f.group(QStringLiteral("C"), 4),
         f.group(QStringLiteral("D"), 2)});
    RibbonCategoryPanelLayout &layout = *f.panels()->panel(tab)->panelLayout();
    int widths[3] = {0, 0, 0};
    QList<int> gains;
    for (RibbonCategoryWrapper *w : layout.categories()) {
        w->setColapsed(startFolded);
        widths[0] += w->sizeHint().width();
        widths[1] += w->minimumSizeHint().width();
        gains << w->sizeHint().width() - w->minimumSizeHint().width();
    }
    // The group sizes the table is built on.
    QVERIFY(gains.at(1) == gains.at(3) && gains.at(1) < gains.at(0) && gains.at(0) < gains.at(2));
    QCOMPARE(layout.sizeHint(), QSize(widths[1] + 3 * 2, scaled(85))); // all folded, 2-pixel gaps
    // The page is never narrower than all its groups folded.
    QVERIFY(f.panels()->panel(tab)->sizeHint().width() >= layout.sizeHint().width());

    layout.setGeometry(QRect(7, 3, widths[from] + gD * gains.at(3) + gB * gains.at(1) + extra, 200));
    QCOMPARE(collapsedNames(layout), collapsed);
    // Placed from x 0 with 2-pixel gaps, at their hinted sizes: not stretched.
    int x = 0;
    for (RibbonCategoryWrapper *w : layout.categories()) {
        QCOMPARE(w->geometry(), QRect(QPoint(x, 0), w->isColapsed() ? w->minimumSizeHint() : w->sizeHint()));
        x += w->width() + 2;
    }
}

void tst_CategoryPanels::pinnedPages()
{
    Fixture f;
    QVERIFY(f.showHomeAndView());

    // The strip under the current tab is painted in the page's top row.
    const QColor under = RibbonApplication::theApp().ribbonStyle().categoryColorUnderButton();
    const auto stripAt = [&](RibbonCategoriesPanelAction *tab) {
        RibbonMenuBarButton *button = f.bar().menuBarButton(tab);
        const int x = button->mapTo(&f.bar(), QPoint(0, 0)).x();
        const QImage image = f.panels()->grab().toImage();
        return image.pixelColor(x + button->width() / 2, 0) == under
            && image.pixelColor(x + button->width() / 2, 1) == under
            && image.pixelColor(x + 3, 0) == under && image.pixelColor(x + button->width() - 4, 0) == under;
    };
    QVERIFY(stripAt(f.home) && !stripAt(f.view));
    f.view->setChecked(true);
    QVERIFY(stripAt(f.view) && !stripAt(f.home));

    // Groups follow the tab while its page is shown.
    RibbonCategoryPanel *page = f.panels()->panel(f.view);
    QCOMPARE(&page->panelAction(), f.view);
    RibbonCategoryAction *b = f.view->categories().first();
    RibbonCategoryAction *c = f.group(QStringLiteral("C"), 2);
    f.view->addCategory(c);
    QCOMPARE(page->panelLayout()->categories().last(), page->wrapper(c));
    QVERIFY(page->wrapper(c)->isVisible());
    QPointer<RibbonCategoryWrapper> wrapperB = page->wrapper(b);
    f.view->removeCategory(b);
    QVERIFY(!wrapperB && !page->wrapper(b));
    f.view->removeCategory(b); // no longer there: nothing happens
    QCOMPARE(page->panelLayout()->categories().size(), 1);
    // A group destroyed while shown takes its wrapper along.
    QPointer<RibbonCategoryWrapper> wrapperC = page->wrapper(c);
    delete c;
    QVERIFY(!wrapperC);
    QVERIFY(page->panelLayout()->categories().isEmpty());
}

void tst_CategoryPanels::minimisedPopup()
{
    Fixture f;
    QVERIFY(f.showHomeAndView());
    RibbonCategoryPanelsProxy *proxy = f.bar().categoryPanels();
    RibbonCategoryPanels *panels = proxy->subject();
    QCOMPARE(proxy->sizeHint(), QSize(panels->sizeHint().width(), scaled(92)));
    // The guard against reopening runs for 100 ms. Lengthened here, so that a loaded
    // machine cannot outlast it, and cut short where the test lets it run out.
    auto *reopenGuard = proxy->findChild<QTimer *>(QStringLiteral("reopenGuard"));
    QVERIFY(reopenGuard);
    QCOMPARE(reopenGuard->interval(), 100);
    const int longGuard = 60 * 60 * 1000;
    reopenGuard->setInterval(longGuard);
    const auto guardRunsOut = [reopenGuard, longGuard] {
        reopenGuard->setInterval(0);
        const bool ranOut = QTest::qWaitFor([reopenGuard] { return !reopenGuard->isActive(); });
        reopenGuard->setInterval(longGuard);
        return ranOut;
    };

    proxy->setCollapsable(true);
    QVERIFY(panels->isWindow());
    QVERIFY(!panels->isVisible());
    QCOMPARE(proxy->sizeHint(), QSize(0, 0));
    QCOMPARE(proxy->minimumSizeHint(), QSize(0, 0));
    QVERIFY(!f.home->isChecked());

    f.home->setChecked(true);
    QVERIFY(panels->isVisible());
    QCOMPARE(panels->windowType(), Qt::Popup);
    QCOMPARE(panels->pos(), f.bar().mapToGlobal(f.bar().rect().bottomLeft()));
    QCOMPARE(panels->width(), proxy->width());
    // Closing the popup, by collapse() or by any key, leaves no current tab.
    proxy->collapse();
    QVERIFY(!panels->isVisible());
    QVERIFY(!f.home->isChecked());
    QVERIFY(guardRunsOut());
    f.home->setChecked(true);
    QTest::keyClick(panels, Qt::Key_A);
    QVERIFY(!panels->isVisible());
    QVERIFY(!f.home->isChecked());
    // The click that closed the popup must not open it again at once...
    f.home->setChecked(true);
    QVERIFY(!f.home->isChecked());
    QVERIFY(!panels->isVisible());
    // ...but another tab opens at once, and later the same tab opens again.
    f.view->setChecked(true);
    QVERIFY(panels->isVisible());
    QCOMPARE(panels->currentWidget(), panels->panel(f.view));
    panels->close();
    QVERIFY(guardRunsOut());
    f.view->setChecked(true);
    QVERIFY(f.view->isChecked() && panels->isVisible());

    proxy->setCollapsable(false);
    QVERIFY(!panels->isWindow());
    QVERIFY(panels->isVisible());
    QCOMPARE(panels->pos(), QPoint(0, 0));
    QVERIFY(f.view->isChecked());
    proxy->collapse(); // does nothing while pinned
    QVERIFY(panels->isVisible());
}

ZEL_TEST_MAIN(tst_CategoryPanels)
#include "tst_categorypanels.moc"
