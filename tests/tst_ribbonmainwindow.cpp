#include "ZelTest.h"

#include "BackstageView.h"
#include "BackstageWelcomeScreen.h"
#include "RibbonButtonMain.h"
#include "RibbonStyle.h"
#include "RibbonCatSimpleAction.h"
#include "RibbonCategoriesPanelAction.h"
#include "RibbonCategoryAction.h"
#include "RibbonContextCategoryPanel.h"
#include "RibbonContextCategoryPanelAction.h"
#include "RibbonMainWindow.h"
#include "RibbonMenuBar.h"
#include "RibbonMenuBarButton.h"
#include "RibbonPlatform.h"
#include "RibbonQuickAccessBar.h"
#include "RibbonStatusBar.h"
#include "RibbonSysButton.h"

#include <QLabel>
#include <QPushButton>
#include <QMenu>
#include <QPointer>

#include <memory>

using namespace zel;

Q_DECLARE_METATYPE(RibbonMainWindow::View)

class tst_RibbonMainWindow : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void setActiveView_data();
    void setActiveView();
    void escapeAndHideReturnToMainView();
    void backstageBackReturnsToMainView();
    void titleOverBackstage_data();
    void titleOverBackstage();
    void nullCentralWidgetLeavesStretchingArea();
    void showTitleBar();
    void frameCell_data();
    void frameCell();
    void hitTest();
    void captionDragMovesWindow();
    void doubleClickOnCaptionMaximizes();
    void systemMenuActions();
    void systemMenuEnabledByState();
    void systemMenuMoveAndSize_data();
    void systemMenuMoveAndSize();
    void activateWindowUnminimizes();
    void deletedCentralWidgetLeavesStretchingArea();
    void restoreGeometryRoundTrip();
    void marginsFollowState();
    void titleIsPainted();
    void contextualBandBesideTitle();
    void maximizeButtonFollowsState();
    void sysButtonStates();
    void styleChangeRepaints();
    void deleteWindowWithModelInPlace();
    void deleteActionsBeforeWindow();
    void hiddenPagesDoNotWidenTheWindow();

private:
    // A window with one tab holding one category with one command, shown at a fixed
    // place.
    void buildWindow(bool show = true);

    std::unique_ptr<RibbonMainWindow> m_window;
    std::unique_ptr<QObject> m_owner;
    RibbonCategoriesPanelAction *m_tab = nullptr;
    RibbonCategoryAction *m_category = nullptr;
    RibbonCatSimpleAction *m_command = nullptr;
};

static QtMessageHandler s_previousHandler = nullptr;

// Bounding box of the pixels that differ between two grabs, within rows [top, top + height).
static QRect changedRect(const QImage &a, const QImage &b, int top, int height)
{
    QRect changed;
    for (int y = top; y < top + height; ++y) {
        for (int x = 0; x < a.width(); ++x) {
            if (a.pixel(x, y) != b.pixel(x, y))
                changed |= QRect(x, y, 1, 1);
        }
    }
    return changed;
}

// The test platform reports every window-system request it does not carry out (masks,
// raising windows); those reports say nothing about the window.
static void quietHandler(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (message.startsWith(QLatin1String("This plugin does not support")))
        return;
    s_previousHandler(type, context, message);
}

void tst_RibbonMainWindow::initTestCase()
{
    s_previousHandler = qInstallMessageHandler(quietHandler);
}

void tst_RibbonMainWindow::init()
{
    m_owner.reset(new QObject);
}

void tst_RibbonMainWindow::cleanup()
{
    m_window.reset();
    m_owner.reset();
}

void tst_RibbonMainWindow::buildWindow(bool show)
{
    m_window.reset(new RibbonMainWindow);
    m_window->setWindowTitle(QStringLiteral("Document"));
    m_tab = new RibbonCategoriesPanelAction(QStringLiteral("Home"), m_owner.get());
    m_category = new RibbonCategoryAction(QStringLiteral("Clipboard"), m_owner.get());
    m_command = new RibbonCatSimpleAction(QStringLiteral("Paste"), RibbonCatSimpleAction::SizeLarge, m_owner.get());
    m_category->addAction(m_command, 0);
    m_tab->addCategory(m_category);
    m_window->ribbonMenuBar().addAction(m_tab);
    if (show) {
        m_window->setGeometry(100, 100, 900, 700);
        m_window->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    }
}

void tst_RibbonMainWindow::setActiveView_data()
{
    QTest::addColumn<RibbonMainWindow::View>("from");
    QTest::addColumn<RibbonMainWindow::View>("to");
    QTest::addColumn<int>("emitted");

    QTest::newRow("same value") << RibbonMainWindow::MainView << RibbonMainWindow::MainView << 0;
    QTest::newRow("main to welcome") << RibbonMainWindow::MainView << RibbonMainWindow::WelcomeScreen << 1;
    QTest::newRow("welcome to backstage")
        << RibbonMainWindow::WelcomeScreen << RibbonMainWindow::BackstagePanel << 1;
    QTest::newRow("backstage to main") << RibbonMainWindow::BackstagePanel << RibbonMainWindow::MainView << 1;
    QTest::newRow("unknown view") << RibbonMainWindow::BackstagePanel << RibbonMainWindow::View(3) << 0;
}

void tst_RibbonMainWindow::setActiveView()
{
    QFETCH(RibbonMainWindow::View, from);
    QFETCH(RibbonMainWindow::View, to);
    QFETCH(int, emitted);

    buildWindow();
    m_window->setActiveView(from);
    QSignalSpy spy(m_window.get(), SIGNAL(activeViewChanged(int)));
    m_window->setActiveView(to);
    QCOMPARE(spy.count(), emitted);
    if (emitted) {
        QCOMPARE(spy.at(0).at(0).toInt(), int(from));
        QCOMPARE(m_window->activeView(), to);
    } else {
        QCOMPARE(m_window->activeView(), from);
    }
    // Only the main view shows the ribbon bar.
    QCOMPARE(m_window->ribbonMenuBar().isVisible(), m_window->activeView() == RibbonMainWindow::MainView);
}

void tst_RibbonMainWindow::escapeAndHideReturnToMainView()
{
    buildWindow();
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    QSignalSpy spy(m_window.get(), SIGNAL(activeViewChanged(int)));

    QTest::keyClick(m_window.get(), Qt::Key_Escape);
    m_window->hideBackstagePanel();
    QCOMPARE(m_window->activeView(), RibbonMainWindow::MainView);
    QCOMPARE(spy.count(), 0);

    for (RibbonMainWindow::View view : {RibbonMainWindow::BackstagePanel, RibbonMainWindow::WelcomeScreen}) {
        for (bool byKey : {true, false}) {
            m_window->setActiveView(view);
            spy.clear();
            if (byKey)
                QTest::keyClick(m_window.get(), Qt::Key_Escape);
            else
                m_window->hideBackstagePanel();
            QCOMPARE(m_window->activeView(), RibbonMainWindow::MainView);
            QCOMPARE(spy.count(), 1);
            QCOMPARE(spy.at(0).at(0).toInt(), int(view));
        }
    }

    // Back in the main view the key is free again for the host's widgets.
    auto *edit = new QLabel(QStringLiteral("central"));
    m_window->setCentralWidget(edit);
    spy.clear();
    QTest::keyClick(m_window.get(), Qt::Key_Escape);
    QCOMPARE(spy.count(), 0);
}

void tst_RibbonMainWindow::backstageBackReturnsToMainView()
{
    buildWindow();
    BackstageView &backstage = m_window->backstageView();
    backstage.addItem(QStringLiteral("Open"), new QLabel(QStringLiteral("open pane")));

    // The main button toggles the backstage.
    RibbonButtonMain *file = m_window->ribbonMenuBar().mainMenuButton();
    QSignalSpy spy(m_window.get(), SIGNAL(activeViewChanged(int)));
    QTest::mouseClick(file, Qt::LeftButton);
    QCOMPARE(m_window->activeView(), RibbonMainWindow::BackstagePanel);
    QTest::mouseClick(file, Qt::LeftButton);
    QCOMPARE(m_window->activeView(), RibbonMainWindow::MainView);
    QCOMPARE(spy.count(), 2);
    QCOMPARE(spy.at(1).at(0).toInt(), int(RibbonMainWindow::BackstagePanel));

    QTest::mouseClick(file, Qt::LeftButton);
    QVERIFY(backstage.isVisible());
    QVERIFY(!m_window->ribbonMenuBar().isVisible());

    // Choosing an entry stays in the backstage; Back leaves it.
    emit backstage.itemClicked(QStringLiteral("Open"));
    QCOMPARE(m_window->activeView(), RibbonMainWindow::BackstagePanel);
    auto *back = backstage.findChild<QPushButton *>();
    QVERIFY(back);
    spy.clear();
    QTest::mouseClick(back, Qt::LeftButton);
    QCOMPARE(m_window->activeView(), RibbonMainWindow::MainView);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.at(0).at(0).toInt(), int(RibbonMainWindow::BackstagePanel));
    QVERIFY(m_window->ribbonMenuBar().isVisible());
}

void tst_RibbonMainWindow::titleOverBackstage_data()
{
    QTest::addColumn<RibbonMainWindow::View>("view");
    QTest::newRow("backstage") << RibbonMainWindow::BackstagePanel;
    QTest::newRow("welcome screen") << RibbonMainWindow::WelcomeScreen;
}

void tst_RibbonMainWindow::titleOverBackstage()
{
    QFETCH(RibbonMainWindow::View, view);
    buildWindow();
    m_window->setActiveView(view);
    QApplication::processEvents();
    QWidget *page = &m_window->backstageView();
    int navigationWidth = m_window->backstageView().leftPaneRect().width();
    if (view == RibbonMainWindow::WelcomeScreen) {
        page = &m_window->welcomeScreen();
        navigationWidth = m_window->welcomeScreen().leftPaneRect().width();
    }
    QVERIFY(page->isVisible());
    QVERIFY(navigationWidth > 20);

    const int m = m_window->frameMargin();
    QImage image = m_window->grab().toImage();
    const QColor column = RibbonApplication::theApp().ribbonStyle().frameBorderColor();
    // The navigation column's colour continues up into the title row; the rest is white.
    QCOMPARE(image.pixelColor(m + 10, m + 2), column);
    QCOMPARE(image.pixelColor(m + navigationWidth + 10, m + 2), QColor(Qt::white));
    // Below the title row the page itself paints the same column.
    const QPoint pagePoint = page->mapTo(m_window.get(), QPoint(10, 10));
    QCOMPARE(image.pixelColor(pagePoint), column);

    // The title is drawn over the white part, centred on the panes' area.
    m_window->setWindowTitle(QString());
    QApplication::processEvents();
    const QRect changed = changedRect(image, m_window->grab().toImage(), m, 26);
    QVERIFY(changed.isValid());
    QVERIFY(changed.left() > m + navigationWidth);
}

void tst_RibbonMainWindow::nullCentralWidgetLeavesStretchingArea()
{
    buildWindow();
    RibbonMenuBar &bar = m_window->ribbonMenuBar();
    RibbonStatusBar &status = m_window->ribbonStatusBar();

    QPointer<QLabel> central = new QLabel(QStringLiteral("text"), m_window.get());
    m_window->setCentralWidget(central);
    QCOMPARE(m_window->centralWidget(), central.data());
    QTRY_COMPARE(central->sizePolicy().verticalPolicy(), QSizePolicy::Expanding);

    QTRY_VERIFY(central->isVisible());
    m_window->setCentralWidget(nullptr);
    QCOMPARE(m_window->centralWidget(), nullptr);
    // The previous widget is the host's: neither deleted nor hidden.
    QVERIFY(central);
    QVERIFY(!central->isHidden());

    auto gap = [&] {
        const QPoint barBottom = bar.mapTo(m_window.get(), bar.rect().bottomLeft());
        const QPoint statusTop = status.mapTo(m_window.get(), QPoint(0, 0));
        return statusTop.y() - barBottom.y() - 1;
    };
    auto statusAtBottom = [&] {
        return status.mapTo(m_window.get(), status.rect().bottomLeft()).y()
               == m_window->height() - 1 - m_window->contentsMargins().bottom();
    };
    QTRY_VERIFY(statusAtBottom());
    const int before = gap();
    QVERIFY(before > 0);

    m_window->resize(m_window->width(), m_window->height() + 120);
    QTRY_COMPARE(gap(), before + 120);
    QVERIFY(statusAtBottom());

    // Setting a widget again puts it in the same place.
    m_window->setCentralWidget(central);
    QTRY_COMPARE(central->height(), before + 120);
    delete central;
}

void tst_RibbonMainWindow::showTitleBar()
{
    buildWindow();
    const QList<QWidget *> titleWidgets = {
        &m_window->quickAccessBar(),
        m_window->findChild<QWidget *>(QStringLiteral("sysMenuButton")),
        m_window->findChild<QWidget *>(QStringLiteral("minimizeButton")),
        m_window->findChild<QWidget *>(QStringLiteral("maximizeButton")),
        m_window->findChild<QWidget *>(QStringLiteral("closeButton")),
    };
    for (QWidget *w : titleWidgets) {
        QVERIFY(w);
        QVERIFY(w->isVisible());
    }
    const int barTop = m_window->ribbonMenuBar().mapTo(m_window.get(), QPoint()).y();

    QVERIFY(m_window->showTitleBar());
    m_window->setShowTitleBar(false);
    QVERIFY(!m_window->showTitleBar());
    for (QWidget *w : titleWidgets)
        QVERIFY2(!w->isVisible(), qPrintable(w->objectName()));
    // The title row collapses: the ribbon bar moves up.
    QTRY_VERIFY(m_window->ribbonMenuBar().mapTo(m_window.get(), QPoint()).y() < barTop);

    m_window->setShowTitleBar(true);
    for (QWidget *w : titleWidgets)
        QVERIFY(w->isVisible());
    QTRY_COMPARE(m_window->ribbonMenuBar().mapTo(m_window.get(), QPoint()).y(), barTop);

    // Over the backstage only the window buttons stay.
    m_window->setActiveView(RibbonMainWindow::BackstagePanel);
    QVERIFY(!titleWidgets[0]->isVisible() && !titleWidgets[1]->isVisible());
    QVERIFY(titleWidgets[4]->isVisible());
    m_window->setActiveView(RibbonMainWindow::MainView);
    QVERIFY(titleWidgets[0]->isVisible() && titleWidgets[1]->isVisible());
}

void tst_RibbonMainWindow::frameCell_data()
{
    QTest::addColumn<QPoint>("offset"); // from the frame's top-left; negative x/y from its right/bottom end
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("column");

    using P = RibbonPlatform;
    const int f = P::sizingFrameThickness();
    const int c = P::captionHeight();
    QTest::newRow("caption middle") << QPoint(300, f + 2) << int(P::FrameTop) << int(P::FrameCentre);
    QTest::newRow("top frame over the menu button") << QPoint(f + 5, 1) << int(P::FrameTop) << int(P::FrameCentre);
    QTest::newRow("menu button") << QPoint(f + 5, f + 5) << int(P::FrameMiddle) << int(P::FrameCentre);
    QTest::newRow("right of the menu button") << QPoint(31, f + 5) << int(P::FrameTop) << int(P::FrameCentre);
    QTest::newRow("top-left corner") << QPoint(0, 0) << int(P::FrameTop) << int(P::FrameLeft);
    QTest::newRow("left side beside the caption") << QPoint(1, f + 3) << int(P::FrameMiddle) << int(P::FrameLeft);
    QTest::newRow("right side beside the caption") << QPoint(-1, f + 3) << int(P::FrameMiddle) << int(P::FrameRight);
    QTest::newRow("below the caption") << QPoint(300, f + c) << int(P::FrameMiddle) << int(P::FrameCentre);
    QTest::newRow("bottom frame") << QPoint(300, -1) << int(P::FrameBottom) << int(P::FrameCentre);
    QTest::newRow("above the bottom frame") << QPoint(300, -f - 1) << int(P::FrameMiddle) << int(P::FrameCentre);
}

void tst_RibbonMainWindow::frameCell()
{
    QFETCH(QPoint, offset);
    QFETCH(int, row);
    QFETCH(int, column);

    const QRect frame(50, 40, 600, 400);
    const QPoint p(offset.x() >= 0 ? frame.left() + offset.x() : frame.left() + frame.width() + offset.x(),
                   offset.y() >= 0 ? frame.top() + offset.y() : frame.top() + frame.height() + offset.y());
    RibbonPlatform::FrameRow r = RibbonPlatform::FrameBottom;
    RibbonPlatform::FrameColumn col = RibbonPlatform::FrameLeft;
    RibbonPlatform::frameCell(frame, p, &r, &col);
    QCOMPARE(int(r), row);
    QCOMPARE(int(col), column);
}

void tst_RibbonMainWindow::hitTest()
{
    buildWindow();
    QTest::qWait(0);
    RibbonMainWindow &w = *m_window;
    auto global = [&](QWidget *widget, const QPoint &p) { return widget->mapToGlobal(p); };

    QWidget *minimize = w.findChild<QWidget *>(QStringLiteral("minimizeButton"));
    RibbonMenuBarButton *tabButton = w.ribbonMenuBar().menuBarButton(m_tab);
    QVERIFY(tabButton);

    // The empty middle of the title row.
    QCOMPARE(w.hitTest(w.mapToGlobal(QPoint(w.width() / 2, w.frameMargin() + 5))), RibbonMainWindow::HitCaption);
    // Title buttons and the quick-access toolbar are controls.
    QCOMPARE(w.hitTest(global(minimize, QPoint(10, 10))), RibbonMainWindow::HitClient);
    QCOMPARE(w.hitTest(global(&w.quickAccessBar(), QPoint(2, 10))), RibbonMainWindow::HitClient);
    // An empty part of the tab row drags; a tab button does not.
    const QPoint tabRowEmpty = w.ribbonMenuBar().mapToGlobal(QPoint(w.ribbonMenuBar().width() / 2, 12));
    QCOMPARE(w.childAt(w.mapFromGlobal(tabRowEmpty)), &w.ribbonMenuBar());
    QCOMPARE(w.hitTest(tabRowEmpty), RibbonMainWindow::HitCaption);
    QCOMPARE(w.hitTest(global(tabButton, QPoint(5, 5))), RibbonMainWindow::HitClient);
    // The central area and the status bar are client.
    QCOMPARE(w.hitTest(w.mapToGlobal(QPoint(w.width() / 2, w.height() / 2 + 60))), RibbonMainWindow::HitClient);
    QCOMPARE(w.hitTest(global(&w.ribbonStatusBar(), QPoint(w.ribbonStatusBar().width() / 2, 10))),
             RibbonMainWindow::HitClient);
    // Outside the window.
    QCOMPARE(w.hitTest(w.mapToGlobal(QPoint(-20, 5))), RibbonMainWindow::HitClient);
}

void tst_RibbonMainWindow::captionDragMovesWindow()
{
    buildWindow();
    QTest::qWait(0);
    RibbonMainWindow &w = *m_window;
    const QPoint startPos = w.pos();
    const QPoint press = QPoint(w.width() / 2, w.frameMargin() + 5);

    // The window system of the test platform declines to move windows, so the window
    // follows the mouse by itself.
    QTest::mousePress(&w, Qt::LeftButton, Qt::NoModifier, press);
    const QPoint to = w.mapToGlobal(press) + QPoint(30, 40);
    QMouseEvent move(QEvent::MouseMove, w.mapFromGlobal(to), to, Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&w, &move);
    QTRY_COMPARE(w.pos(), startPos + QPoint(30, 40));
    QTest::mouseRelease(&w, Qt::LeftButton, Qt::NoModifier, w.mapFromGlobal(to));

    // After the release the mouse no longer moves the window.
    const QPoint later = to + QPoint(50, 50);
    QMouseEvent free(QEvent::MouseMove, w.mapFromGlobal(later), later, Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(&w, &free);
    QTest::qWait(10);
    QCOMPARE(w.pos(), startPos + QPoint(30, 40));

    // Pressing on a tab button does not start a move.
    RibbonMenuBarButton *tabButton = w.ribbonMenuBar().menuBarButton(m_tab);
    QTest::mousePress(tabButton, Qt::LeftButton, Qt::NoModifier, QPoint(5, 5));
    const QPoint elsewhere = tabButton->mapToGlobal(QPoint(60, 60));
    QMouseEvent drag(QEvent::MouseMove, tabButton->mapFromGlobal(elsewhere), elsewhere, Qt::NoButton, Qt::LeftButton,
                     Qt::NoModifier);
    QApplication::sendEvent(tabButton, &drag);
    QTest::mouseRelease(tabButton, Qt::LeftButton, Qt::NoModifier, QPoint(5, 5));
    QTest::qWait(10);
    QCOMPARE(w.pos(), startPos + QPoint(30, 40));
}

void tst_RibbonMainWindow::doubleClickOnCaptionMaximizes()
{
    buildWindow();
    const QPoint caption(m_window->width() / 2, m_window->frameMargin() + 5);
    QTest::mouseDClick(m_window.get(), Qt::LeftButton, Qt::NoModifier, caption);
    QTRY_VERIFY(m_window->isMaximized());
    // The window system applies the maximised geometry a moment later.
    QTRY_COMPARE(m_window->geometry(), RibbonPlatform::availableGeometry(m_window.get()));
    QTest::mouseDClick(m_window.get(), Qt::LeftButton, Qt::NoModifier,
                       QPoint(m_window->width() / 2, m_window->frameMargin() + 5));
    QTRY_VERIFY(!m_window->isMaximized());

    // A double click in the central area does nothing to the window.
    QTest::mouseDClick(m_window.get(), Qt::LeftButton, Qt::NoModifier,
                       QPoint(m_window->width() / 2, m_window->height() / 2 + 60));
    QTest::qWait(10);
    QVERIFY(!m_window->isMaximized());
}

void tst_RibbonMainWindow::systemMenuActions()
{
    buildWindow();
    QWidget *sysButton = m_window->findChild<QWidget *>(QStringLiteral("sysMenuButton"));
    QTest::mouseClick(sysButton, Qt::LeftButton);
    auto *menu = m_window->findChild<QMenu *>(QStringLiteral("systemMenu"));
    QVERIFY(menu);
    QTRY_VERIFY(menu->isVisible());
    menu->hide();

    auto action = [&](const char *name) { return menu->findChild<QAction *>(QLatin1String(name)); };
    QVERIFY(action("maximizeAction"));

    action("maximizeAction")->trigger();
    QTRY_VERIFY(m_window->isMaximized());
    action("restoreAction")->trigger();
    QTRY_VERIFY(!m_window->isMaximized());
    QCOMPARE(m_window->geometry(), QRect(100, 100, 900, 700));
    action("minimizeAction")->trigger();
    QTRY_VERIFY(m_window->isMinimized());
    action("restoreAction")->trigger();
    QTRY_VERIFY(!m_window->isMinimized());

    QVERIFY(m_window->isVisible());
    action("closeAction")->trigger();
    QTRY_VERIFY(!m_window->isVisible());
}

void tst_RibbonMainWindow::systemMenuEnabledByState()
{
    buildWindow();
    auto *menu = m_window->findChild<QMenu *>(QStringLiteral("systemMenu"));
    QVERIFY(menu);
    auto enabled = [&] {
        menu->popup(QPoint(0, 0)); // the menu brings its entries up to date as it opens
        QStringList names;
        for (QAction *a : menu->actions()) {
            if (!a->isSeparator() && a->isEnabled())
                names << a->objectName();
        }
        menu->hide();
        return names.join(QLatin1Char(' '));
    };
    QCOMPARE(enabled(), QStringLiteral("moveAction sizeAction minimizeAction maximizeAction closeAction"));
    m_window->showMaximized();
    QTRY_VERIFY(m_window->isMaximized());
    QCOMPARE(enabled(), QStringLiteral("restoreAction minimizeAction closeAction"));
    m_window->showNormal();
    QTRY_VERIFY(!m_window->isMaximized());
    m_window->setFixedSize(m_window->size());
    QCOMPARE(enabled(), QStringLiteral("moveAction minimizeAction closeAction"));
}

void tst_RibbonMainWindow::systemMenuMoveAndSize_data()
{
    QTest::addColumn<QString>("entry");
    QTest::addColumn<int>("finishKey");
    QTest::addColumn<QRect>("expected");

    const QRect start(100, 100, 900, 700);
    QTest::newRow("move, click") << QStringLiteral("moveAction") << 0 << start.translated(40, 30);
    QTest::newRow("size, click") << QStringLiteral("sizeAction") << 0 << start.adjusted(0, 0, 40, 30);
    QTest::newRow("move, Escape") << QStringLiteral("moveAction") << int(Qt::Key_Escape) << start;
    QTest::newRow("size, Return") << QStringLiteral("sizeAction") << int(Qt::Key_Return) << start.adjusted(0, 0, 40, 30);
}

void tst_RibbonMainWindow::systemMenuMoveAndSize()
{
    QFETCH(QString, entry);
    QFETCH(int, finishKey);
    QFETCH(QRect, expected);

    buildWindow();
    RibbonMainWindow &w = *m_window;
    auto *menu = w.findChild<QMenu *>(QStringLiteral("systemMenu"));
    QAction *action = menu->findChild<QAction *>(entry);
    QVERIFY(action);

    // The test platform declines system moves, so the window follows the mouse itself
    // until the next click.
    const QPoint anchor = QCursor::pos();
    action->trigger();
    const QPoint to = anchor + QPoint(40, 30);
    QMouseEvent move(QEvent::MouseMove, w.mapFromGlobal(to), to, Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(&w, &move);
    if (finishKey)
        QTest::keyClick(&w, Qt::Key(finishKey));
    else
        QTest::mouseClick(&w, Qt::LeftButton, Qt::NoModifier, w.mapFromGlobal(to));
    QTRY_COMPARE(w.geometry(), expected);

    // Finished: further moves leave the window alone.
    const QPoint later = to + QPoint(25, 25);
    QMouseEvent after(QEvent::MouseMove, w.mapFromGlobal(later), later, Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(&w, &after);
    QTest::qWait(10);
    QCOMPARE(w.geometry(), expected);
    QCOMPARE(QWidget::mouseGrabber(), nullptr);
}

void tst_RibbonMainWindow::activateWindowUnminimizes()
{
    buildWindow();
    auto *other = new QWidget;
    other->setAttribute(Qt::WA_DeleteOnClose);
    other->show();
    QVERIFY(QTest::qWaitForWindowExposed(other));
    other->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(other));
    m_window->showMinimized();
    QTRY_VERIFY(m_window->isMinimized());

    m_window->activateWindow();
    QTRY_VERIFY(!m_window->isMinimized());
    QVERIFY(m_window->isVisible());
    QTRY_VERIFY(m_window->isActiveWindow());
    other->close();
}

void tst_RibbonMainWindow::deletedCentralWidgetLeavesStretchingArea()
{
    buildWindow();
    RibbonStatusBar &status = m_window->ribbonStatusBar();
    auto statusBottom = [&] { return status.mapTo(m_window.get(), status.rect().bottomLeft()).y(); };
    QTRY_COMPARE(statusBottom(), m_window->height() - 1 - m_window->contentsMargins().bottom());
    const int bottom = statusBottom();

    auto *central = new QLabel(QStringLiteral("text"));
    m_window->setCentralWidget(central);
    const int barHeight = m_window->ribbonMenuBar().height();
    delete central;
    QCOMPARE(m_window->centralWidget(), nullptr);
    m_window->resize(m_window->width(), m_window->height() + 80);
    QTRY_COMPARE(statusBottom(), bottom + 80);
    // The freed area stretches, not the ribbon bar.
    QCOMPARE(m_window->ribbonMenuBar().height(), barHeight);

    // A later widget takes the area as usual.
    auto *next = new QLabel(QStringLiteral("next"));
    m_window->setCentralWidget(next);
    QTRY_VERIFY(next->isVisible());
    QTRY_COMPARE(next->mapTo(m_window.get(), next->rect().bottomLeft()).y() + 1,
                 status.mapTo(m_window.get(), QPoint()).y());
}

void tst_RibbonMainWindow::restoreGeometryRoundTrip()
{
    buildWindow(false);
    const QRect normal(60, 70, 760, 660);
    m_window->setRestoreGeometry(normal);
    QCOMPARE(m_window->restoreGeometry(), normal);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    QTRY_VERIFY(m_window->isMaximized());
    QCOMPARE(m_window->restoreGeometry(), normal);

    m_window->showNormal();
    QTRY_COMPARE(m_window->geometry(), normal);
    QVERIFY(!m_window->isMaximized());
    QVERIFY(!m_window->restoreGeometry().isValid());

    // Once used, maximising and restoring again keeps the window's own geometry.
    m_window->showMaximized();
    QTRY_VERIFY(m_window->isMaximized());
    m_window->showNormal();
    QTRY_COMPARE(m_window->geometry(), normal);

    // An invalid geometry given to a hidden window leaves its state alone.
    buildWindow(false);
    m_window->setRestoreGeometry(QRect());
    QVERIFY(!m_window->isMaximized());
}

void tst_RibbonMainWindow::marginsFollowState()
{
    buildWindow();
    const int frame = RibbonPlatform::sizingFrameThickness();
    QCOMPARE(m_window->frameMargin(), frame);
    QCOMPARE(m_window->contentsMargins(), QMargins(frame, frame, frame, frame));
    // A one-pixel frame line stays visible around the contents.
    QCOMPARE(m_window->mask().boundingRect(), m_window->rect().adjusted(frame - 1, frame - 1, 1 - frame, 1 - frame));

    m_window->setActiveView(RibbonMainWindow::BackstagePanel);
    QCOMPARE(m_window->contentsMargins(), QMargins(frame, frame + 3, frame, frame));
    m_window->setActiveView(RibbonMainWindow::MainView);

    m_window->showMaximized();
    QTRY_VERIFY(m_window->isMaximized());
    QTRY_COMPARE(m_window->frameMargin(), 0);
    QCOMPARE(m_window->contentsMargins(), QMargins());
}

static QImage grabTitleRow(RibbonMainWindow &w)
{
    QApplication::processEvents();
    const int top = w.frameMargin();
    return w.grab(QRect(0, top, w.width(), 26)).toImage();
}

void tst_RibbonMainWindow::titleIsPainted()
{
    buildWindow();
    m_window->setWindowTitle(QString());
    const QImage empty = grabTitleRow(*m_window);
    m_window->setWindowTitle(QStringLiteral("Quarterly report"));
    const QImage titled = grabTitleRow(*m_window);
    QVERIFY(empty != titled);

    // The title is centred: the change lies around the middle, not at the ends.
    const int middle = changedRect(titled, empty, 0, titled.height()).center().x();
    QVERIFY2(qAbs(middle - titled.width() / 2) < 60, qPrintable(QString::number(middle)));

    // Without the title bar no title is drawn.
    m_window->setShowTitleBar(false);
    QApplication::processEvents();
    const QImage hiddenTitled = m_window->grab().toImage();
    m_window->setWindowTitle(QString());
    QApplication::processEvents();
    QCOMPARE(m_window->grab().toImage(), hiddenTitled);
}

void tst_RibbonMainWindow::contextualBandBesideTitle()
{
    buildWindow();
    const QColor background(255, 200, 0);
    auto *set = new RibbonContextCategoryPanelAction(background, QColor(200, 0, 0), QColor(0, 0, 120), m_owner.get());
    set->setText(QStringLiteral("Picture Tools"));
    auto *format = new RibbonCategoriesPanelAction(QStringLiteral("Format"), m_owner.get());
    set->addPanelAction(format);
    RibbonMenuBar &bar = m_window->ribbonMenuBar();
    bar.ribbonContextCategoryPanel().addContextPanelAction(set);
    bar.showContextPanelAction(set);
    QCOMPARE(bar.displayedContextPanel(), set);
    QTest::qWait(0);

    QRect band;
    bar.displayedContextPanelRect(band);
    QVERIFY(band.isValid());
    const QRect local(m_window->mapFromGlobal(band.topLeft()), band.size());
    const QImage image = m_window->grab().toImage();
    // Below the top rows and above the set's caption.
    const int titleY = m_window->frameMargin() + 5;
    QCOMPARE(image.pixelColor(local.left() + 3, titleY), background);
    QCOMPARE(image.pixelColor(local.left() + 3, m_window->frameMargin() + 1), QColor(200, 0, 0));

    // The title is still drawn in the title row, beside the band.
    m_window->setWindowTitle(QString());
    QApplication::processEvents();
    const QRect title = changedRect(image, m_window->grab().toImage(), m_window->frameMargin(), 26);
    QVERIFY(title.isValid() && title.right() >= local.right() + 3);

    // Hiding the set takes the band away.
    bar.hideContextPanelAction(set);
    QTRY_VERIFY(m_window->grab().toImage().pixelColor(local.left() + 3, titleY) != background);
}

void tst_RibbonMainWindow::maximizeButtonFollowsState()
{
    buildWindow();
    QWidget *button = m_window->findChild<QWidget *>(QStringLiteral("maximizeButton"));
    const QImage normal = button->grab().toImage();
    m_window->showMaximized();
    QTRY_VERIFY(m_window->isMaximized());
    QCOMPARE(button->toolTip(), QStringLiteral("Restore"));
    QVERIFY(button->grab().toImage() != normal);
    m_window->showNormal();
    QTRY_VERIFY(!m_window->isMaximized());
    QCOMPARE(button->grab().toImage(), normal);
}

void tst_RibbonMainWindow::sysButtonStates()
{
    buildWindow();
    auto *close = m_window->findChild<QPushButton *>(QStringLiteral("closeButton"));
    QVERIFY(close);
    QCOMPARE(close->size(), QSize(20, 20));
    QCOMPARE(close->focusPolicy(), Qt::NoFocus);

    const QImage normal = close->grab().toImage();
    close->setAttribute(Qt::WA_UnderMouse, true);
    const QImage hover = close->grab().toImage();
    close->setDown(true);
    const QImage pressed = close->grab().toImage();
    close->setDown(false);
    close->setAttribute(Qt::WA_UnderMouse, false);
    QVERIFY(hover != normal);
    QVERIFY(pressed != normal);
    QVERIFY(pressed != hover);
    QCOMPARE(close->grab().toImage(), normal);

    // The system-menu button shows the application icon and nothing else.
    auto *sysMenu = m_window->findChild<QPushButton *>(QStringLiteral("sysMenuButton"));
    const QImage noIcon = sysMenu->grab().toImage();
    QPixmap red(18, 18);
    red.fill(Qt::red);
    const QIcon previous = QApplication::windowIcon();
    QApplication::setWindowIcon(QIcon(red));
    const QImage withIcon = sysMenu->grab().toImage();
    QApplication::setWindowIcon(previous);
    QCOMPARE(withIcon.pixelColor(10, 10), QColor(Qt::red));
    QVERIFY(noIcon.pixelColor(10, 10) != QColor(Qt::red));
}

void tst_RibbonMainWindow::styleChangeRepaints()
{
    buildWindow();
    const QColor client = RibbonApplication::theApp().ribbonStyle().mainClientColor();
    QCOMPARE(m_window->palette().color(QPalette::Window), client);
    QPalette other = m_window->palette();
    other.setColor(QPalette::Window, Qt::magenta);
    m_window->setPalette(other);
    emit RibbonApplication::theApp().ribbonStyleChanged();
    QCOMPARE(m_window->palette().color(QPalette::Active, QPalette::Window), client);
    QCOMPARE(m_window->palette().color(QPalette::Inactive, QPalette::Window), client);
}

void tst_RibbonMainWindow::deleteWindowWithModelInPlace()
{
    buildWindow();
    QPointer<RibbonCatSimpleAction> command = m_command;
    auto *central = new QLabel(QStringLiteral("central"));
    m_window->setCentralWidget(central);
    QPointer<QLabel> guard = central;
    m_window->setActiveView(RibbonMainWindow::BackstagePanel);
    m_window.reset();
    // The model belongs to the host and outlives the window.
    QVERIFY(command);
    QVERIFY(m_tab->associatedWidgets().isEmpty());
    QVERIFY(!guard); // reparented into the window, it went with it
}

void tst_RibbonMainWindow::hiddenPagesDoNotWidenTheWindow()
{
    buildWindow();
    for (int i = 0; i < 8; ++i)
        m_window->welcomeScreen().addTemplate(QStringLiteral("Template %1").arg(i), QPixmap());
    const int welcomeWidth = m_window->welcomeScreen().minimumSizeHint().width();
    QVERIFY(m_window->minimumSizeHint().width() < welcomeWidth);

    m_window->setActiveView(RibbonMainWindow::WelcomeScreen);
    QVERIFY(m_window->minimumSizeHint().width() >= welcomeWidth);
    m_window->setActiveView(RibbonMainWindow::MainView);
    QVERIFY(m_window->minimumSizeHint().width() < welcomeWidth);
}

void tst_RibbonMainWindow::deleteActionsBeforeWindow()
{
    buildWindow();
    QPointer<RibbonMenuBarButton> tabButton = m_window->ribbonMenuBar().menuBarButton(m_tab);
    QVERIFY(tabButton);
    m_owner.reset();
    QVERIFY(!tabButton);
    // The window keeps working without the model.
    m_window->setActiveView(RibbonMainWindow::BackstagePanel);
    m_window->setActiveView(RibbonMainWindow::MainView);
    m_window->grab();
    m_window.reset();
}

ZEL_TEST_MAIN(tst_RibbonMainWindow)
#include "tst_ribbonmainwindow.moc"
