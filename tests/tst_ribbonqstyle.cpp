// ZEL_TEST_DPI_SENSITIVE: menu item heights scale with the screen.

#include "ZelTest.h"

#include "RibbonMainTabBarStyle.h"
#include "RibbonQStyle.h"
#include "RibbonScale_p.h"
#include "RibbonStyle.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QMenu>
#include <QPainter>
#include <QScrollBar>
#include <QSpinBox>
#include <QStyleFactory>
#include <QStyleOption>

#include <tuple>

using namespace zel;

namespace {

// A palette without images, to exercise the flat fallbacks; the colours the tests expect are
// distinct, and a fallback to any other entry paints the unset (black) colour.
class FlatPalette : public RibbonStyle
{
public:
    FlatPalette()
    {
        m_mainMenuBgColor = QColor(250, 250, 200);
        m_separatorColor = QColor(200, 200, 100);
        m_frameBorderColor = QColor(200, 0, 0);
        m_backstageGrayBorderColor = QColor(120, 60, 60);
        m_backstageBlueBorderHoverColor = QColor(0, 160, 0);
        m_backstageBlueHoverColor = QColor(180, 255, 180);
        m_backstageBluePressedColor = QColor(255, 180, 255);
    }
};

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

// Runs paint on a black image of the given size.
template <typename Paint>
QImage paintImage(const QSize &size, Paint paint)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::black);
    QPainter painter(&image);
    paint(&painter);
    return image;
}

QImage drawComplex(QStyle *style, QStyle::ComplexControl control, const QStyleOptionComplex &option,
                   const QWidget *widget)
{
    return paintImage(option.rect.size(),
                      [&](QPainter *p) { style->drawComplexControl(control, &option, p, widget); });
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
        QRect item = menu.actionGeometry(action);
        item.setWidth(28);
        return item;
    }

    QMenu menu;
    QAction *plain = nullptr;
    QAction *checked = nullptr;
    QAction *unchecked = nullptr;
};

} // namespace

class TestRibbonQStyle : public QObject
{
    Q_OBJECT

private slots:
    void menus();
    void itemHeights();
    void checkBoxIndicator();
    void comboBoxRows();
    void tabShapes();
    void spinBoxButtons();
    void scrollBarThumb();
    void destroyedPaletteFallsBackToApplication();

private:
    const RibbonStyle &m_app = RibbonApplication::theApp().ribbonStyle();
    FlatPalette m_flat;
    RibbonQStyle m_style{QStyleFactory::create(QStringLiteral("Fusion"))};
    RibbonQStyle m_flatStyle{QStyleFactory::create(QStringLiteral("Fusion")), &m_flat};
};

void TestRibbonQStyle::menus()
{
    for (bool flat : {false, true}) {
        const RibbonStyle &s = flat ? m_flat : m_app;
        // The active item: the hover row of the small item sheet; the checked item: row 0 of its sheet.
        const QRgb hoverFill = flat ? s.backstageBlueHoverColor().rgb() : sheetPixel(s.paletteItemSmall(), 11, 11);
        const QRgb checkedBack =
            flat ? s.backstageBluePressedColor().rgb() : sheetPixel(s.checkableMenuItemBack(), 11, 11);
        TestMenu m(flat ? &m_flatStyle : &m_style);
        QImage image = grabImage(m.menu);
        QCOMPARE(image.pixel(0, 0), s.backstageGrayBorderColor().rgb());
        const QRect plain = m.menu.actionGeometry(m.plain);
        QCOMPARE(image.pixel(plain.right() - 4, plain.center().y()), s.mainMenuBgColor().rgb());
        QVERIFY(!containsColor(image, plain, hoverFill));

        // Only the checked item has the checked background behind its mark.
        QVERIFY(containsColor(image, m.checkColumn(m.checked), checkedBack));
        QVERIFY(!containsColor(image, m.checkColumn(m.unchecked), checkedBack));
        const QRect checkedItem = m.menu.actionGeometry(m.checked);
        QCOMPARE(image.pixel(checkedItem.right() - 4, checkedItem.center().y()), s.mainMenuBgColor().rgb());

        m.menu.setActiveAction(m.plain);
        image = grabImage(m.menu);
        QCOMPARE(image.pixel(plain.right() - 6, plain.center().y()), hoverFill);
        if (flat)
            QCOMPARE(image.pixel(plain.left() + 2, plain.center().y()), s.backstageBlueBorderHoverColor().rgb());
        else
            QVERIFY(containsColor(image, m.checkColumn(m.checked), s.frameBorderColor()));
    }
}

void TestRibbonQStyle::itemHeights()
{
    TestMenu m(&m_style);
    const int itemHeight = qMax(scaled(22), QFontMetrics(m.menu.font()).height() + scaled(6));
    QCOMPARE(m.menu.actionGeometry(m.plain).height(), itemHeight);
    QAction *separator = m.menu.insertSeparator(m.checked);
    m.menu.adjustSize();
    QCOMPARE(m.menu.actionGeometry(separator).height(), scaled(7));

    // A combo popup asks for item sizes with the whole item as contents; rows stay one line high.
    QComboBox combo;
    combo.setStyle(&m_style);
    combo.addItems({QStringLiteral("One"), QStringLiteral("Two"), QStringLiteral("Three")});
    combo.show();
    QVERIFY(QTest::qWaitForWindowExposed(&combo));
    combo.showPopup();
    QTRY_VERIFY(combo.view()->isVisible());
    for (int row = 0; row < 3; ++row)
        QCOMPARE(combo.view()->visualRect(combo.model()->index(row, 0)).height(), itemHeight);
}

void TestRibbonQStyle::checkBoxIndicator()
{
    // {checked, enabled}: unchecked, checked, disabled and checked.
    for (const auto &c : {std::make_pair(false, true), {true, true}, {true, false}}) {
        QCheckBox box(QStringLiteral("Option"));
        box.setStyle(&m_style);
        box.setChecked(c.first);
        box.setEnabled(c.second);
        box.resize(box.sizeHint());
        const QImage image = grabImage(box);
        QStyleOptionButton option;
        option.initFrom(&box);
        const QRect indicator = m_style.subElementRect(QStyle::SE_CheckBoxIndicator, &option, &box);
        const int side = qMin(indicator.width(), indicator.height());
        QRect square(0, 0, side, side);
        square.moveCenter(indicator.center());

        const QColor &border =
            c.second ? m_app.backstageGrayBorderPressedColor() : m_app.disabledCategoryTextColor();
        QCOMPARE(image.pixel(square.left(), square.center().y()), border.rgb());
        const QColor &mark = c.second ? m_app.frameBorderColor() : m_app.disabledCategoryTextColor();
        QCOMPARE(containsColor(image, square.adjusted(1, 1, -1, -1), mark), c.first);
    }
}

void TestRibbonQStyle::comboBoxRows()
{
    const QPixmap &sheet = m_app.comboBox();
    const QStyle::State enabled = QStyle::State_Enabled;
    QComboBox combo;
    QStyleOptionComboBox option;
    option.initFrom(&combo);
    option.rect = QRect(0, 0, 120, 22);
    // {state, sheet row, outline without images}: normal, hover, open, disabled.
    int row = 0;
    for (const auto &c : {std::make_pair(enabled, m_flat.backstageGrayBorderColor()),
                          {enabled | QStyle::State_MouseOver, m_flat.backstageBlueBorderHoverColor()},
                          {enabled | QStyle::State_On, m_flat.frameBorderColor()},
                          {QStyle::State_None, m_flat.separatorColor()}}) {
        option.state = c.first;
        // Left edge and inside of the frame come from the state's row of the sheet ...
        QImage image = drawComplex(&m_style, QStyle::CC_ComboBox, option, &combo);
        QCOMPARE(image.pixel(0, 11), sheetPixel(sheet, 0, 22 * row + 11));
        QCOMPARE(image.pixel(40, 11), sheetPixel(sheet, 20, 22 * row++ + 11));
        // ... or, without images, the outline from the state's colour.
        image = drawComplex(&m_flatStyle, QStyle::CC_ComboBox, option, &combo);
        QCOMPARE(image.pixel(0, 11), c.second.rgb());
        QCOMPARE(image.pixel(119, 11), c.second.rgb());
    }
}

void TestRibbonQStyle::tabShapes()
{
    // Tabs, in rows of 24: normal and hovered tabs stand two pixels lower than the current one.
    const QPixmap &tabs = m_app.tabBarTabShape();
    const QStyle::State enabled = QStyle::State_Enabled;
    RibbonMainTabBarStyle mainTabBarStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    for (QStyle *style : {static_cast<QStyle *>(&m_style), static_cast<QStyle *>(&mainTabBarStyle)}) {
        QStyleOptionTab tab;
        tab.rect = QRect(0, 0, 60, 24);
        tab.shape = QTabBar::RoundedNorth;
        const auto paint = [&](QStyle::State state) {
            tab.state = state;
            return paintImage(tab.rect.size(),
                              [&](QPainter *p) { style->drawControl(QStyle::CE_TabBarTabShape, &tab, p); });
        };
        QImage image = paint(enabled);
        QCOMPARE(image.pixel(30, 0), qRgb(0, 0, 0));
        QCOMPARE(image.pixel(30, 12), sheetPixel(tabs, 20, 10));
        QCOMPARE(paint(enabled | QStyle::State_MouseOver).pixel(30, 12), sheetPixel(tabs, 20, 24 + 10));
        image = paint(enabled | QStyle::State_Selected);
        QCOMPARE(image.pixel(30, 0), sheetPixel(tabs, 20, 48));
        QCOMPARE(image.pixel(30, 12), sheetPixel(tabs, 20, 48 + 12));
    }
}

void TestRibbonQStyle::spinBoxButtons()
{
    QSpinBox spin;
    QStyleOptionSpinBox option;
    option.initFrom(&spin);
    option.rect = QRect(0, 0, 80, 24);
    option.frame = true;
    option.subControls = QStyle::SC_All;
    option.stepEnabled = QAbstractSpinBox::StepUpEnabled;
    option.activeSubControls = QStyle::SC_SpinBoxUp;
    option.state |= QStyle::State_MouseOver;
    const QImage image = drawComplex(&m_style, QStyle::CC_SpinBox, option, &spin);

    QCOMPARE(image.pixel(0, 12), m_app.backstageBlueBorderHoverColor().rgb());
    const QRect up = m_style.subControlRect(QStyle::CC_SpinBox, &option, QStyle::SC_SpinBoxUp, &spin);
    const QRect down = m_style.subControlRect(QStyle::CC_SpinBox, &option, QStyle::SC_SpinBoxDown, &spin);
    // The hovered button is lit and its arrow drawn in the text colour; the other
    // button cannot step and shows a disabled arrow on the plain field.
    QVERIFY(containsColor(image, up, m_app.backstageBlueHoverColor()));
    QVERIFY(containsColor(image, up, m_app.highlightedCategoryTextColor()));
    QVERIFY(!containsColor(image, down, m_app.backstageBlueHoverColor()));
    QVERIFY(containsColor(image, down, m_app.disabledCategoryTextColor()));
}

void TestRibbonQStyle::scrollBarThumb()
{
    const RibbonStyle &s = m_app;
    QScrollBar bar(Qt::Horizontal);
    QStyleOptionSlider option;
    option.initFrom(&bar);
    option.rect = QRect(0, 0, 200, 15);
    option.orientation = Qt::Horizontal;
    option.maximum = 100;
    option.pageStep = 20;
    option.sliderPosition = option.sliderValue = 50;
    option.subControls = QStyle::SC_All;
    const QStyle::State state = option.state | QStyle::State_Horizontal;
    const QStyle::SubControl slider = QStyle::SC_ScrollBarSlider;
    // {active part, state, thumb}: normal, hovered, pressed; hovering an arrow leaves the thumb alone.
    for (const auto &c : {std::make_tuple(QStyle::SC_None, state, s.frameRaiseColor()),
                          std::make_tuple(slider, state | QStyle::State_MouseOver, s.backstageGrayBorderHoverColor()),
                          std::make_tuple(slider, state | QStyle::State_Sunken, s.backstageGrayBorderPressedColor()),
                          std::make_tuple(QStyle::SC_ScrollBarAddLine, state | QStyle::State_MouseOver,
                                          s.frameRaiseColor())}) {
        option.activeSubControls = std::get<0>(c);
        option.state = std::get<1>(c);
        const QImage image = drawComplex(&m_style, QStyle::CC_ScrollBar, option, &bar);
        const QRect handle = m_style.subControlRect(QStyle::CC_ScrollBar, &option, slider, &bar);
        const QRect page =
            m_style.subControlRect(QStyle::CC_ScrollBar, &option, QStyle::SC_ScrollBarAddPage, &bar);
        QCOMPARE(image.pixel(handle.center()), std::get<2>(c).rgb());
        QCOMPARE(image.pixel(page.center()), s.mainClientColor().rgb());
        // The thumb is a thin bar inside the groove.
        QCOMPARE(image.pixel(handle.center().x(), 0), s.mainClientColor().rgb());
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
    QCOMPARE(grabImage(m.menu).pixel(0, 0), m_app.backstageGrayBorderColor().rgb());
}

ZEL_TEST_MAIN(TestRibbonQStyle)
#include "tst_ribbonqstyle.moc"
