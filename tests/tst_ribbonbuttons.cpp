// Large captions are measured at 96 and 144 DPI: ZEL_TEST_DPI_SENSITIVE
#include "ZelTest.h"

#include "RibbonApplication.h"
#include "RibbonButtonNormal.h"
#include "RibbonCatActionGroup.h"
#include "RibbonCatActionGroupWidget.h"
#include "RibbonCatMenuAction.h"
#include "RibbonCatMenuButton.h"
#include "IRibbonGroupWidget.h"
#include "RibbonCatSimpleAction.h"
#include "RibbonCatSimpleButton.h"
#include "RibbonMainMenuItem.h"
#include "RibbonStyle.h"
#include "RibbonSymbolButton.h"
#include "RibbonToolBar.h"

#include <QHoverEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QPointer>
#include <QToolButton>

#include <memory>

using namespace zel;

namespace {

int scaledBy(double v)
{
    return int(v * RibbonApplication::theApp().dpiFactor().second + 0.5);
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
    return sheet.toImage().convertToFormat(QImage::Format_ARGB32).pixel(sheet.width() / 2, row * rowHeight + rowHeight / 2);
}

class KeyRecorder : public QWidget
{
public:
    int keys = 0;

protected:
    void keyPressEvent(QKeyEvent *event) override
    {
        ++keys;
        QWidget::keyPressEvent(event);
    }
};

} // namespace

class tst_RibbonButtons : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void simpleButtonSize_data();
    void simpleButtonSize();
    void largeCaptionWrapsToTwoLines();
    void twoLineFitMatchesFontMetrics_data();
    void twoLineFitMatchesFontMetrics();
    void followsAction();
    void clickTriggers();
    void checkedAndDisabledLooks();
    void hoveredCheckedLook();
    void actionDeletedBeforeButton();

    void stripSize();
    void stripClicks();
    void stripCheckedCell();
    void stripToolTip();
    void wideStripHandsPressToHiddenButton();

    void normalButtonFollowsFirstAction();
    void symbolButton();
    void menuItemConsumesKeys();
    void toolBarShowsParent();

private:
    QList<RibbonCatSimpleAction *> fill(RibbonCatActionGroup &group, int n, bool checkable = false);
    RibbonCatSimpleAction *action(const QString &text, RibbonCatSimpleAction::eSize size, bool withIcon = true);
    std::unique_ptr<QObject> m_owner;
};

void tst_RibbonButtons::init()
{
    m_owner.reset(new QObject);
}

void tst_RibbonButtons::cleanup()
{
    m_owner.reset();
}

RibbonCatSimpleAction *tst_RibbonButtons::action(const QString &text, RibbonCatSimpleAction::eSize size,
                                                 bool withIcon)
{
    return withIcon ? new RibbonCatSimpleAction(solidIcon(Qt::blue), text, size, m_owner.get())
                    : new RibbonCatSimpleAction(text, size, m_owner.get());
}

// n small members with icons and captions "0", "1", ...; tooltips "tip 0", ...
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
    QTest::newRow("large long") << 0 << QStringLiteral("Check Spelling and Grammar") << true << -1;
    QTest::newRow("large one long word") << 0 << QStringLiteral("Supercalifragilistic") << true << -1;
    QTest::newRow("large minimal wider") << 0 << QStringLiteral("Go") << true << 80;
    QTest::newRow("large minimal narrower") << 0 << QStringLiteral("Go") << true << 10;
    QTest::newRow("medium icon and text") << 1 << QStringLiteral("Copy") << true << -1;
    QTest::newRow("medium text only") << 1 << QStringLiteral("Copy") << false << -1;
    QTest::newRow("medium icon only") << 1 << QString() << true << -1;
    QTest::newRow("medium empty") << 1 << QString() << false << -1;
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

    int width = 0;
    int height = scaledBy(22);
    if (size == 0) {
        width = qMax((tw + 4 < 35 ? tw : twoLineFit(fm, text).width()) + 10, 42);
        height = scaledBy(66);
    } else if (size == 1) {
        width = (withIcon ? 18 : 0) + (text.isEmpty() ? 0 : tw + 10);
    } else {
        width = withIcon ? 22 : 4;
    }
    width = qMax(width, minimalWidth);
    QCOMPARE(button.sizeHint(), QSize(width, height));
    QCOMPARE(button.sizePolicy(), QSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed));
    QCOMPARE(button.focusPolicy(), Qt::NoFocus);
}

void tst_RibbonButtons::twoLineFitMatchesFontMetrics_data()
{
    QTest::addColumn<QString>("text");

    QTest::newRow("words") << QStringLiteral("Check Spelling and Grammar");
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
    }
}

void tst_RibbonButtons::largeCaptionWrapsToTwoLines()
{
    // The width itself is checked in simpleButtonSize; here both lines must be painted.
    const QString text = QStringLiteral("Check Spelling and Grammar");
    RibbonCatSimpleButton button(*action(text, RibbonCatSimpleAction::SizeLarge), nullptr);
    const QFontMetrics fm = button.fontMetrics();
    QVERIFY(button.sizeHint().width() < fm.horizontalAdvance(text));
    button.resize(button.sizeHint());
    const QImage image = grabImage(button);
    const QRgb textColor = RibbonApplication::theApp().ribbonStyle().highlightedCategoryTextColor().rgb();
    const int secondLineTop = scaledBy(34) + scaledBy(2) + fm.lineSpacing();
    int inFirst = 0;
    int inSecond = 0;
    for (int y = scaledBy(34); y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, y) == textColor)
                ++(y < secondLineTop ? inFirst : inSecond);
        }
    }
    QVERIFY(inFirst > 0);
    QVERIFY(inSecond > 0);
}

void tst_RibbonButtons::followsAction()
{
    RibbonCatSimpleAction *a = action(QStringLiteral("Copy"), RibbonCatSimpleAction::SizeMedium);
    a->setToolTip(QStringLiteral("Copy the selection"));
    RibbonCatSimpleButton button(*a, nullptr);
    QCOMPARE(button.text(), QStringLiteral("Copy"));
    QCOMPARE(button.toolTip(), QStringLiteral("Copy the selection"));
    QVERIFY(!button.icon().isNull());

    const int before = button.sizeHint().width();
    a->setText(QStringLiteral("Copy everything"));
    QCOMPARE(button.text(), QStringLiteral("Copy everything"));
    QVERIFY(button.sizeHint().width() > before);

    a->setEnabled(false);
    QVERIFY(!button.isEnabled());
    a->setCheckable(true);
    a->setChecked(true);
    QVERIFY(button.isCheckable());
    QVERIFY(button.isChecked());

    // A font change measures the caption again.
    const int normal = button.sizeHint().width();
    QFont big = button.font();
    big.setPointSize(big.pointSize() * 2);
    button.setFont(big);
    QVERIFY(button.sizeHint().width() > normal);
}

void tst_RibbonButtons::clickTriggers()
{
    RibbonCatSimpleAction *a = action(QStringLiteral("Go"), RibbonCatSimpleAction::SizeLarge);
    RibbonCatSimpleButton button(*a, nullptr);
    button.resize(button.sizeHint());
    button.show();
    QVERIFY(QTest::qWaitForWindowExposed(&button));
    QSignalSpy triggered(a, &QAction::triggered);

    QTest::mouseClick(&button, Qt::LeftButton);
    QCOMPARE(triggered.count(), 1);
    QTest::mouseClick(&button, Qt::RightButton);
    QCOMPARE(triggered.count(), 1);

    // A checkable action toggles once per click, and the button shows its state.
    a->setCheckable(true);
    QTest::mouseClick(&button, Qt::LeftButton);
    QVERIFY(a->isChecked() && button.isChecked());
    QTest::mouseClick(&button, Qt::LeftButton);
    QVERIFY(!a->isChecked() && !button.isChecked());
    QCOMPARE(triggered.count(), 3);

    a->setEnabled(false);
    QTest::mouseClick(&button, Qt::LeftButton);
    QCOMPARE(triggered.count(), 3);
}

void tst_RibbonButtons::checkedAndDisabledLooks()
{
    const RibbonStyle &style = RibbonApplication::theApp().ribbonStyle();
    for (auto size : {RibbonCatSimpleAction::SizeLarge, RibbonCatSimpleAction::SizeSmall}) {
        // No icon and no text: only the background differs between the states.
        RibbonCatSimpleAction *a = action(QString(), size, false);
        RibbonCatSimpleButton button(*a, nullptr);
        button.resize(size == RibbonCatSimpleAction::SizeLarge ? QSize(42, 66) : QSize(22, 22));
        const QPixmap &sheet = size == RibbonCatSimpleAction::SizeLarge ? style.paletteItemLarge()
                                                                        : style.paletteItemSmall();
        const int rowHeight = size == RibbonCatSimpleAction::SizeLarge ? 66 : 22;
        const QPoint centre(button.width() / 2, button.height() / 2);

        const QImage plain = grabImage(button);
        a->setEnabled(false);
        const QImage disabled = grabImage(button);
        QCOMPARE(disabled, plain); // neither draws a background

        a->setCheckable(true);
        a->setChecked(true);
        const QImage disabledChecked = grabImage(button);
        QVERIFY(disabledChecked != plain);
        QCOMPARE(disabledChecked.pixel(centre), sheetCentre(sheet, rowHeight, 4));

        a->setEnabled(true);
        const QImage checked = grabImage(button);
        QVERIFY(checked != disabledChecked);
        QCOMPARE(checked.pixel(centre), sheetCentre(sheet, rowHeight, 2));

        button.setDown(true);
        const QImage pressed = grabImage(button);
        QCOMPARE(pressed.pixel(centre), sheetCentre(sheet, rowHeight, 1));
    }
}

void tst_RibbonButtons::hoveredCheckedLook()
{
    const RibbonStyle &style = RibbonApplication::theApp().ribbonStyle();
    RibbonCatSimpleAction *a = action(QString(), RibbonCatSimpleAction::SizeSmall, false);
    a->setCheckable(true);
    a->setChecked(true);
    QWidget window;
    window.resize(100, 100);
    RibbonCatSimpleButton button(*a, &window);
    button.setGeometry(10, 10, 22, 22);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QTest::mouseMove(&window, QPoint(80, 80));
    QTRY_VERIFY(!button.underMouse());
    const auto row = [&style](int r) { return sheetCentre(style.paletteItemSmall(), 22, r); };
    QCOMPARE(grabImage(button).pixel(11, 11), row(2));
    QTest::mouseMove(&button, QPoint(11, 11));
    QTRY_VERIFY(button.underMouse());
    QCOMPARE(grabImage(button).pixel(11, 11), row(3));
    a->setChecked(false);
    QCOMPARE(grabImage(button).pixel(11, 11), row(0));
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

void tst_RibbonButtons::stripSize()
{
    RibbonCatActionGroup group(m_owner.get());
    RibbonCatActionGroupWidget strip(group, nullptr);
    QCOMPARE(strip.sizeHint(), QSize(0, 22));
    fill(group, 3);
    QCOMPARE(strip.sizeHint(), QSize(66, 22));
    group.addAction(action(QStringLiteral("w"), RibbonCatSimpleAction::SizeSmall), true);
    QVERIFY(group.isWide());
    QCOMPARE(strip.sizeHint(), QSize(4 * 30, 22));
    QCOMPARE(strip.cellAt(QPoint(59, 5)), 1);
    QCOMPARE(strip.cellAt(QPoint(120, 5)), -1);
    QCOMPARE(strip.cellAt(QPoint(-1, 5)), -1);
}

void tst_RibbonButtons::stripClicks()
{
    RibbonCatActionGroup group(m_owner.get());
    const QList<RibbonCatSimpleAction *> actions = fill(group, 3);
    RibbonCatActionGroupWidget strip(group, nullptr);
    strip.resize(strip.sizeHint());
    strip.show();
    QVERIFY(QTest::qWaitForWindowExposed(&strip));
    QSignalSpy first(actions.at(0), &QAction::triggered);
    QSignalSpy second(actions.at(1), &QAction::triggered);
    QSignalSpy third(actions.at(2), &QAction::triggered);

    QTest::mouseClick(&strip, Qt::LeftButton, {}, QPoint(33, 11));
    QCOMPARE(second.count(), 1);

    // Pressed on one cell and released over another: nothing.
    QTest::mousePress(&strip, Qt::LeftButton, {}, QPoint(33, 11));
    QTest::mouseRelease(&strip, Qt::LeftButton, {}, QPoint(55, 11));
    QCOMPARE(second.count(), 1);
    QCOMPARE(third.count(), 0);

    // Outside every cell, or with another button: nothing.
    QTest::mouseClick(&strip, Qt::LeftButton, {}, QPoint(70, 11));
    QTest::mouseClick(&strip, Qt::RightButton, {}, QPoint(5, 11));
    QCOMPARE(first.count(), 0);

    // A disabled member is neither pressed nor triggered.
    actions.at(0)->setEnabled(false);
    QTest::mouseClick(&strip, Qt::LeftButton, {}, QPoint(5, 11));
    QCOMPARE(first.count(), 0);
    actions.at(0)->setEnabled(true);
    QTest::mouseClick(&strip, Qt::LeftButton, {}, QPoint(5, 11));
    QCOMPARE(first.count(), 1);
}

void tst_RibbonButtons::stripCheckedCell()
{
    const RibbonStyle &style = RibbonApplication::theApp().ribbonStyle();
    RibbonCatActionGroup group(m_owner.get());
    const QList<RibbonCatSimpleAction *> actions = fill(group, 3, true);
    QWidget window;
    window.resize(120, 60);
    RibbonCatActionGroupWidget strip(group, &window);
    strip.setGeometry(10, 10, 66, 22);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QTest::mouseMove(&window, QPoint(110, 50));
    QTRY_VERIFY(!strip.underMouse());

    const QImage sheet = style.btnGroupMidle().toImage();
    const auto row = [&sheet](int r) { return sheet.pixel(11, r * 22 + 11); };
    const QImage plain = grabImage(strip);
    QCOMPARE(plain.pixel(33, 11), row(0));
    actions.at(1)->setChecked(true);
    const QImage checked = grabImage(strip);
    QCOMPARE(checked.pixel(33, 11), row(3));
    // The other cells keep their look.
    QCOMPARE(checked.copy(0, 0, 22, 22), plain.copy(0, 0, 22, 22));
    QCOMPARE(checked.copy(44, 0, 22, 22), plain.copy(44, 0, 22, 22));

    QTest::mouseMove(&strip, QPoint(33, 11));
    QTRY_VERIFY(strip.underMouse());
    QCOMPARE(grabImage(strip).pixel(33, 11), row(4));
    QTest::mouseMove(&window, QPoint(110, 50));
    QTRY_VERIFY(!strip.underMouse());
    QCOMPARE(grabImage(strip).pixel(33, 11), row(3));

    // A disabled group shows every cell in the normal row.
    group.setEnabled(false);
    QCOMPARE(grabImage(strip).pixel(33, 11), row(0));
}

void tst_RibbonButtons::stripToolTip()
{
    RibbonCatActionGroup group(m_owner.get());
    fill(group, 2);
    RibbonCatActionGroupWidget strip(group, nullptr);
    strip.resize(strip.sizeHint());
    strip.show();
    QVERIFY(QTest::qWaitForWindowExposed(&strip));
    QTest::mouseMove(&strip, QPoint(30, 10));
    QTRY_COMPARE(strip.toolTip(), QStringLiteral("tip 1"));
    QTest::mouseMove(&strip, QPoint(3, 10));
    QTRY_COMPARE(strip.toolTip(), QStringLiteral("tip 0"));
}

void tst_RibbonButtons::wideStripHandsPressToHiddenButton()
{
    RibbonCatActionGroup group(m_owner.get());
    auto *menu = new RibbonCatMenuAction(solidIcon(Qt::green), QStringLiteral("Menu"),
                                         RibbonCatMenuAction::MenuTypeButton, RibbonCatMenuAction::MenuSizeSmall,
                                         RibbonCatMenuAction::PopupMenu, m_owner.get());
    menu->addAction(action(QStringLiteral("item"), RibbonCatSimpleAction::SizeMedium), false);
    RibbonCatSimpleAction *plain = action(QStringLiteral("plain"), RibbonCatSimpleAction::SizeSmall);
    group.addAction(plain, true);
    group.addAction(menu, true);

    QWidget window;
    window.resize(120, 60);
    RibbonCatActionGroupWidget strip(group, &window);
    strip.setGeometry(10, 10, 60, 22);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));

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

void tst_RibbonButtons::normalButtonFollowsFirstAction()
{
    auto *first = new RibbonAction(solidIcon(Qt::red), QStringLiteral("First"), m_owner.get());
    first->setToolTip(QStringLiteral("first tip"));
    first->setCheckable(true);
    auto *second = new RibbonAction(QStringLiteral("Second"), m_owner.get());
    RibbonButtonNormal button;
    button.addAction(first);
    button.addAction(second);
    QCOMPARE(button.toolTip(), QStringLiteral("first tip"));
    QVERIFY(button.isCheckable());
    QVERIFY(!button.icon().isNull());

    second->setToolTip(QStringLiteral("ignored"));
    QCOMPARE(button.toolTip(), QStringLiteral("first tip"));

    QSignalSpy triggered(first, &QAction::triggered);
    button.resize(22, 22);
    button.show();
    QVERIFY(QTest::qWaitForWindowExposed(&button));
    QTest::mouseClick(&button, Qt::LeftButton);
    QCOMPARE(triggered.count(), 1);
    QVERIFY(first->isChecked() && button.isChecked());
    first->setChecked(false);
    QVERIFY(!button.isChecked());

    // Checked and unchecked look different; disabled and unchecked shows no background.
    const QImage unchecked = grabImage(button);
    first->setChecked(true);
    QVERIFY(grabImage(button) != unchecked);
    first->setChecked(false);
    first->setEnabled(false);
    QVERIFY(!button.isEnabled());
    first->setEnabled(true);

    // A removed action is no longer run.
    button.removeAction(first);
    QTest::mouseClick(&button, Qt::LeftButton);
    QCOMPARE(triggered.count(), 1);
    const bool shown = button.isChecked();
    first->setChecked(!shown);
    QCOMPARE(button.isChecked(), shown);
}

void tst_RibbonButtons::symbolButton()
{
    RibbonSymbolButton down(SymbolArrowUp);
    QVERIFY(!down.sizeHint().isValid());
    down.resize(22, 22);
    const QImage enabled = grabImage(down);
    const QRgb textColor = RibbonApplication::theApp().ribbonStyle().highlightedCategoryTextColor().rgb();
    // The triangle's base runs along the bottom of the inner rectangle.
    QCOMPARE(enabled.pixel(11, 18), textColor);
    down.setEnabled(false);
    QCOMPARE(grabImage(down).pixel(11, 18),
             RibbonApplication::theApp().ribbonStyle().disabledCategoryTextColor().rgb());
}

void tst_RibbonButtons::menuItemConsumesKeys()
{
    KeyRecorder parent;
    auto *first = new RibbonMainMenuItem(&parent);
    auto *second = new RibbonMainMenuItem(&parent);
    first->setGeometry(0, 0, 50, 20);
    second->setGeometry(0, 20, 50, 20);
    first->setFocusPolicy(Qt::StrongFocus);
    second->setFocusPolicy(Qt::StrongFocus);
    QSignalSpy navigation(first, &RibbonMainMenuItem::navigationKeyPressed);
    parent.show();
    QVERIFY(QTest::qWaitForWindowExposed(&parent));
    QApplication::setActiveWindow(&parent);
    first->setFocus();
    QTRY_VERIFY(first->hasFocus());
    for (Qt::Key key : {Qt::Key_Down, Qt::Key_Right, Qt::Key_Up, Qt::Key_Left, Qt::Key_Space})
        QTest::keyClick(first, key);
    QVERIFY(first->hasFocus());
    QCOMPARE(parent.keys, 0);
    QCOMPARE(navigation.count(), 0); // emitted by subclasses only
}

void tst_RibbonButtons::toolBarShowsParent()
{
    const QColor back(10, 200, 30);
    QWidget parent;
    QPalette palette = parent.palette();
    palette.setColor(QPalette::Window, back);
    parent.setPalette(palette);
    parent.setAutoFillBackground(true);
    parent.resize(200, 40);
    auto *bar = new RibbonToolBar(&parent);
    bar->setMovable(false);
    bar->addAction(solidIcon(Qt::red), QStringLiteral("one"));
    bar->setGeometry(0, 0, 200, 40);
    parent.show();
    QVERIFY(QTest::qWaitForWindowExposed(&parent));

    const QImage image = grabImage(parent);
    QToolButton *button = bar->findChild<QToolButton *>();
    QVERIFY(button);
    // Right of the last button the bar shows the parent's colour.
    const int x = button->geometry().right() + 20;
    QVERIFY(x < 190);
    QCOMPARE(image.pixelColor(x, 20), back);
    QCOMPARE(image.pixelColor(195, 2), back);

    QHoverEvent hover(QEvent::HoverMove, QPointF(5, 5), QPointF(4, 4));
    QVERIFY(!QCoreApplication::sendEvent(bar, &hover));
}

ZEL_TEST_MAIN(tst_RibbonButtons)
#include "tst_ribbonbuttons.moc"
