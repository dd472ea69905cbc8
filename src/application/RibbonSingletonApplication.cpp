#include "RibbonSingletonApplication.h"

#include "RibbonInstanceChannel_p.h"
#include "RibbonPlatform.h"

#include <QFileInfo>
#include <QPointer>
#include <QWidget>

namespace zel {

namespace {

// How long a later start waits for the running process to take its command line.
constexpr int kStartupTimeoutMs = 5000;

} // namespace

class RibbonSingletonApplication::Priv
{
public:
    explicit Priv(const QString &identifier)
        : id(identifier)
        , channel(identifier)
    {
    }

    bool running = false;
    bool secondInstance = false;
    QString id;
    // Start-up lock and message receiver of this identifier.
    RibbonInstanceChannel channel;
    QPointer<QWidget> activationWindow;
    QStringList openInNewWindowExtensions;
    bool activationConnected = false;
};

RibbonSingletonApplication::RibbonSingletonApplication(const QString &id, int &argc, char **argv)
    : RibbonApplication(argc, argv)
    , d(std::make_unique<Priv>(id))
{
    connect(&d->channel, &RibbonInstanceChannel::received, this, &RibbonSingletonApplication::messageReceived);
}

RibbonSingletonApplication::~RibbonSingletonApplication() = default;

bool RibbonSingletonApplication::initInstance()
{
    // Once receiving, this process is the running one; a second call changes nothing.
    if (d->channel.isListening())
        return true;
    d->channel.lock();
    const QStringList args = QCoreApplication::arguments();
    const bool openHere = args.size() >= 2 && d->openInNewWindowExtensions.contains(QFileInfo(args.at(1)).suffix());
    if (openHere) {
        d->running = false;
        d->secondInstance = true;
    } else {
        d->running = sendMessage(args.join(QLatin1Char(';')), kStartupTimeoutMs);
    }
    if (!d->running) {
        // Receives unless another process already does (a process of its own for a
        // listed document runs beside the receiver).
        d->channel.listen();
        if (!d->activationConnected) {
            d->activationConnected = true;
            connect(this, SIGNAL(messageReceived(QString)), this, SLOT(activateWindow()));
        }
    }
    return !d->running;
}

bool RibbonSingletonApplication::endInit()
{
    d->channel.unlock();
    return !d->running;
}

bool RibbonSingletonApplication::isRunning() const
{
    return d->channel.peerIsListening();
}

bool RibbonSingletonApplication::isSecondInstance() const
{
    return d->secondInstance;
}

QString RibbonSingletonApplication::id() const
{
    return d->id;
}

void RibbonSingletonApplication::setOpenInNewWindowExtensions(const QStringList &suffixes)
{
    d->openInNewWindowExtensions = suffixes;
}

QStringList RibbonSingletonApplication::openInNewWindowExtensions() const
{
    return d->openInNewWindowExtensions;
}

void RibbonSingletonApplication::setActivationWindow(QWidget *window)
{
    d->activationWindow = window;
}

QWidget *RibbonSingletonApplication::activationWindow() const
{
    return d->activationWindow;
}

bool RibbonSingletonApplication::sendMessage(const QString &message, int timeout)
{
    return d->channel.send(message, timeout);
}

void RibbonSingletonApplication::activateWindow()
{
    QWidget *window = d->activationWindow;
    if (!window)
        return;
    // A minimised window comes back in the state it had before.
    if (window->isMinimized())
        window->setWindowState(window->windowState() & ~Qt::WindowMinimized);
    window->show();
    RibbonPlatform::bringToFront(window);
}

} // namespace zel
