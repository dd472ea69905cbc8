#include "RibbonInstanceChannel_p.h"

#include <QCryptographicHash>
#include <QDeadlineTimer>
#include <QDir>
#include <QFileInfo>
#include <QLocalServer>
#include <QLocalSocket>
#include <QLockFile>
#include <QStandardPaths>
#include <QThread>
#include <QTimer>
#include <QtEndian>

#include <cstring>
#include <limits>

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

namespace zel {

namespace {

constexpr char kMagic[4] = {'z', 'R', 'I', '1'};
constexpr int kHeaderSize = 8;
constexpr char kAck = '\x06';
// Time a peer has to deliver its whole message once the receiver has seen it. A real
// sender writes everything at once, so only a broken or hostile one ever runs into it.
constexpr int kPeerDeadlineMs = 2000;
// Further peers are refused while this many are open; bounds the receiver's memory.
constexpr int kMaxPeers = 16;
// How often a waiting start looks whether the start-up lock has become free.
constexpr int kLockPollMs = 20;
// A live receiver accepts at once; the wait only covers a full connection queue.
constexpr int kProbeTimeoutMs = 1000;

constexpr QFileDevice::Permissions kOwnerOnly = QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner;
constexpr QFileDevice::Permissions kGroupAndOthers = QFileDevice::ReadGroup | QFileDevice::WriteGroup
    | QFileDevice::ExeGroup | QFileDevice::ReadOther | QFileDevice::WriteOther | QFileDevice::ExeOther;

// The user as the file system knows them.
QByteArray userKey()
{
#ifdef Q_OS_UNIX
    return QByteArray::number(qulonglong(::geteuid()));
#else
    return QDir::homePath().toUtf8();
#endif
}

QString shortHash(const QByteArray &data)
{
    return QString::fromLatin1(QCryptographicHash::hash(data, QCryptographicHash::Sha256).toHex().left(24));
}

// The user's own directory for lock files and sockets, refused (empty) when it is not a
// real directory owned by the user and closed to everybody else.
QString privateDirectory()
{
    QString base = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    if (base.isEmpty())
        base = QDir::tempPath();
    const QString path = base + QStringLiteral("/zelRibbon-") + shortHash(userKey());
    if (!QDir().mkpath(path) || QFileInfo(path).isSymLink())
        return QString();
    QFile::setPermissions(path, kOwnerOnly);
    const QFileInfo info(path);
#ifdef Q_OS_UNIX
    if (info.ownerId() != ::geteuid())
        return QString();
#endif
    if (!info.isDir() || (info.permissions() & kGroupAndOthers))
        return QString();
    return path;
}

QByteArray frame(const QString &text)
{
    const quint32 units = quint32(text.size());
    QByteArray bytes(kHeaderSize + 2 * text.size(), Qt::Uninitialized);
    std::memcpy(bytes.data(), kMagic, sizeof kMagic);
    qToLittleEndian<quint32>(units, bytes.data() + 4);
    qToLittleEndian<quint16>(text.utf16(), units, bytes.data() + kHeaderSize);
    return bytes;
}

int remaining(const QDeadlineTimer &deadline)
{
    return int(qMin<qint64>(deadline.remainingTime(), std::numeric_limits<int>::max()));
}

// One connection to the receiver: collects one message, bounded in size and in time,
// with reads that never block.
class Peer : public QObject
{
public:
    Peer(QLocalSocket *socket, RibbonInstanceChannel *channel)
        : QObject(channel)
        , m_socket(socket)
        , m_channel(channel)
    {
        socket->setParent(this);
        m_deadline.setSingleShot(true);
        connect(&m_deadline, &QTimer::timeout, this, [this] {
            // A busy event loop may run the timer before the reads: take what has already
            // arrived before giving up.
            if (!m_done && m_socket->waitForReadyRead(0))
                readAvailable();
            if (!m_done)
                drop();
            deleteLater();
        });
        connect(socket, &QLocalSocket::readyRead, this, &Peer::readAvailable);
        connect(socket, &QLocalSocket::disconnected, this, [this] {
            readAvailable(); // the last bytes may come with the goodbye
            if (!m_done)
                drop();
            deleteLater();
        });
        m_deadline.start(kPeerDeadlineMs);
        readAvailable();
    }

private:
    void readAvailable()
    {
        if (m_done)
            return;
        if (m_buffer.size() < kHeaderSize) {
            m_buffer += m_socket->read(kHeaderSize - m_buffer.size());
            if (m_buffer.size() < kHeaderSize)
                return;
            const quint32 units = qFromLittleEndian<quint32>(m_buffer.constData() + 4);
            if (std::memcmp(m_buffer.constData(), kMagic, sizeof kMagic) != 0
                || units > RibbonInstanceChannel::kMaxMessageUnits) {
                drop();
                return;
            }
            m_units = int(units);
        }
        const int expected = kHeaderSize + 2 * m_units;
        if (m_buffer.size() < expected) {
            m_buffer += m_socket->read(expected - m_buffer.size());
            if (m_buffer.size() < expected)
                return;
        }
        finish();
    }

    void finish()
    {
        m_done = true;
        QString text(m_units, Qt::Uninitialized);
        qFromLittleEndian<quint16>(m_buffer.constData() + kHeaderSize, m_units, text.data());
        m_buffer = QByteArray();
        if (m_socket->state() == QLocalSocket::ConnectedState) {
            // Answered at once, before the host sees the text and whatever it does with it.
            m_socket->write(&kAck, 1);
            m_socket->flush();
            m_socket->disconnectFromServer();
        }
        // Delivered from the event loop, so that a receiver which opens a dialog or
        // deletes things never finds this connection halfway through its work.
        RibbonInstanceChannel *channel = m_channel;
        QMetaObject::invokeMethod(channel, [channel, text] { emit channel->received(text); }, Qt::QueuedConnection);
    }

    void drop()
    {
        m_done = true;
        m_buffer = QByteArray();
        m_socket->abort();
        deleteLater();
    }

    QLocalSocket *m_socket;
    RibbonInstanceChannel *m_channel;
    QTimer m_deadline;
    QByteArray m_buffer;
    int m_units = 0;
    bool m_done = false;
};

} // namespace

RibbonInstanceChannel::RibbonInstanceChannel(const QString &id, QObject *parent)
    : QObject(parent)
{
    const QString dir = privateDirectory();
    if (dir.isEmpty())
        return;
    // The identifier is hashed as UTF-16, so that any text (even a broken one) names its
    // own files; the user is hashed in for directories that several users share.
    const QByteArray key = userKey() + '\n'
        + QByteArray(reinterpret_cast<const char *>(id.utf16()), id.size() * int(sizeof(char16_t)));
    const QString base = dir + QLatin1Char('/') + shortHash(key);
    m_socketPath = base + QStringLiteral(".sock");
    m_lock = std::make_unique<QLockFile>(base + QStringLiteral(".lock"));
    // Held from start-up to the end of initialisation, however long that takes; only a
    // dead owner makes the lock stale.
    m_lock->setStaleLockTime(0);
}

RibbonInstanceChannel::~RibbonInstanceChannel()
{
    // Closing removes the socket file; the lock file goes with the lock.
    delete m_server;
}

void RibbonInstanceChannel::lock()
{
    if (!m_lock || m_lock->isLocked())
        return;
    // QLockFile::lock() would wait up to seconds between its tries; a start that waits for
    // another to finish initialising should follow right after it.
    while (!m_lock->tryLock(0)) {
        if (m_lock->error() != QLockFile::LockFailedError)
            return;
        QThread::msleep(kLockPollMs);
    }
}

void RibbonInstanceChannel::unlock()
{
    if (m_lock)
        m_lock->unlock();
}

bool RibbonInstanceChannel::peerIsListening() const
{
    if (m_server || m_socketPath.isEmpty())
        return false;
    QLocalSocket socket;
    socket.connectToServer(m_socketPath);
    const bool found = socket.waitForConnected(kProbeTimeoutMs);
    socket.abort();
    return found;
}

bool RibbonInstanceChannel::send(const QString &text, int timeout)
{
    if (uint(text.size()) > kMaxMessageUnits)
        return false;
    if (m_server) {
        QMetaObject::invokeMethod(this, [this, text] { emit received(text); }, Qt::QueuedConnection);
        return true;
    }
    if (m_socketPath.isEmpty())
        return false;

    const QDeadlineTimer deadline = timeout < 0 ? QDeadlineTimer(QDeadlineTimer::Forever) : QDeadlineTimer(timeout);
    QLocalSocket socket;
    socket.connectToServer(m_socketPath);
    if (!socket.waitForConnected(remaining(deadline)))
        return false;
    // From here on the receiver was found: the message counts as handed over whether it
    // answers in time or not.
    socket.write(frame(text));
    while (socket.bytesToWrite() > 0 && socket.waitForBytesWritten(remaining(deadline))) {
    }
    if (socket.bytesToWrite() == 0)
        socket.waitForReadyRead(remaining(deadline));
    socket.abort();
    return true;
}

bool RibbonInstanceChannel::listen()
{
    if (m_server)
        return true;
    if (m_socketPath.isEmpty() || peerIsListening())
        return false;
    // Nobody answers on the socket a dead receiver left behind.
    QLocalServer::removeServer(m_socketPath);
    auto *server = new QLocalServer(this);
    server->setSocketOptions(QLocalServer::UserAccessOption);
    if (!server->listen(m_socketPath)) {
        delete server;
        return false;
    }
    m_server = server;
    connect(server, &QLocalServer::newConnection, this, &RibbonInstanceChannel::acceptPeers);
    return true;
}

bool RibbonInstanceChannel::isListening() const
{
    return m_server != nullptr;
}

void RibbonInstanceChannel::acceptPeers()
{
    while (QLocalSocket *socket = m_server->nextPendingConnection()) {
        if (m_peers >= kMaxPeers) {
            socket->abort();
            socket->deleteLater();
            continue;
        }
        ++m_peers;
        auto *peer = new Peer(socket, this);
        connect(peer, &QObject::destroyed, this, [this] { --m_peers; });
    }
}

} // namespace zel
