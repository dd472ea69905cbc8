#pragma once

#include "zelribbon_export.h"

#include <QRect>
#include <QWidget>

#include <memory>

namespace zel {

class BackstageView;
class BackstageWelcomeScreen;
class RibbonMenuBar;
class RibbonQuickAccessBar;
class RibbonStatusBar;

// The application's top-level ribbon window. A frameless window that draws its own
// title row (system-menu button, quick-access toolbar, title, minimise, maximise and
// close buttons), a one-pixel frame line and, around it, a shadow border through which
// it is resized. Below the title row it switches between three views: the main view
// (ribbon bar, the host's central widget, status bar), the backstage page behind the
// File button and the welcome screen.
class ZELRIBBON_EXPORT RibbonMainWindow : public QWidget
{
    Q_OBJECT
public:
    enum View {
        WelcomeScreen = 0,
        BackstagePanel = 1,
        MainView = 2
    };
    Q_ENUM(View)

    // Where a point of the window lies for dragging: the caption moves the window,
    // everything else belongs to the widgets.
    enum HitArea {
        HitClient = 1,
        HitCaption = 2
    };
    Q_ENUM(HitArea)

    explicit RibbonMainWindow(QWidget *parent = nullptr, Qt::WindowFlags flags = Qt::WindowFlags());
    ~RibbonMainWindow() override;

    RibbonMenuBar &ribbonMenuBar() const;
    RibbonStatusBar &ribbonStatusBar() const;
    RibbonQuickAccessBar &quickAccessBar() const;
    BackstageView &backstageView() const;
    BackstageWelcomeScreen &welcomeScreen() const;

    View activeView() const;
    // Shows the page of view; emits activeViewChanged() with the view shown before
    // when it changes. Escape returns to the main view from the other two.
    void setActiveView(View view);

    // Puts w between the ribbon bar and the status bar, in place of the previous
    // central widget (which is neither hidden nor deleted: its owner keeps it). Null
    // leaves an empty, stretching area.
    void setCentralWidget(QWidget *w);
    QWidget *centralWidget() const;

    // Without the title bar the quick-access toolbar and the four title buttons are
    // hidden and the title is not drawn.
    void setShowTitleBar(bool show);
    bool showTitleBar() const;

    // The normal geometry of a window that was maximised when the host saved it. Set
    // before the first show, the window comes up maximised and restores to this
    // geometry once.
    void setRestoreGeometry(const QRect &geometry);
    QRect restoreGeometry() const;

    // Shows the window (un-minimising it) and brings it in front of the others.
    void activateWindow();

    // Which area the global point lies in (caption: the top row outside the title
    // widgets and the empty parts of the ribbon bar's tab row).
    HitArea hitTest(const QPoint &globalPos) const;

    // The current width of the invisible frame around the visible window.
    int frameMargin() const;

signals:
    void activeViewChanged(int previousView);

public slots:
    // Maximised or minimised windows return to normal, others maximise.
    void showMaximizedRestored(bool updateState = true);
    void showMainView();
    // Leaves the backstage or welcome page once pending events are handled.
    void hideBackstagePanel();
    // Reveals an auto-hidden task bar while the cursor touches its edge.
    void showTaskBar();

private slots:
    void ribbonStyleChanged();
    void onShowSysMenu();
    void onMainButtonPressed();
    void onBackstageItemClicked(const QString &name);

protected:
    bool nativeEvent(const QByteArray &eventType, void *message, long *result) override;
    void changeEvent(QEvent *event) override;
    void moveEvent(QMoveEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;

private:
    class Priv;
    std::unique_ptr<Priv> d;
    Q_DISABLE_COPY(RibbonMainWindow)
};

} // namespace zel
