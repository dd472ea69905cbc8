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

    RibbonMainWindow *m_window = nullptr;
    RibbonQuickAccessBar *m_bar = nullptr;
    QMenu *m_menu = nullptr;

    QList<QAction *> addCommands(const QStringList &names)
    {
        QList<QAction *> actions;
        for (const QString &name : names) {
            actions << new RibbonSimpleAction(name.toUpper(), m_window);
            actions.last()->setData(name);
            m_bar->addAction(actions.last());
        }
        return actions;
    }
    // The menu's command entries, without the separator and the minimise entry after them.
    QList<QAction *> commandEntries() const { return m_menu->actions().mid(0, m_menu->actions().size() - 2); }
    QAction *entryFor(const QString &name) const
    {
        for (QAction *entry : commandEntries()) {
            if (entry->data().toString() == name)
                return entry;
        }
        return nullptr;
    }
    RibbonButtonNormal *buttonFor(QAction *action) const
    {
        for (RibbonButtonNormal *button : m_bar->findChildren<RibbonButtonNormal *>()) {
            if (button->actions().value(0) == action)
                return button;
        }
        return nullptr;
    }
    bool hidden(QAction *action) const { return buttonFor(action)->isHidden(); }
    bool showWindow()
    {
        m_window->show();
        return QTest::qWaitForWindowExposed(m_window);
    }

private slots:
    void init()
    {
        m_window = new RibbonMainWindow;
        m_bar = &m_window->quickAccessBar();
        m_menu = m_bar->findChild<QMenu *>();
        QVERIFY(m_menu);
    }

    void cleanup()
    {
        delete m_window;
        m_window = nullptr;
    }

    void buttonsAndEntries()
    {
        const QStringList names = {QStringLiteral("save"), QStringLiteral("undo"), QStringLiteral("redo")};
        const QList<QAction *> actions = addCommands(names);
        QVERIFY(showWindow());
        QCOMPARE(commandEntries().size(), 3);
        QCOMPARE(commandEntries().at(2)->data().toString(), QStringLiteral("redo"));
        // Buttons in the order added; the entry follows its command's caption.
        QVERIFY(buttonFor(actions.at(0))->x() < buttonFor(actions.at(1))->x());
        QVERIFY(buttonFor(actions.at(1))->x() < buttonFor(actions.at(2))->x());
        actions.at(1)->setText(QStringLiteral("Undo typing"));
        QCOMPARE(entryFor(QStringLiteral("undo"))->text(), QStringLiteral("Undo typing"));

        // Unchecking an entry, as a click in the menu does, hides the button and names it.
        const int fullWidth = m_bar->sizeHint().width();
        QAction *entry = entryFor(QStringLiteral("redo"));
        entry->trigger();
        QVERIFY(hidden(actions.at(2)) && !hidden(actions.at(0)));
        QCOMPARE(m_bar->disabledQuickAccessBarItems(), QStringList({QStringLiteral("redo")}));
        QTRY_VERIFY(m_bar->sizeHint().width() < fullWidth);
        entry->trigger();
        QVERIFY(!hidden(actions.at(2)));
        QVERIFY(m_bar->disabledQuickAccessBarItems().isEmpty());
    }

    void restoredList_data()
    {
        QTest::addColumn<QStringList>("stored");
        QTest::addColumn<QStringList>("hidden");
        const QString a = QStringLiteral("a"), b = QStringLiteral("b"), c = QStringLiteral("c");
        QTest::newRow("none") << QStringList() << QStringList();
        QTest::newRow("reversed") << QStringList({c, a}) << QStringList({a, c});
        QTest::newRow("unknown") << QStringList({QStringLiteral("x.y"), a, QString()}) << QStringList({a});
        QTest::newRow("duplicate") << QStringList({b, b}) << QStringList({b});
        QTest::newRow("case") << QStringList({QStringLiteral("B")}) << QStringList();
    }

    void restoredList()
    {
        QFETCH(QStringList, stored);
        QFETCH(QStringList, hidden);
        m_bar->setQuickAccessBarItems(stored);
        for (QAction *action : addCommands({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")})) {
            const QString name = action->data().toString();
            QCOMPARE(this->hidden(action), hidden.contains(name));
            QCOMPARE(entryFor(name)->isChecked(), !hidden.contains(name));
        }
        QCOMPARE(m_bar->disabledQuickAccessBarItems(), stored); // as given, unknown names and all
    }

    void listOperations()
    {
        const QString save = QStringLiteral("save");
        const QString print = QStringLiteral("print");
        m_bar->hideQuickAccessBarItem(save);
        m_bar->hideQuickAccessBarItem(save);
        m_bar->hideQuickAccessBarItem(print);
        QCOMPARE(m_bar->disabledQuickAccessBarItems(), QStringList({save, save, print}));
        m_bar->showQuickAccessBarItem(save);
        m_bar->showQuickAccessBarItem(QStringLiteral("unknown"));
        QCOMPARE(m_bar->disabledQuickAccessBarItems(), QStringList({print}));

        // The list alone: an existing button keeps its visibility.
        const QList<QAction *> added = addCommands({print, save});
        QVERIFY(hidden(added.at(0)));
        m_bar->showQuickAccessBarItem(print);
        m_bar->hideQuickAccessBarItem(save);
        QVERIFY(hidden(added.at(0)) && !hidden(added.at(1)));
    }

    void duplicateNamelessAndForeignActions()
    {
        // Two commands of one name: the name acts on the first.
        const QList<QAction *> same = addCommands({QStringLiteral("same"), QStringLiteral("same")});
        commandEntries().at(1)->trigger();
        QVERIFY(hidden(same.at(0)) && !hidden(same.at(1)));
        QCOMPARE(m_bar->disabledQuickAccessBarItems(), QStringList({QStringLiteral("same")}));

        // An empty stored name must not hide every nameless command.
        m_bar->setQuickAccessBarItems({QString()});
        const QList<QAction *> nameless = addCommands({QString(), QString()});
        QVERIFY(!hidden(nameless.at(0)) && !hidden(nameless.at(1)));
        commandEntries().at(3)->trigger();
        QVERIFY(!hidden(nameless.at(0)) && hidden(nameless.at(1)));
        QCOMPARE(m_bar->disabledQuickAccessBarItems(), QStringList({QString()}));

        // Plain actions are no commands: no button, no entry.
        QAction plain(QStringLiteral("Plain"), nullptr);
        plain.setData(QStringLiteral("plain"));
        m_bar->addAction(&plain);
        QCOMPARE(m_bar->findChildren<RibbonButtonNormal *>().size(), 5);
        QCOMPARE(commandEntries().size(), 4);
    }

    void customizeMenu()
    {
        QVERIFY(showWindow());
        RibbonMenuBar &ribbon = m_window->ribbonMenuBar();
        RibbonButtonNormal *button = buttonFor(m_bar->findChild<RibbonSimpleAction *>());
        QAction *minimize = m_menu->actions().last();
        QCOMPARE(minimize->text(), QStringLiteral("Minimize the Ribbon"));
        // Opens below the customise button, the check mark following the ribbon each time.
        for (bool minimized : {true, false}) {
            ribbon.setMinimizeRibbon(minimized);
            bool checked = !minimized;
            QPoint shownAt;
            QTimer::singleShot(0, this, [&] {
                checked = minimize->isChecked();
                shownAt = m_menu->isVisible() ? m_menu->pos() : QPoint();
                m_menu->close();
            });
            QTest::mouseClick(button, Qt::LeftButton, Qt::NoModifier, QPoint(5, 5));
            QCOMPARE(checked, minimized);
            QCOMPARE(shownAt, button->mapToGlobal(button->rect().bottomLeft()) + QPoint(0, 3));
        }
        // Choosing the entry flips the ribbon and names no command.
        minimize->trigger();
        QVERIFY(ribbon.isRibbonMinimized());
        minimize->trigger();
        QVERIFY(!ribbon.isRibbonMinimized());
        QVERIFY(m_bar->disabledQuickAccessBarItems().isEmpty());
        // A command with the entry's caption is still only a command.
        QAction *lookalike = addCommands({QStringLiteral("lookalike")}).at(0);
        lookalike->setText(minimize->text());
        entryFor(QStringLiteral("lookalike"))->trigger();
        QVERIFY(!ribbon.isRibbonMinimized());
        QVERIFY(hidden(lookalike));
    }

    void lifetimes()
    {
        const QList<QAction *> actions = addCommands({QStringLiteral("save"), QStringLiteral("undo")});
        for (QAction *action : actions)
            action->setParent(nullptr);
        QScopedPointer<QAction> save(actions.at(0));
        QScopedPointer<QAction> undo(actions.at(1));
        m_bar->hideQuickAccessBarItem(QStringLiteral("undo"));
        QVERIFY(showWindow());

        QPointer<RibbonButtonNormal> button = buttonFor(save.data());
        save.reset();
        QVERIFY(!button);
        // A removed command takes its button and entry along; its hidden name stays.
        m_bar->removeAction(undo.data());
        QVERIFY(commandEntries().isEmpty());
        QCOMPARE(m_bar->findChildren<RibbonButtonNormal *>().size(), 1);
        QCOMPARE(m_bar->disabledQuickAccessBarItems(), QStringList({QStringLiteral("undo")}));
        m_menu->grab();

        // The bar deleted first: its command survives and lets go of its widgets.
        m_bar->addAction(undo.data());
        delete m_window;
        m_window = nullptr;
        QVERIFY(undo->associatedWidgets().isEmpty());
        undo->trigger();
    }
};

ZEL_TEST_MAIN(tst_QuickAccessBar)
#include "tst_quickaccessbar.moc"
