// ZEL_TEST_DPI_SENSITIVE: the heights of captioned colour buttons scale.
#include "ZelTest.h"

#include "IRibbonGroupWidget.h"
#include "RibbonCatActionGroup.h"
#include "RibbonCatActionGroupWidget.h"
#include "RibbonCatColorMenuAction.h"
#include "RibbonCatColorMenuButton.h"
#include "RibbonCatSimpleButton.h"
#include "RibbonCategory.h"
#include "RibbonCategoryAction.h"
#include "RibbonColorPickerPopup.h"
#include "RibbonPlatform.h"

#include <QCheckBox>
#include <QColorDialog>
#include <QScreen>
#include <QTimer>

#include <memory>

using namespace zel;

namespace {

using Action = RibbonCatColorMenuAction;
using ColorItems = RibbonColorPickerPopup::ColorItems;

// A base icon with nothing drawn, so that the icon's pixels are the colour bar's alone.
QIcon emptyIcon(int extent)
{
    QPixmap pixmap(extent, extent);
    pixmap.fill(Qt::transparent);
    return QIcon(pixmap);
}

QImage iconImage(const QAction &action, int extent)
{
    return action.icon().pixmap(extent, extent).toImage().convertToFormat(QImage::Format_ARGB32);
}

bool highDpi()
{
    return QApplication::primaryScreen()->logicalDotsPerInchY() > 120;
}

QPoint cellCentre(int column, int row)
{
    return QPoint(column * 20 + 10, row * 16 + 8);
}

// The entries of the popup from top to bottom, by their texts (the grid is "grid", the
// check box "Gradient").
QStringList entryOrder(RibbonColorPickerPopup &popup)
{
    popup.adjustSize();
    popup.layout()->activate();
    QMap<int, QString> byY;
    for (QWidget *child : popup.findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly)) {
        if (child->isHidden())
            continue;
        if (auto *button = qobject_cast<RibbonCatSimpleButton *>(child))
            byY.insert(child->y(), button->text());
        else if (auto *box = qobject_cast<QCheckBox *>(child))
            byY.insert(child->y(), box->text());
        else if (qobject_cast<ColorItems *>(child))
            byY.insert(child->y(), QStringLiteral("grid"));
    }
    return byY.values();
}

RibbonCatSimpleButton *entry(RibbonColorPickerPopup &popup, const QString &text)
{
    for (RibbonCatSimpleButton *button : popup.findChildren<RibbonCatSimpleButton *>()) {
        if (button->text() == text && !button->isHidden())
            return button;
    }
    return nullptr;
}

// A window holding a line edit (which has the focus) and the colour button.
struct Host : ZelControlHost<RibbonCatColorMenuButton>
{
    using ZelControlHost::ZelControlHost;

    // Opens the picker with a click on the button; true once it shows.
    bool open()
    {
        QTest::mouseClick(button, Qt::LeftButton, Qt::NoModifier, QPoint(3, 3));
        return QTest::qWaitFor([this] { return button->popup().isVisible(); });
    }

    RibbonColorPickerPopup &popup() { return button->popup(); }
    ColorItems *grid() { return popup().colorItems(); }
};

// Answers the colour dialog that the next command opens, from inside its own event loop.
void answerColorDialog(const QColor &color, bool accept)
{
    auto *poll = new QTimer;
    QObject::connect(poll, &QTimer::timeout, poll, [poll, color, accept] {
        auto *dialog = qobject_cast<QColorDialog *>(QApplication::activeModalWidget());
        if (!dialog)
            return;
        poll->deleteLater();
        poll->stop();
        dialog->setCurrentColor(color);
        if (accept)
            dialog->accept();
        else
            dialog->reject();
    });
    poll->start(10);
}

} // namespace

class tst_ColorControls : public QObject
{
    Q_OBJECT

    int m_widgets = 0;

private slots:
    void init() { m_widgets = QApplication::allWidgets().size(); }

    void cleanup() { QTRY_COMPARE(zelWidgetsLeft(), m_widgets); }

    void gridCellGivesItsColour_data()
    {
        QTest::addColumn<QPoint>("pos");
        QTest::addColumn<QColor>("expected");
        QTest::newRow("column 5, row 1") << cellCentre(5, 1) << QColor(0x00, 0x00, 0xFF);
        // (0, 0) would be the centre to QTest.
        QTest::newRow("first cell") << QPoint(0, 1) << QColor(0x00, 0x00, 0x00);
        QTest::newRow("last pixel of column 0, row 2") << QPoint(19, 47) << QColor(0xFF, 0x00, 0x00);
        QTest::newRow("first pixel of column 1, row 3") << QPoint(20, 48) << QColor(0xFF, 0xCC, 0x00);
        QTest::newRow("column 3, row 2") << cellCentre(3, 2) << QColor(0x33, 0x99, 0x66);
        QTest::newRow("column 6, row 4") << cellCentre(6, 4) << QColor(0xCC, 0x99, 0xFF);
        QTest::newRow("last cell") << QPoint(159, 79) << QColor(0xFF, 0xFF, 0xFF);
    }

    // A click on a cell chooses its colour for the action and closes the popup.
    void gridCellGivesItsColour()
    {
        QFETCH(QPoint, pos);
        QFETCH(QColor, expected);

        Action action(emptyIcon(16), QStringLiteral("Font Color"), Action::ColorSizeMedium, nullptr);
        action.setColor(QColor(0x12, 0x34, 0x56));
        Host host(action);
        QVERIFY(host.exposed());
        QVERIFY(host.open());
        QCOMPARE(host.grid()->size(), QSize(160, 80));
        QSignalSpy chosen(&host.popup(), &RibbonColorPickerPopup::colorSelected);
        QSignalSpy set(&action, &Action::colorSet);
        QTest::mouseClick(host.grid(), Qt::LeftButton, Qt::NoModifier, pos);
        QCOMPARE(chosen.count(), 1);
        QCOMPARE(chosen.at(0).at(0).value<QColor>(), expected);
        QCOMPARE(set.count(), 1);
        QCOMPARE(action.color(), expected);
        QVERIFY(!host.popup().isVisible());
        QCOMPARE(host.grid()->selectedCell(), ColorItems::cellAt(pos));
    }

    // Pressing one cell and releasing over another chooses nothing; a release without a
    // press neither.
    void pressOneCellReleaseAnother()
    {
        ColorItems grid(nullptr);
        grid.resize(grid.sizeHint());
        QSignalSpy chosen(&grid, &ColorItems::colorSelected);
        QTest::mousePress(&grid, Qt::LeftButton, Qt::NoModifier, cellCentre(1, 1));
        QTest::mouseRelease(&grid, Qt::LeftButton, Qt::NoModifier, cellCentre(2, 1));
        QTest::mouseRelease(&grid, Qt::LeftButton, Qt::NoModifier, cellCentre(2, 1));
        for (const QPoint &outside : {QPoint(160, 5), QPoint(5, 80)}) {
            QTest::mousePress(&grid, Qt::LeftButton, Qt::NoModifier, outside);
            QTest::mouseRelease(&grid, Qt::LeftButton, Qt::NoModifier, outside);
        }
        QCOMPARE(chosen.count(), 0);
        QCOMPARE(grid.selectedCell(), QPoint(2, 2));
    }

    void keepSelection_data()
    {
        QTest::addColumn<bool>("keep");
        QTest::newRow("kept") << true;
        QTest::newRow("not kept") << false;
    }

    // Kept: the same colour again changes nothing and its cell stays marked. Not kept: every
    // click is announced, no cell is ever marked and the popup still shows the colour on
    // "More colors...".
    void keepSelection()
    {
        QFETCH(bool, keep);

        Action action(emptyIcon(16), QStringLiteral("Highlight"), Action::ColorSizeSmall, nullptr);
        action.setKeepSelection(keep);
        Host host(action);
        QVERIFY(host.exposed());
        QSignalSpy set(&action, &Action::colorSet);
        for (int i = 0; i < 3; ++i) {
            QVERIFY(host.open());
            QTest::mouseClick(host.grid(), Qt::LeftButton, Qt::NoModifier, cellCentre(5, 1));
            QTRY_VERIFY(!host.popup().isVisible());
        }
        QCOMPARE(set.count(), keep ? 1 : 3);
        QCOMPARE(action.color(), QColor(Qt::blue));
        QCOMPARE(host.grid()->selectedCell(), keep ? QPoint(5, 1) : QPoint(-1, -1));
        QCOMPARE(entry(host.popup(), QStringLiteral("More colors..."))->icon().isNull(), keep);
    }

    void stateMachine_data()
    {
        QTest::addColumn<QString>("steps");
        QTest::addColumn<QString>("announced");
        QTest::addColumn<QString>("state");

        // Steps: a = setAutomatic, n = setNone, r = setColor(red), k = setColor(black),
        // i = setColor(invalid), A/N = offer automatic / none. Signals: c colorSet,
        // a automaticSet, n noneSet. State: c, a or n.
        QTest::newRow("same colour") << "k" << "" << "c";
        QTest::newRow("new colour") << "rr" << "c" << "c";
        QTest::newRow("automatic not offered") << "a" << "" << "c";
        QTest::newRow("none not offered") << "n" << "" << "c";
        QTest::newRow("invalid, none not offered") << "i" << "" << "c";
        QTest::newRow("automatic") << "Aaa" << "a" << "a";
        QTest::newRow("none") << "Nnn" << "n" << "n";
        QTest::newRow("invalid is none") << "Ni" << "n" << "n";
        QTest::newRow("invalid while none") << "Nni" << "n" << "n";
        QTest::newRow("same colour leaves automatic") << "Aak" << "ac" << "c";
        QTest::newRow("colour leaves none") << "Nnr" << "nc" << "c";
        QTest::newRow("none leaves automatic") << "ANan" << "an" << "n";
        QTest::newRow("automatic leaves none") << "ANna" << "na" << "a";
        QTest::newRow("invalid leaves automatic") << "ANai" << "an" << "n";
        QTest::newRow("withdrawn automatic") << "AaX" << "a" << "c";
    }

    void stateMachine()
    {
        QFETCH(QString, steps);
        QFETCH(QString, announced);
        QFETCH(QString, state);

        Action action(emptyIcon(16), QStringLiteral("Shading"), Action::ColorSizeSmall, nullptr);
        QString seen;
        connect(&action, &Action::colorSet, this, [&seen] { seen += QLatin1Char('c'); });
        connect(&action, &Action::automaticSet, this, [&seen] { seen += QLatin1Char('a'); });
        connect(&action, &Action::noneSet, this, [&seen] { seen += QLatin1Char('n'); });
        for (QChar step : steps) {
            switch (step.toLatin1()) {
            case 'a': action.setAutomatic(); break;
            case 'n': action.setNone(); break;
            case 'r': action.setColor(Qt::red); break;
            case 'k': action.setColor(Qt::black); break;
            case 'i': action.setColor(QColor()); break;
            case 'A': action.setHasAutomaticColor(true); break;
            case 'N': action.setHasNoneColor(true); break;
            case 'X': action.setHasAutomaticColor(false); break;
            }
        }
        QCOMPARE(seen, announced);
        QCOMPARE(action.isAutomatic(), state == QLatin1String("a"));
        QCOMPARE(action.isNone(), state == QLatin1String("n"));
        if (state == QLatin1String("n"))
            QCOMPARE(action.color(), QColor(Qt::white));
    }

    // Each announcement comes after the widgets were told: a host reading the button's popup
    // from its handler finds the new state there.
    void signalsFollowTheChange()
    {
        Action action(emptyIcon(16), QStringLiteral("Fill"), Action::ColorSizeSmall, nullptr);
        action.setHasAutomaticColor(true);
        action.setHasNoneColor(true);
        action.setHasGradient(true);
        RibbonCatColorMenuButton button(action, nullptr);
        RibbonColorPickerPopup &popup = button.popup();
        QStringList seen;
        connect(&action, &Action::colorSet, this, [&] { seen << popup.selectedColor().name(); });
        connect(&action, &Action::automaticSet, this, [&] { seen << QString::number(popup.isAutomaticColor()); });
        connect(&action, &Action::noneSet, this, [&] { seen << QString::number(popup.isNoneColor()); });
        connect(&action, &Action::gradientSet, this, [&](bool on) {
            seen << QString::number(on) + QString::number(popup.findChild<QCheckBox *>()->isChecked());
        });
        action.setColor(QColor(0x99, 0xcc, 0x00));
        action.setAutomatic();
        action.setNone();
        action.setGradient(true);
        action.setGradient(true);
        action.setGradient(false);
        QCOMPARE(seen, QStringList({QStringLiteral("#99cc00"), QStringLiteral("1"), QStringLiteral("1"),
                                    QStringLiteral("11"), QStringLiteral("00")}));
    }

    void iconBar_data()
    {
        QTest::addColumn<int>("size");
        QTest::addColumn<QString>("state");
        QTest::addColumn<QColor>("bar"); // invalid: no bar

        const QColor red(Qt::red);
        QTest::newRow("small, colour") << int(Action::ColorSizeSmall) << "c" << red;
        QTest::newRow("medium, colour") << int(Action::ColorSizeMedium) << "c" << red;
        QTest::newRow("large, colour") << int(Action::ColorSizeLarge) << "c" << red;
        QTest::newRow("small, automatic") << int(Action::ColorSizeSmall) << "a" << QColor(Qt::darkGreen);
        QTest::newRow("large, automatic") << int(Action::ColorSizeLarge) << "a" << QColor(Qt::darkGreen);
        QTest::newRow("small, none") << int(Action::ColorSizeSmall) << "n" << QColor();
        QTest::newRow("large, none") << int(Action::ColorSizeLarge) << "n" << QColor();
        QTest::newRow("automatic without a colour") << int(Action::ColorSizeSmall) << "-" << QColor();
    }

    // Small and medium: the bar is (0, 12, 16, 4) of a 16-pixel icon; large: (2, 26, 28, 4)
    // of a 32-pixel one.
    void iconBar()
    {
        QFETCH(int, size);
        QFETCH(QString, state);
        QFETCH(QColor, bar);

        const bool large = size == Action::ColorSizeLarge;
        const int extent = large ? 32 : 16;
        Action action(emptyIcon(extent), QStringLiteral("Colour"), Action::eSize(size), nullptr);
        action.setHasAutomaticColor(true);
        action.setHasNoneColor(true);
        action.setAutomaticColor(state == QLatin1String("-") ? QColor() : QColor(Qt::darkGreen));
        action.setColor(Qt::red);
        if (state == QLatin1String("a") || state == QLatin1String("-"))
            action.setAutomatic();
        if (state == QLatin1String("n"))
            action.setNone();

        const QImage image = iconImage(action, extent);
        QCOMPARE(image.size(), QSize(extent, extent));
        const QRect barRect = large ? QRect(2, 26, 28, 4) : QRect(0, 12, 16, 4);
        const QColor none(0, 0, 0, 0);
        const QColor expected = bar.isValid() ? bar : none;
        for (const QPoint &p : {barRect.topLeft(), barRect.bottomRight(), barRect.center()})
            QCOMPARE(image.pixelColor(p), expected);
        for (const QPoint &p : {barRect.topLeft() - QPoint(0, 1), QPoint(barRect.right() + 1, barRect.top())}) {
            if (image.rect().contains(p))
                QCOMPARE(image.pixelColor(p), none);
        }
    }

    void buttonSizes_data()
    {
        QTest::addColumn<int>("size");
        QTest::addColumn<bool>("icon");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QSize>("at96");
        QTest::addColumn<QSize>("at144");

        QTest::newRow("small, icon") << int(Action::ColorSizeSmall) << true << "Text" << QSize(31, 22) << QSize(31, 22);
        QTest::newRow("small, no icon") << int(Action::ColorSizeSmall) << false << "Text" << QSize(15, 22)
                                        << QSize(15, 22);
        QTest::newRow("medium, no text") << int(Action::ColorSizeMedium) << true << "" << QSize(31, 22)
                                         << QSize(31, 33);
        QTest::newRow("medium, nothing") << int(Action::ColorSizeMedium) << false << "" << QSize(15, 22)
                                         << QSize(15, 33);
        QTest::newRow("large, short caption") << int(Action::ColorSizeLarge) << true << "A" << QSize(42, 66)
                                              << QSize(42, 99);
    }

    void buttonSizes()
    {
        QFETCH(int, size);
        QFETCH(bool, icon);
        QFETCH(QString, text);
        QFETCH(QSize, at96);
        QFETCH(QSize, at144);

        Action action(icon ? emptyIcon(16) : QIcon(), text, Action::eSize(size), nullptr);
        RibbonCatColorMenuButton button(action, nullptr);
        QCOMPARE(button.sizeHint(), highDpi() ? at144 : at96);
        QCOMPARE(button.sizePolicy().horizontalPolicy(), QSizePolicy::Fixed);
        QCOMPARE(button.focusPolicy(), Qt::NoFocus);
    }

    // "None" on top, "Automatic" just above the grid, the check box just below it, "More
    // colors..." last; each comes and goes with the action's flags.
    void entriesFollowTheFlags()
    {
        Action action(emptyIcon(16), QStringLiteral("Fill"), Action::ColorSizeSmall, nullptr);
        RibbonCatColorMenuButton button(action, nullptr);
        RibbonColorPickerPopup &popup = button.popup();
        const QString grid = QStringLiteral("grid");
        const QString more = QStringLiteral("More colors...");
        const QString automatic = QStringLiteral("Automatic");
        const QString none = QStringLiteral("None");
        const QString gradient = QStringLiteral("Gradient");

        QCOMPARE(entryOrder(popup), QStringList({grid, more}));
        action.setHasAutomaticColor(true);
        QCOMPARE(entryOrder(popup), QStringList({automatic, grid, more}));
        action.setHasGradient(true);
        action.setHasNoneColor(true);
        QCOMPARE(entryOrder(popup), QStringList({none, automatic, grid, gradient, more}));
        action.setHasAutomaticColor(false);
        action.setHasGradient(false);
        QCOMPARE(entryOrder(popup), QStringList({none, grid, more}));
        action.setHasNoneColor(false);
        action.setHasAutomaticColor(true);
        QCOMPARE(entryOrder(popup), QStringList({automatic, grid, more}));
    }

    // The automatic entry carries a swatch of the automatic colour; choosing it makes the
    // action automatic; choosing it again, while it is the choice, announces nothing.
    void automaticAndNoneEntries()
    {
        Action action(emptyIcon(16), QStringLiteral("Font Color"), Action::ColorSizeMedium, nullptr);
        action.setHasAutomaticColor(true);
        action.setHasNoneColor(true);
        action.setAutomaticColor(QColor(0x20, 0x40, 0x60));
        Host host(action);
        QVERIFY(host.exposed());
        QSignalSpy automatic(&action, &Action::automaticSet);
        QSignalSpy none(&action, &Action::noneSet);

        QVERIFY(host.open());
        RibbonCatSimpleButton *automaticEntry = entry(host.popup(), QStringLiteral("Automatic"));
        QVERIFY(automaticEntry);
        const QImage swatch = automaticEntry->icon().pixmap(16, 16).toImage();
        QCOMPARE(swatch.pixelColor(swatch.rect().center()), QColor(0x20, 0x40, 0x60));
        QTest::mouseClick(automaticEntry, Qt::LeftButton);
        QTRY_VERIFY(!host.popup().isVisible());
        QCOMPARE(automatic.count(), 1);
        QVERIFY(action.isAutomatic());
        QVERIFY(host.popup().isAutomaticColor());
        QCOMPARE(host.grid()->selectedCell(), QPoint(-1, -1));

        QVERIFY(host.open());
        QTest::mouseClick(automaticEntry, Qt::LeftButton);
        QTRY_VERIFY(!host.popup().isVisible());
        QCOMPARE(automatic.count(), 1);
        QVERIFY(host.popup().isAutomaticColor());

        QVERIFY(host.open());
        QTest::mouseClick(entry(host.popup(), QStringLiteral("None")), Qt::LeftButton);
        QTRY_VERIFY(!host.popup().isVisible());
        QCOMPARE(none.count(), 1);
        QVERIFY(action.isNone());
        QVERIFY(host.popup().isNoneColor() && !host.popup().isAutomaticColor());
    }

    // A colour outside the grid marks no cell and shows as a swatch on "More colors...";
    // a grid colour takes the swatch away.
    void colourOutsideTheGrid()
    {
        Action action(emptyIcon(16), QStringLiteral("Font Color"), Action::ColorSizeSmall, nullptr);
        RibbonCatColorMenuButton button(action, nullptr);
        RibbonColorPickerPopup &popup = button.popup();
        RibbonCatSimpleButton *more = entry(popup, QStringLiteral("More colors..."));
        QVERIFY(more->icon().isNull());

        action.setColor(QColor(0x12, 0x34, 0x56));
        QCOMPARE(popup.colorItems()->selectedCell(), QPoint(-1, -1));
        QVERIFY(!more->icon().isNull());
        const QImage swatch = more->icon().pixmap(16, 16).toImage();
        QCOMPARE(swatch.pixelColor(swatch.rect().center()), QColor(0x12, 0x34, 0x56));

        action.setColor(QColor(0x33, 0xCC, 0xCC));
        QCOMPARE(popup.colorItems()->selectedCell(), QPoint(4, 2));
        QVERIFY(more->icon().isNull());
    }

    void moreColors_data()
    {
        QTest::addColumn<bool>("accept");
        QTest::newRow("accepted") << true;
        QTest::newRow("cancelled") << false;
    }

    // "More colors..." opens the colour dialog on the current colour; accepting sets the
    // chosen colour and puts its swatch on the entry, cancelling changes nothing. The popup
    // is hidden either way.
    void moreColors()
    {
        QFETCH(bool, accept);

        Action action(emptyIcon(16), QStringLiteral("Font Color"), Action::ColorSizeSmall, nullptr);
        action.setColor(Qt::red);
        Host host(action);
        QVERIFY(host.exposed());
        QSignalSpy set(&action, &Action::colorSet);
        QVERIFY(host.open());
        const QColor chosen(0x12, 0x34, 0x56);
        QColor initial;
        auto *poll = new QTimer(this);
        connect(poll, &QTimer::timeout, this, [&] {
            if (auto *dialog = qobject_cast<QColorDialog *>(QApplication::activeModalWidget()))
                initial = dialog->currentColor();
        });
        poll->start(5);
        answerColorDialog(chosen, accept);
        QTest::mouseClick(entry(host.popup(), QStringLiteral("More colors...")), Qt::LeftButton);
        delete poll;
        QVERIFY(!QApplication::activeModalWidget());
        QVERIFY(!host.popup().isVisible());
        QCOMPARE(initial, QColor(Qt::red));
        QCOMPARE(set.count(), accept ? 1 : 0);
        QCOMPARE(action.color(), accept ? chosen : QColor(Qt::red));
        RibbonCatSimpleButton *more = entry(host.popup(), QStringLiteral("More colors..."));
        QCOMPARE(more->icon().isNull(), !accept);
    }

    // The gradient box reaches the action and closes the popup.
    void gradientBox()
    {
        Action action(emptyIcon(16), QStringLiteral("Fill"), Action::ColorSizeSmall, nullptr);
        action.setHasGradient(true);
        Host host(action);
        QVERIFY(host.exposed());
        QSignalSpy gradient(&action, &Action::gradientSet);
        QVERIFY(host.open());
        auto *box = host.popup().findChild<QCheckBox *>();
        QVERIFY(box && box->isVisible());
        QCOMPARE(box->styleSheet(), QStringLiteral("QCheckBox { color: #4c535c; }"));
        QTest::mouseClick(box, Qt::LeftButton, Qt::NoModifier, QPoint(5, box->height() / 2));
        QTRY_VERIFY(!host.popup().isVisible());
        QCOMPARE(gradient.count(), 1);
        QVERIFY(action.gradient());
        action.setGradient(false);
        QVERIFY(!box->isChecked());
        QCOMPARE(gradient.count(), 2);
    }

    // Below the button, moved back onto the desktop where it would leave it.
    void placement_data()
    {
        QTest::addColumn<QPoint>("windowPos");
        QTest::addColumn<bool>("shiftedLeft");
        QTest::addColumn<bool>("shiftedUp");
        QTest::newRow("room everywhere") << QPoint(100, 100) << false << false;
        QTest::newRow("at the right edge") << QPoint(760, 100) << true << false;
        QTest::newRow("at the bottom edge") << QPoint(100, 560) << false << true;
    }

    void placement()
    {
        QFETCH(QPoint, windowPos);
        QFETCH(bool, shiftedLeft);
        QFETCH(bool, shiftedUp);

        Action action(emptyIcon(16), QStringLiteral("Font Color"), Action::ColorSizeSmall, nullptr);
        action.setHasAutomaticColor(true);
        action.setHasNoneColor(true);
        QWidget window(nullptr, Qt::FramelessWindowHint);
        auto *button = new RibbonCatColorMenuButton(action, &window);
        button->setGeometry(0, 0, 31, 22);
        window.setGeometry(QRect(windowPos, QSize(40, 30)));
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QTest::mouseClick(button, Qt::LeftButton, Qt::NoModifier, QPoint(3, 3));
        RibbonColorPickerPopup &popup = button->popup();
        QTRY_VERIFY(popup.isVisible());

        const QRect desktop = RibbonPlatform::desktopGeometry();
        QCOMPARE(desktop, QRect(0, 0, 800, 600));
        const QPoint anchor = button->mapToGlobal(QPoint(0, 22));
        QCOMPARE(popup.x(), shiftedLeft ? 800 - popup.width() : anchor.x());
        QCOMPARE(popup.y(), shiftedUp ? 600 - popup.height() : anchor.y());
        popup.hide();
    }

    // A press on a disabled button opens nothing; the focus goes back to where it was when
    // the popup closes.
    void openingAndFocus()
    {
        Action action(emptyIcon(16), QStringLiteral("Font Color"), Action::ColorSizeSmall, nullptr);
        Host host(action);
        QVERIFY(host.exposed());
        QTRY_COMPARE(QApplication::focusWidget(), host.edit);
        action.setEnabled(false);
        QTest::mouseClick(host.button, Qt::LeftButton, Qt::NoModifier, QPoint(3, 3));
        QVERIFY(!host.popup().isVisible());
        action.setEnabled(true);
        QTest::mouseClick(host.button, Qt::RightButton, Qt::NoModifier, QPoint(3, 3));
        QVERIFY(!host.popup().isVisible());
        QVERIFY(host.open());
        QTRY_COMPARE(QApplication::focusWidget(), static_cast<QWidget *>(&host.popup()));
        QTest::keyClick(&host.popup(), Qt::Key_Escape);
        QTRY_VERIFY(!host.popup().isVisible());
        QTRY_COMPARE(QApplication::focusWidget(), host.edit);
    }

    // The category makes the button for a colour action (a tool bar's is checked with the
    // value controls); a wide strip keeps a hidden one and hands it the press.
    void madeByTheContainers()
    {
        Action action(emptyIcon(16), QStringLiteral("Font Color"), Action::ColorSizeSmall, nullptr);

        RibbonCategoryAction category(QStringLiteral("Font"), nullptr);
        category.addAction(&action, -1);
        RibbonCategory group(nullptr, category);
        QVERIFY(qobject_cast<RibbonCatColorMenuButton *>(group.widget(&action)));

        RibbonCatActionGroup strip(nullptr);
        strip.addAction(&action, true); // a wide strip
        RibbonCatActionGroupWidget stripWidget(strip, nullptr);
        stripWidget.show();
        QVERIFY(QTest::qWaitForWindowExposed(&stripWidget));
        auto *hidden = stripWidget.findChild<RibbonCatColorMenuButton *>();
        QVERIFY(hidden && hidden->isHidden());
        QCOMPARE(IRibbonGroupWidget::groupWidget(hidden), static_cast<IRibbonGroupWidget *>(hidden));
        QTest::mousePress(&stripWidget, Qt::LeftButton, Qt::NoModifier, QPoint(5, 5));
        QTRY_VERIFY(hidden->popup().isVisible());
        QCOMPARE(hidden->popup().pos(), stripWidget.mapToGlobal(QPoint(0, 22)));
        QTest::keyClick(&hidden->popup(), Qt::Key_Escape);
        QTRY_VERIFY(!hidden->popup().isVisible());
    }

    // A colour command in a strip is activated while its picker stays open: the strip's
    // group must not announce an activation that would close a surrounding popup.
    void activationInAStrip()
    {
        Action colour(emptyIcon(16), QStringLiteral("Font Color"), Action::ColorSizeSmall, nullptr);
        RibbonSimpleAction plain(QStringLiteral("Bold"), nullptr);
        RibbonCatActionGroup strip(nullptr);
        strip.addAction(&colour, false);
        strip.addAction(&plain, false);
        QSignalSpy activated(&strip, &RibbonAction::ribbonActionActivated);
        colour.trigger();
        QCOMPARE(activated.count(), 0);
        plain.trigger();
        QCOMPARE(activated.count(), 1);
    }

    // The button outlives its action, and the action its button; a host may remove the
    // command from its own colour handler while the popup is open.
    void lifetimes()
    {
        auto *action = new Action(emptyIcon(16), QStringLiteral("Gone"), Action::ColorSizeMedium, nullptr);
        {
            Host host(*action);
            QVERIFY(host.exposed());
            delete action;
            QVERIFY(!host.button->action());
            QTest::mouseClick(host.button, Qt::LeftButton, Qt::NoModifier, QPoint(3, 3));
            QVERIFY(!host.popup().isVisible());
            host.button->repaint();
        }

        Action kept(emptyIcon(16), QStringLiteral("Kept"), Action::ColorSizeSmall, nullptr);
        auto host = std::make_unique<Host>(kept);
        QVERIFY(host->exposed());
        QVERIFY(host->open());
        QPointer<RibbonCatColorMenuButton> button = host->button;
        connect(&kept, &Action::colorSet, this, [&host] { host.reset(); });
        QTest::mouseClick(host->grid(), Qt::LeftButton, Qt::NoModifier, cellCentre(1, 1));
        QVERIFY(!host);
        QVERIFY(!button);
        QCOMPARE(kept.color(), QColor(0xFF, 0x66, 0x00));
        QVERIFY(!QApplication::activePopupWidget());
    }

    // Opening and closing the picker many times, with its entries coming and going, leaves
    // no widget behind.
    void openAndCloseLeaksNothing()
    {
        Action action(emptyIcon(16), QStringLiteral("Fill"), Action::ColorSizeSmall, nullptr);
        Host host(action);
        QVERIFY(host.exposed());
        QVERIFY(host.open());
        QTest::keyClick(&host.popup(), Qt::Key_Escape);
        QTRY_VERIFY(!host.popup().isVisible());
        const int widgets = QApplication::allWidgets().size();
        for (int i = 0; i < 1000; ++i) {
            action.setHasAutomaticColor(i % 2);
            action.setHasNoneColor(i % 3);
            action.setHasGradient(i % 5 == 0);
            QTest::mouseClick(host.button, Qt::LeftButton, Qt::NoModifier, QPoint(3, 3));
            QVERIFY(host.popup().isVisible());
            host.popup().close();
            QVERIFY(!host.popup().isVisible());
        }
        action.setHasAutomaticColor(false);
        action.setHasNoneColor(false);
        action.setHasGradient(false);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        // The check box, once made, stays for the next time it is offered.
        QCOMPARE(QApplication::allWidgets().size(), widgets + 1);
    }
};

ZEL_TEST_MAIN(tst_ColorControls)
#include "tst_colorcontrols.moc"
