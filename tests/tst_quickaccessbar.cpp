#include "ZelTest.h"

#include "RibbonButtonNormal.h"
#include "RibbonMainWindow.h"
#include "RibbonMenuBar.h"
#include "RibbonQuickAccessBar.h"
#include "RibbonSimpleAction.h"

#include <QMenu>
#include <QPointer>
#include <QTimer>

using namespace zel;

class tst_QuickAccessBar : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void construction();
    void buttonsAndEntries();
    void restoredList_data();
    void restoredList();
    void listOperations();
    void duplicateNamesActOnFirst();
    void namelessCommand();
    void otherActionsIgnored();
    void menuOpensBelowButton();
    void minimizeEntry();
    void lifetimes_data();
    void lifetimes();

private:
    RibbonSimpleAction *command(const QString &name, const QString &text = QString());
    QList<QAction *> commandEntries() const;
    QList<QAction *> addCommands(const QStringList &names, RibbonQuickAccessBar *bar = nullptr);
    RibbonButtonNormal *buttonFor(QAction *action, RibbonQuickAccessBar *bar = nullptr) const;
    QAction *entryFor(const QString &name) const;

    RibbonMainWindow *m_window = nullptr;
    RibbonQuickAccessBar *m_bar = nullptr;
    QMenu *m_menu = nullptr;
};

RibbonSimpleAction *tst_QuickAccessBar::command(const QString &name, const QString &text)
{
    auto *action = new RibbonSimpleAction(text.isEmpty() ? name : text, m_window);
    action->setData(name);
    return action;
}

QList<QAction *> tst_QuickAccessBar::commandEntries() const
{
    QList<QAction *> entries = m_menu->actions();
    return entries.mid(0, entries.size() - 2);
}

QList<QAction *> tst_QuickAccessBar::addCommands(const QStringList &names, RibbonQuickAccessBar *bar)
{
    QList<QAction *> actions;
    for (const QString &name : names) {
        actions << command(name, name.toUpper());
        (bar ? bar : m_bar)->addAction(actions.last());
    }
    return actions;
}

RibbonButtonNormal *tst_QuickAccessBar::buttonFor(QAction *action, RibbonQuickAccessBar *bar) const
{
    for (RibbonButtonNormal *button : (bar ? bar : m_bar)->findChildren<RibbonButtonNormal *>()) {
        if (button->actions().value(0) == action)
            return button;
    }
    return nullptr;
}

QAction *tst_QuickAccessBar::entryFor(const QString &name) const
{
    for (QAction *entry : commandEntries()) {
        if (entry->data().toString() == name)
            return entry;
    }
    return nullptr;
}

void tst_QuickAccessBar::init()
{
    m_window = new RibbonMainWindow;
    m_bar = &m_window->quickAccessBar();
    m_menu = m_bar->findChild<QMenu *>();
    QVERIFY(m_menu);
}

void tst_QuickAccessBar::cleanup()
{
    delete m_window;
    m_window = nullptr;
    m_bar = nullptr;
    m_menu = nullptr;
}

void tst_QuickAccessBar::construction()
{
    QCOMPARE(m_bar->mainWindow(), m_window);
    QCOMPARE(m_bar->height(), 26);
    QVERIFY(m_bar->disabledQuickAccessBarItems().isEmpty());

    const QList<RibbonButtonNormal *> buttons = m_bar->findChildren<RibbonButtonNormal *>();
    QCOMPARE(buttons.size(), 1);
    RibbonButtonNormal *customize = buttons.first();
    QCOMPARE(customize->width(), 10);
    QCOMPARE(customize->toolTip(), QStringLiteral("Customize Quick Access Toolbar"));
    QVERIFY(!customize->icon().isNull());

    const QList<QAction *> entries = m_menu->actions();
    QCOMPARE(entries.size(), 2);
    QVERIFY(entries.at(0)->isSeparator());
    QCOMPARE(entries.at(1)->text(), QStringLiteral("Minimize the Ribbon"));
    QVERIFY(entries.at(1)->isCheckable());

    RibbonQuickAccessBar loose(nullptr);
    QVERIFY(!loose.mainWindow());
}

void tst_QuickAccessBar::buttonsAndEntries()
{
    const QStringList names = {QStringLiteral("save"), QStringLiteral("undo"), QStringLiteral("redo")};
    const QList<QAction *> actions = addCommands(names);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window));

    const QList<QAction *> entries = commandEntries();
    QCOMPARE(entries.size(), 3);
    for (int i = 0; i < names.size(); ++i) {
        QCOMPARE(entries.at(i)->data().toString(), names.at(i));
        QCOMPARE(entries.at(i)->text(), names.at(i).toUpper());
        QVERIFY(entries.at(i)->isChecked());
        RibbonButtonNormal *button = buttonFor(actions.at(i));
        QVERIFY(button);
        QCOMPARE(button->size(), QSize(20, 20));
        QVERIFY(!button->isHidden());
    }
    // Buttons in the order added, the customise button after them.
    QVERIFY(buttonFor(actions.at(0))->x() < buttonFor(actions.at(1))->x());
    QVERIFY(buttonFor(actions.at(1))->x() < buttonFor(actions.at(2))->x());
    actions.at(1)->setText(QStringLiteral("Undo typing"));
    QCOMPARE(entryFor(QStringLiteral("undo"))->text(), QStringLiteral("Undo typing"));

    // Unchecking an entry, as a click in the menu does, hides the button and names it.
    const int fullWidth = m_bar->sizeHint().width();
    QAction *entry = entryFor(QStringLiteral("redo"));
    entry->trigger();
    QVERIFY(!entry->isChecked());
    QVERIFY(buttonFor(actions.at(2))->isHidden());
    QVERIFY(!buttonFor(actions.at(0))->isHidden());
    QCOMPARE(m_bar->disabledQuickAccessBarItems(), QStringList({QStringLiteral("redo")}));
    QTRY_VERIFY(m_bar->sizeHint().width() < fullWidth);
    entry->trigger();
    QVERIFY(!buttonFor(actions.at(2))->isHidden());
    QVERIFY(m_bar->disabledQuickAccessBarItems().isEmpty());
}

void tst_QuickAccessBar::restoredList_data()
{
    QTest::addColumn<QStringList>("stored");
    QTest::addColumn<QStringList>("hidden");

    const QString a = QStringLiteral("a");
    const QString b = QStringLiteral("b");
    const QString c = QStringLiteral("c");
    const QString unknown = QStringLiteral("no.such.command");
    QTest::newRow("none") << QStringList() << QStringList();
    QTest::newRow("one") << QStringList({b}) << QStringList({b});
    QTest::newRow("two, reversed") << QStringList({c, a}) << QStringList({a, c});
    QTest::newRow("unknown only") << QStringList({unknown}) << QStringList();
    QTest::newRow("unknown among known") << QStringList({unknown, a, QString()}) << QStringList({a});
    QTest::newRow("duplicate") << QStringList({b, b}) << QStringList({b});
    QTest::newRow("case differs") << QStringList({QStringLiteral("B")}) << QStringList();
}

void tst_QuickAccessBar::restoredList()
{
    QFETCH(QStringList, stored);
    QFETCH(QStringList, hidden);

    const QStringList names = {QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")};
    m_bar->setQuickAccessBarItems(stored);
    addCommands(names);
    for (QAction *action : m_bar->actions()) {
        const QString name = action->data().toString();
        QCOMPARE(buttonFor(action)->isHidden(), hidden.contains(name));
        QCOMPARE(entryFor(name)->isChecked(), !hidden.contains(name));
    }
    // Read back exactly as given, unknown names and all.
    QCOMPARE(m_bar->disabledQuickAccessBarItems(), stored);

    // The list read back restores the same state in a new bar.
    RibbonQuickAccessBar next(m_window);
    next.setQuickAccessBarItems(m_bar->disabledQuickAccessBarItems());
    for (QAction *action : addCommands(names, &next))
        QCOMPARE(buttonFor(action, &next)->isHidden(), hidden.contains(action->data().toString()));
    QCOMPARE(next.disabledQuickAccessBarItems(), stored);
}

void tst_QuickAccessBar::listOperations()
{
    const QString name = QStringLiteral("save");
    m_bar->hideQuickAccessBarItem(name);
    m_bar->hideQuickAccessBarItem(name);
    m_bar->hideQuickAccessBarItem(QStringLiteral("print"));
    QCOMPARE(m_bar->disabledQuickAccessBarItems(), QStringList({name, name, QStringLiteral("print")}));
    m_bar->showQuickAccessBarItem(name);
    QCOMPARE(m_bar->disabledQuickAccessBarItems(), QStringList({QStringLiteral("print")}));
    m_bar->showQuickAccessBarItem(QStringLiteral("unknown"));
    QCOMPARE(m_bar->disabledQuickAccessBarItems(), QStringList({QStringLiteral("print")}));

    // The list alone: an existing button keeps its visibility.
    const QList<QAction *> added = addCommands({QStringLiteral("print"), name});
    QAction *print = added.at(0);
    QAction *save = added.at(1);
    QVERIFY(buttonFor(print)->isHidden());
    m_bar->showQuickAccessBarItem(QStringLiteral("print"));
    m_bar->hideQuickAccessBarItem(name);
    QVERIFY(buttonFor(print)->isHidden());
    QVERIFY(!buttonFor(save)->isHidden());
}

void tst_QuickAccessBar::duplicateNamesActOnFirst()
{
    RibbonSimpleAction *first = command(QStringLiteral("same"), QStringLiteral("First"));
    RibbonSimpleAction *second = command(QStringLiteral("same"), QStringLiteral("Second"));
    m_bar->addAction(first);
    m_bar->addAction(second);
    QCOMPARE(commandEntries().size(), 2);

    commandEntries().at(1)->trigger();
    QVERIFY(buttonFor(first)->isHidden());
    QVERIFY(!buttonFor(second)->isHidden());
    QCOMPARE(m_bar->disabledQuickAccessBarItems(), QStringList({QStringLiteral("same")}));
}

void tst_QuickAccessBar::namelessCommand()
{
    auto *first = new RibbonSimpleAction(QStringLiteral("First"), m_window);
    auto *second = new RibbonSimpleAction(QStringLiteral("Second"), m_window);
    // An empty name in a stored list must not hide every nameless command.
    m_bar->setQuickAccessBarItems({QString()});
    m_bar->addAction(first);
    m_bar->addAction(second);
    QVERIFY(!buttonFor(first)->isHidden());
    QVERIFY(!buttonFor(second)->isHidden());

    commandEntries().at(1)->trigger();
    QVERIFY(!buttonFor(first)->isHidden());
    QVERIFY(buttonFor(second)->isHidden());
    QCOMPARE(m_bar->disabledQuickAccessBarItems(), QStringList({QString()}));
    commandEntries().at(1)->trigger();
    QVERIFY(!buttonFor(second)->isHidden());
}

void tst_QuickAccessBar::otherActionsIgnored()
{
    QAction plain(QStringLiteral("Plain"), nullptr);
    plain.setData(QStringLiteral("plain"));
    m_bar->addAction(&plain);
    QCOMPARE(m_bar->findChildren<RibbonButtonNormal *>().size(), 1);
    QVERIFY(commandEntries().isEmpty());
    m_bar->removeAction(&plain);
}

void tst_QuickAccessBar::menuOpensBelowButton()
{
    m_bar->addAction(command(QStringLiteral("save")));
    m_window->resize(400, 300);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window));
    RibbonButtonNormal *customize = nullptr;
    for (RibbonButtonNormal *button : m_bar->findChildren<RibbonButtonNormal *>()) {
        if (button->width() == 10)
            customize = button;
    }
    QVERIFY(customize);

    QPoint shownAt;
    bool shown = false;
    QTimer::singleShot(0, this, [&] {
        shown = m_menu->isVisible();
        shownAt = m_menu->pos();
        m_menu->close();
    });
    QTest::mouseClick(customize, Qt::LeftButton, Qt::NoModifier, QPoint(5, 5));
    QVERIFY(shown);
    QCOMPARE(shownAt, customize->mapToGlobal(customize->rect().bottomLeft()) + QPoint(0, 3));
}

void tst_QuickAccessBar::minimizeEntry()
{
    RibbonMenuBar &ribbon = m_window->ribbonMenuBar();
    QAction *minimize = m_menu->actions().last();
    auto *customize = m_bar->findChild<RibbonSimpleAction *>();
    QVERIFY(customize);

    for (bool minimized : {true, false, true}) {
        ribbon.setMinimizeRibbon(minimized);
        bool checked = !minimized;
        QTimer::singleShot(0, this, [&] {
            checked = minimize->isChecked();
            m_menu->close();
        });
        customize->trigger();
        QCOMPARE(checked, minimized);
    }

    // Choosing the entry flips the ribbon and names no command.
    QVERIFY(ribbon.isRibbonMinimized());
    minimize->trigger();
    QVERIFY(!ribbon.isRibbonMinimized());
    minimize->trigger();
    QVERIFY(ribbon.isRibbonMinimized());
    QVERIFY(m_bar->disabledQuickAccessBarItems().isEmpty());

    // A command with the entry's caption is still only a command.
    RibbonSimpleAction *lookalike = command(QStringLiteral("lookalike"), QStringLiteral("Minimize the Ribbon"));
    m_bar->addAction(lookalike);
    entryFor(QStringLiteral("lookalike"))->trigger();
    QVERIFY(ribbon.isRibbonMinimized());
    QVERIFY(buttonFor(lookalike)->isHidden());
}

void tst_QuickAccessBar::lifetimes_data()
{
    QTest::addColumn<bool>("actionsFirst");
    QTest::newRow("actions before the bar") << true;
    QTest::newRow("bar before the actions") << false;
}

void tst_QuickAccessBar::lifetimes()
{
    QFETCH(bool, actionsFirst);

    QList<QAction *> actions = addCommands({QStringLiteral("save"), QStringLiteral("undo")});
    for (QAction *action : actions)
        action->setParent(nullptr);
    m_bar->hideQuickAccessBarItem(QStringLiteral("undo"));
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window));

    if (actionsFirst) {
        QPointer<RibbonButtonNormal> button = buttonFor(actions.first());
        delete actions.takeFirst();
        QVERIFY(!button);
        QCOMPARE(commandEntries().size(), 1);
        QCOMPARE(commandEntries().first()->data().toString(), QStringLiteral("undo"));
        // A command removed from the bar takes its button and entry along, but a hidden
        // name stays for the next session.
        m_bar->removeAction(actions.first());
        QVERIFY(commandEntries().isEmpty());
        QCOMPARE(m_bar->findChildren<RibbonButtonNormal *>().size(), 1);
        QCOMPARE(m_bar->disabledQuickAccessBarItems(), QStringList({QStringLiteral("undo")}));
        qDeleteAll(actions);
        m_menu->grab();
    } else {
        delete m_window;
        m_window = nullptr;
        for (QAction *action : qAsConst(actions)) {
            QVERIFY(action->associatedWidgets().isEmpty());
            action->trigger();
        }
        qDeleteAll(actions);
    }
}

ZEL_TEST_MAIN(tst_QuickAccessBar)
#include "tst_quickaccessbar.moc"
