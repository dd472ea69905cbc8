#pragma once

#include "RibbonMainWindow.h"

#include <QDir>

#include <memory>

class QSettings;
class QTextEdit;

namespace zel {
class RibbonCategoriesPanelAction;
}

// A small rich-text editor hosted in a ribbon main window: its Home, Insert and View
// tabs, the File page, the quick-access toolbar, the status bar and the contextual tab
// sets for tables and pictures all work on one QTextEdit.
class EditorDemo : public zel::RibbonMainWindow
{
    Q_OBJECT
public:
    // The recent documents (with their pins) and the hidden quick-access commands are
    // read from settings now and written back when the window closes; the settings
    // object must outlive the window.
    explicit EditorDemo(QSettings &settings, QWidget *parent = nullptr);
    ~EditorDemo() override;

    QTextEdit *editor() const;

    // Replaces the document with a formatted sample holding a table and a picture.
    void loadSampleDocument();
    void newDocument();
    bool openDocument(const QString &path);
    bool saveDocument(const QString &path);

    // Places the cursor in the first table / selects the first picture, if any.
    void moveCursorIntoTable();
    void selectFirstPicture();
    // Makes the named tab of the contextual set on display the current tab.
    void activateContextTab(const QString &name);

    // Shows the File page on the named entry.
    void showBackstagePage(const QString &name);

    // Writes the settings now (also done on close).
    void writeSettings();

public slots:
    void save();
    void saveAs();
    void open();

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    void buildQuickAccess();
    zel::RibbonCategoriesPanelAction *buildHomeTab();
    zel::RibbonCategoriesPanelAction *buildInsertTab();
    zel::RibbonCategoriesPanelAction *buildViewTab();
    void buildContextTabs();
    void buildStatusBar();
    void buildFilePage();
    void buildWelcomeScreen();
    void followEditor();
    void zoomTo(int percent);
    void zoomStep(int direction);

    struct Priv;
    std::unique_ptr<Priv> d;
    Q_DISABLE_COPY(EditorDemo)
};

// Renders the editor's views (main, narrow, File page, welcome screen, contextual tab
// set) as PNG files into dir; returns 0 on success.
int writeEditorScreenshots(const QDir &dir);

// Shows the editor as a real window, grabs the screen into file once the window is
// exposed and checks that the picture is not blank and that the ribbon's tab row shows
// the File button's accent colour. Returns the process exit code (0: passed).
int runXvfbCheck(const QString &file);
