#include "ZelTest.h"

#include "RibbonCatActionGroup.h"
#include "RibbonCatMenuAction.h"
#include "RibbonCatSimpleAction.h"
#include "RibbonCategoriesPanelAction.h"
#include "RibbonCategoryAction.h"
#include "RibbonCategoryPanel.h"
#include "RibbonCategoryPanels.h"
#include "RibbonCategoryPanelsProxy.h"
#include "RibbonCategoryWrapper.h"
#include "RibbonContextCategoryPanel.h"
#include "RibbonContextCategoryPanelAction.h"
#include "RibbonMainWindow.h"
#include "RibbonMenuBar.h"
#include "RibbonQuickAccessBar.h"
#include "RibbonSimpleAction.h"

#include <QLineEdit>
#include <QPointer>
#include <QSignalSpy>

#include <memory>

using namespace zel;

namespace {

const QKeySequence kShortcut(Qt::CTRL + Qt::Key_F5);

// A main window with a line edit as its central widget (it holds the focus) and two
// tabs: "Home" with a narrow "Clipboard" category and a wide "Styles" category of
// twelve large buttons, and "Insert" with a "Tables" category.
struct Fixture
{
    Fixture()
    {
        window.reset(new RibbonMainWindow);
        edit = new QLineEdit;
        window->setCentralWidget(edit);
        home = new RibbonCategoriesPanelAction(QStringLiteral("Home"), window.get());
        insert = new RibbonCategoriesPanelAction(QStringLiteral("Insert"), window.get());
        clipboard = new RibbonCategoryAction(QStringLiteral("Clipboard"), window.get());
        styles = new RibbonCategoryAction(QStringLiteral("Styles"), window.get());
        tables = new RibbonCategoryAction(QStringLiteral("Tables"), window.get());
        clipboard->addAction(command(QStringLiteral("Paste")), -1);
        for (int i = 0; i < 12; ++i)
            styles->addAction(command(QStringLiteral("Style %1").arg(i)), -1);
        tables->addAction(command(QStringLiteral("Table")), -1);
        home->addCategory(clipboard);
        home->addCategory(styles);
        insert->addCategory(tables);
        bar().addAction(home);
        bar().addAction(insert);
    }

    RibbonMenuBar &bar() const { return window->ribbonMenuBar(); }

    RibbonCatSimpleAction *command(const QString &text,
                                   RibbonCatSimpleAction::eSize size = RibbonCatSimpleAction::SizeLarge)
    {
        return new RibbonCatSimpleAction(text, size, window.get());
    }

    RibbonCategoryWrapper *wrapper(RibbonCategoriesPanelAction *tab, RibbonCategoryAction *category) const
    {
        RibbonCategoryPanel *page = bar().categoryPanels()->subject()->panel(tab);
        return page ? page->wrapper(category) : nullptr;
    }

    // Shows the window, with the focus in the line edit; narrow folds "Styles".
    bool show(bool narrow = false)
    {
        window->resize(narrow ? 420 : 1400, 400);
        window->show();
        QApplication::setActiveWindow(window.get());
        if (!QTest::qWaitForWindowActive(window.get()))
            return false;
        edit->setFocus();
        if (narrow) {
            RibbonCategoryWrapper *folding = wrapper(home, styles);
            return QTest::qWaitFor([folding] { return folding && folding->isColapsed(); }, 2000);
        }
        return true;
    }

    // Presses the shortcut in the line edit.
    void press(const QKeySequence &sequence = kShortcut) const
    {
        QTest::keySequence(edit, sequence);
    }

    std::unique_ptr<RibbonMainWindow> window;
    QLineEdit *edit = nullptr;
    RibbonCategoriesPanelAction *home = nullptr;
    RibbonCategoriesPanelAction *insert = nullptr;
    RibbonCategoryAction *clipboard = nullptr;
    RibbonCategoryAction *styles = nullptr;
    RibbonCategoryAction *tables = nullptr;
};

enum class Place {
    CurrentTab,
    OtherTab,
    ButtonGroup,
    FoldedCategory,
    SplitDefault,
    QuickAccess,
    QuickAccessAndOtherTab
};

} // namespace

Q_DECLARE_METATYPE(Place)

class tst_Keyboard : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void shortcutFromAnywhere_data();
    void shortcutFromAnywhere();
    void shortcutLeavesWithItsPlace_data();
    void shortcutLeavesWithItsPlace();
    void contextualShortcutOnlyWhileShown();

private:
    int m_widgets = 0;
};

void tst_Keyboard::init()
{
    m_widgets = zelWidgetsLeft();
}

void tst_Keyboard::cleanup()
{
    QCOMPARE(zelWidgetsLeft(), m_widgets);
}

void tst_Keyboard::shortcutFromAnywhere_data()
{
    QTest::addColumn<Place>("place");
    QTest::newRow("button on the current tab") << Place::CurrentTab;
    QTest::newRow("button on another tab") << Place::OtherTab;
    QTest::newRow("button-group member") << Place::ButtonGroup;
    QTest::newRow("folded category") << Place::FoldedCategory;
    QTest::newRow("split button's default command") << Place::SplitDefault;
    QTest::newRow("quick-access bar") << Place::QuickAccess;
    QTest::newRow("quick-access bar and another tab") << Place::QuickAccessAndOtherTab;
}

void tst_Keyboard::shortcutFromAnywhere()
{
    QFETCH(Place, place);
    Fixture f;
    auto *bold = new RibbonCatSimpleAction(QStringLiteral("Bold"), RibbonCatSimpleAction::SizeSmall, f.window.get());
    bold->setShortcut(kShortcut);
    switch (place) {
    case Place::CurrentTab:
        f.clipboard->addAction(bold, -1);
        break;
    case Place::OtherTab:
        f.tables->addAction(bold, -1);
        break;
    case Place::ButtonGroup: {
        auto *strip = new RibbonCatActionGroup(f.window.get());
        strip->addAction(f.command(QStringLiteral("Italic"), RibbonCatSimpleAction::SizeSmall), false);
        strip->addAction(bold, false);
        f.clipboard->addAction(strip, 1);
        break;
    }
    case Place::FoldedCategory:
        f.styles->addAction(bold, -1);
        break;
    case Place::SplitDefault: {
        auto *split = new RibbonCatMenuAction(QStringLiteral("Format"), RibbonCatMenuAction::MenuTypeButton,
                                              RibbonCatMenuAction::MenuSizeLarge,
                                              RibbonCatMenuAction::PopupMenu, f.window.get());
        split->setDefaultAction(bold);
        f.tables->addAction(split, -1);
        break;
    }
    case Place::QuickAccessAndOtherTab:
        f.tables->addAction(bold, -1);
        Q_FALLTHROUGH();
    case Place::QuickAccess:
        f.window->quickAccessBar().addAction(bold);
        break;
    }
    QVERIFY(f.show(place == Place::FoldedCategory));
    QVERIFY(f.edit->hasFocus());
    QSignalSpy triggered(bold, &QAction::triggered);

    f.press();
    QCOMPARE(triggered.count(), 1);

    bold->setEnabled(false);
    f.press();
    QCOMPARE(triggered.count(), 1);

    bold->setEnabled(true);
    f.press();
    QCOMPARE(triggered.count(), 2);
    // The focus stays where the user types.
    QVERIFY(f.edit->hasFocus());

    // The backstage page covers the ribbon and its commands.
    f.window->setActiveView(RibbonMainWindow::BackstagePanel);
    QTest::keySequence(f.window.get(), kShortcut);
    QCOMPARE(triggered.count(), 2);
}

void tst_Keyboard::shortcutLeavesWithItsPlace_data()
{
    QTest::addColumn<int>("how");
    QTest::newRow("command removed from its category") << 0;
    QTest::newRow("category removed from its tab") << 1;
    QTest::newRow("tab removed from the ribbon") << 2;
    QTest::newRow("tab disabled") << 3;
    QTest::newRow("member removed from its button group") << 4;
    QTest::newRow("command destroyed") << 5;
}

void tst_Keyboard::shortcutLeavesWithItsPlace()
{
    QFETCH(int, how);
    Fixture f;
    auto *strip = new RibbonCatActionGroup(f.window.get());
    auto *bold = new RibbonCatSimpleAction(QStringLiteral("Bold"), RibbonCatSimpleAction::SizeSmall, f.window.get());
    bold->setShortcut(kShortcut);
    if (how == 4) {
        strip->addAction(bold, false);
        f.tables->addAction(strip, -1);
    } else {
        f.tables->addAction(bold, -1);
    }
    QVERIFY(f.show());
    QPointer<RibbonCatSimpleAction> guard(bold);
    QSignalSpy triggered(bold, &QAction::triggered);
    f.press();
    QCOMPARE(triggered.count(), 1);

    switch (how) {
    case 0:
        f.tables->removeAction(bold);
        break;
    case 1:
        f.insert->removeCategory(f.tables);
        break;
    case 2:
        f.bar().removeAction(f.insert);
        break;
    case 3:
        f.insert->setEnabled(false);
        break;
    case 4:
        strip->removeAction(bold);
        QCoreApplication::processEvents(); // a strip announces its members only as a change
        break;
    case 5:
        delete bold;
        break;
    }
    f.press();
    if (guard)
        QCOMPARE(triggered.count(), 1);

    // Where it comes back, so does its shortcut.
    if (guard && how != 4) {
        f.clipboard->addAction(bold, -1);
        QCoreApplication::processEvents();
        f.press();
        QCOMPARE(triggered.count(), 2);
    }
}

void tst_Keyboard::contextualShortcutOnlyWhileShown()
{
    Fixture f;
    auto *design = new RibbonCategoriesPanelAction(QStringLiteral("Design"), f.window.get());
    auto *layout = new RibbonCategoryAction(QStringLiteral("Layout"), f.window.get());
    auto *merge = f.command(QStringLiteral("Merge"));
    merge->setShortcut(kShortcut);
    layout->addAction(merge, -1);
    design->addCategory(layout);
    auto *set = new RibbonContextCategoryPanelAction(Qt::yellow, Qt::red, Qt::black, f.window.get());
    set->setText(QStringLiteral("Table Tools"));
    set->addPanelAction(design);
    f.bar().ribbonContextCategoryPanel().addContextPanelAction(set);
    QVERIFY(f.show());
    QSignalSpy triggered(merge, &QAction::triggered);

    f.press();
    QCOMPARE(triggered.count(), 0);

    f.bar().showContextPanelAction(set);
    QCoreApplication::processEvents();
    f.press();
    QCOMPARE(triggered.count(), 1);

    f.bar().hideContextPanelAction(set);
    f.press();
    QCOMPARE(triggered.count(), 1);
}

ZEL_TEST_MAIN(tst_Keyboard)
#include "tst_keyboard.moc"
