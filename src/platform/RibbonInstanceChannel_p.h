#pragma once

#include <QObject>
#include <QString>

#include <memory>

class QLocalServer;
class QLockFile;

namespace zel {

// What the processes of one user that run under one application identifier share: a
// start-up lock, so that one of them starts at a time, and a channel over which a later
// start hands a text to the process that receives.
//
// Both are files in a directory that only the user may enter (inside the user's runtime
// directory), named by a hash of the user and the identifier, so that other identifiers
// and other users never meet them. A process that dies leaves nothing in the way: its
// lock file names a dead owner and is taken over, its socket refuses connections and is
// replaced. Where no such directory can be had, nothing is shared and every start runs.
//
// One message per connection, integers little-endian:
//   4 bytes   "zRI1"
//   4 bytes   n, the number of UTF-16 code units of the text (at most kMaxMessageUnits)
//   2n bytes  the text in UTF-16
// The receiver answers a whole message with one byte and closes the connection. Anything
// else (another header, a longer text, a peer that stalls or leaves halfway) makes it
// drop the connection without a word.
class RibbonInstanceChannel : public QObject
{
    Q_OBJECT
public:
    static constexpr quint32 kMaxMessageUnits = 512 * 1024; // 1 MiB of text

    explicit RibbonInstanceChannel(const QString &id, QObject *parent = nullptr);
    ~RibbonInstanceChannel() override;

    // Waits until no other process of this identifier holds the start-up lock, then holds
    // it. Where the lock cannot be made at all, start-up goes on unguarded.
    void lock();
    void unlock();

    // Whether another process receives under this identifier.
    bool peerIsListening() const;

    // Hands the text to the receiving process, waiting at most timeout milliseconds
    // (negative: no limit) for it to take the text. True when a receiver was found, even
    // when it did not answer in time; false when there is none or the text is longer than
    // a message may be. A process that receives itself gets its own text from the event loop.
    bool send(const QString &text, int timeout);

    // Makes this process the receiver unless another process is; removes the socket a
    // dead receiver left. Meant to be called while holding the lock.
    bool listen();
    bool isListening() const;

signals:
    // A whole message, delivered from the event loop of the thread the channel lives in.
    void received(const QString &text);

private:
    void acceptPeers();

    QString m_socketPath;
    std::unique_ptr<QLockFile> m_lock;
    QLocalServer *m_server = nullptr;
    int m_peers = 0;

    Q_DISABLE_COPY(RibbonInstanceChannel)
};

} // namespace zel
