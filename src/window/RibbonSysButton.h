#pragma once

#include "zelribbon_export.h"

#include <QPushButton>

namespace zel {

// One of the four buttons of a frameless window's title row, painted from the palette's
// system-button images: minimise, maximise/restore (following the window's state),
// close, and the system-menu button showing the application icon.
class ZELRIBBON_EXPORT RibbonSysButton : public QPushButton
{
public:
    enum eType {
        Minimize = 0,
        MaximizeRestore = 1,
        Close = 2,
        SystemMenu = 3
    };

    // window is the window whose state and activation the button shows; it is also the
    // parent unless another parent is given.
    RibbonSysButton(QWidget *window, int type, QWidget *parent = nullptr);
    ~RibbonSysButton() override;

    QWidget *mainWindow() const;
    int type() const;

protected:
    void mouseMoveEvent(QMouseEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QWidget *m_window;
    int m_type;

    Q_DISABLE_COPY(RibbonSysButton)
};

} // namespace zel
