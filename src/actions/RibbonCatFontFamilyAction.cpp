#include "RibbonCatFontFamilyAction.h"

#include "RibbonCatFontFamilyComboBox.h"

#include <QToolBar>

namespace zel {

RibbonCatFontFamilyAction::RibbonCatFontFamilyAction(const QFont &font, QObject *parent)
    : RibbonAction(parent)
    , m_fontFamily(font)
{
}

RibbonCatFontFamilyAction::~RibbonCatFontFamilyAction() = default;

QFont RibbonCatFontFamilyAction::fontFamily() const
{
    return m_fontFamily;
}

void RibbonCatFontFamilyAction::setFontFamily(const QFont &font)
{
    if (font == m_fontFamily)
        return;
    m_fontFamily = font;
    sendActionChangedEvt();
    emit fontFamilyChanged(m_fontFamily);
    emit changed();
    emit ribbonActionActivated();
}

QWidget *RibbonCatFontFamilyAction::createWidget(QWidget *parent)
{
    if (!qobject_cast<QToolBar *>(parent))
        return nullptr;
    return new RibbonCatFontFamilyComboBox(*this, parent);
}

} // namespace zel
