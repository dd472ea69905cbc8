#include "RibbonCatComboComboBox.h"

#include "RibbonCatComboAction.h"

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
    setFixedWidth(action.width());
    onEditableChanged();

    const QStringList items = action.items();
    const QList<QIcon> icons = action.icons();
    if (icons.isEmpty()) {
        addItems(items);
    } else {
        for (int i = 0; i < icons.size() && i < items.size(); ++i)
            addItem(icons.at(i), items.at(i));
    }

    connect(this, SIGNAL(currentIndexChanged(const QString &)), &action,
            SLOT(setSelectionText(const QString &)));
    connect(this, QOverload<int>::of(&QComboBox::currentIndexChanged), &action,
            &RibbonCatComboAction::setSelectionIndex);
    connect(&action, &RibbonCatComboAction::itemAdded, this, &RibbonCatComboComboBox::onItemAdded);
    connect(&action, &RibbonCatComboAction::editableChanged, this, &RibbonCatComboComboBox::onEditableChanged);
    addAction(&action);
    setFixedHeight(22);
}

RibbonCatComboComboBox::~RibbonCatComboComboBox() = default;

void RibbonCatComboComboBox::onItemAdded(const QIcon &icon, const QString &item)
{
    addItem(icon, item);
}

void RibbonCatComboComboBox::onEditableChanged()
{
    if (!m_action)
        return;
    const bool wasEditable = isEditable();
    setEditable(m_action->isEditable());
    // A box that becomes editable gets a fresh line edit: give it the action's input
    // rules, as a box made editable from the start has them.
    if (isEditable() && !wasEditable) {
        if (!m_action->comboInputMask().isEmpty())
            lineEdit()->setInputMask(m_action->comboInputMask());
        if (m_action->validator())
            setValidator(m_action->validator());
    }
}

void RibbonCatComboComboBox::updateActionSelection(const QString &item)
{
    setCurrentIndex(findText(item, Qt::MatchCaseSensitive));
    setEditText(item);
}

void RibbonCatComboComboBox::keyPressEvent(QKeyEvent *event)
{
    QComboBox::keyPressEvent(event);
    if (!m_action)
        return;
    const int key = event->key();
    m_action->emitKeyPressed(key);
    if (m_action->isSearchable() && (key == Qt::Key_Return || key == Qt::Key_Enter)) {
        setFocus();
        if (QLineEdit *edit = lineEdit())
            edit->selectAll();
    }
}

void RibbonCatComboComboBox::actionEvent(QActionEvent *event)
{
    QComboBox::actionEvent(event);
    // The action may be in its destructor when it is removed: read nothing from it then.
    if (event->type() == QEvent::ActionRemoved || !m_action || event->action() != m_action)
        return;
    if (event->type() == QEvent::ActionAdded || event->type() == QEvent::ActionChanged)
        updateActionSelection(m_action->selectionText());
    setEnabled(m_action->isEnabled());
}

} // namespace zel
