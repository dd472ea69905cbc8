#pragma once

#include "zelribbon_export.h"

#include <QWidget>

#include <memory>

class QAbstractButton;

namespace zel {

// A navigation panel: a stack of pages with one full-width button per page underneath.
// Clicking a button shows its page; exactly one button is checked at a time, and the
// first page added is current until another is chosen.
class ZELRIBBON_EXPORT RibbonStackedWidget : public QWidget
{
    Q_OBJECT
public:
    explicit RibbonStackedWidget(QWidget *parent = nullptr);
    ~RibbonStackedWidget() override;

    // Adds page with a button labelled text under the others. The panel takes the page
    // over; a null page, or one added before, is ignored. Deleting a page later removes
    // its button.
    void addItem(QWidget *page, QString text);
    // Shows page and checks its button; nothing for a page that was never added.
    void setCurrentWidget(QWidget *page);

protected:
    void paintEvent(QPaintEvent *event) override;

private slots:
    void buttonClicked(QAbstractButton *button);

private:
    struct Priv;
    std::unique_ptr<Priv> d;
    Q_DISABLE_COPY(RibbonStackedWidget)
};

} // namespace zel
