// Screenshots of the editor for the demo's screenshot mode, and the check that the
// editor comes up as a real window on an X server with the ribbon in place.

#include "DocumentInfoPane.h"
#include "EditorDemo.h"
#include "NavigationPane.h"

#include "BackstageView.h"
#include "OfficePopupButton.h"
#include "RibbonApplication.h"
#include "RibbonButtonMain.h"
#include "RibbonCatActionGroup.h"
#include "RibbonCatActionGroupWidget.h"
#include "RibbonCatColorMenuAction.h"
#include "RibbonCatColorMenuButton.h"
#include "RibbonCatListPreview.h"
#include "RibbonCatMenuAction.h"
#include "RibbonCatMenuButton.h"
#include "RibbonMenuBar.h"
#include "RibbonOptionsButton.h"
#include "RibbonOptionsDialog.h"
#include "RibbonStackedButton.h"
#include "RibbonWindow.h"

#include <QAction>
#include <QApplication>
#include <QContextMenuEvent>
#include <QElapsedTimer>
#include <QFile>
#include <QImage>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPixmap>
#include <QScreen>
#include <QSet>
#include <QSettings>
#include <QTemporaryDir>
#include <QTextEdit>
#include <QTextStream>
#include <QThread>
#include <QToolTip>
#include <QWindow>

namespace {

void settle(int ms = 0)
{
    QElapsedTimer timer;
    timer.start();
    do {
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        if (ms > 0)
            QThread::msleep(10);
    } while (timer.elapsed() < ms);
}

// A settings file in a temporary directory with a few recent documents, one pinned, so
// that the user's own settings are never touched.
void seedSettings(QSettings &settings)
{
    const QString home = QStringLiteral("/home/anna/Documents/");
    QVariantList recent;
    const QList<QPair<QString, bool>> entries = {{home + QStringLiteral("Harbour/Quarterly report.html"), true},
                                                 {home + QStringLiteral("Letters/Landlord.html"), false},
                                                 {home + QStringLiteral("Budget 2027 notes.txt"), false},
                                                 {home + QStringLiteral("Harbour/Timeline.html"), false},
                                                 {home + QStringLiteral("Meeting minutes.html"), false}};
    for (const auto &entry : entries)
        recent.append(QVariant(QVariantList{entry.first, entry.second}));
    settings.setValue(QStringLiteral("editor/recentDocuments"), recent);
    settings.setValue(QStringLiteral("options/author"), QStringLiteral("Anna Berg"));
    settings.sync();
}

// Opens the drop-down of the first control of class Button whose action has the text.
template<class Button>
void pressButton(EditorDemo &w, const QString &text)
{
    for (Button *button : w.findChildren<Button *>()) {
        if (button->isVisible() && button->action() && button->action()->text() == text) {
            const QPoint pos(3, 3);
            QMouseEvent press(QEvent::MouseButtonPress, pos, button->mapToGlobal(pos), Qt::LeftButton,
                              Qt::LeftButton, Qt::NoModifier);
            QApplication::sendEvent(button, &press);
            return;
        }
    }
}

// The window's picture with the popups (and a tool tip) open over it, where they stand
// on the screen.
QPixmap grabWithPopups(QWidget &window)
{
    QPixmap picture = window.grab();
    QPainter painter(&picture);
    for (QWidget *top : QApplication::topLevelWidgets()) {
        if (top->isVisible() && (top->windowType() == Qt::Popup || top->windowType() == Qt::ToolTip))
            painter.drawPixmap(top->geometry().topLeft() - window.geometry().topLeft(), top->grab());
    }
    return picture;
}

// Two more documents for the shots that show several open at once.
QStringList writeDocuments(const QDir &dir)
{
    const QList<QPair<QString, QString>> documents = {
        {QStringLiteral("Landlord.html"),
         QStringLiteral("<h1>Letter to the landlord</h1><p>Dear Mr Holm,</p><h2>The heating</h2>"
                        "<p>The radiators in the living room stay cold since March.</p><h2>The windows</h2>"
                        "<p>Two frames no longer close.</p><p>Kind regards,<br>Anna Berg</p>")},
        {QStringLiteral("Timeline.html"),
         QStringLiteral("<h1>Harbour timeline</h1><h2>Spring</h2><p>Quay wall.</p><h2>Summer</h2>"
                        "<p>Dredging.</p><h2>Autumn</h2><p>Walkway.</p>")}};
    QStringList paths;
    for (const auto &document : documents) {
        QFile file(dir.filePath(document.first));
        if (file.open(QIODevice::WriteOnly))
            file.write(document.second.toUtf8());
        paths.append(file.fileName());
    }
    return paths;
}

// The screenshot has no mouse: a button is shown hovered by telling it the mouse is on it.
void showHovered(QWidget *widget)
{
    widget->setAttribute(Qt::WA_UnderMouse, true);
    widget->update();
}

// Types keys into the document as the keyboard would; an empty text presses Alt alone.
void typeKeys(EditorDemo &w, const QString &keys)
{
    QWidget *receiver = QApplication::activePopupWidget() ? QApplication::activePopupWidget() : w.editor();
    if (keys.isEmpty()) {
        QKeyEvent press(QEvent::KeyPress, Qt::Key_Alt, Qt::NoModifier);
        QKeyEvent release(QEvent::KeyRelease, Qt::Key_Alt, Qt::NoModifier);
        QApplication::sendEvent(receiver, &press);
        QApplication::sendEvent(receiver, &release);
        return;
    }
    for (const QChar c : keys) {
        receiver = QApplication::activePopupWidget() ? QApplication::activePopupWidget() : w.editor();
        const int key = Qt::Key_A + (c.toUpper().unicode() - 'A');
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, QString(c.toLower()));
        QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier, QString(c.toLower()));
        QApplication::sendEvent(receiver, &press);
        QApplication::sendEvent(receiver, &release);
        settle();
    }
}

// The first visible control of class Control whose action has the text.
template<class Control>
Control *controlOf(EditorDemo &w, const QString &text)
{
    for (Control *control : w.findChildren<Control *>()) {
        if (control->isVisible() && !control->actions().isEmpty() && control->actions().first()->text() == text)
            return control;
    }
    return nullptr;
}

void showTab(EditorDemo &w, const QString &name)
{
    for (QAction *tab : w.ribbonMenuBar().actions()) {
        if (tab->text().compare(name, Qt::CaseInsensitive) == 0) // the bar shows tab names in capitals
            tab->setChecked(true);
    }
}

// Opens the full list of the first visible in-ribbon gallery (the styles on the Home tab).
void openStylesGallery(EditorDemo &w)
{
    for (zel::RibbonCatListPreview *gallery : w.findChildren<zel::RibbonCatListPreview *>()) {
        if (gallery->isVisible()) {
            gallery->popupButton()->click();
            return;
        }
    }
}

// Opens the view popup of the first visible menu button that has one (Page Layout on View).
void openViewPopup(EditorDemo &w)
{
    for (zel::RibbonCatMenuButton *button : w.findChildren<zel::RibbonCatMenuButton *>()) {
        if (button->isVisible() && button->action()
            && button->action()->popupType() == zel::RibbonCatMenuAction::PopupView) {
            QMouseEvent press(QEvent::MouseButtonPress, QPoint(5, 5), button->mapToGlobal(QPoint(5, 5)),
                              Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
            QCoreApplication::sendEvent(button, &press);
            return;
        }
    }
}

} // namespace

int writeEditorScreenshots(const QDir &dir)
{
    QTextStream out(stdout);
    QTemporaryDir tmp;
    if (!tmp.isValid()) {
        out << "Cannot create a temporary settings directory\n";
        return 1;
    }
    QSettings settings(tmp.filePath(QStringLiteral("editor.ini")), QSettings::IniFormat);
    seedSettings(settings);
    const QStringList documents = writeDocuments(QDir(tmp.path()));

    struct Shot
    {
        QString name;
        QSize size;
        std::function<void(EditorDemo &)> prepare;
        // What to grab instead of the editor's window (a dialog, a secondary window).
        std::function<QWidget *(EditorDemo &)> target = {};
    };
    const QList<Shot> shots = {
        {QStringLiteral("editor-main"), QSize(1280, 800), [](EditorDemo &w) {
             w.showMainView();
             QTextCursor cursor = w.editor()->textCursor();
             cursor.movePosition(QTextCursor::Start);
             cursor.movePosition(QTextCursor::NextBlock);
             cursor.movePosition(QTextCursor::NextBlock);
             cursor.movePosition(QTextCursor::NextWord);
             cursor.movePosition(QTextCursor::NextWord);
             cursor.movePosition(QTextCursor::NextWord, QTextCursor::KeepAnchor, 2);
             w.editor()->setTextCursor(cursor);
         }},
        {QStringLiteral("editor-narrow"), QSize(700, 640), [](EditorDemo &w) { w.showMainView(); }},
        {QStringLiteral("editor-backstage"), QSize(1280, 800), [](EditorDemo &w) {
             w.showBackstagePage(EditorDemo::tr("Open"));
         }},
        {QStringLiteral("editor-welcome"), QSize(1280, 800), [](EditorDemo &w) {
             w.setActiveView(zel::RibbonMainWindow::WelcomeScreen);
         }},
        {QStringLiteral("editor-contextual"), QSize(1280, 800), [](EditorDemo &w) {
             w.showMainView();
             w.moveCursorIntoTable();
             w.activateContextTab(EditorDemo::tr("Layout"));
         }},
        {QStringLiteral("editor-insert"), QSize(1000, 420), [](EditorDemo &w) {
             w.showMainView();
             showTab(w, EditorDemo::tr("Insert"));
         }},
        {QStringLiteral("editor-view"), QSize(1000, 420), [](EditorDemo &w) {
             w.showMainView();
             showTab(w, EditorDemo::tr("View"));
         }},
        {QStringLiteral("editor-color-picker"), QSize(1000, 520), [](EditorDemo &w) {
             w.showMainView();
             QTextCursor cursor = w.editor()->textCursor();
             cursor.movePosition(QTextCursor::Start);
             cursor.movePosition(QTextCursor::NextBlock);
             cursor.movePosition(QTextCursor::EndOfWord, QTextCursor::KeepAnchor);
             w.editor()->setTextCursor(cursor);
             pressButton<zel::RibbonCatColorMenuButton>(w, QCoreApplication::translate("EditorPickers", "Font Color"));
         }},
        {QStringLiteral("editor-symbol-palette"), QSize(1000, 520), [](EditorDemo &w) {
             w.showMainView();
             showTab(w, EditorDemo::tr("Insert"));
             settle();
             pressButton<zel::RibbonCatMenuButton>(w, QCoreApplication::translate("EditorPickers", "Symbol"));
         }},
        {QStringLiteral("editor-picture-tools"), QSize(1280, 800), [](EditorDemo &w) {
             w.showMainView();
             w.selectFirstPicture();
             w.editor()->ensureCursorVisible();
             w.activateContextTab(EditorDemo::tr("Format"));
         }},
        {QStringLiteral("editor-styles-gallery"), QSize(1100, 520), [](EditorDemo &w) {
             w.showMainView();
             settle();
             openStylesGallery(w);
         }},
        {QStringLiteral("editor-view-popup"), QSize(1000, 520), [](EditorDemo &w) {
             w.showMainView();
             showTab(w, EditorDemo::tr("View"));
             settle();
             openViewPopup(w);
         }},
        // Three documents, the second current; the Navigation panel lists its headings.
        {QStringLiteral("editor-documents"), QSize(1280, 800), [documents](EditorDemo &w) {
             w.showMainView();
             for (const QString &path : documents)
                 w.openDocument(path);
             w.setCurrentDocument(1);
             QTextCursor cursor = w.editor()->textCursor();
             cursor.movePosition(QTextCursor::NextBlock, QTextCursor::MoveAnchor, 3);
             w.editor()->setTextCursor(cursor);
             showTab(w, EditorDemo::tr("View"));
         }},
        {QStringLiteral("editor-navigation-floating"), QSize(1000, 640), [](EditorDemo &w) {
             w.showMainView();
             w.navigationPane().undock();
         }, [](EditorDemo &w) -> QWidget * { return w.navigationPane().floatingWindow(); }},
        {QStringLiteral("editor-options"), QSize(1000, 640), [](EditorDemo &w) {
             zel::RibbonOptionsDialog *dialog = w.showOptions();
             const QList<zel::RibbonOptionsButton *> pages = dialog->findChildren<zel::RibbonOptionsButton *>();
             if (pages.size() > 1)
                 showHovered(pages.at(1));
         }, [](EditorDemo &w) -> QWidget * { return w.findChild<zel::RibbonOptionsDialog *>(); }},
        {QStringLiteral("editor-options-view"), QSize(1000, 640), [](EditorDemo &w) {
             zel::RibbonOptionsDialog *dialog = w.showOptions();
             const QList<zel::RibbonOptionsButton *> pages = dialog->findChildren<zel::RibbonOptionsButton *>();
             if (pages.size() > 1)
                 pages.at(1)->click();
         }, [](EditorDemo &w) -> QWidget * { return w.findChild<zel::RibbonOptionsDialog *>(); }},
        // The dark palette, switched on as a user does: View, then Dark.
        {QStringLiteral("editor-dark"), QSize(1280, 800), [](EditorDemo &w) {
             w.showMainView();
             showTab(w, EditorDemo::tr("View"));
             if (auto *dark = w.findChild<QAction *>(QStringLiteral("darkPalette")))
                 dark->trigger();
         }},
        // The File page's own panes in the dark palette.
        {QStringLiteral("editor-dark-backstage"), QSize(1280, 800), [](EditorDemo &w) {
             zel::RibbonApplication::theApp().setRibbonStyle(zel::RibbonApplication::RibbonStyleDark);
             w.showBackstagePage(EditorDemo::tr("Open"));
         }},
        {QStringLiteral("editor-dark-info"), QSize(1280, 800), [](EditorDemo &w) {
             zel::RibbonApplication::theApp().setRibbonStyle(zel::RibbonApplication::RibbonStyleDark);
             w.showBackstagePage(EditorDemo::tr("Info"));
         }},
        // Alt, then H: the letters of the Home tab's commands.
        {QStringLiteral("editor-keytips"), QSize(1280, 420), [](EditorDemo &w) {
             w.showMainView();
             typeKeys(w, QString());
             typeKeys(w, QStringLiteral("H"));
         }},
        // Narrow, the clipboard folds: Alt, H, C opens it with its own letters.
        {QStringLiteral("editor-keytips-folded"), QSize(760, 420), [](EditorDemo &w) {
             w.showMainView();
             w.resize(760, 420);
             settle();
             typeKeys(w, QString());
             typeKeys(w, QStringLiteral("HC"));
         }},
        {QStringLiteral("editor-screentip"), QSize(1000, 360), [](EditorDemo &w) {
             w.showMainView();
             if (auto *paste = controlOf<zel::RibbonCatMenuButton>(w, QStringLiteral("Paste"))) {
                 showHovered(paste);
                 QToolTip::showText(paste->mapToGlobal(QPoint(8, paste->height() + 4)), paste->toolTip(), paste);
             }
         }},
        // A right click on Bold, in its button group.
        {QStringLiteral("editor-context-menu"), QSize(1000, 360), [](EditorDemo &w) {
             w.showMainView();
             for (auto *strip : w.findChildren<zel::RibbonCatActionGroupWidget *>()) {
                 const QList<zel::RibbonAction *> members = strip->group() ? strip->group()->actions()
                                                                           : QList<zel::RibbonAction *>();
                 for (int i = 0; i < members.size(); ++i) {
                     if (!strip->isVisible() || members.at(i)->text() != QLatin1String("Bold"))
                         continue;
                     const QPoint pos = strip->cellRect(i).center();
                     showHovered(strip);
                     QContextMenuEvent event(QContextMenuEvent::Mouse, pos, strip->mapToGlobal(pos));
                     QApplication::sendEvent(strip, &event);
                     return;
                 }
             }
         }},
        {QStringLiteral("editor-info"), QSize(1280, 800), [](EditorDemo &w) {
             w.showBackstagePage(EditorDemo::tr("Info"));
             for (zel::RibbonStackedButton *button : w.findChildren<zel::RibbonStackedButton *>()) {
                 if (button->text() == DocumentInfoPane::tr("Statistics"))
                     showHovered(button);
             }
         }},
        {QStringLiteral("editor-info-statistics"), QSize(1280, 800), [](EditorDemo &w) {
             w.showBackstagePage(EditorDemo::tr("Info"));
             for (zel::RibbonStackedButton *button : w.findChildren<zel::RibbonStackedButton *>()) {
                 if (button->text() == DocumentInfoPane::tr("Statistics"))
                     button->click();
             }
         }},
    };

    for (const Shot &shot : shots) {
        auto window = std::make_unique<EditorDemo>(settings);
        window->loadSampleDocument();
        window->resize(shot.size);
        window->show();
        settle();
        shot.prepare(*window);
        // The page shown first may have held the window wider than asked.
        window->resize(shot.size);
        if (!QApplication::activePopupWidget())
            window->editor()->setFocus();
        settle();
        QWidget *target = shot.target ? shot.target(*window) : window.get();
        const QString file = dir.filePath(shot.name + QStringLiteral(".png"));
        const QPixmap picture = shot.target ? (target ? target->grab() : QPixmap()) : grabWithPopups(*window);
        if (picture.isNull() || !picture.save(file)) {
            out << "Cannot write " << file << '\n';
            return 1;
        }
        out << "  " << file << '\n';
        while (QWidget *popup = QApplication::activePopupWidget())
            popup->close();
        window->close();
        window.reset();
        zel::RibbonApplication::theApp().setRibbonStyle(zel::RibbonApplication::RibbonStyleDefault);
        settle();
    }
    return 0;
}

int runXvfbCheck(const QString &file)
{
    QTextStream out(stdout);
    QTemporaryDir tmp;
    QSettings settings(tmp.filePath(QStringLiteral("editor.ini")), QSettings::IniFormat);
    seedSettings(settings);

    EditorDemo window(settings);
    window.loadSampleDocument();
    window.showMainView();
    window.resize(1200, 760);
    window.move(60, 40);
    window.show();

    QElapsedTimer timer;
    timer.start();
    while (!(window.windowHandle() && window.windowHandle()->isExposed()) && timer.elapsed() < 15000)
        settle(50);
    if (!window.windowHandle() || !window.windowHandle()->isExposed()) {
        out << "FAIL: the editor window was never exposed\n";
        return 1;
    }
    settle(800); // let the window manager-less server deliver the last paints

    QScreen *screen = window.windowHandle()->screen();
    if (!screen) {
        out << "FAIL: no screen\n";
        return 1;
    }
    const QImage image = screen->grabWindow(0).toImage().convertToFormat(QImage::Format_RGB32);
    if (image.isNull() || !image.save(file)) {
        out << "FAIL: cannot grab the screen into " << file << '\n';
        return 1;
    }

    // Not blank: a rendered ribbon and document show many colours.
    QSet<QRgb> colours;
    for (int y = 0; y < image.height(); y += 3)
        for (int x = 0; x < image.width(); x += 3)
            colours.insert(image.pixel(x, y));
    out << "distinct colours: " << colours.size() << '\n';
    if (colours.size() < 32) {
        out << "FAIL: the screen is blank\n";
        return 1;
    }

    // The ribbon's tab row, where the File button carries the accent colour.
    const qreal dpr = screen->devicePixelRatio();
    QWidget *fileButton = window.ribbonMenuBar().mainMenuButton();
    if (!fileButton || !fileButton->isVisible()) {
        out << "FAIL: no File button\n";
        return 1;
    }
    const QPoint origin = window.ribbonMenuBar().mapToGlobal(QPoint(0, 0)) - screen->geometry().topLeft();
    const QPoint buttonAt = fileButton->mapToGlobal(QPoint(0, 0)) - screen->geometry().topLeft();
    const QRect row = QRect(QPoint(origin.x(), buttonAt.y()) * dpr,
                            QSize(window.ribbonMenuBar().width(), fileButton->height()) * dpr)
                          .intersected(image.rect());
    const QColor accent(QStringLiteral("#2B579A"));
    int hits = 0;
    for (int y = row.top(); y <= row.bottom(); ++y) {
        for (int x = row.left(); x <= row.right(); ++x) {
            const QColor c = image.pixelColor(x, y);
            if (qAbs(c.red() - accent.red()) <= 8 && qAbs(c.green() - accent.green()) <= 8
                && qAbs(c.blue() - accent.blue()) <= 8)
                ++hits;
        }
    }
    out << "tab row " << row.x() << ',' << row.y() << ' ' << row.width() << 'x' << row.height()
        << ", accent pixels: " << hits << '\n';
    if (row.isEmpty() || hits < 40) {
        out << "FAIL: the ribbon's tab row does not show the File button\n";
        return 1;
    }
    out << "PASS: " << file << '\n';
    return 0;
}
