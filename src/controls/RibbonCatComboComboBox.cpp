#include "RibbonCatComboComboBox.h"

#include "RibbonCatComboAction.h"
#include "RibbonScale_p.h"

#include <QActionEvent>
#include <QKeyEvent>
#include <QLineEdit>

namespace zel {

RibbonCatComboComboBox::RibbonCatComboComboBox(RibbonCatComboAction &action, QWidget *parent)
    : QComboBox(parent)
    , m_action(&action)
{
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    setIconSize(QSize(action.iconWidth(), 22));
    setFixedWidth(scaledX(action.width()));
    // Entered texts are added by the action (onReturnPressed), at the end as Qt would.
    setInsertPolicy(QComboBox::NoInsert);
    onEditableChanged();

    const QStringList items = action.items();
    const QList<QIcon> icons = action.icons();
    if (icons.isEmpty()) {
        addItems(items);
    } else {
        for (int i = 0; i < icons.size() && i < items.size(); ++i)
            addItem(icons.at(i), items.at(i));
    }

    connect(this, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &RibbonCatComboComboBox::relaySelection);
    connect(&action, &RibbonCatComboAction::itemAdded, this, &RibbonCatComboComboBox::onItemAdded);
    connect(&action, &RibbonCatComboAction::editableChanged, this, &RibbonCatComboComboBox::onEditableChanged);
    addAction(&action);
    setFixedHeight(comboRowHeight(fontMetrics()));
}

RibbonCatComboComboBox::~RibbonCatComboComboBox() = default;

void RibbonCatComboComboBox::onItemAdded(const QIcon &icon, const QString &item)
{
    addItem(icon, item);
}

void RibbonCatComboComboBox::onEditableChanged()
{
    auto *action = qobject_cast<RibbonCatComboAction *>(m_action);
    if (!action)
        return;
    const bool wasEditable = isEditable();
    setEditable(action->isEditable());
    // A box that becomes editable gets a fresh line edit: give it the action's input
    // rules, as a box made editable from the start has them.
    if (isEditable() && !wasEditable) {
        if (!action->comboInputMask().isEmpty())
            lineEdit()->setInputMask(action->comboInputMask());
        if (action->validator())
            setValidator(action->validator());
        connect(lineEdit(), &QLineEdit::returnPressed, this, &RibbonCatComboComboBox::onReturnPressed);
    }
}

void RibbonCatComboComboBox::updateActionSelection(const QString &item)
{
    const bool outer = m_showingSelection;
    m_showingSelection = true;
    setCurrentIndex(findText(item, Qt::MatchCaseSensitive));
    setEditText(item);
    m_showingSelection = outer;
}

void RibbonCatComboComboBox::relaySelection(int index)
{
    // The user's choice goes to the action; the action's own selection, shown here, does
    // not go back (should the items ever differ, box and action would correct each
    // other without end). The text is handed over, not the index, for the same reason.
    auto *action = qobject_cast<RibbonCatComboAction *>(m_action);
    if (!action || m_showingSelection || index < 0)
        return;
    action->setSelectionText(itemText(index));
}

void RibbonCatComboComboBox::onReturnPressed()
{
    auto *action = qobject_cast<RibbonCatComboAction *>(m_action);
    const QString text = lineEdit() ? lineEdit()->text() : QString();
    if (!action || text.isEmpty())
        return;
    if (!action->items().contains(text))
        action->addItem(text);
    action->setSelectionText(text);
}

void RibbonCatComboComboBox::keyPressEvent(QKeyEvent *event)
{
    QComboBox::keyPressEvent(event);
    auto *action = qobject_cast<RibbonCatComboAction *>(m_action);
    if (!action)
        return;
    const int key = event->key();
    action->emitKeyPressed(key);
    if (action->isSearchable() && (key == Qt::Key_Return || key == Qt::Key_Enter)) {
        setFocus();
        if (QLineEdit *edit = lineEdit())
            edit->selectAll();
    }
}

void RibbonCatComboComboBox::actionEvent(QActionEvent *event)
{
    QComboBox::actionEvent(event);
    auto *action = qobject_cast<RibbonCatComboAction *>(m_action);
    if (event->type() == QEvent::ActionRemoved || !action || event->action() != action)
        return;
    if (event->type() == QEvent::ActionAdded || event->type() == QEvent::ActionChanged)
        updateActionSelection(action->selectionText());
    setEnabled(action->isEnabled());
}

} // namespace zel
