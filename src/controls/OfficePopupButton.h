#pragma once

#include "zelribbon_export.h"

#include <QPushButton>

namespace zel {

// The button under the in-ribbon gallery's scroll bar that opens the full menu: a
// flat cell with a bar over a down arrow.
class ZELRIBBON_EXPORT OfficePopupButton : public QPushButton
{
    Q_OBJECT
public:
    explicit OfficePopupButton(QWidget *parent = nullptr);
    ~OfficePopupButton() override;

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void enterEvent(QEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    Q_DISABLE_COPY(OfficePopupButton)
};

} // namespace zel
