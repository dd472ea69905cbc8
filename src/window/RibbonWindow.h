#pragma once

#include "zelribbon_export.h"

#include <QWidget>

#include <memory>

namespace zel {

// A frameless top-level window in the ribbon look: it draws its own caption, border and
// three small system buttons, and moves, resizes, maximises, minimises and closes itself
// in answer to the mouse. Every mouse event goes through one small state machine, so a
// gesture started on the caption, a border or a button is finished by the same part.
// Hosts place their content inside contentsRect() (a layout does this by itself).
class ZELRIBBON_EXPORT RibbonWindow : public QWidget
{
    Q_OBJECT
public:
    static constexpr int s_BorderSize = 7;
    static constexpr int s_TopBorderSize = 10;
    static constexpr int s_SysIconSize = 16;
    static constexpr int s_SysBtnSize = 16;
    static constexpr int s_SysSpacing = 6;

    // A parentless window, frameless and with a system menu.
    RibbonWindow();
    // Parent and flags are passed on unchanged; include Qt::FramelessWindowHint.
    RibbonWindow(QWidget *parent, Qt::WindowFlags flags);
    ~RibbonWindow() override;

    int captionHeight() const;
    // Where the title is drawn and where a press starts moving the window: from just
    // right of the window icon to just left of the minimise button.
    QRect captionRect() const;

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private slots:
    void ribbonStyleChanged();

private:
    class Events;

    void init();
    QRect sysMinimizeRect() const;
    QRect sysMaximizeRestoreRect() const;
    QRect sysCloseRect() const;

    std::unique_ptr<Events> m_events;

    Q_DISABLE_COPY(RibbonWindow)
};

} // namespace zel
