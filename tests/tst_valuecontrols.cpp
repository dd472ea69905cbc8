// ZEL_TEST_DPI_SENSITIVE: the check box height scales with the resolution.
#include "ZelTest.h"

#include "RibbonCatCheckBox.h"
#include "RibbonCatCheckBoxAction.h"
#include "RibbonCatColorMenuAction.h"
#include "RibbonCatColorMenuButton.h"
#include "RibbonCatComboAction.h"
#include "RibbonCatComboComboBox.h"
#include "RibbonCatComboWidget.h"
#include "RibbonCatFontFamilyAction.h"
#include "RibbonCatFontFamilyComboBox.h"
#include "RibbonCatFontSizeAction.h"
#include "RibbonCatSimpleAction.h"
#include "RibbonCatSimpleButton.h"
#include "RibbonScale_p.h"
#include "RibbonStyle.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QFontDatabase>
#include <QLayout>
#include <QLabel>
#include <QLineEdit>
#include <QToolBar>


using namespace zel;

namespace {

// The _144dpi run: widths that hold text are half as large again.
bool highDpi()
{
    return RibbonApplication::theApp().dpiFactor().first > 1.4;
}

QStringList comboTexts(const QComboBox *combo)
{
    QStringList texts;
    for (int i = 0; i < combo->count(); ++i)
        texts << combo->itemText(i);
    return texts;
}

// Picks an entry the way a user does: opens the list, makes the entry current, accepts with Return.
void chooseFromList(QComboBox *combo, int index)
{
    combo->showPopup();
    QAbstractItemView *view = combo->view();
    QTRY_VERIFY(view->isVisible());
    const QModelIndex entry = view->model()->index(index, combo->modelColumn(), combo->rootModelIndex());
    view->scrollTo(entry);
    view->setCurrentIndex(entry);
    QTest::keyClick(view, Qt::Key_Return);
    QTRY_VERIFY(!view->isVisible());
}

// Two widgets of one action side by side in a shown window.
template<class W, class A>
std::pair<W *, W *> showPair(QWidget &window, A &action)
{
    auto *layout = new QHBoxLayout(&window);
    auto *first = new W(action, &window);
    auto *second = new W(action, &window);
    layout->addWidget(first);
    layout->addWidget(second);
    window.show();
    return {first, second};
}

// A font size action with its picker in a shown tool bar.
struct SizePicker
{
    explicit SizePicker(int size) : action(size, nullptr)
    {
        bar.addAction(&action);
        combo = qobject_cast<QComboBox *>(bar.widgetForAction(&action));
        bar.show();
    }
    RibbonCatFontSizeAction action;
    QToolBar bar;
    QComboBox *combo = nullptr;
};

} // namespace

class tst_ValueControls : public QObject
{
    Q_OBJECT

private slots:
    // Label, style sheet, DPI-scaled height; a click triggers with the new state, the host's
    // setChecked() does not; every change re-sends the enabled state, an unchanged label does not.
    void checkBoxFollowsItsAction()
    {
        RibbonCatCheckBoxAction action(QStringLiteral("Ruler"), nullptr);
        QWidget window;
        const auto [first, second] = showPair<RibbonCatCheckBox>(window, action);
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        const QString color = RibbonApplication::theApp().ribbonStyle().normalCategoryTextColor().name();
        QCOMPARE(first->styleSheet(), QStringLiteral("QCheckBox { color: ") + color + QStringLiteral("; }"));
        const int textWidth = first->fontMetrics().horizontalAdvance(first->text());
        // The indicator's 20 pixels grow with the horizontal resolution, as the text does.
        const int indicator = highDpi() ? 30 : 20;
        QCOMPARE(first->sizeHint(), QSize(textWidth + indicator, scaled(22)));
        RibbonCatCheckBoxAction unlabelled(nullptr);
        QCOMPARE(RibbonCatCheckBox(unlabelled, nullptr).sizeHint(), QSize(indicator, scaled(22)));

        QSignalSpy triggered(&action, SIGNAL(triggered(bool)));
        QTest::mouseClick(first, Qt::LeftButton, Qt::NoModifier, QPoint(6, first->height() / 2));
        QVERIFY(second->isChecked());
        QTest::mouseClick(second, Qt::LeftButton, Qt::NoModifier, QPoint(6, second->height() / 2));
        QCOMPARE(triggered.count(), 2);
        QCOMPARE(triggered.at(0).at(0).toBool(), true);
        QCOMPARE(triggered.at(1).at(0).toBool(), false);
        QVERIFY(!action.isChecked() && !first->isChecked());
        action.setChecked(true);
        QVERIFY(first->isChecked() && second->isChecked());
        QCOMPARE(triggered.count(), 2);

        QSignalSpy enabled(&action, SIGNAL(actionEnabled(bool)));
        action.setEnabled(false);
        QVERIFY(!first->isEnabled() && !RibbonCatCheckBox(action, nullptr).isEnabled());
        action.setToolTip(QStringLiteral("Show the ruler"));
        QCOMPARE(enabled.count(), 2);
        QCOMPARE(enabled.at(1).at(0).toBool(), false);
        action.setTextLabel(QStringLiteral("Rulers"));
        QCOMPARE(first->text(), QStringLiteral("Rulers"));
        const int count = enabled.count();
        action.setTextLabel(QStringLiteral("Rulers"));
        QCOMPARE(enabled.count(), count);
    }

    void comboSelection_data()
    {
        QTest::addColumn<bool>("byIndex");
        QTest::addColumn<int>("index");
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("selected");
        QTest::addColumn<int>("emissions");
        QTest::newRow("index") << true << 1 << QString() << 1 << 1;
        QTest::newRow("same index") << true << 0 << QString() << 0 << 0;
        QTest::newRow("index past the end") << true << 7 << QString() << 0 << 0;
        QTest::newRow("negative index") << true << -1 << QString() << 0 << 0;
        QTest::newRow("listed text") << false << 0 << QStringLiteral("C") << 2 << 1;
        QTest::newRow("same text") << false << 0 << QStringLiteral("A") << 0 << 0;
        QTest::newRow("free text") << false << 0 << QStringLiteral("Free") << -1 << 1;
        QTest::newRow("empty text") << false << 0 << QString() << 0 << 0;
    }

    // Selection changes only announce the text; index changes are not signalled on their own.
    void comboSelection()
    {
        QFETCH(bool, byIndex);
        QFETCH(int, index);
        QFETCH(QString, text);
        QFETCH(int, selected);
        QFETCH(int, emissions);

        RibbonCatComboAction action(nullptr);
        for (const char *item : {"A", "B", "C"})
            action.addItem(QLatin1String(item));
        action.setSelectionText(QStringLiteral("A"));
        QSignalSpy changed(&action, SIGNAL(selectionTextChanged()));
        QSignalSpy indexChanged(&action, SIGNAL(selectionIndexChanged()));
        if (byIndex)
            action.setSelectionIndex(index);
        else
            action.setSelectionText(text);
        QCOMPARE(action.selectionIndex(), selected);
        if (selected >= 0)
            QCOMPARE(action.selectionText(), action.items().at(selected));
        QCOMPARE(changed.count(), emissions);
        QCOMPARE(indexChanged.count(), 0);
    }

    void comboItemsAndOptionsReachEveryBox()
    {
        QIntValidator validator(0, 99);
        RibbonCatComboAction action(nullptr);
        action.setComboInputMask(QStringLiteral("99"));
        action.setValidator(&validator);
        action.setIconWidth(30);
        action.addItem(QStringLiteral("Left"));
        RibbonCatComboComboBox box(action, nullptr);
        QCOMPARE(box.size(), QSize(highDpi() ? 72 : 48, 22));
        QCOMPARE(box.iconSize(), QSize(30, 22));
        QCOMPARE(box.lineEdit()->inputMask(), QStringLiteral("99"));
        QCOMPARE(box.validator(), &validator);
        // Editable: a free selection is shown as text, a listed one as the entry.
        action.setSelectionText(QStringLiteral("75"));
        QCOMPARE(box.currentIndex(), -1);
        QCOMPARE(box.currentText(), QStringLiteral("75"));
        action.setSelectionText(QStringLiteral("Left"));
        QCOMPARE(box.currentIndex(), 0);

        action.setEditable(false);
        QVERIFY(!box.isEditable());
        QPixmap red(16, 16);
        red.fill(Qt::red);
        action.addItem(QIcon(red), QStringLiteral("Right"));
        QCOMPARE(comboTexts(&box), QStringList({QStringLiteral("Left"), QStringLiteral("Right")}));
        QVERIFY(!box.itemIcon(1).isNull());
        // Icons stay parallel to the items, so a box made later shows each at its place.
        action.addItem(QStringLiteral("Centre"));
        action.setWidth(80);
        RibbonCatComboComboBox late(action, nullptr);
        QCOMPARE(late.count(), 3);
        QVERIFY(late.itemIcon(0).isNull() && !late.itemIcon(1).isNull() && late.itemIcon(2).isNull());
        QCOMPARE(late.width(), highDpi() ? 120 : 80);
        QVERIFY(!late.isEditable());
        action.setEditable(true);
        QVERIFY(box.isEditable() && late.isEditable());
        // A box made read-only takes the input rules when it becomes editable.
        QCOMPARE(late.lineEdit()->inputMask(), QStringLiteral("99"));
        QCOMPARE(late.validator(), &validator);
    }

    void twoCombosOfOneActionStayInStep()
    {
        RibbonCatComboAction action(nullptr);
        action.setEditable(false);
        for (const char *item : {"Red", "Green", "Blue"})
            action.addItem(QLatin1String(item));
        action.setSelectionText(QStringLiteral("Red"));
        QWidget window;
        const auto [first, second] = showPair<RibbonCatComboComboBox>(window, action);
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QCOMPARE(second->currentText(), QStringLiteral("Red"));

        QSignalSpy changed(&action, SIGNAL(selectionTextChanged()));
        first->setFocus();
        QTest::keyClick(first, Qt::Key_Down);
        QCOMPARE(action.selectionText(), QStringLiteral("Green"));
        QCOMPARE(second->currentIndex(), 1);
        chooseFromList(second, 2);
        QCOMPARE(action.selectionText(), QStringLiteral("Blue"));
        QCOMPARE(first->currentText(), QStringLiteral("Blue"));
        // The host selects: both boxes follow and nothing echoes back.
        action.setSelectionIndex(0);
        QCOMPARE(first->currentIndex(), 0);
        QCOMPARE(second->currentIndex(), 0);
        QCOMPARE(changed.count(), 3);
        action.setEnabled(false);
        QVERIFY(!first->isEnabled() && !second->isEnabled());
    }

    void searchableComboSelectsItsTextOnReturn_data()
    {
        QTest::addColumn<bool>("searchable");
        QTest::addColumn<int>("key");
        QTest::newRow("searchable, Return") << true << int(Qt::Key_Return);
        QTest::newRow("searchable, Enter") << true << int(Qt::Key_Enter);
        QTest::newRow("plain, Return") << false << int(Qt::Key_Return);
    }

    void searchableComboSelectsItsTextOnReturn()
    {
        QFETCH(bool, searchable);
        QFETCH(int, key);
        RibbonCatComboAction action(nullptr);
        action.setSearchable(searchable);
        action.setWidth(120);
        RibbonCatComboComboBox box(action, nullptr);
        box.show();
        QVERIFY(QTest::qWaitForWindowExposed(&box));
        box.activateWindow();
        box.setFocus();
        QTest::keyClicks(&box, QStringLiteral("needle"));
        QVERIFY(!box.lineEdit()->hasSelectedText());
        QSignalSpy keys(&action, SIGNAL(keyPressed(int)));
        QTest::keyClick(&box, Qt::Key(key));
        QVERIFY(keys.count() >= 1);
        QCOMPARE(keys.last().at(0).toInt(), key);
        QCOMPARE(box.lineEdit()->selectedText() == QStringLiteral("needle"), searchable);
    }

    void comboWidgetGeometry()
    {
        RibbonCatComboAction beside(QStringLiteral("Zoom:"), nullptr);
        RibbonCatComboWidget widget(beside, nullptr);
        const int labelWidth = widget.label()->fontMetrics().horizontalAdvance(QStringLiteral("Zoom:"));
        QCOMPARE(widget.size(), QSize(labelWidth + (highDpi() ? 82 : 58), 22));
        QCOMPARE(widget.minimumSize(), widget.maximumSize());
        QCOMPARE(widget.sizePolicy(), QSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed));

        RibbonCatComboAction above(QStringLiteral("Zoom:"), nullptr);
        above.setVerticalAligned(true);
        RibbonCatComboWidget stacked(above, nullptr);
        stacked.resize(stacked.sizeHint());
        stacked.layout()->activate();
        QVERIFY(stacked.sizeHint().height() > 22);
        QVERIFY(stacked.comboBox()->y() >= stacked.label()->geometry().bottom());
        QCOMPARE(stacked.comboBox()->x(), stacked.label()->x());

        RibbonCatComboAction unlabelled(nullptr);
        RibbonCatComboWidget bare(unlabelled, nullptr);
        QVERIFY(bare.maximumWidth() > 1000);
        QVERIFY(bare.sizeHint().width() >= 48);
    }

    // A tool bar gets a ribbon widget for each of these commands; a plain widget, or none,
    // gets nothing.
    void toolBarsGetWidgetsOthersDoNot()
    {
        RibbonCatSimpleAction simple(RibbonCatSimpleAction::SizeSmall, nullptr);
        RibbonCatColorMenuAction colour(QIcon(), QStringLiteral("Font Color"), RibbonCatColorMenuAction::ColorSizeSmall,
                                        nullptr);
        RibbonCatComboAction combo(nullptr);
        RibbonCatFontFamilyAction family(QFont(), nullptr);
        RibbonCatFontSizeAction size(11, nullptr);
        QToolBar bar;
        bar.addActions({&simple, &colour, &combo, &family, &size});
        QVERIFY(qobject_cast<RibbonCatSimpleButton *>(bar.widgetForAction(&simple)));
        QVERIFY(qobject_cast<RibbonCatColorMenuButton *>(bar.widgetForAction(&colour)));
        QVERIFY(qobject_cast<RibbonCatComboComboBox *>(bar.widgetForAction(&combo)));
        QVERIFY(qobject_cast<RibbonCatFontFamilyComboBox *>(bar.widgetForAction(&family)));
        QVERIFY(qobject_cast<QComboBox *>(bar.widgetForAction(&size)));
        QWidget plain;
        for (QWidgetAction *action : std::initializer_list<QWidgetAction *>{&simple, &colour, &combo, &family, &size})
            QCOMPARE(action->requestWidget(&plain), nullptr);
        QCOMPARE(combo.createWidget(nullptr), nullptr);
    }

    void widgetsOutliveTheirActions()
    {
        auto *check = new RibbonCatCheckBoxAction(QStringLiteral("Temp"), nullptr);
        auto *combo = new RibbonCatComboAction(QStringLiteral("Zoom:"), nullptr);
        combo->addItem(QStringLiteral("100%"));
        auto *family = new RibbonCatFontFamilyAction(QFont(), nullptr);
        RibbonCatFontSizeAction size(12, nullptr);
        auto *window = new QWidget;
        auto *sizePicker = size.createComboBox(window);
        auto *checkBox = new RibbonCatCheckBox(*check, window);
        auto *box = new RibbonCatComboComboBox(*combo, window);
        auto *labelled = new RibbonCatComboWidget(*combo, window);
        auto *picker = new RibbonCatFontFamilyComboBox(*family, window);
        delete check;
        delete combo;
        delete family;
        checkBox->click();
        QVERIFY(checkBox->isChecked());
        QVERIFY(box->actions().isEmpty() && picker->actions().isEmpty());
        QTest::keyClick(box, Qt::Key_A);
        QTest::keyClick(labelled->comboBox(), Qt::Key_Return);
        box->updateActionSelection(QStringLiteral("100%"));
        QCOMPARE(box->currentIndex(), 0);
        box->onEditableChanged();
        QCoreApplication::processEvents();
        QVERIFY(!picker->signalsBlocked());

        // Pickers deleted first: the size action keeps the last size and its slots do nothing.
        sizePicker->setCurrentIndex(sizePicker->findText(QStringLiteral("9")));
        delete window;
        QCOMPARE(int(size.fontSize()), 9);
        size.setFontSize(3);
        size.updateFontSize(20);
        QCOMPARE(int(size.fontSize()), 20);
    }

    void fontFamilyReachesEveryPickerOnce()
    {
        const QStringList families = QFontDatabase().families();
        if (families.size() < 2)
            QSKIP("needs two font families");

        RibbonCatFontFamilyAction action(QFont(families.at(0)), nullptr);
        QWidget window;
        const auto [first, second] = showPair<RibbonCatFontFamilyComboBox>(window, action);
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QCOMPARE(first->size(), QSize(highDpi() ? 210 : 140, 22));

        QSignalSpy changed(&action, SIGNAL(fontFamilyChanged(QFont)));
        QSignalSpy activated(&action, SIGNAL(ribbonActionActivated()));
        // Set by the host. A picker knows only the family; were it to echo, the size would be lost.
        action.setFontFamily(QFont(families.at(1), 13));
        QCOMPARE(second->currentFont().family(), families.at(1));
        QCoreApplication::processEvents();
        QCOMPARE(changed.count(), 1);
        QCOMPARE(activated.count(), 1);
        QCOMPARE(action.fontFamily().pointSize(), 13);
        action.setFontFamily(QFont(families.at(1), 13));
        QCOMPARE(changed.count(), 1);
        QVERIFY(!first->signalsBlocked()); // pickers talk again once back in the event loop

        chooseFromList(first, 0);
        QCOMPARE(changed.count(), 2);
        QCOMPARE(action.fontFamily().family(), first->itemText(0));
        QCOMPARE(second->currentIndex(), 0);
        QCoreApplication::processEvents();
        chooseFromList(second, 1);
        QCOMPARE(changed.count(), 3);
        QCOMPARE(first->currentIndex(), 1);
    }

    void fontSizeChosen_data()
    {
        QTest::addColumn<QString>("entry");
        QTest::addColumn<bool>("typed");
        QTest::addColumn<int>("expected");
        QTest::addColumn<int>("emissions");
        QTest::newRow("listed") << QStringLiteral("24") << false << 24 << 1;
        QTest::newRow("first entry") << QStringLiteral("11") << false << 11 << 0;
        QTest::newRow("typed, not listed") << QStringLiteral("13") << true << 13 << 1;
        QTest::newRow("typed, listed") << QStringLiteral("36") << true << 36 << 1;
        QTest::newRow("typed, same") << QStringLiteral("11") << true << 11 << 0;
        QTest::newRow("typed letters") << QStringLiteral("ab") << true << 11 << 0;
    }

    // The current size heads the standard list; typed sizes never grow the list.
    void fontSizeChosen()
    {
        QFETCH(QString, entry);
        QFETCH(bool, typed);
        QFETCH(int, expected);
        QFETCH(int, emissions);

        SizePicker p(11);
        QVERIFY(p.combo && QTest::qWaitForWindowExposed(&p.bar));
        QCOMPARE(comboTexts(p.combo),
                 QStringLiteral("11,8,9,10,11,12,14,16,18,20,24,28,32,36,40,48,72").split(QLatin1Char(',')));
        QSignalSpy changed(&p.action, SIGNAL(fontSizeChanged(int)));
        QSignalSpy activated(&p.action, SIGNAL(ribbonActionActivated()));
        if (typed) {
            p.combo->setFocus();
            p.combo->lineEdit()->selectAll();
            QTest::keyClicks(p.combo, entry);
            QTest::keyClick(p.combo, Qt::Key_Return);
        } else {
            chooseFromList(p.combo, p.combo->findText(entry));
        }
        QCOMPARE(changed.count(), emissions);
        if (emissions)
            QCOMPARE(changed.at(0).at(0).toInt(), expected);
        if (!typed)
            QCOMPARE(activated.count(), emissions);
        QCOMPARE(int(p.action.fontSize()), expected);
        QCOMPARE(p.combo->itemText(0), QString::number(expected));
        QCOMPARE(p.combo->currentIndex(), 0);
        QCOMPARE(p.combo->count(), 17);
    }

    // Pickers in two tool bars and one made outside any tool bar share the size; host updates
    // ignore bad sizes and do not signal, but become what the next choice is compared with.
    void fontSizePickersStayInStep()
    {
        SizePicker p(10);
        QToolBar second;
        second.addAction(&p.action);
        auto *newer = qobject_cast<QComboBox *>(second.widgetForAction(&p.action));
        QVERIFY(p.combo && newer && p.combo != newer);
        QWidget group;
        QComboBox *loose = p.action.createComboBox(&group);
        QVERIFY(loose);
        QCOMPARE(loose->parentWidget(), &group);
        QCOMPARE(loose->height(), 22);
        QCOMPARE(loose->currentText(), QStringLiteral("10"));

        QSignalSpy changed(&p.action, SIGNAL(fontSizeChanged(int)));
        p.combo->setCurrentIndex(p.combo->findText(QStringLiteral("48")));
        QCOMPARE(newer->currentText(), QStringLiteral("48"));
        QCOMPARE(int(p.action.fontSize()), 48);
        loose->setCurrentIndex(loose->findText(QStringLiteral("20")));
        QCOMPARE(p.combo->currentText(), QStringLiteral("20"));
        QCOMPARE(changed.count(), 2);

        p.action.updateFontSize(0);
        p.action.updateFontSize(-4);
        QCOMPARE(p.combo->itemText(0), QStringLiteral("20"));
        p.action.updateFontSize(14);
        QCOMPARE(newer->currentText(), QStringLiteral("14"));
        QCOMPARE(int(p.action.fontSize()), 14);
        QCOMPARE(changed.count(), 2);
        p.combo->setCurrentIndex(p.combo->findText(QStringLiteral("20"), Qt::MatchExactly));
        QCOMPARE(changed.count(), 3);
        QCOMPARE(changed.at(2).at(0).toInt(), 20);
    }
};

ZEL_TEST_MAIN(tst_ValueControls)
#include "tst_valuecontrols.moc"
