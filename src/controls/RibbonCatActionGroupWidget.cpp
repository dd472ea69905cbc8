#include "RibbonCatActionGroupWidget.h"

#include "IRibbonGroupWidget.h"
#include "RibbonActionWidgetMap_p.h"
#include "RibbonApplication.h"
#include "RibbonCatActionGroup.h"
#include "RibbonCatColorMenuAction.h"
#include "RibbonCatColorMenuButton.h"
#include "RibbonCatMenuAction.h"
#include "RibbonCatMenuButton.h"
#include "RibbonImageRows_p.h"
#include "RibbonPaint_p.h"
#include "RibbonPlatform.h"
#include "RibbonScreenTip_p.h"
#include "RibbonStyle.h"

#include <QAccessibleWidget>
#include <QActionEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>

namespace zel {

namespace {

const int kPlainCell = 22;
const int kWideCell = 30;
const int kStripHeight = 22;
const int kIconExtent = 16;

// Parts of a wide cell, relative to its left edge.
const QRect kWideMain(0, 0, 20, 22);
const QRect kWideArrow(20, 0, 8, 22);
const QRect kWideRightEdge(28, 0, 2, 22);

// The hidden buttons behind the members of a wide strip that open a popup of their
// own; each implements IRibbonGroupWidget. Plain commands get none.
const RibbonWidgetMaker popupButtonMakers[] = {
    makeWidgetFor<RibbonCatColorMenuAction, RibbonCatColorMenuButton>,
    makeWidgetFor<RibbonCatMenuAction, RibbonCatMenuButton>,
};

// A screen reader sees a strip as a tool bar with one button per member; the cells
// are no widgets, so each gets an interface of its own.
class CellAccessible : public QAccessibleInterface, public QAccessibleActionInterface
{
public:
    CellAccessible(RibbonCatActionGroupWidget *strip, int index)
        : m_strip(strip)
        , m_index(index)
    {
    }

    RibbonAction *member() const
    {
        RibbonCatActionGroup *group = m_strip ? m_strip->group() : nullptr;
        return group ? group->actions().value(m_index) : nullptr;
    }

    bool isValid() const override { return member() != nullptr; }
    QObject *object() const override { return nullptr; }
    QWindow *window() const override { return m_strip ? m_strip->window()->windowHandle() : nullptr; }
    QAccessibleInterface *parent() const override
    {
        return m_strip ? QAccessible::queryAccessibleInterface(m_strip.data()) : nullptr;
    }
    QAccessibleInterface *child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface *) const override { return -1; }
    QAccessibleInterface *childAt(int, int) const override { return nullptr; }

    QString text(QAccessible::Text t) const override
    {
        const RibbonAction *action = member();
        if (!action)
            return QString();
        switch (t) {
        case QAccessible::Name:
            return ribbonAccessibleName(action);
        case QAccessible::Description:
            return ribbonDescription(action);
        case QAccessible::Accelerator:
            return action->shortcut().toString(QKeySequence::NativeText);
        default:
            return QString();
        }
    }
    void setText(QAccessible::Text, const QString &) override {}

    QRect rect() const override
    {
        if (!m_strip)
            return QRect();
        const QRect cell = m_strip->cellRect(m_index);
        return QRect(m_strip->mapToGlobal(cell.topLeft()), cell.size());
    }
    QAccessible::Role role() const override
    {
        const RibbonAction *action = member();
        return action && action->isCheckable() ? QAccessible::CheckBox : QAccessible::Button;
    }
    QAccessible::State state() const override
    {
        QAccessible::State state;
        const RibbonAction *action = member();
        if (!action)
            return state;
        state.disabled = !action->isEnabled();
        state.checkable = action->isCheckable();
        state.checked = action->isChecked();
        state.invisible = !m_strip->isVisible();
        return state;
    }

    void *interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface *>(this) : nullptr;
    }
    QStringList actionNames() const override { return {pressAction()}; }
    void doAction(const QString &name) override
    {
        RibbonAction *action = member();
        if (name == pressAction() && action && action->isEnabled())
            action->trigger();
    }
    QStringList keyBindingsForAction(const QString &) const override { return {}; }

private:
    QPointer<RibbonCatActionGroupWidget> m_strip;
    int m_index;
};

class StripAccessible : public QAccessibleWidget
{
public:
    explicit StripAccessible(RibbonCatActionGroupWidget *strip)
        : QAccessibleWidget(strip, QAccessible::ToolBar)
    {
    }
    ~StripAccessible() override
    {
        for (QAccessible::Id id : qAsConst(m_cells))
            QAccessible::deleteAccessibleInterface(id);
    }

    RibbonCatActionGroupWidget *strip() const { return static_cast<RibbonCatActionGroupWidget *>(widget()); }
    int memberCount() const { return strip()->group() ? strip()->group()->actions().size() : 0; }

    int childCount() const override { return memberCount(); }
    QAccessibleInterface *child(int index) const override
    {
        if (index < 0 || index >= memberCount())
            return nullptr;
        while (m_cells.size() <= index)
            m_cells.append(QAccessible::registerAccessibleInterface(new CellAccessible(strip(), m_cells.size())));
        return QAccessible::accessibleInterface(m_cells.at(index));
    }
    int indexOfChild(const QAccessibleInterface *child) const override
    {
        for (int i = 0; i < m_cells.size(); ++i) {
            if (QAccessible::accessibleInterface(m_cells.at(i)) == child)
                return i < memberCount() ? i : -1;
        }
        return -1;
    }
    QAccessibleInterface *childAt(int x, int y) const override
    {
        return child(strip()->cellAt(strip()->mapFromGlobal(QPoint(x, y))));
    }

private:
    mutable QVector<QAccessible::Id> m_cells;
};

QAccessibleInterface *stripAccessibleFactory(const QString &className, QObject *object)
{
    if (className == QLatin1String("zel::RibbonCatActionGroupWidget") && object && object->isWidgetType())
        return new StripAccessible(static_cast<RibbonCatActionGroupWidget *>(object));
    return nullptr;
}

} // namespace

struct RibbonCatActionGroupWidget::Priv
{
    QPointer<QAction> group;
    int pressedIndex = -1;
    // By member; the buttons are children of the strip.
    RibbonActionWidgetMap<> popupWidgets;
    // The checked and enabled state of each member a screen reader last heard of.
    struct Announced
    {
        bool checked;
        bool enabled;
    };
    QHash<const QAction *, Announced> announced;

    // The cells are no widgets, so nothing else tells a screen reader that a member
    // turned checked or enabled.
    void announceMemberStates(RibbonCatActionGroupWidget &strip)
    {
        const RibbonCatActionGroup *members = strip.group();
        if (!members) {
            announced.clear();
            return;
        }
        QHash<const QAction *, Announced> now;
        const QList<RibbonAction *> actions = members->actions();
        for (int i = 0; i < actions.size(); ++i) {
            const Announced state{actions.at(i)->isChecked(), actions.at(i)->isEnabled()};
            now.insert(actions.at(i), state);
            const auto before = announced.constFind(actions.at(i));
            if (before == announced.constEnd())
                continue;
            QAccessible::State changed;
            changed.checked = before->checked != state.checked;
            changed.disabled = before->enabled != state.enabled;
            if (changed.checked || changed.disabled) {
                QAccessibleStateChangeEvent event(&strip, changed);
                event.setChild(i);
                QAccessible::updateAccessibility(&event);
            }
        }
        announced = now;
    }
};

RibbonCatActionGroupWidget::RibbonCatActionGroupWidget(RibbonCatActionGroup &group, QWidget *parent)
    : QWidget(parent)
    , d(new Priv)
{
    d->group = &group;
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setMouseTracking(true);
    static const bool factoryInstalled = [] {
        QAccessible::installFactory(stripAccessibleFactory);
        return true;
    }();
    Q_UNUSED(factoryInstalled)
    addAction(&group);
}

RibbonCatActionGroupWidget::~RibbonCatActionGroupWidget() = default;

RibbonCatActionGroup *RibbonCatActionGroupWidget::group() const
{
    return qobject_cast<RibbonCatActionGroup *>(d->group);
}

int RibbonCatActionGroupWidget::cellWidth() const
{
    return group() && group()->isWide() ? kWideCell : kPlainCell;
}

int RibbonCatActionGroupWidget::cellAt(const QPoint &pos) const
{
    if (!group() || pos.x() < 0)
        return -1;
    const int index = pos.x() / cellWidth();
    return index < group()->actions().size() ? index : -1;
}

QRect RibbonCatActionGroupWidget::cellRect(int index) const
{
    if (!group() || index < 0 || index >= group()->actions().size())
        return QRect();
    return QRect(index * cellWidth(), 0, cellWidth(), kStripHeight);
}

QSize RibbonCatActionGroupWidget::sizeHint() const
{
    const int count = group() ? group()->actions().size() : 0;
    return QSize(count * cellWidth(), kStripHeight);
}

void RibbonCatActionGroupWidget::syncPopupWidgets()
{
    RibbonCatActionGroup *group = this->group();
    const bool wide = group && group->isWide();

    // Drop the buttons of members that left the group (or of a strip no longer wide).
    // Members are compared by address: a key may be that of a member destroyed since.
    const auto isMember = [group](const QObject *key) {
        for (const RibbonAction *member : group->actions()) {
            if (member == key)
                return true;
        }
        return false;
    };
    for (const QObject *key : d->popupWidgets.keys()) {
        if (!wide || !isMember(key))
            d->popupWidgets.drop(key);
    }
    if (!wide)
        return;
    for (RibbonAction *action : group->actions()) {
        if (d->popupWidgets.contains(action))
            continue;
        QWidget *button = makeWidget(popupButtonMakers, action, this).widget;
        if (!IRibbonGroupWidget::groupWidget(button)) {
            delete button;
            continue;
        }
        button->hide();
        d->popupWidgets.insert(action, button);
    }
}

void RibbonCatActionGroupWidget::actionEvent(QActionEvent *event)
{
    QWidget::actionEvent(event);
    QAction *group = d->group;
    if (group && event->action() == group) {
        switch (event->type()) {
        case QEvent::ActionAdded:
        case QEvent::ActionChanged:
            // Members come and go through ActionChanged events of the group.
            syncPopupWidgets();
            d->announceMemberStates(*this);
            updateGeometry();
            break;
        case QEvent::ActionRemoved:
            // Also reached while the group is being destroyed: forget it without
            // touching it.
            d->group = nullptr;
            d->pressedIndex = -1;
            break;
        default:
            break;
        }
    }
    update();
}

void RibbonCatActionGroupWidget::leaveEvent(QEvent *event)
{
    QWidget::leaveEvent(event);
    update();
}

void RibbonCatActionGroupWidget::mousePressEvent(QMouseEvent *event)
{
    QWidget::mousePressEvent(event);
    if (event->button() != Qt::LeftButton || !group())
        return;
    const int index = cellAt(event->pos());
    if (index >= 0 && group()->actions().at(index)->isEnabled()) {
        d->pressedIndex = index;
        if (group()->isWide()) {
            QWidget *button = d->popupWidgets.widget(group()->actions().at(index));
            if (IRibbonGroupWidget *groupWidget = IRibbonGroupWidget::groupWidget(button)) {
                // The hidden button stands on its cell, so that its popup opens below
                // the cell, and receives the press in its own coordinates.
                const QRect cell = cellRect(index);
                button->setGeometry(cell);
                QMouseEvent press(event->type(), event->localPos() - cell.topLeft(), event->windowPos(),
                                  event->screenPos(), event->button(), event->buttons(), event->modifiers());
                // A popup run modally may end with this strip deleted.
                QPointer<RibbonCatActionGroupWidget> self(this);
                groupWidget->processEvents(&press);
                if (!self)
                    return;
            }
        }
    }
    update();
}

void RibbonCatActionGroupWidget::mouseMoveEvent(QMouseEvent *event)
{
    QWidget::mouseMoveEvent(event);
    const int index = cellAt(event->pos());
    if (index >= 0)
        setToolTip(ribbonScreenTip(group()->actions().at(index)));
    update();
}

void RibbonCatActionGroupWidget::mouseReleaseEvent(QMouseEvent *event)
{
    QWidget::mouseReleaseEvent(event);
    const int pressed = d->pressedIndex;
    d->pressedIndex = -1;
    if (event->button() == Qt::LeftButton && pressed >= 0 && group() && pressed == cellAt(event->pos())) {
        RibbonAction *action = group()->actions().at(pressed);
        if (action->isEnabled()) {
            // The command may delete this strip.
            QPointer<RibbonCatActionGroupWidget> self(this);
            action->trigger();
            if (!self)
                return;
        }
    }
    update();
}

void RibbonCatActionGroupWidget::paintEvent(QPaintEvent *)
{
    RibbonCatActionGroup *group = this->group();
    if (!group)
        return;
    const RibbonStyle &style = RibbonApplication::theApp().ribbonStyle();
    const QList<RibbonAction *> &actions = group->actions();
    const int count = actions.size();
    const bool wide = group->isWide();
    const int cw = cellWidth();
    const int row = RibbonPaint::SmallRowHeight;
    const QPoint cursor = mapFromGlobal(RibbonPlatform::cursorPos());
    const bool mouseInside = underMouse();
    const bool groupEnabled = group->isEnabled();

    QPainter painter(this);
    for (int i = 0; i < count; ++i) {
        RibbonAction *action = actions.at(i);
        const bool enabled = groupEnabled && action->isEnabled();
        const QRect cell(cw * i, 0, cw, kStripHeight);
        const QRect main = wide ? kWideMain.translated(cell.topLeft()) : cell;
        const bool hovered = mouseInside && cell.contains(cursor);

        // Always drawn: a disabled cell has the normal look.
        using namespace RibbonImageRows;
        int state = GroupCell::Normal;
        if (enabled && i == d->pressedIndex && !wide)
            state = GroupCell::Pressed;
        else if (enabled && action->isChecked())
            state = hovered ? GroupCell::CheckedHover : GroupCell::Checked;
        else if (enabled && hovered)
            state = GroupCell::Hover;

        const QPixmap &segment = i == 0 ? style.btnGroupFirst()
                                 : i == count - 1 ? style.btnGroupLast()
                                                  : style.btnGroupMidle();
        if (!wide) {
            // A cell alone is a small tool button, read with the strip's row numbers.
            const QPixmap &image = count == 1 ? style.normalButtonSmall() : segment;
            RibbonPaint::drawPart(painter, cell, image, QRect(0, row * state, kPlainCell, row));
        } else {
            // The first cell opens the strip with the first segment's left edge; later
            // cells begin with a middle segment, whose left edge separates them from
            // their neighbour. Only the last cell closes the strip.
            const QPixmap &mainImage = i == 0 ? style.btnGroupFirst() : style.btnGroupMidle();
            RibbonPaint::drawPart(painter, main, mainImage, QRect(0, row * state, 20, row));
            RibbonPaint::drawPart(painter, kWideArrow.translated(cell.topLeft()), style.btnGroupMidle(),
                                  QRect(2, row * state, 10, row));
            const QPixmap &edgeImage = i == count - 1 ? style.btnGroupLast() : style.btnGroupMidle();
            RibbonPaint::drawPart(painter, kWideRightEdge.translated(cell.topLeft()), edgeImage,
                                  QRect(20, row * state, 2, row));
            const QColor color = RibbonPaint::textColor(groupEnabled);
            painter.setPen(color);
            painter.setBrush(color);
            RibbonStyle::drawSymbol(painter, QRect(cell.x() + 20, height() / 2, 5, 3), SymbolDropDown);
        }

        const QPixmap pixmap = RibbonPaint::iconPixmap(action->icon(), kIconExtent, enabled, *this);
        if (!pixmap.isNull()) {
            const QSize ps = pixmap.size() / pixmap.devicePixelRatio();
            painter.drawPixmap(main.x() + (main.width() - ps.width()) / 2,
                               main.y() + (main.height() - ps.height()) / 2, pixmap);
        }
    }
}

} // namespace zel
