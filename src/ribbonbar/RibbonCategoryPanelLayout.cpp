#include "RibbonCategoryPanelLayout.h"

#include "RibbonCategoryPanel.h"
#include "RibbonCategoryWrapper.h"
#include "RibbonScale_p.h"

#include <algorithm>

namespace zel {

namespace {

struct Measured
{
    RibbonCategoryWrapper *wrapper;
    int full;       // width of the expanded group
    int colapsed;   // width of the collapsed button
    int gain() const { return full - colapsed; }
};

} // namespace

RibbonCategoryPanelLayout::RibbonCategoryPanelLayout(RibbonCategoryPanel &panel)
    : QHBoxLayout(&panel)
    , m_panel(panel)
{
    setContentsMargins(0, 0, 0, 0);
    setSpacing(2);
}

RibbonCategoryPanelLayout::~RibbonCategoryPanelLayout() = default;

void RibbonCategoryPanelLayout::addCategory(RibbonCategoryWrapper *wrapper)
{
    if (!wrapper || m_wrappers.contains(wrapper))
        return;
    m_wrappers.append(wrapper);
    invalidate();
}

void RibbonCategoryPanelLayout::removeCategory(RibbonCategoryWrapper *wrapper)
{
    if (m_wrappers.removeAll(wrapper) > 0)
        invalidate();
}

const QList<RibbonCategoryWrapper *> &RibbonCategoryPanelLayout::categories() const
{
    return m_wrappers;
}

QSize RibbonCategoryPanelLayout::sizeHint() const
{
    int width = 0;
    for (const RibbonCategoryWrapper *wrapper : m_wrappers)
        width += wrapper->minimumSizeHint().width();
    if (m_wrappers.size() > 1)
        width += 2 * (m_wrappers.size() - 1);
    return QSize(width, scaled(85));
}

void RibbonCategoryPanelLayout::setGeometry(const QRect &rect)
{
    QHBoxLayout::setGeometry(rect);

    const int available = rect.width();
    int total = 0; // gaps are not counted
    QList<Measured> expanded;
    QList<Measured> colapsed;
    for (RibbonCategoryWrapper *wrapper : qAsConst(m_wrappers)) {
        const Measured m{wrapper, wrapper->sizeHint().width(), wrapper->minimumSizeHint().width()};
        if (wrapper->isColapsed()) {
            total += m.colapsed;
            colapsed.append(m);
        } else {
            total += m.full;
            expanded.append(m);
        }
    }

    // Largest gain first, group order kept among equals; both walks below run from the
    // back, so the smallest gain (and among equals the rightmost group) comes first.
    const auto largestGainFirst = [](const Measured &a, const Measured &b) { return a.gain() > b.gain(); };
    if (total < available) {
        std::stable_sort(colapsed.begin(), colapsed.end(), largestGainFirst);
        for (int i = colapsed.size() - 1; i >= 0; --i) {
            if (total >= available)
                break;
            total += colapsed.at(i).gain();
            if (total >= available)
                break;
            colapsed.at(i).wrapper->setColapsed(false);
        }
    } else {
        std::stable_sort(expanded.begin(), expanded.end(), largestGainFirst);
        for (int i = expanded.size() - 1; i >= 0; --i) {
            if (total < available)
                break;
            expanded.at(i).wrapper->setColapsed(true);
            total -= expanded.at(i).gain();
        }
    }

    int x = 0;
    for (RibbonCategoryWrapper *wrapper : qAsConst(m_wrappers)) {
        const QSize size = wrapper->isColapsed() ? wrapper->minimumSizeHint() : wrapper->sizeHint();
        wrapper->setGeometry(QRect(QPoint(x, 0), size));
        x += size.width() + 2;
    }
}

Qt::Orientations RibbonCategoryPanelLayout::expandingDirections() const
{
    return Qt::Horizontal;
}

bool RibbonCategoryPanelLayout::hasHeightForWidth() const
{
    return false;
}

} // namespace zel
