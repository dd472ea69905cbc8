// Benchmark of the ribbon against a plain-Qt floor in the same run.
//
// Without arguments the program runs every workload and kind in a fresh child process
// (so that the peak resident memory belongs to one workload and kind), prints a table
// and writes the figures as CSV. With --workload W --kind K it is such a child and
// prints its figures as "key=value" lines.

#include "Workload.h"

#include "RibbonApplication.h"
#include "RibbonWindowBorder.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QElapsedTimer>
#include <QFile>
#include <QMap>
#include <QProcess>
#include <QTextStream>
#include <QWidget>
#include <QWindow>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <ctime>
#include <numeric>

namespace {

using namespace bench;

qint64 statusKb(const char *key)
{
    QFile f(QStringLiteral("/proc/self/status"));
    if (!f.open(QIODevice::ReadOnly))
        return -1;
    const QByteArray k(key);
    for (const QByteArray &line : f.readAll().split('\n')) {
        if (line.startsWith(k))
            return line.mid(k.size()).trimmed().split(' ').value(0).toLongLong();
    }
    return -1;
}

double ms(const QElapsedTimer &t)
{
    return t.nsecsElapsed() / 1e6;
}

// Processor time of this thread so far: unlike the wall clock it leaves out the time the
// process waited for a processor, which dominates on a loaded machine (and the time the
// window system takes, which the wall clock is there for).
double cpuMs()
{
    timespec ts{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &ts);
    return ts.tv_sec * 1e3 + ts.tv_nsec / 1e6;
}

// Wall-clock and processor times of a series of steps.
struct Steps
{
    QVector<double> wall;
    QVector<double> cpu;
};

double median(QVector<double> v)
{
    if (v.isEmpty())
        return -1;
    std::sort(v.begin(), v.end());
    const int n = v.size();
    return n % 2 ? v.at(n / 2) : (v.at(n / 2 - 1) + v.at(n / 2)) / 2;
}

// Median, mean and worst of a series of steps, as key_ms, key_mean_ms, key_worst_ms, and
// the median processor time as key_cpu_ms.
void putSteps(QMap<QString, double> &out, const QString &key, const Steps &steps)
{
    const QVector<double> &v = steps.wall;
    if (v.isEmpty())
        return;
    out[key + QLatin1String("_cpu_ms")] = median(steps.cpu);
    out[key + QLatin1String("_ms")] = median(v);
    out[key + QLatin1String("_mean_ms")] = std::accumulate(v.cbegin(), v.cend(), 0.0) / v.size();
    out[key + QLatin1String("_worst_ms")] = *std::max_element(v.cbegin(), v.cend());
}

// Counts paint events while debugging the measures (BENCH_DEBUG set): every measured
// step must end with its paint done.
class PaintCounter : public QObject
{
public:
    int paints = 0;
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            ++paints;
        return false;
    }
};

// Kept out of line so a profiler can collect exactly these two phases
// (valgrind --toggle-collect='*benchResizeSteps*').
Q_NEVER_INLINE Steps benchResizeSteps(Kind &kind, int repetitions, int narrow, int wide)
{
    Steps steps;
    QWidget *w = kind.window();
    for (int i = 0; i < repetitions; ++i) {
        QElapsedTimer t;
        t.start();
        const double cpu = cpuMs();
        resizeAndSettle(w, i % 2 ? wide : narrow);
        steps.cpu << cpuMs() - cpu;
        steps.wall << ms(t);
    }
    return steps;
}

Q_NEVER_INLINE Steps benchTabSwitches(Kind &kind, int repetitions)
{
    // Cycle through four tabs: these pages have been shown before, as in a session.
    Steps steps;
    for (int i = 0; i < repetitions; ++i) {
        QElapsedTimer t;
        t.start();
        const double cpu = cpuMs();
        kind.switchTab((i + 1) % 4);
        steps.cpu << cpuMs() - cpu;
        steps.wall << ms(t);
    }
    return steps;
}

// The offscreen platform reports every window feature it lacks; that is noise here.
void quietHandler(QtMsgType type, const QMessageLogContext &, const QString &msg)
{
    if (type == QtDebugMsg || type == QtInfoMsg || msg.startsWith(QLatin1String("This plugin does not support"))
        || msg.startsWith(QLatin1String("QStandardPaths:")))
        return;
    std::fprintf(stderr, "%s\n", qPrintable(msg));
}

int child(const QString &workloadName, const QString &kindName, const QString &only, int narrow, int wide,
          int showWidth)
{
    Workload w = workload(workloadName);
    if (showWidth > 0)
        w.showWidth = showWidth;
    if (!w.tabs) {
        std::fprintf(stderr, "unknown workload %s\n", qPrintable(workloadName));
        return 2;
    }
    std::unique_ptr<Kind> kind = kindName == QLatin1String("floor") ? makeFloorKind() : makeRibbonKind();
    QMap<QString, double> out;

    icon(0); // the shared icons are not part of any measure
    int buttons = 0;
    for (int g = 0; g < w.groups; ++g)
        for (Slot s : groupSlots(w.commands, g))
            buttons += buttonsOf(s);
    buttons += tabExtraButtons();
    buttons *= w.tabs;
    out[QStringLiteral("buttons")] = buttons;

    const qint64 rssStart = statusKb("VmRSS:");
    const int widgetsStart = QApplication::allWidgets().size();

    QElapsedTimer t;
    t.start();
    kind->buildActions(w);
    out[QStringLiteral("build_ms")] = ms(t);
    const qint64 rssBuilt = statusKb("VmRSS:");
    out[QStringLiteral("rss_actions_per_button_kb")] = double(rssBuilt - rssStart) / buttons;

    t.start();
    const double showCpu = cpuMs();
    kind->createAndShow(w);
    out[QStringLiteral("show_ms")] = ms(t);
    out[QStringLiteral("show_cpu_ms")] = cpuMs() - showCpu;

    const qint64 rssShown = statusKb("VmRSS:");
    out[QStringLiteral("shown_px")] = kind->window()->width();
    out[QStringLiteral("widgets")] = QApplication::allWidgets().size() - widgetsStart;
    out[QStringLiteral("rss_per_button_kb")] = double(rssShown - rssStart) / buttons;

    // The resize step runs between a narrow and a wide width. The ribbon window cannot
    // be narrower than its tab row, which grows with the number of tabs: the narrow width
    // is then the narrowest the window takes, and the floor (which accepts any width) is
    // given the same pair by the parent.
    QWidget *win = kind->window();
    if (narrow <= 0) {
        resizeAndSettle(win, 600);
        narrow = qMax(600, win->width());
        wide = qMax(1600, narrow + 1000);
    }
    out[QStringLiteral("narrow_px")] = narrow;
    out[QStringLiteral("wide_px")] = wide;
    resizeAndSettle(win, narrow);
    resizeAndSettle(win, wide);

    const QStringList measures = only.split(QLatin1Char(','), Qt::SkipEmptyParts);
    const auto measured = [&measures](const char *name) {
        return measures.isEmpty() || measures.contains(QLatin1String(name));
    };
    if (measured("resize"))
        putSteps(out, QStringLiteral("resize"), benchResizeSteps(*kind, w.repetitions, narrow, wide));
    if (measured("switch")) {
        kind->switchTab(1); kind->switchTab(2); kind->switchTab(3); kind->switchTab(0);
        putSteps(out, QStringLiteral("switch"), benchTabSwitches(*kind, w.repetitions));
    }

    if (measured("popups")) {
        kind->switchTab(0);
        resizeAndSettle(kind->window(), narrow);
        out[QStringLiteral("folded_at_narrow")] = kind->foldedCount();
        QVector<double> open, close;
        PaintCounter counter;
        if (qEnvironmentVariableIsSet("BENCH_DEBUG"))
            qApp->installEventFilter(&counter);
        for (int i = 0; i < w.popupRepetitions; ++i) {
            t.start();
            if (!kind->openFoldedPopup())
                break;
            open << ms(t);
            t.start();
            kind->closeFoldedPopup();
            close << ms(t);
        }
        if (qEnvironmentVariableIsSet("BENCH_DEBUG"))
            qWarning("paint events during %d folded popups: %d", int(open.size()), counter.paints);
        out[QStringLiteral("folded_popup_open_ms")] = median(open);
        out[QStringLiteral("folded_popup_close_ms")] = median(close);

        resizeAndSettle(kind->window(), wide);
        kind->prepareMinimised();
        open.clear();
        close.clear();
        for (int i = 0; i < w.popupRepetitions; ++i) {
            t.start();
            kind->openMinimisedPopup(i % 2);
            open << ms(t);
            t.start();
            kind->closeMinimisedPopup();
            close << ms(t);
        }
        out[QStringLiteral("minimised_popup_open_ms")] = median(open);
        out[QStringLiteral("minimised_popup_close_ms")] = median(close);
    }

    out[QStringLiteral("peak_rss_mb")] = statusKb("VmHWM:") / 1024.0;
    out[QStringLiteral("wait_timeouts")] = waitTimeOuts();
    for (auto it = out.cbegin(); it != out.cend(); ++it)
        std::printf("%s=%.4f\n", qPrintable(it.key()), it.value());
    std::fflush(stdout);
    return 0;
}

// Paints the shadow border of a window while another window of the application is
// active, with that many more widgets in the application: "border_paint_ms" is the median
// time of one paint of all its strips. The cost must not depend on the widget count.
Q_NEVER_INLINE int borderChild(int widgets, int repetitions)
{
    QWidget filler; // never shown; its children only make the application bigger
    for (int i = 0; i < widgets; ++i)
        new QWidget(&filler);

    QWidget window(nullptr, Qt::FramelessWindowHint);
    window.setGeometry(200, 200, 800, 600);
    new zel::RibbonWindowBorder(&window, false);
    showAndSettle(&window);
    QWidget other;
    other.setGeometry(100, 100, 300, 200);
    showAndSettle(&other);
    QApplication::setActiveWindow(&other);
    settle();

    QWidgetList strips;
    for (QWidget *w : QApplication::topLevelWidgets()) {
        if (w->objectName() == QLatin1String("BorderItem") && w->isVisible())
            strips << w;
    }
    // Under a window manager the strips appear a little after their window.
    const auto exposed = [&strips] {
        return int(std::count_if(strips.cbegin(), strips.cend(),
                                 [](QWidget *w) { return w->windowHandle() && w->windowHandle()->isExposed(); }));
    };
    waitFor([&] { return exposed() == strips.size(); }, 3000);
    settle();

    QVector<double> times;
    for (int i = 0; i < repetitions; ++i) {
        QElapsedTimer t;
        t.start();
        for (QWidget *strip : qAsConst(strips))
            strip->repaint();
        times << ms(t);
    }
    std::printf("border_paint_ms=%.4f\nborder_strips=%d\nborder_strips_exposed=%d\nwidgets=%d\nwindow_active=%d\n",
                median(times), int(strips.size()), exposed(), int(QApplication::allWidgets().size()),
                int(window.isActiveWindow()));
    std::fflush(stdout);
    return 0;
}

struct Metric
{
    const char *key;
    const char *label;
    bool time;
};

const Metric metrics[] = {
    {"build_ms", "build action tree (ms)", true},
    {"show_ms", "create + add tabs + show to first paint (ms)", true},
    {"show_cpu_ms", "  the same, processor time (ms)", true},
    {"resize_ms", "resize step wide<->narrow, median (ms)", true},
    {"resize_mean_ms", "resize step, mean (ms)", true},
    {"resize_worst_ms", "resize step, worst (ms)", true},
    {"resize_cpu_ms", "resize step, processor time, median (ms)", true},
    {"switch_ms", "tab switch, median (ms)", true},
    {"switch_mean_ms", "tab switch, mean (ms)", true},
    {"switch_worst_ms", "tab switch, worst (ms)", true},
    {"switch_cpu_ms", "tab switch, processor time, median (ms)", true},
    {"folded_popup_open_ms", "folded group popup open, median (ms)", true},
    {"folded_popup_close_ms", "folded group popup close, median (ms)", true},
    {"minimised_popup_open_ms", "minimised ribbon popup open, median (ms)", true},
    {"minimised_popup_close_ms", "minimised ribbon popup close, median (ms)", true},
    {"peak_rss_mb", "peak resident memory (MB)", false},
    {"rss_per_button_kb", "resident memory per button (KB)", false},
    {"rss_actions_per_button_kb", "  of which the action tree (KB)", false},
    {"widgets", "widgets created", false},
    {"folded_at_narrow", "groups folded at the narrow width", false},
    {"shown_px", "window width when shown (px)", false},
    {"narrow_px", "narrow width of the resize step (px)", false},
    {"wide_px", "wide width of the resize step (px)", false},
};

QMap<QString, double> runProcess(const QString &self, const QStringList &args)
{
    QProcess p;
    p.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    p.start(self, args);
    p.waitForFinished(-1);
    QMap<QString, double> r;
    for (const QByteArray &line : p.readAllStandardOutput().split('\n')) {
        const int eq = line.indexOf('=');
        if (eq > 0)
            r[QString::fromLatin1(line.left(eq))] = line.mid(eq + 1).toDouble();
    }
    if (p.exitCode() != 0 || r.isEmpty())
        std::fprintf(stderr, "child %s failed (exit %d)\n", qPrintable(args.join(QLatin1Char(' '))), p.exitCode());
    return r;
}

QMap<QString, double> runChild(const QString &self, const QString &wl, const QString &kind, const QString &only,
                               int narrow = 0, int wide = 0, int shown = 0)
{
    QStringList args{QStringLiteral("--workload"), wl, QStringLiteral("--kind"), kind};
    if (!only.isEmpty())
        args << QStringLiteral("--only") << only;
    if (narrow > 0)
        args << QStringLiteral("--narrow") << QString::number(narrow) << QStringLiteral("--wide") << QString::number(wide);
    if (shown > 0)
        args << QStringLiteral("--shown-width") << QString::number(shown);
    return runProcess(self, args);
}

// Least-squares slope of log(value) against log(buttons).
double exponent(const QVector<double> &x, const QVector<double> &y)
{
    double sx = 0, sy = 0, sxx = 0, sxy = 0;
    int n = 0;
    for (int i = 0; i < x.size(); ++i) {
        if (x.at(i) <= 0 || y.at(i) <= 0)
            continue;
        const double lx = std::log(x.at(i)), ly = std::log(y.at(i));
        sx += lx; sy += ly; sxx += lx * lx; sxy += lx * ly;
        ++n;
    }
    if (n < 2)
        return NAN;
    return (n * sxy - sx * sy) / (n * sxx - sx * sx);
}

// Per figure, the median over several runs: a single show or build is one sample only
// and the machine may be shared.
QMap<QString, double> medianOf(const QList<QMap<QString, double>> &runs)
{
    QMap<QString, double> out;
    if (runs.isEmpty())
        return out;
    for (auto it = runs.first().cbegin(); it != runs.first().cend(); ++it) {
        QVector<double> values;
        for (const auto &r : runs)
            values << r.value(it.key(), -1);
        out[it.key()] = median(values);
    }
    return out;
}

int parent(const QStringList &workloads, const QString &csvPath, int runs, const QString &only)
{
    const QString self = QCoreApplication::applicationFilePath();
    QMap<QString, QMap<QString, double>> ribbon, floor;
    for (const QString &wl : workloads) {
        std::fprintf(stderr, "running %s ...\n", qPrintable(wl));
        QList<QMap<QString, double>> r, f;
        // Alternate the kinds so that a burst of load hits both alike.
        for (int i = 0; i < runs; ++i) {
            r << runChild(self, wl, QStringLiteral("ribbon"), only);
            f << runChild(self, wl, QStringLiteral("floor"), only, int(r.last().value(QStringLiteral("narrow_px"))),
                          int(r.last().value(QStringLiteral("wide_px"))), int(r.last().value(QStringLiteral("shown_px"))));
        }
        ribbon[wl] = medianOf(r);
        floor[wl] = medianOf(f);
    }

    QFile csv(csvPath);
    const bool writeCsv = csv.open(QIODevice::WriteOnly | QIODevice::Truncate);
    QTextStream cs(&csv);
    cs << "workload,buttons,metric,zelRibbon,floor,ratio\n";
    for (const QString &wl : workloads) {
        const Workload w = workload(wl);
        std::printf("\nWorkload %s: %d tabs x %d groups x %d commands = %.0f buttons (repetitions %d, popups %d,"
                    " median of %d processes)\n",
                    qPrintable(wl), w.tabs, w.groups, w.commands, ribbon[wl].value(QStringLiteral("buttons")),
                    w.repetitions, w.popupRepetitions, runs);
        std::printf("  %-46s %12s %12s %8s\n", "measure", "zelRibbon", "floor", "ratio");
        for (const Metric &m : metrics) {
            const QString key = QString::fromLatin1(m.key);
            if (!ribbon[wl].contains(key) && !floor[wl].contains(key))
                continue;
            const double a = ribbon[wl].value(key, -1), b = floor[wl].value(key, -1);
            const double ratio = b > 0 && a >= 0 ? a / b : NAN;
            std::printf("  %-46s %12.3f %12.3f %8.2f\n", m.label, a, b, ratio);
            cs << wl << ',' << ribbon[wl].value(QStringLiteral("buttons")) << ',' << key << ','
               << a << ',' << b << ',' << ratio << '\n';
        }
    }
    if (workloads.size() >= 2) {
        std::printf("\nGrowth exponent (slope of log(time) over log(buttons), %s):\n",
                    qPrintable(workloads.join(QLatin1Char('/'))));
        std::printf("  %-46s %12s %12s\n", "measure", "zelRibbon", "floor");
        for (const Metric &m : metrics) {
            if (!m.time && QLatin1String(m.key) != QLatin1String("peak_rss_mb")
                && QLatin1String(m.key) != QLatin1String("widgets"))
                continue;
            const QString key = QString::fromLatin1(m.key);
            if (!ribbon[workloads.first()].contains(key))
                continue;
            QVector<double> x, yr, yf;
            for (const QString &wl : workloads) {
                x << ribbon[wl].value(QStringLiteral("buttons"));
                yr << ribbon[wl].value(key, -1);
                yf << floor[wl].value(key, -1);
            }
            const double er = exponent(x, yr), ef = exponent(x, yf);
            std::printf("  %-46s %12.2f %12.2f\n", m.label, er, ef);
            cs << "growth,," << key << ',' << er << ',' << ef << ",\n";
        }
    }

    // The shadow border painted while another window is active, in a small and a large
    // application: the exponent must stay near 0.
    const int borderWidgets[] = {1000, 10000};
    QVector<double> bx, by;
    std::printf("\nShadow border, all eight strips painted while another window is active (median of %d processes):\n",
                runs);
    std::printf("  %-46s %12s\n", "widgets in the application", "paint (ms)");
    for (int n : borderWidgets) {
        QList<QMap<QString, double>> b;
        for (int i = 0; i < runs; ++i)
            b << runProcess(self, {QStringLiteral("--border-widgets"), QString::number(n)});
        const QMap<QString, double> m = medianOf(b);
        bx << m.value(QStringLiteral("widgets"));
        by << m.value(QStringLiteral("border_paint_ms"), -1);
        std::printf("  %-46.0f %12.4f\n", bx.last(), by.last());
        cs << "border," << bx.last() << ",border_paint_ms," << by.last() << ",,\n";
    }
    const double eb = exponent(bx, by);
    std::printf("  %-46s %12.2f\n", "growth exponent over the widget count", eb);
    cs << "growth,,border_paint_ms," << eb << ",,\n";

    std::fflush(stdout);
    if (writeCsv)
        std::fprintf(stderr, "\nwrote %s\n", qPrintable(csvPath));
    return 0;
}

} // namespace

// The figures of one CSV written by parent(): ratio per workload and metric, and the
// zelRibbon growth exponent per metric.
struct CsvFigures
{
    QMap<QString, QMap<QString, double>> ratio; // workload -> metric -> ratio
    QMap<QString, double> growth;              // metric -> exponent
    QStringList workloads;
};

CsvFigures readCsv(const QString &path)
{
    CsvFigures f;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return f;
    QTextStream in(&file);
    in.readLine(); // header
    while (!in.atEnd()) {
        const QStringList cells = in.readLine().split(QLatin1Char(','));
        if (cells.size() < 6)
            continue;
        if (cells.at(0) == QLatin1String("growth")) {
            f.growth[cells.at(2)] = cells.at(3).toDouble();
        } else if (cells.at(0) != QLatin1String("border")) {
            if (!f.workloads.contains(cells.at(0)))
                f.workloads << cells.at(0);
            f.ratio[cells.at(0)][cells.at(2)] = cells.at(5).toDouble();
        }
    }
    return f;
}

// One cell of the targets table: "met: a / b / c", "missed: a / b / c", or the ratios
// followed by the workloads that missed.
QString targetCell(const CsvFigures &f, const char *metric, double limit)
{
    QStringList values, missed;
    for (const QString &wl : f.workloads) {
        const double r = f.ratio.value(wl).value(QLatin1String(metric), NAN);
        if (std::isnan(r))
            continue;
        values << QString::number(r, 'f', 2);
        if (r > limit)
            missed << wl;
    }
    if (values.isEmpty())
        return QStringLiteral("not measured");
    const QString joined = values.join(QStringLiteral(" / "));
    if (missed.isEmpty())
        return QStringLiteral("met: ") + joined;
    if (missed.size() == values.size())
        return QStringLiteral("missed: ") + joined;
    return joined + QStringLiteral(", missed at ") + missed.join(QStringLiteral(", "));
}

QString growthCell(const CsvFigures &f)
{
    QString worstKey;
    double worst = -INFINITY;
    for (const Metric &m : metrics) {
        const double e = f.growth.value(QLatin1String(m.key), NAN);
        if (!m.time || std::isnan(e))
            continue;
        if (e > worst) {
            worst = e;
            worstKey = QLatin1String(m.label).trimmed();
        }
    }
    if (worstKey.isEmpty())
        return QStringLiteral("not measured");
    const QString figure = QString::number(worst, 'f', 2);
    return worst <= 1.0 ? QStringLiteral("met (≤ ") + figure + QLatin1Char(')')
                        : QStringLiteral("missed by ") + worstKey + QStringLiteral(": ") + figure;
}

// The targets table of the README from the CSVs of the offscreen run and of the X run.
int summary(const QString &offscreenCsv, const QString &xCsv)
{
    const CsvFigures off = readCsv(offscreenCsv), x = readCsv(xCsv);
    struct Target
    {
        const char *label;
        const char *metric;
        double limit;
    };
    const Target targets[] = {
        {"show to first paint ≤ 1.0 ×", "show_ms", 1.0},
        {"resize step median ≤ 1.0 ×", "resize_ms", 1.0},
        {"resize worst step ≤ 2 × the floor's worst", "resize_worst_ms", 2.0},
        {"tab switch ≤ 0.6 ×", "switch_ms", 0.6},
        {"memory per command ≤ 1.1 ×", "rss_per_button_kb", 1.1},
    };
    const auto slashed = [](const CsvFigures &f) { return f.workloads.join(QStringLiteral(" / ")); };
    QTextStream out(stdout);
    out << "| target | offscreen " << slashed(off) << " | under X " << slashed(x) << " |\n|---|---|---|\n";
    for (const Target &t : targets)
        out << "| " << QString::fromUtf8(t.label) << " | " << targetCell(off, t.metric, t.limit) << " | "
            << targetCell(x, t.metric, t.limit) << " |\n";
    out << "| nothing above linear | " << growthCell(off) << " | " << growthCell(x) << " |\n";
    return 0;
}

int main(int argc, char *argv[])
{
    QStringList args;
    for (int i = 0; i < argc; ++i)
        args << QString::fromLocal8Bit(argv[i]);
    QCommandLineParser parser;
    parser.addOption({QStringLiteral("workload"), QStringLiteral("Child: workload S, M or L."), QStringLiteral("W")});
    parser.addOption({QStringLiteral("kind"), QStringLiteral("Child: ribbon or floor."), QStringLiteral("K")});
    parser.addOption({QStringLiteral("only"),
                      QStringLiteral("Only these measures besides build and show, comma separated: resize, switch, popups."),
                      QStringLiteral("M")});
    parser.addOption({QStringLiteral("border-widgets"),
                      QStringLiteral("Child: paint the shadow border with this many widgets in the application."),
                      QStringLiteral("N")});
    parser.addOption({QStringLiteral("narrow"), QStringLiteral("Child: narrow width of the resize step."), QStringLiteral("PX")});
    parser.addOption({QStringLiteral("wide"), QStringLiteral("Child: wide width of the resize step."), QStringLiteral("PX")});
    parser.addOption({QStringLiteral("shown-width"), QStringLiteral("Child: width the window is shown at."), QStringLiteral("PX")});
    parser.addOption({QStringLiteral("workloads"), QStringLiteral("Workloads to run, comma separated (S,M,L)."),
                      QStringLiteral("LIST"), QStringLiteral("S,M,L")});
    parser.addOption({QStringLiteral("csv"), QStringLiteral("CSV output file."), QStringLiteral("FILE"),
                      QStringLiteral("bench-results.csv")});
    parser.addOption({QStringLiteral("runs"), QStringLiteral("Fresh processes per workload and kind."),
                      QStringLiteral("N"), QStringLiteral("3")});
    parser.addOption({QStringLiteral("summary"),
                      QStringLiteral("Print the targets table from the CSVs of an offscreen and an X run, comma separated."),
                      QStringLiteral("CSV,CSV")});
    parser.addHelpOption();
    parser.process(args);

    if (parser.isSet(QStringLiteral("summary"))) {
        const QStringList files = parser.value(QStringLiteral("summary")).split(QLatin1Char(','));
        QCoreApplication app(argc, argv);
        return summary(files.value(0), files.value(1));
    }

    if (parser.isSet(QStringLiteral("border-widgets"))) {
        qInstallMessageHandler(quietHandler);
        zel::RibbonApplication app(argc, argv);
        return borderChild(parser.value(QStringLiteral("border-widgets")).toInt(), 200);
    }
    if (parser.isSet(QStringLiteral("workload"))) {
        qInstallMessageHandler(quietHandler);
        zel::RibbonApplication app(argc, argv);
        return child(parser.value(QStringLiteral("workload")), parser.value(QStringLiteral("kind")),
                     parser.value(QStringLiteral("only")), parser.value(QStringLiteral("narrow")).toInt(),
                     parser.value(QStringLiteral("wide")).toInt(), parser.value(QStringLiteral("shown-width")).toInt());
    }
    QCoreApplication app(argc, argv);
    return parent(parser.value(QStringLiteral("workloads")).split(QLatin1Char(',')), parser.value(QStringLiteral("csv")),
                  qMax(1, parser.value(QStringLiteral("runs")).toInt()), parser.value(QStringLiteral("only")));
}
