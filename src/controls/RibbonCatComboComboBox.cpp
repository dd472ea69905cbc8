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
