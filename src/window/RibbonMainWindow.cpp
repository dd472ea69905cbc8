#include "RibbonMainWindow.h"

#include "BackstageView.h"
#include "BackstageWelcomeScreen.h"
#include "RibbonApplication.h"
#include "RibbonButtonMain.h"
#include "RibbonContextCategoryPanelAction.h"
#include "RibbonMenuBar.h"
#include "RibbonPlatform.h"
#include "RibbonQuickAccessBar.h"
#include "RibbonStatusBar.h"
#include "RibbonStyle.h"
#include "RibbonSysButton.h"
#include "RibbonWindowBorder.h"


#include <QApplication>
#include <QCursor>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QShortcut>
#include <QSpacerItem>
#include <QStackedLayout>
#include <QTimer>
#include <QVBoxLayout>
#include <QWindowStateChangeEvent>

namespace zel {

namespace {

// Height of the strip along an auto-hidden task bar's edge that makes it slide in.
constexpr int kTaskBarStrip = 12;
// The backstage and welcome pages lie a little lower than the main view.
constexpr int kPageExtraTop = 3;

Qt::WindowStates plainState(Qt::WindowStates state)
{
    return state & ~Qt::WindowActive;
}

// Moves or resizes a window with the mouse when the window system will not do it.
// Watches the whole application until the drag ends: on release when it started with a
// held button, on the next click otherwise; Escape puts the window back.
class ManualDrag : public QObject
{
public:
    enum Mode { Move, Size };

    ManualDrag(QWidget *window, Mode mode, bool buttonHeld, const QPoint &anchor)
        : QObject(window)
        , m_window(window)
        , m_mode(mode)
        , m_buttonHeld(buttonHeld)
        , m_anchor(anchor)
        , m_start(window->geometry())
        , m_restoreFirst(mode == Move && buttonHeld && window->isMaximized())
    {
        qApp->installEventFilter(this);
        if (!m_buttonHeld) {
            m_window->grabMouse(m_mode == Move ? Qt::SizeAllCursor : Qt::SizeFDiagCursor);
            m_window->grabKeyboard();
        }
    }

    ~ManualDrag() override
    {
        if (qApp)
            qApp->removeEventFilter(this);
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        switch (event->type()) {
        case QEvent::MouseMove: {
            const auto *mouse = static_cast<QMouseEvent *>(event);
            // A release that went astray must not leave the window glued to the cursor.
            if (m_buttonHeld && !(mouse->buttons() & Qt::LeftButton)) {
                finish();
                break;
            }
            follow(mouse->globalPos());
            return true;
        }
        case QEvent::MouseButtonRelease:
            if (m_buttonHeld) {
                finish();
                return true;
            }
            break;
        case QEvent::MouseButtonPress:
            if (!m_buttonHeld) {
                finish();
                return true;
            }
            break;
        case QEvent::KeyPress: {
            const int key = static_cast<QKeyEvent *>(event)->key();
            if (key == Qt::Key_Escape) {
                m_window->setGeometry(m_start);
                finish();
                return true;
            }
            if (key == Qt::Key_Return || key == Qt::Key_Enter) {
                finish();
                return true;
            }
            break;
        }
        default:
            break;
        }
        return QObject::eventFilter(watched, event);
    }

private:
    void follow(const QPoint &globalPos)
    {
        QPoint delta = globalPos - m_anchor;
        if (m_restoreFirst) {
            // A maximised window leaves its state only when the mouse really drags it;
            // it then comes back to its normal size with the cursor at the same
            // relative place on the caption.
            if (delta.manhattanLength() < QApplication::startDragDistance())
                return;
            m_restoreFirst = false;
            const QPoint local = m_anchor - m_start.topLeft();
            const double fx = m_start.width() > 0 ? double(local.x()) / m_start.width() : 0.5;
            m_window->showNormal();
            const QSize normal = m_window->normalGeometry().isValid() ? m_window->normalGeometry().size()
                                                                       : m_window->size();
            m_start = QRect(QPoint(m_anchor.x() - int(fx * normal.width()), m_anchor.y() - local.y()), normal);
            delta = globalPos - m_anchor;
        }
        if (m_mode == Move) {
            m_window->move(m_start.topLeft() + delta);
        } else {
            const QSize size = QSize(m_start.width() + delta.x(), m_start.height() + delta.y())
                                   .expandedTo(m_window->minimumSize())
                                   .boundedTo(m_window->maximumSize());
            m_window->resize(size);
        }
    }

    void finish()
    {
        if (!m_buttonHeld) {
            m_window->releaseMouse();
            m_window->releaseKeyboard();
        }
        qApp->removeEventFilter(this);
        deleteLater();
    }

    QWidget *m_window;
    Mode m_mode;
    bool m_buttonHeld;
    QPoint m_anchor;
    QRect m_start;
    bool m_restoreFirst;
};

} // namespace

class RibbonMainWindow::Priv
{
public:
    explicit Priv(RibbonMainWindow *w)
        : window(w)
        , border(new RibbonWindowBorder(w, true))
    {
    }

    ~Priv()
    {
        // The placeholder belongs to the layout only while it stands in it.
        if (!centralLayout || centralLayout->indexOf(centralPlaceholder) < 0)
            delete centralPlaceholder;
    }

    // Shows the page of v. The hidden pages stop counting towards the window's minimum
    // size, so a wide start page does not keep the main view from narrowing.
    void showPage(View v)
    {
        QWidget *shown = page(v);
        for (QWidget *p : {page(WelcomeScreen), page(BackstagePanel), page(MainView)}) {
            const QSizePolicy::Policy horizontal = p == shown ? QSizePolicy::Preferred : QSizePolicy::Ignored;
            p->setSizePolicy(horizontal, p->sizePolicy().verticalPolicy());
        }
        viewStack->setCurrentWidget(shown);
    }

    QWidget *page(View v) const
    {
        switch (v) {
        case WelcomeScreen:
            return welcomeScreen;
        case BackstagePanel:
            return backstageView;
        case MainView:
            break;
        }
        return mainViewPage;
    }

    // The left and right pane rectangles (global) of the backstage or welcome page
    // now shown; invalid rectangles in the main view.
    void paneRects(QRect *left, QRect *right) const
    {
        *left = QRect();
        *right = QRect();
        if (view == BackstagePanel && backstageView) {
            *left = backstageView->leftPaneRect();
            *right = backstageView->rightPaneRect();
        }
        if (view == WelcomeScreen && welcomeScreen) {
            *left = welcomeScreen->leftPaneRect();
            *right = welcomeScreen->rightPaneRect();
        }
    }

    QString titleText() const
    {
        QString title = window->windowTitle();
        title.replace(QLatin1String("[*]"), window->isWindowModified() ? QStringLiteral("*") : QString());
        return title;
    }

    void updateTitleRow();
    void updateMargins();
    void buildSystemMenu();
    void updateSystemMenu();

    RibbonMainWindow *window;
    RibbonWindowBorder *border;
    QVBoxLayout *mainLayout = nullptr;
    QVBoxLayout *centralLayout = nullptr;
    RibbonMenuBar *menuBar = nullptr;
    // Keeps the central area stretching while there is no central widget.
    QSpacerItem *centralPlaceholder = new QSpacerItem(0, 0, QSizePolicy::Expanding, QSizePolicy::Expanding);
    QPointer<QWidget> centralWidget;
    RibbonStatusBar *statusBar = nullptr;
    QShortcut *escapeShortcut = nullptr;
    QStackedLayout *viewStack = nullptr;
    BackstageView *backstageView = nullptr;
    BackstageWelcomeScreen *welcomeScreen = nullptr;
    QWidget *mainViewPage = nullptr;
    View view = MainView;
    QHBoxLayout *titleLayout = nullptr;
    RibbonQuickAccessBar *quickAccessBar = nullptr;
    RibbonSysButton *sysMenuButton = nullptr;
    RibbonSysButton *minimizeButton = nullptr;
    RibbonSysButton *maximizeButton = nullptr;
    RibbonSysButton *closeButton = nullptr;
    QSpacerItem *titleSpacer = nullptr;
    int frameMargin = 0;
    bool showTitleBar = true;
    QRect restoreGeometry;
    HitArea lastHitTest = HitClient;
    bool taskBarHot = false;

    QMenu *systemMenu = nullptr;
    QAction *restoreAction = nullptr;
    QAction *moveAction = nullptr;
    QAction *sizeAction = nullptr;
    QAction *minimizeAction = nullptr;
    QAction *maximizeAction = nullptr;
    QAction *closeAction = nullptr;

    // A caption drag done by hand because the window system declined it.
    QPointer<ManualDrag> manualDrag;
};

void RibbonMainWindow::Priv::updateTitleRow()
{
    const bool mainView = view == MainView;
    quickAccessBar->setVisible(showTitleBar && mainView);
    sysMenuButton->setVisible(showTitleBar && mainView);
    minimizeButton->setVisible(showTitleBar);
    maximizeButton->setVisible(showTitleBar);
    closeButton->setVisible(showTitleBar);
    if (showTitleBar)
        titleSpacer->changeSize(1, 20, QSizePolicy::Expanding, QSizePolicy::Minimum);
    else
        titleSpacer->changeSize(0, 0, QSizePolicy::Fixed, QSizePolicy::Fixed);
    titleLayout->invalidate();
}

void RibbonMainWindow::Priv::updateMargins()
{
    const int extra = view != MainView ? kPageExtraTop : 0;
    const QRect available = RibbonPlatform::availableGeometry(window);
    const QRect g = window->geometry();
    const bool fillsScreenHeight = g.top() == available.top() && g.height() == available.height();
    const bool noFrame = fillsScreenHeight || window->isMaximized()
                         || (window->windowState() & Qt::WindowFullScreen);
    const int m = noFrame ? 0 : RibbonPlatform::sizingFrameThickness();
    frameMargin = m;
    window->setContentsMargins(m, m + extra, m, m);
    // Leave a one-pixel frame line just outside the contents; the rest of the invisible
    // frame belongs to the shadow border.
    window->setMask(QRegion(window->rect().adjusted(m - 1, m - 1, 1 - m, 1 - m)));
}

void RibbonMainWindow::Priv::buildSystemMenu()
{
    systemMenu = new QMenu(window);
    systemMenu->setObjectName(QStringLiteral("systemMenu"));
    restoreAction = systemMenu->addAction(RibbonMainWindow::tr("&Restore"), window, SLOT(showNormal()));
    restoreAction->setObjectName(QStringLiteral("restoreAction"));
    moveAction = systemMenu->addAction(RibbonMainWindow::tr("&Move"));
    moveAction->setObjectName(QStringLiteral("moveAction"));
    sizeAction = systemMenu->addAction(RibbonMainWindow::tr("&Size"));
    sizeAction->setObjectName(QStringLiteral("sizeAction"));
    minimizeAction = systemMenu->addAction(RibbonMainWindow::tr("Mi&nimize"), window, SLOT(showMinimized()));
    minimizeAction->setObjectName(QStringLiteral("minimizeAction"));
    maximizeAction = systemMenu->addAction(RibbonMainWindow::tr("Ma&ximize"), window, SLOT(showMaximized()));
    maximizeAction->setObjectName(QStringLiteral("maximizeAction"));
    systemMenu->addSeparator();
    closeAction = systemMenu->addAction(RibbonMainWindow::tr("&Close"), window, SLOT(close()));
    closeAction->setObjectName(QStringLiteral("closeAction"));
    closeAction->setShortcut(QKeySequence(Qt::ALT + Qt::Key_F4));
    // Only a label here: the window system or the host owns the key.
    closeAction->setShortcutContext(Qt::WidgetShortcut);
    QFont bold = closeAction->font();
    bold.setBold(true);
    closeAction->setFont(bold);

    RibbonMainWindow *w = window;
    QObject::connect(moveAction, &QAction::triggered, w, [w] {
        if (!RibbonPlatform::startSystemMove(w))
            new ManualDrag(w, ManualDrag::Move, false, QCursor::pos());
    });
    QObject::connect(sizeAction, &QAction::triggered, w, [w] {
        if (!RibbonPlatform::startSystemResize(w, Qt::RightEdge | Qt::BottomEdge))
            new ManualDrag(w, ManualDrag::Size, false, QCursor::pos());
    });
    QObject::connect(systemMenu, &QMenu::aboutToShow, w, [this] { updateSystemMenu(); });
}

void RibbonMainWindow::Priv::updateSystemMenu()
{
    const Qt::WindowStates state = window->windowState();
    const bool maximized = state & (Qt::WindowMaximized | Qt::WindowFullScreen);
    const bool minimized = state & Qt::WindowMinimized;
    const bool normal = !maximized && !minimized;
    const bool resizable = window->minimumSize() != window->maximumSize();
    restoreAction->setEnabled(!normal);
    moveAction->setEnabled(normal);
    sizeAction->setEnabled(normal && resizable);
    minimizeAction->setEnabled(!minimized);
    maximizeAction->setEnabled(!maximized && resizable);
    closeAction->setEnabled(true);
}

RibbonMainWindow::RibbonMainWindow(QWidget *parent, Qt::WindowFlags flags)
    : QWidget(parent, flags)
    , d(new Priv(this))
{
    setMouseTracking(true);

    d->mainLayout = new QVBoxLayout(this);
    d->mainLayout->setContentsMargins(0, 0, 0, 0);
    d->mainLayout->setSpacing(0);
    setWindowFlags(windowFlags() | Qt::FramelessWindowHint);

    d->titleLayout = new QHBoxLayout;
    d->titleLayout->setContentsMargins(3, 0, 4, 0);
    d->mainLayout->addLayout(d->titleLayout);

    auto *pageLayout = new QVBoxLayout;
    pageLayout->setContentsMargins(0, 0, 0, 0);
    pageLayout->setSpacing(0);
    d->backstageView = new BackstageView(this);
    d->escapeShortcut = new QShortcut(QKeySequence(Qt::Key_Escape), this, SLOT(showMainView()), nullptr,
                                      Qt::ApplicationShortcut);
    d->escapeShortcut->setEnabled(false); // the main view has nothing to return to
    d->mainViewPage = new QWidget(this);
    d->mainViewPage->setObjectName(QStringLiteral("mainViewPage"));
    d->welcomeScreen = new BackstageWelcomeScreen(this);
    d->mainViewPage->setLayout(pageLayout);

    d->viewStack = new QStackedLayout;
    d->viewStack->setContentsMargins(0, 0, 0, 0);
    d->viewStack->addWidget(d->mainViewPage);
    d->viewStack->addWidget(d->backstageView);
    d->viewStack->addWidget(d->welcomeScreen);
    d->showPage(MainView);
    d->mainLayout->addLayout(d->viewStack);

    d->menuBar = new RibbonMenuBar(*this);
    pageLayout->addWidget(d->menuBar);
    d->centralLayout = new QVBoxLayout;
    d->centralLayout->addItem(d->centralPlaceholder);
    pageLayout->addLayout(d->centralLayout);
    d->statusBar = new RibbonStatusBar(*this);
    pageLayout->addWidget(d->statusBar);

    connect(&RibbonApplication::theApp(), SIGNAL(ribbonStyleChanged()), this, SLOT(ribbonStyleChanged()));
    connect(d->statusBar, SIGNAL(statusBarChanged()), this, SLOT(update()));
    connect(d->menuBar->mainMenuButton(), SIGNAL(clicked()), this, SLOT(onMainButtonPressed()));
    connect(d->backstageView, SIGNAL(itemClicked(QString)), this, SLOT(onBackstageItemClicked(QString)));
    ribbonStyleChanged();

    d->sysMenuButton = new RibbonSysButton(this, RibbonSysButton::SystemMenu);
    d->sysMenuButton->setObjectName(QStringLiteral("sysMenuButton"));
    connect(d->sysMenuButton, SIGNAL(clicked()), this, SLOT(onShowSysMenu()));
    d->titleLayout->addWidget(d->sysMenuButton);

    d->quickAccessBar = new RibbonQuickAccessBar(this);
    d->titleLayout->addWidget(d->quickAccessBar);

    d->titleSpacer = new QSpacerItem(1, 20, QSizePolicy::Expanding, QSizePolicy::Minimum);
    d->titleLayout->addItem(d->titleSpacer);

    d->minimizeButton = new RibbonSysButton(this, RibbonSysButton::Minimize);
    d->minimizeButton->setObjectName(QStringLiteral("minimizeButton"));
    d->minimizeButton->setToolTip(tr("Minimize"));
    connect(d->minimizeButton, SIGNAL(clicked()), this, SLOT(showMinimized()), Qt::QueuedConnection);
    d->titleLayout->addWidget(d->minimizeButton);

    d->maximizeButton = new RibbonSysButton(this, RibbonSysButton::MaximizeRestore);
    d->maximizeButton->setObjectName(QStringLiteral("maximizeButton"));
    d->maximizeButton->setToolTip(tr("Maximize"));
    connect(d->maximizeButton, SIGNAL(clicked()), this, SLOT(showMaximizedRestored()), Qt::QueuedConnection);
    d->titleLayout->addWidget(d->maximizeButton);

    d->closeButton = new RibbonSysButton(this, RibbonSysButton::Close);
    d->closeButton->setObjectName(QStringLiteral("closeButton"));
    d->closeButton->setToolTip(tr("Close"));
    connect(d->closeButton, SIGNAL(clicked()), this, SLOT(close()), Qt::QueuedConnection);
    d->titleLayout->addWidget(d->closeButton);

    connect(d->menuBar, SIGNAL(contextRibbonChanged()), this, SLOT(update()), Qt::QueuedConnection);
    d->centralLayout->setContentsMargins(0, 0, 0, 0);

    d->buildSystemMenu();
    d->updateTitleRow();
    d->updateMargins();
}

RibbonMainWindow::~RibbonMainWindow()
{
    // The central widget goes with the children, after the private data.
    if (d->centralWidget)
        disconnect(d->centralWidget, nullptr, this, nullptr);
    // The bar's tabs may be children of this window and outlive the bar for a moment;
    // let the bar go first, while the window is still whole.
    delete d->menuBar;
    d->menuBar = nullptr;
}

RibbonMenuBar &RibbonMainWindow::ribbonMenuBar() const
{
    return *d->menuBar;
}

RibbonStatusBar &RibbonMainWindow::ribbonStatusBar() const
{
    return *d->statusBar;
}

RibbonQuickAccessBar &RibbonMainWindow::quickAccessBar() const
{
    return *d->quickAccessBar;
}

BackstageView &RibbonMainWindow::backstageView() const
{
    return *d->backstageView;
}

BackstageWelcomeScreen &RibbonMainWindow::welcomeScreen() const
{
    return *d->welcomeScreen;
}

RibbonMainWindow::View RibbonMainWindow::activeView() const
{
    return d->view;
}

void RibbonMainWindow::setActiveView(View view)
{
    if (view != WelcomeScreen && view != BackstagePanel && view != MainView)
        return;
    if (view != d->view) {
        const View previous = d->view;
        d->view = view;
        emit activeViewChanged(previous);
    }
    d->escapeShortcut->setEnabled(view != MainView);
    d->showPage(view);
    d->updateMargins();
    d->updateTitleRow();
    update();
}

void RibbonMainWindow::showMainView()
{
    setActiveView(MainView);
}

void RibbonMainWindow::hideBackstagePanel()
{
    if (d->view == MainView)
        return;
    QCoreApplication::processEvents(QEventLoop::AllEvents, 100000);
    setActiveView(MainView);
}

void RibbonMainWindow::onMainButtonPressed()
{
    setActiveView(d->view == MainView ? BackstagePanel : MainView);
}

void RibbonMainWindow::onBackstageItemClicked(const QString &name)
{
    if (name == QLatin1String("Back"))
        showMainView();
}

void RibbonMainWindow::setCentralWidget(QWidget *w)
{
    if (QLayoutItem *item = d->centralLayout->takeAt(0)) {
        if (item != d->centralPlaceholder)
            delete item; // the layout item only; the widget stays with its owner
    }
    if (d->centralWidget)
        disconnect(d->centralWidget, &QObject::destroyed, this, nullptr);
    d->centralWidget = w;
    if (w) {
        w->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
        d->centralLayout->addWidget(w);
        // A central widget deleted by its owner leaves the layout; keep the area
        // stretching between the ribbon bar and the status bar.
        // destroyed() comes before the layout hears of the removal, so the widget's item
        // is taken out here.
        connect(w, &QObject::destroyed, this, [this, w] {
            for (int i = d->centralLayout->count() - 1; i >= 0; --i) {
                if (d->centralLayout->itemAt(i)->widget() == w)
                    delete d->centralLayout->takeAt(i);
            }
            if (d->centralLayout->count() == 0)
                d->centralLayout->addItem(d->centralPlaceholder);
        });
    } else {
        d->centralLayout->addItem(d->centralPlaceholder);
    }
}

QWidget *RibbonMainWindow::centralWidget() const
{
    return d->centralWidget;
}

void RibbonMainWindow::setShowTitleBar(bool show)
{
    if (d->showTitleBar == show)
        return;
    d->showTitleBar = show;
    d->updateTitleRow();
    d->updateMargins();
    update();
}

bool RibbonMainWindow::showTitleBar() const
{
    return d->showTitleBar;
}

void RibbonMainWindow::setRestoreGeometry(const QRect &geometry)
{
    d->restoreGeometry = geometry;
    // A window saved maximised comes up maximised; the state change restores to the
    // stored geometry later.
    if (geometry.isValid() && !isVisible() && plainState(windowState()) == Qt::WindowNoState)
        setWindowState(windowState() | Qt::WindowMaximized);
}

QRect RibbonMainWindow::restoreGeometry() const
{
    return d->restoreGeometry;
}

void RibbonMainWindow::activateWindow()
{
    if (windowState() & Qt::WindowMinimized)
        setWindowState(windowState() & ~Qt::WindowMinimized);
    QWidget::activateWindow();
    show();
    RibbonPlatform::bringToFront(this);
}

RibbonMainWindow::HitArea RibbonMainWindow::hitTest(const QPoint &globalPos) const
{
    RibbonPlatform::FrameRow row = RibbonPlatform::FrameMiddle;
    RibbonPlatform::FrameColumn column = RibbonPlatform::FrameCentre;
    RibbonPlatform::frameCell(frameGeometry(), globalPos, &row, &column);
    if (!frameGeometry().contains(globalPos))
        return HitClient;

    const QPoint local = mapFromGlobal(globalPos);
    if (row == RibbonPlatform::FrameTop) {
        if (childAt(local))
            row = RibbonPlatform::FrameMiddle;
    } else if (row == RibbonPlatform::FrameMiddle) {
        // An empty part of the ribbon bar drags the window like the caption.
        if (d->menuBar && childAt(local) == d->menuBar)
            row = RibbonPlatform::FrameTop;
    }
    return row == RibbonPlatform::FrameTop ? HitCaption : HitClient;
}

int RibbonMainWindow::frameMargin() const
{
    return d->frameMargin;
}

void RibbonMainWindow::showMaximizedRestored(bool)
{
    if (windowState() & (Qt::WindowMaximized | Qt::WindowMinimized))
        showNormal();
    else
        showMaximized();
}

void RibbonMainWindow::showTaskBar()
{
    if (d->taskBarHot)
        RibbonPlatform::revealTaskBar();
}

void RibbonMainWindow::ribbonStyleChanged()
{
    QPalette pal = palette();
    pal.setColor(QPalette::All, QPalette::Window, RibbonApplication::theApp().ribbonStyle().mainClientColor());
    setPalette(pal);
    update();
}

void RibbonMainWindow::onShowSysMenu()
{
    d->systemMenu->popup(QCursor::pos());
}

bool RibbonMainWindow::nativeEvent(const QByteArray &eventType, void *message, long *result)
{
    // Hit-testing, the system menu and the task bar go through the portable mouse
    // handling below; no native message needs an answer of its own.
    return QWidget::nativeEvent(eventType, message, result);
}

void RibbonMainWindow::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::ActivationChange) {
        // Title text and button glyphs follow the activation.
        update();
        for (QWidget *button : {static_cast<QWidget *>(d->minimizeButton), static_cast<QWidget *>(d->maximizeButton),
                                static_cast<QWidget *>(d->closeButton)})
            button->update();
    } else if (event->type() == QEvent::WindowStateChange) {
        d->updateTitleRow();
        d->updateMargins();
        QTimer::singleShot(100, this, SLOT(update()));
        d->maximizeButton->setToolTip(isMaximized() ? tr("Restore") : tr("Maximize"));

        const auto *stateEvent = static_cast<QWindowStateChangeEvent *>(event);
        if ((stateEvent->oldState() & Qt::WindowMaximized) && !(windowState() & Qt::WindowMinimized)
            && d->restoreGeometry.isValid()) {
            const QRect geometry = d->restoreGeometry;
            d->restoreGeometry = QRect();
            setGeometry(geometry);
            QWidget::changeEvent(event);
            return;
        }
        if (d->restoreGeometry.isValid() && plainState(windowState()) == Qt::WindowNoState)
            showMaximized();
    }
    QWidget::changeEvent(event);
}

void RibbonMainWindow::moveEvent(QMoveEvent *event)
{
    if (d->lastHitTest == HitCaption && d->restoreGeometry.isValid()
        && plainState(windowState()) == Qt::WindowMaximized)
        showNormal();
    QWidget::moveEvent(event);
    d->updateMargins();
    update();
}

void RibbonMainWindow::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    update();
    d->updateMargins();
}

void RibbonMainWindow::mousePressEvent(QMouseEvent *event)
{
    d->lastHitTest = hitTest(event->globalPos());
    if (event->button() != Qt::LeftButton || d->lastHitTest != HitCaption) {
        QWidget::mousePressEvent(event);
        return;
    }
    event->accept();
    if (RibbonPlatform::startSystemMove(this))
        return;

    // The window system declined: follow the mouse by hand.
    delete d->manualDrag;
    d->manualDrag = new ManualDrag(this, ManualDrag::Move, true, event->globalPos());
}

void RibbonMainWindow::mouseMoveEvent(QMouseEvent *event)
{
    QWidget::mouseMoveEvent(event);
    if (!isMaximized())
        return;

    Qt::Edge edge = Qt::BottomEdge;
    if (!RibbonPlatform::autoHideTaskBar(&edge))
        return;
    QRect strip = rect();
    switch (edge) {
    case Qt::TopEdge:
        strip.setHeight(kTaskBarStrip);
        break;
    case Qt::LeftEdge:
        strip.setWidth(kTaskBarStrip);
        break;
    case Qt::RightEdge:
        strip.setLeft(strip.right() - kTaskBarStrip);
        break;
    case Qt::BottomEdge:
        strip.setTop(strip.bottom() - kTaskBarStrip);
        break;
    }
    const bool inside = strip.contains(event->pos());
    if (inside != d->taskBarHot)
        QTimer::singleShot(200, this, SLOT(showTaskBar()));
    d->taskBarHot = inside;
}

void RibbonMainWindow::mouseReleaseEvent(QMouseEvent *event)
{
    d->lastHitTest = HitClient;
    QWidget::mouseReleaseEvent(event);
}

void RibbonMainWindow::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton && hitTest(event->globalPos()) == HitCaption) {
        event->accept();
        showMaximizedRestored();
        return;
    }
    QWidget::mouseDoubleClickEvent(event);
}

void RibbonMainWindow::paintEvent(QPaintEvent *)
{
    const RibbonStyle &style = RibbonApplication::theApp().ribbonStyle();
    QPainter painter(this);
    QFont titleFont = font();
    titleFont.setPointSize(10);
    painter.setFont(titleFont);
    painter.setPen(isActiveWindow() ? style.activeTextColor() : style.inactiveTextColor());
    const QFontMetrics metrics(titleFont);
    const QString title = d->titleText();

    QRect leftPane;
    QRect rightPane;
    d->paneRects(&leftPane, &rightPane);

    if (d->view != MainView && rightPane.isValid()) {
        // Over the backstage colours: white behind the title, the navigation column's
        // colour continued up into the title row.
        const QRect t = d->titleLayout->geometry().adjusted(0, -kPageExtraTop, 0, 0);
        painter.fillRect(t, Qt::white);
        painter.fillRect(QRect(t.left(), t.top(), leftPane.width(), t.height()), style.frameBorderColor());
        if (d->showTitleBar) {
            const QRect textRect(t.left() + leftPane.width() + 5, t.top(), rightPane.width() - 75, t.height());
            painter.drawText(textRect, Qt::AlignHCenter | Qt::AlignVCenter,
                             metrics.elidedText(title, Qt::ElideRight, textRect.width()));
        }
    } else if (d->showTitleBar) {
        const QRect spacer = d->titleSpacer->geometry();
        RibbonContextCategoryPanelAction *set = d->menuBar ? d->menuBar->displayedContextPanel() : nullptr;
        if (!set) {
            painter.drawText(spacer, Qt::AlignHCenter | Qt::AlignVCenter,
                             metrics.elidedText(title, Qt::ElideRight, spacer.width()));
        } else {
            QRect band;
            d->menuBar->displayedContextPanelRect(band);
            const QMargins layoutMargins = d->mainLayout->contentsMargins();
            band.translate(layoutMargins.left(), layoutMargins.top());
            band.moveTopLeft(mapFromGlobal(band.topLeft()));
            band.setTop(d->frameMargin);
            band.setHeight(d->titleLayout->geometry().height());
            band.adjust(2, 0, -2, 0);

            if (!d->quickAccessBar->isVisible() || !d->quickAccessBar->geometry().intersects(band)) {
                QRect full(0, 0, metrics.horizontalAdvance(title), spacer.height());
                full.moveCenter(spacer.center());
                if (full.intersects(band)) {
                    const QRect beside(band.right() + 11, spacer.top(), spacer.right() - band.right() - 10,
                                       spacer.height());
                    if (beside.width() > 0)
                        painter.drawText(beside, Qt::AlignLeft | Qt::AlignVCenter,
                                         metrics.elidedText(title, Qt::ElideRight, beside.width()));
                } else {
                    painter.drawText(spacer, Qt::AlignHCenter | Qt::AlignVCenter,
                                     metrics.elidedText(title, Qt::ElideRight, spacer.width()));
                }

                painter.fillRect(band, set->backgroundColor());
                painter.fillRect(QRect(band.left(), band.top(), band.width(), qMin(4, band.height())), set->topColor());
                painter.setPen(set->textColor());
                painter.setFont(font());
                const QRect textRect = QRect(band.left(), band.top(), band.width(), height() - band.top())
                                           .adjusted(6, 7, -6, 7);
                painter.drawText(textRect, Qt::AlignHCenter | Qt::AlignTop | Qt::TextSingleLine,
                                 QFontMetrics(font()).elidedText(set->text(), Qt::ElideRight, textRect.width()));
            }
        }
    }

    if (!(windowState() & Qt::WindowFullScreen)) {
        const QMargins m = contentsMargins();
        const int extra = d->view != MainView ? kPageExtraTop : 0;
        painter.setPen(style.frameBorderColor());
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(rect().adjusted(m.left() - 1, m.top() - extra - 1, -m.right(), -m.bottom()));
    }
}

} // namespace zel
