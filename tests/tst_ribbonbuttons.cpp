// Large captions are measured at 96 and 144 DPI: ZEL_TEST_DPI_SENSITIVE
#include "ZelTest.h"

#include "IRibbonGroupWidget.h"
#include "RibbonApplication.h"
#include "RibbonButtonNormal.h"
#include "RibbonCatActionGroup.h"
#include "RibbonCatActionGroupWidget.h"
#include "RibbonCatMenuAction.h"
#include "RibbonCatMenuButton.h"
#include "RibbonCatSimpleAction.h"
#include "RibbonCatSimpleButton.h"
#include "RibbonMainMenuItem.h"
#include "RibbonScale_p.h"
#include "RibbonStyle.h"
#include "RibbonSymbolButton.h"
#include "RibbonTextFit_p.h"
#include "RibbonToolBar.h"

#include <QHoverEvent>
#include <QKeyEvent>
#include <QPointer>
#include <QToolButton>

#include <memory>

using namespace zel;

namespace {

const RibbonStyle &style()
{
    return RibbonApplication::theApp().ribbonStyle();
}

QIcon solidIcon(const QColor &color)
{
    QIcon icon;
    for (int extent : {16, 32}) {
        QPixmap pixmap(extent, extent);
        pixmap.fill(color);
        icon.addPixmap(pixmap);
    }
    return icon;
}

// The narrowest width at which text still fits in two lines, searched by halving steps
// with QFontMetrics itself; returns the bounding size of the last fitting trial.
QSize twoLineFit(const QFontMetrics &fm, const QString &text)
{
    const int flags = Qt::AlignTop | Qt::AlignHCenter | Qt::TextWordWrap;
    const int tw = fm.horizontalAdvance(text);
    int trial = tw;
    QSize best(tw, 0);
    int step = tw;
    while (step != 0) {
        step /= 2;
        const QRect r = fm.boundingRect(QRect(0, 0, trial, 0), flags, text);
        if (r.height() <= 2 * fm.height()) {
            best = r.size();
            trial -= step;
        } else {
            trial += step;
        }
    }
    return best;
}

QImage grabImage(QWidget &widget)
{
    return widget.grab().toImage().convertToFormat(QImage::Format_ARGB32);
}

// The centre pixel of a state row in a sheet: the stretched centre of the nine-slice.
QRgb sheetCentre(const QPixmap &sheet, int rowHeight, int row)
{
    return sheet.toImage().convertToFormat(QImage::Format_ARGB32).pixel(sheet.width() / 2,
                                                                        row * rowHeight + rowHeight / 2);
}

// Shows a widget as a child at the given place in a window, with the cursor away from it.
bool showAwayFromCursor(QWidget &window, QWidget &child, const QRect &geometry)
{
    window.resize(120, 90);
    child.setGeometry(geometry);
    window.show();
    if (!QTest::qWaitForWindowExposed(&window))
        return false;
    QTest::mouseMove(&window, QPoint(110, 80));
    return QTest::qWaitFor([&child] { return !child.underMouse(); });
}

} // namespace

class tst_RibbonButtons : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_owner.reset(new QObject); }
    void cleanup() { m_owner.reset(); }

    void simpleButtonSize_data();
    void simpleButtonSize();
    void largeCaptionWrapsToTwoLines();
    void twoLineFitMatchesFontMetrics_data();
    void twoLineFitMatchesFontMetrics();
    void followsActionAndClicks();
    void stateLooks();
    void actionDeletedBeforeButton();

    void strip();
    void wideStripHandsPressToHiddenButton();

    void normalButtonFollowsFirstAction();
    void smallWidgets();

private:
    QList<RibbonCatSimpleAction *> fill(RibbonCatActionGroup &group, int n, bool checkable = false);
    RibbonCatSimpleAction *action(const QString &text, RibbonCatSimpleAction::eSize size,
                                  bool withIcon = true);
    std::unique_ptr<QObject> m_owner;
};

RibbonCatSimpleAction *tst_RibbonButtons::action(const QString &text, RibbonCatSimpleAction::eSize size,
                                                 bool withIcon)
{
    return withIcon ? new RibbonCatSimpleAction(solidIcon(Qt::blue), text, size, m_owner.get())
                    : new RibbonCatSimpleAction(text, size, m_owner.get());
}

// n small members with icons and captions "0", "1", ... (none when checkable); tooltips "tip 0", ...
QList<RibbonCatSimpleAction *> tst_RibbonButtons::fill(RibbonCatActionGroup &group, int n, bool checkable)
{
    QList<RibbonCatSimpleAction *> actions;
    for (int i = 0; i < n; ++i) {
        actions.append(action(checkable ? QString() : QString::number(i), RibbonCatSimpleAction::SizeSmall,
                              !checkable));
        actions.last()->setCheckable(checkable);
        actions.last()->setToolTip(QStringLiteral("tip %1").arg(i));
        group.addAction(actions.last(), false);
    }
    return actions;
}

void tst_RibbonButtons::simpleButtonSize_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("withIcon");
    QTest::addColumn<int>("minimalWidth");

    QTest::newRow("large short") << 0 << QStringLiteral("Go") << true << -1;
    QTest::newRow("large minimal wider") << 0 << QStringLiteral("Go") << true << 80;
    QTest::newRow("medium icon and text") << 1 << QStringLiteral("Copy") << true << -1;
    QTest::newRow("medium text only") << 1 << QStringLiteral("Copy") << false << -1;
    QTest::newRow("medium icon only") << 1 << QString() << true << -1;
    QTest::newRow("small icon") << 2 << QStringLiteral("Cut") << true << -1;
    QTest::newRow("small no icon") << 2 << QStringLiteral("Cut") << false << -1;
    QTest::newRow("small minimal wider") << 2 << QString() << true << 40;
}

void tst_RibbonButtons::simpleButtonSize()
{
    QFETCH(int, size);
    QFETCH(QString, text);
    QFETCH(bool, withIcon);
    QFETCH(int, minimalWidth);

    RibbonCatSimpleAction *a = action(text, RibbonCatSimpleAction::eSize(size), withIcon);
    a->setMinimalWidth(minimalWidth);
    RibbonCatSimpleButton button(*a, nullptr);
    const QFontMetrics fm = button.fontMetrics();
    const int tw = fm.horizontalAdvance(text);
    QSize expected(withIcon ? 22 : 4, scaled(22));
    if (size == 0)
        expected = QSize(qMax((tw + 4 < 35 ? tw : twoLineFit(fm, text).width()) + 10, 42), scaled(66));
    else if (size == 1)
        expected.setWidth((withIcon ? 18 : 0) + (text.isEmpty() ? 0 : tw + 10));
    expected.setWidth(qMax(expected.width(), minimalWidth));
    QCOMPARE(button.sizeHint(), expected);
    QCOMPARE(button.sizePolicy(), QSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed));
    QCOMPARE(button.focusPolicy(), Qt::NoFocus);
}

void tst_RibbonButtons::twoLineFitMatchesFontMetrics_data()
{
    QTest::addColumn<QString>("text");

    QTest::newRow("words") << QStringLiteral("Check Spelling and Grammar");
    QTest::newRow("two words") << QStringLiteral("Group 12.3");
    QTest::newRow("three words") << QStringLiteral("Insert Table Row");
    QTest::newRow("short and long word") << QStringLiteral("A Supercalifragilistic");
    QTest::newRow("one long word") << QStringLiteral("Supercalifragilisticexpialidocious");
    QTest::newRow("many short words") << QStringLiteral("a b c d e f g h i j k l m n o p");
    QTest::newRow("double spaces") << QStringLiteral("Two  spaces  between  words");
    QTest::newRow("leading and trailing") << QStringLiteral("  Padded caption text  ");
    QTest::newRow("line feed") << QStringLiteral("First line\nsecond line here");
    QTest::newRow("tab and return") << QStringLiteral("Tab\tseparated\rwords here");
    QTest::newRow("hyphens") << QStringLiteral("Hyphen-ated-words-make-long-lines");
    QTest::newRow("mnemonic") << QStringLiteral("&Insert && Format Table");
    QTest::newRow("cyrillic") << QStringLiteral("\u041f\u0440\u043e\u0432\u0435\u0440\u043a\u0430 "
                                                "\u043e\u0440\u0444\u043e\u0433\u0440\u0430\u0444\u0438\u0438");
    QTest::newRow("right to left") << QStringLiteral("\u05e9\u05dc\u05d5\u05dd \u05e2\u05d5\u05dc\u05dd "
                                                     "\u05d8\u05d5\u05d1 \u05de\u05d0\u05d5\u05d3");
    QTest::newRow("no font for it") << QStringLiteral("\u6570\u636e \u8868\u683c \u8bbe\u7f6e \u9009\u9879");
    QTest::newRow("length variants") << QStringLiteral("Long caption variant\u009cShort");
}

void tst_RibbonButtons::twoLineFitMatchesFontMetrics()
{
    // The caption search shapes the text once and lays it out per trial; every trial
    // must measure what QFontMetrics::boundingRect measures, in every font and at every
    // resolution, and a remembered result must belong to its own font.
    QFETCH(QString, text);
    for (const QFont &font : {QFont(), QFont(QStringLiteral("DejaVu Sans"), 11, QFont::Bold),
                              QFont(QStringLiteral("DejaVu Serif"), 7, -1, true), QFont()}) {
        RibbonCatSimpleButton button(*action(text, RibbonCatSimpleAction::SizeLarge), nullptr);
        button.setFont(font);
        const QFontMetrics fm = button.fontMetrics();
        const int tw = fm.horizontalAdvance(text);
        QVERIFY(tw + 4 >= 35);
        QCOMPARE(button.sizeHint().width(), qMax(twoLineFit(fm, text).width() + 10, 42));
        const RibbonCaptionFit fit = ribbonCaptionFit(button, text);
        QCOMPARE(QSize(fit.width, fit.height), twoLineFit(fm, text));
    }
}

// The width is checked in simpleButtonSize; here both lines must be painted.
void tst_RibbonButtons::largeCaptionWrapsToTwoLines()
{
    const QString text = QStringLiteral("Check Spelling and Grammar");
    RibbonCatSimpleButton button(*action(text, RibbonCatSimpleAction::SizeLarge), nullptr);
    const QFontMetrics fm = button.fontMetrics();
    QVERIFY(button.sizeHint().width() < fm.horizontalAdvance(text));
    button.resize(button.sizeHint());
    const QImage image = grabImage(button);
    const QRgb textColor = style().highlightedCategoryTextColor().rgb();
    const int secondLineTop = scaled(34) + scaled(2) + fm.lineSpacing();
    int inked[2] = {0, 0};
    for (int y = scaled(34); y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            inked[y >= secondLineTop] += image.pixel(x, y) == textColor;
    }
    QVERIFY(inked[0] > 0 && inked[1] > 0);
}

// The measured size follows text and font changes; only a left click on an enabled button
// triggers, a checkable action toggles once per click.
void tst_RibbonButtons::followsActionAndClicks()
{
    RibbonCatSimpleAction *a = action(QStringLiteral("Copy"), RibbonCatSimpleAction::SizeMedium);
    RibbonCatSimpleButton button(*a, nullptr);
    const int before = button.sizeHint().width();
    a->setText(QStringLiteral("Copy everything"));
    const int longer = button.sizeHint().width();
    QVERIFY(longer > before);
    QFont big = button.font();
    big.setPointSize(big.pointSize() * 2);
    button.setFont(big);
    QVERIFY(button.sizeHint().width() > longer);
    button.setFont(QFont());

    button.resize(button.sizeHint());
    button.show();
    QVERIFY(QTest::qWaitForWindowExposed(&button));
    QSignalSpy triggered(a, &QAction::triggered);
    QTest::mouseClick(&button, Qt::LeftButton);
    QTest::mouseClick(&button, Qt::RightButton);
    QCOMPARE(triggered.count(), 1);
    a->setCheckable(true);
    QTest::mouseClick(&button, Qt::LeftButton);
    QVERIFY(a->isChecked() && button.isChecked());
    QTest::mouseClick(&button, Qt::LeftButton);
    QVERIFY(!a->isChecked() && !button.isChecked());
    QCOMPARE(triggered.count(), 3);
    a->setEnabled(false);
    QVERIFY(!button.isEnabled());
    QTest::mouseClick(&button, Qt::LeftButton);
    QCOMPARE(triggered.count(), 3);
}

// Each state paints its own row of the sheet; plain and disabled paint no background.
void tst_RibbonButtons::stateLooks()
{
    for (auto size : {RibbonCatSimpleAction::SizeLarge, RibbonCatSimpleAction::SizeSmall}) {
        const bool large = size == RibbonCatSimpleAction::SizeLarge;
        // No icon and no text: only the background differs between the states.
        RibbonCatSimpleAction *a = action(QString(), size, false);
        a->setCheckable(true);
        QWidget window;
        RibbonCatSimpleButton button(*a, &window);
        QVERIFY(showAwayFromCursor(window, button, large ? QRect(10, 10, 42, 66) : QRect(10, 10, 22, 22)));
        const QPixmap &sheet = large ? style().paletteItemLarge() : style().paletteItemSmall();
        const auto row = [&](int r) { return sheetCentre(sheet, large ? 66 : 22, r); };
        const QPoint centre(button.width() / 2, button.height() / 2);

        const QImage plain = grabImage(button);
        a->setEnabled(false);
        QCOMPARE(grabImage(button), plain);
        a->setChecked(true);
        QCOMPARE(grabImage(button).pixel(centre), row(4));
        a->setEnabled(true);
        QCOMPARE(grabImage(button).pixel(centre), row(2));
        QTest::mouseMove(&button, centre);
        QTRY_VERIFY(button.underMouse());
        QCOMPARE(grabImage(button).pixel(centre), row(3));
        a->setChecked(false);
        QCOMPARE(grabImage(button).pixel(centre), row(0));
        button.setDown(true);
        QCOMPARE(grabImage(button).pixel(centre), row(1));
    }
}

void tst_RibbonButtons::actionDeletedBeforeButton()
{
    auto *a = new RibbonCatSimpleAction(QStringLiteral("Go"), RibbonCatSimpleAction::SizeLarge, nullptr);
    RibbonCatSimpleButton button(*a, nullptr);
    button.resize(button.sizeHint());
    delete a;
    QVERIFY(!button.action());
    button.repaint();
    QVERIFY(button.sizeHint().isValid());
}

// Size, state rows, tooltips and clicks of the cells; only a left click released on the pressed,
// enabled cell triggers; a wide member makes every cell 30 wide.
void tst_RibbonButtons::strip()
{
    RibbonCatActionGroup group(m_owner.get());
    QWidget window;
    RibbonCatActionGroupWidget strip(group, &window);
    QCOMPARE(strip.sizeHint(), QSize(0, 22));
    const QList<RibbonCatSimpleAction *> actions = fill(group, 3, true);
    QCOMPARE(strip.sizeHint(), QSize(66, 22));
    QVERIFY(showAwayFromCursor(window, strip, QRect(10, 10, 66, 22)));

    const QImage sheet = style().btnGroupMidle().toImage();
    const auto row = [&sheet](int r) { return sheet.pixel(11, r * 22 + 11); };
    const QImage plain = grabImage(strip);
    QCOMPARE(plain.pixel(33, 11), row(0));
    actions.at(1)->setChecked(true);
    const QImage checked = grabImage(strip);
    QCOMPARE(checked.pixel(33, 11), row(3));
    QCOMPARE(checked.copy(0, 0, 22, 22), plain.copy(0, 0, 22, 22)); // the other cells keep their look
    QCOMPARE(checked.copy(44, 0, 22, 22), plain.copy(44, 0, 22, 22));
    QTest::mouseMove(&strip, QPoint(33, 11));
    QTRY_VERIFY(strip.underMouse());
    QCOMPARE(grabImage(strip).pixel(33, 11), row(4));
    QTRY_COMPARE(strip.toolTip(), QStringLiteral("tip 1"));
    QTest::mouseMove(&strip, QPoint(3, 10));
    QTRY_COMPARE(strip.toolTip(), QStringLiteral("tip 0"));
    QCOMPARE(grabImage(strip).pixel(33, 11), row(3));
    group.setEnabled(false);
    QCOMPARE(grabImage(strip).pixel(33, 11), row(0)); // a disabled group shows only the normal row
    group.setEnabled(true);

    QSignalSpy first(actions.at(0), &QAction::triggered);
    QSignalSpy second(actions.at(1), &QAction::triggered);
    QSignalSpy third(actions.at(2), &QAction::triggered);
    QTest::mouseClick(&strip, Qt::LeftButton, {}, QPoint(33, 11));
    QCOMPARE(second.count(), 1);
    QTest::mousePress(&strip, Qt::LeftButton, {}, QPoint(33, 11));
    QTest::mouseRelease(&strip, Qt::LeftButton, {}, QPoint(55, 11));
    QTest::mouseClick(&strip, Qt::LeftButton, {}, QPoint(70, 11));
    QTest::mouseClick(&strip, Qt::RightButton, {}, QPoint(5, 11));
    actions.at(0)->setEnabled(false);
    QTest::mouseClick(&strip, Qt::LeftButton, {}, QPoint(5, 11));
    QCOMPARE(first.count() + second.count() + third.count(), 1);
    actions.at(0)->setEnabled(true);
    QTest::mouseClick(&strip, Qt::LeftButton, {}, QPoint(5, 11));
    QCOMPARE(first.count(), 1);

    group.addAction(action(QStringLiteral("w"), RibbonCatSimpleAction::SizeSmall), true);
    QVERIFY(group.isWide());
    QCOMPARE(strip.sizeHint(), QSize(4 * 30, 22));
    QCOMPARE(strip.cellAt(QPoint(59, 5)), 1);
    QCOMPARE(strip.cellAt(QPoint(120, 5)), -1);
    QCOMPARE(strip.cellAt(QPoint(-1, 5)), -1);
}

void tst_RibbonButtons::wideStripHandsPressToHiddenButton()
{
    RibbonCatActionGroup group(m_owner.get());
    using Menu = RibbonCatMenuAction;
    auto *menu = new Menu(solidIcon(Qt::green), QStringLiteral("Menu"), Menu::MenuTypeButton,
                          Menu::MenuSizeSmall, Menu::PopupMenu, m_owner.get());
    menu->addAction(action(QStringLiteral("item"), RibbonCatSimpleAction::SizeMedium), false);
    RibbonCatSimpleAction *plain = action(QStringLiteral("plain"), RibbonCatSimpleAction::SizeSmall);
    group.addAction(plain, true);
    group.addAction(menu, true);
    QWidget window;
    RibbonCatActionGroupWidget strip(group, &window);
    QVERIFY(showAwayFromCursor(window, strip, QRect(10, 10, 60, 22)));

    // Only the menu member has a hidden button, found through the interface.
    const QList<RibbonCatMenuButton *> buttons = strip.findChildren<RibbonCatMenuButton *>();
    QCOMPARE(buttons.size(), 1);
    QVERIFY(buttons.first()->isHidden());
    QVERIFY(IRibbonGroupWidget::groupWidget(buttons.first()));
    QVERIFY(!IRibbonGroupWidget::groupWidget(&strip));

    QSignalSpy plainTriggered(plain, &QAction::triggered);
    QTest::mouseClick(&strip, Qt::LeftButton, {}, QPoint(10, 11));
    QCOMPARE(plainTriggered.count(), 1);
    QVERIFY(!QApplication::activePopupWidget());
    // A press on the menu's cell opens its drop-down below the cell.
    QTest::mousePress(&strip, Qt::LeftButton, {}, QPoint(45, 11));
    QTRY_VERIFY(QApplication::activePopupWidget());
    QWidget *popup = QApplication::activePopupWidget();
    QCOMPARE(popup->pos().x(), strip.mapToGlobal(QPoint(30, 0)).x());
    popup->close();
    // The hidden button goes with its member.
    QPointer<RibbonCatMenuButton> hidden = buttons.first();
    group.removeAction(menu);
    QVERIFY(hidden.isNull());
    QCOMPARE(strip.sizeHint(), QSize(30, 22));
}

// Tooltip, checkability, icon and clicks come from the first action only, until it is removed.
void tst_RibbonButtons::normalButtonFollowsFirstAction()
{
    auto *first = new RibbonAction(solidIcon(Qt::red), QStringLiteral("First"), m_owner.get());
    first->setToolTip(QStringLiteral("first tip"));
    first->setCheckable(true);
    auto *second = new RibbonAction(QStringLiteral("Second"), m_owner.get());
    RibbonButtonNormal button;
    button.addAction(first);
    button.addAction(second);
    second->setToolTip(QStringLiteral("ignored"));
    QCOMPARE(button.toolTip(), QStringLiteral("first tip"));
    QVERIFY(button.isCheckable() && !button.icon().isNull());

    QSignalSpy triggered(first, &QAction::triggered);
    button.resize(22, 22);
    button.show();
    QVERIFY(QTest::qWaitForWindowExposed(&button));
    QTest::mouseClick(&button, Qt::LeftButton);
    QCOMPARE(triggered.count(), 1);
    QVERIFY(first->isChecked() && button.isChecked());
    const QImage checked = grabImage(button);
    first->setChecked(false);
    QVERIFY(!button.isChecked());
    QVERIFY(grabImage(button) != checked);

    button.removeAction(first);
    QTest::mouseClick(&button, Qt::LeftButton);
    QCOMPARE(triggered.count(), 1);
    const bool shown = button.isChecked();
    first->setChecked(!shown);
    QCOMPARE(button.isChecked(), shown);
}

void tst_RibbonButtons::smallWidgets()
{
    // Symbol button: no size of its own; the up triangle's base lies on the inner bottom row.
    RibbonSymbolButton up(SymbolArrowUp);
    QVERIFY(!up.sizeHint().isValid());
    up.resize(22, 22);
    QCOMPARE(grabImage(up).pixel(11, 18), style().highlightedCategoryTextColor().rgb());
    up.setEnabled(false);
    QCOMPARE(grabImage(up).pixel(11, 18), style().disabledCategoryTextColor().rgb());

    // Main menu items swallow navigation keys (subclasses emit the signal) and keep the focus.
    struct KeyRecorder : QWidget
    {
        int keys = 0;
        void keyPressEvent(QKeyEvent *) override { ++keys; }
    } parent;
    auto *item = new RibbonMainMenuItem(&parent);
    auto *other = new RibbonMainMenuItem(&parent);
    item->setGeometry(0, 0, 50, 20);
    other->setGeometry(0, 20, 50, 20);
    item->setFocusPolicy(Qt::StrongFocus);
    other->setFocusPolicy(Qt::StrongFocus);
    QSignalSpy navigation(item, &RibbonMainMenuItem::navigationKeyPressed);
    parent.show();
    QVERIFY(QTest::qWaitForWindowExposed(&parent));
    QApplication::setActiveWindow(&parent);
    item->setFocus();
    QTRY_VERIFY(item->hasFocus());
    for (Qt::Key key : {Qt::Key_Down, Qt::Key_Right, Qt::Key_Up, Qt::Key_Left, Qt::Key_Space})
        QTest::keyClick(item, key);
    QVERIFY(item->hasFocus());
    QCOMPARE(parent.keys, 0);
    QCOMPARE(navigation.count(), 0);

    // The tool bar paints nothing of its own right of its buttons, and lets hover events pass.
    const QColor back(10, 200, 30);
    QWidget host;
    QPalette palette = host.palette();
    palette.setColor(QPalette::Window, back);
    host.setPalette(palette);
    host.setAutoFillBackground(true);
    host.resize(200, 40);
    auto *bar = new RibbonToolBar(&host);
    bar->setMovable(false);
    bar->addAction(solidIcon(Qt::red), QStringLiteral("one"));
    bar->setGeometry(0, 0, 200, 40);
    host.show();
    QVERIFY(QTest::qWaitForWindowExposed(&host));
    const QImage image = grabImage(host);
    QToolButton *button = bar->findChild<QToolButton *>();
    QVERIFY(button && button->geometry().right() + 20 < 190);
    QCOMPARE(image.pixelColor(button->geometry().right() + 20, 20), back);
    QCOMPARE(image.pixelColor(195, 2), back);
    QHoverEvent hover(QEvent::HoverMove, QPointF(5, 5), QPointF(4, 4));
    QVERIFY(!QCoreApplication::sendEvent(bar, &hover));
}

ZEL_TEST_MAIN(tst_RibbonButtons)
#include "tst_ribbonbuttons.moc"
