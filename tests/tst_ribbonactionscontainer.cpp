// RibbonActionsContainer: the process-wide registry of actions by name and shortcut.

#include "ZelTest.h"

#include "RibbonAction.h"
#include "RibbonActionsContainer.h"

using namespace zel;

class tst_RibbonActionsContainer : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();

    void registrationByName();
    void lookupByShortcut_data();
    void lookupByShortcut();

private:
    // The registry lives as long as the process: every name a test uses is removed again.
    QString name(const char *suffix)
    {
        m_names << QLatin1String("reg ") + QLatin1String(suffix);
        return m_names.last();
    }
    QStringList m_names;
};

void tst_RibbonActionsContainer::cleanup()
{
    for (const QString &entry : qAsConst(m_names))
        RibbonActionsContainer::instance().removeAction(entry);
    m_names.clear();
}

// First registration wins; a dead entry stays null until removeAction() frees the name.
void tst_RibbonActionsContainer::registrationByName()
{
    RibbonActionsContainer &registry = RibbonActionsContainer::instance();
    const QString text = name("Save");
    auto *first = new RibbonAction(text, nullptr);
    RibbonAction second(text, nullptr);
    QCOMPARE(registry.action(text).data(), first);
    registry.addAction(text, QPointer<QAction>(&second));
    QCOMPARE(registry.action(text).data(), first);
    delete first;
    registry.addAction(text, QPointer<QAction>(&second));
    QVERIFY(registry.action(text).isNull());
    registry.removeAction(name("never registered"));
    registry.removeAction(text);
    RibbonAction third(text, nullptr);
    QCOMPARE(registry.action(text).data(), &third);
    QAction foreign(nullptr);
    registry.addAction(name("Foreign"), QPointer<QAction>(&foreign));
    QCOMPARE(registry.action(m_names.last()).data(), &foreign);

    // Only constructors given a text register, under that exact text; renames do not move it.
    const QString exportText = name("&Export");
    RibbonAction action(exportText, nullptr);
    action.setText(name("Renamed"));
    QCOMPARE(registry.action(exportText).data(), &action);
    QVERIFY(registry.action(QStringLiteral("reg Export")).isNull());
    QVERIFY(registry.action(QStringLiteral("reg Renamed")).isNull());

    QAction host(name("Host"), nullptr);
    RibbonAction byAlias(QPointer<QAction>(&host), nullptr);
    RibbonAction plain(nullptr);
    plain.setText(name("Plain"));
    RibbonAction iconAction(QIcon(), name("Icon"), nullptr);
    RibbonAction aliasWithText(QPointer<QAction>(&host), QIcon(), name("Alias"), nullptr);
    QVERIFY(registry.action(QStringLiteral("reg Host")).isNull());
    QVERIFY(registry.action(QStringLiteral("reg Plain")).isNull());
    QCOMPARE(registry.action(QStringLiteral("reg Icon")).data(), &iconAction);
    QCOMPARE(registry.action(QStringLiteral("reg Alias")).data(), &aliasWithText);
}

void tst_RibbonActionsContainer::lookupByShortcut_data()
{
    QTest::addColumn<QString>("query");
    QTest::addColumn<QString>("expected");

    QTest::newRow("shared: first name wins") << "Ctrl+K" << "reg K a"; // "K b" is built first
    QTest::newRow("whole chord") << "Ctrl+K, Ctrl+C" << "reg K chord";
    QTest::newRow("chord prefix") << "Ctrl+J" << "";
    QTest::newRow("secondary") << "F7" << "";
    QTest::newRow("unknown") << "Ctrl+Shift+F12" << "";
    // Empty: first name without a shortcut, ordered by UTF-16 code unit, dead entries skipped.
    QTest::newRow("empty") << "" << "reg E B";
}

void tst_RibbonActionsContainer::lookupByShortcut()
{
    QFETCH(QString, query);
    QFETCH(QString, expected);

    QObject owner;
    const auto withShortcut = [&](const char *suffix, const char *keys) {
        auto *action = new RibbonAction(name(suffix), &owner);
        action->setShortcut(QKeySequence(QLatin1String(keys)));
        return action;
    };
    withShortcut("K b", "Ctrl+K");
    withShortcut("K a", "Ctrl+K");
    withShortcut("K chord", "Ctrl+K, Ctrl+C");
    withShortcut("K j", "Ctrl+J, Ctrl+X");
    withShortcut("K secondary", "F6")->setShortcuts({QKeySequence(Qt::Key_F6), QKeySequence(Qt::Key_F7)});
    delete new RibbonAction(name("E 0"), nullptr);
    new RibbonAction(name("E a"), &owner);
    new RibbonAction(name("E B"), &owner);
    withShortcut("E 1", "Ctrl+E");

    QPointer<QAction> found = RibbonActionsContainer::instance().action(QKeySequence(query));
    QCOMPARE(found ? found->text() : QString(), expected);
}

ZEL_TEST_MAIN(tst_RibbonActionsContainer)
#include "tst_ribbonactionscontainer.moc"
