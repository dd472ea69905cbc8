#include "RibbonCatSimpleAction.h"

#include "RibbonCatSimpleButton.h"

#include <QToolBar>

namespace zel {

RibbonCatSimpleAction::RibbonCatSimpleAction(eSize size, QObject *parent)
    : RibbonSimpleAction(parent)
    , m_size(size)
{
    init();
}

RibbonCatSimpleAction::RibbonCatSimpleAction(const QString &text, eSize size, QObject *parent)
    : RibbonSimpleAction(text, parent)
    , m_size(size)
{
    init();
}

RibbonCatSimpleAction::RibbonCatSimpleAction(const QIcon &icon, const QString &text, eSize size,
                                             QObject *parent)
    : RibbonSimpleAction(icon, text, parent)
    , m_size(size)
{
    init();
}

RibbonCatSimpleAction::RibbonCatSimpleAction(QPointer<QAction> alias, eSize size, QObject *parent)
    : RibbonSimpleAction(alias, parent)
    , m_size(size)
{
    init();
}

RibbonCatSimpleAction::RibbonCatSimpleAction(QPointer<QAction> alias, const QIcon &icon,
                                             const QString &text, eSize size, QObject *parent)
    : RibbonSimpleAction(alias, icon, text, parent)
    , m_size(size)
{
    init();
}

RibbonCatSimpleAction::RibbonCatSimpleAction(QPointer<RibbonAction> alias, eSize size,
                                             QObject *parent)
    : RibbonSimpleAction(alias, parent)
    , m_size(size)
{
    init();
}

RibbonCatSimpleAction::RibbonCatSimpleAction(QPointer<RibbonAction> alias, const QString &text,
                                             eSize size, QObject *parent)
    : RibbonSimpleAction(alias, text, parent)
    , m_size(size)
{
    init();
}

RibbonCatSimpleAction::~RibbonCatSimpleAction() = default;

void RibbonCatSimpleAction::init()
{
    // The base already relays triggered() as ribbonActionActivated(); the unique
    // connection keeps it to one announcement per trigger.
    connect(this, SIGNAL(triggered()), this, SIGNAL(ribbonActionActivated()),
            Qt::UniqueConnection);
}

RibbonCatSimpleAction::eSize RibbonCatSimpleAction::size() const
{
    return m_size;
}

QWidget *RibbonCatSimpleAction::createWidget(QWidget *parent)
{
    // Inside the ribbon the category makes the buttons itself; only a tool bar asks the
    // action for its widget.
    if (qobject_cast<QToolBar *>(parent))
        return new RibbonCatSimpleButton(*this, parent);
    return nullptr;
}

} // namespace zel
