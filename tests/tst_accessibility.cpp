#include "ZelTest.h"

#include "RibbonCatActionGroup.h"
#include "RibbonCatCheckBoxAction.h"
#include "RibbonCatColorMenuAction.h"
#include "RibbonCatComboAction.h"
#include "RibbonCatMenuAction.h"
#include "RibbonCatSimpleAction.h"
#include "RibbonCategoriesPanelAction.h"
#include "RibbonCategory.h"
#include "RibbonCategoryAction.h"
#include "RibbonCategoryPanel.h"
#include "RibbonCategoryPanels.h"
#include "RibbonCategoryPanelsProxy.h"
#include "RibbonCategoryWrapper.h"
#include "RibbonCategoryWrapperPopup.h"
#include "RibbonButtonMain.h"
#include "RibbonMainWindow.h"
#include "RibbonMenuBar.h"
#include "RibbonMenuBarButton.h"
#include "RibbonPercAction.h"
#include "RibbonPercWidget.h"
#include "RibbonQuickAccessBar.h"
#include "RibbonSimpleAction.h"
#include "RibbonStatusBar.h"

#include <QAccessible>
#include <QLineEdit>
#include <QMenu>
#include <QSignalSpy>
#include <private/qguiapplication_p.h>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>

#include <functional>

#include <memory>

using namespace zel;

namespace {

// A main window with one tab of every kind of command, a quick-access command and a zoom.
struct Fixture
{
    Fixture()
    {
        window.reset(new RibbonMainWindow);
        edit = new QLineEdit;
        window->setCentralWidget(edit);
        home = new RibbonCategoriesPanelAction(QStringLiteral("&Home"), window.get());
        insert = new RibbonCategoriesPanelAction(QStringLiteral("Insert"), window.get());
        clipboard = new RibbonCategoryAction(QStringLiteral("Clipboard"), window.get());
        font = new RibbonCategoryAction(QStringLiteral("Font"), window.get());
        styles = new RibbonCategoryAction(QStringLiteral("Styles"), window.get());

        paste = new RibbonCatSimpleAction(QStringLiteral("&Paste"), RibbonCatSimpleAction::SizeLarge, window.get());
        paste->setStatusTip(QStringLiteral("Pastes the clipboard."));
        clipboard->addAction(paste, -1);
        format = new RibbonCatMenuAction(QStringLiteral("Format"), RibbonCatMenuAction::MenuTypeButton,
                                         RibbonCatMenuAction::MenuSizeMedium, RibbonCatMenuAction::PopupMenu,
                                         window.get());
        format->addAction(new RibbonCatSimpleAction(QStringLiteral("Painter"), RibbonCatSimpleAction::SizeSmall,
                                                    window.get()),
                          true);
        clipboard->addAction(format, -1);

        strip = new RibbonCatActionGroup(window.get());
        bold = new RibbonCatSimpleAction(QStringLiteral("&Bold"), RibbonCatSimpleAction::SizeSmall, window.get());
        bold->setCheckable(true);
        strip->addAction(bold, false);
        font->addAction(strip, 0);
        ruler = new RibbonCatCheckBoxAction(QStringLiteral("Ruler"), window.get());
        font->addAction(ruler, 1);
        color = new RibbonCatColorMenuAction(QIcon(), QStringLiteral("Font Color"),
                                             RibbonCatColorMenuAction::ColorSizeMedium, window.get());
        font->addAction(color, 2);
        size = new RibbonCatComboAction(QStringLiteral("Size"), window.get());
        font->addAction(size, 2);
        wrap = new RibbonCatSimpleAction(QStringLiteral("Wrap"), RibbonCatSimpleAction::SizeMedium, window.get());
        wrap->setCheckable(true);
        font->addAction(wrap, -1);

        for (int i = 0; i < 8; ++i)
            styles->addAction(new RibbonCatSimpleAction(QStringLiteral("Style %1").arg(i),
                                                        RibbonCatSimpleAction::SizeLarge, window.get()),
                              -1);
        home->addCategory(clipboard);
        home->addCategory(font);
        home->addCategory(styles);
        insert->addCategory(new RibbonCategoryAction(QStringLiteral("Tables"), window.get()));
        window->ribbonMenuBar().addAction(home);
        window->ribbonMenuBar().addAction(insert);

        save = new RibbonSimpleAction(QStringLiteral("Save"), window.get());
        save->setData(QStringLiteral("save"));
        window->quickAccessBar().addAction(save);
        window->ribbonStatusBar().addAction(new RibbonPercAction(10, 400, 100, window.get()));
    }

    RibbonMenuBar &bar() const { return window->ribbonMenuBar(); }

    QWidget *control(RibbonCategoryAction *category, RibbonAction *action) const
    {
        RibbonCategoryWrapper *box = wrapper(category);
        return box ? box->category()->widget(action) : nullptr;
    }

    RibbonCategoryWrapper *wrapper(RibbonCategoryAction *category) const
    {
        RibbonCategoryPanel *page = bar().categoryPanels()->subject()->panel(home);
        return page ? page->wrapper(category) : nullptr;
    }

    // Shows the window; narrow folds "Styles".
    bool show(bool narrow = false)
    {
        window->resize(narrow ? 520 : 1400, 400);
        window->show();
        QApplication::setActiveWindow(window.get());
        if (!QTest::qWaitForWindowActive(window.get()))
            return false;
        edit->setFocus();
        if (narrow) {
            RibbonCategoryWrapper *folding = wrapper(styles);
            return QTest::qWaitFor([folding] { return folding && folding->isColapsed(); }, 2000);
        }
        return true;
    }

    std::unique_ptr<RibbonMainWindow> window;
    QLineEdit *edit = nullptr;
    RibbonCategoriesPanelAction *home = nullptr;
    RibbonCategoriesPanelAction *insert = nullptr;
    RibbonCategoryAction *clipboard = nullptr;
    RibbonCategoryAction *font = nullptr;
    RibbonCategoryAction *styles = nullptr;
    RibbonCatSimpleAction *paste = nullptr;
    RibbonCatMenuAction *format = nullptr;
    RibbonCatActionGroup *strip = nullptr;
    RibbonCatSimpleAction *bold = nullptr;
    RibbonCatCheckBoxAction *ruler = nullptr;
    RibbonCatColorMenuAction *color = nullptr;
    RibbonCatComboAction *size = nullptr;
    RibbonCatSimpleAction *wrap = nullptr;
    RibbonSimpleAction *save = nullptr;
};

// What screen readers were told, captured by the update handler.
struct Heard
{
    QAccessible::Event type;
    QObject *object;
    QAccessibleInterface *iface;
    QAccessible::State changed;
};
QList<Heard> heard;

void listen(QAccessibleEvent *event)
{
    QAccessible::State changed;
    if (event->type() == QAccessible::StateChanged)
        changed = static_cast<QAccessibleStateChangeEvent *>(event)->changedStates();
    heard.append({event->type(), event->object(), event->accessibleInterface(), changed});
}

enum class Flag { Checked, Disabled, Expanded, Collapsed };

bool has(const QAccessible::State &state, Flag flag)
{
    switch (flag) {
    case Flag::Checked:
        return state.checked;
    case Flag::Disabled:
        return state.disabled;
    case Flag::Expanded:
        return state.expanded;
    case Flag::Collapsed:
        return state.collapsed;
    }
    return false;
}

// Whether the reader heard of a change of state in target (an object or an interface).
bool heardState(const void *target, Flag flag)
{
    for (const Heard &h : qAsConst(heard)) {
        if (h.type == QAccessible::StateChanged && (h.object == target || h.iface == target) && has(h.changed, flag))
            return true;
    }
    return false;
}

bool heardEvent(QObject *object, QAccessible::Event type)
{
    for (const Heard &h : qAsConst(heard)) {
        if (h.type == type && h.object == object)
            return true;
    }
    return false;
}

QAccessibleInterface *accessible(QObject *object)
{
    return object ? QAccessible::queryAccessibleInterface(object) : nullptr;
}

// Every interface below root, depth first.
void collect(QAccessibleInterface *root, QList<QAccessibleInterface *> &all)
{
    for (int i = 0; i < root->childCount(); ++i) {
        QAccessibleInterface *child = root->child(i);
        if (!child)
            continue;
        all.append(child);
        collect(child, all);
    }
}

} // namespace

class tst_Accessibility : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanupTestCase();

    void rolesAndNames_data();
    void rolesAndNames();
    void everyShownControlIsNamed();
    void treeOfTabsAndCategories();
    void checkedAndEnabledAreAnnounced();
    void foldedCategoryExpandsWhileOpen();
    void menuButtonExpandsWhileOpen();
    void zoomIsASlider();
    void keyboardHighlightIsFocus();
    void interfacesOutliveNothing();
};

void tst_Accessibility::initTestCase()
{
    QAccessible::installUpdateHandler(listen);
    QPlatformAccessibility *platform = QGuiApplicationPrivate::platformIntegration()->accessibility();
    QVERIFY(platform);
    platform->setActive(true);
    QVERIFY(QAccessible::isActive());
}

void tst_Accessibility::init()
{
    heard.clear();
}

void tst_Accessibility::cleanupTestCase()
{
    QAccessible::installUpdateHandler(nullptr);
}

using Finder = std::function<QObject *(const Fixture &)>;
Q_DECLARE_METATYPE(Finder)

void tst_Accessibility::rolesAndNames_data()
{
    QTest::addColumn<Finder>("find");
    QTest::addColumn<QAccessible::Role>("role");
    QTest::addColumn<QString>("name");

    const auto member = [](const char *objectName) {
        return Finder([objectName](const Fixture &f) { return f.window->findChild<QWidget *>(objectName); });
    };
    QTest::newRow("large command") << Finder([](const Fixture &f) { return f.control(f.clipboard, f.paste); })
                                   << QAccessible::Button << "Paste";
    QTest::newRow("toggle command") << Finder([](const Fixture &f) { return f.control(f.font, f.wrap); })
                                    << QAccessible::CheckBox << "Wrap";
    QTest::newRow("split button") << Finder([](const Fixture &f) { return f.control(f.clipboard, f.format); })
                                  << QAccessible::ButtonDropDown << "Format";
    QTest::newRow("colour button") << Finder([](const Fixture &f) { return f.control(f.font, f.color); })
                                   << QAccessible::ButtonMenu << "Font Color";
    QTest::newRow("check box") << Finder([](const Fixture &f) { return f.control(f.font, f.ruler); })
                               << QAccessible::CheckBox << "Ruler";
    QTest::newRow("button group") << Finder([](const Fixture &f) { return f.control(f.font, f.strip); })
                                  << QAccessible::ToolBar << "";
    QTest::newRow("category") << Finder([](const Fixture &f) -> QObject * { return f.wrapper(f.font)->category(); })
                              << QAccessible::Grouping << "Font";
    QTest::newRow("folded category") << Finder([](const Fixture &f) -> QObject * { return f.wrapper(f.styles); })
                                     << QAccessible::ButtonMenu << "Styles";
    QTest::newRow("tab") << Finder([](const Fixture &f) -> QObject * { return f.bar().menuBarButton(f.insert); })
                         << QAccessible::PageTab << "INSERT";
    QTest::newRow("File button") << Finder([](const Fixture &f) -> QObject * { return f.bar().mainMenuButton(); })
                                 << QAccessible::Button << "File";
    QTest::newRow("collapse button")
        << Finder([](const Fixture &f) { return f.bar().collapseRibbonAction()->associatedWidgets().value(0); })
        << QAccessible::Button << "Collapse the Ribbon";
    QTest::newRow("quick-access bar") << Finder([](const Fixture &f) -> QObject * { return &f.window->quickAccessBar(); })
                                      << QAccessible::ToolBar << "Quick Access Toolbar";
    QTest::newRow("quick-access command")
        << Finder([](const Fixture &f) -> QObject * {
               for (QWidget *widget : f.save->associatedWidgets()) {
                   if (qobject_cast<QAbstractButton *>(widget))
                       return widget;
               }
               return nullptr;
           })
        << QAccessible::Button
        << "Save";
    QTest::newRow("status bar") << Finder([](const Fixture &f) -> QObject * { return &f.window->ribbonStatusBar(); })
                                << QAccessible::StatusBar << "Status Bar";
    QTest::newRow("zoom") << Finder([](const Fixture &f) { return f.window->findChild<RibbonPercWidget *>(); })
                          << QAccessible::Slider << "Zoom";
    QTest::newRow("close") << member("closeButton") << QAccessible::Button << "Close";
}

void tst_Accessibility::rolesAndNames()
{
    QFETCH(Finder, find);
    QFETCH(QAccessible::Role, role);
    QFETCH(QString, name);
    Fixture f;
    QVERIFY(f.show(true));
    QAccessibleInterface *iface = accessible(find(f));
    QVERIFY(iface);
    QCOMPARE(iface->role(), role);
    QCOMPARE(iface->text(QAccessible::Name), name);
}

void tst_Accessibility::everyShownControlIsNamed()
{
    Fixture f;
    QVERIFY(f.show(true));
    QList<QAccessibleInterface *> all;
    collect(accessible(f.window.get()), all);
    const QSet<QAccessible::Role> named{QAccessible::Button,       QAccessible::CheckBox,    QAccessible::ButtonMenu,
                                        QAccessible::ButtonDropDown, QAccessible::PageTab,   QAccessible::PageTabList,
                                        QAccessible::Slider,       QAccessible::ComboBox,    QAccessible::Grouping};
    int controls = 0;
    for (QAccessibleInterface *iface : qAsConst(all)) {
        if (iface->state().invisible || !named.contains(iface->role()))
            continue;
        ++controls;
        QVERIFY2(!iface->text(QAccessible::Name).isEmpty(),
                 qPrintable(QStringLiteral("role %1 of %2")
                                .arg(iface->role())
                                .arg(iface->object() ? iface->object()->metaObject()->className() : "a cell")));
    }
    // File, 2 tabs and their list, collapse, 3 groupings... : the walk reached them.
    QVERIFY(controls >= 20);
}

void tst_Accessibility::treeOfTabsAndCategories()
{
    Fixture f;
    QVERIFY(f.show());
    QAccessibleInterface *bar = accessible(&f.bar());
    QAccessibleInterface *row = nullptr;
    for (int i = 0; i < bar->childCount(); ++i) {
        if (bar->child(i)->role() == QAccessible::PageTabList)
            row = bar->child(i);
    }
    QVERIFY(row);
    QCOMPARE(row->parent(), bar);
    QCOMPARE(bar->child(bar->indexOfChild(row)), row);
    QCOMPARE(row->childCount(), 2);
    QAccessibleInterface *insert = accessible(f.bar().menuBarButton(f.insert));
    QCOMPARE(row->child(1), insert);
    QCOMPARE(row->indexOfChild(insert), 1);
    QCOMPARE(insert->parent(), row);
    const QPoint centre = insert->rect().center();
    QCOMPARE(row->childAt(centre.x(), centre.y()), insert);
    // The tabs are no children of the bar besides.
    for (int i = 0; i < bar->childCount(); ++i)
        QVERIFY(bar->child(i)->role() != QAccessible::PageTab);

    QVERIFY(accessible(f.bar().menuBarButton(f.home))->state().selected);
    QVERIFY(!insert->state().selected);
    insert->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QVERIFY(f.insert->isChecked());
    QVERIFY(insert->state().selected);

    // A command is a child of its category's grouping.
    QAccessibleInterface *paste = accessible(f.wrapper(f.clipboard)->category()->widget(f.paste));
    QCOMPARE(paste->parent()->role(), QAccessible::Grouping);
    QCOMPARE(paste->parent()->text(QAccessible::Name), QStringLiteral("Clipboard"));
    QCOMPARE(paste->text(QAccessible::Description), QStringLiteral("Pastes the clipboard."));
    QVERIFY(paste->text(QAccessible::Description) != f.paste->toolTip());
}

void tst_Accessibility::checkedAndEnabledAreAnnounced()
{
    Fixture f;
    QVERIFY(f.show());
    RibbonCategory *font = f.wrapper(f.font)->category();
    QWidget *wrapButton = font->widget(f.wrap);
    QAccessibleInterface *wrap = accessible(wrapButton);
    QAccessibleInterface *cell = accessible(font->widget(f.strip))->child(0);
    QVERIFY(cell);
    QVERIFY(!wrap->state().checked);
    QCoreApplication::processEvents();
    heard.clear();

    f.wrap->setChecked(true);
    f.bold->setChecked(true);
    QTRY_VERIFY(heardState(cell, Flag::Checked));
    QVERIFY(heardState(wrapButton, Flag::Checked));
    QVERIFY(wrap->state().checked);
    QVERIFY(cell->state().checked);
    QVERIFY(!heardState(cell, Flag::Disabled));

    heard.clear();
    f.paste->setEnabled(false);
    f.bold->setEnabled(false);
    QWidget *pasteButton = f.wrapper(f.clipboard)->category()->widget(f.paste);
    QTRY_VERIFY(heardState(cell, Flag::Disabled));
    QVERIFY(heardState(pasteButton, Flag::Disabled));
    QVERIFY(accessible(pasteButton)->state().disabled);
    QVERIFY(cell->state().disabled);
    QVERIFY(!heardState(cell, Flag::Checked));

    // A disabled command is not pressed.
    cell->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QVERIFY(f.bold->isChecked());
}

void tst_Accessibility::foldedCategoryExpandsWhileOpen()
{
    Fixture f;
    QVERIFY(f.show(true));
    RibbonCategoryWrapper *wrapper = f.wrapper(f.styles);
    QAccessibleInterface *folded = accessible(wrapper);
    QVERIFY(folded->state().collapsed);
    QVERIFY(!folded->state().expanded);
    QVERIFY(folded->state().hasPopup);
    QVERIFY(folded->actionInterface()->actionNames().contains(QAccessibleActionInterface::showMenuAction()));

    folded->actionInterface()->doAction(QAccessibleActionInterface::showMenuAction());
    QVERIFY(zelPopupShown(wrapper->popup()));
    QVERIFY(folded->state().expanded);
    QVERIFY(!folded->state().collapsed);
    QVERIFY(heardState(wrapper, Flag::Expanded));
    QVERIFY(heardEvent(wrapper->popup(), QAccessible::DialogStart));
    QAccessibleInterface *popup = accessible(wrapper->popup());
    QCOMPARE(popup->text(QAccessible::Name), QStringLiteral("Styles"));
    QAccessibleInterface *grouping = popup->child(0);
    QVERIFY(grouping);
    QCOMPARE(grouping->role(), QAccessible::Grouping);
    QCOMPARE(grouping->childCount(), 8);

    heard.clear();
    QPointer<QWidget> open = wrapper->popup();
    open->close();
    QVERIFY(folded->state().collapsed);
    QVERIFY(heardState(wrapper, Flag::Collapsed));
    QVERIFY(heardEvent(open, QAccessible::DialogEnd));

    // Unfolded, the box is no button any more.
    f.window->resize(1400, 400);
    QTRY_VERIFY(!wrapper->isColapsed());
    QVERIFY(folded->role() != QAccessible::ButtonMenu);
    QVERIFY(!folded->state().collapsed && !folded->state().expanded);
}

void tst_Accessibility::menuButtonExpandsWhileOpen()
{
    Fixture f;
    QVERIFY(f.show());
    QWidget *button = f.wrapper(f.clipboard)->category()->widget(f.format);
    QAccessibleInterface *format = accessible(button);
    QVERIFY(format->state().collapsed);
    format->actionInterface()->doAction(QAccessibleActionInterface::showMenuAction());
    auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
    QVERIFY(menu);
    QVERIFY(format->state().expanded);
    QVERIFY(heardState(button, Flag::Expanded));
    menu->close();
    QTRY_VERIFY(format->state().collapsed);

    // The caption part of the split button runs its default command.
    QSignalSpy painter(f.format->defaultAction(), &QAction::triggered);
    format->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(painter.count(), 1);
    QVERIFY(!QApplication::activePopupWidget());

    // The colour button opens its picker.
    QWidget *colourButton = f.wrapper(f.font)->category()->widget(f.color);
    QAccessibleInterface *colour = accessible(colourButton);
    colour->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QVERIFY(QApplication::activePopupWidget());
    QVERIFY(colour->state().expanded);
    QApplication::activePopupWidget()->close();
    QTRY_VERIFY(colour->state().collapsed);
    QVERIFY(heardState(colourButton, Flag::Collapsed));
}

void tst_Accessibility::zoomIsASlider()
{
    Fixture f;
    QVERIFY(f.show());
    auto *zoomAction = qobject_cast<RibbonPercAction *>(f.window->ribbonStatusBar().actions().value(0));
    QVERIFY(zoomAction);
    QAccessibleInterface *zoom = accessible(f.window->ribbonStatusBar().widgetForAction(zoomAction));
    QAccessibleValueInterface *value = zoom->valueInterface();
    QVERIFY(value);
    QCOMPARE(value->minimumValue().toInt(), 10);
    QCOMPARE(value->maximumValue().toInt(), 400);
    QCOMPARE(value->currentValue().toInt(), 100);
    value->setCurrentValue(150);
    QCOMPARE(zoomAction->percentage(), 150);
    QCOMPARE(zoom->text(QAccessible::Value), QStringLiteral("150 %"));
    value->setCurrentValue(9000);
    QCOMPARE(zoomAction->percentage(), 400);
    bool heardValue = false;
    for (const Heard &h : qAsConst(heard))
        heardValue |= h.type == QAccessible::ValueChanged;
    QVERIFY(heardValue);
}

// Arrow keys move a highlight, not the focus (the document keeps it): a reader hears
// the highlight as the focus and finds it on that control only.
void tst_Accessibility::keyboardHighlightIsFocus()
{
    Fixture f;
    QVERIFY(f.show());
    QWidget *homeTab = nullptr;
    QWidget *insertTab = nullptr;
    for (RibbonMenuBarButton *tab : f.window->findChildren<RibbonMenuBarButton *>()) {
        if (tab->actions().value(0) == f.home)
            homeTab = tab;
        if (tab->actions().value(0) == f.insert)
            insertTab = tab;
    }
    QVERIFY(homeTab && insertTab);
    QCoreApplication::processEvents();
    heard.clear();

    QTest::keyClick(f.edit, Qt::Key_F6);
    QVERIFY(heardEvent(homeTab, QAccessible::Focus));
    QVERIFY(accessible(homeTab)->state().focused);
    QTest::keyClick(f.edit, Qt::Key_Right);
    QVERIFY(heardEvent(insertTab, QAccessible::Focus));
    QVERIFY(accessible(insertTab)->state().focused);
    QVERIFY(!accessible(homeTab)->state().focused);

    // Once the key tips are gone nothing is highlighted any more.
    QTest::keyClick(f.edit, Qt::Key_F6);
    QVERIFY(f.edit->hasFocus());
    QVERIFY(!accessible(insertTab)->state().focused);
}

void tst_Accessibility::interfacesOutliveNothing()
{
    Fixture f;
    QVERIFY(f.show(true));
    RibbonCategory *font = f.wrapper(f.font)->category();
    QAccessibleInterface *strip = accessible(font->widget(f.strip));
    const QAccessible::Id cell = QAccessible::uniqueId(strip->child(0));
    const QAccessible::Id wrapButton = QAccessible::uniqueId(accessible(font->widget(f.wrap)));
    QAccessibleInterface *bar = accessible(&f.bar());
    const QAccessible::Id row = QAccessible::uniqueId(bar->child(0));

    // A member leaves while its cell is known: the cell stops answering.
    f.strip->removeAction(f.bold);
    QVERIFY(!QAccessible::accessibleInterface(cell)->isValid());
    QVERIFY(QAccessible::accessibleInterface(cell)->text(QAccessible::Name).isEmpty());
    delete f.bold;

    // Commands and their controls go: their interfaces with them.
    delete f.strip;
    delete f.wrap;
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!QAccessible::accessibleInterface(cell));
    QVERIFY(!QAccessible::accessibleInterface(wrapButton));

    // A tab leaves the row while the row is known.
    QAccessibleInterface *tabRow = QAccessible::accessibleInterface(row);
    delete f.insert;
    QCOMPARE(tabRow->childCount(), 1);
    QVERIFY(!tabRow->child(1));

    // The folded category's popup is open when the window goes.
    accessible(f.wrapper(f.styles))->actionInterface()->doAction(QAccessibleActionInterface::showMenuAction());
    QVERIFY(zelPopupShown(f.wrapper(f.styles)->popup()));
    f.window.reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!QAccessible::accessibleInterface(row));
}

ZEL_TEST_MAIN(tst_Accessibility)

#include "tst_accessibility.moc"
