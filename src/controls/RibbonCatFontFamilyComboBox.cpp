#include "RibbonCatFontFamilyComboBox.h"

#include "RibbonCatFontFamilyAction.h"
#include "RibbonScale_p.h"

#include <QActionEvent>

namespace zel {

RibbonCatFontFamilyComboBox::RibbonCatFontFamilyComboBox(RibbonCatFontFamilyAction &action,
                                                         QWidget *parent)
    : QFontComboBox(parent)
    , m_action(&action)
{
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    setFixedWidth(scaledX(140));
    connect(this, SIGNAL(currentFontChanged(const QFont &)), &action,
            SLOT(setFontFamily(const QFont &)));
    connect(this, SIGNAL(activated(int)), this, SLOT(onIndexChanged(int)));
    addAction(&action);
    setFixedHeight(comboRowHeight(fontMetrics()));
}

RibbonCatFontFamilyComboBox::~RibbonCatFontFamilyComboBox() = default;

void RibbonCatFontFamilyComboBox::actionEvent(QActionEvent *event)
{
    QFontComboBox::actionEvent(event);
    if (event->type() != QEvent::ActionAdded && event->type() != QEvent::ActionChanged)
        return;
    auto *action = qobject_cast<RibbonCatFontFamilyAction *>(m_action);
    if (!action || event->action() != action)
        return;
    // Showing the action's font must not send it back: the signals stay blocked until
    // control returns to the event loop.
    blockSignals(true);
    setEnabled(action->isEnabled());
    setCurrentFont(action->fontFamily());
    QMetaObject::invokeMethod(this, "unblockSignals", Qt::QueuedConnection);
}

void RibbonCatFontFamilyComboBox::onIndexChanged(int index)
{
    Q_UNUSED(index)
    // Choosing the font already shown changes no index, yet must still reach the action.
    emit currentFontChanged(currentFont());
}

void RibbonCatFontFamilyComboBox::unblockSignals()
{
    blockSignals(false);
}

} // namespace zel
