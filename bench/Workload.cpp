#include "Workload.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QPainter>
#include <QPixmap>
#include <QResizeEvent>
#include <QTimer>
#include <QVector>
#include <QWidget>
#include <QWindow>

namespace bench {

Workload workload(const QString &name)
{
    Workload w;
    w.name = name;
    if (name == QLatin1String("S")) {
        w.tabs = 5; w.groups = 6; w.commands = 8;
    } else if (name == QLatin1String("M")) {
        w.tabs = 20; w.groups = 10; w.commands = 12;
    } else if (name == QLatin1String("L")) {
        // Fewer repetitions keep the largest workload within a few minutes on two cores.
        w.tabs = 50; w.groups = 10; w.commands = 20;
        w.repetitions = 40;
        w.popupRepetitions = 10;
    }
    return w;
}

QVector<Slot> groupSlots(int commands, int groupIndex)
{
    // A quarter large, half small (automatic rows), the rest cycling through medium,
    // menu, button group, combo and check box; the cycle starts at a different place in
    // each group so every kind of control appears throughout the workload.
    static const Slot rest[] = {Slot::Medium, Slot::Menu, Slot::Group, Slot::Combo, Slot::Check};
    QVector<Slot> mix;
    const int large = (commands + 2) / 4;
    const int small = commands / 2;
    for (int i = 0; i < large; ++i)
        mix << Slot::Large;
    for (int i = 0; i < commands - large - small; ++i)
        mix << rest[(groupIndex + i) % 5];
    for (int i = 0; i < small; ++i)
        mix << Slot::Small;
    // Once per tab, two of the small buttons are a small colour button and a medium
    // palette menu.
    if (groupIndex == 0 && small >= 2) {
        const int firstSmall = commands - small;
        mix[firstSmall] = Slot::Color;
        mix[firstSmall + 1] = Slot::Palette;
    }
    return mix;
}

int buttonsOf(Slot slot)
{
    return slot == Slot::Group ? 3 : 1;
}

int tabExtraButtons()
{
    return galleryTiles + 1; // the gallery's tiles and its menu button
}

const QIcon &icon(int index)
{
    static QVector<QIcon> icons;
    if (icons.isEmpty()) {
        const QColor colours[] = {QColor(0x2b, 0x6c, 0xc4), QColor(0x3a, 0x9a, 0x4a), QColor(0xe0, 0x7a, 0x1f),
                                  QColor(0xc8, 0x3a, 0x3a), QColor(0x7a, 0x4f, 0xb5), QColor(0x1f, 0x96, 0x9a)};
        for (int i = 0; i < 6; ++i) {
            QIcon ic;
            for (int extent : {16, 32}) {
                QPixmap pm(extent, extent);
                pm.fill(Qt::transparent);
                QPainter p(&pm);
                p.setRenderHint(QPainter::Antialiasing);
                p.setBrush(colours[i]);
                p.setPen(colours[i].darker(140));
                const int m = extent / 8;
                if (i % 2)
                    p.drawEllipse(m, m, extent - 2 * m, extent - 2 * m);
                else
                    p.drawRoundedRect(m, m, extent - 2 * m, extent - 2 * m, 2, 2);
                p.end();
                ic.addPixmap(pm);
            }
            icons << ic;
        }
    }
    return icons.at(index % icons.size());
}

void settle()
{
    // A resize posts layout requests, those post resizes and updates; a few rounds
    // reach the end of the paint.
    for (int i = 0; i < 4; ++i) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

bool waitFor(const std::function<bool()> &done, int timeoutMs)
{
    QElapsedTimer t;
    t.start();
    // Waits without spinning; the ticks bring the wait back to look at the clock.
    QTimer tick;
    tick.start(5);
    while (!done()) {
        if (t.elapsed() > timeoutMs)
            return false;
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    return true;
}

namespace {

// Remembers the last size the window system reported for a window.
class ReportedSize : public QObject
{
public:
    QSize size;
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Resize)
            size = static_cast<QResizeEvent *>(event)->size();
        return false;
    }
};

int timeOuts = 0;

} // namespace

void showAndSettle(QWidget *window)
{
    QElapsedTimer t;
    t.start();
    window->show();
    const qint64 shown = t.nsecsElapsed();
    QWindow *handle = window->windowHandle();
    if (!waitFor([handle] { return handle->isExposed(); }, 5000))
        ++timeOuts;
    const qint64 exposed = t.nsecsElapsed();
    settle();
    if (qEnvironmentVariableIsSet("BENCH_DEBUG"))
        qWarning("show %.2f ms, exposed after %.2f ms, settled after %.2f ms", shown / 1e6, exposed / 1e6,
                 t.nsecsElapsed() / 1e6);
}

void resizeAndSettle(QWidget *window, int width)
{
    QWindow *handle = window->windowHandle();
    ReportedSize reported;
    handle->installEventFilter(&reported);
    const int before = window->width();
    window->resize(width, window->height());
    // The window system confirms the new size (under a window manager after a round
    // trip through it); the paint that follows it is part of the step. The window may
    // have kept another width than asked, within its minimum and maximum.
    const int taken = window->width();
    if (taken != before
        && !waitFor([&reported, taken] { return reported.size.width() == taken; }, 500))
        ++timeOuts;
    handle->removeEventFilter(&reported);
    settle();
}

int waitTimeOuts()
{
    return timeOuts;
}

} // namespace bench
