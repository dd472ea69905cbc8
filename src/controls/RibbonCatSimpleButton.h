#pragma once

#include "zelribbon_export.h"

#include <QAbstractButton>

#include <memory>

namespace zel {

class RibbonCatSimpleAction;

// The button of a RibbonCatSimpleAction in its size class: large (32 x 32 icon over
// a caption of up to two lines), medium (16 x 16 icon and one line of caption) or
// small (16 x 16 icon only). It mirrors the action's text, icon, tool tip, enabled,
// checkable and checked state; clicking it triggers the action.
class ZELRIBBON_EXPORT RibbonCatSimpleButton : public QAbstractButton
{
    Q_OBJECT
public:
    RibbonCatSimpleButton(RibbonCatSimpleAction &action, QWidget *parent);
    ~RibbonCatSimpleButton() override;

    // The action shown; null once it has been destroyed.
    RibbonCatSimpleAction *action() const;

    QSize sizeHint() const override;

protected:
    void actionEvent(QActionEvent *event) override;
    void changeEvent(QEvent *event) override;
    void enterEvent(QEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    // The checked state is the action's: a click triggers the action, which toggles
    // itself and reports back, rather than the button toggling on its own.
    void nextCheckState() override;

private:
    struct Priv;
    std::unique_ptr<Priv> d;
    Q_DISABLE_COPY(RibbonCatSimpleButton)
};

} // namespace zel
