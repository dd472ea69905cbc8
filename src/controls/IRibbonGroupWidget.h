#pragma once

#include "zelribbon_export.h"


class QEvent;
class QWidget;

namespace zel {

// Implemented by controls that a button strip keeps hidden (menu and colour buttons of
// a wide strip): the strip hands them the press that lands on their cell, and they act
// as if it had reached their own mouse-press handler. Events other than a mouse-button
// press are ignored.
//
// Implementing widgets list this class as their second base, after their Qt widget
// class, so that qt_metacast("IRibbonGroupWidget") finds it; groupWidget() does that.
class ZELRIBBON_EXPORT IRibbonGroupWidget
{
public:
    IRibbonGroupWidget() = default;
    IRibbonGroupWidget(const IRibbonGroupWidget &) = default;
    IRibbonGroupWidget &operator=(const IRibbonGroupWidget &) = default;

    virtual void processEvents(QEvent *event) = 0;

    // The interface of widget, null when widget does not implement it.
    static IRibbonGroupWidget *groupWidget(QWidget *widget);

protected:
    // Objects are never deleted through the interface.
    ~IRibbonGroupWidget() = default;
};

} // namespace zel
