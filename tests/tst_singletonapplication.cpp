// The single-instance application between real processes: the test program starts
// copies of itself, which find a role in their environment and play a host (or a peer)
// instead of running the tests. Every test gets its own runtime directory.
#include "RibbonSingletonApplication.h"

#include <QtTest>

#include <QDirIterator>
#include <QLocalSocket>
#include <QProcess>
#include <QSocketNotifier>
#include <QTemporaryDir>

#include <cstdio>
#include <memory>

#include <grp.h>
#include <signal.h>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace zel;

namespace {

// Environment of a child: its role and the identifier it runs under.
const char kRole[] = "ZELTEST_ROLE";
const char kId[] = "ZELTEST_ID";
const char kNewWindow[] = "ZELTEST_NEW_WINDOW"; // comma-separated suffixes
const char kHold[] = "ZELTEST_HOLD";            // wait for a line on stdin before endInit()
const char kTimeout[] = "ZELTEST_TIMEOUT";      // of sendMessage, for the "send" role
const char kUnits[] = "ZELTEST_UNITS";          // "send": a generated text of this length

// Patience of the test with a child; far above what any step takes, even under the
// sanitizers.
constexpr int kPatienceMs = 30000;
constexpr int kMaxUnits = 512 * 1024; // 1 MiB of UTF-16

// Text of any length that holds ASCII, non-ASCII, surrogate pairs and the separator.
QString generatedText(int units)
{
    static const QString pattern = QStringLiteral("a;Ü€") + QString::fromUcs4(U"\U0001D11E") + QStringLiteral("z\n");
    QString text;
    text.reserve(units);
    while (text.size() < units)
        text += pattern;
    text.truncate(units);
    return text;
}

QByteArray encodeForLine(const QString &text)
{
    return QByteArray(reinterpret_cast<const char *>(text.utf16()), text.size() * 2).toBase64();
}

QString decodeLine(const QString &line)
{
    const QByteArray raw = QByteArray::fromBase64(line.toLatin1());
    return QString(reinterpret_cast<const QChar *>(raw.constData()), raw.size() / 2);
}

// A frame as a foreign peer would write it: "zRI1", the number of UTF-16 code units
// (32 bits, little-endian), the code units (little-endian).
QByteArray rawFrame(quint32 units, const QString &text)
{
    QByteArray bytes("zRI1");
    for (int shift = 0; shift < 32; shift += 8)
        bytes += char((units >> shift) & 0xff);
    for (const QChar c : text) {
        bytes += char(c.unicode() & 0xff);
        bytes += char(c.unicode() >> 8);
    }
    return bytes;
}

// ---- The children --------------------------------------------------------------------

void say(const QByteArray &line)
{
    std::fwrite(line.constData(), 1, size_t(line.size()), stdout);
    std::fputc('\n', stdout);
    std::fflush(stdout);
}

void readLineFromStdin()
{
    char c = 0;
    while (::read(STDIN_FILENO, &c, 1) == 1 && c != '\n') {
    }
}

QByteArray flag(bool value)
{
    return value ? "1" : "0";
}

// A host: reports "INIT <initInstance> <isSecondInstance> <isRunning>", "READY" after
// endInit(), each message as "MSG <base64 of UTF-16>", and ends when stdin closes.
int runInstance(int argc, char **argv)
{
    RibbonSingletonApplication app(qEnvironmentVariable(kId), argc, argv);
    const QString newWindow = qEnvironmentVariable(kNewWindow);
    if (!newWindow.isEmpty())
        app.setOpenInNewWindowExtensions(newWindow.split(QLatin1Char(',')));
    QObject::connect(&app, &RibbonSingletonApplication::messageReceived, &app,
                     [](const QString &message) { say("MSG " + encodeForLine(message)); });
    say("STARTING");
    const bool runs = app.initInstance();
    say("INIT " + flag(runs) + ' ' + flag(app.isSecondInstance()) + ' ' + flag(app.isRunning()));
    if (qEnvironmentVariableIsSet(kHold))
        readLineFromStdin();
    app.endInit();
    say("READY");
    if (!runs)
        return 0;
    QSocketNotifier input(STDIN_FILENO, QSocketNotifier::Read);
    QObject::connect(&input, &QSocketNotifier::activated, &app, [&app] {
        char buffer[64];
        if (::read(STDIN_FILENO, buffer, sizeof buffer) <= 0)
            app.quit();
    });
    return app.exec();
}

// A start that only sends: "SENT <result> <elapsed ms>".
int runSender(int argc, char **argv)
{
    RibbonSingletonApplication app(qEnvironmentVariable(kId), argc, argv);
    const QString message = qEnvironmentVariableIsSet(kUnits) ? generatedText(qEnvironmentVariableIntValue(kUnits))
                                                              : QCoreApplication::arguments().join(QLatin1Char(';'));
    QElapsedTimer timer;
    timer.start();
    const bool sent = app.sendMessage(message, qEnvironmentVariableIntValue(kTimeout));
    say("SENT " + flag(sent) + ' ' + QByteArray::number(timer.elapsed()));
    return 0;
}

// Another user (nobody) knocking at the socket given as argument, once for every line on
// stdin: "CONNECT <result>".
int runOtherUser(int argc, char **argv)
{
    constexpr uid_t kNobody = 65534;
    if (argc < 2 || ::setgroups(0, nullptr) != 0 || ::setgid(kNobody) != 0 || ::setuid(kNobody) != 0) {
        say("CONNECT error");
        return 1;
    }
    // Switching users makes the process undumpable, which the leak checker cannot work with.
    ::prctl(PR_SET_DUMPABLE, 1);
    QCoreApplication app(argc, argv);
    char c = 0;
    while (::read(STDIN_FILENO, &c, 1) == 1) {
        if (c != '\n')
            continue;
        QLocalSocket socket;
        socket.connectToServer(QString::fromLocal8Bit(argv[1]));
        say("CONNECT " + flag(socket.waitForConnected(5000)));
    }
    return 0;
}

int runChild(const QByteArray &role, int argc, char **argv)
{
    if (role == "instance")
        return runInstance(argc, argv);
    if (role == "send")
        return runSender(argc, argv);
    if (role == "other-user")
        return runOtherUser(argc, argv);
    return 2;
}

// ---- The test side -------------------------------------------------------------------

// A running copy of the test program and the lines it printed.
class Child
{
public:
    Child(const QProcessEnvironment &env, const QStringList &args)
    {
        m_process.setProcessEnvironment(env);
        m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_process.start(QCoreApplication::applicationFilePath(), args);
    }

    ~Child()
    {
        if (m_process.state() != QProcess::NotRunning) {
            m_process.kill();
            m_process.waitForFinished(kPatienceMs);
        }
    }

    qint64 pid() const { return m_process.processId(); }
    QProcess &process() { return m_process; }

    // Waits for the next line starting with prefix and returns the rest of it; a null
    // string when none came within the time.
    QString next(const QString &prefix, int timeout = kPatienceMs)
    {
        QDeadlineTimer deadline(timeout);
        forever {
            for (int i = 0; i < m_lines.size(); ++i) {
                if (m_lines.at(i).startsWith(prefix))
                    return m_lines.takeAt(i).mid(prefix.size());
            }
            if (deadline.hasExpired() || !readMore(deadline))
                return QString();
        }
    }

    // The messages the child received, in order, up to and including the last one.
    QStringList messagesUntil(const QString &last)
    {
        QStringList messages;
        do {
            const QString line = next(QStringLiteral("MSG "));
            if (line.isNull())
                break;
            messages << decodeLine(line);
        } while (messages.constLast() != last);
        return messages;
    }

    // Ends a host as a user would, by closing its input.
    bool quit()
    {
        m_process.closeWriteChannel();
        return finishedNormally();
    }

    bool finishedNormally()
    {
        return m_process.waitForFinished(kPatienceMs) && m_process.exitStatus() == QProcess::NormalExit
            && m_process.exitCode() == 0;
    }

private:
    bool readMore(const QDeadlineTimer &deadline)
    {
        // A child that ended may still have lines in the pipe.
        if (!m_process.canReadLine() && !m_process.waitForReadyRead(int(deadline.remainingTime()))
            && !m_process.canReadLine())
            return false;
        while (m_process.canReadLine())
            m_lines << QString::fromLatin1(m_process.readLine()).chopped(1);
        return true;
    }

    QProcess m_process;
    QStringList m_lines;
};

// Whether the receiver closed the connection (it never answers a bad peer).
bool droppedByReceiver(QLocalSocket &socket)
{
    return socket.state() == QLocalSocket::UnconnectedState || socket.waitForDisconnected(kPatienceMs);
}

QFileDevice::Permissions groupAndOthers()
{
    return QFileDevice::ReadGroup | QFileDevice::WriteGroup | QFileDevice::ExeGroup | QFileDevice::ReadOther
        | QFileDevice::WriteOther | QFileDevice::ExeOther;
}

} // namespace

class tst_SingletonApplication : public QObject
{
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> m_runtime;

    static QString program() { return QCoreApplication::applicationFilePath(); }

    QProcessEnvironment environment(const char *role, const QString &id) const
    {
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert(QStringLiteral("XDG_RUNTIME_DIR"), m_runtime->path());
        env.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
        env.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        env.insert(QLatin1String(kRole), QLatin1String(role));
        env.insert(QLatin1String(kId), id);
        return env;
    }

    // The first instance of id, up and receiving; held, it waits between initInstance()
    // and endInit() until it reads a line.
    std::unique_ptr<Child> startFirst(const QString &id, bool held = false) const
    {
        QProcessEnvironment env = environment("instance", id);
        if (held)
            env.insert(QLatin1String(kHold), QStringLiteral("1"));
        auto first = std::make_unique<Child>(env, QStringList());
        if (first->next(QStringLiteral("INIT ")) != QLatin1String("1 0 0")
            || (!held && first->next(QStringLiteral("READY")).isNull()))
            return nullptr;
        return first;
    }

    // A later start of id. It only hands over or runs beside the first; it skips the leak
    // check at exit, which would triple its time under the sanitizers. The receivers and
    // the sending starts keep theirs.
    std::unique_ptr<Child> startLater(const QString &id, const QStringList &args,
                                      const QString &newWindow = QString()) const
    {
        QProcessEnvironment env = environment("instance", id);
        if (!newWindow.isEmpty())
            env.insert(QLatin1String(kNewWindow), newWindow);
        env.insert(QStringLiteral("ASAN_OPTIONS"), env.value(QStringLiteral("ASAN_OPTIONS")) + QStringLiteral(":detect_leaks=0"));
        return std::make_unique<Child>(env, args);
    }

    // A start of id that only calls sendMessage (with a generated text of the given length,
    // or its command line); its result and the milliseconds it took.
    QStringList send(const QString &id, int timeout, const QStringList &args, int units = -1) const
    {
        QProcessEnvironment env = environment("send", id);
        env.insert(QLatin1String(kTimeout), QString::number(timeout));
        if (units >= 0)
            env.insert(QLatin1String(kUnits), QString::number(units));
        Child sender(env, args);
        const QString sent = sender.next(QStringLiteral("SENT "));
        if (!sender.finishedNormally())
            return {};
        return sent.split(QLatin1Char(' '));
    }

    // The sockets in the runtime directory, wherever the library keeps them.
    QStringList sockets() const
    {
        QStringList found;
        QDirIterator it(m_runtime->path(), QDir::AllEntries | QDir::System | QDir::Hidden | QDir::NoDotAndDotDot,
                        QDirIterator::Subdirectories);
        while (it.hasNext()) {
            const QString path = it.next();
            struct stat info;
            if (::lstat(QFile::encodeName(path).constData(), &info) == 0 && S_ISSOCK(info.st_mode))
                found << path;
        }
        return found;
    }

private slots:
    void init()
    {
        m_runtime = std::make_unique<QTemporaryDir>();
        QVERIFY(m_runtime->isValid());
    }

    void cleanup() { m_runtime.reset(); }

    void laterStartHandsOverItsCommandLine()
    {
        struct Case {
            const char *name;
            QString newWindow;
            QStringList args;
            QString message; // what follows the program path; null: nothing sent
        };
        const Case cases[] = {
            {"document", QString(), {"doc.abc"}, ";doc.abc"},
            {"program path alone", QString(), {}, QStringLiteral("")},
            {"listed suffix runs beside", "txt,abc", {"doc.abc"}, QString()},
            {"suffix in another case", "abc", {"doc.ABC"}, ";doc.ABC"},
            {"only the first argument counts", "abc", {"doc.txt", "doc.abc"}, ";doc.txt;doc.abc"},
            {"any text", QString(), {QString::fromUtf8("Grüße \xf0\x9d\x84\x9e.txt"), "a;b", "", "--flag"},
             QString::fromUtf8(";Grüße \xf0\x9d\x84\x9e.txt;a;b;;--flag")},
        };
        // Any text names an application.
        const QString id = QString::fromUtf8("../Édi tor/\xe2\x82\xac");
        auto first = startFirst(id);
        QVERIFY(first);
        QCOMPARE(sockets().size(), 1);

        QStringList expected;
        for (const Case &c : cases) {
            auto later = startLater(id, c.args, c.newWindow);
            const bool handsOver = !c.message.isNull();
            QVERIFY2(later->next(QStringLiteral("INIT ")) == (handsOver ? "0 0 1" : "1 1 1"), c.name);
            QVERIFY2(handsOver ? later->finishedNormally() : later->quit(), c.name);
            if (handsOver)
                expected << program() + c.message;
        }
        // Up to the last case, which hands over, the messages arrived whole, once and in order.
        QCOMPARE(first->messagesUntil(expected.constLast()), expected);
        QVERIFY(first->quit());
        QVERIFY(sockets().isEmpty());
    }

    void endedInstancesLeaveNothingInTheWay()
    {
        const QString id = QStringLiteral("editor");
        // Killed between initInstance() and endInit(): its lock and socket stay behind.
        auto first = startFirst(id, true);
        QVERIFY(first);
        first->process().kill();
        QVERIFY(first->process().waitForFinished(kPatienceMs));
        QCOMPARE(sockets().size(), 1);

        // Killed while running: its socket stays behind.
        auto second = startFirst(id);
        QVERIFY(second);
        second->process().kill();
        QVERIFY(second->process().waitForFinished(kPatienceMs));
        QCOMPARE(sockets().size(), 1);

        // Each time the next start runs as the first instance, and receives.
        auto third = startFirst(id);
        QVERIFY(third);
        auto later = startLater(id, {QStringLiteral("doc.abc")});
        QCOMPARE(later->next(QStringLiteral("INIT ")), QLatin1String("0 0 1"));
        QCOMPARE(third->messagesUntil(program() + QStringLiteral(";doc.abc")).size(), 1);

        // Ended cleanly, it leaves nothing at all.
        QVERIFY(third->quit());
        QVERIFY(sockets().isEmpty());
        QVERIFY(startFirst(id));
    }

    void laterStartsWaitForEndInit()
    {
        const QString id = QStringLiteral("editor");
        auto first = startFirst(id, true);
        QVERIFY(first);
        auto handing = startLater(id, {QStringLiteral("doc.abc")});
        auto beside = startLater(id, {QStringLiteral("doc.abc")}, QStringLiteral("abc"));
        QVERIFY(!handing->next(QStringLiteral("STARTING")).isNull());
        QVERIFY(!beside->next(QStringLiteral("STARTING")).isNull());
        // Their decisions wait for the first to finish initialising; a start that went its
        // own way would decide at once.
        QVERIFY(beside->next(QStringLiteral("INIT "), 500).isNull());
        QVERIFY(handing->next(QStringLiteral("INIT "), 0).isNull());

        first->process().write("go\n");
        QVERIFY(!first->next(QStringLiteral("READY")).isNull());
        QCOMPARE(beside->next(QStringLiteral("INIT ")), QLatin1String("1 1 1"));
        QCOMPARE(handing->next(QStringLiteral("INIT ")), QLatin1String("0 0 1"));
        QCOMPARE(first->messagesUntil(program() + QStringLiteral(";doc.abc")).size(), 1);
        QVERIFY(beside->quit());
        QVERIFY(first->quit());
    }

    void hungInstanceMakesTheSenderGiveUp()
    {
        const QString id = QStringLiteral("editor");
        auto first = startFirst(id);
        QVERIFY(first);
        QCOMPARE(::kill(first->pid(), SIGSTOP), 0);

        // The sender ends after its own time-out, counting the message as delivered.
        const int timeout = 300;
        const QStringList sent = send(id, timeout, {QStringLiteral("late.abc")});
        QCOMPARE(sent.size(), 2);
        QCOMPARE(sent.at(0), QLatin1String("1"));
        QVERIFY2(sent.at(1).toInt() >= timeout - 20, qPrintable(sent.at(1)));
        QVERIFY2(sent.at(1).toInt() < 4000, qPrintable(sent.at(1))); // not the start-up time-out

        // Woken up, the receiver still finds the message the sender left.
        QCOMPARE(::kill(first->pid(), SIGCONT), 0);
        QCOMPARE(first->messagesUntil(program() + QStringLiteral(";late.abc")).size(), 1);
        QVERIFY(first->quit());
    }

    void identifiersStayApart()
    {
        // One identifier initialising does not hold up another.
        auto lower = startFirst(QStringLiteral("editor"), true);
        QVERIFY(lower);
        auto upper = startFirst(QStringLiteral("Editor"));
        QVERIFY(upper);
        lower->process().write("go\n");
        QVERIFY(!lower->next(QStringLiteral("READY")).isNull());
        QCOMPARE(sockets().size(), 2);

        auto toLower = startLater(QStringLiteral("editor"), {QStringLiteral("lower")});
        auto toUpper = startLater(QStringLiteral("Editor"), {QStringLiteral("upper")});
        QVERIFY(toLower->finishedNormally());
        QVERIFY(toUpper->finishedNormally());
        QCOMPARE(lower->messagesUntil(program() + QStringLiteral(";lower")).size(), 1);
        QCOMPARE(upper->messagesUntil(program() + QStringLiteral(";upper")).size(), 1);
        QVERIFY(lower->quit());
        QVERIFY(upper->quit());
    }

    void receiverShrugsOffBadPeers()
    {
        const QString id = QStringLiteral("editor");
        auto first = startFirst(id);
        QVERIFY(first);
        const QString path = sockets().value(0);

        // A peer that starts a message and goes quiet.
        QLocalSocket stalled;
        stalled.connectToServer(path);
        QVERIFY(stalled.waitForConnected(kPatienceMs));
        stalled.write(rawFrame(4, QStringLiteral("ab")));
        QVERIFY(stalled.waitForBytesWritten(kPatienceMs));

        const QByteArray garbage[] = {
            QByteArrayLiteral("GET / HTTP/1.0\r\n\r\n"),
            rawFrame(kMaxUnits + 1, QString()) + QByteArray(64 * 1024, 'x'),
            rawFrame(0xffffffffu, QStringLiteral("x")),
            QByteArray("zRI0") + rawFrame(1, QStringLiteral("x")).mid(4),
        };
        for (const QByteArray &bytes : garbage) {
            QLocalSocket rogue;
            rogue.connectToServer(path);
            QVERIFY(rogue.waitForConnected(kPatienceMs));
            rogue.write(bytes);
            rogue.flush();
            QVERIFY2(droppedByReceiver(rogue), bytes.left(8).toHex().constData());
        }
        {
            QLocalSocket truncated;
            truncated.connectToServer(path);
            QVERIFY(truncated.waitForConnected(kPatienceMs));
            truncated.write(rawFrame(10, QStringLiteral("abc")));
            truncated.flush();
            truncated.disconnectFromServer();
        }

        // The receiver is still at work and answers at once, whatever the others did.
        const int timeout = 3000;
        const QStringList sent = send(id, timeout, {QStringLiteral("doc.abc")});
        QCOMPARE(sent.value(0), QLatin1String("1"));
        QVERIFY2(sent.value(1).toInt() < timeout, qPrintable(sent.value(1)));

        // The largest message there may be, written by hand, arrives whole and is answered.
        const QString largest = generatedText(kMaxUnits);
        QLocalSocket big;
        big.connectToServer(path);
        QVERIFY(big.waitForConnected(kPatienceMs));
        big.write(rawFrame(kMaxUnits, largest));
        QVERIFY(big.waitForReadyRead(kPatienceMs));
        QCOMPARE(big.read(2).size(), 1);

        // One code unit more and the library does not even try.
        QCOMPARE(send(id, timeout, {}, kMaxUnits + 1).value(0), QLatin1String("0"));

        QCOMPARE(first->messagesUntil(largest), (QStringList{program() + QStringLiteral(";doc.abc"), largest}));
        QVERIFY(droppedByReceiver(stalled)); // after its deadline
        QVERIFY(first->quit());
    }

    void onlyTheUserGetsIn()
    {
        auto first = startFirst(QStringLiteral("editor"));
        QVERIFY(first);
        const QString socket = sockets().value(0);
        const QString directory = QFileInfo(socket).path();
        QVERIFY(directory != m_runtime->path()); // a directory of its own
        QVERIFY(!(QFileInfo(directory).permissions() & groupAndOthers()));
        QVERIFY(!(QFileInfo(socket).permissions() & groupAndOthers()));

        if (::geteuid() != 0)
            QSKIP("Connecting as another user needs root to switch users");
        // Open the way down to the library's directory, then each of its own locks in turn:
        // only with both open does a stranger get in.
        const QFileDevice::Permissions open = QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner
            | QFileDevice::ReadOther | QFileDevice::WriteOther | QFileDevice::ExeOther;
        QVERIFY(QFile::setPermissions(m_runtime->path(), open));
        Child stranger(environment("other-user", QString()), {socket});
        const QString layers[] = {QString(), directory, socket};
        for (const QString &layer : layers) {
            if (!layer.isEmpty())
                QVERIFY(QFile::setPermissions(layer, open));
            stranger.process().write("\n");
            QCOMPARE(stranger.next(QStringLiteral("CONNECT ")), layer == socket ? QLatin1String("1") : QLatin1String("0"));
        }
        QVERIFY(stranger.quit());
        QVERIFY(first->quit());
    }
};

int main(int argc, char *argv[])
{
    const QByteArray role = qgetenv(kRole);
    if (!role.isEmpty())
        return runChild(role, argc, argv);
    QCoreApplication app(argc, argv);
    tst_SingletonApplication tc;
    QTEST_SET_MAIN_SOURCE_PATH
    return QTest::qExec(&tc, argc, argv);
}

#include "tst_singletonapplication.moc"
