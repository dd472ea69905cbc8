#include "RibbonOptionsDialog.h"

#include "RibbonMainWindow.h"
#include "RibbonOptionsButton.h"
#include "RibbonOptionsPage.h"
#include "RibbonPanelPages_p.h"

#include <QButtonGroup>
#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QPainter>
#include <QPushButton>
#include <QSpacerItem>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace zel {

struct RibbonOptionsDialog::Priv
{
    explicit Priv(RibbonOptionsDialog *owner, RibbonMainWindow &window)
        : mainWindow(window)
        , mainLayout(new QVBoxLayout)
        , contentLayout(new QHBoxLayout)
        , buttonsLayout(new QVBoxLayout)
        , navigationLayout(new QVBoxLayout)
        , buttonGroup(new QButtonGroup(owner))
        , stack(new QStackedWidget(owner))
        , buttonBox(new QDialogButtonBox(Qt::Horizontal, owner))
        , pages(*buttonGroup, *stack, *buttonsLayout)
    {
    }

    RibbonMainWindow &mainWindow;
    QVBoxLayout *mainLayout;
    QHBoxLayout *contentLayout;
    QVBoxLayout *buttonsLayout;
    QVBoxLayout *navigationLayout;
    QButtonGroup *buttonGroup;
    QStackedWidget *stack;
    QDialogButtonBox *buttonBox;
    RibbonPanelPages pages;
};

RibbonOptionsDialog::RibbonOptionsDialog(RibbonMainWindow &mainWindow)
    : QDialog(&mainWindow, Qt::WindowFlags())
    , d(new Priv(this, mainWindow))
{
    resize(640, 398);
    // The texts are translated in the context "RibbonOptionsDialog", whatever namespace
    // the class lives in.
    setWindowTitle(QStringLiteral("Zandor ") + QCoreApplication::translate("RibbonOptionsDialog", "Options"));

    d->buttonGroup->setExclusive(true);
    connect(d->buttonGroup, SIGNAL(buttonClicked(QAbstractButton*)), this, SLOT(buttonClicked(QAbstractButton*)));

    d->contentLayout->setContentsMargins(0, 0, 0, 0);
    d->contentLayout->setSpacing(10);
    d->navigationLayout->setContentsMargins(0, 0, 0, 0);
    d->navigationLayout->setSpacing(0);
    d->navigationLayout->addLayout(d->buttonsLayout);
    // Keeps the buttons at the top of the column.
    d->navigationLayout->addItem(new QSpacerItem(0, 0, QSizePolicy::Ignored, QSizePolicy::MinimumExpanding));
    d->contentLayout->addLayout(d->navigationLayout);
    d->contentLayout->addWidget(d->stack);
    d->mainLayout->addLayout(d->contentLayout);

    d->buttonBox->addButton(new QPushButton(QCoreApplication::translate("RibbonOptionsDialog", "OK")),
                            QDialogButtonBox::AcceptRole);
    d->buttonBox->addButton(new QPushButton(QCoreApplication::translate("RibbonOptionsDialog", "Cancel")),
                            QDialogButtonBox::RejectRole);
    connect(d->buttonBox, SIGNAL(accepted()), this, SLOT(accept()));
    connect(d->buttonBox, SIGNAL(rejected()), this, SLOT(reject()));

    d->mainLayout->addWidget(d->buttonBox);
    setLayout(d->mainLayout);
    setWindowFlags(windowFlags() & ~Qt::WindowContextHelpButtonHint);
}

RibbonOptionsDialog::~RibbonOptionsDialog()
{
    d->pages.detach();
}

RibbonMainWindow &RibbonOptionsDialog::mainWindow() const
{
    return d->mainWindow;
}

void RibbonOptionsDialog::addOptionsPage(RibbonOptionsPage *page)
{
    if (!d->pages.canAdd(page) || &page->dialog() != this)
        return;
    auto *button = new RibbonOptionsButton(*this);
    button->setText(page->windowTitle());
    d->pages.add(button, page);
    // After the dialog's own accept() and reject(), in the order the pages came.
    connect(d->buttonBox, SIGNAL(accepted()), page, SLOT(accept()));
    connect(d->buttonBox, SIGNAL(rejected()), page, SLOT(reject()));
}

void RibbonOptionsDialog::removeOptionsPage(RibbonOptionsPage *)
{
}

void RibbonOptionsDialog::setCurrentPage(RibbonOptionsPage *page)
{
    QAbstractButton *button = d->pages.buttonOf(page);
    if (!button)
        return;
    button->setChecked(true);
    d->stack->setCurrentWidget(page);
}

void RibbonOptionsDialog::buttonClicked(QAbstractButton *button)
{
    if (qobject_cast<RibbonOptionsButton *>(button))
        d->pages.showPageOf(button);
}

void RibbonOptionsDialog::paintEvent(QPaintEvent *event)
{
    QWidget::paintEvent(event);
    QPainter painter(this);
    RibbonPanelPages::paintFrames(painter, d->navigationLayout->geometry(), d->stack->geometry());
}

} // namespace zel
