#pragma once

#include "zelribbon_export.h"

#include <QAbstractButton>

namespace zel {

// The small close button of a child window's caption. It works only while the widget it
// sits on has the close-button window hint: without it the button draws nothing and
// takes no clicks.
class ZELRIBBON_EXPORT RibbonSmallSysBtnClose : public QAbstractButton
{
    Q_OBJECT
public:
    explicit RibbonSmallSysBtnClose(QWidget *parent = nullptr);
    ~RibbonSmallSysBtnClose() override;

protected:
    bool hitButton(const QPoint &pos) const override;
    void showEvent(QShowEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    bool closeHintSet() const;

    Q_DISABLE_COPY(RibbonSmallSysBtnClose)
};

} // namespace zel
