// ZEL_TEST_DPI_SENSITIVE: the group around the gallery grows with the resolution; the
// gallery itself keeps its pixel size.
#include "ZelTest.h"

#include "IRibbonGroupWidget.h"
#include "OfficePopupButton.h"
#include "OfficeScrollBar.h"
#include "RibbonCatListPreview.h"
#include "RibbonCatMenuAction.h"
#include "RibbonCatMenuButton.h"
#include "RibbonCategory.h"
#include "RibbonCategoryAction.h"
#include "RibbonSimpleAction.h"
#include "RibbonStyle.h"
#include "RibbonViewButton.h"
#include "RibbonViewPopup.h"

#include <QActionGroup>
#include <QCursor>
#include <QScrollBar>

using namespace zel;

namespace {

using Menu = RibbonCatMenuAction;

const QColor kCheckedFrame(197, 219, 241);
const QColor kHoverFrame(222, 235, 248);

QImage grabImage(QWidget *widget)
{
    return widget->grab().toImage().convertToFormat(QImage::Format_RGB32);
}

// A gallery command with count checkable tiles in an exclusive group.
struct Gallery
{
    explicit Gallery(int count, int visible = 4)
        : menu(QStringLiteral("Styles"), Menu::MenuTypeButton, Menu::MenuSizeLarge, Menu::PopupListPreview, nullptr)
    {
        menu.setListPreviewVisibleIconsCount(visible);
        for (int i = 0; i < count; ++i) {
            QPixmap icon(56, 56);
            icon.fill(QColor::fromHsv(i * 30, 200, 200));
            auto *tile = new RibbonSimpleAction(QIcon(icon), QStringLiteral("Style %1").arg(i), &menu);
            tile->setCheckable(true);
            menu.iconActionGroup()->addAction(tile);
            tiles.append(tile);
        }
    }

    Menu menu;
    QList<RibbonSimpleAction *> tiles;
};

// A window with a line edit (which has the focus) and a gallery.
struct Host : ZelControlHost<RibbonCatListPreview>
{
    using ZelControlHost::ZelControlHost;

    QRect tile(int row) const { return button->visualItemRect(button->item(row)); }

    // Opens the full menu with the button under the scroll bar.
    RibbonViewPopup *openFullMenu() const
    {
        QTest::mouseClick(button->popupButton(), Qt::LeftButton);
        auto *popup = qobject_cast<RibbonViewPopup *>(QApplication::activePopupWidget());
        return zelPopupShown(popup) ? popup : nullptr;
    }
};

QList<QAction *> tileActions(const RibbonCatListPreview &gallery)
{
    QList<QAction *> actions;
    for (int row = 0; row < gallery.count(); ++row)
        actions.append(reinterpret_cast<QAction *>(quintptr(gallery.item(row)->data(Qt::UserRole).toLongLong())));
    return actions;
}

} // namespace

class tst_ListPreview : public QObject
{
    Q_OBJECT

    int m_widgets = 0;

private slots:
    void init()
    {
        m_widgets = QApplication::allWidgets().size();
        // Away from the test windows: a tile under the cursor shows a frame.
        QCursor::setPos(QPoint(790, 590));
    }

    void cleanup() { QTRY_COMPARE(zelWidgetsLeft(), m_widgets); }

    void widths_data()
    {
        QTest::addColumn<int>("actions");
        QTest::addColumn<int>("visible");
        QTest::addColumn<int>("width");
        QTest::addColumn<bool>("scrollBar");
        QTest::newRow("10 actions, 4 visible") << 10 << 4 << 258 << true;
        QTest::newRow("10 actions, 12 visible") << 10 << 12 << 721 << false;
        QTest::newRow("as many visible as actions") << 5 << 5 << 301 << false;
        QTest::newRow("0 visible counts as 1") << 3 << 0 << 78 << true;
        QTest::newRow("negative visible counts as 1") << 3 << -2 << 78 << true;
        QTest::newRow("empty group") << 0 << 4 << 241 << false;
    }

    void widths()
    {
        QFETCH(int, actions);
        QFETCH(int, visible);
        QFETCH(int, width);
        QFETCH(bool, scrollBar);

        Gallery g(actions, visible);
        RibbonCatListPreview gallery(g.menu, nullptr);
        QCOMPARE(gallery.size(), QSize(width, 60));
        QCOMPARE(gallery.minimumSize(), gallery.maximumSize());
        QVERIFY(!gallery.sizeHint().isValid());
        QCOMPARE(gallery.verticalScrollBarPolicy(), scrollBar ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);

        // Shown, the first row of tiles exactly fills the width left of the 17-pixel bar.
        gallery.show();
        QVERIFY(QTest::qWaitForWindowExposed(&gallery));
        QCOMPARE(gallery.viewport()->width(), scrollBar ? width - 17 : width);
        if (scrollBar)
            QCOMPARE(gallery.popupButton()->geometry(), QRect(0, 40, 17, 20));
        const int firstRow = qMin(actions, qMax(visible, 1));
        for (int row = 0; row < firstRow; ++row)
            QCOMPARE(gallery.visualItemRect(gallery.item(row)), QRect(60 * row, 0, 60, 60));
        if (actions > firstRow)
            QCOMPARE(gallery.visualItemRect(gallery.item(firstRow)).top(), 60);
    }

    // The category makes a gallery for this popup type only, centres it as a tall control
    // and frames it.
    void madeByTheCategory()
    {
        Gallery g(6);
        Menu view(QStringLiteral("Layout"), Menu::MenuTypeButton, Menu::MenuSizeLarge, Menu::PopupView, nullptr);
        RibbonCategoryAction group(QStringLiteral("Styles"), nullptr);
        group.addAction(&g.menu, -1);
        group.addAction(&view, -1);
        QWidget window;
        RibbonCategory category(&window, group);
        window.resize(500, 150);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));

        auto *gallery = qobject_cast<RibbonCatListPreview *>(category.widget(&g.menu));
        QVERIFY(gallery);
        QVERIFY(qobject_cast<RibbonCatMenuButton *>(category.widget(&view)));
        // Between the margins (2 and 15) of a group 85 high at 96 DPI, 128 at 144 DPI.
        const bool high = RibbonApplication::theApp().dpiFactor().second > 1.25;
        QCOMPARE(gallery->geometry(), QRect(3, high ? 27 : 6, 258, 60));

        const QImage image = grabImage(&category);
        const QColor frame(QStringLiteral("#afafaf"));
        QCOMPARE(image.pixelColor(2, gallery->y() - 1), frame);
        QCOMPARE(image.pixelColor(3 + 258, gallery->y() + 30), frame);
        QCOMPARE(image.pixelColor(100, gallery->y() + 60), frame);

        QPointer<RibbonCatListPreview> guard(gallery);
        group.removeAction(&g.menu);
        QVERIFY(!guard);
    }

    void filling()
    {
        Gallery g(5);
        g.tiles[1]->setEnabled(false);
        g.tiles[3]->setChecked(true);
        RibbonCatListPreview gallery(g.menu, nullptr);
        QList<QAction *> expected{g.tiles[0], g.tiles[2], g.tiles[3], g.tiles[4]};
        QCOMPARE(tileActions(gallery), expected);
        for (int row = 0; row < gallery.count(); ++row) {
            QCOMPARE(gallery.item(row)->checkState(), row == 2 ? Qt::Checked : Qt::Unchecked);
            // A tile never toggles on its own: the action's state is the check state.
            QVERIFY(!(gallery.item(row)->flags() & Qt::ItemIsUserCheckable));
        }

        // Any change of a member rebuilds the tiles, so does its destruction.
        g.tiles[1]->setEnabled(true);
        g.tiles[4]->setEnabled(false);
        g.tiles[0]->setChecked(true); // exclusive: unchecks the fourth
        expected = {g.tiles[0], g.tiles[1], g.tiles[2], g.tiles[3]};
        QCOMPARE(tileActions(gallery), expected);
        QCOMPARE(gallery.item(0)->checkState(), Qt::Checked);
        QCOMPARE(gallery.item(3)->checkState(), Qt::Unchecked);
        delete g.tiles.takeAt(2);
        expected = {g.tiles[0], g.tiles[1], g.tiles[2]};
        QCOMPARE(tileActions(gallery), expected);

        // The gallery follows its command's enabled state and tool tip.
        g.menu.setToolTip(QStringLiteral("Paragraph styles"));
        g.menu.setEnabled(false);
        QCOMPARE(gallery.toolTip(), QStringLiteral("Paragraph styles"));
        QVERIFY(!gallery.isEnabled());

        // A gallery outliving its command (and its tiles' actions) is empty and opens nothing.
        auto *doomed = new Gallery(2);
        RibbonCatListPreview orphan(doomed->menu, nullptr);
        delete doomed;
        QVERIFY(!orphan.action());
        QCOMPARE(orphan.count(), 0);
        orphan.show();
        QVERIFY(QTest::qWaitForWindowExposed(&orphan));
        QTest::mouseClick(orphan.popupButton(), Qt::LeftButton);
        QVERIFY(!QApplication::activePopupWidget());
    }

    void checkedTileInViewAndFramed()
    {
        Gallery g(10);
        g.tiles[9]->setChecked(true);
        Host host(g.menu);
        QVERIFY(host.exposed());
        RibbonCatListPreview &gallery = *host.button;
        const QRect view = gallery.viewport()->rect();
        QVERIFY(view.contains(host.tile(9)));
        QCOMPARE(gallery.verticalScrollBar()->value(), 120); // the third row of four tiles

        // Checking another member brings its row back, with the darker four-pixel frame.
        g.tiles[2]->setChecked(true);
        QVERIFY(view.contains(host.tile(2)));
        QImage image = grabImage(gallery.viewport());
        for (int inset = 0; inset < 4; ++inset)
            QCOMPARE(image.pixelColor(host.tile(2).topLeft() + QPoint(inset, 30)), kCheckedFrame);
        QVERIFY(image.pixelColor(host.tile(2).topLeft() + QPoint(4, 30)) != kCheckedFrame);
        QVERIFY(image.pixelColor(host.tile(1).topLeft() + QPoint(0, 30)) != kCheckedFrame);

        // The tile under the mouse gets the lighter frame.
        QTest::mouseMove(gallery.viewport(), host.tile(1).center());
        QTRY_COMPARE(grabImage(gallery.viewport()).pixelColor(host.tile(1).topLeft() + QPoint(1, 30)), kHoverFrame);

        // Disabled: no frames, icons in the disabled mode.
        const QColor enabledIcon = image.pixelColor(host.tile(0).center());
        g.menu.setEnabled(false);
        image = grabImage(gallery.viewport());
        QVERIFY(image.pixelColor(host.tile(2).topLeft() + QPoint(1, 30)) != kCheckedFrame);
        QVERIFY(image.pixelColor(host.tile(1).topLeft() + QPoint(1, 30)) != kHoverFrame);
        QVERIFY(image.pixelColor(host.tile(0).center()) != enabledIcon);
    }

    void scrollButtons()
    {
        Gallery g(10);
        Host host(g.menu);
        QVERIFY(host.exposed());
        auto *bar = qobject_cast<OfficeScrollBar *>(host.button->verticalScrollBar());
        QVERIFY(bar);
        const QPoint up(8, 5), down(8, 35);
        QTest::mouseClick(bar, Qt::LeftButton, Qt::NoModifier, down);
        QCOMPARE(bar->value(), 60); // a row
        QTest::mouseClick(bar, Qt::LeftButton, Qt::NoModifier, down);
        QTest::mouseClick(bar, Qt::LeftButton, Qt::NoModifier, down);
        QCOMPARE(bar->value(), 120);
        QTest::mouseClick(bar, Qt::LeftButton, Qt::NoModifier, up);
        QCOMPARE(bar->value(), 60);

        // The half under the mouse lights up, darker while held down; the other stays.
        QTest::mouseMove(bar, down);
        QTRY_COMPARE(grabImage(bar).pixelColor(3, 35), QColor(QStringLiteral("#d5e1f2")));
        QCOMPARE(grabImage(bar).pixelColor(3, 5), RibbonApplication::theApp().ribbonStyle().mainMenuBgColor());
        QTest::mousePress(bar, Qt::LeftButton, Qt::NoModifier, down);
        QVERIFY(bar->isPressed());
        QCOMPARE(grabImage(bar).pixelColor(3, 35), QColor(QStringLiteral("#a3bde2")));
        QTest::mouseRelease(bar, Qt::LeftButton, Qt::NoModifier, down);
        QVERIFY(!bar->isPressed());
    }

    void clickTriggers_data()
    {
        QTest::addColumn<QPoint>("offset"); // within the second tile
        QTest::newRow("centre") << QPoint(30, 30);
        QTest::newRow("top left corner") << QPoint(1, 1);
        QTest::newRow("bottom right corner") << QPoint(58, 58);
    }

    void clickTriggers()
    {
        QFETCH(QPoint, offset);
        Gallery g(6);
        Host host(g.menu);
        QVERIFY(host.exposed());
        QSignalSpy second(g.tiles[1], &QAction::triggered);
        QSignalSpy third(g.tiles[2], &QAction::triggered);
        QTest::mouseClick(host.button->viewport(), Qt::LeftButton, Qt::NoModifier, host.tile(1).topLeft() + offset);
        QCOMPARE(second.count(), 1);
        QCOMPARE(third.count(), 0);
        QCOMPARE(host.button->item(1)->checkState(), Qt::Checked);
        QCOMPARE(QApplication::focusWidget(), host.edit); // the gallery takes no focus

        // Clicks that name no tile, or a tile whose action has left the group, do nothing.
        QVERIFY(QMetaObject::invokeMethod(host.button, "onItemClicked", Q_ARG(QListWidgetItem *, nullptr)));
        QListWidgetItem stale;
        stale.setData(Qt::UserRole, QVariant::fromValue(qint64(quintptr(&stale))));
        QVERIFY(QMetaObject::invokeMethod(host.button, "onItemClicked", Q_ARG(QListWidgetItem *, &stale)));
        QCOMPARE(second.count() + third.count(), 1);
    }

    // A press handed over through the group-widget interface reaches the list's own press
    // handling (it selects the tile); any other event is ignored.
    void handedOverPress()
    {
        Gallery g(3);
        Host host(g.menu);
        QVERIFY(host.exposed());
        IRibbonGroupWidget *group = IRibbonGroupWidget::groupWidget(host.button);
        QCOMPARE(group, static_cast<IRibbonGroupWidget *>(host.button));
        const QPoint at = host.tile(2).center();
        QMouseEvent move(QEvent::MouseMove, at, Qt::NoButton, Qt::NoButton, Qt::NoModifier);
        QEvent fake(QEvent::MouseButtonPress);
        for (QEvent *event : {static_cast<QEvent *>(&move), &fake, static_cast<QEvent *>(nullptr)})
            group->processEvents(event);
        QVERIFY(host.button->selectedItems().isEmpty());
        QMouseEvent press(QEvent::MouseButtonPress, at, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        group->processEvents(&press);
        QCOMPARE(host.button->selectedItems(), QList<QListWidgetItem *>{host.button->item(2)});
        QTest::mouseRelease(host.button->viewport(), Qt::LeftButton, Qt::NoModifier, at);
    }

    // The button under the scroll bar opens the full menu over the gallery; the focus comes
    // back when it closes, by Escape or by a chosen tile.
    void fullMenu()
    {
        Gallery g(10);
        g.menu.addTopAction(new RibbonSimpleAction(QStringLiteral("Apply to all"), &g.menu));
        Host host(g.menu);
        QVERIFY(host.exposed());
        QPointer<RibbonViewPopup> popup = host.openFullMenu();
        QVERIFY(popup);
        QCOMPARE(popup->pos(), host.button->mapToGlobal(QPoint(-1, -1)));
        QCOMPARE(popup->width(), 259);
        QCOMPARE(popup->buttons().size(), 11); // the top command and every tile
        QTest::keyClick(popup, Qt::Key_Escape);
        QTRY_VERIFY(!popup);
        QTRY_COMPARE(QApplication::focusWidget(), host.edit);

        QSignalSpy eighth(g.tiles[7], &QAction::triggered);
        popup = host.openFullMenu();
        QVERIFY(popup);
        RibbonViewButton *tile = popup->buttons().at(8);
        QCOMPARE(tile->action(), g.tiles[7]);
        QTest::mouseClick(tile, Qt::LeftButton);
        QCOMPARE(eighth.count(), 1);
        QTRY_VERIFY(!popup);
        QTRY_COMPARE(QApplication::focusWidget(), host.edit);
        QVERIFY(host.button->viewport()->rect().contains(host.tile(7))); // now checked, in view

        // A gallery narrower than the popup's grid does not squeeze the popup.
        Gallery narrow(6, 1);
        Host small(narrow.menu);
        QVERIFY(small.exposed());
        popup = small.openFullMenu();
        QVERIFY(popup);
        QCOMPARE(popup->width(), 4 * 64 + 2);
        popup->close();
    }

    void openCloseLeaksNothing()
    {
        Gallery g(8);
        g.menu.addTopAction(new RibbonSimpleAction(QStringLiteral("Top"), &g.menu));
        Host host(g.menu);
        QVERIFY(host.exposed());
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        const int widgets = QApplication::allWidgets().size();
        for (int i = 0; i < 1000; ++i) {
            RibbonViewPopup *popup = host.openFullMenu();
            QVERIFY(popup);
            popup->close();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        }
        QCOMPARE(QApplication::allWidgets().size(), widgets);
        QCOMPARE(QApplication::focusWidget(), host.edit);
    }
};

ZEL_TEST_MAIN(tst_ListPreview)
#include "tst_listpreview.moc"
