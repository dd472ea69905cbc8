// Backstage page: entries, panes, lookup by name, separators, hiding, list height and
// the lifetimes of panes and page.

#include "ZelTest.h"

#include "BackstageView.h"
#include "RibbonApplication.h"
#include "RibbonStyle.h"

#include <QListWidget>
#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>

using zel::BackstageView;

class tst_BackstageView : public QObject
{
    Q_OBJECT

private:
    static QListWidget *listOf(BackstageView &view) { return view.findChild<QListWidget *>(); }
    // Adds "Open" and "Save" with fresh panes, returned in that order.
    static QPair<QWidget *, QWidget *> addOpenSave(BackstageView &view)
    {
        QPair<QWidget *, QWidget *> panes(new QWidget, new QWidget);
        view.addItem(QStringLiteral("Open"), panes.first);
        view.addItem(QStringLiteral("Save"), panes.second);
        return panes;
    }

private slots:
    void firstEntryCurrentAfterAdditions();
    void choosingEntryShowsPaneAndReportsName();
    void backButtonReportsBack();
    void lookupIgnoresCase_data();
    void lookupIgnoresCase();
    void enableItem();
    void setCurrentItem();
    void separatorRow();
    void hideSelectsFirstEnabledEntry();
    void listHeight_data();
    void listHeight();
    void paneRectsAndColours();
    void paneDeletedBeforeView();
    void viewDeletedBeforePane();
    void samePaneTwice();
};

void tst_BackstageView::firstEntryCurrentAfterAdditions()
{
    BackstageView view;
    const auto [a, b] = addOpenSave(view);
    QCOMPARE(listOf(view)->currentRow(), 0);
    QCOMPARE(view.currentPane(), a);
    QCOMPARE(a->parentWidget(), &view);
    QCOMPARE(b->parentWidget(), &view);

    // A later addition brings the first entry back.
    listOf(view)->setCurrentRow(1);
    QCOMPARE(view.currentPane(), b);
    view.addItem(QStringLiteral("Print"), nullptr);
    QCOMPARE(listOf(view)->currentRow(), 0);
    QCOMPARE(view.currentPane(), a);
}

void tst_BackstageView::choosingEntryShowsPaneAndReportsName()
{
    BackstageView view;
    const auto [a, b] = addOpenSave(view);
    view.resize(800, 500);
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    QVERIFY(a->isVisible());

    QSignalSpy spy(&view, SIGNAL(itemClicked(QString)));
    QListWidget *list = listOf(view);
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                      list->visualItemRect(list->item(1)).center());
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.at(0).at(0).toString(), QStringLiteral("Save"));
    QCOMPARE(view.currentPane(), b);
    QVERIFY(b->isVisible());
    QVERIFY(!a->isVisible());

    // Choosing the current entry again changes nothing and reports nothing.
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                      list->visualItemRect(list->item(1)).center());
    QCOMPARE(spy.count(), 1);
}

void tst_BackstageView::backButtonReportsBack()
{
    BackstageView view;
    view.addItem(QStringLiteral("Open"), new QWidget);
    QSignalSpy spy(&view, SIGNAL(itemClicked(QString)));
    auto *back = view.findChild<QPushButton *>();
    QVERIFY(back);
    QCOMPARE(back->size(), QSize(40, 40));
    back->click();
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.at(0).at(0).toString(), QStringLiteral("Back"));
    QCOMPARE(listOf(view)->currentRow(), 0);
}

void tst_BackstageView::lookupIgnoresCase_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("expected"); // index of the pane, -1 for none
    QTest::newRow("exact") << QStringLiteral("Save") << 1;
    QTest::newRow("lower") << QStringLiteral("save") << 1;
    QTest::newRow("upper") << QStringLiteral("SAVE AS") << 2;
    QTest::newRow("prefix only") << QStringLiteral("Sav") << -1;
    QTest::newRow("unknown") << QStringLiteral("Print") << -1;
    QTest::newRow("empty") << QString() << -1;
    QTest::newRow("with blanks") << QStringLiteral("   Open") << -1;
}

void tst_BackstageView::lookupIgnoresCase()
{
    QFETCH(QString, name);
    QFETCH(int, expected);
    BackstageView view;
    QWidget *panes[3] = {new QWidget, new QWidget, new QWidget};
    view.addItem(QStringLiteral("Open"), panes[0]);
    view.addItem(QStringLiteral("Save"), panes[1]);
    view.addItem(QStringLiteral("Save As"), panes[2]);
    QCOMPARE(view.pane(name), expected < 0 ? nullptr : panes[expected]);
}

void tst_BackstageView::enableItem()
{
    BackstageView view;
    view.addItem(QStringLiteral("Open"), nullptr);
    view.addItem(QStringLiteral("Save"), nullptr);
    QListWidget *list = listOf(view);

    view.enableItem(QStringLiteral("save"), false);
    QVERIFY(!(list->item(1)->flags() & Qt::ItemIsEnabled));
    QVERIFY(list->item(0)->flags() & Qt::ItemIsEnabled);
    view.enableItem(QStringLiteral("SAVE"), true);
    QVERIFY(list->item(1)->flags() & Qt::ItemIsEnabled);
    QVERIFY(list->item(1)->flags() & Qt::ItemIsSelectable);

    view.enableItem(QStringLiteral("Unknown"), false);
    QVERIFY((list->item(0)->flags() & list->item(1)->flags()) & Qt::ItemIsEnabled);
}

void tst_BackstageView::setCurrentItem()
{
    BackstageView view;
    const auto [a, b] = addOpenSave(view);
    QSignalSpy spy(&view, SIGNAL(itemClicked(QString)));

    view.setCurrentItem(QStringLiteral("save"));
    QCOMPARE(view.currentPane(), b);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.at(0).at(0).toString(), QStringLiteral("Save"));

    view.setCurrentItem(QStringLiteral("Save"));
    QCOMPARE(spy.count(), 1);

    view.setCurrentItem(QStringLiteral("nothing"));
    QCOMPARE(listOf(view)->currentItem(), nullptr);
    QCOMPARE(view.currentPane(), nullptr);
    QCOMPARE(spy.count(), 1);
}

void tst_BackstageView::separatorRow()
{
    BackstageView view;
    auto *a = new QWidget;
    view.addItem(QStringLiteral("Open"), a);
    view.addSeparator();
    view.addItem(QStringLiteral("Exit"), nullptr);
    view.resize(800, 500);
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));

    QListWidget *list = listOf(view);
    QCOMPARE(list->count(), 3);
    QCOMPARE(list->visualItemRect(list->item(1)).height(), 16);
    QVERIFY(list->visualItemRect(list->item(0)).height() > 16);

    // The line is drawn in the palette's colour across the row's middle.
    const QRect row = list->visualItemRect(list->item(1));
    const QImage image = list->viewport()->grab().toImage();
    const QColor line = zel::RibbonApplication::theApp().ribbonStyle().backstageWelcomeBluePressedColor();
    QCOMPARE(image.pixelColor(60, row.top() + 8).rgb(), line.rgb());
    QVERIFY(image.pixelColor(60, row.top() + 2).rgb() != line.rgb());

    QSignalSpy spy(&view, SIGNAL(itemClicked(QString)));
    list->setCurrentRow(1);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.at(0).at(0).toString(), QString());
    QCOMPARE(view.currentPane(), nullptr);
    QVERIFY(a->isVisible());
}

void tst_BackstageView::hideSelectsFirstEnabledEntry()
{
    BackstageView view;
    view.addItem(QStringLiteral("Info"), new QWidget);
    view.addItem(QStringLiteral("New"), new QWidget);
    auto *open = new QWidget;
    view.addItem(QStringLiteral("Open"), open);
    view.addItem(QStringLiteral("Save"), new QWidget);
    view.enableItem(QStringLiteral("Info"), false);
    view.enableItem(QStringLiteral("New"), false);
    view.setCurrentItem(QStringLiteral("Save"));
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));

    view.hide();
    QCOMPARE(listOf(view)->currentRow(), 2);
    QCOMPARE(view.currentPane(), open);

    // Nothing enabled: no entry is current after hiding.
    view.show();
    view.enableItem(QStringLiteral("Open"), false);
    view.enableItem(QStringLiteral("Save"), false);
    view.hide();
    QCOMPARE(listOf(view)->currentItem(), nullptr);
}

void tst_BackstageView::listHeight_data()
{
    QTest::addColumn<int>("entries");
    QTest::addColumn<int>("minimumHeight"); // entries * 38 at 96 DPI
    QTest::newRow("one") << 1 << 38;
    QTest::newRow("five") << 5 << 190;
    QTest::newRow("eight") << 8 << 304;
}

void tst_BackstageView::listHeight()
{
    QFETCH(int, entries);
    QFETCH(int, minimumHeight);
    if (zel::RibbonApplication::theApp().dpiFactor().second != 1.0)
        QSKIP("The expected heights are those of a 96-DPI screen");
    BackstageView view;
    for (int i = 0; i < entries; ++i)
        view.addItem(QStringLiteral("Entry %1").arg(i), nullptr);
    QCOMPARE(listOf(view)->minimumHeight(), minimumHeight);
}

void tst_BackstageView::paneRectsAndColours()
{
    BackstageView view;
    view.addItem(QStringLiteral("Open"), new QWidget);
    view.resize(900, 600);
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));

    const QRect left = view.leftPaneRect();
    const QRect right = view.rightPaneRect();
    QVERIFY(left.isValid() && right.isValid());
    QCOMPARE(left.topLeft(), view.mapToGlobal(QPoint(0, 0)));
    QCOMPARE(left.height(), 600);
    QCOMPARE(right.top(), left.top());
    // The right pane starts on the column's last pixel column and ends at the page's edge.
    QCOMPARE(right.left(), left.right());
    QCOMPARE(right.bottomRight(), view.mapToGlobal(view.rect().bottomRight()));
    QCOMPARE(left.width() + right.width() - 1, 900);

    const QImage image = view.grab().toImage();
    const QColor blue = zel::RibbonApplication::theApp().ribbonStyle().frameBorderColor();
    QCOMPARE(image.pixelColor(2, 590).rgb(), blue.rgb());
    QCOMPARE(image.pixelColor(890, 590).rgb(), QColor(Qt::white).rgb());
}

void tst_BackstageView::paneDeletedBeforeView()
{
    BackstageView view;
    const auto [a, b] = addOpenSave(view);
    view.addItem(QStringLiteral("Again"), a);
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));

    delete a;
    QCOMPARE(view.currentPane(), nullptr);
    QCOMPARE(view.pane(QStringLiteral("Open")), nullptr);
    QCOMPARE(view.pane(QStringLiteral("Again")), nullptr);
    QCOMPARE(view.pane(QStringLiteral("Save")), b);

    QSignalSpy spy(&view, SIGNAL(itemClicked(QString)));
    view.setCurrentItem(QStringLiteral("Again"));
    QCOMPARE(spy.count(), 1);
    view.setCurrentItem(QStringLiteral("Save"));
    QVERIFY(b->isVisible());
}

void tst_BackstageView::viewDeletedBeforePane()
{
    auto *view = new BackstageView;
    QPointer<QWidget> a = new QWidget;
    QPointer<QWidget> b = new QWidget;
    view->addItem(QStringLiteral("Open"), a);
    view->addItem(QStringLiteral("Save"), b);
    view->show();
    QVERIFY(QTest::qWaitForWindowExposed(view));
    // Panes belong to the page: they go with it.
    delete view;
    QVERIFY(a.isNull());
    QVERIFY(b.isNull());
}

void tst_BackstageView::samePaneTwice()
{
    BackstageView view;
    auto *a = new QWidget;
    view.addItem(QStringLiteral("Open"), a);
    view.addItem(QStringLiteral("Recent"), a);
    view.addItem(QStringLiteral("Self"), &view);
    QCOMPARE(view.pane(QStringLiteral("Recent")), a);
    QCOMPARE(view.pane(QStringLiteral("Self")), nullptr);
    view.setCurrentItem(QStringLiteral("Recent"));
    QCOMPARE(view.currentPane(), a);
}

ZEL_TEST_MAIN(tst_BackstageView)
#include "tst_backstageview.moc"
