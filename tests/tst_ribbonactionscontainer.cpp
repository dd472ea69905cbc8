// RibbonActionsContainer: the process-wide registry of actions by name and shortcut.

#include "ZelTest.h"

#include "RibbonAction.h"
#include "RibbonActionsContainer.h"
#include "RibbonCategoriesPanelAction.h"

#include <QPointer>

using namespace zel;

class tst_RibbonActionsContainer : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();

    void firstRegistrationWins();
    void destroyedEntryStaysNull();
    void removeActionFreesName();
    void nameIsExactConstructorText();
    void onlyTextConstructorsRegister();
    void foreignActionsAndUnknownNames();
    void lookupByShortcut_data();
    void lookupByShortcut();
    void emptySequenceFindsFirstWithoutShortcut();

private:
    // Every name used by a test, removed again afterwards: the registry lives as long
    // as the process.
    QString name(const char *suffix)
    {
        const QString result = QLatin1String("reg ") + QLatin1String(suffix);
        m_names << result;
        return result;
    }
    QStringList m_names;
};

void tst_RibbonActionsContainer::cleanup()
{
    for (const QString &entry : qAsConst(m_names))
        RibbonActionsContainer::instance().removeAction(entry);
    m_names.clear();
}

void tst_RibbonActionsContainer::firstRegistrationWins()
{
    RibbonActionsContainer &registry = RibbonActionsContainer::instance();
    const QString text = name("Save");
    RibbonAction first(text, nullptr);
    RibbonAction second(text, nullptr);
    QCOMPARE(registry.action(text).data(), &first);

    registry.addAction(text, QPointer<QAction>(&second));
    QCOMPARE(registry.action(text).data(), &first);
}

void tst_RibbonActionsContainer::destroyedEntryStaysNull()
{
    RibbonActionsContainer &registry = RibbonActionsContainer::instance();
    const QString text = name("Open");
    auto *first = new RibbonAction(text, nullptr);
    RibbonAction second(text, nullptr);
    delete first;

    QVERIFY(registry.action(text).isNull()); // not the second one
    RibbonAction third(text, nullptr);
    QVERIFY(registry.action(text).isNull());
    registry.addAction(text, QPointer<QAction>(&third));
    QVERIFY(registry.action(text).isNull());
}

void tst_RibbonActionsContainer::removeActionFreesName()
{
    RibbonActionsContainer &registry = RibbonActionsContainer::instance();
    const QString text = name("Close");
    auto *first = new RibbonAction(text, nullptr);
    delete first;
    registry.removeAction(text);
    QVERIFY(registry.action(text).isNull());

    RibbonAction third(text, nullptr);
    QCOMPARE(registry.action(text).data(), &third);

    registry.removeAction(name("never registered")); // unknown: nothing happens
    QCOMPARE(registry.action(text).data(), &third);
}

void tst_RibbonActionsContainer::nameIsExactConstructorText()
{
    RibbonActionsContainer &registry = RibbonActionsContainer::instance();
    const QString text = name("&Export");
    name("Export");
    name("Renamed");
    RibbonAction action(text, nullptr);
    QCOMPARE(registry.action(text).data(), &action);
    QVERIFY(registry.action(QStringLiteral("reg Export")).isNull());
    QVERIFY(registry.action(QStringLiteral("reg &export")).isNull());

    action.setText(QStringLiteral("reg Renamed"));
    QCOMPARE(registry.action(text).data(), &action);
    QVERIFY(registry.action(QStringLiteral("reg Renamed")).isNull());
}

void tst_RibbonActionsContainer::onlyTextConstructorsRegister()
{
    RibbonActionsContainer &registry = RibbonActionsContainer::instance();
    const QString hostText = name("Host");
    QAction host(hostText, nullptr);
    RibbonAction byAlias(QPointer<QAction>(&host), nullptr);
    RibbonAction plain(nullptr);
    plain.setText(name("Plain"));
    QVERIFY(registry.action(hostText).isNull());
    QVERIFY(registry.action(QStringLiteral("reg Plain")).isNull());

    const QString withIcon = name("With icon");
    RibbonAction iconAction(QIcon(), withIcon, nullptr);
    QCOMPARE(registry.action(withIcon).data(), &iconAction);
    const QString aliasText = name("Alias text");
    RibbonAction aliasWithText(QPointer<QAction>(&host), QIcon(), aliasText, nullptr);
    QCOMPARE(registry.action(aliasText).data(), &aliasWithText);
}

void tst_RibbonActionsContainer::foreignActionsAndUnknownNames()
{
    RibbonActionsContainer &registry = RibbonActionsContainer::instance();
    QAction plain(nullptr);
    const QString text = name("Foreign");
    registry.addAction(text, QPointer<QAction>(&plain));
    QCOMPARE(registry.action(text).data(), &plain);
    QVERIFY(registry.action(QStringLiteral("reg foreign")).isNull());
    QVERIFY(registry.action(QStringLiteral("no such action")).isNull());
}

void tst_RibbonActionsContainer::lookupByShortcut_data()
{
    QTest::addColumn<QString>("query");
    QTest::addColumn<QString>("expected");

    // "reg K b" is built first, but "reg K a" sorts first.
    QTest::newRow("shared shortcut, first name wins") << "Ctrl+K" << "reg K a";
    QTest::newRow("whole sequence must match") << "Ctrl+K, Ctrl+C" << "reg K chord";
    QTest::newRow("prefix of a chord does not match") << "Ctrl+J" << "";
    QTest::newRow("secondary shortcut is not compared") << "F7" << "";
    QTest::newRow("unknown shortcut") << "Ctrl+Shift+F12" << "";
}

void tst_RibbonActionsContainer::lookupByShortcut()
{
    QFETCH(QString, query);
    QFETCH(QString, expected);

    RibbonAction b(name("K b"), nullptr);
    b.setShortcut(QKeySequence(QStringLiteral("Ctrl+K")));
    RibbonAction a(name("K a"), nullptr);
    a.setShortcut(QKeySequence(QStringLiteral("Ctrl+K")));
    RibbonAction chord(name("K chord"), nullptr);
    chord.setShortcut(QKeySequence(QStringLiteral("Ctrl+K, Ctrl+C")));
    RibbonAction jChord(name("K j"), nullptr);
    jChord.setShortcut(QKeySequence(QStringLiteral("Ctrl+J, Ctrl+X")));
    RibbonAction secondary(name("K secondary"), nullptr);
    secondary.setShortcuts({QKeySequence(QStringLiteral("F6")), QKeySequence(QStringLiteral("F7"))});

    QPointer<QAction> found = RibbonActionsContainer::instance().action(QKeySequence(query));
    QCOMPARE(found ? found->text() : QString(), expected);
}

void tst_RibbonActionsContainer::emptySequenceFindsFirstWithoutShortcut()
{
    // Names sort by UTF-16 code unit: upper case before lower case. A destroyed entry
    // that sorts first is skipped.
    auto *gone = new RibbonAction(name("E 0"), nullptr);
    delete gone;
    RibbonAction lower(name("E a"), nullptr);
    RibbonAction upper(name("E B"), nullptr);
    RibbonAction withShortcut(name("E 1"), nullptr);
    withShortcut.setShortcut(QKeySequence(QStringLiteral("Ctrl+E")));

    QCOMPARE(RibbonActionsContainer::instance().action(QKeySequence()).data(), &upper);
}


ZEL_TEST_MAIN(tst_RibbonActionsContainer)
#include "tst_ribbonactionscontainer.moc"
