#include "RibbonOptionsPage.h"

#include "RibbonOptionsDialog.h"

namespace zel {

RibbonOptionsPage::RibbonOptionsPage(RibbonOptionsDialog &dialog)
    : QWidget(&dialog, Qt::WindowFlags())
    , m_dialog(dialog)
{
    QPalette pal = palette();
    pal.setColor(QPalette::All, QPalette::Window, Qt::white);
    setPalette(pal);
}

RibbonOptionsPage::~RibbonOptionsPage() = default;

RibbonOptionsDialog &RibbonOptionsPage::dialog() const
{
    return m_dialog;
}

} // namespace zel
