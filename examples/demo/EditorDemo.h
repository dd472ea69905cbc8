#pragma once

#include "RibbonMainWindow.h"

#include <QDir>

#include <memory>

class NavigationPane;
class QSettings;
class QTextEdit;

namespace zel {
class RibbonCategoriesPanelAction;
class RibbonOptionsDialog;
} // namespace zel

// A small rich-text editor hosted in a ribbon main window. It holds several documents,
// one tab each in a tab bar above them; its Home, Insert and View tabs, the File page,
// the quick-access toolbar, the status bar, the contextual tab sets for tables and
// pictures and the Navigation panel all work on the current document.
class EditorDemo : public zel::RibbonMainWindow
{
    Q_OBJECT
public:
    // The recent documents (with their pins), the hidden quick-access commands and the
    // options are read from settings now and written back as they change or when the
    // window closes; the settings object must outlive the window.
    explicit EditorDemo(QSettings &settings, QWidget *parent = nullptr);
    ~EditorDemo() override;

    // The current document's editor.
    QTextEdit *editor() const;
    // Documents are counted in the order of their tabs.
    int documentCount() const;
    int currentDocument() const;
    void setCurrentDocument(int index);
    NavigationPane &navigationPane() const;

    // Fills the current document, if it is still blank, else a new one, with a formatted
    // sample holding headings, a table and a picture.
    void loadSampleDocument();
    // A new blank document, unless the current one is still blank.
    void newDocument();
    // Opens path in a document of its own (in the current one if that is still blank);
    // a document already open is brought to the front instead.
    bool openDocument(const QString &path);
    bool saveDocument(const QString &path);
    // Closes the current document, asking to save changes; false when the user cancels.
    bool closeDocument();

    // Opens the options dialog over the window and returns it; it applies its pages on
    // OK and deletes itself when closed.
    zel::RibbonOptionsDialog *showOptions();

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
    struct Document;

    Document *createDocument();
    Document *blankCurrentDocument() const;
    void activate(Document *document);
    void removeDocument(Document *document);
    bool maybeSave(Document *document);
    void updateTitle(Document *document);
    void refreshInfo();
    void buildDocumentArea();
    void buildShortcuts();
    void buildQuickAccess();
    zel::RibbonCategoriesPanelAction *buildHomeTab();
    zel::RibbonCategoriesPanelAction *buildInsertTab();
    zel::RibbonCategoriesPanelAction *buildViewTab();
    void buildContextTabs();
    void buildStatusBar();
    void buildFilePage();
    void buildWelcomeScreen();
    void followEditor();
    void connectEditor(Document *document);
    void syncWithEditor();
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
