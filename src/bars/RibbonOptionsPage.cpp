#include "RibbonOptionsPage.h"

#include "RibbonApplication.h"
#include "RibbonOptionsDialog.h"
#include "RibbonPaint_p.h"

namespace zel {

RibbonOptionsPage::RibbonOptionsPage(RibbonOptionsDialog &dialog)
    : QWidget(&dialog, Qt::WindowFlags())
    , m_dialog(dialog)
{
    const auto applyFill = [this] {
        QPalette pal = palette();
        pal.setColor(QPalette::All, QPalette::Window, RibbonPaint::paneFill(Qt::white));
        setPalette(pal);
    };
    applyFill();
    connect(&RibbonApplication::theApp(), &RibbonApplication::ribbonStyleChanged, this, applyFill);
}

RibbonOptionsPage::~RibbonOptionsPage() = default;

RibbonOptionsDialog &RibbonOptionsPage::dialog() const
{
    return m_dialog;
}

} // namespace zel
