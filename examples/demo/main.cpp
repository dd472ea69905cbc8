#include "DemoScreens.h"
#include "EditorDemo.h"

#include "RibbonSingletonApplication.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QLocale>
#include <QPixmap>
#include <QSettings>
#include <QTabWidget>
#include <QTextStream>
#include <QTranslator>
#include <QWidget>

#include <algorithm>
#include <memory>

std::vector<DemoScreen> &demoScreens()
{
    static std::vector<DemoScreen> screens;
    return screens;
}

bool registerDemoScreen(DemoScreen screen)
{
    demoScreens().push_back(std::move(screen));
    return true;
}

namespace {

void sortScreens()
{
    auto &screens = demoScreens();
    std::sort(screens.begin(), screens.end(), [](const DemoScreen &a, const DemoScreen &b) {
        return a.order != b.order ? a.order < b.order : a.name < b.name;
    });
}

int writeScreenshots(const QString &dir)
{
    QTextStream out(stdout);
    if (!QDir().mkpath(dir)) {
        out << "Cannot create " << dir << '\n';
        return 1;
    }
    for (const DemoScreen &screen : demoScreens()) {
        std::unique_ptr<QWidget> widget(screen.make());
        if (!widget)
            continue;
        if (widget->size() == QSize(640, 480) && !widget->testAttribute(Qt::WA_Resized))
            widget->resize(widget->sizeHint());
        widget->show();
        QCoreApplication::processEvents();
        const QString file = QDir(dir).filePath(screen.name + QStringLiteral(".png"));
        if (!widget->grab().save(file)) {
            out << "Cannot write " << file << '\n';
            return 1;
        }
        out << "  " << file << '\n';
    }
    if (writeEditorScreenshots(QDir(dir)) != 0)
        return 1;
    out << "Screenshots written to " << QDir(dir).absolutePath() << '\n';
    return 0;
}

// Opens the documents named on a command line (the program first, then options and
// files) in the editor. A relative name is taken from the editor's working directory.
void openDocuments(EditorDemo &editor, const QStringList &commandLine)
{
    for (const QString &arg : commandLine.mid(1)) {
        if (!arg.startsWith(QLatin1Char('-')) && editor.openDocument(arg))
            editor.showMainView();
    }
}

} // namespace

int main(int argc, char *argv[])
{
    // One editor per user: a later start hands its command line to the running editor,
    // which opens the documents named on it. Plain-text files open in an editor of their own.
    zel::RibbonSingletonApplication app(QStringLiteral("zelRibbon.Writer"), argc, argv);
    app.setOpenInNewWindowExtensions({QStringLiteral("txt")});
    QCoreApplication::setOrganizationName(QStringLiteral("zelRibbon"));
    QCoreApplication::setApplicationName(QStringLiteral("zelRibbon Writer"));
    // The demo's own texts in the user's language, as the library's are (the application
    // has loaded the library's catalogue and Qt's for the system locale).
    QTranslator demoTranslator;
    if (demoTranslator.load(QLocale::system(), QStringLiteral("zelRibbonDemo"), QStringLiteral("_"),
                            QStringLiteral(":/zelRibbonDemo/translations")))
        QCoreApplication::installTranslator(&demoTranslator);
    // The ribbon's geometry is made for the usual 9-point desktop UI font.
    QFont uiFont = QApplication::font();
    uiFont.setPointSize(9);
    QApplication::setFont(uiFont);

    QCommandLineParser parser;
    parser.setApplicationDescription(QCoreApplication::translate("main", "zelRibbon demo host"));
    parser.addHelpOption();
    QCommandLineOption shots(QStringLiteral("screenshots"),
                             QCoreApplication::translate("main", "Render every screen to a PNG file in <dir> and exit."),
                             QCoreApplication::translate("main", "dir"));
    parser.addOption(shots);
    QCommandLineOption screens(QStringLiteral("screens"),
                               QCoreApplication::translate("main", "Show the individual demo screens instead of the editor."));
    parser.addOption(screens);
    QCommandLineOption xvfbCheck(QStringLiteral("xvfb-check"),
                                 QCoreApplication::translate("main", "Show the editor, grab the screen into <file> and check "
                                                                     "that the ribbon is on it (exit code 0 when it is)."),
                                 QCoreApplication::translate("main", "file"));
    parser.addOption(xvfbCheck);
    parser.addPositionalArgument(QCoreApplication::translate("main", "files"),
                                 QCoreApplication::translate("main", "Documents to open; a running editor opens them, "
                                                                     "except .txt files, which get an editor of their own."),
                                 QCoreApplication::translate("main", "[files...]"));
    parser.process(app);

    // Screenshots, the X server check and the screens gallery are no editor: they neither
    // hand over to a running editor nor take its messages.
    sortScreens();
    if (parser.isSet(shots))
        return writeScreenshots(parser.value(shots));
    if (parser.isSet(xvfbCheck))
        return runXvfbCheck(parser.value(xvfbCheck));

    if (!parser.isSet(screens)) {
        if (!app.initInstance()) {
            app.endInit();
            return 0;
        }
        QSettings settings;
        EditorDemo editor(settings);
        app.setActivationWindow(&editor);
        QObject::connect(&app, &zel::RibbonSingletonApplication::messageReceived, &editor,
                         [&editor](const QString &message) { openDocuments(editor, message.split(QLatin1Char(';'))); });
        openDocuments(editor, QCoreApplication::arguments());
        editor.resize(1280, 800);
        editor.show();
        app.endInit();
        return app.exec();
    }

    QTabWidget window;
    window.setWindowTitle(QCoreApplication::translate("main", "zelRibbon demo"));
    for (const DemoScreen &screen : demoScreens()) {
        if (QWidget *widget = screen.make())
            window.addTab(widget, screen.title);
    }
    window.resize(1200, 800);
    window.show();
    return app.exec();
}
