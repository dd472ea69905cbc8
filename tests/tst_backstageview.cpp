#include "ZelTest.h"

#include "BackstageView.h"
#include "RibbonStyle.h"

#include <QListWidget>
#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>

using namespace zel;

class tst_BackstageView : public QObject
{
    Q_OBJECT

    static QListWidget *listOf(BackstageView &view) { return view.findChild<QListWidget *>(); }
    static bool showView(BackstageView &view)
    {
        view.resize(800, 500);
        view.show();
        return QTest::qWaitForWindowExposed(&view);
    }

private slots:
    void currentEntryAndPanes()
    {
        BackstageView view;
        auto *a = new QWidget;
        auto *b = new QWidget;
        view.addItem(QStringLiteral("Open"), a);
        view.addItem(QStringLiteral("Save"), b);
        QCOMPARE(view.currentPane(), a);
        QSignalSpy spy(&view, SIGNAL(itemClicked(QString)));

        view.setCurrentItem(QStringLiteral("save"));
        view.setCurrentItem(QStringLiteral("Save")); // already current: no second report
        QCOMPARE(view.currentPane(), b);
        QCOMPARE(spy.count(), 1);
        QCOMPARE(spy.at(0).at(0).toString(), QStringLiteral("Save"));
        view.addItem(QStringLiteral("Print"), nullptr); // brings the first entry back
        QCOMPARE(view.currentPane(), a);

        // One pane may serve two entries; the page itself is refused as its own pane.
        view.addItem(QStringLiteral("Recent"), b);
        view.addItem(QStringLiteral("Self"), &view);
        QCOMPARE(view.pane(QStringLiteral("Self")), nullptr);
        view.setCurrentItem(QStringLiteral("Recent"));
        QCOMPARE(view.currentPane(), b);
        view.setCurrentItem(QStringLiteral("nothing"));
        QCOMPARE(listOf(view)->currentItem(), nullptr);
        QCOMPARE(view.currentPane(), nullptr);
    }

    void clicksReportNames()
    {
        BackstageView view;
        auto *a = new QWidget;
        auto *b = new QWidget;
        view.addItem(QStringLiteral("Open"), a);
        view.addItem(QStringLiteral("Save"), b);
        QVERIFY(showView(view));
        QSignalSpy spy(&view, SIGNAL(itemClicked(QString)));
        QListWidget *list = listOf(view);
        const QPoint save = list->visualItemRect(list->item(1)).center();
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, save);
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, save); // current: no report
        QCOMPARE(spy.count(), 1);
        QCOMPARE(spy.at(0).at(0).toString(), QStringLiteral("Save"));
        QVERIFY(b->isVisible() && !a->isVisible());

        auto *back = view.findChild<QPushButton *>();
        QCOMPARE(back->size(), QSize(40, 40));
        back->click();
        QCOMPARE(spy.count(), 2);
        QCOMPARE(spy.at(1).at(0).toString(), QStringLiteral("Back"));
    }

    void lookupIgnoresCase_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("expected"); // index of the pane, -1 for none
        QTest::newRow("lower") << QStringLiteral("save") << 1;
        QTest::newRow("upper") << QStringLiteral("SAVE AS") << 2;
        QTest::newRow("prefix") << QStringLiteral("Sav") << -1;
        QTest::newRow("empty") << QString() << -1;
        QTest::newRow("blanks") << QStringLiteral("   Open") << -1;
    }

    void lookupIgnoresCase()
    {
        QFETCH(QString, name);
        QFETCH(int, expected);
        BackstageView view;
        QWidget *panes[3] = {new QWidget, new QWidget, new QWidget};
        view.addItem(QStringLiteral("Open"), panes[0]);
        view.addItem(QStringLiteral("Save"), panes[1]);
        view.addItem(QStringLiteral("Save As"), panes[2]);
        QCOMPARE(view.pane(name), expected < 0 ? nullptr : panes[expected]);
        view.enableItem(name, false);
        for (int i = 0; i < 3; ++i)
            QCOMPARE(bool(listOf(view)->item(i)->flags() & Qt::ItemIsEnabled), i != expected);
    }

    void hideSelectsFirstEnabledEntry()
    {
        BackstageView view;
        auto *open = new QWidget;
        view.addItem(QStringLiteral("Info"), new QWidget);
        view.addItem(QStringLiteral("New"), new QWidget);
        view.addItem(QStringLiteral("Open"), open);
        view.addItem(QStringLiteral("Save"), new QWidget);
        view.enableItem(QStringLiteral("Info"), false);
        view.enableItem(QStringLiteral("new"), false);
        view.setCurrentItem(QStringLiteral("Save"));
        QVERIFY(showView(view));
        view.hide();
        QCOMPARE(view.currentPane(), open);

        view.show();
        view.enableItem(QStringLiteral("Open"), false);
        view.enableItem(QStringLiteral("Save"), false);
        view.hide();
        QCOMPARE(listOf(view)->currentItem(), nullptr);
        view.show();
        view.enableItem(QStringLiteral("SAVE"), true);
        view.hide();
        QCOMPARE(listOf(view)->currentRow(), 3);
    }

    void separatorAndListHeight()
    {
        BackstageView view;
        auto *a = new QWidget;
        view.addItem(QStringLiteral("Open"), a);
        view.addSeparator();
        view.addItem(QStringLiteral("Exit"), nullptr);
        QListWidget *list = listOf(view);
        QCOMPARE(list->minimumHeight(), 38 * 3);
        QVERIFY(showView(view));
        const QRect row = list->visualItemRect(list->item(1));
        QCOMPARE(row.height(), 16);

        // The line is drawn in the palette's colour across the row's middle.
        const QImage image = list->viewport()->grab().toImage();
        const QColor line = RibbonApplication::theApp().ribbonStyle().backstageWelcomeBluePressedColor();
        QCOMPARE(image.pixelColor(60, row.top() + 8).rgb(), line.rgb());
        QVERIFY(image.pixelColor(60, row.top() + 2).rgb() != line.rgb());

        QSignalSpy spy(&view, SIGNAL(itemClicked(QString)));
        list->setCurrentRow(1);
        QCOMPARE(spy.count(), 1);
        QCOMPARE(spy.at(0).at(0).toString(), QString());
        QCOMPARE(view.currentPane(), nullptr);
        QVERIFY(a->isVisible());
    }

    void paneRectsAndColours()
    {
        BackstageView view;
        view.addItem(QStringLiteral("Open"), new QWidget);
        QVERIFY(showView(view));
        const QRect left = view.leftPaneRect();
        const QRect right = view.rightPaneRect();
        QCOMPARE(left.topLeft(), view.mapToGlobal(QPoint(0, 0)));
        QCOMPARE(left.height(), 500);
        // The right pane starts on the column's last pixel column and ends at the page's edge.
        QCOMPARE(right.topLeft(), QPoint(left.right(), left.top()));
        QCOMPARE(right.bottomRight(), view.mapToGlobal(view.rect().bottomRight()));

        const QImage image = view.grab().toImage();
        const QColor blue = RibbonApplication::theApp().ribbonStyle().frameBorderColor();
        QCOMPARE(image.pixelColor(2, 490).rgb(), blue.rgb());
        QCOMPARE(image.pixelColor(790, 490).rgb(), QColor(Qt::white).rgb());
    }

    void panesAndPageDeletedInEitherOrder()
    {
        QScopedPointer<BackstageView> view(new BackstageView);
        auto *a = new QWidget;
        QPointer<QWidget> b = new QWidget;
        view->addItem(QStringLiteral("Open"), a);
        view->addItem(QStringLiteral("Save"), b);
        view->addItem(QStringLiteral("Again"), a);
        QVERIFY(showView(*view));
        delete a;
        QCOMPARE(view->currentPane(), nullptr);
        QCOMPARE(view->pane(QStringLiteral("Again")), nullptr);
        QCOMPARE(view->pane(QStringLiteral("Save")), b);
        view->setCurrentItem(QStringLiteral("Again"));
        view->setCurrentItem(QStringLiteral("Save"));
        QVERIFY(b->isVisible());
        view.reset(); // the remaining panes belong to the page and go with it
        QVERIFY(b.isNull());
    }
};

ZEL_TEST_MAIN(tst_BackstageView)
#include "tst_backstageview.moc"
