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
#include "RibbonCategoryWrapperPopup.h"
#include "RibbonKeyTips_p.h"
#include "RibbonScreenTip_p.h"
#include "RibbonCatSimpleButton.h"
#include "RibbonCatActionGroupWidget.h"
#include "RibbonCategory.h"
#include "RibbonButtonMain.h"
#include "RibbonMenuBarButton.h"
#include "RibbonMainWindow.h"
#include "RibbonMenuBar.h"
#include "RibbonQuickAccessBar.h"
#include "RibbonPercAction.h"
#include "RibbonPercWidget.h"
#include "RibbonStatusBar.h"
#include "BackstageView.h"
#include "BackstageWelcomeScreen.h"
#include "RibbonSimpleAction.h"

#include <QLineEdit>
#include <QPointer>
#include <QAccessible>
#include <QListWidget>
#include <QMenu>
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
    void tabDestroyedWhileAlsoACommand();

    void assignKeyTips_data();
    void assignKeyTips();
    void wantedKeyTip_data();
    void wantedKeyTip();
    void keyTipsShowAndHide_data();
    void keyTipsShowAndHide();
    void keyTipsThroughTabToCommand();
    void keyTipsInFoldedCategory();
    void keyTipsInCollapsedRibbon();
    void keyTipsDoNotOverlap();

    void arrowNavigation();
    void accessibleNames();
    void backstageByKeyboard();
    void welcomeScreenByKeyboard();
    void screenTip_data();
    void screenTip();
    void screenTipOnControls();

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

namespace {

RibbonKeyTips &keyTipsOf(const Fixture &f)
{
    return *f.window->findChild<RibbonKeyTips *>();
}

// The letters of the badges shown, by the caption of their command.
QHash<QString, QString> keysByCaption(const RibbonKeyTips &keyTips)
{
    QHash<QString, QString> keys;
    for (const RibbonKeyTip &tip : keyTips.tips())
        keys.insert(tip.caption, tip.keys);
    return keys;
}

void typeKeys(QWidget *receiver, const QString &keys)
{
    for (const QChar c : keys)
        QTest::keyClick(receiver, c.toLower().toLatin1());
}

// The widget that receives typed keys: the open popup, else the focus widget.
QWidget *keyReceiver(const Fixture &f)
{
    if (QWidget *popup = QApplication::activePopupWidget())
        return popup->focusWidget() ? popup->focusWidget() : popup;
    return f.edit;
}

// Alt pressed and released alone, as the window system reports it (the press does not
// carry the modifier yet).
void pressAlt(QWidget *receiver)
{
    QTest::keyPress(receiver, Qt::Key_Alt, Qt::NoModifier);
    QTest::keyRelease(receiver, Qt::Key_Alt, Qt::NoModifier);
}

} // namespace

void tst_Keyboard::tabDestroyedWhileAlsoACommand()
{
    // Taking a tab out of the bar settles the shortcuts at once, while the tab, also a
    // command of another tab, is still listed there in the middle of its destruction.
    Fixture f;
    auto *nested = new RibbonCategoriesPanelAction(QStringLiteral("Nested"), f.window.get());
    nested->setShortcut(kShortcut);
    f.bar().addAction(nested);
    f.tables->addAction(nested, -1);
    f.clipboard->addAction(nested, -1);
    QVERIFY(f.show());
    QCoreApplication::processEvents();
    delete nested;
    QCoreApplication::processEvents();
    f.press();
    f.window.reset();
}

void tst_Keyboard::assignKeyTips_data()
{
    QTest::addColumn<QStringList>("captions");
    QTest::addColumn<QStringList>("wanted");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("first letters") << QStringList{"Home", "Insert", "View"} << QStringList{"", "", ""}
                                   << QStringList{"H", "I", "V"};
    QTest::newRow("a shared first letter takes two") << QStringList{"Paste", "Print", "Copy"}
                                                     << QStringList{"", "", ""}
                                                     << QStringList{"PA", "PR", "C"};
    QTest::newRow("wanted letters first") << QStringList{"Format", "File"} << QStringList{"", "F"}
                                          << QStringList{"OR", "F"};
    QTest::newRow("second wanted duplicate falls back") << QStringList{"Bold", "Bullets"}
                                                        << QStringList{"B", "B"} << QStringList{"B", "UL"};
    QTest::newRow("a wanted prefix of another") << QStringList{"Bold", "Border"} << QStringList{"B", "BO"}
                                                << QStringList{"B", "OR"};
    QTest::newRow("a wanted digit; no caption") << QStringList{"", "Undo", ""} << QStringList{"1", "", ""}
                                                << QStringList{"1", "U", "AA"};
    QTest::newRow("same caption twice") << QStringList{"Style", "Style", "Style"} << QStringList{"", "", ""}
                                        << QStringList{"ST", "SY", "SL"};
}

void tst_Keyboard::assignKeyTips()
{
    QFETCH(QStringList, captions);
    QFETCH(QStringList, wanted);
    QFETCH(QStringList, expected);
    QList<RibbonKeyTip> tips;
    for (int i = 0; i < captions.size(); ++i) {
        RibbonKeyTip tip;
        tip.caption = captions.at(i);
        tip.wanted = wanted.at(i);
        tips.append(tip);
    }
    zel::assignKeyTips(tips);
    QStringList keys;
    for (const RibbonKeyTip &tip : tips)
        keys << tip.keys;
    QCOMPARE(keys, expected);
}

void tst_Keyboard::wantedKeyTip_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QVariant>("keyTip");
    QTest::addColumn<QString>("expected");
    QTest::newRow("mnemonic") << "&Bold" << QVariant() << "B";
    QTest::newRow("mnemonic inside, lower case") << "Un&derline" << QVariant() << "D";
    QTest::newRow("a literal ampersand is none") << "Save && Close" << QVariant() << "";
    QTest::newRow("after a literal ampersand") << "A && &Z" << QVariant() << "Z";
    QTest::newRow("plain text") << "Bold" << QVariant() << "";
    QTest::newRow("the host's letters win") << "&Bold" << QVariant(QStringLiteral("fb")) << "FB";
    QTest::newRow("a blank key tip is none") << "Bold" << QVariant(QStringLiteral(" ")) << "";
}

void tst_Keyboard::wantedKeyTip()
{
    QFETCH(QString, text);
    QFETCH(QVariant, keyTip);
    QFETCH(QString, expected);
    QAction action(text, nullptr);
    if (keyTip.isValid())
        action.setProperty("keyTip", keyTip);
    QCOMPARE(zel::wantedKeyTip(&action), expected);
}

void tst_Keyboard::keyTipsShowAndHide_data()
{
    QTest::addColumn<int>("how");
    QTest::newRow("Escape") << 0;
    QTest::newRow("Alt again") << 1;
    QTest::newRow("F10 again") << 2;
    QTest::newRow("a click") << 3;
    QTest::newRow("another key") << 4;
}

void tst_Keyboard::keyTipsShowAndHide()
{
    QFETCH(int, how);
    Fixture f;
    auto *undo = new RibbonSimpleAction(QStringLiteral("Undo"), f.window.get());
    f.window->quickAccessBar().addAction(undo);
    QVERIFY(f.show());
    RibbonKeyTips &keyTips = keyTipsOf(f);

    // Alt held with another key is a chord, not a request for key tips.
    QTest::keyPress(f.edit, Qt::Key_Alt, Qt::AltModifier);
    QTest::keyClick(f.edit, Qt::Key_Left, Qt::AltModifier);
    QTest::keyRelease(f.edit, Qt::Key_Alt, Qt::NoModifier);
    QVERIFY(!keyTips.isShown());

    if (how == 2)
        QTest::keyClick(f.edit, Qt::Key_F10);
    else
        pressAlt(f.edit);
    QVERIFY(keyTips.isShown());
    QCOMPARE(keyTips.depth(), 1);
    const QHash<QString, QString> keys = keysByCaption(keyTips);
    QCOMPARE(keys.value(f.bar().mainMenuButton()->text()), QStringLiteral("F"));
    QCOMPARE(keys.value(QStringLiteral("HOME")), QStringLiteral("H"));
    QCOMPARE(keys.value(QStringLiteral("INSERT")), QStringLiteral("I"));
    QCOMPARE(keys.value(QStringLiteral("Undo")), QStringLiteral("1"));
    QVERIFY(f.window->findChild<QWidget *>(QStringLiteral("keyTipOverlay")));

    // While shown, the keys belong to the badges: nothing reaches the line edit.
    QTest::keyClick(f.edit, Qt::Key_Q);
    QVERIFY(f.edit->text().isEmpty());
    QVERIFY(keyTips.isShown());

    switch (how) {
    case 0:
        QTest::keyClick(f.edit, Qt::Key_Escape);
        break;
    case 1:
        pressAlt(f.edit);
        break;
    case 2:
        QTest::keyClick(f.edit, Qt::Key_F10);
        break;
    case 3:
        QTest::mouseClick(f.edit, Qt::LeftButton);
        break;
    case 4:
        QTest::keyClick(f.edit, Qt::Key_End);
        break;
    }
    QVERIFY(!keyTips.isShown());
    QVERIFY(!f.window->findChild<QWidget *>(QStringLiteral("keyTipOverlay")));
    // Typing works as before.
    QTest::keyClick(f.edit, Qt::Key_X);
    QCOMPARE(f.edit->text(), QStringLiteral("x"));
}

void tst_Keyboard::keyTipsThroughTabToCommand()
{
    Fixture f;
    auto *strip = new RibbonCatActionGroup(f.window.get());
    auto *bold = f.command(QStringLiteral("&Bold"), RibbonCatSimpleAction::SizeSmall);
    auto *italic = f.command(QStringLiteral("Italic"), RibbonCatSimpleAction::SizeSmall);
    strip->addAction(bold, false);
    strip->addAction(italic, false);
    f.tables->addAction(strip, 1);
    auto *chart = f.command(QStringLiteral("Chart"));
    chart->setProperty("keyTip", QStringLiteral("ZC"));
    f.tables->addAction(chart, -1);
    QVERIFY(f.show());
    RibbonKeyTips &keyTips = keyTipsOf(f);
    QSignalSpy boldTriggered(bold, &QAction::triggered);
    QSignalSpy chartTriggered(chart, &QAction::triggered);

    pressAlt(f.edit);
    QTest::keyClick(f.edit, Qt::Key_I);
    QVERIFY(f.insert->isChecked());
    QCOMPARE(keyTips.depth(), 2);
    QHash<QString, QString> keys = keysByCaption(keyTips);
    QCOMPARE(keys.value(QStringLiteral("&Bold")), QStringLiteral("B"));
    QCOMPARE(keys.value(QStringLiteral("Chart")), QStringLiteral("ZC"));
    QCOMPARE(keys.value(QStringLiteral("Table")), QStringLiteral("T"));
    QCOMPARE(keys.value(QStringLiteral("Italic")), QStringLiteral("I"));

    // Half of a two-letter tip narrows the badges to those that match.
    QTest::keyClick(f.edit, Qt::Key_Z);
    QCOMPARE(keysByCaption(keyTips).keys(), QStringList{QStringLiteral("Chart")});
    QTest::keyClick(f.edit, Qt::Key_Escape); // forgets the half typed
    QCOMPARE(keyTips.depth(), 2);
    QCOMPARE(keyTips.tips().size(), keys.size());
    QTest::keyClick(f.edit, Qt::Key_Escape); // back to the tab row
    QCOMPARE(keyTips.depth(), 1);

    // A tab's letters with Alt held go straight to its commands.
    QTest::keyClick(f.edit, Qt::Key_Escape);
    QVERIFY(!keyTips.isShown());
    QTest::keyClick(f.edit, Qt::Key_Home); // the Home tab is still current
    QTest::keyPress(f.edit, Qt::Key_Alt, Qt::AltModifier);
    QTest::keyClick(f.edit, Qt::Key_I, Qt::AltModifier);
    QTest::keyRelease(f.edit, Qt::Key_Alt, Qt::NoModifier);
    QCOMPARE(keyTips.depth(), 2);
    typeKeys(f.edit, QStringLiteral("B"));
    QCOMPARE(boldTriggered.count(), 1);
    QVERIFY(!keyTips.isShown());

    pressAlt(f.edit);
    typeKeys(f.edit, QStringLiteral("IZC"));
    QCOMPARE(chartTriggered.count(), 1);
    QCOMPARE(boldTriggered.count(), 1);

    // A disabled command keeps its badge and does nothing.
    chart->setEnabled(false);
    pressAlt(f.edit);
    typeKeys(f.edit, QStringLiteral("IZC"));
    QCOMPARE(chartTriggered.count(), 1);
    QVERIFY(keyTips.isShown());
    QCOMPARE(keyTips.tips().size(), 4); // the letters typed are forgotten
    QTest::keyClick(f.edit, Qt::Key_Escape);
    QTest::keyClick(f.edit, Qt::Key_Escape);
    QVERIFY(!keyTips.isShown());
}

void tst_Keyboard::keyTipsInFoldedCategory()
{
    Fixture f;
    QVERIFY(f.show(true));
    RibbonKeyTips &keyTips = keyTipsOf(f);
    RibbonCategoryWrapper *folded = f.wrapper(f.home, f.styles);
    QSignalSpy triggered(f.styles->actions().at(3), &QAction::triggered);

    pressAlt(f.edit);
    QTest::keyClick(f.edit, Qt::Key_H);
    const QString styles = keysByCaption(keyTips).value(QStringLiteral("Styles"));
    QCOMPARE(styles, QStringLiteral("S"));
    QTest::keyClick(f.edit, Qt::Key_S);
    QCOMPARE(keyTips.depth(), 3);
    QVERIFY(folded->popup());
    QVERIFY(zelPopupShown(folded->popup()));
    for (const RibbonKeyTip &tip : keyTips.tips())
        QCOMPARE(tip.widget->window(), folded->popup());

    // Escape closes the popup and returns to the tab's badges.
    QTest::keyClick(keyReceiver(f), Qt::Key_Escape);
    QCOMPARE(keyTips.depth(), 2);
    QTRY_VERIFY(!folded->popup());

    QTest::keyClick(f.edit, Qt::Key_S);
    QVERIFY(zelPopupShown(folded->popup()));
    const QString third = keysByCaption(keyTips).value(QStringLiteral("Style 3"));
    QCOMPARE(third.size(), 2);
    typeKeys(keyReceiver(f), third);
    QCOMPARE(triggered.count(), 1);
    QVERIFY(!keyTips.isShown());
    QTRY_VERIFY(!folded->popup());

    // The window may go while its badges stand in the popup.
    pressAlt(f.edit);
    typeKeys(f.edit, QStringLiteral("HS"));
    QVERIFY(zelPopupShown(folded->popup()));
    QCOMPARE(keyTips.depth(), 3);
    f.window.reset();
}

void tst_Keyboard::keyTipsInCollapsedRibbon()
{
    // Collapsed, a tab's letters open the tab's panel as a popup and letter its commands
    // there.
    Fixture f;
    f.bar().setMinimizeRibbon(true);
    QVERIFY(f.show());
    RibbonKeyTips &keyTips = keyTipsOf(f);
    RibbonCategoryPanels *panels = f.bar().categoryPanels()->subject();
    QSignalSpy table(f.tables->actions().at(0), &QAction::triggered);

    pressAlt(f.edit);
    QTest::keyClick(f.edit, Qt::Key_I);
    QCOMPARE(keyTips.depth(), 2);
    QTRY_VERIFY(panels->isWindow() && panels->isVisible());
    QVERIFY(zelPopupShown(panels));
    const QString keys = keysByCaption(keyTips).value(QStringLiteral("Table"));
    QCOMPARE(keys, QStringLiteral("T"));
    for (const RibbonKeyTip &tip : keyTips.tips())
        QCOMPARE(tip.widget->window(), panels);

    // Escape closes the popup and goes back to the tabs.
    QTest::keyClick(keyReceiver(f), Qt::Key_Escape);
    QCOMPARE(keyTips.depth(), 1);
    QTRY_VERIFY(!panels->isVisible());

    QTest::keyClick(keyReceiver(f), Qt::Key_I);
    QTRY_VERIFY(panels->isVisible());
    typeKeys(keyReceiver(f), keys);
    QCOMPARE(table.count(), 1);
    QVERIFY(!keyTips.isShown());
    QTRY_VERIFY(!panels->isVisible());
    QVERIFY(f.bar().isRibbonMinimized());
}

void tst_Keyboard::keyTipsDoNotOverlap()
{
    Fixture f;
    auto *strip = new RibbonCatActionGroup(f.window.get());
    for (const char *text : {"Bold", "Italic", "Underline", "Strike", "Sub", "Super"})
        strip->addAction(f.command(QLatin1String(text), RibbonCatSimpleAction::SizeSmall), false);
    f.clipboard->addAction(strip, 0);
    for (const char *text : {"Cut", "Copy", "Format Painter"})
        f.clipboard->addAction(f.command(QLatin1String(text), RibbonCatSimpleAction::SizeMedium), -1);
    for (int i = 0; i < 4; ++i)
        f.window->quickAccessBar().addAction(new RibbonSimpleAction(QStringLiteral("Q%1").arg(i), f.window.get()));
    QVERIFY(f.show());
    RibbonKeyTips &keyTips = keyTipsOf(f);

    pressAlt(f.edit);
    for (int level = 1; level <= 2; ++level) {
        QCOMPARE(keyTips.depth(), level);
        const QVector<QRect> rects = keyTips.badgeRects(f.window.get());
        QVERIFY(rects.size() >= (level == 1 ? 7 : 20));
        for (int i = 0; i < rects.size(); ++i) {
            QVERIFY(!rects.at(i).isEmpty());
            QVERIFY(f.window->rect().contains(rects.at(i)));
            for (int j = i + 1; j < rects.size(); ++j)
                QVERIFY2(!rects.at(i).intersects(rects.at(j)),
                         qPrintable(keyTips.tips().at(i).keys + QLatin1Char('/') + keyTips.tips().at(j).keys));
        }
        QTest::keyClick(f.edit, Qt::Key_H);
    }
}

void tst_Keyboard::arrowNavigation()
{
    Fixture f;
    auto *charts = new RibbonCategoryAction(QStringLiteral("Charts"), f.window.get());
    auto *bars = f.command(QStringLiteral("Bars"), RibbonCatSimpleAction::SizeMedium);
    auto *more = new RibbonCatMenuAction(QStringLiteral("More"), RibbonCatMenuAction::MenuTypeButton,
                                         RibbonCatMenuAction::MenuSizeLarge, RibbonCatMenuAction::PopupMenu,
                                         f.window.get());
    more->addAction(new RibbonSimpleAction(QStringLiteral("Pie"), f.window.get()), false);
    charts->addAction(f.command(QStringLiteral("Chart")), -1);
    charts->addAction(f.command(QStringLiteral("Lines"), RibbonCatSimpleAction::SizeMedium), -1);
    charts->addAction(bars, -1);
    charts->addAction(more, -1);
    f.insert->addCategory(charts);
    QVERIFY(f.show());
    RibbonKeyTips &keyTips = keyTipsOf(f);
    QSignalSpy barsTriggered(bars, &QAction::triggered);

    // F6 enters the ribbon on the current tab.
    QTest::keyClick(f.edit, Qt::Key_F6);
    QCOMPARE(keyTips.highlighted().caption, QStringLiteral("HOME"));
    QTest::keyClick(f.edit, Qt::Key_Right);
    QCOMPARE(keyTips.highlighted().caption, QStringLiteral("INSERT"));
    QVERIFY(!keyTips.highlightRect(f.window.get()).isNull());
    QTest::keyClick(f.edit, Qt::Key_Down);
    QVERIFY(f.insert->isChecked());
    QCOMPARE(keyTips.depth(), 2);

    // Category by category, in the order of their commands; round at the ends.
    QStringList order;
    for (int i = 0; i < 6; ++i) {
        order << keyTips.highlighted().caption;
        QTest::keyClick(f.edit, i % 2 ? Qt::Key_Down : Qt::Key_Right);
    }
    QCOMPARE(order, (QStringList{"Table", "Chart", "Lines", "Bars", "More", "Table"}));
    QCOMPARE(keyTips.highlighted().caption, QStringLiteral("Chart"));
    QTest::keyClick(f.edit, Qt::Key_Up);
    QTest::keyClick(f.edit, Qt::Key_Left);
    QCOMPARE(keyTips.highlighted().caption, QStringLiteral("More"));
    QTest::keyClick(f.edit, Qt::Key_Left);
    QCOMPARE(keyTips.highlighted().caption, QStringLiteral("Bars"));
    QTest::keyClick(f.edit, Qt::Key_Return);
    QCOMPARE(barsTriggered.count(), 1);
    QVERIFY(!keyTips.isShown());
    QVERIFY(f.edit->hasFocus());

    // Down opens a menu button's menu.
    QTest::keyClick(f.edit, Qt::Key_F6);
    QCOMPARE(keyTips.highlighted().caption, QStringLiteral("INSERT"));
    QTest::keyClick(f.edit, Qt::Key_Space);
    QCOMPARE(keyTips.depth(), 2);
    QTest::keyClick(f.edit, Qt::Key_Left);
    QCOMPARE(keyTips.highlighted().caption, QStringLiteral("More"));
    QTest::keyClick(f.edit, Qt::Key_Down);
    QVERIFY(!keyTips.isShown());
    auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
    QVERIFY(menu);
    QCOMPARE(menu->actions().size(), 1);
    menu->close();

    // F6 again leaves the ribbon.
    QTest::keyClick(f.edit, Qt::Key_F6);
    QVERIFY(keyTips.isShown());
    QTest::keyClick(f.edit, Qt::Key_F6);
    QVERIFY(!keyTips.isShown());
    QVERIFY(f.edit->hasFocus());
}

void tst_Keyboard::accessibleNames()
{
    Fixture f;
    auto *format = new RibbonCatMenuAction(QStringLiteral("&Format"), RibbonCatMenuAction::MenuTypeButton,
                                           RibbonCatMenuAction::MenuSizeMedium, RibbonCatMenuAction::PopupMenu,
                                           f.window.get());
    format->setStatusTip(QStringLiteral("Formats the text."));
    auto *painter = f.command(QStringLiteral("Format Painter"), RibbonCatSimpleAction::SizeSmall);
    format->addAction(painter, true);
    f.clipboard->addAction(format, -1);
    auto *strip = new RibbonCatActionGroup(f.window.get());
    auto *bold = f.command(QStringLiteral("&Bold"), RibbonCatSimpleAction::SizeSmall);
    bold->setCheckable(true);
    strip->addAction(f.command(QStringLiteral("Italic"), RibbonCatSimpleAction::SizeSmall), false);
    strip->addAction(bold, false);
    f.clipboard->addAction(strip, 0);
    f.window->ribbonStatusBar().addAction(new RibbonPercAction(10, 400, 100, f.window.get()));
    QVERIFY(f.show(true));

    RibbonCategory *clipboard = f.wrapper(f.home, f.clipboard)->category();
    const QList<QPair<QWidget *, QString>> expected = {
        {f.bar().mainMenuButton(), QStringLiteral("File")},
        {f.wrapper(f.home, f.styles), QStringLiteral("Styles")},
        {clipboard->widget(format), QStringLiteral("Format")},
        {f.window->findChild<QWidget *>(QStringLiteral("sysMenuButton")), QStringLiteral("System menu")},
        {f.window->findChild<QWidget *>(QStringLiteral("minimizeButton")), QStringLiteral("Minimize")},
        {f.window->findChild<QWidget *>(QStringLiteral("maximizeButton")), QStringLiteral("Maximize")},
        {f.window->findChild<QWidget *>(QStringLiteral("closeButton")), QStringLiteral("Close")},
        {f.window->findChild<QWidget *>(QStringLiteral("backstageBackButton")), QStringLiteral("Back")},
        {f.window->findChild<RibbonPercWidget *>(), QStringLiteral("Zoom")},
        {f.bar().collapseRibbonAction()->associatedWidgets().value(0), QStringLiteral("Collapse the Ribbon")},
    };
    for (const auto &entry : expected) {
        QVERIFY(entry.first);
        QAccessibleInterface *iface = QAccessible::queryAccessibleInterface(entry.first);
        QVERIFY(iface);
        QCOMPARE(iface->text(QAccessible::Name), entry.second);
    }
    QCOMPARE(QAccessible::queryAccessibleInterface(clipboard->widget(format))->text(QAccessible::Description),
             QStringLiteral("Formats the text."));

    // The members of a button group are buttons of a tool bar.
    QAccessibleInterface *stripInterface = QAccessible::queryAccessibleInterface(clipboard->widget(strip));
    QCOMPARE(stripInterface->role(), QAccessible::ToolBar);
    QCOMPARE(stripInterface->childCount(), 2);
    QAccessibleInterface *cell = stripInterface->child(1);
    QVERIFY(cell && cell->isValid());
    QCOMPARE(cell->text(QAccessible::Name), QStringLiteral("Bold"));
    QCOMPARE(cell->role(), QAccessible::CheckBox);
    QCOMPARE(cell->parent(), stripInterface);
    QCOMPARE(stripInterface->indexOfChild(cell), 1);
    QCOMPARE(stripInterface->childAt(cell->rect().center().x(), cell->rect().center().y()), cell);
    QCOMPARE(stripInterface->child(0)->role(), QAccessible::Button);
    QVERIFY(!cell->state().checked);
    cell->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QVERIFY(bold->isChecked());
    QVERIFY(cell->state().checked);
    QVERIFY(!stripInterface->child(2));

    // Names follow the window's state and the category's caption.
    f.window->showMaximized();
    QTRY_COMPARE(f.window->findChild<QWidget *>(QStringLiteral("maximizeButton"))->accessibleName(),
                 QStringLiteral("Restore"));
    f.styles->setText(QStringLiteral("&Quick Styles"));
    QCOMPARE(f.wrapper(f.home, f.styles)->accessibleName(), QStringLiteral("Quick Styles"));
}

void tst_Keyboard::welcomeScreenByKeyboard()
{
    // Tab reaches the tiles of the welcome screen; Enter or Space opens one.
    Fixture f;
    BackstageWelcomeScreen &welcome = f.window->welcomeScreen();
    welcome.addTemplate(QStringLiteral("Letter"), QPixmap());
    QVERIFY(f.show());
    f.window->setActiveView(RibbonMainWindow::WelcomeScreen);
    QSignalSpy blank(&welcome, SIGNAL(blankDocumentSelected()));
    QSignalSpy letter(&welcome, SIGNAL(templateSelected(QString)));
    auto *tile = welcome.findChild<QAbstractButton *>(QStringLiteral("welcomeBlankDocument"));
    // The keys go to the page shown, not to the document behind it.
    QVERIFY(welcome.isAncestorOf(QApplication::focusWidget()));
    for (int i = 0; i < 10 && !tile->hasFocus(); ++i)
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QVERIFY(tile->hasFocus());
    QTest::keyClick(tile, Qt::Key_Tab);
    QWidget *next = QApplication::focusWidget();
    QCOMPARE(next->property("text").toString(), QStringLiteral("Letter"));
    QTest::keyClick(next, Qt::Key_Space);
    QCOMPARE(letter.count(), 1);
    QCOMPARE(blank.count(), 0);

    f.window->setActiveView(RibbonMainWindow::WelcomeScreen);
    tile->setFocus(Qt::TabFocusReason);
    QTest::keyClick(tile, Qt::Key_Return);
    QCOMPARE(blank.count(), 1);
}

void tst_Keyboard::backstageByKeyboard()
{
    Fixture f;
    auto *info = new QLineEdit;
    auto *recent = new QLineEdit;
    f.window->backstageView().addItem(QStringLiteral("Info"), info);
    f.window->backstageView().addItem(QStringLiteral("Recent"), recent);
    QVERIFY(f.show());
    f.window->setActiveView(RibbonMainWindow::BackstagePanel);
    QWidget *back = f.window->findChild<QWidget *>(QStringLiteral("backstageBackButton"));
    auto *list = f.window->findChild<QListWidget *>(QStringLiteral("backstageNavigationList"));
    back->setFocus(Qt::TabFocusReason);
    QVERIFY(back->hasFocus());

    // Tab goes from the back button to the navigation column, the arrows to the panes.
    QTest::keyClick(back, Qt::Key_Tab);
    QVERIFY(list->hasFocus());
    QCOMPARE(list->currentRow(), 0);
    QTest::keyClick(list, Qt::Key_Down);
    QCOMPARE(list->currentRow(), 1);
    QTRY_VERIFY(recent->isVisible());
    QVERIFY(!info->isVisible());
}

void tst_Keyboard::screenTip_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("toolTip");
    QTest::addColumn<QString>("statusTip");
    QTest::addColumn<QString>("whatsThis");
    QTest::addColumn<QString>("reason");
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<QString>("expected");
    QTest::newRow("no description: the plain tip") << "&Bold" << "" << "" << "" << "" << true << "Bold";
    QTest::newRow("no description: the host's tip") << "Bold" << "Make it bold" << "" << "" << "" << true
                                                    << "Make it bold";
    QTest::newRow("a reason while enabled is no description") << "Bold" << "" << "" << "" << "No text" << true
                                                                << "Bold";
    QTest::newRow("status tip") << "&Bold" << "" << "Makes the text bold." << "" << "" << true
                                << "<p style='white-space:pre'><b>Bold</b> (Ctrl+F5)</p><p>Makes the text bold.</p>";
    QTest::newRow("what's this when no status tip") << "Bold" << "" << "" << "Bold <i>text</i>" << "" << true
                                                     << "<p style='white-space:pre'><b>Bold</b> (Ctrl+F5)</p>"
                                                        "<p>Bold <i>text</i></p>";
    QTest::newRow("escaped") << "Save && <Close>" << "" << "a < b" << "" << "" << true
                             << "<p style='white-space:pre'><b>Save &amp; &lt;Close&gt;</b> (Ctrl+F5)</p>"
                                "<p>a &lt; b</p>";
    QTest::newRow("disabled with a reason") << "Bold" << "" << "" << "" << "Select some text first." << false
                                            << "<p style='white-space:pre'><b>Bold</b> (Ctrl+F5)</p>"
                                               "<p><i>Select some text first.</i></p>";
    QTest::newRow("disabled with reason and description") << "Bold" << "" << "Bolder." << "" << "None selected."
                                                          << false
                                                          << "<p style='white-space:pre'><b>Bold</b> (Ctrl+F5)</p>"
                                                             "<p>Bolder.</p><p><i>None selected.</i></p>";
}

void tst_Keyboard::screenTip()
{
    QFETCH(QString, text);
    QFETCH(QString, toolTip);
    QFETCH(QString, statusTip);
    QFETCH(QString, whatsThis);
    QFETCH(QString, reason);
    QFETCH(bool, enabled);
    QFETCH(QString, expected);
    QAction action(text, nullptr);
    action.setShortcut(kShortcut);
    action.setToolTip(toolTip);
    action.setStatusTip(statusTip);
    action.setWhatsThis(whatsThis);
    if (!reason.isEmpty())
        action.setProperty("disabledReason", reason);
    action.setEnabled(enabled);
    QCOMPARE(ribbonScreenTip(&action), expected);
    QCOMPARE(ribbonScreenTip(nullptr), QString());
}

void tst_Keyboard::screenTipOnControls()
{
    Fixture f;
    auto *paste = f.clipboard->actions().first();
    auto *strip = new RibbonCatActionGroup(f.window.get());
    auto *bold = f.command(QStringLiteral("Bold"), RibbonCatSimpleAction::SizeSmall);
    strip->addAction(f.command(QStringLiteral("Italic"), RibbonCatSimpleAction::SizeSmall), false);
    strip->addAction(bold, false);
    f.clipboard->addAction(strip, 0);
    QVERIFY(f.show());
    RibbonCategory *category = f.wrapper(f.home, f.clipboard)->category();
    QWidget *pasteButton = category->widget(paste);
    auto *stripWidget = qobject_cast<RibbonCatActionGroupWidget *>(category->widget(strip));
    QVERIFY(pasteButton && stripWidget);

    QCOMPARE(pasteButton->toolTip(), QStringLiteral("Paste"));
    paste->setStatusTip(QStringLiteral("Adds what was copied."));
    QVERIFY(pasteButton->toolTip().contains(QLatin1String("<b>Paste</b>")));
    QVERIFY(pasteButton->toolTip().contains(QLatin1String("Adds what was copied.")));
    paste->setProperty("disabledReason", QStringLiteral("The clipboard is empty."));
    paste->setEnabled(false);
    QVERIFY(pasteButton->toolTip().contains(QLatin1String("The clipboard is empty.")));

    // A strip shows the tip of the member under the mouse.
    bold->setStatusTip(QStringLiteral("Makes the text bold."));
    QTest::mouseMove(stripWidget, stripWidget->cellRect(1).center());
    QCOMPARE(stripWidget->toolTip(), ribbonScreenTip(bold));
    QTest::mouseMove(stripWidget, stripWidget->cellRect(0).center());
    QCOMPARE(stripWidget->toolTip(), QStringLiteral("Italic"));
}

ZEL_TEST_MAIN(tst_Keyboard)
#include "tst_keyboard.moc"
