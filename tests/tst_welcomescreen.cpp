#include "ZelTest.h"

#include "BackstageListModel.h"
#include "BackstageWelcomeScreen.h"
#include "RibbonStyle.h"

#include <QAbstractButton>
#include <QLabel>
#include <QListView>
#include <QSignalSpy>

using namespace zel;

class tst_WelcomeScreen : public QObject
{
    Q_OBJECT

    static QString top(const BackstageListModel &m) { return m.data(m.index(0, 0)).toString(); }

private slots:
    void recentListClicks()
    {
        BackstageListModel model;
        QScopedPointer<BackstageWelcomeScreen> screen(new BackstageWelcomeScreen);
        model.addItem(QStringLiteral("/docs/a.doc"));
        model.addItem(QStringLiteral("/docs/b.doc"));
        screen->setRecentModel(&model);
        screen->resize(1000, 600);
        screen->show();
        QVERIFY(QTest::qWaitForWindowExposed(screen.data()));
        auto *list = screen->findChild<QListView *>(QStringLiteral("welcomeRecentList"));
        QVERIFY(list);
        const auto click = [list](int row, bool onPin) {
            const QRect r = list->visualRect(list->model()->index(row, 0));
            const QPoint pin(r.right() - 15, r.center().y());
            QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, onPin ? pin : r.center());
        };
        QSignalSpy spy(screen.data(), SIGNAL(recentDocumentSelected(QString)));

        // A pin click toggles the pin and opens nothing: a.doc, separator, b.doc.
        click(1, true);
        QCOMPARE(model.rowCount(), 3);
        QCOMPARE(top(model), QStringLiteral("/docs/a.doc"));
        click(1, false); // the separator reports nothing
        click(0, true);
        QCOMPARE(spy.count(), 0);
        QCOMPARE(model.rowCount(), 2);
        QCOMPARE(top(model), QStringLiteral("/docs/b.doc"));

        // Choosing a document reports it and moves it to the top of the history.
        click(1, false);
        QCOMPARE(spy.count(), 1);
        QCOMPARE(spy.at(0).at(0).toString(), QStringLiteral("/docs/a.doc"));
        QCOMPARE(top(model), QStringLiteral("/docs/a.doc"));

        // The model outlives the screen and must not notify a dead receiver.
        screen.reset();
        model.addItem(QStringLiteral("/docs/c.doc"));
        QCOMPARE(top(model), QStringLiteral("/docs/c.doc"));
    }

    void blankDocumentAndTemplates()
    {
        BackstageWelcomeScreen screen;
        QSignalSpy blank(&screen, SIGNAL(blankDocumentSelected()));
        QSignalSpy templ(&screen, SIGNAL(templateSelected(QString)));
        screen.addTemplate(QStringLiteral("Letter"), QPixmap());
        screen.addTemplate(QStringLiteral("Report"), QPixmap());
        QCOMPARE(screen.templateCount(), 2);

        screen.findChild<QAbstractButton *>(QStringLiteral("welcomeBlankDocument"))->click();
        for (QAbstractButton *tile : screen.findChildren<QAbstractButton *>()) {
            if (tile->text() == QStringLiteral("Report"))
                tile->click();
        }
        QCOMPARE(blank.count(), 1);
        QCOMPARE(templ.count(), 1);
        QCOMPARE(templ.at(0).at(0).toString(), QStringLiteral("Report"));
    }

    void panesAndEmptyHint()
    {
        BackstageWelcomeScreen screen;
        screen.resize(1000, 600);
        screen.show();
        QVERIFY(QTest::qWaitForWindowExposed(&screen));
        const QRect left = screen.leftPaneRect();
        const QRect right = screen.rightPaneRect();
        QCOMPARE(left.topLeft(), screen.mapToGlobal(QPoint(0, 0)));
        QCOMPARE(right.left(), left.right());
        QCOMPARE(right.bottomRight(), screen.mapToGlobal(QPoint(999, 599)));
        const QImage image = screen.grab().toImage();
        const QColor blue = RibbonApplication::theApp().ribbonStyle().frameBorderColor();
        QCOMPARE(image.pixelColor(left.width() / 2, 590).rgb(), blue.rgb());
        QCOMPARE(image.pixelColor(990, 590).rgb(), QColor(Qt::white).rgb());

        auto *hint = screen.findChild<QLabel *>(QStringLiteral("welcomeEmptyHint"));
        QVERIFY(hint && hint->isVisible());
        auto *model = new BackstageListModel;
        screen.setRecentModel(model);
        model->addItem(QStringLiteral("/docs/a.doc"));
        QVERIFY(!hint->isVisible());
        model->clearList();
        QVERIFY(hint->isVisible());
        model->addItem(QStringLiteral("/docs/a.doc"));
        screen.setRecentModel(nullptr);
        QVERIFY(hint->isVisible());
        screen.setRecentModel(model);
        QVERIFY(!hint->isVisible());
        delete model; // must not leave a dangling pointer behind
        QCOMPARE(screen.recentModel(), nullptr);
        QVERIFY(hint->isVisible());
        screen.repaint();
    }
};

ZEL_TEST_MAIN(tst_WelcomeScreen)
#include "tst_welcomescreen.moc"
