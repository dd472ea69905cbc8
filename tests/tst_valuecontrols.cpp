// ZEL_TEST_DPI_SENSITIVE: the check box height scales with the resolution.
#include "ZelTest.h"

#include "RibbonCatCheckBox.h"
#include "RibbonCatCheckBoxAction.h"
#include "RibbonCatComboAction.h"
#include "RibbonCatComboComboBox.h"
#include "RibbonCatComboWidget.h"
#include "RibbonCatFontFamilyAction.h"
#include "RibbonCatFontFamilyComboBox.h"
#include "RibbonCatFontSizeAction.h"
#include "RibbonScale_p.h"
#include "RibbonStyle.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QFontDatabase>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QToolBar>

#include <utility>

using namespace zel;

namespace {

QStringList comboTexts(const QComboBox *combo)
{
    QStringList texts;
    for (int i = 0; i < combo->count(); ++i)
        texts << combo->itemText(i);
    return texts;
}

// Picks an entry the way a user does: opens the list, points at the entry (which makes
// it current) and accepts it with Return.
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

// A font size action with its picker in a tool bar.
struct SizePicker
{
    explicit SizePicker(int size) : action(size, nullptr)
    {
        bar.addAction(&action);
        combo = qobject_cast<QComboBox *>(bar.widgetForAction(&action));
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
    // Check box -------------------------------------------------------------------------

    void checkBoxMirrorsItsAction()
    {
        RibbonCatCheckBoxAction action(QStringLiteral("Ruler"), nullptr);
        action.setChecked(true);
        RibbonCatCheckBox box(action, nullptr);
        QCOMPARE(box.text(), QStringLiteral("Ruler"));
        QVERIFY(box.isChecked());
        const QString color = RibbonApplication::theApp().ribbonStyle().normalCategoryTextColor().name();
        QCOMPARE(box.styleSheet(), QStringLiteral("QCheckBox { color: ") + color + QStringLiteral("; }"));
        QCOMPARE(box.sizeHint(), QSize(box.fontMetrics().horizontalAdvance(QStringLiteral("Ruler")) + 20,
                                       scaled(22)));

        RibbonCatCheckBoxAction unlabelled(nullptr);
        QCOMPARE(RibbonCatCheckBox(unlabelled, nullptr).sizeHint(), QSize(20, scaled(22)));
    }

    void checkBoxClickTriggersWithTheNewState()
    {
        RibbonCatCheckBoxAction action(QStringLiteral("Gridlines"), nullptr);
        QWidget window;
        const auto boxes = showPair<RibbonCatCheckBox>(window, action);
        QVERIFY(QTest::qWaitForWindowExposed(&window));

        QSignalSpy triggered(&action, SIGNAL(triggered(bool)));
        QSignalSpy toggled(&action, SIGNAL(toggled(bool)));
        QTest::mouseClick(boxes.first, Qt::LeftButton, Qt::NoModifier, QPoint(6, boxes.first->height() / 2));
        QCOMPARE(triggered.count(), 1);
        QCOMPARE(triggered.at(0).at(0).toBool(), true);
        QCOMPARE(toggled.count(), 1);
        QVERIFY(action.isChecked() && boxes.first->isChecked() && boxes.second->isChecked());

        QTest::mouseClick(boxes.second, Qt::LeftButton, Qt::NoModifier, QPoint(6, boxes.second->height() / 2));
        QCOMPARE(triggered.count(), 2);
        QCOMPARE(triggered.at(1).at(0).toBool(), false);
        QVERIFY(!boxes.first->isChecked());

        // Set by the host: the boxes follow without a trigger.
        action.setChecked(true);
        QVERIFY(boxes.first->isChecked() && boxes.second->isChecked());
        QCOMPARE(triggered.count(), 2);
    }

    void checkBoxFollowsEnabledStateAndLabel()
    {
        RibbonCatCheckBoxAction action(QStringLiteral("Wrap"), nullptr);
        RibbonCatCheckBox box(action, nullptr);
        QSignalSpy enabled(&action, SIGNAL(actionEnabled(bool)));

        action.setEnabled(false);
        QVERIFY(!box.isEnabled());
        QCOMPARE(enabled.count(), 1);
        QCOMPARE(enabled.at(0).at(0).toBool(), false);
        // Every change re-sends the enabled state, even when only the text changed.
        action.setToolTip(QStringLiteral("Wrap long lines"));
        QCOMPARE(enabled.count(), 2);
        QCOMPARE(box.toolTip(), QStringLiteral("Wrap long lines"));
        action.setEnabled(true);
        QVERIFY(box.isEnabled());

        action.setTextLabel(QStringLiteral("Wrap text"));
        QCOMPARE(box.text(), QStringLiteral("Wrap text"));
        const int count = enabled.count();
        action.setTextLabel(QStringLiteral("Wrap text"));
        QCOMPARE(enabled.count(), count);

        action.setEnabled(false);
        QVERIFY(!RibbonCatCheckBox(action, nullptr).isEnabled());
    }

    void checkBoxSurvivesItsAction()
    {
        auto *action = new RibbonCatCheckBoxAction(QStringLiteral("Temp"), nullptr);
        RibbonCatCheckBox box(*action, nullptr);
        delete action;
        box.click();
        QVERIFY(box.isChecked());
    }

    // Combo -----------------------------------------------------------------------------

    void comboSelectionByIndex_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("emissions");

        QTest::newRow("second item") << 1 << QStringLiteral("B") << 1;
        QTest::newRow("already selected") << 0 << QStringLiteral("A") << 0;
        QTest::newRow("past the end") << 7 << QStringLiteral("A") << 0;
        QTest::newRow("negative") << -1 << QStringLiteral("A") << 0;
    }

    void comboSelectionByIndex()
    {
        QFETCH(int, index);
        QFETCH(QString, text);
        QFETCH(int, emissions);

        RibbonCatComboAction action(nullptr);
        for (const char *item : {"A", "B", "C"})
            action.addItem(QLatin1String(item));
        action.setSelectionText(QStringLiteral("A"));

        QSignalSpy changed(&action, SIGNAL(selectionTextChanged()));
        QSignalSpy indexChanged(&action, SIGNAL(selectionIndexChanged()));
        action.setSelectionIndex(index);
        QCOMPARE(action.selectionText(), text);
        QCOMPARE(changed.count(), emissions);
        QCOMPARE(indexChanged.count(), 0);
        QCOMPARE(action.selectionIndex(), action.items().indexOf(text));
    }

    void comboSelectionTextRules()
    {
        RibbonCatComboAction action(QStringLiteral("Style"), nullptr);
        QCOMPARE(action.selectionIndex(), -1);
        QCOMPARE(action.iconWidth(), 22);
        QVERIFY(action.isEditable());
        QVERIFY(!action.isSearchable());

        QSignalSpy changed(&action, SIGNAL(selectionTextChanged()));
        action.setSelectionText(QString());
        QCOMPARE(changed.count(), 0);
        action.setSelectionText(QStringLiteral("Free text"));
        QCOMPARE(changed.count(), 1);
        QCOMPARE(action.selectionIndex(), -1);
        action.setSelectionText(QStringLiteral("Free text"));
        QCOMPARE(changed.count(), 1);

        QSignalSpy editable(&action, SIGNAL(editableChanged()));
        action.setEditable(true);
        QCOMPARE(editable.count(), 0);
        action.setEditable(false);
        QCOMPARE(editable.count(), 1);

        QSignalSpy keys(&action, SIGNAL(keyPressed(int)));
        action.emitKeyPressed(Qt::Key_F4);
        QCOMPARE(keys.count(), 1);
        QCOMPARE(keys.at(0).at(0).toInt(), int(Qt::Key_F4));
    }

    void comboItemsReachEveryBox()
    {
        RibbonCatComboAction action(nullptr);
        action.setEditable(false);
        action.addItem(QStringLiteral("Left"));
        RibbonCatComboComboBox box(action, nullptr);
        QCOMPARE(box.size(), QSize(48, 22));
        QVERIFY(!box.isEditable());

        QSignalSpy added(&action, SIGNAL(itemAdded(QIcon, QString)));
        QPixmap red(16, 16);
        red.fill(Qt::red);
        action.addItem(QIcon(red), QStringLiteral("Right"));
        QCOMPARE(added.count(), 1);
        QCOMPARE(comboTexts(&box), QStringList({QStringLiteral("Left"), QStringLiteral("Right")}));
        QVERIFY(!box.itemIcon(1).isNull());

        // Icons stay parallel to the items, so a box made now shows each at its place.
        action.addItem(QStringLiteral("Centre"));
        QCOMPARE(action.icons().size(), action.items().size());
        RibbonCatComboComboBox late(action, nullptr);
        QCOMPARE(late.count(), 3);
        QVERIFY(late.itemIcon(0).isNull());
        QVERIFY(!late.itemIcon(1).isNull());
        QCOMPARE(late.itemText(2), QStringLiteral("Centre"));

        action.setEditable(true);
        QVERIFY(box.isEditable() && late.isEditable());
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
        QCOMPARE(changed.count(), 1);
        QCOMPARE(second->currentIndex(), 1);

        chooseFromList(second, 2);
        QCOMPARE(action.selectionText(), QStringLiteral("Blue"));
        QCOMPARE(first->currentText(), QStringLiteral("Blue"));
        QCOMPARE(changed.count(), 2);

        // The host selects: both boxes follow and nothing echoes back.
        action.setSelectionIndex(0);
        QCOMPARE(first->currentIndex(), 0);
        QCOMPARE(second->currentIndex(), 0);
        QCOMPARE(changed.count(), 3);

        action.setEnabled(false);
        QVERIFY(!first->isEnabled() && !second->isEnabled());
    }

    void comboInputOptions()
    {
        QIntValidator validator(0, 99);
        RibbonCatComboAction action(nullptr);
        action.setComboInputMask(QStringLiteral("99"));
        action.setValidator(&validator);
        action.setWidth(80);
        action.setIconWidth(30);
        RibbonCatComboComboBox box(action, nullptr);
        QCOMPARE(box.lineEdit()->inputMask(), QStringLiteral("99"));
        QCOMPARE(box.validator(), &validator);
        QCOMPARE(box.width(), 80);
        QCOMPARE(box.iconSize(), QSize(30, 22));

        // Editable: a free selection is shown as text, a listed one as the entry.
        RibbonCatComboAction plain(nullptr);
        plain.addItem(QStringLiteral("100%"));
        plain.setSelectionText(QStringLiteral("75%"));
        RibbonCatComboComboBox plainBox(plain, nullptr);
        QVERIFY(plainBox.lineEdit()->inputMask().isEmpty());
        QVERIFY(!plainBox.validator());
        QCOMPARE(plainBox.currentIndex(), -1);
        QCOMPARE(plainBox.currentText(), QStringLiteral("75%"));
        plain.setSelectionText(QStringLiteral("100%"));
        QCOMPARE(plainBox.currentIndex(), 0);
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
        QCOMPARE(box.lineEdit()->text(), QStringLiteral("needle"));
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
        QCOMPARE(widget.size(), QSize(labelWidth + 58, 22));
        QCOMPARE(widget.minimumSize(), widget.maximumSize());
        QCOMPARE(widget.sizePolicy().horizontalPolicy(), QSizePolicy::Minimum);
        QCOMPARE(widget.sizePolicy().verticalPolicy(), QSizePolicy::Fixed);

        RibbonCatComboAction above(QStringLiteral("Zoom:"), nullptr);
        above.setVerticalAligned(true);
        RibbonCatComboWidget stacked(above, nullptr);
        auto *grid = qobject_cast<QGridLayout *>(stacked.layout());
        QVERIFY(grid);
        QCOMPARE(grid->rowCount(), 3);
        int row = -1, column = -1, rowSpan = 0, columnSpan = 0;
        grid->getItemPosition(grid->indexOf(stacked.comboBox()), &row, &column, &rowSpan, &columnSpan);
        QCOMPARE(QPoint(column, row), QPoint(0, 1));
        QVERIFY(stacked.sizeHint().height() > 22);

        RibbonCatComboAction unlabelled(nullptr);
        RibbonCatComboWidget bare(unlabelled, nullptr);
        QVERIFY(bare.maximumWidth() > 1000);
        QVERIFY(bare.sizeHint().width() >= 48);
    }

    void toolBarsGetWidgetsOthersDoNot()
    {
        RibbonCatComboAction combo(nullptr);
        RibbonCatFontFamilyAction family(QFont(), nullptr);
        RibbonCatFontSizeAction size(11, nullptr);
        QToolBar bar;
        bar.addActions({&combo, &family, &size});
        QVERIFY(qobject_cast<RibbonCatComboComboBox *>(bar.widgetForAction(&combo)));
        QVERIFY(qobject_cast<RibbonCatFontFamilyComboBox *>(bar.widgetForAction(&family)));
        QVERIFY(qobject_cast<QComboBox *>(bar.widgetForAction(&size)));

        QWidget plain;
        QCOMPARE(combo.createWidget(&plain), nullptr);
        QCOMPARE(family.createWidget(&plain), nullptr);
        QCOMPARE(size.createWidget(&plain), nullptr);
        QCOMPARE(combo.createWidget(nullptr), nullptr);
    }

    void widgetsOutliveTheirActions()
    {
        auto *combo = new RibbonCatComboAction(QStringLiteral("Zoom:"), nullptr);
        combo->addItem(QStringLiteral("100%"));
        auto *family = new RibbonCatFontFamilyAction(QFont(), nullptr);
        QWidget window;
        auto *box = new RibbonCatComboComboBox(*combo, &window);
        auto *labelled = new RibbonCatComboWidget(*combo, &window);
        auto *picker = new RibbonCatFontFamilyComboBox(*family, &window);
        delete combo;
        delete family;
        QVERIFY(box->actions().isEmpty());
        QVERIFY(picker->actions().isEmpty());
        QTest::keyClick(box, Qt::Key_A);
        QTest::keyClick(labelled->comboBox(), Qt::Key_Return);
        box->updateActionSelection(QStringLiteral("100%"));
        QCOMPARE(box->currentIndex(), 0);
        box->onEditableChanged();
        QCoreApplication::processEvents();
        QVERIFY(!picker->signalsBlocked());
    }

    // Font family -----------------------------------------------------------------------

    void fontFamilyReachesEveryPickerOnce()
    {
        const QStringList families = QFontDatabase().families();
        if (families.size() < 2)
            QSKIP("needs two font families");

        RibbonCatFontFamilyAction action(QFont(families.at(0)), nullptr);
        QWidget window;
        const auto [first, second] = showPair<RibbonCatFontFamilyComboBox>(window, action);
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QCOMPARE(first->size(), QSize(140, 22));
        QCOMPARE(first->currentFont().family(), families.at(0));

        QSignalSpy changed(&action, SIGNAL(fontFamilyChanged(QFont)));
        QSignalSpy activated(&action, SIGNAL(ribbonActionActivated()));
        // Set by the host. A picker knows only the family; were it to echo, the size would be lost.
        action.setFontFamily(QFont(families.at(1), 13));
        QCOMPARE(first->currentFont().family(), families.at(1));
        QCOMPARE(second->currentFont().family(), families.at(1));
        QCoreApplication::processEvents();
        QCOMPARE(changed.count(), 1);
        QCOMPARE(activated.count(), 1);
        QCOMPARE(action.fontFamily().family(), families.at(1));
        QCOMPARE(action.fontFamily().pointSize(), 13);
        action.setFontFamily(QFont(families.at(1), 13));
        QCOMPARE(changed.count(), 1);
        // Pickers talk again once control returned to the event loop.
        QVERIFY(!first->signalsBlocked());

        // Chosen by the user in either picker.
        chooseFromList(first, 0);
        QCOMPARE(changed.count(), 2);
        QCOMPARE(action.fontFamily().family(), first->itemText(0));
        QCOMPARE(second->currentIndex(), 0);
        QCoreApplication::processEvents();
        chooseFromList(second, 1);
        QCOMPARE(changed.count(), 3);
        QCOMPARE(first->currentIndex(), 1);
    }

    // Font size -------------------------------------------------------------------------

    void fontSizeChosenFromTheList()
    {
        SizePicker p(11);
        QVERIFY(p.combo);
        // The current size heads the standard list.
        QCOMPARE(comboTexts(p.combo),
                 QStringLiteral("11,8,9,10,11,12,14,16,18,20,24,28,32,36,40,48,72").split(QLatin1Char(',')));
        QCOMPARE(p.combo->currentIndex(), 0);
        p.bar.show();
        QVERIFY(QTest::qWaitForWindowExposed(&p.bar));

        QSignalSpy changed(&p.action, SIGNAL(fontSizeChanged(int)));
        QSignalSpy activated(&p.action, SIGNAL(ribbonActionActivated()));
        chooseFromList(p.combo, p.combo->findText(QStringLiteral("24")));
        QCOMPARE(changed.count(), 1);
        QCOMPARE(changed.at(0).at(0).toInt(), 24);
        QCOMPARE(activated.count(), 1);
        QCOMPARE(p.combo->itemText(0), QStringLiteral("24"));
        QCOMPARE(p.combo->currentIndex(), 0);
        QCOMPARE(int(p.action.fontSize()), 24);

        // The first entry is the size already set: nothing.
        chooseFromList(p.combo, 0);
        QCOMPARE(changed.count(), 1);
        QCOMPARE(p.combo->count(), 17);
    }

    void fontSizeTyped_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<int>("expected");
        QTest::addColumn<int>("emissions");
        QTest::newRow("size not in the list") << QStringLiteral("13") << 13 << 1;
        QTest::newRow("size in the list") << QStringLiteral("36") << 36 << 1;
        QTest::newRow("same size") << QStringLiteral("11") << 11 << 0;
        QTest::newRow("letters are refused") << QStringLiteral("ab") << 11 << 0;
    }

    void fontSizeTyped()
    {
        QFETCH(QString, typed);
        QFETCH(int, expected);
        QFETCH(int, emissions);

        SizePicker p(11);
        p.bar.show();
        QVERIFY(QTest::qWaitForWindowExposed(&p.bar));
        p.combo->setFocus();
        QSignalSpy changed(&p.action, SIGNAL(fontSizeChanged(int)));
        p.combo->lineEdit()->selectAll();
        QTest::keyClicks(p.combo, typed);
        QTest::keyClick(p.combo, Qt::Key_Return);
        QCOMPARE(changed.count(), emissions);
        if (emissions)
            QCOMPARE(changed.at(0).at(0).toInt(), expected);
        QCOMPARE(int(p.action.fontSize()), expected);
        QCOMPARE(p.combo->itemText(0), QString::number(expected));
        QCOMPARE(p.combo->currentIndex(), 0);
        QCOMPARE(p.combo->count(), 17); // typed sizes never grow the list
    }

    void fontSizePickersStayInStep()
    {
        SizePicker p(10);
        QToolBar second;
        second.addAction(&p.action);
        auto *newer = qobject_cast<QComboBox *>(second.widgetForAction(&p.action));
        QVERIFY(p.combo && newer && p.combo != newer);
        // A picker made outside any tool bar takes part too.
        QWidget group;
        QComboBox *loose = p.action.createComboBox(&group);
        QVERIFY(loose);
        QCOMPARE(loose->parentWidget(), &group);
        QCOMPARE(loose->height(), 22);
        QCOMPARE(loose->currentText(), QStringLiteral("10"));

        QSignalSpy changed(&p.action, SIGNAL(fontSizeChanged(int)));
        p.combo->setCurrentIndex(p.combo->findText(QStringLiteral("48")));
        QCOMPARE(changed.count(), 1);
        QCOMPARE(changed.at(0).at(0).toInt(), 48);
        QCOMPARE(newer->currentText(), QStringLiteral("48"));
        QCOMPARE(p.combo->currentText(), QStringLiteral("48"));
        QCOMPARE(int(p.action.fontSize()), 48);
        loose->setCurrentIndex(loose->findText(QStringLiteral("20")));
        QCOMPARE(changed.count(), 2);
        QCOMPARE(int(p.action.fontSize()), 20);
    }

    void fontSizeUpdatedByTheHost()
    {
        SizePicker p(11);
        QSignalSpy changed(&p.action, SIGNAL(fontSizeChanged(int)));
        p.action.updateFontSize(0);
        p.action.updateFontSize(-4);
        QCOMPARE(p.combo->itemText(0), QStringLiteral("11"));

        p.action.updateFontSize(14);
        QCOMPARE(p.combo->itemText(0), QStringLiteral("14"));
        QCOMPARE(p.combo->currentText(), QStringLiteral("14"));
        QCOMPARE(int(p.action.fontSize()), 14);
        QCOMPARE(changed.count(), 0);

        // The shown size is the one the next choice is compared with.
        p.combo->setCurrentIndex(p.combo->findText(QStringLiteral("11"), Qt::MatchExactly));
        QCOMPARE(p.combo->currentText(), QStringLiteral("11"));
        QCOMPARE(changed.count(), 1);
        QCOMPARE(changed.at(0).at(0).toInt(), 11);
    }

    void fontSizeWithoutPicker()
    {
        auto *bar = new QToolBar;
        RibbonCatFontSizeAction action(12, nullptr);
        QCOMPARE(int(action.fontSize()), 12);
        bar->addAction(&action);
        auto *combo = qobject_cast<QComboBox *>(bar->widgetForAction(&action));
        combo->setCurrentIndex(combo->findText(QStringLiteral("9")));
        delete bar;
        // The picker is gone: the action keeps the last size and its slots do nothing.
        QCOMPARE(int(action.fontSize()), 9);
        action.setFontSize(3);
        action.updateFontSize(20);
        QCOMPARE(int(action.fontSize()), 20);
    }
};

ZEL_TEST_MAIN(tst_ValueControls)
#include "tst_valuecontrols.moc"
