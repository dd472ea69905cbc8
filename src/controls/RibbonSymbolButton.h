#pragma once

#include "RibbonStyle.h"
#include "zelribbon_export.h"

#include <QAbstractButton>

#include <memory>

namespace zel {

// A small button showing a vector symbol (arrow, drop-down mark, first/previous/next/
// last) in the text colour instead of an icon. Its owner sets its size.
class ZELRIBBON_EXPORT RibbonSymbolButton : public QAbstractButton
{
    Q_OBJECT
public:
    explicit RibbonSymbolButton(eSymbolType symbol, QWidget *parent = nullptr);
    ~RibbonSymbolButton() override;

    eSymbolType symbol() const;

    // Invalid: the owner decides the size.
    QSize sizeHint() const override;

protected:
    void enterEvent(QEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    struct Priv;
    std::unique_ptr<Priv> d;
    Q_DISABLE_COPY(RibbonSymbolButton)
};

} // namespace zel
