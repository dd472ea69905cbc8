#pragma once

#include "zelribbon_export.h"

#include <QPushButton>

namespace zel {

// The undock button of a child window's caption.
class ZELRIBBON_EXPORT RibbonSysDockButton : public QPushButton
{
    Q_OBJECT
public:
    explicit RibbonSysDockButton(QWidget *parent = nullptr);
    ~RibbonSysDockButton() override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    Q_DISABLE_COPY(RibbonSysDockButton)
};

} // namespace zel
