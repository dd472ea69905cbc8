// RibbonAction and RibbonActionListener: aliasing, the trigger report, forbidden actions.

#include "ZelTest.h"

#include "RibbonAction.h"
#include "RibbonActionListener.h"
#include "RibbonActionsContainer.h"
#include "RibbonSimpleAction.h"

#include <QPixmap>
#include <QPointer>
#include <QWidget>

using namespace zel;

namespace {

QIcon solidIcon(const QColor &color)
{
    QPixmap pixmap(16, 16);
    pixmap.fill(color);
    return QIcon(pixmap);
}

// Logs the names of the objects that receive an ActionChanged event.
class ChangeLog : public QObject
{
public:
    QStringList names;
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::ActionChanged)
            names << watched->objectName();
        return false;
    }
};

class ProbeAction : public RibbonAction
{
public:
    ProbeAction() : RibbonAction(nullptr) {}
    using RibbonAction::sendActionChangedEvt;
};

RibbonActionListener &listener()
{
    return RibbonActionListener::instance();
}

} // namespace

class tst_RibbonAction : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void constructorsFollowAlias_data();
    void constructorsFollowAlias();
    void aliasStateCopiedAtConstruction();
    void enabledStateOfAliasWins_data();
    void enabledStateOfAliasWins();
    void triggerReachesCurrentAliasOnce();
    void forbiddenByTextOrData_data();
    void forbiddenByTextOrData();
    void forbiddenCheckedAtConnection();
    void sendActionChangedEvtOrder();
    void deleteAliasOrAction();

private:
    QStringList m_registered;
};

void tst_RibbonAction::init()
{
    RibbonAction::SetForbiddenActions(QStringList());
}

void tst_RibbonAction::cleanup()
{
    RibbonAction::SetForbiddenActions(QStringList());
    for (const QString &name : qAsConst(m_registered))
        RibbonActionsContainer::instance().removeAction(name);
    m_registered.clear();
}

void tst_RibbonAction::constructorsFollowAlias_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("initialText");
    QTest::addColumn<bool>("textFollows");
    QTest::addColumn<bool>("iconFollows");

    // Only the constructors given a text register the action, under that text.
    QTest::newRow("QAction alias") << 0 << "HostSave" << true << true;
    QTest::newRow("QAction alias, own icon and text") << 1 << "Own" << false << false;
    QTest::newRow("RibbonAction alias") << 2 << "" << true << true;
    QTest::newRow("RibbonAction alias, own text") << 3 << "Own" << false << true;
}

void tst_RibbonAction::constructorsFollowAlias()
{
    QFETCH(int, kind);
    QFETCH(QString, initialText);
    QFETCH(bool, textFollows);
    QFETCH(bool, iconFollows);

    const QIcon hostIcon = solidIcon(Qt::red), ownIcon = solidIcon(Qt::blue), laterIcon = solidIcon(Qt::green);
    QAction plainHost(hostIcon, QStringLiteral("HostSave"), nullptr);
    RibbonAction ribbonHost(nullptr); // text set afterwards, so it does not register itself
    ribbonHost.setText(QStringLiteral("HostSave"));
    ribbonHost.setIcon(hostIcon);
    QAction *host = kind < 2 ? &plainHost : static_cast<QAction *>(&ribbonHost);

    const QString own = QStringLiteral("Own");
    m_registered << own;
    QScopedPointer<RibbonAction> action;
    switch (kind) {
    case 0: action.reset(new RibbonAction(QPointer<QAction>(host), nullptr)); break;
    case 1: action.reset(new RibbonAction(QPointer<QAction>(host), ownIcon, own, nullptr)); break;
    case 2: action.reset(new RibbonAction(QPointer<RibbonAction>(&ribbonHost), nullptr)); break;
    case 3: action.reset(new RibbonAction(QPointer<RibbonAction>(&ribbonHost), own, nullptr)); break;
    }

    QCOMPARE(action->text(), initialText);
    QCOMPARE(action->icon().cacheKey(), (kind == 0 ? hostIcon : kind == 1 ? ownIcon : QIcon()).cacheKey());
    QCOMPARE(action->aliasAction(), host);
    host->setText(QStringLiteral("HostSaveAs"));
    QCOMPARE(action->text(), textFollows ? QStringLiteral("HostSaveAs") : initialText);
    host->setIcon(laterIcon);
    QCOMPARE(action->icon().cacheKey() == laterIcon.cacheKey(), iconFollows);

    QCOMPARE(RibbonActionsContainer::instance().action(own).data() == action.data(), kind % 2 == 1);
    QVERIFY(!RibbonActionsContainer::instance().action(QStringLiteral("HostSave")));
}

void tst_RibbonAction::aliasStateCopiedAtConstruction()
{
    QAction host(QStringLiteral("Host"), nullptr);
    host.setToolTip(QStringLiteral("Saves the file"));
    host.setShortcut(QKeySequence(QStringLiteral("Ctrl+S")));
    host.setCheckable(true);
    host.setEnabled(false);
    RibbonAction action(QPointer<QAction>(&host), nullptr);
    QVERIFY(action.isCheckable() && !action.isEnabled());

    // Only text, icon and enabled state follow later.
    host.setToolTip(QStringLiteral("Other"));
    host.setShortcut(QKeySequence(QStringLiteral("Ctrl+T")));
    host.setEnabled(true);
    QCOMPARE(action.toolTip(), QStringLiteral("Saves the file"));
    QCOMPARE(action.shortcut(), QKeySequence(QStringLiteral("Ctrl+S")));
    QVERIFY(action.isEnabled());

    // The checked state syncs both ways, without ping-pong.
    QSignalSpy ownToggled(&action, &QAction::toggled);
    action.setChecked(true);
    QVERIFY(host.isChecked());
    QCOMPARE(ownToggled.count(), 1);
    host.setChecked(false);
    QVERIFY(!action.isChecked());
    host.setChecked(false); // same value: nothing
    QCOMPARE(ownToggled.count(), 2);
}

void tst_RibbonAction::enabledStateOfAliasWins_data()
{
    QTest::addColumn<bool>("hasAlias");
    QTest::addColumn<bool>("aliasEnabled");
    QTest::addColumn<bool>("requested");
    QTest::addColumn<bool>("expected");

    QTest::newRow("no alias, disable") << false << true << false << false;
    QTest::newRow("disabled alias, enable") << true << false << true << false;
    QTest::newRow("enabled alias, disable") << true << true << false << true;
    QTest::newRow("enabled alias, enable") << true << true << true << true;
}

void tst_RibbonAction::enabledStateOfAliasWins()
{
    QFETCH(bool, hasAlias);
    QFETCH(bool, aliasEnabled);
    QFETCH(bool, requested);
    QFETCH(bool, expected);

    QAction host(QStringLiteral("Host"), nullptr);
    host.setEnabled(aliasEnabled);
    RibbonAction action(hasAlias ? QPointer<QAction>(&host) : QPointer<QAction>(), nullptr);
    action.setEnabled(!requested);
    action.enableAction(requested);
    QCOMPARE(action.isEnabled(), expected);
    QCOMPARE(host.isEnabled(), aliasEnabled);
}

void tst_RibbonAction::triggerReachesCurrentAliasOnce()
{
    QAction host(QStringLiteral("Host"), nullptr);
    RibbonSimpleAction action(QPointer<QAction>(&host), nullptr);
    QSignalSpy hostTriggered(&host, &QAction::triggered);
    QSignalSpy reported(&listener(), &RibbonActionListener::actionTriggered);
    action.trigger();
    QCOMPARE(hostTriggered.count(), 1);
    QCOMPARE(reported.count(), 1);
    QCOMPARE(reported.at(0).at(0).value<RibbonAction *>(), &action);
    QCOMPARE(listener().lastActionTriggered(), QStringLiteral("Host"));

    // Setting the same alias again doubles neither the relay nor the report.
    action.setAliasAction(QPointer<QAction>(&host));
    action.trigger();
    QCOMPARE(hostTriggered.count(), 2);
    QCOMPARE(reported.count(), 2);

    // Triggering the alias does not trigger the ribbon action back.
    QSignalSpy ownTriggered(&action, &QAction::triggered);
    host.trigger();
    QCOMPARE(ownTriggered.count(), 0);

    // A replaced alias is released; nothing is copied from the new one until it changes.
    QAction second(QStringLiteral("Second"), nullptr);
    QSignalSpy secondTriggered(&second, &QAction::triggered);
    action.setAliasAction(QPointer<QAction>(&second));
    QCOMPARE(action.text(), QStringLiteral("Host"));
    action.trigger();
    QCOMPARE(hostTriggered.count(), 3); // the one from host.trigger() above
    QCOMPARE(secondTriggered.count(), 1);
    host.setText(QStringLiteral("Host changed"));
    QCOMPARE(action.text(), QStringLiteral("Host"));
    second.setText(QStringLiteral("Second changed"));
    QCOMPARE(action.text(), QStringLiteral("Second changed"));
}

void tst_RibbonAction::forbiddenByTextOrData_data()
{
    QTest::addColumn<QStringList>("forbiddenList");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("data");
    QTest::addColumn<bool>("forbidden");

    const QStringList print{QStringLiteral("Print")};
    QTest::newRow("by text") << print << "Print" << "" << true;
    QTest::newRow("by data") << print << "Output" << "Print" << true;
    QTest::newRow("case differs") << print << "print" << "PRINT" << false;
    QTest::newRow("part of the name") << print << "Print preview" << "" << false;
    QTest::newRow("not listed") << print << "Save" << "" << false;
    QTest::newRow("empty entry matches no empty text") << QStringList{QString()} << "" << "" << false;
}

void tst_RibbonAction::forbiddenByTextOrData()
{
    QFETCH(QStringList, forbiddenList);
    QFETCH(QString, text);
    QFETCH(QString, data);
    QFETCH(bool, forbidden);

    RibbonAction::SetForbiddenActions(forbiddenList);
    const QString before = listener().lastActionTriggered();
    // Named after construction (the registry is untouched); the check runs at the next
    // connection to triggered(), and cuts the connections made after it as well.
    RibbonSimpleAction action(nullptr);
    action.setText(text);
    action.setData(data);
    action.setCheckable(true);
    int handled = 0;
    connect(&action, &QAction::triggered, this, [&handled] { ++handled; });
    QPointer<QObject> receiver = new QObject;
    connect(&action, SIGNAL(triggered(bool)), receiver, SLOT(deleteLater()));

    QSignalSpy reported(&listener(), &RibbonActionListener::actionTriggered);
    QSignalSpy forbiddenSpy(&listener(), &RibbonActionListener::forbiddenActionTriggered);
    QSignalSpy activated(&action, &RibbonAction::ribbonActionActivated);
    action.trigger();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);

    QCOMPARE(forbiddenSpy.count(), forbidden ? 1 : 0); // one report, not one per cut connection
    QCOMPARE(reported.count(), forbidden ? 0 : 1);
    QCOMPARE(handled, forbidden ? 0 : 1);
    QCOMPARE(receiver.isNull(), !forbidden);
    delete receiver.data();
    QCOMPARE(activated.count(), forbidden ? 0 : 1);
    QCOMPARE(action.isCheckable(), !forbidden);
    if (forbidden) {
        QCOMPARE(forbiddenSpy.at(0).at(0).value<RibbonAction *>(), &action);
        QCOMPARE(listener().lastActionTriggered(), before);
    }
}

void tst_RibbonAction::forbiddenCheckedAtConnection()
{
    // The alias relay is cut as well.
    RibbonAction::SetForbiddenActions({QStringLiteral("Print")});
    QAction host(QStringLiteral("Print"), nullptr);
    RibbonAction action(QPointer<QAction>(&host), nullptr);
    QSignalSpy hostTriggered(&host, &QAction::triggered);
    QSignalSpy forbiddenSpy(&listener(), &RibbonActionListener::forbiddenActionTriggered);
    action.trigger();
    QCOMPARE(hostTriggered.count(), 0);
    QCOMPARE(forbiddenSpy.count(), 1);

    // A list set after the connections were made does not examine them again.
    const QString name = QStringLiteral("tst_RibbonAction late");
    m_registered << name;
    RibbonAction late(name, nullptr);
    RibbonAction::SetForbiddenActions({name});
    QSignalSpy reported(&listener(), &RibbonActionListener::actionTriggered);
    late.trigger();
    QCOMPARE(reported.count(), 1);
}

void tst_RibbonAction::sendActionChangedEvtOrder()
{
    ProbeAction action;
    QWidget first, second;
    action.setObjectName(QStringLiteral("action"));
    first.setObjectName(QStringLiteral("first"));
    second.setObjectName(QStringLiteral("second"));
    first.addAction(&action);
    second.addAction(&action);
    ChangeLog log;
    for (QObject *object : {static_cast<QObject *>(&first), static_cast<QObject *>(&second),
                            static_cast<QObject *>(&action)})
        object->installEventFilter(&log);

    action.sendActionChangedEvt();
    QCOMPARE(log.names, (QStringList{"first", "second", "action"}));
}

void tst_RibbonAction::deleteAliasOrAction()
{
    auto *gone = new QAction(QStringLiteral("Gone"), nullptr);
    gone->setCheckable(true);
    RibbonAction survivor(QPointer<QAction>(gone), nullptr);
    delete gone;
    QVERIFY(!survivor.aliasAction());
    QSignalSpy triggered(&survivor, &QAction::triggered);
    survivor.setChecked(true);
    survivor.trigger();
    survivor.enableAction(false);
    QCOMPARE(triggered.count(), 1);
    QVERIFY(!survivor.isEnabled());

    // Deleted in its own handler.
    QAction host(QStringLiteral("Host"), nullptr);
    QPointer<RibbonAction> action = new RibbonSimpleAction(QPointer<QAction>(&host), nullptr);
    connect(action.data(), &QAction::triggered, this, [&action] { delete action.data(); });
    QSignalSpy reported(&listener(), &RibbonActionListener::actionTriggered);

    action->trigger();
    QVERIFY(action.isNull());
    QCOMPARE(reported.count(), 1); // the listener was connected first and still reported
    host.setText(QStringLiteral("Changed")); // the alias no longer reaches the dead action
}

ZEL_TEST_MAIN(tst_RibbonAction)
#include "tst_ribbonaction.moc"
