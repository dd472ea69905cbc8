#include "RibbonAccessible_p.h"

#include "IRibbonGroupWidget.h"
#include "RibbonCatColorMenuButton.h"
#include "RibbonCatMenuAction.h"
#include "RibbonCatMenuButton.h"
#include "RibbonCategory.h"
#include "RibbonCategoryAction.h"
#include "RibbonCategoryWrapper.h"
#include "RibbonCategoryWrapperPopup.h"
#include "RibbonCategoriesPanelAction.h"
#include "RibbonColorPickerPopup.h"
#include "RibbonMenuBar.h"
#include "RibbonMenuBarButton.h"
#include "RibbonPercAction.h"
#include "RibbonScreenTip_p.h"

#include <QAbstractButton>
#include <QAccessibleWidget>
#include <QCoreApplication>
#include <QMouseEvent>
#include <QPointer>

#include <algorithm>

namespace zel {

namespace {

QPointer<QWidget> keyboardHighlight;

// The action a control shows: the first one added to it.
QAction *shownAction(const QWidget *widget)
{
    return widget->actions().value(0);
}

// A control that shows one command: named by the command's text, described by its
// screen tip's description, pressed as a click would.
class CommandAccessible : public QAccessibleWidget
{
public:
    CommandAccessible(QWidget *widget, QAccessible::Role role)
        : QAccessibleWidget(widget, role)
    {
    }

    QString text(QAccessible::Text t) const override
    {
        QAction *action = shownAction(widget());
        switch (t) {
        case QAccessible::Name:
            if (!widget()->accessibleName().isEmpty())
                return widget()->accessibleName();
            return action ? ribbonAccessibleName(action) : ribbonShownText(buttonText());
        case QAccessible::Description:
            if (!widget()->accessibleDescription().isEmpty())
                return widget()->accessibleDescription();
            // Not the tool tip, which is the rich text of the screen tip.
            return ribbonDescription(action);
        case QAccessible::Accelerator:
            return action ? action->shortcut().toString(QKeySequence::NativeText) : QString();
        default:
            return QAccessibleWidget::text(t);
        }
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        if (widget() == keyboardHighlight)
            state.focused = true;
        return state;
    }

    QStringList actionNames() const override
    {
        return QStringList(pressAction()) << QAccessibleWidget::actionNames();
    }

    void doAction(const QString &name) override
    {
        if (name == pressAction())
            press();
        else
            QAccessibleWidget::doAction(name);
    }

protected:
    virtual void press()
    {
        if (auto *button = qobject_cast<QAbstractButton *>(widget()))
            button->click();
    }

private:
    QString buttonText() const
    {
        auto *button = qobject_cast<QAbstractButton *>(widget());
        return button ? button->text() : QString();
    }
};

// A button of a command: a check box while the command is checkable.
class ButtonAccessible : public CommandAccessible
{
public:
    explicit ButtonAccessible(QAbstractButton *button)
        : CommandAccessible(button, QAccessible::Button)
    {
    }

    QAbstractButton *button() const { return static_cast<QAbstractButton *>(widget()); }

    QAccessible::Role role() const override
    {
        return button()->isCheckable() ? QAccessible::CheckBox : QAccessible::Button;
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = CommandAccessible::state();
        state.checkable = button()->isCheckable();
        state.checked = button()->isChecked();
        state.pressed = button()->isDown();
        return state;
    }

    QStringList actionNames() const override
    {
        QStringList names = CommandAccessible::actionNames();
        if (button()->isCheckable())
            names.insert(1, toggleAction());
        return names;
    }

    void doAction(const QString &name) override
    {
        CommandAccessible::doAction(name == toggleAction() ? pressAction() : name);
    }
};

// A push button whose checked state is only its look (the File button).
class PushButtonAccessible : public CommandAccessible
{
public:
    explicit PushButtonAccessible(QAbstractButton *button)
        : CommandAccessible(button, QAccessible::Button)
    {
    }
};

// Presses the drop-down part of a menu or colour button, which lies at the lower right
// in every size class.
void pressDropDown(QWidget *widget)
{
    IRibbonGroupWidget *group = IRibbonGroupWidget::groupWidget(widget);
    if (!group || !widget->isEnabled())
        return;
    const QPoint corner(widget->width() - 4, widget->height() - 4);
    QMouseEvent press(QEvent::MouseButtonPress, corner, widget->mapToGlobal(corner), Qt::LeftButton, Qt::LeftButton,
                      Qt::NoModifier);
    group->processEvents(&press);
}

// A menu button (a split button when its menu has a default command) or a colour button
// (which opens its picker wherever it is pressed).
class DropDownAccessible : public CommandAccessible
{
public:
    explicit DropDownAccessible(QWidget *widget)
        : CommandAccessible(widget, QAccessible::ButtonMenu)
    {
    }

    bool isSplit() const
    {
        auto *menu = qobject_cast<RibbonCatMenuButton *>(widget());
        return menu && menu->action() && menu->action()->defaultAction();
    }

    bool isOpen() const
    {
        if (auto *colour = qobject_cast<RibbonCatColorMenuButton *>(widget()))
            return colour->popup().isVisible();
        auto *menu = qobject_cast<RibbonCatMenuButton *>(widget());
        return menu && menu->isPopupOpen();
    }

    QAccessible::Role role() const override { return isSplit() ? QAccessible::ButtonDropDown : QAccessible::ButtonMenu; }

    QAccessible::State state() const override
    {
        QAccessible::State state = CommandAccessible::state();
        state.hasPopup = true;
        state.expanded = isOpen();
        state.collapsed = !state.expanded;
        return state;
    }

    QStringList actionNames() const override { return QStringList{pressAction(), showMenuAction()}; }

    void doAction(const QString &name) override
    {
        if (name == showMenuAction())
            pressDropDown(widget());
        else
            CommandAccessible::doAction(name);
    }

protected:
    void press() override
    {
        if (!widget()->isEnabled())
            return;
        auto *menu = qobject_cast<RibbonCatMenuButton *>(widget());
        if (menu && menu->action() && menu->action()->defaultAction())
            menu->action()->defaultAction()->trigger();
        else
            pressDropDown(widget());
    }
};

// A category in place is a grouping named by its caption; in its own popup as well.
class CategoryAccessible : public QAccessibleWidget
{
public:
    explicit CategoryAccessible(RibbonCategory *category)
        : QAccessibleWidget(category, QAccessible::Grouping)
    {
    }

    QString text(QAccessible::Text t) const override
    {
        const RibbonCategoryAction *action = static_cast<RibbonCategory *>(widget())->action();
        if (t == QAccessible::Name && action)
            return ribbonShownText(action->text());
        if (t == QAccessible::Description)
            return ribbonDescription(action);
        return QAccessibleWidget::text(t);
    }
};

// The box around a category: nothing of its own while the category stands in it (a
// filler a reader passes through), a menu button reporting its popup once folded.
class WrapperAccessible : public CommandAccessible
{
public:
    explicit WrapperAccessible(RibbonCategoryWrapper *wrapper)
        : CommandAccessible(wrapper, QAccessible::Client)
    {
    }

    RibbonCategoryWrapper *wrapper() const { return static_cast<RibbonCategoryWrapper *>(widget()); }

    QAccessible::Role role() const override
    {
        return wrapper()->isColapsed() ? QAccessible::ButtonMenu : QAccessible::Client;
    }

    QString text(QAccessible::Text t) const override
    {
        if (t == QAccessible::Name)
            return ribbonShownText(wrapper()->categoryAction().text());
        if (t == QAccessible::Description)
            return ribbonDescription(&wrapper()->categoryAction());
        return CommandAccessible::text(t);
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = CommandAccessible::state();
        if (wrapper()->isColapsed()) {
            state.hasPopup = true;
            state.expanded = wrapper()->popup() && wrapper()->isMyChecked();
            state.collapsed = !state.expanded;
        }
        return state;
    }

    QStringList actionNames() const override
    {
        if (!wrapper()->isColapsed())
            return QAccessibleWidget::actionNames();
        return QStringList{pressAction(), showMenuAction()};
    }

    void doAction(const QString &name) override
    {
        if (wrapper()->isColapsed() && (name == pressAction() || name == showMenuAction()))
            wrapper()->setMyChecked(true);
        else
            QAccessibleWidget::doAction(name);
    }
};

// The popup of a folded category.
class WrapperPopupAccessible : public QAccessibleWidget
{
public:
    explicit WrapperPopupAccessible(RibbonCategoryWrapperPopup *popup)
        : QAccessibleWidget(popup, QAccessible::Dialog)
    {
    }

    QString text(QAccessible::Text t) const override
    {
        const RibbonCategory *category = static_cast<RibbonCategoryWrapperPopup *>(widget())->category();
        if (t == QAccessible::Name && category && category->action())
            return ribbonShownText(category->action()->text());
        return QAccessibleWidget::text(t);
    }
};

// The tab buttons of a ribbon bar, in the order they stand.
QList<RibbonMenuBarButton *> tabButtons(const RibbonMenuBar *bar)
{
    QList<RibbonMenuBarButton *> tabs = bar->findChildren<RibbonMenuBarButton *>(QString(), Qt::FindDirectChildrenOnly);
    tabs.erase(std::remove_if(tabs.begin(), tabs.end(), [](RibbonMenuBarButton *tab) { return tab->isHidden(); }),
               tabs.end());
    std::stable_sort(tabs.begin(), tabs.end(),
                     [](const RibbonMenuBarButton *a, const RibbonMenuBarButton *b) { return a->x() < b->x(); });
    return tabs;
}

// The row of tabs has no widget of its own (the tabs stand in the bar between the File
// button and the commands at the right), so it gets an interface that the bar owns.
class TabRowAccessible : public QAccessibleInterface
{
public:
    explicit TabRowAccessible(RibbonMenuBar *bar)
        : m_bar(bar)
    {
    }

    bool isValid() const override { return m_bar; }
    QObject *object() const override { return nullptr; }
    QWindow *window() const override { return m_bar ? m_bar->window()->windowHandle() : nullptr; }
    QAccessibleInterface *parent() const override
    {
        return m_bar ? QAccessible::queryAccessibleInterface(m_bar.data()) : nullptr;
    }
    int childCount() const override { return m_bar ? tabButtons(m_bar).size() : 0; }
    QAccessibleInterface *child(int index) const override
    {
        RibbonMenuBarButton *tab = m_bar ? tabButtons(m_bar).value(index) : nullptr;
        return tab ? QAccessible::queryAccessibleInterface(tab) : nullptr;
    }
    int indexOfChild(const QAccessibleInterface *child) const override
    {
        if (!m_bar || !child)
            return -1;
        return tabButtons(m_bar).indexOf(qobject_cast<RibbonMenuBarButton *>(child->object()));
    }
    QAccessibleInterface *childAt(int x, int y) const override
    {
        if (!m_bar)
            return nullptr;
        for (RibbonMenuBarButton *tab : tabButtons(m_bar)) {
            if (QRect(tab->mapToGlobal(QPoint(0, 0)), tab->size()).contains(x, y))
                return QAccessible::queryAccessibleInterface(tab);
        }
        return nullptr;
    }
    QString text(QAccessible::Text t) const override
    {
        return t == QAccessible::Name ? QCoreApplication::translate("zel::RibbonMenuBar", "Ribbon Tabs") : QString();
    }
    void setText(QAccessible::Text, const QString &) override {}
    QRect rect() const override
    {
        QRect united;
        if (m_bar) {
            for (RibbonMenuBarButton *tab : tabButtons(m_bar))
                united |= QRect(tab->mapToGlobal(QPoint(0, 0)), tab->size());
        }
        return united;
    }
    QAccessible::Role role() const override { return QAccessible::PageTabList; }
    QAccessible::State state() const override
    {
        QAccessible::State state;
        state.invisible = !m_bar || !m_bar->isVisible();
        return state;
    }

private:
    QPointer<RibbonMenuBar> m_bar;
};

// The ribbon bar: its own children, with the tabs gathered in the tab row, which comes
// first.
class MenuBarAccessible : public QAccessibleWidget
{
public:
    explicit MenuBarAccessible(RibbonMenuBar *bar)
        : QAccessibleWidget(bar, QAccessible::Pane)
        , m_tabRow(QAccessible::registerAccessibleInterface(new TabRowAccessible(bar)))
    {
    }
    ~MenuBarAccessible() override { QAccessible::deleteAccessibleInterface(m_tabRow); }

    QAccessibleInterface *tabRow() const { return QAccessible::accessibleInterface(m_tabRow); }

    QString text(QAccessible::Text t) const override
    {
        if (t == QAccessible::Name && widget()->accessibleName().isEmpty())
            return QCoreApplication::translate("zel::RibbonMenuBar", "Ribbon");
        return QAccessibleWidget::text(t);
    }

    // The children Qt finds, less the tabs.
    QList<QAccessibleInterface *> others() const
    {
        QList<QAccessibleInterface *> list;
        for (int i = 0; i < QAccessibleWidget::childCount(); ++i) {
            QAccessibleInterface *iface = QAccessibleWidget::child(i);
            if (iface && !qobject_cast<RibbonMenuBarButton *>(iface->object()))
                list.append(iface);
        }
        return list;
    }

    int childCount() const override { return 1 + others().size(); }
    QAccessibleInterface *child(int index) const override
    {
        return index == 0 ? tabRow() : others().value(index - 1);
    }
    int indexOfChild(const QAccessibleInterface *child) const override
    {
        if (child == tabRow())
            return 0;
        const int index = others().indexOf(const_cast<QAccessibleInterface *>(child));
        return index < 0 ? -1 : index + 1;
    }

private:
    QAccessible::Id m_tabRow;
};

// A tab of the ribbon: a page tab of the tab row, selected while current.
class TabAccessible : public CommandAccessible
{
public:
    explicit TabAccessible(RibbonMenuBarButton *tab)
        : CommandAccessible(tab, QAccessible::PageTab)
    {
    }

    RibbonMenuBarButton *tab() const { return static_cast<RibbonMenuBarButton *>(widget()); }

    QAccessibleInterface *parent() const override
    {
        // Another factory may have made the bar's interface.
        QAccessibleInterface *bar = QAccessible::queryAccessibleInterface(&tab()->ribbonMenuBar());
        auto *ours = dynamic_cast<MenuBarAccessible *>(bar);
        return ours ? ours->tabRow() : bar;
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = CommandAccessible::state();
        state.selectable = true;
        state.selected = tab()->isChecked();
        return state;
    }
};

// The zoom of the status bar: a slider over the percentages its action allows.
class ZoomAccessible : public QAccessibleWidget, public QAccessibleValueInterface
{
public:
    explicit ZoomAccessible(QWidget *widget)
        : QAccessibleWidget(widget, QAccessible::Slider)
    {
    }

    RibbonPercAction *zoom() const { return qobject_cast<RibbonPercAction *>(shownAction(widget())); }

    void *interface_cast(QAccessible::InterfaceType type) override
    {
        if (type == QAccessible::ValueInterface)
            return static_cast<QAccessibleValueInterface *>(this);
        return QAccessibleWidget::interface_cast(type);
    }
    QString text(QAccessible::Text t) const override
    {
        if (t == QAccessible::Value && zoom())
            return QString::number(zoom()->percentage()) + QStringLiteral(" %");
        return QAccessibleWidget::text(t);
    }

    QVariant currentValue() const override { return zoom() ? zoom()->percentage() : QVariant(); }
    void setCurrentValue(const QVariant &value) override
    {
        if (zoom() && widget()->isEnabled())
            zoom()->setPercentage(qBound(zoom()->minimum(), value.toInt(), zoom()->maximum()));
    }
    QVariant maximumValue() const override { return zoom() ? zoom()->maximum() : QVariant(); }
    QVariant minimumValue() const override { return zoom() ? zoom()->minimum() : QVariant(); }
    QVariant minimumStepSize() const override { return 1; }
};

// A widget of another layer, known here only by its class name, with a fixed role and
// name.
class NamedAccessible : public QAccessibleWidget
{
public:
    NamedAccessible(QWidget *widget, QAccessible::Role role, const QString &name)
        : QAccessibleWidget(widget, role)
        , m_name(name)
    {
    }
    QString text(QAccessible::Text t) const override
    {
        if (t == QAccessible::Name && widget()->accessibleName().isEmpty())
            return m_name;
        return QAccessibleWidget::text(t);
    }

private:
    QString m_name;
};

QAccessibleInterface *ribbonAccessibleFactory(const QString &className, QObject *object)
{
    if (!object || !object->isWidgetType() || !className.startsWith(QLatin1String("zel::")))
        return nullptr;
    auto *widget = static_cast<QWidget *>(object);
    const QStringRef name = className.midRef(5);
    if (name == QLatin1String("RibbonCatSimpleButton") || name == QLatin1String("RibbonButtonNormal"))
        return new ButtonAccessible(static_cast<QAbstractButton *>(widget));
    if (name == QLatin1String("RibbonButtonMain"))
        return new PushButtonAccessible(static_cast<QAbstractButton *>(widget));
    if (name == QLatin1String("RibbonCatMenuButton") || name == QLatin1String("RibbonCatColorMenuButton"))
        return new DropDownAccessible(widget);
    if (name == QLatin1String("RibbonCategory"))
        return new CategoryAccessible(static_cast<RibbonCategory *>(widget));
    if (name == QLatin1String("RibbonCategoryWrapper"))
        return new WrapperAccessible(static_cast<RibbonCategoryWrapper *>(widget));
    if (name == QLatin1String("RibbonCategoryWrapperPopup"))
        return new WrapperPopupAccessible(static_cast<RibbonCategoryWrapperPopup *>(widget));
    if (name == QLatin1String("RibbonMenuBar"))
        return new MenuBarAccessible(static_cast<RibbonMenuBar *>(widget));
    if (name == QLatin1String("RibbonMenuBarButton"))
        return new TabAccessible(static_cast<RibbonMenuBarButton *>(widget));
    // The bars are built on top of the ribbon bar; their names come from their own
    // translation context.
    if (name == QLatin1String("RibbonPercWidget"))
        return new ZoomAccessible(widget);
    if (name == QLatin1String("RibbonQuickAccessBar"))
        return new NamedAccessible(widget, QAccessible::ToolBar,
                                   QCoreApplication::translate("zel::RibbonQuickAccessBar", "Quick Access Toolbar"));
    if (name == QLatin1String("RibbonStatusBar"))
        return new NamedAccessible(widget, QAccessible::StatusBar,
                                   QCoreApplication::translate("zel::RibbonStatusBar", "Status Bar"));
    return nullptr;
}

} // namespace

void ribbonInstallAccessibility()
{
    static const bool installed = [] {
        QAccessible::installFactory(ribbonAccessibleFactory);
        return true;
    }();
    Q_UNUSED(installed)
}

void ribbonSetKeyboardHighlight(QWidget *widget, int child)
{
    static int highlightedChild = -1;
    if (widget == keyboardHighlight && child == highlightedChild)
        return;
    keyboardHighlight = widget;
    highlightedChild = child;
    if (!widget || !QAccessible::isActive())
        return;
    QAccessibleEvent event(widget, QAccessible::Focus);
    event.setChild(child);
    QAccessible::updateAccessibility(&event);
}

} // namespace zel
