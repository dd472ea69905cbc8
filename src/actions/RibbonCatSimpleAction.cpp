#include "RibbonCatSimpleAction.h"

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
    Q_UNUSED(parent)
    // TODO: a QToolBar parent gets a RibbonCatSimpleButton once that button exists.
    return nullptr;
}

} // namespace zel
