#include "ZelTest.h"

#include "BackstageView.h"
#include "BackstageWelcomeScreen.h"
#include "RibbonButtonMain.h"
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
#include "RibbonStyle.h"

#include <QLabel>
#include <QMenu>
#include <QPointer>
#include <QPushButton>

using namespace zel;

Q_DECLARE_METATYPE(RibbonMainWindow::View)

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

// Sends a mouse move with the given buttons held to a widget, at a global position.
static void moveMouse(QWidget *w, const QPoint &at, Qt::MouseButtons buttons = Qt::NoButton)
{
    QMouseEvent move(QEvent::MouseMove, w->mapFromGlobal(at), at, Qt::NoButton, buttons, Qt::NoModifier);
    QApplication::sendEvent(w, &move);
}

class tst_RibbonMainWindow : public QObject
{
    Q_OBJECT

    std::unique_ptr<RibbonMainWindow> m_window;
    std::unique_ptr<QObject> m_owner;
    RibbonCategoriesPanelAction *m_tab = nullptr;

    // A window with one tab holding one category with one command, shown at a fixed place.
    void buildWindow(bool show = true)
    {
        m_window.reset(new RibbonMainWindow);
        m_window->setWindowTitle(QStringLiteral("Document"));
        m_tab = new RibbonCategoriesPanelAction(QStringLiteral("Home"), m_owner.get());
        auto *category = new RibbonCategoryAction(QStringLiteral("Clipboard"), m_owner.get());
        category->addAction(
            new RibbonCatSimpleAction(QStringLiteral("Paste"), RibbonCatSimpleAction::SizeLarge, category), 0);
        m_tab->addCategory(category);
        m_window->ribbonMenuBar().addAction(m_tab);
        if (show) {
            m_window->setGeometry(100, 100, 900, 700);
            m_window->show();
            QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
        }
    }
    // A contextual set of one tab, registered and shown on the ribbon bar.
    void showContextSet(const QColor &background)
    {
        auto *set = new RibbonContextCategoryPanelAction(background, QColor(200, 0, 0), QColor(0, 0, 120),
                                                         m_owner.get());
        set->setText(QStringLiteral("Picture Tools"));
        set->addPanelAction(new RibbonCategoriesPanelAction(QStringLiteral("Format"), m_owner.get()));
        RibbonMenuBar &bar = m_window->ribbonMenuBar();
        bar.ribbonContextCategoryPanel().addContextPanelAction(set);
        bar.showContextPanelAction(set);
    }
    QWidget *child(const char *name) const { return m_window->findChild<QWidget *>(QLatin1String(name)); }
    QPoint caption() const { return QPoint(m_window->width() / 2, m_window->frameMargin() + 5); }
    QImage grabbed() const
    {
        QApplication::processEvents();
        return m_window->grab().toImage();
    }

private slots:
    void init() { m_owner.reset(new QObject); }

    void cleanup()
    {
        m_window.reset();
        m_owner.reset();
    }

    void setActiveView_data()
    {
        QTest::addColumn<RibbonMainWindow::View>("from");
        QTest::addColumn<RibbonMainWindow::View>("to");
        QTest::addColumn<int>("emitted");
        QTest::newRow("same value") << RibbonMainWindow::MainView << RibbonMainWindow::MainView << 0;
        QTest::newRow("to welcome") << RibbonMainWindow::MainView << RibbonMainWindow::WelcomeScreen << 1;
        QTest::newRow("to backstage") << RibbonMainWindow::WelcomeScreen << RibbonMainWindow::BackstagePanel << 1;
        QTest::newRow("to main") << RibbonMainWindow::BackstagePanel << RibbonMainWindow::MainView << 1;
        QTest::newRow("unknown") << RibbonMainWindow::BackstagePanel << RibbonMainWindow::View(3) << 0;
    }

    void setActiveView()
    {
        QFETCH(RibbonMainWindow::View, from);
        QFETCH(RibbonMainWindow::View, to);
        QFETCH(int, emitted);
        buildWindow();
        m_window->setActiveView(from);
        QSignalSpy spy(m_window.get(), SIGNAL(activeViewChanged(int)));
        m_window->setActiveView(to);
        QCOMPARE(spy.count(), emitted);
        if (emitted)
            QCOMPARE(spy.at(0).at(0).toInt(), int(from));
        QCOMPARE(m_window->activeView(), emitted ? to : from);
        QCOMPARE(m_window->ribbonMenuBar().isVisible(), m_window->activeView() == RibbonMainWindow::MainView);
    }

    void leavingTheBackstage()
    {
        buildWindow();
        m_window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
        QSignalSpy spy(m_window.get(), SIGNAL(activeViewChanged(int)));
        // Escape and hideBackstagePanel() leave either page for the main view.
        for (auto view : {RibbonMainWindow::BackstagePanel, RibbonMainWindow::WelcomeScreen}) {
            for (bool byKey : {true, false}) {
                m_window->setActiveView(view);
                spy.clear();
                if (byKey)
                    QTest::keyClick(m_window.get(), Qt::Key_Escape);
                else
                    m_window->hideBackstagePanel();
                QCOMPARE(spy.count(), 1);
                QCOMPARE(spy.at(0).at(0).toInt(), int(view));
                QCOMPARE(m_window->activeView(), RibbonMainWindow::MainView);
            }
        }

        // The main button toggles the backstage; choosing an entry stays there, Back leaves.
        BackstageView &backstage = m_window->backstageView();
        backstage.addItem(QStringLiteral("Open"), new QLabel(QStringLiteral("open pane")));
        RibbonButtonMain *file = m_window->ribbonMenuBar().mainMenuButton();
        QTest::mouseClick(file, Qt::LeftButton);
        QCOMPARE(m_window->activeView(), RibbonMainWindow::BackstagePanel);
        QTest::mouseClick(file, Qt::LeftButton);
        QCOMPARE(m_window->activeView(), RibbonMainWindow::MainView);
        QTest::mouseClick(file, Qt::LeftButton);
        emit backstage.itemClicked(QStringLiteral("Open"));
        QCOMPARE(m_window->activeView(), RibbonMainWindow::BackstagePanel);
        QTest::mouseClick(backstage.findChild<QPushButton *>(), Qt::LeftButton);
        QCOMPARE(m_window->activeView(), RibbonMainWindow::MainView);

        // In the main view the key is free for the host's widgets.
        m_window->setCentralWidget(new QLabel(QStringLiteral("central")));
        spy.clear();
        QTest::keyClick(m_window.get(), Qt::Key_Escape);
        QCOMPARE(spy.count(), 0);
    }

    void backstagePages()
    {
        buildWindow();
        for (int i = 0; i < 8; ++i)
            m_window->welcomeScreen().addTemplate(QStringLiteral("Template %1").arg(i), QPixmap());
        const int welcomeWidth = m_window->welcomeScreen().minimumSizeHint().width();
        QVERIFY(m_window->minimumSizeHint().width() < welcomeWidth); // hidden pages do not widen it
        const QColor column = RibbonApplication::theApp().ribbonStyle().frameBorderColor();
        const int m = m_window->frameMargin();
        for (auto view : {RibbonMainWindow::BackstagePanel, RibbonMainWindow::WelcomeScreen}) {
            m_window->setWindowTitle(QStringLiteral("Document"));
            m_window->setActiveView(view);
            const QRect left = view == RibbonMainWindow::WelcomeScreen ? m_window->welcomeScreen().leftPaneRect()
                                                                       : m_window->backstageView().leftPaneRect();
            const QImage image = grabbed();
            // The navigation column's colour continues up into the title row; the rest is white.
            QCOMPARE(image.pixelColor(m + 10, m + 2), column);
            QCOMPARE(image.pixelColor(m + left.width() + 10, m + 2), QColor(Qt::white));
            QCOMPARE(image.pixelColor(m_window->mapFromGlobal(left.topLeft()) + QPoint(10, 10)), column);
            // The title is drawn over the white part.
            m_window->setWindowTitle(QString());
            const QRect changed = changedRect(image, grabbed(), m, 26);
            QVERIFY(changed.isValid() && changed.left() > m + left.width());
        }
        QVERIFY(m_window->minimumSizeHint().width() >= welcomeWidth);
    }

    void centralWidgetAreaStretches()
    {
        buildWindow();
        RibbonMenuBar &bar = m_window->ribbonMenuBar();
        RibbonStatusBar &status = m_window->ribbonStatusBar();
        const auto gap = [&] {
            const int barBottom = bar.mapTo(m_window.get(), bar.rect().bottomLeft()).y();
            return status.mapTo(m_window.get(), QPoint()).y() - barBottom - 1;
        };
        const auto statusAtBottom = [&] {
            return status.mapTo(m_window.get(), status.rect().bottomLeft()).y()
                   == m_window->height() - 1 - m_window->contentsMargins().bottom();
        };
        QPointer<QLabel> central = new QLabel(QStringLiteral("text"), m_window.get());
        m_window->setCentralWidget(central);
        QTRY_VERIFY(central->isVisible());

        // A null widget leaves the host's widget alone (neither deleted nor hidden) and an area
        // that stretches in its place, not the ribbon bar.
        m_window->setCentralWidget(nullptr);
        QVERIFY(central && !central->isHidden());
        QTRY_VERIFY(statusAtBottom());
        const int before = gap();
        const int barHeight = bar.height();
        m_window->resize(m_window->width(), m_window->height() + 120);
        QTRY_COMPARE(gap(), before + 120);
        QCOMPARE(bar.height(), barHeight);
        m_window->setCentralWidget(central);
        QTRY_COMPARE(central->height(), before + 120);

        // So does a deleted one.
        delete central;
        QCOMPARE(m_window->centralWidget(), nullptr);
        m_window->resize(m_window->width(), m_window->height() + 80);
        QTRY_COMPARE(gap(), before + 200);
    }

    void showTitleBar()
    {
        buildWindow();
        QWidget *qab = &m_window->quickAccessBar();
        const QList<QWidget *> titleWidgets = {qab, child("sysMenuButton"), child("minimizeButton"),
                                               child("maximizeButton"), child("closeButton")};
        const auto visible = [&](bool expected) {
            for (QWidget *w : titleWidgets)
                QVERIFY2(w && w->isVisible() == expected, qPrintable(w ? w->objectName() : QString()));
        };
        visible(true);
        // The title is centred in its row: the change lies around the middle, not at the ends.
        const QImage titled = grabbed();
        m_window->setWindowTitle(QString());
        const QRect changed = changedRect(titled, grabbed(), m_window->frameMargin(), 26);
        QVERIFY(qAbs(changed.center().x() - titled.width() / 2) < 60);
        m_window->setWindowTitle(QStringLiteral("Document"));
        const auto barTop = [&] { return m_window->ribbonMenuBar().mapTo(m_window.get(), QPoint()).y(); };
        const int top = barTop();
        m_window->setShowTitleBar(false);
        visible(false);
        QTRY_VERIFY(barTop() < top); // the title row collapses, and no title is drawn
        const QImage hiddenTitled = grabbed();
        m_window->setWindowTitle(QString());
        QCOMPARE(grabbed(), hiddenTitled);
        m_window->setShowTitleBar(true);
        visible(true);
        QTRY_COMPARE(barTop(), top);

        // Over the backstage only the window buttons stay.
        m_window->setActiveView(RibbonMainWindow::BackstagePanel);
        QVERIFY(!qab->isVisible() && !child("sysMenuButton")->isVisible());
        QVERIFY(child("closeButton")->isVisible());
        m_window->setActiveView(RibbonMainWindow::MainView);
        visible(true);
    }

    void titleButtonLooks()
    {
        buildWindow();
        // The close button has three looks; the system-menu button shows the application icon.
        auto *close = qobject_cast<QPushButton *>(child("closeButton"));
        const QImage normal = close->grab().toImage();
        close->setAttribute(Qt::WA_UnderMouse, true);
        const QImage hover = close->grab().toImage();
        close->setDown(true);
        const QImage pressed = close->grab().toImage();
        close->setDown(false);
        close->setAttribute(Qt::WA_UnderMouse, false);
        QVERIFY(hover != normal && pressed != normal && pressed != hover);
        QCOMPARE(close->grab().toImage(), normal);
        QPixmap red(18, 18);
        red.fill(Qt::red);
        QApplication::setWindowIcon(QIcon(red));
        const QImage withIcon = child("sysMenuButton")->grab().toImage();
        QApplication::setWindowIcon(QIcon());
        QCOMPARE(withIcon.pixelColor(10, 10), QColor(Qt::red));
    }

    void frameCell()
    {
        using P = RibbonPlatform;
        const int f = P::sizingFrameThickness();
        const int c = P::captionHeight();
        const QRect frame(50, 40, 600, 400);
        // Offsets from the frame's top-left; negative ones from its right or bottom end.
        const struct { const char *name; QPoint offset; P::FrameRow row; P::FrameColumn column; } cases[] = {
            {"frame over menu button", {f + 5, 1}, P::FrameTop, P::FrameCentre},
            {"menu button", {f + 5, f + 5}, P::FrameMiddle, P::FrameCentre},
            {"right of menu button", {31, f + 5}, P::FrameTop, P::FrameCentre},
            {"left of caption", {1, f + 3}, P::FrameMiddle, P::FrameLeft},
            {"right of caption", {-1, f + 3}, P::FrameMiddle, P::FrameRight},
            {"below caption", {300, f + c}, P::FrameMiddle, P::FrameCentre},
            {"bottom frame", {300, -1}, P::FrameBottom, P::FrameCentre},
            {"above bottom frame", {300, -f - 1}, P::FrameMiddle, P::FrameCentre},
        };
        for (const auto &t : cases) {
            const QPoint o = t.offset;
            const QPoint p(frame.left() + (o.x() >= 0 ? o.x() : frame.width() + o.x()),
                           frame.top() + (o.y() >= 0 ? o.y() : frame.height() + o.y()));
            P::FrameRow row = P::FrameBottom;
            P::FrameColumn column = P::FrameLeft;
            P::frameCell(frame, p, &row, &column);
            QVERIFY2(row == t.row && column == t.column, t.name);
        }
    }

    void captionHitAreas()
    {
        buildWindow();
        RibbonMainWindow &w = *m_window;
        RibbonMenuBar &bar = w.ribbonMenuBar();
        QCOMPARE(w.hitTest(w.mapToGlobal(caption())), RibbonMainWindow::HitCaption);
        // Title buttons and the quick-access toolbar are controls.
        QCOMPARE(w.hitTest(child("minimizeButton")->mapToGlobal(QPoint(10, 10))), RibbonMainWindow::HitClient);
        QCOMPARE(w.hitTest(w.quickAccessBar().mapToGlobal(QPoint(2, 10))), RibbonMainWindow::HitClient);
        // An empty part of the tab row drags; a tab button does not.
        const QPoint tabRowEmpty = bar.mapToGlobal(QPoint(bar.width() / 2, 12));
        QCOMPARE(w.hitTest(tabRowEmpty), RibbonMainWindow::HitCaption);
        QWidget *tabButton = bar.menuBarButton(m_tab);
        QCOMPARE(w.hitTest(tabButton->mapToGlobal(QPoint(5, 5))), RibbonMainWindow::HitClient);
        // The central area and the outside are client.
        const QPoint centre(w.width() / 2, w.height() / 2 + 60);
        QCOMPARE(w.hitTest(w.mapToGlobal(centre)), RibbonMainWindow::HitClient);
        QCOMPARE(w.hitTest(w.mapToGlobal(QPoint(-20, 5))), RibbonMainWindow::HitClient);
    }

    // A click on the title row is no drag. Under a window manager, a move handed over on
    // the press waits for a release that has already happened and carries the window
    // along until the next click, which it swallows.
    void clickOnTitleRowThenElsewhereMovesNothing()
    {
        buildWindow();
        ZelAcceptingWindowSystem system;
        RibbonMainWindow &w = *m_window;
        const QPoint start = w.pos();
        QTest::mouseClick(&w, Qt::LeftButton, Qt::NoModifier, caption());
        const QPoint elsewhere(w.width() / 2 + 150, w.height() / 2 + 200);
        moveMouse(&w, w.mapToGlobal(elsewhere));
        QTest::mouseClick(&w, Qt::LeftButton, Qt::NoModifier, elsewhere);
        QCOMPARE(system.requests.size(), 0);
        QCOMPARE(w.pos(), start);
    }

    void captionDragWaitsForTheDragDistance_data()
    {
        QTest::addColumn<bool>("systemMoves");
        QTest::newRow("by hand") << false;
        QTest::newRow("by the window system") << true;
    }

    void captionDragWaitsForTheDragDistance()
    {
        QFETCH(bool, systemMoves);
        buildWindow();
        std::unique_ptr<ZelAcceptingWindowSystem> system(systemMoves ? new ZelAcceptingWindowSystem : nullptr);
        RibbonMainWindow &w = *m_window;
        const QPoint start = w.pos();
        const QPoint press = w.mapToGlobal(caption());
        const int distance = QApplication::startDragDistance();
        QTest::mousePress(&w, Qt::LeftButton, Qt::NoModifier, caption());
        moveMouse(&w, press + QPoint(distance - 1, 0), Qt::LeftButton);
        QCoreApplication::processEvents();
        QCOMPARE(w.pos(), start);
        if (system)
            QCOMPARE(system->requests.size(), 0);
        // From the drag distance on, the window system moves the window or it follows the mouse.
        moveMouse(&w, press + QPoint(distance, 0), Qt::LeftButton);
        if (system) {
            QCOMPARE(system->requests.size(), 1);
            QCOMPARE(int(system->requests.first()), 0);
        }
        QTRY_COMPARE(w.pos(), systemMoves ? start : start + QPoint(distance, 0));
        moveMouse(&w, press + QPoint(30, 40), Qt::LeftButton);
        QTRY_COMPARE(w.pos(), systemMoves ? start : start + QPoint(30, 40));
        QTest::mouseRelease(&w, Qt::LeftButton, Qt::NoModifier, w.mapFromGlobal(press + QPoint(30, 40)));
        if (system)
            QCOMPARE(system->requests.size(), 1);
        // After the release, or with the press on a tab button, the mouse moves nothing.
        const QPoint at = w.pos();
        moveMouse(&w, press + QPoint(80, 90));
        QWidget *tabButton = w.ribbonMenuBar().menuBarButton(m_tab);
        QTest::mousePress(tabButton, Qt::LeftButton, Qt::NoModifier, QPoint(5, 5));
        moveMouse(tabButton, tabButton->mapToGlobal(QPoint(60, 60)), Qt::LeftButton);
        QTest::mouseRelease(tabButton, Qt::LeftButton, Qt::NoModifier, QPoint(5, 5));
        QCoreApplication::processEvents();
        QCOMPARE(w.pos(), at);
        if (system)
            QCOMPARE(system->requests.size(), 1);
    }

    void draggingMaximizedCaptionRestores()
    {
        buildWindow();
        RibbonMainWindow &w = *m_window;
        w.showMaximized();
        QTRY_COMPARE(w.geometry(), RibbonPlatform::availableGeometry(&w));
        const QPoint pressAt = caption();
        const QPoint press = w.mapToGlobal(pressAt);
        QTest::mousePress(&w, Qt::LeftButton, Qt::NoModifier, pressAt);
        moveMouse(&w, press + QPoint(3, 2), Qt::LeftButton);
        QVERIFY(w.isMaximized());
        // Dragged, it comes back to its normal size with the cursor half-way along the
        // caption again, as high on it as at the press.
        const QPoint to = press + QPoint(60, 80);
        moveMouse(&w, to, Qt::LeftButton);
        QTRY_VERIFY(!w.isMaximized());
        QTRY_COMPARE(w.size(), QSize(900, 700));
        QTRY_COMPARE(w.mapFromGlobal(to), QPoint(450, pressAt.y()));
        QTest::mouseRelease(&w, Qt::LeftButton, Qt::NoModifier, w.mapFromGlobal(to));
    }

    void captionDoubleClick()
    {
        buildWindow();
        RibbonMainWindow &w = *m_window;
        const QPoint centre(w.width() / 2, w.height() / 2 + 60);
        // A double click on the caption maximises and restores; in the central area it does nothing.
        QTest::mouseDClick(&w, Qt::LeftButton, Qt::NoModifier, caption());
        QTRY_VERIFY(w.isMaximized());
        // The window system applies the maximised geometry a moment later.
        QTRY_COMPARE(w.geometry(), RibbonPlatform::availableGeometry(&w));
        QTest::mouseDClick(&w, Qt::LeftButton, Qt::NoModifier, caption());
        QTRY_VERIFY(!w.isMaximized());
        QTest::mouseDClick(&w, Qt::LeftButton, Qt::NoModifier, centre);
        QCoreApplication::processEvents();
        QVERIFY(!w.isMaximized());
    }

    void systemMenu()
    {
        buildWindow();
        QTest::mouseClick(child("sysMenuButton"), Qt::LeftButton);
        auto *menu = m_window->findChild<QMenu *>(QStringLiteral("systemMenu"));
        QVERIFY(menu);
        QTRY_VERIFY(menu->isVisible());
        menu->hide();
        const auto action = [&](const char *name) { return menu->findChild<QAction *>(QLatin1String(name)); };
        const auto enabled = [&] {
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
        action("maximizeAction")->trigger();
        QTRY_VERIFY(m_window->isMaximized());
        QCOMPARE(enabled(), QStringLiteral("restoreAction minimizeAction closeAction"));
        action("restoreAction")->trigger();
        QTRY_VERIFY(!m_window->isMaximized());
        QCOMPARE(m_window->geometry(), QRect(100, 100, 900, 700));
        action("minimizeAction")->trigger();
        QTRY_VERIFY(m_window->isMinimized());
        m_window->activateWindow(); // activating a minimised window brings it back
        QTRY_VERIFY(!m_window->isMinimized());
        m_window->setFixedSize(m_window->size());
        QCOMPARE(enabled(), QStringLiteral("moveAction minimizeAction closeAction"));
        action("closeAction")->trigger();
        QTRY_VERIFY(!m_window->isVisible());
    }

    void systemMenuMoveAndSize_data()
    {
        QTest::addColumn<QString>("entry");
        QTest::addColumn<int>("finishKey");
        QTest::addColumn<QRect>("expected");
        const QRect start(100, 100, 900, 700);
        QTest::newRow("move, click") << QStringLiteral("moveAction") << 0 << start.translated(40, 30);
        QTest::newRow("size, click") << QStringLiteral("sizeAction") << 0 << start.adjusted(0, 0, 40, 30);
        QTest::newRow("move, Escape") << QStringLiteral("moveAction") << int(Qt::Key_Escape) << start;
    }

    void systemMenuMoveAndSize()
    {
        QFETCH(QString, entry);
        QFETCH(int, finishKey);
        QFETCH(QRect, expected);
        buildWindow();
        RibbonMainWindow &w = *m_window;
        QAction *action = w.findChild<QMenu *>(QStringLiteral("systemMenu"))->findChild<QAction *>(entry);
        QVERIFY(action);
        // The window follows the mouse itself until the next click or key.
        const QPoint to = QCursor::pos() + QPoint(40, 30);
        action->trigger();
        moveMouse(&w, to);
        if (finishKey)
            QTest::keyClick(&w, Qt::Key(finishKey));
        else
            QTest::mouseClick(&w, Qt::LeftButton, Qt::NoModifier, w.mapFromGlobal(to));
        QTRY_COMPARE(w.geometry(), expected);
        moveMouse(&w, to + QPoint(25, 25));
        QCoreApplication::processEvents();
        QCOMPARE(w.geometry(), expected);
        QCOMPARE(QWidget::mouseGrabber(), nullptr);
    }

    void systemMenuMoveAndSizeAskTheWindowSystemAtOnce()
    {
        buildWindow();
        RibbonMainWindow &w = *m_window;
        ZelAcceptingWindowSystem system;
        auto *menu = w.findChild<QMenu *>(QStringLiteral("systemMenu"));
        menu->findChild<QAction *>(QStringLiteral("moveAction"))->trigger();
        menu->findChild<QAction *>(QStringLiteral("sizeAction"))->trigger();
        QCOMPARE(system.requests.size(), 2);
        QCOMPARE(int(system.requests.at(0)), 0);
        QCOMPARE(int(system.requests.at(1)), int(Qt::RightEdge | Qt::BottomEdge));
        // The window system has the mouse: the window neither follows it nor holds mouse and keyboard.
        QCOMPARE(QWidget::mouseGrabber(), nullptr);
        QCOMPARE(QWidget::keyboardGrabber(), nullptr);
        moveMouse(&w, QCursor::pos() + QPoint(40, 30));
        QTest::keyClick(&w, Qt::Key_Escape);
        QCOMPARE(w.geometry(), QRect(100, 100, 900, 700));
    }

    void geometryAndMargins()
    {
        // An invalid restore geometry given to a hidden window leaves its state alone; a valid
        // one shows it maximised and is used once, by the next restore.
        buildWindow(false);
        m_window->setRestoreGeometry(QRect());
        QVERIFY(!m_window->isMaximized());
        const QRect normal(60, 70, 760, 660);
        m_window->setRestoreGeometry(normal);
        m_window->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
        QTRY_VERIFY(m_window->isMaximized());
        m_window->showNormal();
        QTRY_COMPARE(m_window->geometry(), normal);
        QVERIFY(!m_window->restoreGeometry().isValid());

        const int frame = RibbonPlatform::sizingFrameThickness();
        QCOMPARE(m_window->frameMargin(), frame);
        QCOMPARE(m_window->contentsMargins(), QMargins(frame, frame, frame, frame));
        // A one-pixel frame line stays visible around the contents.
        QCOMPARE(m_window->mask().boundingRect(), m_window->contentsRect().adjusted(-1, -1, 1, 1));
        m_window->setActiveView(RibbonMainWindow::BackstagePanel);
        QCOMPARE(m_window->contentsMargins(), QMargins(frame, frame + 3, frame, frame));
        m_window->setActiveView(RibbonMainWindow::MainView);
        QWidget *maximize = child("maximizeButton");
        const QImage normalMax = maximize->grab().toImage();
        m_window->showMaximized();
        QTRY_VERIFY(m_window->isMaximized());
        QTRY_COMPARE(m_window->frameMargin(), 0);
        QCOMPARE(m_window->contentsMargins(), QMargins());
        QCOMPARE(maximize->toolTip(), QStringLiteral("Restore"));
        QVERIFY(maximize->grab().toImage() != normalMax);

        // A palette change re-applies the client colour over the host's palette.
        QPalette other = m_window->palette();
        other.setColor(QPalette::Window, Qt::magenta);
        m_window->setPalette(other);
        emit RibbonApplication::theApp().ribbonStyleChanged();
        const QColor client = RibbonApplication::theApp().ribbonStyle().mainClientColor();
        QCOMPARE(m_window->palette().color(QPalette::Active, QPalette::Window), client);
        QCOMPARE(m_window->palette().color(QPalette::Inactive, QPalette::Window), client);
    }

    void contextualBandBesideTitle()
    {
        buildWindow();
        const QColor background(255, 200, 0);
        showContextSet(background);
        QRect band;
        m_window->ribbonMenuBar().displayedContextPanelRect(band);
        const QRect local(m_window->mapFromGlobal(band.topLeft()), band.size());
        const QImage image = grabbed();
        // The band in the title row, its top line in the set's line colour.
        const int titleY = m_window->frameMargin() + 5;
        QCOMPARE(image.pixelColor(local.left() + 3, titleY), background);
        QCOMPARE(image.pixelColor(local.left() + 3, m_window->frameMargin() + 1), QColor(200, 0, 0));
        // The title is still drawn in the title row, beside the band.
        m_window->setWindowTitle(QString());
        const QRect title = changedRect(image, grabbed(), m_window->frameMargin(), 26);
        QVERIFY(title.isValid() && title.right() >= local.right() + 3);
    }

    // However narrow the window, the band never runs under the window buttons: where the
    // set's tab sits below them, the title row shows the band only left of them.
    void contextualBandStopsBeforeWindowButtons()
    {
        buildWindow();
        for (const char *name : {"Insert", "Design", "Layout", "References", "Mailings", "Review", "View"})
            m_window->ribbonMenuBar().addAction(new RibbonCategoriesPanelAction(QLatin1String(name), m_owner.get()));
        const QColor background(255, 200, 0);
        showContextSet(background);
        QWidget *minimize = child("minimizeButton");
        for (const int width : {900, 700, 560, 420, 300}) {
            m_window->resize(width, 400);
            QTRY_VERIFY(minimize->mapTo(m_window.get(), QPoint()).x() < m_window->width() - 40);
            const QImage image = grabbed();
            // From the minimise button to the right edge, the height of the buttons.
            const QPoint at = minimize->mapTo(m_window.get(), QPoint(0, 0));
            const QRect buttons(at, QSize(m_window->width() - at.x(), minimize->height()));
            for (int y = buttons.top(); y <= buttons.bottom(); ++y) {
                for (int x = buttons.left(); x <= buttons.right() && x < image.width(); ++x)
                    QVERIFY2(image.pixelColor(x, y) != background,
                             qPrintable(QStringLiteral("width %1 at %2,%3").arg(width).arg(x).arg(y)));
            }
        }
    }

    void lifetimes()
    {
        // The model belongs to the host and outlives the window; the central widget goes with it.
        buildWindow();
        QPointer<QAction> tab = m_tab;
        QPointer<QLabel> central = new QLabel(QStringLiteral("central"));
        m_window->setCentralWidget(central);
        m_window->setActiveView(RibbonMainWindow::BackstagePanel);
        m_window.reset();
        QVERIFY(tab && !central);
        QVERIFY(m_tab->associatedWidgets().isEmpty());

        // A model deleted first takes its widgets along; the window keeps working without it.
        buildWindow();
        QPointer<RibbonMenuBarButton> tabButton = m_window->ribbonMenuBar().menuBarButton(m_tab);
        QVERIFY(tabButton);
        m_owner.reset();
        QVERIFY(!tabButton);
        m_window->setActiveView(RibbonMainWindow::BackstagePanel);
        m_window->setActiveView(RibbonMainWindow::MainView);
        m_window->grab();
    }
};

ZEL_TEST_MAIN(tst_RibbonMainWindow)
#include "tst_ribbonmainwindow.moc"
