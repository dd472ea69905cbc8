#include "RibbonCatComboAction.h"

#include "RibbonCatComboComboBox.h"

#include <QToolBar>

namespace zel {

RibbonCatComboAction::RibbonCatComboAction(QObject *parent)
    : RibbonAction(parent)
{
}

RibbonCatComboAction::RibbonCatComboAction(const QString &label, QObject *parent)
    : RibbonAction(label, parent)
    , m_comboLabel(label)
{
}

RibbonCatComboAction::~RibbonCatComboAction() = default;

void RibbonCatComboAction::addItem(const QString &item)
{
    m_items.append(item);
    // Keep the icon list parallel to the items once any item has an icon.
    if (!m_icons.isEmpty())
        m_icons.append(QIcon());
    emit itemAdded(QIcon(), item);
}

void RibbonCatComboAction::addItem(const QIcon &icon, const QString &item)
{
    while (m_icons.size() < m_items.size())
        m_icons.append(QIcon());
    m_items.append(item);
    m_icons.append(icon);
    emit itemAdded(icon, item);
}

QStringList RibbonCatComboAction::items() const
{
    return m_items;
}

QList<QIcon> RibbonCatComboAction::icons() const
{
    return m_icons;
}

QString RibbonCatComboAction::comboLabel() const
{
    return m_comboLabel;
}

void RibbonCatComboAction::setComboLabel(const QString &label)
{
    m_comboLabel = label;
}

QString RibbonCatComboAction::selectionText() const
{
    return m_selectionText;
}

int RibbonCatComboAction::selectionIndex() const
{
    return m_items.indexOf(m_selectionText);
}

void RibbonCatComboAction::setSelectionText(const QString &text)
{
    if (text.isEmpty() || text == m_selectionText)
        return;
    m_selectionText = text;
    emit selectionTextChanged();
    sendActionChangedEvt();
}

void RibbonCatComboAction::setSelectionIndex(int iconIndex)
{
    if (iconIndex < 0 || iconIndex >= m_items.size())
        return;
    setSelectionText(m_items.at(iconIndex));
}

bool RibbonCatComboAction::isEditable() const
{
    return m_editable;
}

void RibbonCatComboAction::setEditable(bool editable)
{
    if (editable == m_editable)
        return;
    m_editable = editable;
    emit editableChanged();
}

bool RibbonCatComboAction::isSearchable() const
{
    return m_searchable;
}

void RibbonCatComboAction::setSearchable(bool searchable)
{
    m_searchable = searchable;
}

int RibbonCatComboAction::width() const
{
    return m_width;
}

void RibbonCatComboAction::setWidth(int width)
{
    // A negative width has no meaning for a box; it is refused rather than handed to
    // the widgets, which could only warn about it.
    if (width >= 0)
        m_width = width;
}

int RibbonCatComboAction::iconWidth() const
{
    return m_iconWidth;
}

void RibbonCatComboAction::setIconWidth(int width)
{
    if (width >= 0)
        m_iconWidth = width;
}

QString RibbonCatComboAction::comboInputMask() const
{
    return m_comboInputMask;
}

void RibbonCatComboAction::setComboInputMask(const QString &mask)
{
    m_comboInputMask = mask;
}

QPointer<QValidator> RibbonCatComboAction::validator() const
{
    return m_validator;
}

void RibbonCatComboAction::setValidator(QPointer<QValidator> validator)
{
    m_validator = validator;
}

bool RibbonCatComboAction::isVerticalAligned() const
{
    return m_verticalAligned;
}

void RibbonCatComboAction::setVerticalAligned(bool vertical)
{
    m_verticalAligned = vertical;
}

void RibbonCatComboAction::emitKeyPressed(int key)
{
    emit keyPressed(key);
}

QWidget *RibbonCatComboAction::createWidget(QWidget *parent)
{
    // Inside the ribbon the category makes its own widget; only tool bars ask here.
    if (!qobject_cast<QToolBar *>(parent))
        return nullptr;
    return new RibbonCatComboComboBox(*this, parent);
}

} // namespace zel
