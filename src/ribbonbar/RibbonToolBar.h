#pragma once

#include "zelribbon_export.h"

#include <QToolBar>

namespace zel {

// A tool bar without a background of its own: the parent shows through between the
// buttons, which paint themselves.
class ZELRIBBON_EXPORT RibbonToolBar : public QToolBar
{
    Q_OBJECT
public:
    explicit RibbonToolBar(QWidget *parent = nullptr);
    ~RibbonToolBar() override;

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
};

} // namespace zel
