#include "RibbonMainWindow.h"

#include "BackstageView.h"
#include "BackstageWelcomeScreen.h"
#include "RibbonApplication.h"
#include "RibbonButtonMain.h"
#include "RibbonKeyTips_p.h"
#include "RibbonMainWindowFrame_p.h"
#include "RibbonMenuBar.h"
#include "RibbonPlatform.h"
#include "RibbonQuickAccessBar.h"
#include "RibbonStatusBar.h"
#include "RibbonStyle.h"
#include "RibbonTitleRow_p.h"

#include <QCoreApplication>
#include <QCursor>
#include <QHBoxLayout>
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

// The backstage and welcome pages lie a little lower than the main view.
constexpr int kPageExtraTop = 3;
// After a state change the window repaints once more when the window system is done.
constexpr int kStateRepaintDelayMs = 100;

} // namespace

// The window is the assembly of its pages and views; the title row and the frame are
// parts of their own.
class RibbonMainWindow::Priv
{
public:
    explicit Priv(RibbonMainWindow *w)
        : window(w)
        , frame(new RibbonMainWindowFrame(w))
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

    int extraTop() const { return view != MainView ? kPageExtraTop : 0; }
    void updateMargins() { frame->updateMargins(extraTop()); }
    void updateTitleRow() { titleRow->setShown(showTitleBar, view == MainView); }

    RibbonMainWindow *window;
    std::unique_ptr<RibbonMainWindowFrame> frame;
    std::unique_ptr<RibbonTitleRow> titleRow;
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
    bool showTitleBar = true;
};

RibbonMainWindow::RibbonMainWindow(QWidget *parent, Qt::WindowFlags flags)
    : QWidget(parent, flags)
    , d(new Priv(this))
{
    setMouseTracking(true);

    d->mainLayout = new QVBoxLayout(this);
    d->mainLayout->setContentsMargins(0, 0, 0, 0);
    d->mainLayout->setSpacing(0);
    setWindowFlags(windowFlags() | Qt::FramelessWindowHint);

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
    d->frame->setCaptionWidget(d->menuBar);
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

    // The title row's widgets come after the pages', its layout on top of them.
    d->titleRow.reset(new RibbonTitleRow(this));
    d->mainLayout->insertLayout(0, d->titleRow->layout());

    connect(d->menuBar, SIGNAL(contextRibbonChanged()), this, SLOT(update()), Qt::QueuedConnection);
    d->centralLayout->setContentsMargins(0, 0, 0, 0);

    d->updateTitleRow();
    d->updateMargins();
    new RibbonKeyTips(*this);
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
    return d->titleRow->quickAccessBar();
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
    // Keys go to the page shown: a focus left behind in a hidden page (the document
    // behind the welcome screen, whose editor takes Tab for itself) would swallow them.
    QWidget *shown = d->page(view);
    QWidget *focus = focusWidget();
    if (view != MainView && (!focus || !shown->isAncestorOf(focus))) {
        for (QWidget *w = shown->nextInFocusChain(); w != shown; w = w->nextInFocusChain()) {
            if (shown->isAncestorOf(w) && w->isVisibleTo(shown) && w->isEnabled() && (w->focusPolicy() & Qt::TabFocus)) {
                w->setFocus(Qt::OtherFocusReason);
                break;
            }
        }
    }
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
    d->frame->setRestoreGeometry(geometry);
}

QRect RibbonMainWindow::restoreGeometry() const
{
    return d->frame->restoreGeometry();
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
    return d->frame->hitTest(globalPos);
}

int RibbonMainWindow::frameMargin() const
{
    return d->frame->margin();
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
    d->frame->showTaskBar();
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
    d->frame->showSystemMenu(QCursor::pos());
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
        d->titleRow->windowActivationChanged();
    } else if (event->type() == QEvent::WindowStateChange) {
        d->updateTitleRow();
        d->updateMargins();
        QTimer::singleShot(kStateRepaintDelayMs, this, SLOT(update()));
        d->titleRow->windowStateChanged();
        d->frame->windowStateChanged(*static_cast<QWindowStateChangeEvent *>(event));
    }
    QWidget::changeEvent(event);
}

void RibbonMainWindow::moveEvent(QMoveEvent *event)
{
    d->frame->windowMoved();
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
    if (!d->frame->mousePressed(event))
        QWidget::mousePressEvent(event);
}

void RibbonMainWindow::mouseMoveEvent(QMouseEvent *event)
{
    QWidget::mouseMoveEvent(event);
    d->frame->mouseMoved(*event);
}

void RibbonMainWindow::mouseReleaseEvent(QMouseEvent *event)
{
    d->frame->mouseReleased();
    QWidget::mouseReleaseEvent(event);
}

void RibbonMainWindow::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (d->frame->mouseDoubleClicked(*event)) {
        event->accept();
        return;
    }
    QWidget::mouseDoubleClickEvent(event);
}

void RibbonMainWindow::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    QRect leftPane;
    QRect rightPane;
    d->paneRects(&leftPane, &rightPane);
    if (d->view != MainView && rightPane.isValid())
        d->titleRow->paintOverPage(painter, leftPane.width(), rightPane.width(), kPageExtraTop);
    else if (d->showTitleBar)
        d->titleRow->paintOverMainView(painter, d->menuBar ? d->menuBar->contextBand() : RibbonMenuBar::ContextBand());

    if (!(windowState() & Qt::WindowFullScreen))
        d->frame->paintFrameLine(painter, d->extraTop());
}

} // namespace zel
