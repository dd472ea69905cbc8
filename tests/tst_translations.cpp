#include "ZelTest.h"

#include "RibbonButtonMain.h"
#include "RibbonCatSimpleAction.h"
#include "RibbonCategoriesPanelAction.h"
#include "RibbonCategory.h"
#include "RibbonCategoryAction.h"
#include "RibbonCategoryPanel.h"
#include "RibbonCategoryPanels.h"
#include "RibbonCategoryPanelsProxy.h"
#include "RibbonCategoryWrapper.h"
#include "RibbonCatSimpleButton.h"
#include "RibbonColorPickerPopup.h"
#include "RibbonMainWindow.h"
#include "RibbonMenuBar.h"
#include "RibbonOptionsDialog.h"
#include "RibbonQuickAccessBar.h"

#include <QAccessible>
#include <QContextMenuEvent>
#include <QDialogButtonBox>
#include <QDir>
#include <QLibraryInfo>
#include <QMenu>
#include <QPushButton>

#include <memory>

using namespace zel;

namespace {

// The visible entries of a colour popup, by text.
QStringList entryTexts(RibbonColorPickerPopup &popup)
{
    QStringList texts;
    for (RibbonCatSimpleButton *button : popup.findChildren<RibbonCatSimpleButton *>()) {
        if (!button->isHidden())
            texts << button->text();
    }
    return texts;
}

QStringList buttonBoxTexts(RibbonOptionsDialog &dialog)
{
    QStringList texts;
    for (QAbstractButton *button : dialog.findChild<QDialogButtonBox *>()->buttons())
        texts << button->text();
    texts.sort();
    return texts;
}

} // namespace

class TestTranslations : public QObject
{
    Q_OBJECT

    RibbonApplication &app() { return RibbonApplication::theApp(); }

private slots:
    // main() asks for German through LANGUAGE; the application loaded it by itself.
    void systemLanguageIsLoadedAtStart()
    {
        QVERIFY(RibbonApplication::autoLoadTranslations());
        RibbonColorPickerPopup popup;
        popup.setAutomaticColorEnabled(true);
        QVERIFY2(entryTexts(popup).contains(QStringLiteral("Automatisch")), qPrintable(entryTexts(popup).join(u',')));
    }

    void catalogues_data()
    {
        QTest::addColumn<QLocale>("locale");
        QTest::addColumn<QStringList>("entries");
        QTest::addColumn<QStringList>("buttons");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("file");
        QTest::newRow("German") << QLocale(QLocale::German, QLocale::Germany)
                                << QStringList{QStringLiteral("Automatisch"), QStringLiteral("Weitere Farben..."),
                                               QStringLiteral("Keine")}
                                << QStringList{QStringLiteral("Abbrechen"), QStringLiteral("OK")}
                                << QStringLiteral("Zandor Optionen") << QStringLiteral("DATEI");
        QTest::newRow("Austrian German uses German")
            << QLocale(QLocale::German, QLocale::Austria)
            << QStringList{QStringLiteral("Automatisch"), QStringLiteral("Weitere Farben..."), QStringLiteral("Keine")}
            << QStringList{QStringLiteral("Abbrechen"), QStringLiteral("OK")} << QStringLiteral("Zandor Optionen")
            << QStringLiteral("DATEI");
        QTest::newRow("French") << QLocale(QLocale::French, QLocale::France)
                                << QStringList{QStringLiteral("Automatique"), QStringLiteral("Autres couleurs..."),
                                               QStringLiteral("Aucune")}
                                << QStringList{QStringLiteral("Annuler"), QStringLiteral("OK")}
                                << QStringLiteral("Zandor Options") << QStringLiteral("FICHIER");
    }

    void catalogues()
    {
        QFETCH(QLocale, locale);
        QFETCH(QStringList, entries);
        QFETCH(QStringList, buttons);
        QFETCH(QString, title);
        QFETCH(QString, file);
        QVERIFY(app().loadTranslation(locale));

        RibbonColorPickerPopup popup;
        popup.setAutomaticColorEnabled(true);
        popup.setNoneColorEnabled(true);
        QStringList shown = entryTexts(popup);
        shown.sort();
        entries.sort();
        QCOMPARE(shown, entries);

        RibbonMainWindow window;
        QCOMPARE(window.ribbonMenuBar().mainMenuButton()->text(), file);
        RibbonOptionsDialog dialog(window);
        QCOMPARE(buttonBoxTexts(dialog), buttons);
        QCOMPARE(dialog.windowTitle(), title);
    }

    // Without a catalogue for the locale the library speaks English, also after
    // another language was loaded before.
    void otherLocalesFallBackToEnglish_data()
    {
        QTest::addColumn<QLocale>("locale");
        QTest::newRow("English") << QLocale(QLocale::English, QLocale::UnitedStates);
        QTest::newRow("Japanese") << QLocale(QLocale::Japanese);
        QTest::newRow("C") << QLocale::c();
    }

    void otherLocalesFallBackToEnglish()
    {
        QFETCH(QLocale, locale);
        QVERIFY(app().loadTranslation(QLocale(QLocale::French)));
        QVERIFY(!app().loadTranslation(locale));
        RibbonMainWindow window;
        RibbonOptionsDialog dialog(window);
        QCOMPARE(buttonBoxTexts(dialog), (QStringList{QStringLiteral("Cancel"), QStringLiteral("OK")}));
        QCOMPARE(window.ribbonMenuBar().mainMenuButton()->text(), QStringLiteral("FILE"));
    }

    // Qt's own catalogue comes with the library's, and goes with it: the standard
    // buttons of Qt's dialogs read in the same language as the ribbon.
    void qtCatalogueFollows_data()
    {
        QTest::addColumn<QLocale>("locale");
        QTest::addColumn<QString>("save");
        QTest::addColumn<QString>("catalogue"); // empty: none expected
        QTest::newRow("German") << QLocale(QLocale::German, QLocale::Germany) << QStringLiteral("Speichern")
                                << QStringLiteral("qtbase_de.qm");
        QTest::newRow("French") << QLocale(QLocale::French, QLocale::France) << QStringLiteral("Enregistrer")
                                << QStringLiteral("qtbase_fr.qm");
        QTest::newRow("English after French") << QLocale(QLocale::English) << QStringLiteral("Save") << QString();
    }

    void qtCatalogueFollows()
    {
        QFETCH(QLocale, locale);
        QFETCH(QString, save);
        QFETCH(QString, catalogue);
        const QDir qtTranslations(QLibraryInfo::location(QLibraryInfo::TranslationsPath));
        if (!catalogue.isEmpty() && !qtTranslations.exists(catalogue))
            QSKIP("Qt's catalogues are not installed (Debian: qttranslations5-l10n)");
        app().loadTranslation(QLocale(QLocale::French));
        app().loadTranslation(locale);
        QDialogButtonBox box(QDialogButtonBox::Save);
        QCOMPARE(box.button(QDialogButtonBox::Save)->text().remove(QLatin1Char('&')), save);
    }

    // The ribbon's context menu and what a screen reader hears speak the language too.
    void contextMenuAndNames()
    {
        QVERIFY(app().loadTranslation(QLocale(QLocale::German)));
        RibbonMainWindow window;
        auto *home = new RibbonCategoriesPanelAction(QStringLiteral("Start"), &window);
        auto *clipboard = new RibbonCategoryAction(QStringLiteral("Zwischenablage"), &window);
        auto *paste = new RibbonCatSimpleAction(QStringLiteral("Einfügen"), RibbonCatSimpleAction::SizeLarge, &window);
        clipboard->addAction(paste, -1);
        home->addCategory(clipboard);
        window.ribbonMenuBar().addAction(home);
        window.resize(900, 600);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));

        RibbonCategoryPanel *page = window.ribbonMenuBar().categoryPanels()->subject()->panel(home);
        QWidget *button = page->wrapper(clipboard)->category()->widget(paste);
        const QPoint centre = button->rect().center();
        QContextMenuEvent event(QContextMenuEvent::Mouse, centre, button->mapToGlobal(centre));
        QApplication::sendEvent(button, &event);
        auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        QVERIFY(menu);
        QStringList texts;
        for (const QAction *entry : menu->actions()) {
            if (!entry->isSeparator())
                texts << entry->text();
        }
        menu->close();
        QCOMPARE(texts, (QStringList{QStringLiteral("Zu Symbolleiste für den Schnellzugriff hinzufügen"),
                                     QStringLiteral("Menüband reduzieren")}));
        QCOMPARE(QAccessible::queryAccessibleInterface(&window.quickAccessBar())->text(QAccessible::Name),
                 QStringLiteral("Symbolleiste für den Schnellzugriff"));
    }

    // The longer German texts get the room they need.
    void longerTextsFit()
    {
        QVERIFY(app().loadTranslation(QLocale(QLocale::German)));
        RibbonMainWindow window;
        window.resize(900, 600);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        RibbonButtonMain *file = window.ribbonMenuBar().mainMenuButton();
        QVERIFY(file->width() >= file->fontMetrics().horizontalAdvance(file->text()));

        RibbonColorPickerPopup popup;
        popup.setAutomaticColorEnabled(true);
        popup.show();
        QVERIFY(zelPopupShown(&popup));
        for (RibbonCatSimpleButton *button : popup.findChildren<RibbonCatSimpleButton *>()) {
            if (button->isHidden())
                continue;
            QVERIFY2(button->width() >= button->fontMetrics().horizontalAdvance(button->text()) + 16,
                     qPrintable(button->text()));
            QVERIFY(popup.rect().contains(button->geometry()));
        }
    }
};

int main(int argc, char *argv[])
{
    // The language the application is to pick up from the environment at start.
    qputenv("LANGUAGE", "de");
    zel::RibbonApplication app(argc, argv);
    TestTranslations tc;
    QTEST_SET_MAIN_SOURCE_PATH
    return QTest::qExec(&tc, argc, argv);
}
#include "tst_translations.moc"
