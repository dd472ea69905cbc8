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

#include <memory>

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

QString otherFamily(const QString &family)
{
    const QStringList families = QFontDatabase().families();
    for (const QString &candidate : families) {
        if (candidate != family)
            return candidate;
    }
    return QString();
}

} // namespace

class tst_ValueControls : public QObject
{
    Q_OBJECT

private slots:
    // Check box -------------------------------------------------------------------------

    void checkBoxMirrorsItsAction()
    {
        RibbonCatCheckBoxAction action(QStringLiteral("Ruler"), nullptr);
        QCOMPARE(action.textLabel(), QStringLiteral("Ruler"));
        action.setChecked(true);

        RibbonCatCheckBox box(action, nullptr);
        QCOMPARE(box.text(), QStringLiteral("Ruler"));
        QVERIFY(box.isChecked());
        const QString color = RibbonApplication::theApp().ribbonStyle().normalCategoryTextColor().name();
        QCOMPARE(box.styleSheet(), QStringLiteral("QCheckBox { color: ") + color + QStringLiteral("; }"));
        QCOMPARE(box.sizeHint(), QSize(box.fontMetrics().horizontalAdvance(QStringLiteral("Ruler")) + 20,
                                       scaled(22)));

        RibbonCatCheckBoxAction unlabelled(nullptr);
        RibbonCatCheckBox empty(unlabelled, nullptr);
        QCOMPARE(empty.sizeHint(), QSize(20, scaled(22)));
    }

    void checkBoxClickTriggersWithTheNewState()
    {
        RibbonCatCheckBoxAction action(QStringLiteral("Gridlines"), nullptr);
        QWidget window;
        auto *layout = new QVBoxLayout(&window);
        auto *first = new RibbonCatCheckBox(action, &window);
        auto *second = new RibbonCatCheckBox(action, &window);
        layout->addWidget(first);
        layout->addWidget(second);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));

        QSignalSpy triggered(&action, SIGNAL(triggered(bool)));
        QSignalSpy toggled(&action, SIGNAL(toggled(bool)));
        QTest::mouseClick(first, Qt::LeftButton, Qt::NoModifier, QPoint(6, first->height() / 2));
        QCOMPARE(triggered.count(), 1);
        QCOMPARE(triggered.at(0).at(0).toBool(), true);
        QCOMPARE(toggled.count(), 1);
        QVERIFY(action.isChecked());
        QVERIFY(first->isChecked());
        QVERIFY(second->isChecked());

        QTest::mouseClick(second, Qt::LeftButton, Qt::NoModifier, QPoint(6, second->height() / 2));
        QCOMPARE(triggered.count(), 2);
        QCOMPARE(triggered.at(1).at(0).toBool(), false);
        QVERIFY(!first->isChecked());

        // The host sets the state: the boxes follow without a trigger.
        action.setChecked(true);
        QVERIFY(first->isChecked() && second->isChecked());
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

        // A box made for a disabled action starts disabled.
        action.setEnabled(false);
        RibbonCatCheckBox late(action, nullptr);
        QVERIFY(!late.isEnabled());
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
        action.addItem(QStringLiteral("A"));
        action.addItem(QStringLiteral("B"));
        action.addItem(QStringLiteral("C"));
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
        QCOMPARE(action.comboLabel(), QStringLiteral("Style"));
        QCOMPARE(action.selectionIndex(), -1);
        QCOMPARE(action.width(), 48);
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
        QCOMPARE(comboTexts(&box), QStringList() << QStringLiteral("Left"));
        QCOMPARE(box.width(), 48);
        QCOMPARE(box.height(), 22);
        QVERIFY(!box.isEditable());

        QSignalSpy added(&action, SIGNAL(itemAdded(QIcon, QString)));
        QPixmap red(16, 16);
        red.fill(Qt::red);
        action.addItem(QIcon(red), QStringLiteral("Right"));
        QCOMPARE(added.count(), 1);
        QCOMPARE(comboTexts(&box), QStringList() << QStringLiteral("Left") << QStringLiteral("Right"));
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
        QVERIFY(box.isEditable());
        QVERIFY(late.isEditable());
    }

    void twoCombosOfOneActionStayInStep()
    {
        RibbonCatComboAction action(nullptr);
        action.setEditable(false);
        for (const char *item : {"Red", "Green", "Blue"})
            action.addItem(QLatin1String(item));
        action.setSelectionText(QStringLiteral("Red"));

        QWidget window;
        auto *layout = new QHBoxLayout(&window);
        auto *first = new RibbonCatComboComboBox(action, &window);
        auto *second = new RibbonCatComboComboBox(action, &window);
        layout->addWidget(first);
        layout->addWidget(second);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QCOMPARE(first->currentText(), QStringLiteral("Red"));
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
        QVERIFY(!first->isEnabled());
        QVERIFY(!second->isEnabled());
    }

    void editableComboShowsFreeSelection()
    {
        RibbonCatComboAction action(nullptr);
        action.addItem(QStringLiteral("100%"));
        action.setSelectionText(QStringLiteral("75%"));
        RibbonCatComboComboBox box(action, nullptr);
        QCOMPARE(box.currentIndex(), -1);
        QCOMPARE(box.currentText(), QStringLiteral("75%"));

        action.setSelectionText(QStringLiteral("100%"));
        QCOMPARE(box.currentIndex(), 0);
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

        RibbonCatComboAction plain(nullptr);
        RibbonCatComboComboBox plainBox(plain, nullptr);
        QVERIFY(plainBox.lineEdit()->inputMask().isEmpty());
        QVERIFY(!plainBox.validator());
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
        QCOMPARE(row, 1);
        QCOMPARE(column, 0);
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
        bar.addAction(&combo);
        bar.addAction(&family);
        bar.addAction(&size);
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

    void fontFamilySetByTheHostReachesEveryPickerOnce()
    {
        const QString start = QFontDatabase().families().value(0);
        const QString next = otherFamily(start);
        if (next.isEmpty())
            QSKIP("needs two font families");

        RibbonCatFontFamilyAction action(QFont(start), nullptr);
        RibbonCatFontFamilyComboBox first(action, nullptr);
        RibbonCatFontFamilyComboBox second(action, nullptr);
        QCOMPARE(first.width(), 140);
        QCOMPARE(first.height(), 22);
        QCOMPARE(first.currentFont().family(), start);

        QSignalSpy changed(&action, SIGNAL(fontFamilyChanged(QFont)));
        QSignalSpy activated(&action, SIGNAL(ribbonActionActivated()));
        // A picker knows only the family; were it to echo, the size would be lost.
        action.setFontFamily(QFont(next, 13));
        QCOMPARE(first.currentFont().family(), next);
        QCOMPARE(second.currentFont().family(), next);
        QCoreApplication::processEvents();
        QCOMPARE(changed.count(), 1);
        QCOMPARE(activated.count(), 1);
        QCOMPARE(action.fontFamily().family(), next);
        QCOMPARE(action.fontFamily().pointSize(), 13);

        // Same font again: nothing.
        action.setFontFamily(QFont(next, 13));
        QCOMPARE(changed.count(), 1);

        // Pickers talk again once control returned to the event loop.
        QVERIFY(!first.signalsBlocked());
    }

    void fontFamilyChosenByTheUserReachesTheAction()
    {
        const QString start = QFontDatabase().families().value(0);
        if (otherFamily(start).isEmpty())
            QSKIP("needs two font families");

        RibbonCatFontFamilyAction action(QFont(start), nullptr);
        QWidget window;
        auto *layout = new QHBoxLayout(&window);
        auto *first = new RibbonCatFontFamilyComboBox(action, &window);
        auto *second = new RibbonCatFontFamilyComboBox(action, &window);
        layout->addWidget(first);
        layout->addWidget(second);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QCoreApplication::processEvents();

        QSignalSpy changed(&action, SIGNAL(fontFamilyChanged(QFont)));
        chooseFromList(first, 1);
        QCOMPARE(changed.count(), 1);
        const QString chosen = first->itemText(1);
        QCOMPARE(action.fontFamily().family(), chosen);
        QCOMPARE(second->currentFont().family(), chosen);
        QCoreApplication::processEvents();

        chooseFromList(second, 0);
        QCOMPARE(changed.count(), 2);
        QCOMPARE(first->currentIndex(), 0);
    }

    // Font size -------------------------------------------------------------------------

    void fontSizeListShowsTheCurrentSizeFirst()
    {
        RibbonCatFontSizeAction action(11, nullptr);
        QCOMPARE(int(action.fontSize()), 11);
        QToolBar bar;
        bar.addAction(&action);
        auto *combo = qobject_cast<QComboBox *>(bar.widgetForAction(&action));
        QVERIFY(combo);
        const QStringList expected = QStringLiteral("11,8,9,10,11,12,14,16,18,20,24,28,32,36,40,48,72")
                                         .split(QLatin1Char(','));
        QCOMPARE(comboTexts(combo), expected);
        QCOMPARE(combo->currentIndex(), 0);
        QCOMPARE(combo->currentText(), QStringLiteral("11"));
    }

    void fontSizeChosenFromTheList()
    {
        RibbonCatFontSizeAction action(11, nullptr);
        QToolBar bar;
        bar.addAction(&action);
        auto *combo = qobject_cast<QComboBox *>(bar.widgetForAction(&action));
        bar.show();
        QVERIFY(QTest::qWaitForWindowExposed(&bar));

        QSignalSpy changed(&action, SIGNAL(fontSizeChanged(int)));
        QSignalSpy activated(&action, SIGNAL(ribbonActionActivated()));
        chooseFromList(combo, combo->findText(QStringLiteral("24")));
        QCOMPARE(changed.count(), 1);
        QCOMPARE(changed.at(0).at(0).toInt(), 24);
        QCOMPARE(activated.count(), 1);
        QCOMPARE(combo->itemText(0), QStringLiteral("24"));
        QCOMPARE(combo->currentIndex(), 0);
        QCOMPARE(int(action.fontSize()), 24);

        // The first entry is the size already set: nothing.
        chooseFromList(combo, 0);
        QCOMPARE(changed.count(), 1);
        QCOMPARE(combo->count(), 17);
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

        RibbonCatFontSizeAction action(11, nullptr);
        QToolBar bar;
        bar.addAction(&action);
        auto *combo = qobject_cast<QComboBox *>(bar.widgetForAction(&action));
        bar.show();
        QVERIFY(QTest::qWaitForWindowExposed(&bar));
        combo->setFocus();

        QSignalSpy changed(&action, SIGNAL(fontSizeChanged(int)));
        combo->lineEdit()->selectAll();
        QTest::keyClicks(combo, typed);
        QTest::keyClick(combo, Qt::Key_Return);
        QCOMPARE(changed.count(), emissions);
        if (emissions)
            QCOMPARE(changed.at(0).at(0).toInt(), expected);
        QCOMPARE(int(action.fontSize()), expected);
        QCOMPARE(combo->itemText(0), QString::number(expected));
        QCOMPARE(combo->currentIndex(), 0);
        // Typed sizes never grow the list.
        QCOMPARE(combo->count(), 17);
    }

    void fontSizePickersStayInStep()
    {
        RibbonCatFontSizeAction action(10, nullptr);
        QToolBar first;
        QToolBar second;
        first.addAction(&action);
        second.addAction(&action);
        auto *older = qobject_cast<QComboBox *>(first.widgetForAction(&action));
        auto *newer = qobject_cast<QComboBox *>(second.widgetForAction(&action));
        QVERIFY(older && newer && older != newer);

        QSignalSpy changed(&action, SIGNAL(fontSizeChanged(int)));
        older->setCurrentIndex(older->findText(QStringLiteral("48")));
        QCOMPARE(changed.count(), 1);
        QCOMPARE(changed.at(0).at(0).toInt(), 48);
        QCOMPARE(newer->currentText(), QStringLiteral("48"));
        QCOMPARE(older->currentText(), QStringLiteral("48"));
        QCOMPARE(int(action.fontSize()), 48);
    }

    void fontSizeUpdatedByTheHost()
    {
        RibbonCatFontSizeAction action(11, nullptr);
        QToolBar bar;
        bar.addAction(&action);
        auto *combo = qobject_cast<QComboBox *>(bar.widgetForAction(&action));

        QSignalSpy changed(&action, SIGNAL(fontSizeChanged(int)));
        action.updateFontSize(0);
        action.updateFontSize(-4);
        QCOMPARE(combo->itemText(0), QStringLiteral("11"));

        action.updateFontSize(14);
        QCOMPARE(combo->itemText(0), QStringLiteral("14"));
        QCOMPARE(combo->currentText(), QStringLiteral("14"));
        QCOMPARE(int(action.fontSize()), 14);
        QCOMPARE(changed.count(), 0);

        // The shown size is the one the next choice is compared with.
        combo->setCurrentIndex(combo->findText(QStringLiteral("11"), Qt::MatchExactly));
        QCOMPARE(combo->currentText(), QStringLiteral("11"));
        QCOMPARE(changed.count(), 1);
        QCOMPARE(changed.at(0).at(0).toInt(), 11);
    }

    void fontSizePickerOutsideToolBars()
    {
        RibbonCatFontSizeAction action(16, nullptr);
        QWidget group;
        QComboBox *combo = action.createComboBox(&group);
        QVERIFY(combo);
        QCOMPARE(combo->parentWidget(), &group);
        QCOMPARE(combo->height(), 22);
        QCOMPARE(combo->currentText(), QStringLiteral("16"));
        QSignalSpy changed(&action, SIGNAL(fontSizeChanged(int)));
        combo->setCurrentIndex(combo->findText(QStringLiteral("20")));
        QCOMPARE(changed.count(), 1);
        QCOMPARE(int(action.fontSize()), 20);
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
