#pragma once

#include "zelribbon_export.h"

#include <QWidget>

#include <memory>

namespace zel {

// A framed panel with a caption strip of its own: title, close button and, when made
// dockable, an undock button. It is a plain child widget that the host places, for
// example as a side panel; the content goes inside contentsRect() (a layout does this
// by itself).
class ZELRIBBON_EXPORT RibbonChildWindow : public QWidget
{
    Q_OBJECT
public:
    explicit RibbonChildWindow(QWidget *parent = nullptr, bool dockable = false);
    ~RibbonChildWindow() override;

    // Shows or hides the undock button; ignored when the window is not dockable.
    void showDockingButton(bool show);
    // Whether the line under the caption strip is drawn (by default it is).
    void drawCaptionFrame(bool draw);

signals:
    // The window is about to close (it is still visible), however it is closed.
    void closed();
    // The undock button was clicked; the host decides where the content goes.
    void undocking();

protected:
    void changeEvent(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private slots:
    void onUndocking();
    void ribbonStyleChanged();

private:
    struct Priv;
    std::unique_ptr<Priv> d;
    Q_DISABLE_COPY(RibbonChildWindow)
};

} // namespace zel
