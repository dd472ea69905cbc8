#include "RibbonPanelPages_p.h"

#include "RibbonApplication.h"
#include "RibbonPaint_p.h"
#include "RibbonImageRows_p.h"
#include "RibbonPaint_p.h"
#include "RibbonStyle.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QPainter>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace zel {

namespace {

constexpr int FrameHeight = 23; // one frame of mainPanelButton
constexpr int FrameBorder = 2;
constexpr int MinimumButtonWidth = 120;
constexpr int ButtonHeight = 25;
constexpr int TextPadding = 10;

} // namespace

RibbonPanelPages::RibbonPanelPages(QButtonGroup &group, QStackedWidget &stack, QVBoxLayout &buttonsLayout)
    : m_group(group)
    , m_stack(stack)
    , m_buttonsLayout(buttonsLayout)
{
    buttonsLayout.setContentsMargins(1, 1, 1, 1);
    buttonsLayout.setSpacing(1);
    // The stack moves on by itself when its current page goes; the new page's button
    // takes over the check.
    m_currentChanged = QObject::connect(&stack, &QStackedWidget::currentChanged, &stack, [this] {
        if (QAbstractButton *button = buttonOf(m_stack.currentWidget()))
            button->setChecked(true);
    });
}

RibbonPanelPages::~RibbonPanelPages()
{
    detach();
}

bool RibbonPanelPages::canAdd(const QWidget *page) const
{
    return page && !buttonOf(page);
}

void RibbonPanelPages::add(QAbstractButton *button, QWidget *page)
{
    m_group.addButton(button);
    m_buttonsLayout.addWidget(button);
    m_stack.addWidget(page);
    const QMetaObject::Connection destroyed =
        QObject::connect(page, &QObject::destroyed, button, [this, button] { forgetPage(button); });
    m_entries.append({button, page, destroyed});
    if (m_group.buttons().size() == 1)
        button->click();
}

void RibbonPanelPages::showPageOf(QAbstractButton *button)
{
    for (const Entry &entry : qAsConst(m_entries)) {
        if (entry.button == button && entry.page) {
            m_stack.setCurrentWidget(entry.page);
            return;
        }
    }
}

QAbstractButton *RibbonPanelPages::buttonOf(const QWidget *page) const
{
    if (!page)
        return nullptr;
    for (const Entry &entry : m_entries) {
        if (entry.page == page)
            return entry.button;
    }
    return nullptr;
}

void RibbonPanelPages::detach()
{
    QObject::disconnect(m_currentChanged);
    for (const Entry &entry : qAsConst(m_entries))
        QObject::disconnect(entry.pageDestroyed);
    m_entries.clear();
}

void RibbonPanelPages::forgetPage(QAbstractButton *button)
{
    for (int i = m_entries.size() - 1; i >= 0; --i) {
        if (m_entries.at(i).button == button)
            m_entries.removeAt(i);
    }
    delete button;
}

QSize RibbonPanelPages::buttonSizeHint(const QAbstractButton &button)
{
    const int textWidth = button.fontMetrics().horizontalAdvance(button.text());
    return QSize(qMax(textWidth + TextPadding, MinimumButtonWidth), ButtonHeight);
}

void RibbonPanelPages::paintButton(QPainter &painter, const QAbstractButton &button, int frame, RibbonSlices &slices)
{
    if (frame != RibbonImageRows::NoRow) {
        const QPixmap &sheet = RibbonApplication::theApp().ribbonStyle().mainPanelButton();
        slices.set(button.rect(), QRect(0, 0, RibbonPaint::logicalSize(sheet).width(), FrameHeight),
                   QMargins(FrameBorder, FrameBorder, FrameBorder, FrameBorder));
        slices.draw(painter, sheet, frame * FrameHeight);
    }
    painter.setPen(RibbonPaint::textColor(button.isEnabled()));
    painter.setFont(button.font());
    painter.drawText(button.rect().adjusted(FrameBorder, FrameBorder, -FrameBorder, -FrameBorder),
                     Qt::AlignLeft | Qt::AlignVCenter, button.text());
}

void RibbonPanelPages::paintFrames(QPainter &painter, const QRect &buttonsArea, const QRect &stackArea)
{
    painter.setPen(Qt::gray);
    painter.setBrush(QBrush(RibbonPaint::paneFill(Qt::white), Qt::SolidPattern));
    painter.drawRect(buttonsArea.adjusted(-1, -1, 1, 1));
    painter.drawRect(stackArea.adjusted(-1, -1, 0, 0));
}

} // namespace zel
