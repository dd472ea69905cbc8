#pragma once

#include "RibbonApplication.h"

#include <QStringList>

#include <memory>

namespace zel {

// An application object that keeps one running process per application identifier (and
// user). A later start of the program hands its command line, the arguments joined with
// ";", to the process already running and ends; the running process emits
// messageReceived with that text and brings its activation window forward. A document
// whose suffix is on the open-in-new-window list gets a process of its own instead.
//
//     RibbonSingletonApplication app(QStringLiteral("org.example.editor"), argc, argv);
//     if (!app.initInstance()) {      // handed over to the running editor
//         app.endInit();
//         return 0;
//     }
//     ... build and show the main window, connect messageReceived ...
//     app.endInit();                  // lets the next start go on
//     return app.exec();
class ZELRIBBON_EXPORT RibbonSingletonApplication : public RibbonApplication
{
    Q_OBJECT
public:
    RibbonSingletonApplication(const QString &id, int &argc, char **argv);
    ~RibbonSingletonApplication() override;

    // The start-up decision. Waits while another start of this identifier is between
    // initInstance() and endInit(). Then, unless the first argument's suffix is on the
    // open-in-new-window list, hands the command line to a running process (waiting up
    // to 5 s for it to take it) and returns false when there was one. True: this process
    // is to run.
    virtual bool initInstance();
    // Lets the next start go on; call it when the main window is up, or before ending
    // when initInstance() returned false. Returns what initInstance() returned.
    bool endInit();

    // Whether another process receives messages under this identifier.
    bool isRunning() const;
    // Whether this process runs because its document's suffix is on the list.
    bool isSecondInstance() const;
    QString id() const;

    // Suffixes, without the dot and compared case-sensitively, of the documents that
    // open in a process of their own.
    void setOpenInNewWindowExtensions(const QStringList &suffixes);
    QStringList openInNewWindowExtensions() const;

    // The window that activateWindow() brings forward; none unless the host sets one.
    void setActivationWindow(QWidget *window);
    QWidget *activationWindow() const;

public slots:
    // Hands the message to the running process, waiting at most timeout milliseconds for
    // it to take it. False when no process receives under this identifier (or the message
    // is longer than 1 MiB); true when one was found, even if it did not answer in time.
    bool sendMessage(const QString &message, int timeout);
    // Brings the activation window forward; initInstance() connects it to
    // messageReceived. Hosts without an activation window override it.
    virtual void activateWindow();

signals:
    // A message from a later start, delivered on the GUI thread.
    void messageReceived(const QString &message);

private:
    class Priv;
    std::unique_ptr<Priv> d;
    Q_DISABLE_COPY(RibbonSingletonApplication)
};

} // namespace zel
