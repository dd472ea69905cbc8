#include "RibbonStackedWidget.h"

#include "RibbonPanelPages_p.h"
#include "RibbonStackedButton.h"

#include <QButtonGroup>
#include <QPainter>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace zel {

struct RibbonStackedWidget::Priv
{
    explicit Priv(RibbonStackedWidget *owner)
        : mainLayout(new QVBoxLayout(owner))
        , contentLayout(new QVBoxLayout)
        , buttonsLayout(new QVBoxLayout)
        , buttonsFrameLayout(new QVBoxLayout)
        , buttonGroup(new QButtonGroup(owner))
        , stack(new QStackedWidget(owner))
        , pages(*buttonGroup, *stack, *buttonsLayout)
    {
    }

    QVBoxLayout *mainLayout;
    QVBoxLayout *contentLayout;
    QVBoxLayout *buttonsLayout;
    QVBoxLayout *buttonsFrameLayout;
    QButtonGroup *buttonGroup;
    QStackedWidget *stack;
    RibbonPanelPages pages;
};

RibbonStackedWidget::RibbonStackedWidget(QWidget *parent)
    : QWidget(parent)
    , d(new Priv(this))
{
    d->contentLayout->setContentsMargins(0, 0, 0, 0);
    d->contentLayout->setSpacing(10);
    d->buttonsFrameLayout->setContentsMargins(0, 0, 0, 0);
    d->buttonsFrameLayout->setSpacing(0);
    d->buttonsFrameLayout->addLayout(d->buttonsLayout);
    d->contentLayout->addWidget(d->stack);
    d->contentLayout->addLayout(d->buttonsFrameLayout);
    d->mainLayout->addLayout(d->contentLayout);

    d->buttonGroup->setExclusive(true);
    connect(d->buttonGroup, SIGNAL(buttonClicked(QAbstractButton*)), this, SLOT(buttonClicked(QAbstractButton*)));
}

RibbonStackedWidget::~RibbonStackedWidget()
{
    d->pages.detach();
}

void RibbonStackedWidget::addItem(QWidget *page, QString text)
{
    if (!d->pages.canAdd(page))
        return;
    auto *button = new RibbonStackedButton(*this);
    button->setText(text);
    d->pages.add(button, page);
}

void RibbonStackedWidget::setCurrentWidget(QWidget *page)
{
    if (QAbstractButton *button = d->pages.buttonOf(page))
        button->click();
}

void RibbonStackedWidget::buttonClicked(QAbstractButton *button)
{
    if (qobject_cast<RibbonStackedButton *>(button))
        d->pages.showPageOf(button);
}

void RibbonStackedWidget::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    RibbonPanelPages::paintFrames(painter, d->buttonsFrameLayout->geometry(), d->stack->geometry());
}

} // namespace zel
