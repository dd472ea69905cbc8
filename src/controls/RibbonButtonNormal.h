#pragma once

#include "zelribbon_export.h"

#include <QAbstractButton>

#include <memory>

namespace zel {

// A small tool button showing the first ribbon action added to it: its icon, text as
// tool tip, enabled and checked state. Its owner sets its size.
class ZELRIBBON_EXPORT RibbonButtonNormal : public QAbstractButton
{
    Q_OBJECT
public:
    explicit RibbonButtonNormal(QWidget *parent = nullptr);
    ~RibbonButtonNormal() override;

protected:
    void actionEvent(QActionEvent *event) override;
    void enterEvent(QEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    struct Priv;
    std::unique_ptr<Priv> d;
    Q_DISABLE_COPY(RibbonButtonNormal)
};

} // namespace zel
