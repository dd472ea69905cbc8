// ZEL_TEST_DPI_SENSITIVE: menu item heights scale with the screen.

#include "ZelTest.h"

#include "RibbonMainTabBarStyle.h"
#include "RibbonQStyle.h"
#include "RibbonScale_p.h"
#include "RibbonStyle.h"

#include <QCheckBox>
#include <QAbstractItemView>
#include <QComboBox>
#include <QMenu>
#include <QPainter>
#include <QPushButton>
#include <QScrollBar>
#include <QSpinBox>
#include <QStyleFactory>
#include <QStyleOption>
#include <QTabWidget>
#include <QToolBar>
#include <QToolBox>

using namespace zel;

namespace {

// A palette with distinct colours and no images at all, to exercise the flat fallbacks.
class FlatPalette : public RibbonStyle
{
public:
    FlatPalette()
    {
        m_mainMenuBgColor = QColor(250, 250, 200);
        m_mainClientColor = QColor(230, 240, 230);
        m_separatorColor = QColor(200, 200, 100);
        m_frameBorderColor = QColor(200, 0, 0);
        m_frameRaiseColor = QColor(100, 150, 100);
        m_highlightedCategoryTextColor = QColor(10, 10, 80);
        m_disabledCategoryTextColor = QColor(150, 150, 160);
        m_backstageGrayBorderColor = QColor(120, 60, 60);
        m_backstageGrayBorderHoverColor = QColor(90, 90, 30);
        m_backstageGrayBorderPressedColor = QColor(60, 30, 90);
        m_backstageBlueBorderHoverColor = QColor(0, 160, 0);
        m_backstageBlueHoverColor = QColor(180, 255, 180);
        m_backstageBluePressedColor = QColor(255, 180, 255);
    }
};

const RibbonStyle &appPalette()
{
    return RibbonApplication::theApp().ribbonStyle();
}

QRgb sheetPixel(const QPixmap &sheet, int x, int y)
{
    return sheet.toImage().convertToFormat(QImage::Format_ARGB32).pixel(x, y);
}

bool containsColor(const QImage &image, const QRect &area, const QColor &color)
{
    const QRect r = area & image.rect();
    for (int y = r.top(); y <= r.bottom(); ++y)
        for (int x = r.left(); x <= r.right(); ++x)
            if (image.pixel(x, y) == color.rgb())
                return true;
    return false;
}

QImage grabImage(QWidget &widget)
{
    return widget.grab().toImage().convertToFormat(QImage::Format_RGB32);
}

// A menu with a plain, a checked and an unchecked checkable item.
struct TestMenu
{
    explicit TestMenu(QStyle *style)
    {
        menu.setStyle(style);
        plain = menu.addAction(QStringLiteral("Plain"));
        checked = menu.addAction(QStringLiteral("Checked"));
        checked->setCheckable(true);
        checked->setChecked(true);
        unchecked = menu.addAction(QStringLiteral("Unchecked"));
        unchecked->setCheckable(true);
        menu.adjustSize();
    }

    // The check column of an item: its left 28 pixels.
    QRect checkColumn(QAction *action) const
    {
        const QRect item = menu.actionGeometry(action);
        return QRect(item.left(), item.top(), 28, item.height());
    }

    QMenu menu;
    QAction *plain = nullptr;
    QAction *checked = nullptr;
    QAction *unchecked = nullptr;
};

QImage drawComplex(QStyle *style, QStyle::ComplexControl control, const QStyleOptionComplex &option,
                   const QWidget *widget)
{
    QImage image(option.rect.size(), QImage::Format_RGB32);
    image.fill(Qt::black);
    QPainter painter(&image);
    style->drawComplexControl(control, &option, &painter, widget);
    return image;
}

QStyleOptionSlider scrollBarOption(const QScrollBar &bar)
{
    QStyleOptionSlider option;
    option.initFrom(&bar);
    option.rect = QRect(0, 0, 200, 15);
    option.orientation = Qt::Horizontal;
    option.state |= QStyle::State_Horizontal;
    option.minimum = 0;
    option.maximum = 100;
    option.pageStep = 20;
    option.singleStep = 1;
    option.sliderPosition = option.sliderValue = 50;
    option.subControls = QStyle::SC_All;
    option.activeSubControls = QStyle::SC_None;
    return option;
}

} // namespace

class TestRibbonQStyle : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void menuPanelAndItems();
    void menuFallbackWithoutImages();
    void menuItemHeight();
    void comboPopupItemHeight();
    void checkBoxIndicator_data();
    void checkBoxIndicator();
    void pushButtonPanel_data();
    void pushButtonPanel();
    void comboBoxRows_data();
    void comboBoxRows();
    void spinBoxButtons();
    void scrollBarThumb_data();
    void scrollBarThumb();
    void toolTipPanel();
    void tabShapes();
    void toolBoxTabs();
    void destroyedPaletteFallsBackToApplication();
    void widgetsPaintWithoutImages();

private:
    QScopedPointer<RibbonQStyle> m_style;
    QScopedPointer<FlatPalette> m_flat;
    QScopedPointer<RibbonQStyle> m_flatStyle;
};

void TestRibbonQStyle::init()
{
    m_style.reset(new RibbonQStyle(QStyleFactory::create(QStringLiteral("Fusion"))));
    m_flat.reset(new FlatPalette);
    m_flatStyle.reset(new RibbonQStyle(QStyleFactory::create(QStringLiteral("Fusion")), m_flat.data()));
}

void TestRibbonQStyle::cleanup()
{
    m_flatStyle.reset();
    m_flat.reset();
    m_style.reset();
}

void TestRibbonQStyle::menuPanelAndItems()
{
    const RibbonStyle &s = appPalette();
    TestMenu m(m_style.data());
    QImage image = grabImage(m.menu);

    QCOMPARE(image.pixel(0, 0), s.backstageGrayBorderColor().rgb());
    const QRect plain = m.menu.actionGeometry(m.plain);
    QCOMPARE(image.pixel(plain.right() - 4, plain.center().y()), s.mainMenuBgColor().rgb());

    // Only the checked item has the checked background (row 0) behind its mark.
    const QRgb checkedBack = sheetPixel(s.checkableMenuItemBack(), 11, 11);
    QVERIFY(containsColor(image, m.checkColumn(m.checked), checkedBack));
    QVERIFY(!containsColor(image, m.checkColumn(m.unchecked), checkedBack));
    QVERIFY(containsColor(image, m.checkColumn(m.checked), s.frameBorderColor()));

    // The active item is highlighted with the hover row of the small item sheet.
    const QRgb hoverFill = sheetPixel(s.paletteItemSmall(), 11, 11);
    QVERIFY(!containsColor(image, plain, hoverFill));
    m.menu.setActiveAction(m.plain);
    image = grabImage(m.menu);
    QCOMPARE(image.pixel(plain.right() - 6, plain.center().y()), hoverFill);
}

void TestRibbonQStyle::menuFallbackWithoutImages()
{
    TestMenu m(m_flatStyle.data());
    m.menu.setActiveAction(m.plain);
    const QImage image = grabImage(m.menu);

    QCOMPARE(image.pixel(0, 0), m_flat->backstageGrayBorderColor().rgb());
    const QRect plain = m.menu.actionGeometry(m.plain);
    QCOMPARE(image.pixel(plain.right() - 6, plain.center().y()), m_flat->backstageBlueHoverColor().rgb());
    QCOMPARE(image.pixel(plain.left() + 2, plain.center().y()), m_flat->backstageBlueBorderHoverColor().rgb());
    const QRect checkedItem = m.menu.actionGeometry(m.checked);
    QCOMPARE(image.pixel(checkedItem.right() - 4, checkedItem.center().y()), m_flat->mainMenuBgColor().rgb());
    QVERIFY(containsColor(image, m.checkColumn(m.checked), m_flat->backstageBluePressedColor()));
    QVERIFY(!containsColor(image, m.checkColumn(m.unchecked), m_flat->backstageBluePressedColor()));
}

void TestRibbonQStyle::menuItemHeight()
{
    TestMenu m(m_style.data());
    const int textHeight = QFontMetrics(m.menu.font()).height();
    QCOMPARE(m.menu.actionGeometry(m.plain).height(), qMax(scaled(22), textHeight + scaled(6)));
    QAction *separator = m.menu.insertSeparator(m.checked);
    m.menu.adjustSize();
    QCOMPARE(m.menu.actionGeometry(separator).height(), scaled(7));
}

void TestRibbonQStyle::comboPopupItemHeight()
{
    // The popup asks for item sizes with the whole item rectangle as contents; rows stay one line high.
    QWidget window;
    auto *combo = new QComboBox(&window);
    combo->setStyle(m_style.data());
    combo->addItems({QStringLiteral("One"), QStringLiteral("Two"), QStringLiteral("Three")});
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    combo->showPopup();
    QAbstractItemView *view = combo->view();
    QTRY_VERIFY(view->isVisible());
    const int expected = qMax(scaled(22), combo->fontMetrics().height() + scaled(6));
    for (int row = 0; row < 3; ++row)
        QCOMPARE(view->visualRect(combo->model()->index(row, 0)).height(), expected);
    combo->hidePopup();
}

void TestRibbonQStyle::checkBoxIndicator_data()
{
    QTest::addColumn<bool>("checked");
    QTest::addColumn<bool>("enabled");
    QTest::newRow("unchecked") << false << true;
    QTest::newRow("checked") << true << true;
    QTest::newRow("disabled checked") << true << false;
}

void TestRibbonQStyle::checkBoxIndicator()
{
    QFETCH(bool, checked);
    QFETCH(bool, enabled);
    const RibbonStyle &s = appPalette();
    QCheckBox box(QStringLiteral("Option"));
    box.setStyle(m_style.data());
    box.setChecked(checked);
    box.setEnabled(enabled);
    box.resize(box.sizeHint());
    const QImage image = grabImage(box);

    QStyleOptionButton option;
    option.initFrom(&box);
    const QRect indicator = m_style->subElementRect(QStyle::SE_CheckBoxIndicator, &option, &box);
    const int side = qMin(indicator.width(), indicator.height());
    QRect square(0, 0, side, side);
    square.moveCenter(indicator.center());

    const QColor &border = enabled ? s.backstageGrayBorderPressedColor() : s.disabledCategoryTextColor();
    QCOMPARE(image.pixel(square.left(), square.center().y()), border.rgb());
    const QColor &mark = enabled ? s.frameBorderColor() : s.disabledCategoryTextColor();
    QCOMPARE(containsColor(image, square.adjusted(1, 1, -1, -1), mark), checked);
}

void TestRibbonQStyle::pushButtonPanel_data()
{
    QTest::addColumn<bool>("isDefault");
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<QColor>("outline");
    QTest::addColumn<QColor>("fill");
    const RibbonStyle &s = appPalette();
    QTest::newRow("normal") << false << true << s.backstageGrayBorderColor() << s.backstageSimpleButtonColor();
    QTest::newRow("default") << true << true << s.frameBorderColor() << s.backstageSimpleButtonColor();
    QTest::newRow("disabled") << false << false << s.separatorColor() << s.mainClientColor();
}

void TestRibbonQStyle::pushButtonPanel()
{
    QFETCH(bool, isDefault);
    QFETCH(bool, enabled);
    QFETCH(QColor, outline);
    QFETCH(QColor, fill);
    QPushButton button;
    button.setStyle(m_style.data());
    button.setDefault(isDefault);
    button.setEnabled(enabled);
    button.resize(80, 26);
    const QImage image = grabImage(button);
    QCOMPARE(image.pixel(0, 13), outline.rgb());
    QCOMPARE(image.pixel(79, 13), outline.rgb());
    QCOMPARE(image.pixel(5, 13), fill.rgb());
}

void TestRibbonQStyle::comboBoxRows_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<int>("row");
    QTest::addColumn<QColor>("flatOutline");
    const int enabled = QStyle::State_Enabled;
    const FlatPalette p;
    QTest::newRow("normal") << enabled << 0 << p.backstageGrayBorderColor();
    QTest::newRow("hover") << (enabled | int(QStyle::State_MouseOver)) << 1 << p.backstageBlueBorderHoverColor();
    QTest::newRow("open") << (enabled | int(QStyle::State_On)) << 2 << p.frameBorderColor();
    QTest::newRow("disabled") << int(QStyle::State_None) << 3 << p.separatorColor();
}

void TestRibbonQStyle::comboBoxRows()
{
    QFETCH(int, state);
    QFETCH(int, row);
    QFETCH(QColor, flatOutline);
    const QPixmap &sheet = appPalette().comboBox();
    QComboBox combo;
    QStyleOptionComboBox option;
    option.initFrom(&combo);
    option.rect = QRect(0, 0, 120, 22);
    option.state = QStyle::State(state);
    // Left edge and inside of the frame come from the state's row of the sheet ...
    QImage image = drawComplex(m_style.data(), QStyle::CC_ComboBox, option, &combo);
    QCOMPARE(image.pixel(0, 11), sheetPixel(sheet, 0, 22 * row + 11));
    QCOMPARE(image.pixel(40, 11), sheetPixel(sheet, 20, 22 * row + 11));
    // ... or, without images, the outline from the state's colour.
    image = drawComplex(m_flatStyle.data(), QStyle::CC_ComboBox, option, &combo);
    QCOMPARE(image.pixel(0, 11), flatOutline.rgb());
    QCOMPARE(image.pixel(119, 11), flatOutline.rgb());
}

void TestRibbonQStyle::spinBoxButtons()
{
    const RibbonStyle &s = appPalette();
    QSpinBox spin;
    QStyleOptionSpinBox option;
    option.initFrom(&spin);
    option.rect = QRect(0, 0, 80, 24);
    option.frame = true;
    option.subControls = QStyle::SC_All;
    option.stepEnabled = QAbstractSpinBox::StepUpEnabled;
    option.activeSubControls = QStyle::SC_SpinBoxUp;
    option.state |= QStyle::State_MouseOver;
    const QImage image = drawComplex(m_style.data(), QStyle::CC_SpinBox, option, &spin);

    QCOMPARE(image.pixel(0, 12), s.backstageBlueBorderHoverColor().rgb());
    const QRect up = m_style->subControlRect(QStyle::CC_SpinBox, &option, QStyle::SC_SpinBoxUp, &spin);
    const QRect down = m_style->subControlRect(QStyle::CC_SpinBox, &option, QStyle::SC_SpinBoxDown, &spin);
    // The hovered button is lit and its arrow drawn in the text colour; the other
    // button cannot step and shows a disabled arrow on the plain field.
    QVERIFY(containsColor(image, up, s.backstageBlueHoverColor()));
    QVERIFY(containsColor(image, up, s.highlightedCategoryTextColor()));
    QVERIFY(!containsColor(image, down, s.backstageBlueHoverColor()));
    QVERIFY(containsColor(image, down, s.disabledCategoryTextColor()));
}

void TestRibbonQStyle::scrollBarThumb_data()
{
    QTest::addColumn<int>("active");
    QTest::addColumn<int>("state");
    QTest::addColumn<QColor>("thumb");
    const RibbonStyle &s = appPalette();
    const int slider = QStyle::SC_ScrollBarSlider;
    QTest::newRow("normal") << int(QStyle::SC_None) << 0 << s.frameRaiseColor();
    QTest::newRow("hover") << slider << int(QStyle::State_MouseOver) << s.backstageGrayBorderHoverColor();
    QTest::newRow("pressed") << slider << int(QStyle::State_Sunken) << s.backstageGrayBorderPressedColor();
    // Hovering an arrow leaves the thumb alone.
    QTest::newRow("arrow hover") << int(QStyle::SC_ScrollBarAddLine) << int(QStyle::State_MouseOver)
                                 << s.frameRaiseColor();
}

void TestRibbonQStyle::scrollBarThumb()
{
    QFETCH(int, active);
    QFETCH(int, state);
    QFETCH(QColor, thumb);
    QScrollBar bar(Qt::Horizontal);
    QStyleOptionSlider option = scrollBarOption(bar);
    option.activeSubControls = QStyle::SubControls(active);
    option.state |= QStyle::State(state);
    const QImage image = drawComplex(m_style.data(), QStyle::CC_ScrollBar, option, &bar);

    const QRect handle = m_style->subControlRect(QStyle::CC_ScrollBar, &option, QStyle::SC_ScrollBarSlider, &bar);
    const QRect page = m_style->subControlRect(QStyle::CC_ScrollBar, &option, QStyle::SC_ScrollBarAddPage, &bar);
    QVERIFY(handle.isValid() && page.isValid());
    QCOMPARE(image.pixel(handle.center()), thumb.rgb());
    QCOMPARE(image.pixel(page.center()), appPalette().mainClientColor().rgb());
    // The thumb is a thin bar inside the groove.
    QCOMPARE(image.pixel(handle.center().x(), 0), appPalette().mainClientColor().rgb());
}

void TestRibbonQStyle::toolTipPanel()
{
    QStyleOption option;
    option.rect = QRect(0, 0, 60, 20);
    option.state = QStyle::State_Enabled;
    const auto paint = [&](RibbonQStyle *style) {
        QImage image(option.rect.size(), QImage::Format_RGB32);
        image.fill(Qt::black);
        QPainter painter(&image);
        style->drawPrimitive(QStyle::PE_PanelTipLabel, &option, &painter);
        return image;
    };
    const QPixmap &sheet = appPalette().tooltipBack();
    QImage image = paint(m_style.data());
    QCOMPARE(image.pixel(0, 10), sheetPixel(sheet, 0, 3));
    QCOMPARE(image.pixel(30, 10), sheetPixel(sheet, 3, 3));
    image = paint(m_flatStyle.data());
    QCOMPARE(image.pixel(0, 10), m_flat->backstageGrayBorderColor().rgb());
    QCOMPARE(image.pixel(30, 10), m_flat->mainMenuBgColor().rgb());
}

void TestRibbonQStyle::tabShapes()
{
    const QPixmap &sheet = appPalette().tabBarTabShape();
    RibbonMainTabBarStyle mainTabBarStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    for (QStyle *style : {static_cast<QStyle *>(m_style.data()), static_cast<QStyle *>(&mainTabBarStyle)}) {
        QStyleOptionTab tab;
        tab.rect = QRect(0, 0, 60, 24);
        tab.shape = QTabBar::RoundedNorth;
        tab.state = QStyle::State_Enabled;
        const auto paint = [&]() {
            QImage image(tab.rect.size(), QImage::Format_RGB32);
            image.fill(Qt::black);
            QPainter painter(&image);
            style->drawControl(QStyle::CE_TabBarTabShape, &tab, &painter);
            return image;
        };
        // Rows of 24: normal and hovered tabs stand two pixels lower than the current one.
        QImage image = paint();
        QCOMPARE(image.pixel(30, 0), qRgb(0, 0, 0));
        QCOMPARE(image.pixel(30, 12), sheetPixel(sheet, 20, 10));
        tab.state |= QStyle::State_MouseOver;
        image = paint();
        QCOMPARE(image.pixel(30, 12), sheetPixel(sheet, 20, 24 + 10));
        tab.state = QStyle::State_Enabled | QStyle::State_Selected;
        image = paint();
        QCOMPARE(image.pixel(30, 0), sheetPixel(sheet, 20, 48));
        QCOMPARE(image.pixel(30, 12), sheetPixel(sheet, 20, 48 + 12));
    }
}

void TestRibbonQStyle::toolBoxTabs()
{
    const QPixmap &sheet = appPalette().toolBoxTabBack();
    QStyleOptionToolBox option;
    option.rect = QRect(0, 0, 100, 24);
    // Rows of 24: normal, hovered, current.
    int row = 0;
    for (QStyle::State state : {QStyle::State(QStyle::State_Enabled), QStyle::State_Enabled | QStyle::State_MouseOver,
                                QStyle::State_Enabled | QStyle::State_Selected}) {
        option.state = state;
        QImage image(option.rect.size(), QImage::Format_RGB32);
        QPainter painter(&image);
        m_style->drawControl(QStyle::CE_ToolBoxTabShape, &option, &painter);
        QCOMPARE(image.pixel(50, 12), sheetPixel(sheet, 20, 24 * row++ + 12));
    }
}

void TestRibbonQStyle::destroyedPaletteFallsBackToApplication()
{
    auto *palette = new FlatPalette;
    RibbonQStyle style(QStyleFactory::create(QStringLiteral("Fusion")), palette);
    {
        TestMenu m(&style);
        QCOMPARE(grabImage(m.menu).pixel(0, 0), palette->backstageGrayBorderColor().rgb());
    }
    delete palette;
    TestMenu m(&style);
    QCOMPARE(grabImage(m.menu).pixel(0, 0), appPalette().backstageGrayBorderColor().rgb());
}

void TestRibbonQStyle::widgetsPaintWithoutImages()
{
    QWidget window;
    window.setStyle(m_flatStyle.data());
    auto *combo = new QComboBox(&window);
    combo->addItem(QStringLiteral("Item"));
    combo->setGeometry(0, 0, 120, 24);
    auto *editable = new QComboBox(&window);
    editable->setEditable(true);
    editable->setGeometry(0, 30, 120, 24);
    auto *bar = new QScrollBar(Qt::Vertical, &window);
    bar->setGeometry(130, 0, 15, 150);
    auto *tabs = new QTabWidget(&window);
    tabs->addTab(new QWidget, QStringLiteral("One"));
    tabs->addTab(new QWidget, QStringLiteral("Two"));
    tabs->setGeometry(150, 0, 150, 100);
    auto *toolBox = new QToolBox(&window);
    toolBox->addItem(new QWidget, QStringLiteral("Page"));
    toolBox->setGeometry(0, 60, 120, 90);
    auto *toolBar = new QToolBar(&window);
    QAction *toggle = toolBar->addAction(QStringLiteral("Toggle"));
    toggle->setCheckable(true);
    toggle->setChecked(true);
    toolBar->setGeometry(150, 110, 150, 30);
    for (QWidget *child : window.findChildren<QWidget *>())
        child->setStyle(m_flatStyle.data());
    window.resize(300, 150);

    const QImage image = grabImage(window);
    QCOMPARE(image.pixel(0, 12), m_flat->backstageGrayBorderColor().rgb());
    QCOMPARE(image.pixel(137, 75), m_flat->mainClientColor().rgb());
    QVERIFY(containsColor(image, toolBar->geometry(), m_flat->backstageBluePressedColor()));
}

ZEL_TEST_MAIN(TestRibbonQStyle)
#include "tst_ribbonqstyle.moc"
