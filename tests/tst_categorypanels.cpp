// Pages per tab, groups folding as the width runs short, and the popup panel of a
// minimised ribbon. Heights follow the DPI: ZEL_TEST_DPI_SENSITIVE

#include "ZelTest.h"

#include "RibbonApplication.h"
#include "RibbonCatSimpleAction.h"
#include "RibbonCategoriesPanelAction.h"
#include "RibbonCategory.h"
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

#include <QMap>
#include <QPointer>

#include <memory>

using namespace zel;

namespace {

struct Fixture
{
    Fixture()
        : window(new RibbonMainWindow)
    {
    }

    RibbonMenuBar &bar() const { return window->ribbonMenuBar(); }
    RibbonCategoryPanels *panels() const { return bar().categoryPanels()->subject(); }

    // A group of n large buttons with one-letter captions: each 42 wide.
    RibbonCategoryAction *group(const QString &caption, int n)
    {
        auto *c = new RibbonCategoryAction(caption, window.get());
        for (int i = 0; i < n; ++i)
            c->addAction(new RibbonCatSimpleAction(QString(QChar(u'A' + i)), RibbonCatSimpleAction::SizeLarge,
                                                   window.get()),
                         -1);
        return c;
    }

    RibbonCategoriesPanelAction *tab(const QString &text, const QList<RibbonCategoryAction *> &groups)
    {
        auto *t = new RibbonCategoriesPanelAction(text, window.get());
        for (RibbonCategoryAction *g : groups)
            t->addCategory(g);
        return t;
    }

    // Shows the window with the ribbon minimised, so that pages open as a popup.
    bool showMinimised()
    {
        window->show();
        if (!QTest::qWaitForWindowExposed(window.get()))
            return false;
        bar().setMinimizeRibbon(true);
        return true;
    }

    std::unique_ptr<RibbonMainWindow> window;
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
    void placementAndSizeHint();
    void foldsWithTheWindow();
    void pagePerTab();
    void groupsFollowTheTab();
    void minimisedPopup();
    void reopenGuard();
    void stripUnderCurrentTab();
};

// Groups A (3 buttons), B (2), C (4) and D (2); B and D free the same width when folded
// (gain g), A frees more and C the most. The page widths are given relative to the
// full width F (all open) or to the folded width M (all collapsed).
namespace {

struct Widths
{
    int full = 0;
    int folded = 0;
    QList<int> gains; // A, B, C, D

    int operator()(const QString &layout) const
    {
        const QMap<QString, int> at = {
            {QStringLiteral("F+1"), full + 1},
            {QStringLiteral("F"), full},
            {QStringLiteral("F-1"), full - 1},
            {QStringLiteral("F-gD"), full - gains.at(3)},
            {QStringLiteral("F-gD-gB"), full - gains.at(3) - gains.at(1)},
            {QStringLiteral("1"), 1},
            {QStringLiteral("M"), folded},
            {QStringLiteral("M+gD"), folded + gains.at(3)},
            {QStringLiteral("M+gD+1"), folded + gains.at(3) + 1},
            {QStringLiteral("M+gD+gB+1"), folded + gains.at(3) + gains.at(1) + 1},
        };
        return at.value(layout, -1);
    }
};

RibbonCategoryPanelLayout *fourGroups(Fixture &f, bool colapsed, Widths &widths)
{
    RibbonCategoriesPanelAction *tab = f.tab(QStringLiteral("Home"),
        {f.group(QStringLiteral("A"), 3), f.group(QStringLiteral("B"), 2), f.group(QStringLiteral("C"), 4),
         f.group(QStringLiteral("D"), 2)});
    f.bar().addAction(tab);
    RibbonCategoryPanelLayout *layout = f.panels()->panel(tab)->panelLayout();
    for (RibbonCategoryWrapper *w : layout->categories()) {
        w->setColapsed(colapsed);
        widths.full += w->sizeHint().width();
        widths.folded += w->minimumSizeHint().width();
        widths.gains << w->sizeHint().width() - w->minimumSizeHint().width();
    }
    return layout;
}

} // namespace

void tst_CategoryPanels::folding_data()
{
    QTest::addColumn<bool>("startFolded");
    QTest::addColumn<QString>("width");
    QTest::addColumn<QString>("collapsed");
    QTest::newRow("room to spare") << false << QStringLiteral("F+1") << QString();
    // Among equal gains the rightmost group folds first.
    QTest::newRow("exactly full") << false << QStringLiteral("F") << QStringLiteral("D");
    QTest::newRow("one pixel short") << false << QStringLiteral("F-1") << QStringLiteral("D");
    QTest::newRow("short by g") << false << QStringLiteral("F-gD") << QStringLiteral("B,D");
    QTest::newRow("short by 2g") << false << QStringLiteral("F-gD-gB") << QStringLiteral("A,B,D");
    QTest::newRow("nothing fits") << false << QStringLiteral("1") << QStringLiteral("A,B,C,D");
    // A group reopens only when its full width leaves room; the rightmost of equals first.
    QTest::newRow("reopen: no room") << true << QStringLiteral("M") << QStringLiteral("A,B,C,D");
    QTest::newRow("reopen: D would fill the page") << true << QStringLiteral("M+gD") << QStringLiteral("A,B,C,D");
    QTest::newRow("reopen: D fits, B would fill it") << true << QStringLiteral("M+gD+1") << QStringLiteral("A,B,C");
    QTest::newRow("reopen: B and D fit") << true << QStringLiteral("M+gD+gB+1") << QStringLiteral("A,C");
    QTest::newRow("reopen: all fit") << true << QStringLiteral("F+1") << QString();
}

void tst_CategoryPanels::folding()
{
    QFETCH(bool, startFolded);
    QFETCH(QString, width);
    QFETCH(QString, collapsed);

    Fixture f;
    Widths widths;
    RibbonCategoryPanelLayout *layout = fourGroups(f, startFolded, widths);
    // The group sizes the table is built on.
    QCOMPARE(widths.gains.at(1), widths.gains.at(3));
    QVERIFY(widths.gains.at(1) < widths.gains.at(0));
    QVERIFY(widths.gains.at(0) < widths.gains.at(2));

    layout->setGeometry(QRect(0, 0, widths(width), scaled(85)));
    QCOMPARE(collapsedNames(*layout), collapsed);
}

void tst_CategoryPanels::placementAndSizeHint()
{
    Fixture f;
    RibbonCategoriesPanelAction *tab = f.tab(QStringLiteral("Home"),
        {f.group(QStringLiteral("A"), 3), f.group(QStringLiteral("B"), 2), f.group(QStringLiteral("C"), 4)});
    f.bar().addAction(tab);
    RibbonCategoryPanelLayout &layout = *f.panels()->panel(tab)->panelLayout();
    const QList<RibbonCategoryWrapper *> wrappers = layout.categories();

    int folded = 0;
    for (RibbonCategoryWrapper *w : wrappers)
        folded += w->minimumSizeHint().width();
    QCOMPARE(layout.sizeHint(), QSize(folded + 2 * 2, scaled(85)));
    QCOMPARE(layout.expandingDirections(), Qt::Orientations(Qt::Horizontal));
    QVERIFY(!layout.hasHeightForWidth());

    // B folded, the others open; placed from x 0 with 2-pixel gaps, not stretched.
    for (RibbonCategoryWrapper *w : wrappers)
        w->setColapsed(w == wrappers.at(1));
    const int width = wrappers.at(0)->sizeHint().width() + wrappers.at(1)->minimumSizeHint().width()
        + wrappers.at(2)->sizeHint().width() + 1;
    layout.setGeometry(QRect(7, 3, width, 200));
    QCOMPARE(collapsedNames(layout), QStringLiteral("B"));
    QCOMPARE(wrappers.at(0)->geometry(), QRect(QPoint(0, 0), wrappers.at(0)->sizeHint()));
    const int x1 = wrappers.at(0)->width() + 2;
    QCOMPARE(wrappers.at(1)->geometry(), QRect(QPoint(x1, 0), wrappers.at(1)->minimumSizeHint()));
    QCOMPARE(wrappers.at(2)->geometry().topLeft(), QPoint(x1 + wrappers.at(1)->width() + 2, 0));
}

void tst_CategoryPanels::foldsWithTheWindow()
{
    Fixture f;
    RibbonCategoriesPanelAction *tab = f.tab(QStringLiteral("Home"),
        {f.group(QStringLiteral("Wide"), 16), f.group(QStringLiteral("Small"), 2)});
    f.bar().addAction(tab);
    f.window->resize(1400, 300);
    f.window->show();
    QVERIFY(QTest::qWaitForWindowExposed(f.window.get()));
    RibbonCategoryPanelLayout &layout = *f.panels()->panel(tab)->panelLayout();
    QTRY_COMPARE(collapsedNames(layout), QString());

    // A page width between "Wide open, Small folded" and "both open".
    const int wide = layout.categories().at(0)->sizeHint().width();
    const int smallFolded = layout.categories().at(1)->minimumSizeHint().width();
    QVERIFY(layout.categories().at(1)->sizeHint().width() > smallFolded + 1);
    QWidget *page = f.panels()->panel(tab);
    const int around = f.window->width() - page->width();
    f.window->resize(wide + smallFolded + 1 + around, 300);
    QTRY_COMPARE(collapsedNames(layout), QStringLiteral("Small"));
    f.window->resize(400, 300);
    QTRY_COMPARE(collapsedNames(layout), QStringLiteral("Wide,Small"));
    f.window->resize(1400, 300);
    QTRY_COMPARE(collapsedNames(layout), QString());

    // The page is never narrower than all its groups folded.
    QVERIFY(f.panels()->panel(tab)->sizeHint().width() >= layout.sizeHint().width());
}

void tst_CategoryPanels::pagePerTab()
{
    Fixture f;
    RibbonCategoriesPanelAction *home = f.tab(QStringLiteral("Home"), {f.group(QStringLiteral("A"), 1)});
    RibbonCategoriesPanelAction *view = f.tab(QStringLiteral("View"), {f.group(QStringLiteral("B"), 1)});
    f.bar().addAction(home);
    view->setChecked(true);
    f.bar().addAction(view);
    RibbonCategoryPanels *panels = f.panels();
    QCOMPARE(panels->count(), 2);
    // A checked tab added while pinned shows its page at once.
    QVERIFY(view->isChecked());
    QVERIFY(!home->isChecked());
    QCOMPARE(panels->currentWidget(), panels->panel(view));
    QCOMPARE(&panels->panel(view)->panelAction(), view);

    home->setChecked(true);
    QCOMPARE(panels->currentWidget(), panels->panel(home));

    QPointer<RibbonCategoryPanel> page = panels->panel(view);
    f.bar().removeAction(view);
    QVERIFY(!page);
    QCOMPARE(panels->count(), 1);
    QVERIFY(!panels->panel(view));
}

void tst_CategoryPanels::groupsFollowTheTab()
{
    Fixture f;
    RibbonCategoryAction *a = f.group(QStringLiteral("A"), 1);
    RibbonCategoryAction *b = f.group(QStringLiteral("B"), 2);
    RibbonCategoriesPanelAction *tab = f.tab(QStringLiteral("Home"), {a});
    f.bar().addAction(tab);
    f.window->show();
    QVERIFY(QTest::qWaitForWindowExposed(f.window.get()));
    RibbonCategoryPanel *page = f.panels()->panel(tab);

    tab->addCategory(b);
    QCOMPARE(page->panelLayout()->categories().size(), 2);
    QVERIFY(page->wrapper(b));
    QCOMPARE(page->panelLayout()->categories().last(), page->wrapper(b));
    QVERIFY(page->wrapper(b)->isVisible());

    QPointer<RibbonCategoryWrapper> wrapperA = page->wrapper(a);
    tab->removeCategory(a);
    QVERIFY(!wrapperA);
    QCOMPARE(page->panelLayout()->categories().size(), 1);

    // A group destroyed while shown takes its wrapper along.
    QPointer<RibbonCategoryWrapper> wrapperB = page->wrapper(b);
    delete b;
    QVERIFY(!wrapperB);
    QVERIFY(page->panelLayout()->categories().isEmpty());
}

void tst_CategoryPanels::minimisedPopup()
{
    Fixture f;
    RibbonCategoriesPanelAction *home = f.tab(QStringLiteral("Home"), {f.group(QStringLiteral("A"), 2)});
    f.bar().addAction(home);
    f.window->setGeometry(50, 40, 600, 300);
    f.window->show();
    QVERIFY(QTest::qWaitForWindowExposed(f.window.get()));
    RibbonCategoryPanelsProxy *proxy = f.bar().categoryPanels();
    RibbonCategoryPanels *panels = proxy->subject();
    QCOMPARE(proxy->sizeHint(), QSize(panels->sizeHint().width(), scaled(92)));

    proxy->setCollapsable(true);
    QVERIFY(panels->isWindow());
    QVERIFY(!panels->isVisible());
    QCOMPARE(proxy->sizeHint(), QSize(0, 0));
    QCOMPARE(proxy->minimumSizeHint(), QSize(0, 0));
    QVERIFY(!home->isChecked());

    home->setChecked(true);
    QVERIFY(panels->isVisible());
    QCOMPARE(panels->windowType(), Qt::Popup);
    QCOMPARE(panels->pos(), f.bar().mapToGlobal(f.bar().rect().bottomLeft()));
    QCOMPARE(panels->width(), proxy->width());

    proxy->collapse();
    QVERIFY(!panels->isVisible());
    // Closing the popup leaves no current tab.
    QVERIFY(!home->isChecked());

    proxy->setCollapsable(false);
    QVERIFY(!panels->isWindow());
    QVERIFY(panels->isVisible());
    QCOMPARE(panels->pos(), QPoint(0, 0));
    QVERIFY(home->isChecked());
    // collapse() does nothing while pinned.
    proxy->collapse();
    QVERIFY(panels->isVisible());
}

void tst_CategoryPanels::reopenGuard()
{
    Fixture f;
    RibbonCategoriesPanelAction *home = f.tab(QStringLiteral("Home"), {f.group(QStringLiteral("A"), 2)});
    RibbonCategoriesPanelAction *view = f.tab(QStringLiteral("View"), {f.group(QStringLiteral("B"), 2)});
    f.bar().addAction(home);
    f.bar().addAction(view);
    QVERIFY(f.showMinimised());
    RibbonCategoryPanels *panels = f.panels();

    // Any key closes the popup and leaves no current tab.
    home->setChecked(true);
    QVERIFY(panels->isVisible());
    QTest::keyClick(panels, Qt::Key_A);
    QVERIFY(!panels->isVisible());
    QVERIFY(!home->isChecked());
    QTest::qWait(120);

    home->setChecked(true);
    QVERIFY(panels->isVisible());
    panels->close();
    QVERIFY(!home->isChecked());

    // The click that closed the popup must not open it again at once...
    home->setChecked(true);
    QVERIFY(!home->isChecked());
    QVERIFY(!panels->isVisible());
    // ...but another tab opens at once.
    view->setChecked(true);
    QVERIFY(panels->isVisible());
    QCOMPARE(panels->currentWidget(), panels->panel(view));
    panels->close();

    // Later the same tab opens again.
    QTest::qWait(120);
    view->setChecked(true);
    QVERIFY(view->isChecked());
    QVERIFY(panels->isVisible());
    panels->close();
}

void tst_CategoryPanels::stripUnderCurrentTab()
{
    Fixture f;
    RibbonCategoriesPanelAction *home = f.tab(QStringLiteral("Home"), {f.group(QStringLiteral("A"), 2)});
    RibbonCategoriesPanelAction *view = f.tab(QStringLiteral("View"), {f.group(QStringLiteral("B"), 2)});
    f.bar().addAction(home);
    f.bar().addAction(view);
    f.window->resize(600, 300);
    f.window->show();
    QVERIFY(QTest::qWaitForWindowExposed(f.window.get()));

    const QColor under = RibbonApplication::theApp().ribbonStyle().categoryColorUnderButton();
    const auto stripAt = [&](RibbonCategoriesPanelAction *tab) {
        RibbonMenuBarButton *button = f.bar().menuBarButton(tab);
        const int x = button->mapTo(&f.bar(), QPoint(0, 0)).x();
        const QImage image = f.panels()->grab().toImage();
        return image.pixelColor(x + button->width() / 2, 0) == under
            && image.pixelColor(x + button->width() / 2, 1) == under
            && image.pixelColor(x + 3, 0) == under && image.pixelColor(x + button->width() - 4, 0) == under;
    };
    QVERIFY(home->isChecked());
    QVERIFY(stripAt(home));
    QVERIFY(!stripAt(view));
    view->setChecked(true);
    QVERIFY(stripAt(view));
    QVERIFY(!stripAt(home));
}

ZEL_TEST_MAIN(tst_CategoryPanels)
#include "tst_categorypanels.moc"
