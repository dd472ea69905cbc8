// ZEL_TEST_DPI_SENSITIVE: the group around the gallery grows with the resolution; the
// gallery itself keeps its pixel size.
#include "ZelTest.h"

#include "IRibbonGroupWidget.h"
#include "OfficeListDelegate.h"
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
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPainter>
#include <QScrollBar>
#include <QWindow>

#include <memory>

using namespace zel;

namespace {

using Menu = RibbonCatMenuAction;

const QColor kCheckedFrame(197, 219, 241);
const QColor kHoverFrame(222, 235, 248);

bool highResolution()
{
    return RibbonApplication::theApp().dpiFactor().second > 1.25;
}

// A 56-pixel icon in one flat colour.
QIcon flatIcon(const QColor &colour)
{
    QPixmap pixmap(56, 56);
    pixmap.fill(colour);
    return QIcon(pixmap);
}

QImage grabImage(QWidget *widget)
{
    return widget->grab().toImage().convertToFormat(QImage::Format_RGB32);
}

// A gallery action with count checkable tiles in an exclusive group.
struct Gallery
{
    explicit Gallery(int count, int visible = 4)
        : menu(QStringLiteral("Styles"), Menu::MenuTypeButton, Menu::MenuSizeLarge, Menu::PopupListPreview, nullptr)
    {
        menu.setListPreviewVisibleIconsCount(visible);
        for (int i = 0; i < count; ++i) {
            auto *tile = new RibbonSimpleAction(flatIcon(QColor::fromHsv(i * 30, 200, 200)),
                                                QStringLiteral("Style %1").arg(i), &menu);
            tile->setCheckable(true);
            menu.iconActionGroup()->addAction(tile);
            tiles.append(tile);
        }
    }

    Menu menu;
    QList<RibbonSimpleAction *> tiles;
};

// A window with a line edit (which has the focus) and a gallery.
struct Host
{
    explicit Host(Menu &menu)
    {
        auto *layout = new QHBoxLayout(&window);
        edit = new QLineEdit(&window);
        gallery = new RibbonCatListPreview(menu, &window);
        layout->addWidget(edit);
        layout->addWidget(gallery);
        window.show();
        QApplication::setActiveWindow(&window);
        edit->setFocus();
    }

    bool exposed() { return QTest::qWaitForWindowExposed(&window); }

    QWidget window;
    QLineEdit *edit = nullptr;
    RibbonCatListPreview *gallery = nullptr;
};

QList<QAction *> tileActions(const RibbonCatListPreview &gallery)
{
    QList<QAction *> actions;
    for (int row = 0; row < gallery.count(); ++row)
        actions.append(reinterpret_cast<QAction *>(quintptr(gallery.item(row)->data(Qt::UserRole).toLongLong())));
    return actions;
}

QRect tileRect(const RibbonCatListPreview &gallery, int row)
{
    return gallery.visualItemRect(gallery.item(row));
}

RibbonViewPopup *openPopup()
{
    return qobject_cast<RibbonViewPopup *>(QApplication::activePopupWidget());
}

// The open view popup once the window system has shown it. (The offscreen platform
// activates a window it shows; handled only after the popup closed, that activation
// would take the active window away from the host.)
RibbonViewPopup *shownPopup()
{
    RibbonViewPopup *popup = openPopup();
    if (!popup)
        return nullptr;
    QCoreApplication::processEvents(); // usually enough, and much faster than a wait
    return popup->windowHandle()->isExposed() || QTest::qWaitForWindowExposed(popup) ? popup : nullptr;
}

} // namespace

class tst_ListPreview : public QObject
{
    Q_OBJECT

    int m_topLevels = 0;

private slots:
    void init()
    {
        m_topLevels = QApplication::topLevelWidgets().size();
        // Away from the windows of the tests: a tile under the cursor shows a frame.
        QCursor::setPos(QPoint(790, 590));
    }

    void cleanup()
    {
        if (QWidget *popup = QApplication::activePopupWidget())
            popup->close();
        QTRY_COMPARE(QApplication::topLevelWidgets().size(), m_topLevels);
    }

    void widths_data()
    {
        QTest::addColumn<int>("actions");
        QTest::addColumn<int>("visible");
        QTest::addColumn<int>("width");
        QTest::addColumn<bool>("scrollBar");
        QTest::newRow("10 actions, 4 visible") << 10 << 4 << 258 << true;
        QTest::newRow("10 actions, 12 visible") << 10 << 12 << 721 << false;
        QTest::newRow("as many visible as actions") << 5 << 5 << 301 << false;
        QTest::newRow("one more action than visible") << 5 << 4 << 258 << true;
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
        QCOMPARE(gallery.horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
        QVERIFY(qobject_cast<OfficeScrollBar *>(gallery.verticalScrollBar()));
        QCOMPARE(gallery.verticalScrollBar()->width(), 17);
        QCOMPARE(gallery.popupButton()->size(), QSize(17, 20));

        // Shown, the tiles of the first row fill the width left of the scroll bar exactly.
        gallery.show();
        QVERIFY(QTest::qWaitForWindowExposed(&gallery));
        QCOMPARE(gallery.viewport()->width(), scrollBar ? width - 17 : width);
        const int firstRow = qMin(actions, qMax(visible, 1));
        for (int row = 0; row < firstRow; ++row)
            QCOMPARE(tileRect(gallery, row), QRect(60 * row, 0, 60, 60));
        if (actions > firstRow)
            QCOMPARE(tileRect(gallery, firstRow).top(), 60); // wraps into the next row
    }

    // The category makes a gallery for this popup type only, places it as a tall control
    // and frames it.
    void madeByTheCategory()
    {
        Gallery g(6);
        Menu button(QStringLiteral("Layout"), Menu::MenuTypeButton, Menu::MenuSizeLarge, Menu::PopupView, nullptr);
        RibbonCategoryAction group(QStringLiteral("Styles"), nullptr);
        group.addAction(&g.menu, -1);
        group.addAction(&button, -1);
        QWidget window;
        RibbonCategory category(&window, group);
        window.resize(500, 150);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));

        auto *gallery = qobject_cast<RibbonCatListPreview *>(category.widget(&g.menu));
        QVERIFY(gallery);
        QCOMPARE(gallery->action(), &g.menu);
        QVERIFY(qobject_cast<RibbonCatMenuButton *>(category.widget(&button)));
        QCOMPARE(gallery->parentWidget(), &category);
        // Centred in the usable height between the margins (2 and 15) of a group 85 high
        // at 96 DPI, 128 at 144 DPI.
        QCOMPARE(gallery->geometry(), QRect(3, highResolution() ? 27 : 6, 258, 60));

        const QImage image = grabImage(&category);
        const QColor frame(QStringLiteral("#afafaf"));
        QCOMPARE(image.pixelColor(2, gallery->y() - 1), frame);
        QCOMPARE(image.pixelColor(3 + 258, gallery->y() + 30), frame);
        QCOMPARE(image.pixelColor(100, gallery->y() + 60), frame);
        QVERIFY(image.pixelColor(100, gallery->y() + 61) != frame);

        // Removing the member drops its gallery.
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
            const QListWidgetItem *item = gallery.item(row);
            QVERIFY(item->text().isEmpty());
            QCOMPARE(item->sizeHint(), QSize(60, 60));
            QCOMPARE(item->checkState(), row == 2 ? Qt::Checked : Qt::Unchecked);
            QCOMPARE(item->toolTip(), expected[row]->toolTip());
            // A tile never toggles on its own: the action's state is the check state.
            QVERIFY(!(item->flags() & Qt::ItemIsUserCheckable));
        }

        // Any change of a member rebuilds the tiles, so does its destruction.
        g.tiles[1]->setEnabled(true);
        g.tiles[4]->setEnabled(false);
        expected = {g.tiles[0], g.tiles[1], g.tiles[2], g.tiles[3]};
        QCOMPARE(tileActions(gallery), expected);
        g.tiles[0]->setChecked(true); // exclusive: unchecks 3
        QCOMPARE(gallery.item(0)->checkState(), Qt::Checked);
        QCOMPARE(gallery.item(3)->checkState(), Qt::Unchecked);
        delete g.tiles.takeAt(2);
        expected = {g.tiles[0], g.tiles[1], g.tiles[2]};
        QCOMPARE(tileActions(gallery), expected);

        // The gallery follows its menu action's enabled state and tool tip.
        g.menu.setToolTip(QStringLiteral("Paragraph styles"));
        QCOMPARE(gallery.toolTip(), QStringLiteral("Paragraph styles"));
        g.menu.setEnabled(false);
        QVERIFY(!gallery.isEnabled());
        g.menu.setEnabled(true);
        QVERIFY(gallery.isEnabled());
        RibbonSimpleAction fallback(QStringLiteral("Normal"), nullptr);
        fallback.setToolTip(QStringLiteral("Back to normal text"));
        g.menu.addAction(&fallback, false);
        g.menu.setDefaultAction(&fallback);
        QCOMPARE(gallery.toolTip(), QStringLiteral("Back to normal text"));
        g.menu.removeAction(&fallback);

        // A gallery outliving its action keeps its tiles and opens nothing.
        auto *doomed = new Gallery(2);
        RibbonCatListPreview orphan(doomed->menu, nullptr);
        delete doomed;
        QVERIFY(!orphan.action());
        orphan.show();
        QVERIFY(QTest::qWaitForWindowExposed(&orphan));
        QTest::mouseClick(orphan.popupButton(), Qt::LeftButton);
        QVERIFY(!QApplication::activePopupWidget());
    }

    void checkedTileScrolledIntoView()
    {
        Gallery g(10);
        g.tiles[9]->setChecked(true);
        Host host(g.menu);
        QVERIFY(host.exposed());
        RibbonCatListPreview &gallery = *host.gallery;
        const QRect view = gallery.viewport()->rect();
        QVERIFY(view.contains(tileRect(gallery, 9)));
        QVERIFY(!view.intersects(tileRect(gallery, 0)));
        QCOMPARE(gallery.verticalScrollBar()->value(), 120); // the third row of four tiles

        // Checking another member brings its row back, and the frame follows the check.
        g.tiles[2]->setChecked(true);
        QVERIFY(view.contains(tileRect(gallery, 2)));
        QCOMPARE(gallery.verticalScrollBar()->value(), 0);
        QImage image = grabImage(gallery.viewport());
        for (int inset = 0; inset < 4; ++inset)
            QCOMPARE(image.pixelColor(tileRect(gallery, 2).topLeft() + QPoint(inset, 30)), kCheckedFrame);
        QVERIFY(image.pixelColor(tileRect(gallery, 2).topLeft() + QPoint(4, 30)) != kCheckedFrame);
        QVERIFY(image.pixelColor(tileRect(gallery, 1).topLeft() + QPoint(0, 30)) != kCheckedFrame);

        // The tile under the mouse gets the lighter frame.
        QTest::mouseMove(gallery.viewport(), tileRect(gallery, 1).center());
        QTRY_COMPARE(grabImage(gallery.viewport()).pixelColor(tileRect(gallery, 1).topLeft() + QPoint(1, 30)),
                     kHoverFrame);

        // Disabled: no frames, icons in the disabled mode.
        const QColor enabledIcon = image.pixelColor(tileRect(gallery, 0).center());
        g.menu.setEnabled(false);
        image = grabImage(gallery.viewport());
        QVERIFY(image.pixelColor(tileRect(gallery, 2).topLeft() + QPoint(1, 30)) != kCheckedFrame);
        QVERIFY(image.pixelColor(tileRect(gallery, 1).topLeft() + QPoint(1, 30)) != kHoverFrame);
        QVERIFY(image.pixelColor(tileRect(gallery, 0).center()) != enabledIcon);
    }

    void scrollButtons()
    {
        Gallery g(10);
        Host host(g.menu);
        QVERIFY(host.exposed());
        QScrollBar *bar = host.gallery->verticalScrollBar();
        QCOMPARE(bar->height(), 40);
        QCOMPARE(bar->maximum(), 120);
        const QPoint up(8, 5), down(8, 35);
        QTest::mouseClick(bar, Qt::LeftButton, Qt::NoModifier, down);
        QCOMPARE(bar->value(), 60);
        QTest::mouseClick(bar, Qt::LeftButton, Qt::NoModifier, down);
        QTest::mouseClick(bar, Qt::LeftButton, Qt::NoModifier, down);
        QCOMPARE(bar->value(), 120);
        QTest::mouseClick(bar, Qt::LeftButton, Qt::NoModifier, up);
        QCOMPARE(bar->value(), 60);

        // The half under the mouse lights up, darker while held down; the other stays.
        const QColor idle = RibbonApplication::theApp().ribbonStyle().mainMenuBgColor();
        QTest::mouseMove(bar, down);
        QTRY_COMPARE(grabImage(bar).pixelColor(3, 35), QColor(QStringLiteral("#d5e1f2")));
        QCOMPARE(grabImage(bar).pixelColor(3, 5), idle);
        QTest::mousePress(bar, Qt::LeftButton, Qt::NoModifier, down);
        QVERIFY(static_cast<OfficeScrollBar *>(bar)->isPressed());
        QCOMPARE(grabImage(bar).pixelColor(3, 35), QColor(QStringLiteral("#a3bde2")));
        QTest::mouseRelease(bar, Qt::LeftButton, Qt::NoModifier, down);
        QVERIFY(!static_cast<OfficeScrollBar *>(bar)->isPressed());
    }

    void clickTriggers_data()
    {
        QTest::addColumn<QPoint>("offset"); // within the tile
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
        QTest::mouseClick(host.gallery->viewport(), Qt::LeftButton, Qt::NoModifier,
                          tileRect(*host.gallery, 1).topLeft() + offset);
        QCOMPARE(second.count(), 1);
        QCOMPARE(third.count(), 0);
        QVERIFY(g.tiles[1]->isChecked());
        QCOMPARE(host.gallery->item(1)->checkState(), Qt::Checked);
        QCOMPARE(QApplication::focusWidget(), host.edit); // the gallery takes no focus
    }

    void clicksThatNameNoTile()
    {
        Gallery g(2);
        Host host(g.menu);
        QVERIFY(host.exposed());
        QSignalSpy first(g.tiles[0], &QAction::triggered);
        QSignalSpy second(g.tiles[1], &QAction::triggered);
        QTest::mouseClick(host.gallery->viewport(), Qt::LeftButton, Qt::NoModifier, QPoint(150, 30));
        QVERIFY(QMetaObject::invokeMethod(host.gallery, "onItemClicked", Q_ARG(QListWidgetItem *, nullptr)));
        // A tile whose action has left the group since does nothing either.
        QListWidgetItem stale;
        stale.setData(Qt::UserRole, QVariant::fromValue(qint64(quintptr(&stale))));
        QVERIFY(QMetaObject::invokeMethod(host.gallery, "onItemClicked", Q_ARG(QListWidgetItem *, &stale)));
        QCOMPARE(first.count() + second.count(), 0);
    }

    // A press handed over through the group-widget interface reaches the list's own press
    // handling (it selects the tile); any other event is ignored.
    void handedOverPress()
    {
        Gallery g(3);
        Host host(g.menu);
        QVERIFY(host.exposed());
        IRibbonGroupWidget *group = IRibbonGroupWidget::groupWidget(host.gallery);
        QCOMPARE(group, static_cast<IRibbonGroupWidget *>(host.gallery));
        const QPoint at = tileRect(*host.gallery, 2).center();
        QMouseEvent move(QEvent::MouseMove, at, Qt::NoButton, Qt::NoButton, Qt::NoModifier);
        QEvent fake(QEvent::MouseButtonPress);
        group->processEvents(&move);
        group->processEvents(&fake);
        group->processEvents(nullptr);
        QVERIFY(host.gallery->selectedItems().isEmpty());
        QMouseEvent press(QEvent::MouseButtonPress, at, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        group->processEvents(&press);
        QCOMPARE(host.gallery->selectedItems(), QList<QListWidgetItem *>{host.gallery->item(2)});
        QTest::mouseRelease(host.gallery->viewport(), Qt::LeftButton, Qt::NoModifier, at);
    }

    // The button under the scroll bar opens the full menu over the gallery; the focus comes
    // back when it closes, by Escape or by a chosen tile.
    void fullMenu()
    {
        Gallery g(10);
        auto *top = new RibbonSimpleAction(QStringLiteral("Apply to all"), &g.menu);
        g.menu.addTopAction(top);
        Host host(g.menu);
        QVERIFY(host.exposed());
        QCOMPARE(QApplication::focusWidget(), host.edit);
        RibbonCatListPreview &gallery = *host.gallery;

        QTest::mouseClick(gallery.popupButton(), Qt::LeftButton);
        QPointer<RibbonViewPopup> popup = shownPopup();
        QVERIFY(popup);
        QCOMPARE(popup->pos(), gallery.mapToGlobal(QPoint(-1, -1)));
        QCOMPARE(popup->width(), 259);
        QCOMPARE(popup->buttons().size(), 11); // the top command and every tile
        QTest::keyClick(popup, Qt::Key_Escape);
        QTRY_VERIFY(!popup);
        QTRY_COMPARE(QApplication::focusWidget(), host.edit);

        // A tile chosen in the full menu is triggered, and the focus is back too.
        QSignalSpy seventh(g.tiles[7], &QAction::triggered);
        QTest::mouseClick(gallery.popupButton(), Qt::LeftButton);
        popup = shownPopup();
        QVERIFY(popup);
        RibbonViewButton *tile = popup->buttons().at(8);
        QCOMPARE(tile->action(), g.tiles[7]);
        QTest::mouseClick(tile, Qt::LeftButton, Qt::NoModifier, QPoint(30, 30));
        QCOMPARE(seventh.count(), 1);
        QTRY_VERIFY(!popup);
        QTRY_COMPARE(QApplication::focusWidget(), host.edit);
        // ... and the gallery shows that tile checked, in view.
        QCOMPARE(gallery.item(7)->checkState(), Qt::Checked);
        QVERIFY(gallery.viewport()->rect().contains(tileRect(gallery, 7)));
    }

    // A gallery narrower than the popup's grid does not squeeze the popup.
    void narrowGalleryFullMenu()
    {
        Gallery g(6, 1);
        Host host(g.menu);
        QVERIFY(host.exposed());
        QCOMPARE(host.gallery->width(), 78);
        QTest::mouseClick(host.gallery->popupButton(), Qt::LeftButton);
        QTRY_VERIFY(openPopup());
        RibbonViewPopup *popup = openPopup();
        QCOMPARE(popup->width(), 4 * 64 + 2);
        for (RibbonViewButton *tile : popup->buttons())
            QCOMPARE(tile->size(), QSize(64, 56));
        QTest::keyClick(popup, Qt::Key_Escape);
        QTRY_VERIFY(!openPopup());
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
            QTest::mouseClick(host.gallery->popupButton(), Qt::LeftButton);
            RibbonViewPopup *popup = shownPopup();
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
