// ZEL_TEST_DPI_SENSITIVE: the opening button's height scales; the cells do not.
#include "ZelTest.h"

#include "RibbonCatMenuAction.h"
#include "RibbonCatMenuButton.h"
#include "RibbonCatMenuPalettePopup.h"
#include "RibbonCatMenuPalettePopupSizer.h"
#include "RibbonSimpleAction.h"

#include <QScreen>
#include <QScrollBar>

#include <memory>
#include <vector>

using namespace zel;

namespace {

using Menu = RibbonCatMenuAction;

QIcon swatchIcon(const QColor &color)
{
    QPixmap pixmap(48, 48);
    pixmap.fill(color);
    return QIcon(pixmap);
}

// A palette menu with n items named "Item i".
struct Palette
{
    Palette(Menu::eMenuSize size, int n)
        : menu(QStringLiteral("Symbols"), Menu::MenuTypeButton, size, Menu::PopupPalette, nullptr)
    {
        for (int i = 0; i < n; ++i) {
            items.emplace_back(new RibbonSimpleAction(swatchIcon(QColor::fromHsv(i * 17 % 360, 200, 200)),
                                                      QStringLiteral("Item %1").arg(i), nullptr));
            menu.addAction(items.back().get(), false);
        }
    }

    RibbonSimpleAction *item(int i) const { return items.at(size_t(i)).get(); }

    std::vector<std::unique_ptr<RibbonSimpleAction>> items;
    Menu menu;
};

// A window with an anchor widget (standing for the opening button) at a global place.
struct Anchor
{
    explicit Anchor(const QPoint &globalPos)
        : window(nullptr, Qt::FramelessWindowHint)
    {
        button = new QWidget(&window);
        button->setGeometry(0, 0, 40, 22);
        window.setGeometry(QRect(globalPos, QSize(40, 22)));
        window.show();
    }

    bool exposed() { return QTest::qWaitForWindowExposed(&window); }

    // A palette of menu opened from the anchor, shown to the end; null when it is not.
    RibbonCatMenuPalettePopup *open(Menu &menu)
    {
        auto *popup = new RibbonCatMenuPalettePopup(menu, button);
        return QTest::qWaitForWindowExposed(popup) ? popup : nullptr;
    }

    QWidget window;
    QWidget *button = nullptr;
};

RibbonCatMenuPalettePopup *openPopup()
{
    return qobject_cast<RibbonCatMenuPalettePopup *>(QApplication::activePopupWidget());
}

// Mouse events for the grip carry the global position the grip reads.
void sendMouse(QWidget *widget, QEvent::Type type, const QPoint &global, Qt::MouseButtons buttons)
{
    const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(type, widget->mapFromGlobal(global), global, button, buttons, Qt::NoModifier);
    QApplication::sendEvent(widget, &event);
}

// The centre of the cell of visible index k.
QPoint cellCentre(const RibbonCatMenuPalettePopup &popup, int k, int cs)
{
    const QRect area = popup.itemArea();
    const int cols = popup.numColumns();
    return area.topLeft() + QPoint(k % cols * cs + cs / 2, k / cols * cs + cs / 2);
}

} // namespace

class tst_PalettePopup : public QObject
{
    Q_OBJECT

    int m_widgets = 0;

private slots:
    void init() { m_widgets = QApplication::allWidgets().size(); }

    void cleanup() { QTRY_COMPARE(zelWidgetsLeft(), m_widgets); }

    void sizes_data()
    {
        QTest::addColumn<int>("size");
        QTest::addColumn<int>("items");
        QTest::addColumn<QSize>("hint96");
        QTest::addColumn<QSize>("minimum96");
        QTest::addColumn<QSize>("hint144");
        QTest::addColumn<QSize>("minimum144");
        QTest::addColumn<int>("columns");
        QTest::addColumn<int>("rows");

        // The style's scroll bar asks for 14 x 54 pixels at 96 DPI and 21 x 81 at 144.
        QTest::newRow("large, 20") << int(Menu::MenuSizeLarge) << 20 << QSize(468, 183) << QSize(468, 71)
                                   << QSize(475, 183) << QSize(475, 96) << 8 << 3;
        QTest::newRow("large, 24") << int(Menu::MenuSizeLarge) << 24 << QSize(468, 183) << QSize(468, 71)
                                   << QSize(475, 183) << QSize(475, 96) << 8 << 3;
        QTest::newRow("large, 25") << int(Menu::MenuSizeLarge) << 25 << QSize(468, 239) << QSize(468, 71)
                                   << QSize(475, 239) << QSize(475, 96) << 8 << 4;
        QTest::newRow("medium, 20") << int(Menu::MenuSizeMedium) << 20 << QSize(356, 239) << QSize(356, 71)
                                    << QSize(363, 239) << QSize(363, 96) << 6 << 4;
        QTest::newRow("small, 50") << int(Menu::MenuSizeSmall) << 50 << QSize(260, 115) << QSize(260, 69)
                                   << QSize(267, 115) << QSize(267, 96) << 12 << 5;
    }

    // Cells of 56 pixels (20 for a small menu), 8, 6 or 12 of them a row beside the scroll
    // bar, 15 pixels of frame and grip bar; at least as tall as one row and the scroll bar.
    // All items fit, so the scroll bar is off.
    void sizes()
    {
        QFETCH(int, size);
        QFETCH(int, items);
        QFETCH(QSize, hint96);
        QFETCH(QSize, minimum96);
        QFETCH(QSize, hint144);
        QFETCH(QSize, minimum144);
        QFETCH(int, columns);
        QFETCH(int, rows);

        Palette palette(Menu::eMenuSize(size), items);
        RibbonCatMenuPalettePopup popup(palette.menu, nullptr);
        const bool high = QApplication::primaryScreen()->logicalDotsPerInchY() > 120;
        QCOMPARE(popup.scrollBar()->sizeHint(), high ? QSize(21, 81) : QSize(14, 54));
        QCOMPARE(popup.sizeHint(), high ? hint144 : hint96);
        QCOMPARE(popup.minimumSizeHint(), high ? minimum144 : minimum96);
        QCOMPARE(popup.size(), popup.sizeHint());
        QCOMPARE(popup.numColumns(), columns);
        QCOMPARE(popup.numRows(), rows);
        QVERIFY(!popup.scrollBar()->isEnabled());
        QCOMPARE(popup.scrollBar()->maximum(), 0);
        QCOMPARE(popup.gripSizerCorner(), Qt::BottomRightCorner);
    }

    // Shrunk to two rows, the 20 items of a large palette need a scroll bar of range 0 to 1;
    // scrolled by one, the cells show items 8 to 19.
    void scrollRange()
    {
        Palette palette(Menu::MenuSizeLarge, 20);
        RibbonCatMenuPalettePopup popup(palette.menu, nullptr);
        QVERIFY(QTest::qWaitForWindowExposed(&popup));
        popup.resize(popup.width(), 2 * 56 + 15);
        QCOMPARE(popup.numRows(), 2);
        QScrollBar *bar = popup.scrollBar();
        QVERIFY(bar->isEnabled());
        QCOMPARE(bar->minimum(), 0);
        QCOMPARE(bar->maximum(), 1);
        QCOMPARE(popup.itemAt(cellCentre(popup, 0, 56)), palette.item(0));
        // The scroll bar column and the border are no cells.
        const QRect area = popup.itemArea();
        QCOMPARE(popup.itemAt(QPoint(area.right(), area.top() + 5)), palette.item(7));
        QCOMPARE(popup.itemAt(QPoint(area.right() + 1, area.top() + 5)), nullptr);
        QCOMPARE(popup.itemAt(QPoint(area.left() - 1, area.top() + 5)), nullptr);

        bar->setValue(1);
        QCOMPARE(popup.firstIndex(), 8);
        QCOMPARE(popup.itemAt(cellCentre(popup, 0, 56)), palette.item(8));
        QCOMPARE(popup.itemAt(cellCentre(popup, 11, 56)), palette.item(19));
        QCOMPARE(popup.itemAt(cellCentre(popup, 12, 56)), nullptr);

        // Grown back, every row shows again and the scroll bar goes off.
        popup.resize(popup.sizeHint());
        QVERIFY(!bar->isEnabled());
        QCOMPARE(popup.firstIndex(), 0);
        QCOMPARE(popup.itemAt(cellCentre(popup, 8, 56)), palette.item(8));

        // Items arriving while the popup is open extend the range.
        popup.resize(popup.width(), 2 * 56 + 15);
        RibbonSimpleAction more(QStringLiteral("More"), nullptr);
        palette.menu.addAction(&more, false);
        QCOMPARE(bar->maximum(), 1);
        for (int i = 0; i < 4; ++i)
            palette.menu.addAction(new RibbonSimpleAction(QStringLiteral("Extra"), &more), false);
        QCOMPARE(bar->maximum(), 2);
        for (RibbonSimpleAction *extra : more.findChildren<RibbonSimpleAction *>())
            palette.menu.removeAction(extra);
        palette.menu.removeAction(&more);
    }

    void placement_data()
    {
        QTest::addColumn<QPoint>("anchorPos");
        QTest::addColumn<bool>("upward");
        QTest::newRow("room below") << QPoint(100, 50) << false;
        QTest::newRow("at the bottom of the screen") << QPoint(100, 500) << true;
        QTest::newRow("at the right edge") << QPoint(700, 50) << false;
    }

    // Below the anchor, overlapping it by a pixel and 2 pixels to its left (at the right
    // edge, ending at the available area's right edge); above it when there is no room
    // below, with the grip and its bar at the top and the scroll bar 11 pixels from the top.
    void placement()
    {
        QFETCH(QPoint, anchorPos);
        QFETCH(bool, upward);

        Palette palette(Menu::MenuSizeMedium, 12);
        Anchor anchor(anchorPos);
        QVERIFY(anchor.exposed());
        RibbonCatMenuPalettePopup *popup = anchor.open(palette.menu);
        QVERIFY(popup);
        const QRect button(anchor.button->mapToGlobal(QPoint(0, 0)), anchor.button->size());
        const QRect geometry = popup->geometry();
        const int w = geometry.width();
        const int h = geometry.height();
        if (anchorPos.x() > 600)
            QCOMPARE(geometry.x() + w, anchor.button->screen()->availableGeometry().right());
        else
            QCOMPARE(geometry.x(), button.x() - 2);
        QCOMPARE(popup->gripSizerCorner(), upward ? Qt::TopRightCorner : Qt::BottomRightCorner);
        auto *grip = popup->findChild<RibbonCatMenuPalettePopupSizer *>();
        QCOMPARE(grip->geometry(), QRect(w - 10, upward ? 1 : h - 9, 9, 8));
        const int sbWidth = popup->scrollBar()->sizeHint().width();
        QCOMPARE(popup->scrollBar()->geometry(), QRect(w - 3 - sbWidth, upward ? 11 : 3, sbWidth, h - 14));
        if (upward) {
            QCOMPARE(geometry.y() + h, button.y() + 1);
            QCOMPARE(popup->itemArea(), QRect(3, 12, w - 6 - sbWidth, h - 15));
        } else {
            QCOMPARE(geometry.y(), button.y() + button.height() - 1);
            QCOMPARE(popup->itemArea(), QRect(3, 3, w - 6 - sbWidth, h - 15));
        }
        popup->close();
    }

    // A palette taller than the screen opens as tall as the larger room allows, whole rows,
    // and scrolls to the rest.
    void longPaletteFitsTheScreen()
    {
        Palette palette(Menu::MenuSizeLarge, 200);
        Anchor anchor(QPoint(100, 100));
        QVERIFY(anchor.exposed());
        RibbonCatMenuPalettePopup *popup = anchor.open(palette.menu);
        QVERIFY(popup);
        // 600 - 122 pixels below the anchor: 8 rows of 56 and the frame.
        QCOMPARE(popup->height(), 8 * 56 + 15);
        QCOMPARE(popup->numRows(), 8);
        QVERIFY(popup->scrollBar()->isEnabled());
        QCOMPARE(popup->scrollBar()->maximum(), 25 - 8);
        popup->close();
    }

    void gripBound_data()
    {
        QTest::addColumn<QPoint>("anchorPos");
        QTest::newRow("grip at the bottom right") << QPoint(100, 50);
        QTest::newRow("grip at the top right") << QPoint(100, 500);
    }

    // The grip follows the mouse from its corner and stops at the minimum size; the edge
    // opposite the grip stays where it was.
    void gripBound()
    {
        QFETCH(QPoint, anchorPos);

        Palette palette(Menu::MenuSizeMedium, 30);
        Anchor anchor(anchorPos);
        QVERIFY(anchor.exposed());
        RibbonCatMenuPalettePopup *popup = anchor.open(palette.menu);
        QVERIFY(popup);
        auto *grip = popup->findChild<RibbonCatMenuPalettePopupSizer *>();
        const bool top = grip->corner() == Qt::TopRightCorner;
        QCOMPARE(top, anchorPos.y() > 300);
        const QRect start = popup->geometry();
        const QSize minimum = popup->minimumSizeHint();
        const int rows = popup->numRows();
        const QPoint press = grip->mapToGlobal(QPoint(4, 4));

        // A step of one row away from the grip's corner grows the popup by a row.
        sendMouse(grip, QEvent::MouseButtonPress, press, Qt::LeftButton);
        const QPoint grow = press + QPoint(10, top ? -56 : 56);
        sendMouse(grip, QEvent::MouseMove, grow, Qt::LeftButton);
        QCOMPARE(popup->size(), start.size() + QSize(10, 56));
        QCOMPARE(popup->numRows(), rows + 1);

        // Far past the opposite corner: the minimum, never less.
        sendMouse(grip, QEvent::MouseMove, press + QPoint(-400, top ? 400 : -400), Qt::LeftButton);
        QCOMPARE(popup->size(), minimum);
        if (top)
            QCOMPARE(popup->geometry().bottom(), start.bottom());
        else
            QCOMPARE(popup->geometry().top(), start.top());
        QCOMPARE(popup->numRows(), 1);
        QVERIFY(popup->scrollBar()->isEnabled());

        // Without the button held the grip does nothing.
        sendMouse(grip, QEvent::MouseButtonRelease, press, Qt::NoButton);
        sendMouse(grip, QEvent::MouseMove, grow, Qt::NoButton);
        QCOMPARE(popup->size(), minimum);
        popup->close();
    }

    void pressAndRelease_data()
    {
        QTest::addColumn<int>("pressed");
        QTest::addColumn<int>("released");
        QTest::addColumn<bool>("disabled");
        QTest::addColumn<int>("triggered"); // index of the item run, -1 for none
        QTest::newRow("same item") << 3 << 3 << false << 3;
        QTest::newRow("press one, release another") << 3 << 4 << false << -1;
        QTest::newRow("disabled item") << 5 << 5 << true << -1;
        QTest::newRow("release without press") << -1 << 2 << false << -1;
        QTest::newRow("empty cell") << 11 << 11 << false << -1;
    }

    // Pressing and releasing on the same enabled item runs it and closes the popup.
    void pressAndRelease()
    {
        QFETCH(int, pressed);
        QFETCH(int, released);
        QFETCH(bool, disabled);
        QFETCH(int, triggered);

        Palette palette(Menu::MenuSizeSmall, 10);
        if (disabled)
            palette.item(pressed)->setEnabled(false);
        Anchor anchor(QPoint(100, 50));
        QVERIFY(anchor.exposed());
        QPointer<RibbonCatMenuPalettePopup> popup = anchor.open(palette.menu);
        QVERIFY(popup);
        QSignalSpy closed(popup.data(), &RibbonCatMenuPalettePopup::closed);
        QList<int> run;
        for (int i = 0; i < 10; ++i)
            connect(palette.item(i), &QAction::triggered, this, [&run, i] { run << i; });

        if (pressed >= 0)
            QTest::mousePress(popup, Qt::LeftButton, Qt::NoModifier, cellCentre(*popup, pressed, 20));
        QTest::mouseRelease(popup, Qt::LeftButton, Qt::NoModifier, cellCentre(*popup, released, 20));
        QCOMPARE(run, triggered < 0 ? QList<int>() : QList<int>({triggered}));
        if (triggered >= 0) {
            QCOMPARE(closed.count(), 1);
            QTRY_VERIFY(!popup);
        } else {
            QVERIFY(popup->isVisible());
            QCOMPARE(closed.count(), 0);
            popup->close();
        }
    }

    // A medium or small menu button without a default action opens the palette below
    // itself, is locked while it is open, and opens again once it closed. Many openings
    // leave no widget behind.
    void openedByTheMenuButton()
    {
        Palette palette(Menu::MenuSizeMedium, 12);
        ZelControlHost<RibbonCatMenuButton> host(palette.menu);
        RibbonCatMenuButton *button = host.button;
        QVERIFY(host.exposed());
        QTRY_COMPARE(QApplication::focusWidget(), host.edit);

        QTest::mousePress(button, Qt::LeftButton, Qt::NoModifier, QPoint(3, 3));
        QTRY_VERIFY(openPopup());
        QPointer<RibbonCatMenuPalettePopup> popup = openPopup();
        // Shown to the end, as the window system would have it before a key reaches it.
        QVERIFY(QTest::qWaitForWindowExposed(popup));
        QCOMPARE(popup->parentWidget(), button);
        QCOMPARE(popup->geometry().top(), button->mapToGlobal(QPoint(0, button->height())).y() - 1);
        QTest::mouseRelease(button, Qt::LeftButton, Qt::NoModifier, QPoint(3, 3));
        QTest::mouseClick(button, Qt::LeftButton, Qt::NoModifier, QPoint(3, 3));
        QCOMPARE(openPopup(), popup.data());
        QTest::keyClick(popup, Qt::Key_Escape);
        QTRY_VERIFY(!popup);
        QTRY_COMPARE(QApplication::focusWidget(), host.edit);

        const int widgets = zelWidgetsLeft();
        for (int i = 0; i < 1000; ++i) {
            QTest::mouseClick(button, Qt::LeftButton, Qt::NoModifier, QPoint(3, 3));
            RibbonCatMenuPalettePopup *open = openPopup();
            QVERIFY(open);
            open->close();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        }
        QCOMPARE(QApplication::allWidgets().size(), widgets);

        // A large button, or one with a default action (on its arrow part), opens none.
        Palette large(Menu::MenuSizeLarge, 4);
        Palette split(Menu::MenuSizeMedium, 4);
        split.menu.setDefaultAction(split.item(0));
        for (Menu *menu : {&large.menu, &split.menu}) {
            ZelControlHost<RibbonCatMenuButton> other(*menu);
            QVERIFY(other.exposed());
            QTest::mouseClick(other.button, Qt::LeftButton, Qt::NoModifier, QPoint(other.button->width() - 3, 3));
            QVERIFY(!QApplication::activePopupWidget());
        }
    }

    // The popup goes with its button, and closes when its menu goes.
    void lifetimes()
    {
        auto palette = std::make_unique<Palette>(Menu::MenuSizeSmall, 6);
        auto anchor = std::make_unique<Anchor>(QPoint(100, 50));
        QVERIFY(anchor->exposed());
        QPointer<RibbonCatMenuPalettePopup> popup = anchor->open(palette->menu);
        QVERIFY(popup);
        anchor.reset();
        QVERIFY(!popup);

        anchor = std::make_unique<Anchor>(QPoint(100, 50));
        popup = anchor->open(palette->menu);
        QVERIFY(popup);
        QSignalSpy closed(popup.data(), &RibbonCatMenuPalettePopup::closed);
        palette.reset();
        QCOMPARE(closed.count(), 1);
        QTRY_VERIFY(!popup);
    }
};

ZEL_TEST_MAIN(tst_PalettePopup)
#include "tst_palettepopup.moc"
