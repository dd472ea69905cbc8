#include "RibbonCatComboWidget.h"

#include "RibbonCatComboAction.h"
#include "RibbonCatComboComboBox.h"
#include "RibbonScale_p.h"

#include <QGridLayout>
#include <QLabel>

namespace zel {

RibbonCatComboWidget::RibbonCatComboWidget(RibbonCatComboAction &action, QWidget *parent)
    : QWidget(parent)
    , m_action(&action)
    , m_comboBox(new RibbonCatComboComboBox(action, this))
    , m_label(new QLabel(action.comboLabel(), this))
{
    setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);

    auto *layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setHorizontalSpacing(0);
    // A screen reader names the combo box by its label.
    m_label->setBuddy(m_comboBox);
    layout->addWidget(m_label, 0, 0);
    layout->addWidget(m_comboBox, 0, 1);

    if (!action.comboLabel().isEmpty()) {
        if (!action.isVerticalAligned()) {
            const int labelWidth = m_label->fontMetrics().horizontalAdvance(action.comboLabel());
            setFixedSize(labelWidth + 10 + scaledX(action.width()), m_comboBox->height());
        } else {
            layout->removeWidget(m_comboBox);
            layout->addWidget(m_comboBox, 1, 0);
            layout->addWidget(new QLabel(this), 2, 0);
        }
    }
}

RibbonCatComboWidget::~RibbonCatComboWidget() = default;

RibbonCatComboComboBox *RibbonCatComboWidget::comboBox() const
{
    return m_comboBox;
}

QLabel *RibbonCatComboWidget::label() const
{
    return m_label;
}

QSize RibbonCatComboWidget::sizeHint() const
{
    return QWidget::sizeHint();
}

} // namespace zel
