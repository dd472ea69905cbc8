// ZEL_TEST_DPI_SENSITIVE: heights and the large button's caption line scale.
#include "ZelTest.h"

#include "IRibbonGroupWidget.h"
#include "RibbonCatMenuAction.h"
#include "RibbonCatMenuButton.h"
#include "RibbonCatMenuPalettePopup.h"
#include "RibbonCatSimpleAction.h"
#include "RibbonScale_p.h"
#include "RibbonSeparatorAction.h"
#include "RibbonSimpleAction.h"
#include "RibbonStringAction.h"
#include "RibbonViewPopup.h"

#include <QCursor>
#include <QMenu>
#include <QScreen>

#include <memory>

using namespace zel;

namespace {

int topLevelCount()
{
    return QApplication::topLevelWidgets().size();
}

QMenu *openMenu()
{
    return qobject_cast<QMenu *>(QApplication::activePopupWidget());
}

using Host = ZelControlHost<RibbonCatMenuButton>;

void press(QWidget *widget, const QPoint &pos)
{
    QTest::mousePress(widget, Qt::LeftButton, Qt::NoModifier, pos);
}

void release(QWidget *widget, const QPoint &pos)
{
    QTest::mouseRelease(widget, Qt::LeftButton, Qt::NoModifier, pos);
}

void click(QWidget *widget, const QPoint &pos)
{
    QTest::mouseClick(widget, Qt::LeftButton, Qt::NoModifier, pos);
}

bool pressOpens(QWidget *widget, const QPoint &pos)
{
    press(widget, pos);
    return QTest::qWaitFor([] { return openMenu() != nullptr; });
}

// Closes the open popup with Escape; true once it is gone.
bool escapeMenu()
{
    if (QMenu *menu = openMenu())
        QTest::keyClick(menu, Qt::Key_Escape);
    return QTest::qWaitFor([] { return !openMenu(); });
}

// A menu-button action without its own icon.
struct Menu : RibbonCatMenuAction
{
    Menu(const QString &text, eMenuSize size, ePopupType popup = PopupMenu)
        : RibbonCatMenuAction(text, MenuTypeButton, size, popup, nullptr)
    {
    }
};

} // namespace

class tst_RibbonMenuButton : public QObject
{
    Q_OBJECT

    // Items shared by most tests: two checkable commands and a plain one.
    std::unique_ptr<RibbonSimpleAction> m_first;
    std::unique_ptr<RibbonSimpleAction> m_second;
    std::unique_ptr<RibbonSimpleAction> m_plain;
    int m_widgets = 0;

    void addItems(RibbonCatMenuAction &action)
    {
        action.addAction(m_first.get(), false);
        action.addAction(m_second.get(), false);
        action.addAction(m_plain.get(), false);
    }

private slots:
    void init()
    {
        m_first.reset(new RibbonSimpleAction(QStringLiteral("Portrait"), nullptr));
        m_second.reset(new RibbonSimpleAction(QStringLiteral("Landscape"), nullptr));
        m_plain.reset(new RibbonSimpleAction(QStringLiteral("More..."), nullptr));
        m_first->setCheckable(true);
        m_second->setCheckable(true);
        m_widgets = QApplication::allWidgets().size();
    }

    void cleanup()
    {
        // Every popup a test opened is gone again, and nothing else was left behind.
        QTRY_COMPARE(zelWidgetsLeft(), m_widgets);
        m_first.reset();
        m_second.reset();
        m_plain.reset();
    }

    void sizeHints_data()
    {
        QTest::addColumn<int>("size");
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("icon");
        QTest::addColumn<bool>("withDefault");
        QTest::addColumn<int>("markerOffset");
        QTest::addColumn<int>("minimalWidth");

        QTest::newRow("large, short") << 0 << QStringLiteral("A") << true << false << 0 << -1;
        QTest::newRow("large, long") << 0 << QStringLiteral("Insert page break") << true << true << 0 << -1;
        QTest::newRow("large, minimal width") << 0 << QStringLiteral("A") << false << false << 0 << 90;
        QTest::newRow("medium") << 1 << QStringLiteral("Paste") << true << true << 0 << -1;
        QTest::newRow("medium, marker offset") << 1 << QStringLiteral("Paste") << true << false << 12 << -1;
        QTest::newRow("medium, no text") << 1 << QString() << false << false << 0 << -1;
        QTest::newRow("medium, small minimal") << 1 << QStringLiteral("Paste") << false << false << 0 << 10;
        QTest::newRow("small, icon") << 2 << QString() << true << false << 0 << -1;
        QTest::newRow("small, no icon") << 2 << QString() << false << false << 0 << -1;
        QTest::newRow("small, default's icon") << 2 << QString() << false << true << 0 << -1;
    }

    // The exact two-line caption search is checked with the large buttons that share it.
    void sizeHints()
    {
        QFETCH(int, size);
        QFETCH(QString, text);
        QFETCH(bool, icon);
        QFETCH(bool, withDefault);
        QFETCH(int, markerOffset);
        QFETCH(int, minimalWidth);

        QPixmap pixmap(16, 16);
        pixmap.fill(Qt::blue);
        const QIcon image(pixmap);
        RibbonCatMenuAction action(icon && !withDefault ? image : QIcon(), text, Menu::MenuTypeButton,
                                   Menu::eMenuSize(size), Menu::PopupMenu, nullptr);
        RibbonSimpleAction defaultAction(image, QStringLiteral("Run"), nullptr);
        if (withDefault)
            action.addAction(&defaultAction, true);
        action.setMenuMarkerOffset(markerOffset);
        action.setMinimalWidth(minimalWidth);
        RibbonCatMenuButton button(action, nullptr);

        const QFontMetrics fm(button.font());
        const int textWidth = fm.horizontalAdvance(text);
        QSize expected(icon || withDefault ? 31 : 15, 22);
        if (size == 1)
            expected = QSize(markerOffset + (text.isEmpty() ? 0 : textWidth + 5) + 31, scaled(22));
        if (size == 0)
            expected = QSize(qMax(textWidth + 18, 38), scaled(66));
        if (size == 0 && textWidth + 4 >= 35) {
            expected.setWidth(button.sizeHint().width());
            QVERIFY(expected.width() < textWidth + 18);
            const QRect caption(0, 0, expected.width() - 18, 0);
            QVERIFY(fm.boundingRect(caption, Qt::TextWordWrap, text).height() <= 2 * fm.height());
        }
        expected.setWidth(qMax(expected.width(), minimalWidth));
        QCOMPARE(button.sizeHint(), expected);
        QCOMPARE(button.sizePolicy().horizontalPolicy(), QSizePolicy::Fixed);
        QCOMPARE(button.focusPolicy(), Qt::NoFocus);
    }

    // The caption runs the checked item of an exclusive menu while it is enabled, else the default
    // action; the arrow only opens; a press dragged off the caption runs nothing; choosing the
    // checked item again unchecks it.
    void largeSplitButton()
    {
        Menu action(QStringLiteral("Paste"), Menu::MenuSizeLarge);
        RibbonSimpleAction paste(QStringLiteral("Paste now"), nullptr);
        paste.setToolTip(QStringLiteral("Paste from the clipboard"));
        action.addAction(&paste, true);
        addItems(action);
        action.setExclusive(true);
        Host host(action);
        QVERIFY(host.exposed());
        RibbonCatMenuButton *button = host.button;
        QCOMPARE(button->toolTip(), QStringLiteral("Paste from the clipboard"));
        const QPoint caption(button->width() / 2, scaled(37) - 1);
        const QPoint arrow(button->width() / 2, scaled(37));
        const auto choose = [&](QAction *item) {
            QVERIFY(pressOpens(button, arrow));
            click(openMenu(), openMenu()->actionGeometry(item).center());
            QTRY_VERIFY(!openMenu());
            release(button, arrow);
        };

        QSignalSpy pasted(&paste, SIGNAL(triggered()));
        QSignalSpy second(m_second.get(), SIGNAL(triggered()));
        press(button, caption);
        QVERIFY(!openMenu());
        release(button, caption);
        QCOMPARE(pasted.count(), 1);
        QVERIFY(pressOpens(button, arrow));
        QCOMPARE(openMenu()->actions().size(), 4);
        QCOMPARE(openMenu()->pos(), button->mapToGlobal(QPoint(0, button->height())));
        QVERIFY(escapeMenu());
        press(button, caption);
        release(button, QPoint(button->width() + 20, caption.y()));
        QCOMPARE(pasted.count(), 1);

        choose(m_first.get());
        QCOMPARE(action.checkedAction(), m_first.get());
        choose(m_second.get());
        QVERIFY(m_second->isChecked() && !m_first->isChecked());
        QCOMPARE(action.checkedAction(), m_second.get());
        choose(m_second.get());
        QVERIFY(!m_second->isChecked());
        QCOMPARE(action.checkedAction(), nullptr);

        m_second->setChecked(true);
        click(button, caption);
        QCOMPARE(second.count(), 3);
        QCOMPARE(pasted.count(), 1);
        m_second->setChecked(true);
        m_second->setEnabled(false);
        click(button, caption);
        QCOMPARE(second.count(), 3);
        QCOMPARE(pasted.count(), 2);
    }

    void mediumSplitParts_data()
    {
        QTest::addColumn<int>("x");
        QTest::addColumn<bool>("defaultEnabled");
        QTest::addColumn<bool>("runs");
        QTest::addColumn<bool>("opens");
        QTest::newRow("x = 0") << 0 << true << true << false;
        QTest::newRow("x = 68") << 68 << true << true << false;
        QTest::newRow("x = 69") << 69 << true << false << true;
        QTest::newRow("x = 79") << 79 << true << false << true;
        QTest::newRow("default disabled, caption") << 0 << false << false << false;
        QTest::newRow("default disabled, arrow") << 79 << false << false << true;
    }

    void mediumSplitParts()
    {
        QFETCH(int, x);
        QFETCH(bool, defaultEnabled);
        QFETCH(bool, runs);
        QFETCH(bool, opens);

        // No caption text, so that the minimal width decides at every resolution.
        Menu action(QString(), Menu::MenuSizeMedium);
        RibbonSimpleAction find(QStringLiteral("Find now"), nullptr);
        find.setEnabled(defaultEnabled);
        action.addAction(&find, true);
        addItems(action);
        action.setMinimalWidth(80);
        Host host(action);
        QVERIFY(host.exposed());
        QCOMPARE(host.button->width(), 80);
        QSignalSpy found(&find, SIGNAL(triggered()));
        click(host.button, QPoint(x, host.button->height() / 2));
        QCOMPARE(found.count(), runs ? 1 : 0);
        QCOMPARE(openMenu() != nullptr, opens);
    }

    void popupCloses_data()
    {
        QTest::addColumn<int>("how");
        QTest::newRow("Escape") << 0;
        QTest::newRow("click outside") << 1;
        QTest::newRow("item chosen") << 2;
        QTest::newRow("click on the button") << 3;
        QTest::newRow("Escape, focus widget deleted") << 4;
        QTest::newRow("popup deleted") << 5;
    }

    // One popup per press, gone after any way of closing it, focus back where it was, and the
    // button opens again afterwards.
    void popupCloses()
    {
        QFETCH(int, how);

        Menu action(QStringLiteral("Layout"), Menu::MenuSizeLarge);
        addItems(action);
        Host host(action);
        QVERIFY(host.exposed());
        QTRY_COMPARE(QApplication::focusWidget(), host.edit);
        const int before = topLevelCount();

        QWindow *window = host.window.windowHandle();
        const QPoint onButton = host.button->mapTo(&host.window, QPoint(5, 5));
        QTest::mousePress(window, Qt::LeftButton, Qt::NoModifier, onButton);
        QTest::mouseRelease(window, Qt::LeftButton, Qt::NoModifier, onButton);
        QTRY_VERIFY(openMenu());
        QPointer<QMenu> menu = openMenu();
        QCOMPARE(topLevelCount(), before + 1);
        click(host.button, QPoint(5, 5)); // sent to the button itself while open: nothing more
        QCOMPARE(openMenu(), menu.data());
        QCOMPARE(topLevelCount(), before + 1);
        QSignalSpy plain(m_plain.get(), SIGNAL(triggered()));
        QWidget *focus = host.edit;

        switch (how) {
        case 0:
            QTest::keyClick(menu, Qt::Key_Escape);
            break;
        case 1:
            click(menu, QPoint(-40, -40));
            break;
        case 2:
            click(menu, menu->actionGeometry(m_plain.get()).center());
            QCOMPARE(plain.count(), 1);
            break;
        case 3:
            // Through the window, as the system delivers it: the press closes the popup and
            // must not reach the button again to reopen it.
            QTest::mousePress(window, Qt::LeftButton, Qt::NoModifier, onButton);
            QTest::mouseRelease(window, Qt::LeftButton, Qt::NoModifier, onButton);
            break;
        case 4:
            delete host.edit; // focus must not go back to it
            QTest::keyClick(menu, Qt::Key_Escape);
            break;
        default:
            delete menu.data();
            break;
        }
        QTRY_VERIFY(!menu);
        QVERIFY(!openMenu());
        QTRY_COMPARE(topLevelCount(), before);
        if (how == 4)
            QVERIFY(QApplication::focusWidget() != focus);
        else if (how != 5)
            QTRY_COMPARE(QApplication::focusWidget(), focus);
        QVERIFY(pressOpens(host.button, QPoint(5, 5)));
        QVERIFY(escapeMenu());
    }

    // String actions stay out of the menu, submenus come in, a heading widens the menu.
    void menuContentsAndSubmenus()
    {
        Menu action(QStringLiteral("Insert"), Menu::MenuSizeLarge);
        RibbonSeparatorAction heading(nullptr);
        heading.setText(QStringLiteral("A rather long section heading"));
        RibbonStringAction hidden(QStringLiteral("Never shown"), nullptr);
        RibbonMenuAction sub(QStringLiteral("Shapes"), nullptr);
        RibbonSimpleAction circle(QStringLiteral("Circle"), nullptr);
        sub.addAction(&circle, false);
        for (RibbonAction *item : QList<RibbonAction *>{&heading, m_plain.get(), &hidden, &sub})
            action.addAction(item, false);
        Host host(action);
        QVERIFY(host.exposed());
        QVERIFY(pressOpens(host.button, QPoint(5, 5)));
        QMenu *menu = openMenu();
        QCOMPARE(menu->actions().size(), 3);
        QVERIFY(menu->actions().at(2)->menu());
        QCOMPARE(menu->minimumWidth(), 50 + menu->fontMetrics().horizontalAdvance(heading.text()));
        QVERIFY(escapeMenu());
    }

    // Below the button otherwise (see largeSplitButton).
    void dropDownNearTheScreenBottomOpensUpwards()
    {
        Menu action(QStringLiteral("Zoom"), Menu::MenuSizeMedium);
        addItems(action);
        Host host(action);
        QVERIFY(host.exposed());
        const QRect available = host.window.screen()->availableGeometry();
        host.window.move(available.left() + 50, available.bottom() - host.window.height() - 20);
        QTRY_VERIFY(host.button->mapToGlobal(QPoint(0, host.button->height())).y() + 100
                    > available.bottom());
        QVERIFY(pressOpens(host.button, QPoint(3, 3)));
        QMenu *menu = openMenu();
        const QRect last = menu->actionGeometry(menu->actions().last());
        QCOMPARE(menu->mapToGlobal(last.topLeft()).y(), host.button->mapToGlobal(QPoint(0, 0)).y() - 30);
        QVERIFY(escapeMenu());
    }

    void popupTypes_data()
    {
        QTest::addColumn<int>("popupType");
        QTest::addColumn<bool>("withItems");
        QTest::addColumn<int>("opens"); // -1: either way
        QTest::newRow("view popup") << int(Menu::PopupView) << true << 1;
        QTest::newRow("palette") << int(Menu::PopupPalette) << true << 1;
        QTest::newRow("list preview") << int(Menu::PopupListPreview) << true << 0;
        QTest::newRow("empty menu") << int(Menu::PopupMenu) << false << 0;
        QTest::newRow("empty view popup") << int(Menu::PopupView) << false << -1;
    }

    // Whatever the first click did, the button is not left locked: it opens again, or once
    // items arrived.
    void popupTypes()
    {
        QFETCH(int, popupType);
        QFETCH(bool, withItems);
        QFETCH(int, opens);

        Menu action(QStringLiteral("View"), Menu::MenuSizeMedium, Menu::ePopupType(popupType));
        const auto fill = [&] {
            addItems(action);
            action.addTopAction(m_plain.get());
        };
        if (withItems)
            fill();
        Host host(action);
        QVERIFY(host.exposed());
        const int before = topLevelCount();
        click(host.button, QPoint(3, 3));
        if (opens == 1) {
            QTRY_VERIFY(QApplication::activePopupWidget());
            QWidget *popup = QApplication::activePopupWidget();
            QCOMPARE(qobject_cast<RibbonViewPopup *>(popup) != nullptr, popupType == Menu::PopupView);
            QCOMPARE(qobject_cast<RibbonCatMenuPalettePopup *>(popup) != nullptr, popupType == Menu::PopupPalette);
        } else if (opens == 0) {
            QVERIFY(!QApplication::activePopupWidget());
        }
        if (QWidget *popup = QApplication::activePopupWidget())
            QTest::keyClick(popup, Qt::Key_Escape);
        QTRY_VERIFY(!QApplication::activePopupWidget());
        QTRY_COMPARE(topLevelCount(), before);
        if (!withItems)
            fill();
        if (opens != 0 || !withItems) {
            press(host.button, QPoint(3, 3));
            QTRY_VERIFY(QApplication::activePopupWidget());
            QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
            QTRY_VERIFY(!QApplication::activePopupWidget());
        }
    }

    // A strip hands only a left press to its hidden button, and nothing while disabled.
    void handedOverPressOpensTheDropDown()
    {
        Menu action(QStringLiteral("Colours"), Menu::MenuSizeSmall);
        addItems(action);
        QWidget strip;
        strip.resize(60, 22);
        auto *hidden = new RibbonCatMenuButton(action, &strip);
        hidden->setGeometry(0, 0, 30, 22);
        hidden->hide();
        strip.show();
        QVERIFY(QTest::qWaitForWindowExposed(&strip));
        IRibbonGroupWidget *group = IRibbonGroupWidget::groupWidget(hidden);
        QCOMPARE(group, static_cast<IRibbonGroupWidget *>(hidden));

        const auto mouse = [](QEvent::Type type, Qt::MouseButton button, Qt::MouseButtons buttons) {
            return QMouseEvent(type, QPoint(3, 3), button, buttons, Qt::NoModifier);
        };
        QMouseEvent moved = mouse(QEvent::MouseMove, Qt::NoButton, Qt::NoButton);
        QMouseEvent released = mouse(QEvent::MouseButtonRelease, Qt::LeftButton, Qt::NoButton);
        QMouseEvent pressed = mouse(QEvent::MouseButtonPress, Qt::LeftButton, Qt::LeftButton);
        QEvent other(QEvent::MouseButtonPress);
        for (QEvent *event : {static_cast<QEvent *>(&moved), static_cast<QEvent *>(&released), &other,
                              static_cast<QEvent *>(nullptr)})
            group->processEvents(event);
        QVERIFY(!openMenu());
        group->processEvents(&pressed);
        QTRY_VERIFY(openMenu());
        QCOMPARE(openMenu()->pos(), strip.mapToGlobal(QPoint(0, 22)));
        QVERIFY(escapeMenu());

        action.setEnabled(false);
        group->processEvents(&pressed);
        QVERIFY(!openMenu());
    }

    void lifetimes()
    {
        // The open popup goes with its button.
        Menu view(QStringLiteral("Layout"), Menu::MenuSizeLarge, Menu::PopupView);
        view.addTopAction(m_plain.get());
        auto host = std::make_unique<Host>(view);
        QVERIFY(host->exposed());
        QVERIFY(pressOpens(host->button, QPoint(5, 5)));
        QPointer<QMenu> popup = openMenu();
        host.reset();
        QTRY_VERIFY(!popup);

        // The button outlives its action: no popup, still paints and measures.
        auto *action = new Menu(QStringLiteral("Gone"), Menu::MenuSizeMedium);
        Host survivor(*action);
        QVERIFY(survivor.exposed());
        delete action;
        QVERIFY(!survivor.button->action());
        click(survivor.button, QPoint(3, 3));
        QVERIFY(!openMenu());
        survivor.button->repaint();
        QVERIFY(survivor.button->sizeHint().isValid());
    }

    void toggledIndicator_data()
    {
        QTest::addColumn<int>("size");
        QTest::addColumn<bool>("drawMarker");
        QTest::addColumn<bool>("showIndicator");
        QTest::addColumn<bool>("differs");
        QTest::newRow("medium") << 1 << true << true << true;
        QTest::newRow("large") << 0 << true << true << true;
        QTest::newRow("medium, marker off") << 1 << false << true << false;
        QTest::newRow("large, indicator off") << 0 << true << false << false;
    }

    void toggledIndicator()
    {
        QFETCH(int, size);
        QFETCH(bool, drawMarker);
        QFETCH(bool, showIndicator);
        QFETCH(bool, differs);

        Menu action(QStringLiteral("Bold"), Menu::eMenuSize(size));
        RibbonSimpleAction bold(QStringLiteral("Bold on"), nullptr);
        bold.setCheckable(true);
        action.addAction(&bold, true);
        action.setDrawCheckedMarker(drawMarker);
        action.setShowToggledIndicator(showIndicator);
        RibbonCatMenuButton button(action, nullptr);
        button.resize(button.sizeHint());
        const QImage off = button.grab().toImage();
        bold.setChecked(true);
        QCOMPARE(action.toBeToggled(), showIndicator);
        QCOMPARE(button.grab().toImage() != off, differs);
        // Disabled: no background at all, checked or not.
        action.setEnabled(false);
        const QImage disabledOn = button.grab().toImage();
        bold.setChecked(false);
        QCOMPARE(button.grab().toImage(), disabledOn);
    }

    void drawBorderShowsTheRestingOutline()
    {
        Menu action(QStringLiteral("Zoom"), Menu::MenuSizeMedium);
        RibbonCatMenuButton button(action, nullptr);
        button.resize(button.sizeHint());
        const QImage plain = button.grab().toImage();
        button.drawBorder(true);
        QVERIFY(button.grab().toImage() != plain);
        button.drawBorder(false);
        QCOMPARE(button.grab().toImage(), plain);
    }

    // The marker offset widens a medium button already laid out, and the checked marker
    // comes and goes on a button already shown; each change is announced once.
    void lookSettersReachTheButton()
    {
        Menu action(QStringLiteral("Bold"), Menu::MenuSizeMedium);
        RibbonSimpleAction bold(QStringLiteral("Bold on"), nullptr);
        bold.setCheckable(true);
        bold.setChecked(true);
        action.addAction(&bold, true);
        Host host(action);
        QVERIFY(host.exposed());
        QSignalSpy changed(&action, &QAction::changed);
        const int width = host.button->width();

        action.setMenuMarkerOffset(20);
        QCOMPARE(changed.count(), 1);
        QTRY_COMPARE(host.button->width(), width + 20);
        action.setMenuMarkerOffset(20);
        QCOMPARE(changed.count(), 1);

        const QImage marked = host.button->grab().toImage();
        action.setDrawCheckedMarker(false);
        QCOMPARE(changed.count(), 2);
        QVERIFY(host.button->grab().toImage() != marked);
        action.setDrawCheckedMarker(false);
        QCOMPARE(changed.count(), 2);
        action.setDrawCheckedMarker(true);
        QCOMPARE(host.button->grab().toImage(), marked);
    }

    void largeArrowPosition_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("centred");
        QTest::newRow("one line") << QStringLiteral("Go") << true;
        QTest::newRow("two lines") << QStringLiteral("Insert page break here") << false;
    }

    // The arrow's top row is drawn; the same row at the other place is background.
    void largeArrowPosition()
    {
        QFETCH(QString, text);
        QFETCH(bool, centred);
        Menu action(text, Menu::MenuSizeLarge);
        RibbonCatMenuButton button(action, nullptr);
        button.resize(button.sizeHint());
        const QImage image = button.grab().toImage();
        const int w = button.width(), y = scaled(56);
        const int centre = (w - 5) / 2 + 2, right = w - 7 + 2;
        const QRgb background = image.pixel(0, y);
        QVERIFY(image.pixel(centred ? centre : right, y) != background);
        QCOMPARE(image.pixel(centred ? right : centre, y), background);
    }

    void hoverFollowsTheCursor_data()
    {
        QTest::addColumn<int>("size");
        QTest::addColumn<bool>("split");
        QTest::newRow("large split") << 0 << true;
        QTest::newRow("large drop-down") << 0 << false;
        QTest::newRow("medium split") << 1 << true;
        QTest::newRow("small drop-down") << 2 << false;
    }

    // Only a split button tells its two parts apart; a disabled menu shows no hover.
    void hoverFollowsTheCursor()
    {
        QFETCH(int, size);
        QFETCH(bool, split);

        Menu action(QStringLiteral("Find"), Menu::eMenuSize(size));
        RibbonSimpleAction find(QStringLiteral("Find now"), nullptr);
        if (split)
            action.addAction(&find, true);
        addItems(action);
        Host host(action);
        QVERIFY(host.exposed());
        RibbonCatMenuButton *button = host.button;
        const bool large = size == 0;
        const QPoint caption = large ? QPoint(button->width() / 2, 5) : QPoint(3, 5);
        const QPoint arrow = large ? QPoint(button->width() / 2, button->height() - 5)
                                   : QPoint(button->width() - 3, 5);
        const auto grabAt = [button](const QPoint *cursor) {
            button->setAttribute(Qt::WA_UnderMouse, cursor != nullptr);
            QCursor::setPos(cursor ? button->mapToGlobal(*cursor) : QPoint(-100, -100));
            return button->grab().toImage();
        };
        const QImage away = grabAt(nullptr);
        const QImage overCaption = grabAt(&caption);
        const QImage overArrow = grabAt(&arrow);
        QVERIFY(overCaption != away && overArrow != away);
        QCOMPARE(overCaption != overArrow, split);
        action.setEnabled(false);
        const QImage disabledAway = grabAt(nullptr);
        QCOMPARE(grabAt(&caption), disabledAway);
        button->setAttribute(Qt::WA_UnderMouse, false);
    }
};

ZEL_TEST_MAIN(tst_RibbonMenuButton)
#include "tst_ribbonmenubutton.moc"
