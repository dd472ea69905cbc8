// The compiled-in images: every palette image exists with the geometry the painting code
// slices it by, the entries meant to stay empty are null, the icons load, and the state rows
// that widgets tell apart really look different.

#include "ZelTest.h"

#include "DarkRibbonStyle.h"
#include "DefaultRibbonStyle.h"
#include "RibbonApplication.h"
#include "RibbonStyle.h"

#include <QFile>
#include <QIcon>
#include <QImage>
#include <QPixmap>

#include <cmath>

using zel::RibbonStyle;

using Getter = const QPixmap &(RibbonStyle::*)() const;
Q_DECLARE_METATYPE(Getter)

// A table row named after a palette image, with its getter as the first column.
#define IMAGE_ROW(name) QTest::newRow(#name) << Getter(&RibbonStyle::name)

namespace {

const RibbonStyle &style()
{
    return zel::RibbonApplication::theApp().ribbonStyle();
}

double luminance(const QColor &c)
{
    const auto channel = [](double v) {
        v /= 255.0;
        return v <= 0.03928 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * channel(c.red()) + 0.7152 * channel(c.green()) + 0.0722 * channel(c.blue());
}

double contrast(const QColor &a, const QColor &b)
{
    const double la = luminance(a), lb = luminance(b);
    return (std::max(la, lb) + 0.05) / (std::min(la, lb) + 0.05);
}

} // namespace

class tst_Images : public QObject
{
    Q_OBJECT

private slots:
    // Width, the height of one state row and the number of rows the painting code indexes; a
    // sheet may carry spare rows up to maxRows. 0 leaves width or row height free: images read
    // only through the standard-control style, or not at all.
    void geometry_data()
    {
        QTest::addColumn<Getter>("getter");
        QTest::addColumn<int>("width");
        QTest::addColumn<int>("rowHeight");
        QTest::addColumn<int>("minRows");
        QTest::addColumn<int>("maxRows");

        // Window frame: halves side by side for the active and the inactive window.
        IMAGE_ROW(mainBorderCaption) << 70 << 31 << 1 << 1;
        IMAGE_ROW(mainBorder) << 70 << 23 << 1 << 1;
        IMAGE_ROW(statusBar) << 70 << 23 << 1 << 1;           // its height is the status bar's
        IMAGE_ROW(sysBtnBack) << 17 << 16 << 2 << 2;          // hover, pressed
        IMAGE_ROW(sysBtnMinimizeSmall) << 13 << 12 << 5 << 5; // pressed, hover, normal y 24 / y 36
        IMAGE_ROW(sysBtnMaximizeSmall) << 13 << 12 << 5 << 5;
        IMAGE_ROW(sysBtnRestoreSmall) << 13 << 12 << 5 << 5;
        IMAGE_ROW(sysBtnCloseSmall) << 13 << 12 << 5 << 5;
        IMAGE_ROW(sysBtnMinimize) << 17 << 16 << 5 << 5;      // pressed, hover, active, inactive
        IMAGE_ROW(sysBtnMaximize) << 17 << 16 << 5 << 5;
        IMAGE_ROW(sysBtnRestore) << 17 << 16 << 5 << 5;
        IMAGE_ROW(sysBtnClose) << 17 << 16 << 5 << 5;
        // Tab row and panel.
        IMAGE_ROW(menuBarButton) << 57 << 24 << 5 << 5;       // 5 | 47 | 5, rows up to y 96
        IMAGE_ROW(fileBarButton) << 57 << 24 << 2 << 2;
        IMAGE_ROW(categories) << 80 << 92 << 1 << 1;          // 5 | 70 | 5
        IMAGE_ROW(categoryTop) << 100 << 68 << 2 << 2;        // normal, hovered
        IMAGE_ROW(categoryBottom) << 100 << 17 << 2 << 2;
        IMAGE_ROW(categoryWrapperBack) << 52 << 85 << 3 << 3; // 3 | 46 | 3: normal, hover, open
        IMAGE_ROW(tabBarTabs) << 21 << 16 << 2 << 2;          // 4 | 1 | 16: normal, current
        // Button sheets, nine-sliced by state index.
        IMAGE_ROW(normalButtonSmall) << 22 << 22 << 5 << 5;
        IMAGE_ROW(paletteItemSmall) << 22 << 22 << 5 << 5;
        IMAGE_ROW(paletteItemLarge) << 43 << 66 << 5 << 5;
        IMAGE_ROW(btnGroupFirst) << 22 << 22 << 5 << 5;
        IMAGE_ROW(btnGroupMidle) << 22 << 22 << 5 << 5;
        IMAGE_ROW(btnGroupLast) << 22 << 22 << 5 << 5;
        IMAGE_ROW(horizontalMenuButtonCaption) << 22 << 22 << 6 << 6; // caption states 0-5
        IMAGE_ROW(horizontalMenuButtonMenu) << 11 << 22 << 5 << 6;    // arrow states 0-4
        IMAGE_ROW(verticalMenuButtonCaption) << 43 << 39 << 6 << 6;
        IMAGE_ROW(verticalMenuButtonMenu) << 43 << 27 << 5 << 6;
        IMAGE_ROW(mainPanelButton) << 54 << 23 << 3 << 3;
        // Palette popup and status bar.
        IMAGE_ROW(popupBorder) << 7 << 7 << 1 << 1;
        IMAGE_ROW(popupResizeBarBack) << 3 << 11 << 1 << 1;
        IMAGE_ROW(popupResizeBarIconBR) << 9 << 8 << 1 << 1;  // fills the 9 x 8 grip
        IMAGE_ROW(popupResizeBarIconTR) << 9 << 8 << 1 << 1;
        IMAGE_ROW(sliderMinus) << 18 << 18 << 3 << 3;
        IMAGE_ROW(sliderPlus) << 18 << 18 << 3 << 3;
        IMAGE_ROW(sliderThumb) << 11 << 15 << 3 << 3;
        // State sheets of the standard-control style, and images with free geometry.
        IMAGE_ROW(comboBox) << 0 << 22 << 4 << 4;
        IMAGE_ROW(checkableMenuItemBack) << 0 << 22 << 3 << 3;
        IMAGE_ROW(toolBoxTabBack) << 0 << 24 << 3 << 3;
        IMAGE_ROW(tabBarTabShape) << 0 << 24 << 3 << 3;
        IMAGE_ROW(tooltipBack) << 0 << 0 << 1 << 1;
        IMAGE_ROW(mainPanelBack) << 0 << 0 << 1 << 1;
        IMAGE_ROW(mainPanelBorder) << 0 << 0 << 1 << 1;
        IMAGE_ROW(mainPanelSeparator) << 0 << 0 << 1 << 1;
        IMAGE_ROW(popupResizeBarIconB) << 0 << 0 << 1 << 1;
    }

    void geometry()
    {
        QFETCH(Getter, getter);
        QFETCH(int, width);
        QFETCH(int, rowHeight);
        QFETCH(int, minRows);
        QFETCH(int, maxRows);

        const QPixmap &pm = (style().*getter)();
        QVERIFY(!pm.isNull());
        QVERIFY(pm.width() >= 3 && pm.height() >= 3);
        if (width)
            QCOMPARE(pm.width(), width);
        const int rows = pm.height() / (rowHeight ? rowHeight : pm.height());
        QCOMPARE(pm.height() % (rowHeight ? rowHeight : pm.height()), 0);
        QVERIFY2(rows >= minRows && rows <= maxRows, qPrintable(QStringLiteral("%1 rows").arg(rows)));
    }

    void dropDownArrowSource()
    {
        // drawSymbol(SymbolDropDown) and the folded group read the arrow at (0, 0, 5, 3).
        const QPixmap &icon = style().categoryWrapperIcon();
        QVERIFY(icon.width() >= 5 && icon.height() >= 3);
        const QImage arrow = icon.toImage().copy(0, 0, 5, 3).convertToFormat(QImage::Format_ARGB32);
        QVERIFY(qAlpha(arrow.pixel(2, 0)) > 0); // the tip column is inked...
        QVERIFY(qAlpha(arrow.pixel(2, 2)) > 0);
        QCOMPARE(qAlpha(arrow.pixel(0, 2)), 0); // ...and the shape narrows downwards
    }

    void resourceDirectory_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<bool>("present");
        const QString present = QStringLiteral(
            "BtnGroupFirst BtnGroupLast BtnGroupMidle Categories CategoryBottom CategoryTop "
            "CategoryWrapperBack CategoryWrapperIcon CheckableMenuItemBack ComboBox FileRibbonMenuBarButton "
            "HMenuButtonCaption HMenuButtonMenu MainBorder MainBorderCaption MainPanelBack MainPanelBorder "
            "MainPanelButton MainPanelSeparator MenuBarButton MenuPaneBarButton NormalButtonSmall "
            "PaletteItemLarge PaletteItemSmall PopupBorder PopupResizeBarBack PopupResizeBarIconB "
            "PopupResizeBarIconBR PopupResizeBarIconTR SliderMinus SliderPlus SliderThumb StatusBar "
            "SysBtnBack SysBtnClose SysBtnCloseSmall SysBtnMaximize SysBtnMaximizeSmall SysBtnMinimize "
            "SysBtnMinimizeSmall SysBtnRestore SysBtnRestoreSmall TabBarTabs ToolBoxBack TooltipBack");
        const QString absent =
            QStringLiteral("PaletteButtonTop PaletteButtonMiddle PaletteButtonBottom TerminateButton");
        for (const QString &file : present.split(QLatin1Char(' ')))
            QTest::newRow(qPrintable(file)) << file + QLatin1String(".png") << true;
        for (const QString &file : absent.split(QLatin1Char(' ')))
            QTest::newRow(qPrintable(file)) << file + QLatin1String(".png") << false;
    }

    void resourceDirectory()
    {
        QFETCH(QString, file);
        QFETCH(bool, present);
        const QString path = QStringLiteral(":/zel/ribbon/windows/") + file;
        QCOMPARE(QFile::exists(path), present);
        QCOMPARE(!QPixmap(path).isNull(), present);
    }

    // A palette built on the same directory loads the same images; the palette-button entries
    // stay empty; an unknown directory gives null images, not a crash.
    void paletteFromDirectory()
    {
        zel::DefaultRibbonStyle fresh(QStringLiteral(":/zel/ribbon/windows/"));
        QCOMPARE(fresh.menuBarButton().toImage(), style().menuBarButton().toImage());
        for (Getter empty : {&RibbonStyle::paletteBtnTop, &RibbonStyle::paletteBtnMiddle,
                             &RibbonStyle::paletteBtnBottom}) {
            QVERIFY((style().*empty)().isNull());
            QVERIFY((fresh.*empty)().isNull());
        }
        zel::DefaultRibbonStyle nowhere(QStringLiteral(":/no/such/directory/"));
        QVERIFY(nowhere.categories().isNull());
    }

    // The application's own palettes decode an image when it is first asked for. Every
    // getter then gives what a palette the host builds on the same directory holds from its
    // constructor on, and the very same pixmap on every later call.
    void applicationPalettesMatchEagerOnes_data()
    {
        QTest::addColumn<Getter>("getter");
        QTest::addColumn<bool>("dark");
#define PALETTE_ROW(name) QTest::addRow("%s %s", dark ? "dark" : "light", #name) << Getter(&RibbonStyle::name) << dark
        for (const bool dark : {false, true}) {
            PALETTE_ROW(mainBorder);
            PALETTE_ROW(mainBorderCaption);
            PALETTE_ROW(statusBar);
            PALETTE_ROW(sysBtnBack);
            PALETTE_ROW(toolBoxTabBack);
            PALETTE_ROW(sysBtnClose);
            PALETTE_ROW(sysBtnCloseSmall);
            PALETTE_ROW(sysBtnMaximize);
            PALETTE_ROW(sysBtnMaximizeSmall);
            PALETTE_ROW(sysBtnMinimize);
            PALETTE_ROW(sysBtnMinimizeSmall);
            PALETTE_ROW(sysBtnRestore);
            PALETTE_ROW(sysBtnRestoreSmall);
            PALETTE_ROW(normalButtonSmall);
            PALETTE_ROW(menuBarButton);
            PALETTE_ROW(fileBarButton);
            PALETTE_ROW(categories);
            PALETTE_ROW(categoryTop);
            PALETTE_ROW(categoryBottom);
            PALETTE_ROW(categoryWrapperBack);
            PALETTE_ROW(categoryWrapperIcon);
            PALETTE_ROW(mainPanelBack);
            PALETTE_ROW(horizontalMenuButtonCaption);
            PALETTE_ROW(horizontalMenuButtonMenu);
            PALETTE_ROW(verticalMenuButtonCaption);
            PALETTE_ROW(verticalMenuButtonMenu);
            PALETTE_ROW(mainPanelBorder);
            PALETTE_ROW(mainPanelSeparator);
            PALETTE_ROW(mainPanelButton);
            PALETTE_ROW(paletteBtnTop);
            PALETTE_ROW(paletteBtnMiddle);
            PALETTE_ROW(paletteBtnBottom);
            PALETTE_ROW(paletteItemLarge);
            PALETTE_ROW(paletteItemSmall);
            PALETTE_ROW(popupBorder);
            PALETTE_ROW(popupResizeBarBack);
            PALETTE_ROW(popupResizeBarIconB);
            PALETTE_ROW(popupResizeBarIconBR);
            PALETTE_ROW(popupResizeBarIconTR);
            PALETTE_ROW(checkableMenuItemBack);
            PALETTE_ROW(tabBarTabs);
            PALETTE_ROW(sliderPlus);
            PALETTE_ROW(sliderMinus);
            PALETTE_ROW(sliderThumb);
            PALETTE_ROW(btnGroupFirst);
            PALETTE_ROW(btnGroupMidle);
            PALETTE_ROW(btnGroupLast);
            PALETTE_ROW(comboBox);
            PALETTE_ROW(tabBarTabShape);
            PALETTE_ROW(tooltipBack);
        }
#undef PALETTE_ROW
    }

    void applicationPalettesMatchEagerOnes()
    {
        QFETCH(Getter, getter);
        QFETCH(bool, dark);
        static const zel::DefaultRibbonStyle eagerLight(QStringLiteral(":/zel/ribbon/windows/"));
        static const zel::DarkRibbonStyle eagerDark(QStringLiteral(":/zel/ribbon/dark/"));
        const RibbonStyle &eager = dark ? static_cast<const RibbonStyle &>(eagerDark) : eagerLight;

        zel::RibbonApplication &app = zel::RibbonApplication::theApp();
        app.setRibbonStyle(dark ? zel::RibbonApplication::RibbonStyleDark : zel::RibbonApplication::RibbonStyleDefault);
        const QPixmap &first = (app.ribbonStyle().*getter)();
        const QPixmap &again = (app.ribbonStyle().*getter)();
        app.setRibbonStyle(zel::RibbonApplication::RibbonStyleDefault);

        QCOMPARE(first.isNull(), (eager.*getter)().isNull());
        QCOMPARE(first.toImage(), (eager.*getter)().toImage());
        QCOMPARE(first.devicePixelRatio(), (eager.*getter)().devicePixelRatio());
        QCOMPARE(&again, &first);
        QCOMPARE(again.cacheKey(), first.cacheKey());
    }

    // A host's palette may read the entries it inherits in its own constructor.
    void hostPaletteEntriesFilledByConstructor()
    {
        struct HostPalette : zel::DefaultRibbonStyle
        {
            HostPalette()
                : DefaultRibbonStyle(QStringLiteral(":/zel/ribbon/windows/"))
                , border(m_mainBorder.toImage())
            {
                // Replaced by the host: the getter gives the host's image.
                m_categories = QPixmap(7, 5);
            }
            QImage border;
        } host;
        QVERIFY(!host.border.isNull());
        QCOMPARE(host.border, style().mainBorder().toImage());
        QCOMPARE(host.mainBorder().toImage(), host.border);
        QCOMPARE(host.categories().size(), QSize(7, 5));
    }

    void icons_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<int>("minSide");
        QTest::addColumn<int>("maxSide");
        const auto row = [](const char *file, int minSide, int maxSide) {
            QTest::newRow(file) << QLatin1String(":/zel/") + QLatin1String(file) << minSide << maxSide;
        };
        row("ribbon/icons/DefaultAppIcon.png", 16, 256);
        row("ribbon/icons/Exit.ico", 16, 256);
        row("common/Resources/pinIcon.png", 16, 32);
        row("common/Resources/unpinIcon.png", 16, 32);
        row("common/Resources/PinRibbon.ico", 16, 32);
        row("common/Resources/MinimizeRibbon.ico", 16, 32);
        row("common/Resources/Check.ico", 16, 16);
        row("common/Resources/QuickAccessToolbar.ico", 16, 16);
    }

    // Square, in range, with alpha; something is drawn and it leaves a transparent margin.
    void icons()
    {
        QFETCH(QString, path);
        QFETCH(int, minSide);
        QFETCH(int, maxSide);
        const QImage img = QImage(path).convertToFormat(QImage::Format_ARGB32);
        QVERIFY2(!img.isNull() && QImage(path).hasAlphaChannel(), qPrintable(path));
        QCOMPARE(img.width(), img.height());
        QVERIFY(img.width() >= minSide && img.width() <= maxSide);
        int inked = 0;
        for (int y = 0; y < img.height(); ++y) {
            for (int x = 0; x < img.width(); ++x)
                inked += qAlpha(img.pixel(x, y)) > 0;
        }
        QVERIFY(inked > 0 && inked < img.width() * img.height());
        QCOMPARE(QIcon(path).pixmap(16, 16).size(), QSize(16, 16));
    }

    // Rows that a widget shows for different states must not look the same ("a/b": rows a and b).
    void statesDiffer_data()
    {
        QTest::addColumn<Getter>("getter");
        QTest::addColumn<int>("rowHeight");
        QTest::addColumn<QString>("pairs");
        // paletteItemSmall: hover, pressed, checked, checked+hover, disabled checked.
        IMAGE_ROW(paletteItemSmall) << 22 << "0/1 0/2 2/3 2/4";
        IMAGE_ROW(paletteItemLarge) << 66 << "0/2 2/3";
        IMAGE_ROW(normalButtonSmall) << 22 << "1/4 4/3 0/1";
        IMAGE_ROW(btnGroupMidle) << 22 << "0/1 1/3";
        IMAGE_ROW(btnGroupFirst) << 22 << "3/4";
        IMAGE_ROW(horizontalMenuButtonCaption) << 22 << "0/5";  // hover vs partner hovered
        IMAGE_ROW(horizontalMenuButtonMenu) << 22 << "0/1";
        IMAGE_ROW(menuBarButton) << 24 << "2/3 3/4";            // hover, current, current+hover
        IMAGE_ROW(fileBarButton) << 24 << "0/1";
        IMAGE_ROW(categoryTop) << 68 << "0/1";
        IMAGE_ROW(categoryWrapperBack) << 85 << "1/2";
        IMAGE_ROW(mainPanelButton) << 23 << "0/1 1/2";          // light hover, hover, checked
        IMAGE_ROW(sysBtnBack) << 16 << "0/1";
        IMAGE_ROW(sysBtnClose) << 16 << "1/2 2/4";              // hover, active, inactive
        IMAGE_ROW(sysBtnCloseSmall) << 12 << "0/3";
        IMAGE_ROW(sliderPlus) << 18 << "0/1";
        IMAGE_ROW(sliderThumb) << 15 << "1/2";
        IMAGE_ROW(tabBarTabs) << 16 << "0/1";
    }

    void statesDiffer()
    {
        QFETCH(Getter, getter);
        QFETCH(int, rowHeight);
        QFETCH(QString, pairs);
        const QImage img = (style().*getter)().toImage().convertToFormat(QImage::Format_ARGB32);
        QVERIFY(!img.isNull());
        const auto row = [&](const QString &pair, int which) {
            const int r = pair.section(QLatin1Char('/'), which, which).toInt();
            return img.copy(0, r * rowHeight, img.width(), rowHeight);
        };
        for (const QString &pair : pairs.split(QLatin1Char(' ')))
            QVERIFY2(row(pair, 0) != row(pair, 1), qPrintable(pair));
    }

    // Colours the widgets paint next to or on top of images must match or stay readable.
    void coloursAgainstImages()
    {
        // The panel paints a 2-pixel strip in categoryColorUnderButton under the current tab;
        // the tab's fill and the panel's fill must be that colour or a seam shows.
        const QRgb under = style().categoryColorUnderButton().rgb();
        QCOMPARE(style().categories().toImage().pixel(40, 46) | 0xff000000, under);
        const QImage tabs = style().menuBarButton().toImage();
        for (int rowY : {72, 96})
            QCOMPARE(tabs.pixel(28, rowY + 23) | 0xff000000, under);

        // The status bar and the File button carry white text from the palette.
        const QImage bar = style().statusBar().toImage();
        for (int x : {15, 34 + 15})
            QVERIFY(contrast(QColor(bar.pixel(x, 12)), style().statusBarTextColor()) >= 4.5);
        const QImage file = style().fileBarButton().toImage();
        for (int y : {12, 24 + 12})
            QVERIFY(contrast(QColor(file.pixel(28, y)), style().fileMenuBarTextColor()) >= 4.5);

        // Active and inactive halves of the window frame are told apart by the user.
        for (Getter frame : {&RibbonStyle::mainBorderCaption, &RibbonStyle::mainBorder,
                             &RibbonStyle::statusBar}) {
            const QImage img = (style().*frame)().toImage();
            const int half = frame == &RibbonStyle::statusBar ? 34 : 35;
            QVERIFY(img.copy(0, 0, half, img.height()) != img.copy(half, 0, half, img.height()));
        }
    }
};

ZEL_TEST_MAIN(tst_Images)
#include "tst_images.moc"
