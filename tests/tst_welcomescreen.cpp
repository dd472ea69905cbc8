// Welcome screen: recent documents from the host's model, pins, the blank document and
// templates, the pane rectangles and the lifetimes of screen and model.

#include "ZelTest.h"

#include "BackstageListModel.h"
#include "BackstageWelcomeScreen.h"
#include "RibbonApplication.h"
#include "RibbonStyle.h"

#include <QAbstractButton>
#include <QLabel>
#include <QListView>
#include <QSignalSpy>

using zel::BackstageListModel;
using zel::BackstageWelcomeScreen;

class tst_WelcomeScreen : public QObject
{
    Q_OBJECT

private:
    static QListView *listOf(BackstageWelcomeScreen &s)
    {
        return s.findChild<QListView *>(QStringLiteral("welcomeRecentList"));
    }
    // Clicks a row of the recent list, on its pin button when onPin is set.
    static void clickRow(QListView *list, int row, bool onPin = false)
    {
        QRect r = list->visualRect(list->model()->index(row, 0));
        if (onPin)
            r = QRect(r.right() - 20, r.top(), 10, r.height());
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, r.center());
    }
    // Shows the screen with b.doc listed above a.doc.
    static bool showTwoDocs(BackstageWelcomeScreen &screen, BackstageListModel &model)
    {
        model.addItem(QStringLiteral("/docs/a.doc"));
        model.addItem(QStringLiteral("/docs/b.doc"));
        screen.setRecentModel(&model);
        screen.resize(1000, 600);
        screen.show();
        return QTest::qWaitForWindowExposed(&screen);
    }

private slots:
    void choosingRecentDocument();
    void pinTogglesEntry();
    void blankDocumentAndTemplates();
    void emptyHintFollowsModel();
    void paneRectsAndColours();
    void modelDeletedBeforeScreen();
    void screenDeletedBeforeModel();
};

void tst_WelcomeScreen::choosingRecentDocument()
{
    BackstageWelcomeScreen screen;
    BackstageListModel model;
    QVERIFY(showTwoDocs(screen, model));
    QCOMPARE(screen.recentModel(), &model);

    QSignalSpy spy(&screen, SIGNAL(recentDocumentSelected(QString)));
    clickRow(listOf(screen), 1);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.at(0).at(0).toString(), QStringLiteral("/docs/a.doc"));
    // The chosen document moves to the top of the history.
    QCOMPARE(model.data(model.index(0, 0)).toString(), QStringLiteral("/docs/a.doc"));
}

void tst_WelcomeScreen::pinTogglesEntry()
{
    BackstageWelcomeScreen screen;
    BackstageListModel model;
    QVERIFY(showTwoDocs(screen, model));

    QSignalSpy spy(&screen, SIGNAL(recentDocumentSelected(QString)));
    QListView *list = listOf(screen);
    clickRow(list, 1, true);
    QCOMPARE(spy.count(), 0);
    // a.doc is pinned: first row, then the separator, then b.doc.
    QCOMPARE(model.rowCount(), 3);
    QCOMPARE(model.data(model.index(0, 0)).toString(), QStringLiteral("/docs/a.doc"));

    clickRow(list, 1); // the separator reports nothing
    QCOMPARE(spy.count(), 0);

    clickRow(list, 0, true);
    QCOMPARE(model.rowCount(), 2);
    QCOMPARE(model.data(model.index(0, 0)).toString(), QStringLiteral("/docs/b.doc"));
}

void tst_WelcomeScreen::blankDocumentAndTemplates()
{
    BackstageWelcomeScreen screen;
    QSignalSpy blank(&screen, SIGNAL(blankDocumentSelected()));
    QSignalSpy templ(&screen, SIGNAL(templateSelected(QString)));
    screen.addTemplate(QStringLiteral("Letter"), QPixmap());
    screen.addTemplate(QStringLiteral("Report"), QPixmap());
    QCOMPARE(screen.templateCount(), 2);

    auto *blankTile = screen.findChild<QAbstractButton *>(QStringLiteral("welcomeBlankDocument"));
    QVERIFY(blankTile);
    blankTile->click();
    QCOMPARE(blank.count(), 1);
    QCOMPARE(templ.count(), 0);

    for (QAbstractButton *tile : screen.findChildren<QAbstractButton *>()) {
        if (tile->text() == QStringLiteral("Report"))
            tile->click();
    }
    QCOMPARE(templ.count(), 1);
    QCOMPARE(templ.at(0).at(0).toString(), QStringLiteral("Report"));
    QCOMPARE(blank.count(), 1);
}

void tst_WelcomeScreen::emptyHintFollowsModel()
{
    BackstageWelcomeScreen screen;
    screen.show();
    QVERIFY(QTest::qWaitForWindowExposed(&screen));
    auto *hint = screen.findChild<QLabel *>(QStringLiteral("welcomeEmptyHint"));
    QVERIFY(hint);
    QVERIFY(hint->isVisible());

    BackstageListModel model;
    screen.setRecentModel(&model);
    QVERIFY(hint->isVisible());
    model.addItem(QStringLiteral("/docs/a.doc"));
    QVERIFY(!hint->isVisible());
    QVERIFY(listOf(screen)->isVisible());
    model.clearList();
    QVERIFY(hint->isVisible());
    model.addItem(QStringLiteral("/docs/a.doc"));
    screen.setRecentModel(nullptr);
    QVERIFY(hint->isVisible());
}

void tst_WelcomeScreen::paneRectsAndColours()
{
    BackstageWelcomeScreen screen;
    screen.resize(1000, 600);
    screen.show();
    QVERIFY(QTest::qWaitForWindowExposed(&screen));
    const QRect left = screen.leftPaneRect();
    const QRect right = screen.rightPaneRect();
    QVERIFY(left.isValid() && right.isValid());
    QCOMPARE(left.topLeft(), screen.mapToGlobal(QPoint(0, 0)));
    QCOMPARE(right.left(), left.right());
    QCOMPARE(right.bottomRight(), screen.mapToGlobal(QPoint(999, 599)));

    const QImage image = screen.grab().toImage();
    const QColor blue = zel::RibbonApplication::theApp().ribbonStyle().frameBorderColor();
    QCOMPARE(image.pixelColor(left.width() / 2, 590).rgb(), blue.rgb());
    QCOMPARE(image.pixelColor(990, 590).rgb(), QColor(Qt::white).rgb());
}

void tst_WelcomeScreen::modelDeletedBeforeScreen()
{
    BackstageWelcomeScreen screen;
    auto *model = new BackstageListModel;
    model->addItem(QStringLiteral("/docs/a.doc"));
    screen.setRecentModel(model);
    screen.show();
    QVERIFY(QTest::qWaitForWindowExposed(&screen));
    delete model;
    QCOMPARE(screen.recentModel(), nullptr);
    QVERIFY(screen.findChild<QLabel *>(QStringLiteral("welcomeEmptyHint"))->isVisible());
    screen.repaint();
}

void tst_WelcomeScreen::screenDeletedBeforeModel()
{
    BackstageListModel model;
    auto *screen = new BackstageWelcomeScreen;
    screen->setRecentModel(&model);
    delete screen;
    // The model lives on and still notifies without a receiver.
    model.addItem(QStringLiteral("/docs/a.doc"));
    model.clearList();
    QCOMPARE(model.rowCount(), 0);
}

ZEL_TEST_MAIN(tst_WelcomeScreen)
#include "tst_welcomescreen.moc"
