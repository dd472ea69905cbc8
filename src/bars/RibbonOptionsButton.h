#pragma once

#include "zelribbon_export.h"

#include <QAbstractButton>

#include <memory>

namespace zel {

class RibbonOptionsDialog;

// The button of one page of a RibbonOptionsDialog, painted from the palette's panel
// button image.
class ZELRIBBON_EXPORT RibbonOptionsButton : public QAbstractButton
{
    Q_OBJECT
public:
    // A checkable child of dialog.
    explicit RibbonOptionsButton(RibbonOptionsDialog &dialog);
    ~RibbonOptionsButton() override;

    RibbonOptionsDialog &dialog() const;

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    struct Priv;
    std::unique_ptr<Priv> d;
    Q_DISABLE_COPY(RibbonOptionsButton)
};

} // namespace zel
