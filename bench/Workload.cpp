#include "Workload.h"

#include <QCoreApplication>
#include <QPainter>
#include <QPixmap>
#include <QVector>

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

} // namespace bench
