// RibbonAction and RibbonActionListener: aliasing, the trigger report, forbidden actions.

#include "ZelTest.h"

#include "RibbonAction.h"
#include "RibbonActionListener.h"
#include "RibbonActionsContainer.h"
#include "RibbonSimpleAction.h"

#include <QActionEvent>
#include <QPainter>
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

// Records the ActionChanged events it receives into a shared log.
class RecordingWidget : public QWidget
{
public:
    RecordingWidget(const QString &name, QStringList *log) : m_name(name), m_log(log) {}

protected:
    void actionEvent(QActionEvent *event) override
    {
        if (event->type() == QEvent::ActionChanged)
            m_log->append(m_name);
        QWidget::actionEvent(event);
    }

private:
    QString m_name;
    QStringList *m_log;
};

class ProbeAction : public RibbonAction
{
public:
    ProbeAction(QStringList *log) : RibbonAction(nullptr), m_log(log) {}
    using RibbonAction::sendActionChangedEvt;

protected:
    bool event(QEvent *event) override
    {
        if (event->type() == QEvent::ActionChanged)
            m_log->append(QStringLiteral("action"));
        return RibbonAction::event(event);
    }

private:
    QStringList *m_log;
};

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
    void checkedStateSyncsBothWays();
    void destroyedAliasStopsFollowing();
    void listenerReportsOnce();
    void forbiddenByTextOrData_data();
    void forbiddenByTextOrData();
    void forbiddenCutsLaterConnections();
    void forbiddenCheckedAtConnection();
    void sendActionChangedEvtOrder();
    void deleteInsideOwnTriggeredHandler();

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
    QTest::addColumn<bool>("initialIconFromAlias");
    QTest::addColumn<bool>("textFollows");
    QTest::addColumn<bool>("iconFollows");
    QTest::addColumn<QString>("registeredAs");

    QTest::newRow("QAction alias") << 0 << "HostSave" << true << true << true << "";
    QTest::newRow("QAction alias, own icon and text") << 1 << "Own" << false << false << false << "Own";
    QTest::newRow("RibbonAction alias") << 2 << "" << false << true << true << "";
    QTest::newRow("RibbonAction alias, own text") << 3 << "Own" << false << false << true << "Own";
}

void tst_RibbonAction::constructorsFollowAlias()
{
    QFETCH(int, kind);
    QFETCH(QString, initialText);
    QFETCH(bool, initialIconFromAlias);
    QFETCH(bool, textFollows);
    QFETCH(bool, iconFollows);
    QFETCH(QString, registeredAs);

    const QIcon hostIcon = solidIcon(Qt::red);
    const QIcon ownIcon = solidIcon(Qt::blue);
    const QIcon laterIcon = solidIcon(Qt::green);
    // The host action is a RibbonAction in the last two rows; built without a text so
    // that it does not register itself.
    QAction plainHost(hostIcon, QStringLiteral("HostSave"), nullptr);
    RibbonAction ribbonHost(nullptr);
    ribbonHost.setText(QStringLiteral("HostSave"));
    ribbonHost.setIcon(hostIcon);
    QAction *host = kind < 2 ? &plainHost : static_cast<QAction *>(&ribbonHost);

    const QString ownText = QStringLiteral("Own");
    m_registered << ownText;
    QScopedPointer<RibbonAction> action;
    switch (kind) {
    case 0: action.reset(new RibbonAction(QPointer<QAction>(host), nullptr)); break;
    case 1: action.reset(new RibbonAction(QPointer<QAction>(host), ownIcon, ownText, nullptr)); break;
    case 2: action.reset(new RibbonAction(QPointer<RibbonAction>(&ribbonHost), nullptr)); break;
    case 3: action.reset(new RibbonAction(QPointer<RibbonAction>(&ribbonHost), ownText, nullptr)); break;
    }

    QCOMPARE(action->text(), initialText);
    QCOMPARE(action->icon().cacheKey() == hostIcon.cacheKey(), initialIconFromAlias);
    if (kind == 1)
        QCOMPARE(action->icon().cacheKey(), ownIcon.cacheKey());
    QCOMPARE(action->aliasAction(), host);

    host->setText(QStringLiteral("HostSaveAs"));
    QCOMPARE(action->text(), textFollows ? QStringLiteral("HostSaveAs") : initialText);
    host->setIcon(laterIcon);
    QCOMPARE(action->icon().cacheKey() == laterIcon.cacheKey(), iconFollows);

    QPointer<QAction> found = RibbonActionsContainer::instance().action(ownText);
    QCOMPARE(found.data() == action.data(), !registeredAs.isEmpty());
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
    QCOMPARE(action.toolTip(), QStringLiteral("Saves the file"));
    QCOMPARE(action.shortcut(), QKeySequence(QStringLiteral("Ctrl+S")));
    QVERIFY(action.isCheckable());
    QVERIFY(!action.isEnabled());
    QVERIFY(!action.isSeparator());

    // Only text, icon and enabled state follow later.
    host.setToolTip(QStringLiteral("Other"));
    host.setShortcut(QKeySequence(QStringLiteral("Ctrl+T")));
    host.setEnabled(true);
    QCOMPARE(action.toolTip(), QStringLiteral("Saves the file"));
    QCOMPARE(action.shortcut(), QKeySequence(QStringLiteral("Ctrl+S")));
    QVERIFY(action.isEnabled());

    QAction separator(nullptr);
    separator.setSeparator(true);
    RibbonAction separatorAlias(QPointer<QAction>(&separator), nullptr);
    QVERIFY(separatorAlias.isSeparator());
}

void tst_RibbonAction::enabledStateOfAliasWins_data()
{
    QTest::addColumn<bool>("hasAlias");
    QTest::addColumn<bool>("aliasEnabled");
    QTest::addColumn<bool>("requested");
    QTest::addColumn<bool>("expected");

    QTest::newRow("no alias, disable") << false << true << false << false;
    QTest::newRow("no alias, enable") << false << true << true << true;
    QTest::newRow("disabled alias, enable") << true << false << true << false;
    QTest::newRow("enabled alias, disable") << true << true << false << true;
    QTest::newRow("enabled alias, enable") << true << true << true << true;
    QTest::newRow("disabled alias, disable") << true << false << false << false;
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

    action.trigger();
    QCOMPARE(hostTriggered.count(), 1);

    // Setting the same alias again must not double the relay.
    action.setAliasAction(QPointer<QAction>(&host));
    action.trigger();
    QCOMPARE(hostTriggered.count(), 2);

    // Triggering the alias does not trigger the ribbon action back.
    QSignalSpy ownTriggered(&action, &QAction::triggered);
    host.trigger();
    QCOMPARE(ownTriggered.count(), 0);

    // A replaced alias is released; nothing is copied from the new one until it changes.
    QAction second(QStringLiteral("Second"), nullptr);
    QSignalSpy secondTriggered(&second, &QAction::triggered);
    action.setAliasAction(QPointer<QAction>(&second));
    QCOMPARE(action.text(), QStringLiteral("Host"));
    hostTriggered.clear();
    action.trigger();
    QCOMPARE(hostTriggered.count(), 0);
    QCOMPARE(secondTriggered.count(), 1);
    host.setText(QStringLiteral("Host changed"));
    QCOMPARE(action.text(), QStringLiteral("Host"));
    second.setText(QStringLiteral("Second changed"));
    QCOMPARE(action.text(), QStringLiteral("Second changed"));
}

void tst_RibbonAction::checkedStateSyncsBothWays()
{
    QAction host(QStringLiteral("Host"), nullptr);
    host.setCheckable(true);
    RibbonAction action(QPointer<QAction>(&host), nullptr);
    QSignalSpy ownToggled(&action, &QAction::toggled);

    action.setChecked(true);
    QVERIFY(host.isChecked());
    QCOMPARE(ownToggled.count(), 1); // no ping-pong back from the alias

    host.setChecked(false);
    QVERIFY(!action.isChecked());
    QCOMPARE(ownToggled.count(), 2);

    host.setChecked(false); // same value: nothing
    QCOMPARE(ownToggled.count(), 2);
}

void tst_RibbonAction::destroyedAliasStopsFollowing()
{
    auto *host = new QAction(QStringLiteral("Host"), nullptr);
    host->setCheckable(true);
    RibbonAction action(QPointer<QAction>(host), nullptr);
    delete host;

    QVERIFY(!action.aliasAction());
    QSignalSpy triggered(&action, &QAction::triggered);
    action.setChecked(true);
    action.trigger();
    action.enableAction(false);
    QCOMPARE(triggered.count(), 1);
    QVERIFY(!action.isEnabled());
}

void tst_RibbonAction::listenerReportsOnce()
{
    QAction host(QStringLiteral("Host"), nullptr);
    const QString name = QStringLiteral("tst_RibbonAction listener");
    m_registered << name;
    RibbonAction action(name, nullptr);
    QSignalSpy reported(&RibbonActionListener::instance(), &RibbonActionListener::actionTriggered);
    QSignalSpy forbidden(&RibbonActionListener::instance(),
                         &RibbonActionListener::forbiddenActionTriggered);

    action.trigger();
    QCOMPARE(reported.count(), 1);
    QCOMPARE(reported.at(0).at(0).value<RibbonAction *>(), &action);
    QCOMPARE(RibbonActionListener::instance().lastActionTriggered(), name);

    // setAliasAction connects to the listener again; still one report per trigger.
    action.setAliasAction(QPointer<QAction>(&host));
    action.setAliasAction(QPointer<QAction>(&host));
    action.trigger();
    QCOMPARE(reported.count(), 2);
    QCOMPARE(forbidden.count(), 0);
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
    const QString before = RibbonActionListener::instance().lastActionTriggered();
    // Built without a text (so the registry is untouched), the name given afterwards;
    // the check runs at the next connection to triggered().
    RibbonSimpleAction action(nullptr);
    action.setText(text);
    action.setData(data);
    action.setCheckable(true);
    int handled = 0;
    connect(&action, &QAction::triggered, this, [&handled] { ++handled; });

    QSignalSpy reported(&RibbonActionListener::instance(), &RibbonActionListener::actionTriggered);
    QSignalSpy forbiddenSpy(&RibbonActionListener::instance(),
                            &RibbonActionListener::forbiddenActionTriggered);
    QSignalSpy activated(&action, &RibbonAction::ribbonActionActivated);

    action.trigger();
    QCOMPARE(forbiddenSpy.count(), forbidden ? 1 : 0);
    QCOMPARE(reported.count(), forbidden ? 0 : 1);
    QCOMPARE(handled, forbidden ? 0 : 1);
    QCOMPARE(activated.count(), forbidden ? 0 : 1);
    QCOMPARE(action.isCheckable(), !forbidden);
    if (forbidden) {
        QCOMPARE(forbiddenSpy.at(0).at(0).value<RibbonAction *>(), &action);
        QCOMPARE(RibbonActionListener::instance().lastActionTriggered(), before);
    }
}

void tst_RibbonAction::forbiddenCutsLaterConnections()
{
    RibbonAction::SetForbiddenActions({QStringLiteral("Print")});
    const QString name = QStringLiteral("Print");
    m_registered << name;
    RibbonAction action(name, nullptr);
    action.setCheckable(true); // made checkable after the check; cut again below

    int handled = 0;
    connect(&action, &QAction::triggered, this, [&handled] { ++handled; });
    QObject receiver;
    connect(&action, SIGNAL(triggered(bool)), &receiver, SLOT(deleteLater()));
    connect(&action, SIGNAL(triggered()), &RibbonActionListener::instance(),
            SLOT(onActionTriggered()));

    QSignalSpy reported(&RibbonActionListener::instance(), &RibbonActionListener::actionTriggered);
    QSignalSpy forbiddenSpy(&RibbonActionListener::instance(),
                            &RibbonActionListener::forbiddenActionTriggered);
    action.trigger();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);

    QCOMPARE(handled, 0);
    QCOMPARE(reported.count(), 0);
    QCOMPARE(forbiddenSpy.count(), 1); // one report, not one per cut connection
    QVERIFY(!action.isCheckable());
}

void tst_RibbonAction::forbiddenCheckedAtConnection()
{
    RibbonAction::SetForbiddenActions({QStringLiteral("Print")});
    QAction host(QStringLiteral("Print"), nullptr);
    RibbonAction action(QPointer<QAction>(&host), nullptr);
    QSignalSpy hostTriggered(&host, &QAction::triggered);
    QSignalSpy forbiddenSpy(&RibbonActionListener::instance(),
                            &RibbonActionListener::forbiddenActionTriggered);
    action.trigger();
    QCOMPARE(hostTriggered.count(), 0);
    QCOMPARE(forbiddenSpy.count(), 1);

    // A list set after the connections were made does not examine them again.
    const QString name = QStringLiteral("tst_RibbonAction late");
    m_registered << name;
    RibbonAction late(name, nullptr);
    RibbonAction::SetForbiddenActions({name});
    QSignalSpy reported(&RibbonActionListener::instance(), &RibbonActionListener::actionTriggered);
    late.trigger();
    QCOMPARE(reported.count(), 1);
}

void tst_RibbonAction::sendActionChangedEvtOrder()
{
    QStringList log;
    ProbeAction action(&log);
    RecordingWidget first(QStringLiteral("first"), &log);
    RecordingWidget second(QStringLiteral("second"), &log);
    first.addAction(&action);
    second.addAction(&action);
    log.clear();

    action.sendActionChangedEvt();
    QCOMPARE(log, (QStringList{QStringLiteral("first"), QStringLiteral("second"),
                               QStringLiteral("action")}));
}

void tst_RibbonAction::deleteInsideOwnTriggeredHandler()
{
    QAction host(QStringLiteral("Host"), nullptr);
    QPointer<RibbonAction> action = new RibbonSimpleAction(QPointer<QAction>(&host), nullptr);
    connect(action.data(), &QAction::triggered, this, [&action] { delete action.data(); });
    QSignalSpy reported(&RibbonActionListener::instance(), &RibbonActionListener::actionTriggered);

    action->trigger();
    QVERIFY(action.isNull());
    // The listener was connected first and still reported the trigger.
    QCOMPARE(reported.count(), 1);
    host.setText(QStringLiteral("Changed")); // the alias no longer reaches the dead action
}

ZEL_TEST_MAIN(tst_RibbonAction)
#include "tst_ribbonaction.moc"
