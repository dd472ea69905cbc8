#include "RibbonCategoryLayout.h"

#include "RibbonCatComboWidget.h"
#include "RibbonCategory.h"
#include "RibbonScale_p.h"

#include <QVector>
#include <QWidget>

#include <algorithm>

namespace zel {

namespace {

// The full height of a category and the height up to which a control counts as short.
int categoryHeight()
{
    return scaled(85);
}

int shortThreshold()
{
    return scaled(22);
}

const int kColumnGap = 2;
const int kBlockGap = 3;

} // namespace

RibbonCategoryLayout::RibbonCategoryLayout(RibbonCategory *category)
    : QLayout(category)
    , m_category(category)
    , m_size(-1, categoryHeight())
{
    setContentsMargins(3, 2, 4, 15);
    setSpacing(1);
}

RibbonCategoryLayout::~RibbonCategoryLayout()
{
    m_suppressed = true;
    while (QLayoutItem *item = takeAt(0))
        delete item;
}

void RibbonCategoryLayout::addItem(QLayoutItem *item)
{
    if (!item)
        return;
    m_items.append(item);
    m_rects.append(QRect());
    if (!m_suppressed) {
        recompute();
        invalidate();
    }
}

QLayoutItem *RibbonCategoryLayout::itemAt(int index) const
{
    return index >= 0 && index < m_items.size() ? m_items.at(index) : nullptr;
}

QLayoutItem *RibbonCategoryLayout::takeAt(int index)
{
    if (index < 0 || index >= m_items.size())
        return nullptr;
    QLayoutItem *item = m_items.takeAt(index);
    m_rects.removeAt(index);
    if (!m_suppressed) {
        recompute();
        invalidate();
    }
    return item;
}

int RibbonCategoryLayout::count() const
{
    return m_items.size();
}

QSize RibbonCategoryLayout::sizeHint() const
{
    ensureArranged();
    return m_size;
}

QSize RibbonCategoryLayout::minimumSize() const
{
    ensureArranged();
    return m_size;
}

Qt::Orientations RibbonCategoryLayout::expandingDirections() const
{
    return {};
}

void RibbonCategoryLayout::setGeometry(const QRect &rect)
{
    ensureArranged();
    QLayout::setGeometry(rect);
    for (int i = 0; i < m_items.size(); ++i)
        m_items.at(i)->setGeometry(m_rects.at(i).translated(rect.topLeft()));
}

bool RibbonCategoryLayout::hasHeightForWidth() const
{
    return true;
}

int RibbonCategoryLayout::heightForWidth(int) const
{
    return categoryHeight();
}

QRect RibbonCategoryLayout::itemRect(int index) const
{
    ensureArranged();
    return index >= 0 && index < m_rects.size() ? m_rects.at(index) : QRect();
}

bool RibbonCategoryLayout::countsAsShort(int index) const
{
    QLayoutItem *item = m_items.at(index);
    // A combo widget joins a run of short controls whatever its height.
    if (qobject_cast<RibbonCatComboWidget *>(item->widget()))
        return true;
    return item->sizeHint().height() <= shortThreshold();
}

int RibbonCategoryLayout::rowOf(int index) const
{
    QWidget *widget = m_items.at(index)->widget();
    return m_category->actionRow(widget ? m_category->action(widget) : nullptr);
}

void RibbonCategoryLayout::ensureArranged() const
{
    if (m_pending)
        const_cast<RibbonCategoryLayout *>(this)->recompute();
}

void RibbonCategoryLayout::recompute()
{
    if (m_suppressed)
        return;
    m_pending = false;
    const QMargins margins = contentsMargins();
    const int height = categoryHeight();
    const int usable = height - margins.top() - margins.bottom();
    const int threshold = shortThreshold();
    const int count = m_items.size();

    if (count == 0) {
        m_size = QSize(margins.left() + margins.right(), height);
        return;
    }

    // Rows assigned by the host apply when every control has one.
    int rowCount = 0;
    for (int i = 0; i < count; ++i) {
        const int row = rowOf(i);
        if (row < 0) {
            rowCount = 0;
            break;
        }
        rowCount = qMax(rowCount, row + 1);
    }

    int x = margins.left();
    int i = 0;
    while (i < count) {
        QSize hint = m_items.at(i)->sizeHint();
        if (hint.height() <= threshold)
            hint.setHeight(22);
        if (hint.height() > threshold) {
            m_rects[i] = QRect(x, margins.top() + (usable - hint.height()) / 2, hint.width(), hint.height());
            x += hint.width();
            ++i;
        } else {
            int end = i + 1;
            while (end < count && countsAsShort(end))
                ++end;
            if (end - i == 1) {
                const QSize own = m_items.at(i)->sizeHint();
                m_rects[i] = QRect(x, margins.top() + (usable - own.height()) / 2, own.width(), own.height());
                x += own.width();
            } else if (rowCount > 0) {
                x += arrangeRows(i, end, x, rowCount);
            } else {
                x += arrangeAutomatic(i, end, x);
            }
            i = end;
        }
        x += kBlockGap;
    }
    m_size = QSize(x - kBlockGap + margins.right(), height);
}

int RibbonCategoryLayout::arrangeAutomatic(int first, int end, int x0)
{
    const QMargins margins = contentsMargins();
    const int usable = categoryHeight() - margins.top() - margins.bottom();
    const int count = end - first;
    const int rows = qMin(count, 3);
    const int rowHeight = usable / 3;

    // Column-major: column c holds the items c * rows ... c * rows + rows - 1.
    int x = x0;
    int total = 0;
    for (int column = 0; column * rows < count; ++column) {
        const int top = first + column * rows;
        const int bottom = qMin(top + rows, end);
        int columnWidth = 0;
        for (int k = top; k < bottom; ++k)
            columnWidth = qMax(columnWidth, m_items.at(k)->sizeHint().width());
        for (int k = top; k < bottom; ++k) {
            const QSize hint = m_items.at(k)->sizeHint();
            const int row = k - top;
            m_rects[k] = QRect(x, margins.top() + row * rowHeight + (rowHeight - hint.height()) / 2,
                               hint.width(), hint.height());
        }
        if (column > 0)
            total += kColumnGap;
        total += columnWidth;
        x += columnWidth + kColumnGap;
    }
    return total;
}

int RibbonCategoryLayout::arrangeRows(int first, int end, int x0, int rowCount)
{
    const QMargins margins = contentsMargins();
    const int usable = categoryHeight() - margins.top() - margins.bottom();
    const int rowHeight = usable / rowCount;

    // Controls of the run sit in their rows left to right in group order; the row
    // count is the group's, so the rows of runs on either side of a tall control line up.
    QVector<int> rowWidth(rowCount, 0);
    QVector<int> rowItems(rowCount, 0);
    for (int k = first; k < end; ++k) {
        const int row = rowOf(k);
        const QSize hint = m_items.at(k)->sizeHint();
        int &width = rowWidth[row];
        if (rowItems[row]++ > 0)
            width += kColumnGap;
        m_rects[k] = QRect(x0 + width, margins.top() + row * rowHeight + (rowHeight - hint.height()) / 2,
                           hint.width(), hint.height());
        width += hint.width();
    }
    return *std::max_element(rowWidth.constBegin(), rowWidth.constEnd());
}

} // namespace zel
