#include "RibbonMainWindow.h"

#include "RibbonMenuBar.h"

#include <QSpacerItem>
#include <QVBoxLayout>

namespace zel {

class RibbonMainWindow::Priv
{
public:
    explicit Priv(RibbonMainWindow *w)
        : window(w)
    {
    }

    ~Priv()
    {
        // The placeholder belongs to the layout only while it stands in it.
        if (!centralLayout || centralLayout->indexOf(centralPlaceholder) < 0)
            delete centralPlaceholder;
    }

    RibbonMainWindow *window;
    QVBoxLayout *mainLayout = nullptr;
    QVBoxLayout *centralLayout = nullptr;
    RibbonMenuBar *menuBar = nullptr;
    // Keeps the central area stretching while there is no central widget.
    QSpacerItem *centralPlaceholder = new QSpacerItem(0, 0, QSizePolicy::Expanding, QSizePolicy::Expanding);
};

RibbonMainWindow::RibbonMainWindow(QWidget *parent, Qt::WindowFlags flags)
    : QWidget(parent, flags)
    , d(new Priv(this))
{
    setMouseTracking(true);

    d->mainLayout = new QVBoxLayout(this);
    d->mainLayout->setContentsMargins(0, 0, 0, 0);
    d->mainLayout->setSpacing(0);

    d->menuBar = new RibbonMenuBar(*this);
    d->mainLayout->addWidget(d->menuBar);

    d->centralLayout = new QVBoxLayout;
    d->centralLayout->setContentsMargins(0, 0, 0, 0);
    d->centralLayout->addItem(d->centralPlaceholder);
    d->mainLayout->addLayout(d->centralLayout);
}

RibbonMainWindow::~RibbonMainWindow()
{
    // The bar's tabs may be children of this window and outlive the bar for a moment;
    // let the bar go first, while the window is still whole.
    delete d->menuBar;
    d->menuBar = nullptr;
}

RibbonMenuBar &RibbonMainWindow::ribbonMenuBar() const
{
    return *d->menuBar;
}

void RibbonMainWindow::setCentralWidget(QWidget *w)
{
    if (QLayoutItem *item = d->centralLayout->takeAt(0)) {
        if (item != d->centralPlaceholder)
            delete item; // the layout item only; the widget stays with its owner
    }
    if (w) {
        w->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
        d->centralLayout->addWidget(w);
    } else {
        d->centralLayout->addItem(d->centralPlaceholder);
    }
}

} // namespace zel
