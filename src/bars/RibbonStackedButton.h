#pragma once

#include "zelribbon_export.h"

#include <QAbstractButton>

#include <memory>

namespace zel {

class RibbonStackedWidget;

// The button of one page of a RibbonStackedWidget, painted from the palette's panel
// button image.
class ZELRIBBON_EXPORT RibbonStackedButton : public QAbstractButton
{
    Q_OBJECT
public:
    // A checkable child of stackedWidget.
    explicit RibbonStackedButton(RibbonStackedWidget &stackedWidget);
    ~RibbonStackedButton() override;

    RibbonStackedWidget &stackedWidget() const;

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    struct Priv;
    std::unique_ptr<Priv> d;
    Q_DISABLE_COPY(RibbonStackedButton)
};

} // namespace zel
