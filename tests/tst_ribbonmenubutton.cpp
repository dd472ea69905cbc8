// ZEL_TEST_DPI_SENSITIVE: heights and the large button's caption line scale.
#include "ZelTest.h"

#include "IRibbonGroupWidget.h"
#include "RibbonCatMenuAction.h"
#include "RibbonCatMenuButton.h"
#include "RibbonCatSimpleAction.h"
#include "RibbonScale_p.h"
#include "RibbonSeparatorAction.h"
#include "RibbonSimpleAction.h"
#include "RibbonStringAction.h"
#include "RibbonViewPopup.h"

#include <QCursor>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QMenu>
#include <QScreen>

#include <memory>

using namespace zel;

namespace {

QPixmap filledIcon(int extent, const QColor &color)
{
    QPixmap pixmap(extent, extent);
    pixmap.fill(color);
    return pixmap;
}

int topLevelCount()
{
    return QApplication::topLevelWidgets().size();
}

QMenu *openMenu()
{
    return qobject_cast<QMenu *>(QApplication::activePopupWidget());
}

// A window holding a line edit (which has the focus) and one menu button.
struct Host
{
    explicit Host(RibbonCatMenuAction &action)
    {
        auto *layout = new QHBoxLayout(&window);
        edit = new QLineEdit(&window);
        button = new RibbonCatMenuButton(action, &window);
        layout->addWidget(edit);
        layout->addWidget(button);
        layout->addStretch();
        window.show();
        QApplication::setActiveWindow(&window);
        edit->setFocus();
    }

    bool exposed() { return QTest::qWaitForWindowExposed(&window); }

    QWidget window;
    QLineEdit *edit = nullptr;
    RibbonCatMenuButton *button = nullptr;
};

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
    press(widget, pos);
    release(widget, pos);
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
    int m_topLevels = 0;

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
        m_topLevels = topLevelCount();
    }

    void cleanup()
    {
        if (QWidget *popup = QApplication::activePopupWidget())
            popup->close();
        // Every popup a test opened is gone again, and nothing else was left behind.
        QTRY_COMPARE(topLevelCount(), m_topLevels);
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

        QTest::newRow("large, short label") << 0 << QStringLiteral("A") << true << false << 0 << -1;
        QTest::newRow("large, long label") << 0 << QStringLiteral("Insert page break here") << true
                                           << true << 0 << -1;
        QTest::newRow("large, minimal width") << 0 << QStringLiteral("A") << false << false << 0 << 90;
        QTest::newRow("medium") << 1 << QStringLiteral("Paste") << true << true << 0 << -1;
        QTest::newRow("medium, marker offset") << 1 << QStringLiteral("Paste") << true << false << 12 << -1;
        QTest::newRow("medium, no text") << 1 << QString() << false << false << 0 << -1;
        QTest::newRow("medium, small minimal width") << 1 << QStringLiteral("Paste") << false << false << 0 << 10;
        QTest::newRow("small, icon") << 2 << QString() << true << false << 0 << -1;
        QTest::newRow("small, no icon") << 2 << QString() << false << false << 0 << -1;
        QTest::newRow("small, icon of the default") << 2 << QString() << false << true << 0 << -1;
    }

    void sizeHints()
    {
        QFETCH(int, size);
        QFETCH(QString, text);
        QFETCH(bool, icon);
        QFETCH(bool, withDefault);
        QFETCH(int, markerOffset);
        QFETCH(int, minimalWidth);

        const QIcon image(filledIcon(16, Qt::blue));
        RibbonCatMenuAction action(icon && !withDefault ? image : QIcon(), text,
                                   RibbonCatMenuAction::MenuTypeButton,
                                   RibbonCatMenuAction::eMenuSize(size), RibbonCatMenuAction::PopupMenu, nullptr);
        RibbonSimpleAction defaultAction(image, QStringLiteral("Run"), nullptr);
        if (withDefault)
            action.addAction(&defaultAction, true);
        action.setMenuMarkerOffset(markerOffset);
        action.setMinimalWidth(minimalWidth);
        RibbonCatMenuButton button(action, nullptr);

        const QFontMetrics fm(button.font());
        const int textWidth = fm.horizontalAdvance(text);
        QSize expected;
        switch (size) {
        case 0:
            expected = QSize(qMax(textWidth + 18, 38), scaled(66));
            if (textWidth + 4 >= 35) {
                // Two lines: the search settles between half and all of the text's width,
                // and the caption wrapped at that width fits in two lines.
                const int flags = Qt::AlignTop | Qt::AlignHCenter | Qt::TextWordWrap;
                expected.setWidth(button.sizeHint().width());
                QVERIFY(expected.width() <= textWidth + 18);
                QVERIFY(expected.width() >= fm.boundingRect(QRect(0, 0, textWidth / 2 + 10, 0), flags, text).width() / 2);
                QVERIFY(fm.boundingRect(QRect(0, 0, expected.width() - 18, 0), flags, text).height() <= 2 * fm.height());
            }
            break;
        case 1:
            expected = QSize(markerOffset + (text.isEmpty() ? 0 : textWidth + 5) + 31, scaled(22));
            break;
        default:
            expected = QSize(icon || withDefault ? 31 : 15, 22);
            break;
        }
        if (minimalWidth != -1)
            expected.setWidth(qMax(expected.width(), minimalWidth));
        QCOMPARE(button.sizeHint(), expected);
        QCOMPARE(button.sizePolicy().horizontalPolicy(), QSizePolicy::Fixed);
        QCOMPARE(button.focusPolicy(), Qt::NoFocus);
    }

    void largeSplitButtonParts()
    {
        Menu action(QStringLiteral("Paste"), Menu::MenuSizeLarge);
        RibbonSimpleAction paste(QStringLiteral("Paste now"), nullptr);
        paste.setToolTip(QStringLiteral("Paste from the clipboard"));
        action.addAction(&paste, true);
        addItems(action);
        Host host(action);
        QVERIFY(host.exposed());
        RibbonCatMenuButton *button = host.button;
        QCOMPARE(button->toolTip(), QStringLiteral("Paste from the clipboard"));

        QSignalSpy pasted(&paste, SIGNAL(triggered()));
        const QPoint caption(button->width() / 2, scaled(37) - 1);
        press(button, caption);
        QVERIFY(!openMenu());
        release(button, caption);
        QCOMPARE(pasted.count(), 1);

        // The arrow part opens the drop-down and does not run the default action.
        const QPoint arrow(button->width() / 2, scaled(37));
        QVERIFY(pressOpens(button, arrow));
        QMenu *menu = openMenu();
        QCOMPARE(menu->actions().size(), 4);
        QCOMPARE(menu->pos(), button->mapToGlobal(QPoint(0, button->height())));
        QVERIFY(escapeMenu());
        QCOMPARE(pasted.count(), 1);

        // A press dragged off the caption runs nothing.
        press(button, caption);
        release(button, QPoint(button->width() + 20, caption.y()));
        QCOMPARE(pasted.count(), 1);
    }

    void largeSplitRunsTheCheckedItem()
    {
        Menu action(QStringLiteral("Orientation"), Menu::MenuSizeLarge);
        RibbonSimpleAction fallback(QStringLiteral("Default"), nullptr);
        action.addAction(&fallback, true);
        addItems(action);
        action.setExclusive(true);
        m_second->setChecked(true);
        QCOMPARE(action.checkedAction(), m_second.get());

        Host host(action);
        QVERIFY(host.exposed());
        QSignalSpy second(m_second.get(), SIGNAL(triggered()));
        QSignalSpy defaults(&fallback, SIGNAL(triggered()));
        const QPoint caption(host.button->width() / 2, 5);
        click(host.button, caption);
        QCOMPARE(second.count(), 1);
        QCOMPARE(defaults.count(), 0);

        // A disabled checked item gives way to the default action.
        m_second->setChecked(true);
        m_second->setEnabled(false);
        click(host.button, caption);
        QCOMPARE(second.count(), 1);
        QCOMPARE(defaults.count(), 1);
    }

    void mediumSplitBoundary_data()
    {
        QTest::addColumn<int>("x");
        QTest::addColumn<bool>("caption");
        QTest::newRow("x = 0") << 0 << true;
        QTest::newRow("x = 68") << 68 << true;
        QTest::newRow("x = 69") << 69 << false;
        QTest::newRow("x = 79") << 79 << false;
    }

    void mediumSplitBoundary()
    {
        QFETCH(int, x);
        QFETCH(bool, caption);

        // No caption text, so that the minimal width decides at every resolution.
        Menu action(QString(), Menu::MenuSizeMedium);
        RibbonSimpleAction find(QStringLiteral("Find now"), nullptr);
        action.addAction(&find, true);
        addItems(action);
        action.setMinimalWidth(80);
        Host host(action);
        QVERIFY(host.exposed());
        QCOMPARE(host.button->width(), 80);

        QSignalSpy found(&find, SIGNAL(triggered()));
        const QPoint pos(x, host.button->height() / 2);
        click(host.button, pos);
        QCOMPARE(found.count(), caption ? 1 : 0);
        QCOMPARE(openMenu() != nullptr, !caption);
    }

    void disabledPartsDoNothing()
    {
        Menu action(QStringLiteral("Find"), Menu::MenuSizeMedium);
        RibbonSimpleAction find(QStringLiteral("Find now"), nullptr);
        action.addAction(&find, true);
        addItems(action);
        Host host(action);
        QVERIFY(host.exposed());
        RibbonCatMenuButton *button = host.button;

        QSignalSpy found(&find, SIGNAL(triggered()));
        find.setEnabled(false);
        const QPoint caption(2, 5);
        click(button, caption);
        QCOMPARE(found.count(), 0);

        // The arrow still opens while only the default action is disabled.
        const QPoint arrow(button->width() - 3, 5);
        QVERIFY(pressOpens(button, arrow));
        QVERIFY(escapeMenu());

        action.setEnabled(false);
        QVERIFY(!button->isEnabled());
        // A disabled widget receives no mouse input; the strip's hand-over must not
        // open anything either.
        QMouseEvent handed(QEvent::MouseButtonPress, arrow, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        button->processEvents(&handed);
        QVERIFY(!openMenu());
    }

    void dropDownOpensOnceAndReopens()
    {
        Menu action(QStringLiteral("Layout"), Menu::MenuSizeSmall);
        addItems(action);
        Host host(action);
        QVERIFY(host.exposed());
        const int before = topLevelCount();

        QVERIFY(pressOpens(host.button, QPoint(3, 3)));
        QMenu *first = openMenu();
        QCOMPARE(topLevelCount(), before + 1);

        // Pressed again while the popup is open: nothing more opens.
        release(host.button, QPoint(3, 3));
        press(host.button, QPoint(3, 3));
        QCOMPARE(openMenu(), first);
        QCOMPARE(topLevelCount(), before + 1);

        QPointer<QMenu> closed(first);
        QTest::keyClick(first, Qt::Key_Escape);
        QTRY_VERIFY(!closed);
        QCOMPARE(topLevelCount(), before);

        QVERIFY(pressOpens(host.button, QPoint(3, 3)));
        QTest::keyClick(openMenu(), Qt::Key_Escape);
        QTRY_COMPARE(topLevelCount(), before);
    }

    void popupCloses_data()
    {
        QTest::addColumn<int>("how");
        QTest::newRow("Escape") << 0;
        QTest::newRow("click outside") << 1;
        QTest::newRow("item chosen") << 2;
        QTest::newRow("click on the button") << 3;
        QTest::newRow("Escape, focus widget deleted") << 4;
    }

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
        QSignalSpy plain(m_plain.get(), SIGNAL(triggered()));
        QWidget *focus = host.edit;

        switch (how) {
        case 0:
            QTest::keyClick(menu, Qt::Key_Escape);
            break;
        case 1:
            QTest::mouseClick(menu, Qt::LeftButton, Qt::NoModifier, QPoint(-40, -40));
            break;
        case 2:
            QTest::mouseClick(menu, Qt::LeftButton, Qt::NoModifier,
                              menu->actionGeometry(m_plain.get()).center());
            QCOMPARE(plain.count(), 1);
            break;
        case 4:
            delete host.edit; // focus must not go back to it
            QTest::keyClick(menu, Qt::Key_Escape);
            break;
        default:
            // Through the window, as the system delivers it: the press closes the popup
            // and must not reach the button again to reopen it.
            QTest::mousePress(window, Qt::LeftButton, Qt::NoModifier, onButton);
            QTest::mouseRelease(window, Qt::LeftButton, Qt::NoModifier, onButton);
            break;
        }
        QTRY_VERIFY(!menu);
        QVERIFY(!openMenu());
        QTRY_COMPARE(topLevelCount(), before);
        if (how == 4)
            QVERIFY(QApplication::focusWidget() != focus);
        else
            QTRY_COMPARE(QApplication::focusWidget(), focus);
    }

    void exclusiveItemsCheckAndUncheck()
    {
        Menu action(QStringLiteral("Orientation"), Menu::MenuSizeMedium);
        addItems(action);
        action.setExclusive(true);
        Host host(action);
        QVERIFY(host.exposed());

        auto choose = [&](QAction *item) {
            QVERIFY(pressOpens(host.button, QPoint(3, 3)));
            QMenu *menu = openMenu();
            QTest::mouseClick(menu, Qt::LeftButton, Qt::NoModifier, menu->actionGeometry(item).center());
            QTRY_VERIFY(!openMenu());
            release(host.button, QPoint(3, 3));
        };

        choose(m_first.get());
        QVERIFY(m_first->isChecked());
        QCOMPARE(action.checkedAction(), m_first.get());

        choose(m_second.get());
        QVERIFY(m_second->isChecked());
        QVERIFY(!m_first->isChecked());
        QCOMPARE(action.checkedAction(), m_second.get());

        // Choosing the checked item again unchecks it.
        choose(m_second.get());
        QVERIFY(!m_second->isChecked());
        QCOMPARE(action.checkedAction(), nullptr);
    }

    void menuContentsAndSubmenus()
    {
        Menu action(QStringLiteral("Insert"), Menu::MenuSizeLarge);
        RibbonSeparatorAction heading(nullptr);
        heading.setText(QStringLiteral("A rather long section heading"));
        RibbonStringAction hidden(QStringLiteral("Never shown"), nullptr);
        RibbonMenuAction sub(QStringLiteral("Shapes"), nullptr);
        RibbonSimpleAction circle(QStringLiteral("Circle"), nullptr);
        sub.addAction(&circle, false);
        action.addAction(&heading, false);
        action.addAction(m_plain.get(), false);
        action.addAction(&hidden, false);
        action.addAction(&sub, false);
        Host host(action);
        QVERIFY(host.exposed());

        QVERIFY(pressOpens(host.button, QPoint(5, 5)));
        QMenu *menu = openMenu();
        QCOMPARE(menu->actions().size(), 3);
        QVERIFY(menu->actions().at(2)->menu());
        const int headingWidth = menu->fontMetrics().horizontalAdvance(heading.text());
        QCOMPARE(menu->minimumWidth(), 50 + headingWidth);
        QVERIFY(escapeMenu());
    }

    void smallDropDownNearTheScreenBottomOpensUpwards()
    {
        Menu action(QStringLiteral("Zoom"), Menu::MenuSizeMedium);
        addItems(action);
        Host host(action);
        QVERIFY(host.exposed());
        const QRect available = host.window.screen()->availableGeometry();

        host.window.move(available.left() + 50, available.bottom() - host.window.height() - 20);
        QTRY_VERIFY(host.button->mapToGlobal(QPoint(0, host.button->height())).y() + 100 > available.bottom());
        QVERIFY(pressOpens(host.button, QPoint(3, 3)));
        QMenu *menu = openMenu();
        const QRect last = menu->actionGeometry(menu->actions().last());
        QCOMPARE(menu->mapToGlobal(last.topLeft()).y(), host.button->mapToGlobal(QPoint(0, 0)).y() - 30);
        QVERIFY(escapeMenu());
        release(host.button, QPoint(3, 3));

        host.window.move(available.left() + 50, available.top() + 50);
        QTRY_COMPARE(host.window.pos(), QPoint(available.left() + 50, available.top() + 50));
        QVERIFY(pressOpens(host.button, QPoint(3, 3)));
        QCOMPARE(openMenu()->pos(), host.button->mapToGlobal(QPoint(0, host.button->height())));
        QVERIFY(escapeMenu());
    }

    void otherPopupTypes_data()
    {
        QTest::addColumn<int>("popupType");
        QTest::addColumn<bool>("opens");
        QTest::addColumn<bool>("viewPopup");
        QTest::newRow("view popup") << int(RibbonCatMenuAction::PopupView) << true << true;
        QTest::newRow("palette") << int(RibbonCatMenuAction::PopupPalette) << true << false;
        QTest::newRow("list preview") << int(RibbonCatMenuAction::PopupListPreview) << false << false;
    }

    void otherPopupTypes()
    {
        QFETCH(int, popupType);
        QFETCH(bool, opens);
        QFETCH(bool, viewPopup);

        Menu action(QStringLiteral("View"), Menu::MenuSizeMedium, Menu::ePopupType(popupType));
        addItems(action);
        action.addTopAction(m_plain.get());
        Host host(action);
        QVERIFY(host.exposed());
        const int before = topLevelCount();

        click(host.button, QPoint(3, 3));
        if (!opens) {
            QVERIFY(!openMenu());
            // Nothing open: the next press is not blocked by a stale state.
            return;
        }
        QTRY_VERIFY(openMenu());
        QCOMPARE(qobject_cast<RibbonViewPopup *>(openMenu()) != nullptr, viewPopup);
        QPointer<QMenu> popup = openMenu();
        QTest::keyClick(popup, Qt::Key_Escape);
        QTRY_VERIFY(!popup);
        QTRY_COMPARE(topLevelCount(), before);

        // Opens again after it closed.
        QVERIFY(pressOpens(host.button, QPoint(3, 3)));
        QVERIFY(escapeMenu());
    }

    void emptyMenuDoesNotLockTheButton_data()
    {
        QTest::addColumn<int>("popupType");
        QTest::newRow("menu") << int(RibbonCatMenuAction::PopupMenu);
        QTest::newRow("view popup") << int(RibbonCatMenuAction::PopupView);
    }

    void emptyMenuDoesNotLockTheButton()
    {
        QFETCH(int, popupType);
        Menu action(QStringLiteral("Empty"), Menu::MenuSizeMedium, Menu::ePopupType(popupType));
        Host host(action);
        QVERIFY(host.exposed());
        click(host.button, QPoint(3, 3));
        // A menu without entries does not open at all.
        if (popupType == RibbonCatMenuAction::PopupMenu)
            QVERIFY(!QApplication::activePopupWidget());
        if (QWidget *popup = QApplication::activePopupWidget())
            QTest::keyClick(popup, Qt::Key_Escape);
        QTRY_VERIFY(!QApplication::activePopupWidget());
        QTRY_COMPARE(topLevelCount(), m_topLevels + 1);

        // Items arrive later: the button opens them.
        action.addAction(m_plain.get(), false);
        action.addTopAction(m_plain.get());
        QVERIFY(pressOpens(host.button, QPoint(3, 3)));
        QVERIFY(escapeMenu());
    }

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

        QMouseEvent moved(QEvent::MouseMove, QPoint(3, 3), Qt::NoButton, Qt::NoButton, Qt::NoModifier);
        group->processEvents(&moved);
        QMouseEvent released(QEvent::MouseButtonRelease, QPoint(3, 3), Qt::LeftButton, Qt::NoButton,
                             Qt::NoModifier);
        group->processEvents(&released);
        QEvent other(QEvent::MouseButtonPress);
        group->processEvents(&other);
        group->processEvents(nullptr);
        QVERIFY(!openMenu());

        QMouseEvent pressed(QEvent::MouseButtonPress, QPoint(3, 3), Qt::LeftButton, Qt::LeftButton,
                            Qt::NoModifier);
        group->processEvents(&pressed);
        QTRY_VERIFY(openMenu());
        QCOMPARE(openMenu()->pos(), strip.mapToGlobal(QPoint(0, 22)));
        QVERIFY(escapeMenu());
    }

    void popupDiesWithItsButton()
    {
        Menu action(QStringLiteral("Layout"), Menu::MenuSizeLarge, Menu::PopupView);
        action.addTopAction(m_plain.get());
        auto host = std::make_unique<Host>(action);
        QVERIFY(host->exposed());
        QVERIFY(pressOpens(host->button, QPoint(5, 5)));
        QPointer<QMenu> popup = openMenu();
        host.reset();
        QTRY_VERIFY(!popup);
    }

    void popupDeletedWhileOpen()
    {
        Menu action(QStringLiteral("Layout"), Menu::MenuSizeSmall);
        addItems(action);
        Host host(action);
        QVERIFY(host.exposed());
        QVERIFY(pressOpens(host.button, QPoint(3, 3)));
        delete openMenu();
        release(host.button, QPoint(3, 3));
        QVERIFY(!openMenu());
        QVERIFY(pressOpens(host.button, QPoint(3, 3)));
        QVERIFY(escapeMenu());
    }

    void buttonOutlivesItsAction()
    {
        auto *action = new Menu(QStringLiteral("Gone"), Menu::MenuSizeMedium);
        Host host(*action);
        QVERIFY(host.exposed());
        delete action;
        QVERIFY(!host.button->action());
        click(host.button, QPoint(3, 3));
        QVERIFY(!openMenu());
        host.button->repaint();
        QVERIFY(host.button->sizeHint().isValid());
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
        const QImage on = button.grab().toImage();
        QCOMPARE(on != off, differs);

        // Disabled: no background at all, checked or not.
        action.setEnabled(false);
        const QImage disabledOn = button.grab().toImage();
        bold.setChecked(false);
        QCOMPARE(button.grab().toImage(), disabledOn);
    }

    void largeArrowPosition_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("centred");
        QTest::newRow("one line") << QStringLiteral("Go") << true;
        QTest::newRow("two lines") << QStringLiteral("Insert page break here") << false;
    }

    void largeArrowPosition()
    {
        QFETCH(QString, text);
        QFETCH(bool, centred);

        Menu action(text, Menu::MenuSizeLarge);
        RibbonCatMenuButton button(action, nullptr);
        button.resize(button.sizeHint());
        const QImage image = button.grab().toImage();
        const int w = button.width();
        const int arrowX = centred ? (w - 5) / 2 : w - 7;
        const int y = scaled(56);
        // The arrow's top row is drawn; the same row at the other place is background.
        const QRgb background = image.pixel(0, y);
        QVERIFY(image.pixel(arrowX + 2, y) != background);
        const int otherX = centred ? w - 7 : (w - 5) / 2;
        QCOMPARE(image.pixel(otherX + 2, y), background);
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

        auto grabAt = [button](const QPoint *cursor) {
            button->setAttribute(Qt::WA_UnderMouse, cursor != nullptr);
            QCursor::setPos(cursor ? button->mapToGlobal(*cursor) : QPoint(-100, -100));
            return button->grab().toImage();
        };
        const QImage away = grabAt(nullptr);
        const QImage overCaption = grabAt(&caption);
        const QImage overArrow = grabAt(&arrow);
        QVERIFY(overCaption != away);
        QVERIFY(overArrow != away);
        // Only a split button tells its two parts apart.
        QCOMPARE(overCaption != overArrow, split);

        // A disabled menu shows no hover.
        action.setEnabled(false);
        const QImage disabledAway = grabAt(nullptr);
        QCOMPARE(grabAt(&caption), disabledAway);
        button->setAttribute(Qt::WA_UnderMouse, false);
    }

    void drawBorderShowsTheRestingOutline()
    {
        Menu action(QStringLiteral("Zoom"), Menu::MenuSizeMedium);
        RibbonCatMenuButton button(action, nullptr);
        button.resize(button.sizeHint());
        const QImage plain = button.grab().toImage();
        button.drawBorder(true);
        const QImage bordered = button.grab().toImage();
        QVERIFY(plain != bordered);
        button.drawBorder(false);
        QCOMPARE(button.grab().toImage(), plain);
    }
};

ZEL_TEST_MAIN(tst_RibbonMenuButton)
#include "tst_ribbonmenubutton.moc"
