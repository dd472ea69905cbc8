// The compiled-in images: every palette image exists with the geometry the painting
// code slices it by, the entries meant to stay empty are null, the icons load, and the
// state rows that widgets tell apart really look different.

#include "ZelTest.h"

#include "DefaultRibbonStyle.h"
#include "RibbonApplication.h"
#include "RibbonStyle.h"

#include <QFile>
#include <QHash>
#include <QIcon>
#include <QImage>
#include <QPixmap>

#include <cmath>

using zel::RibbonStyle;

namespace {

using Getter = const QPixmap &(RibbonStyle::*)() const;

const QHash<QString, Getter> &getters()
{
    static const QHash<QString, Getter> table = {
        {QStringLiteral("mainBorder"), &RibbonStyle::mainBorder},
        {QStringLiteral("mainBorderCaption"), &RibbonStyle::mainBorderCaption},
        {QStringLiteral("statusBar"), &RibbonStyle::statusBar},
        {QStringLiteral("sysBtnBack"), &RibbonStyle::sysBtnBack},
        {QStringLiteral("toolBoxTabBack"), &RibbonStyle::toolBoxTabBack},
        {QStringLiteral("sysBtnClose"), &RibbonStyle::sysBtnClose},
        {QStringLiteral("sysBtnCloseSmall"), &RibbonStyle::sysBtnCloseSmall},
        {QStringLiteral("sysBtnMaximize"), &RibbonStyle::sysBtnMaximize},
        {QStringLiteral("sysBtnMaximizeSmall"), &RibbonStyle::sysBtnMaximizeSmall},
        {QStringLiteral("sysBtnMinimize"), &RibbonStyle::sysBtnMinimize},
        {QStringLiteral("sysBtnMinimizeSmall"), &RibbonStyle::sysBtnMinimizeSmall},
        {QStringLiteral("sysBtnRestore"), &RibbonStyle::sysBtnRestore},
        {QStringLiteral("sysBtnRestoreSmall"), &RibbonStyle::sysBtnRestoreSmall},
        {QStringLiteral("normalButtonSmall"), &RibbonStyle::normalButtonSmall},
        {QStringLiteral("menuBarButton"), &RibbonStyle::menuBarButton},
        {QStringLiteral("fileBarButton"), &RibbonStyle::fileBarButton},
        {QStringLiteral("categories"), &RibbonStyle::categories},
        {QStringLiteral("categoryTop"), &RibbonStyle::categoryTop},
        {QStringLiteral("categoryBottom"), &RibbonStyle::categoryBottom},
        {QStringLiteral("categoryWrapperBack"), &RibbonStyle::categoryWrapperBack},
        {QStringLiteral("categoryWrapperIcon"), &RibbonStyle::categoryWrapperIcon},
        {QStringLiteral("mainPanelBack"), &RibbonStyle::mainPanelBack},
        {QStringLiteral("horizontalMenuButtonCaption"), &RibbonStyle::horizontalMenuButtonCaption},
        {QStringLiteral("horizontalMenuButtonMenu"), &RibbonStyle::horizontalMenuButtonMenu},
        {QStringLiteral("verticalMenuButtonCaption"), &RibbonStyle::verticalMenuButtonCaption},
        {QStringLiteral("verticalMenuButtonMenu"), &RibbonStyle::verticalMenuButtonMenu},
        {QStringLiteral("mainPanelBorder"), &RibbonStyle::mainPanelBorder},
        {QStringLiteral("mainPanelSeparator"), &RibbonStyle::mainPanelSeparator},
        {QStringLiteral("mainPanelButton"), &RibbonStyle::mainPanelButton},
        {QStringLiteral("paletteBtnTop"), &RibbonStyle::paletteBtnTop},
        {QStringLiteral("paletteBtnMiddle"), &RibbonStyle::paletteBtnMiddle},
        {QStringLiteral("paletteBtnBottom"), &RibbonStyle::paletteBtnBottom},
        {QStringLiteral("paletteItemLarge"), &RibbonStyle::paletteItemLarge},
        {QStringLiteral("paletteItemSmall"), &RibbonStyle::paletteItemSmall},
        {QStringLiteral("popupBorder"), &RibbonStyle::popupBorder},
        {QStringLiteral("popupResizeBarBack"), &RibbonStyle::popupResizeBarBack},
        {QStringLiteral("popupResizeBarIconB"), &RibbonStyle::popupResizeBarIconB},
        {QStringLiteral("popupResizeBarIconBR"), &RibbonStyle::popupResizeBarIconBR},
        {QStringLiteral("popupResizeBarIconTR"), &RibbonStyle::popupResizeBarIconTR},
        {QStringLiteral("checkableMenuItemBack"), &RibbonStyle::checkableMenuItemBack},
        {QStringLiteral("tabBarTabs"), &RibbonStyle::tabBarTabs},
        {QStringLiteral("sliderPlus"), &RibbonStyle::sliderPlus},
        {QStringLiteral("sliderMinus"), &RibbonStyle::sliderMinus},
        {QStringLiteral("sliderThumb"), &RibbonStyle::sliderThumb},
        {QStringLiteral("btnGroupFirst"), &RibbonStyle::btnGroupFirst},
        {QStringLiteral("btnGroupMidle"), &RibbonStyle::btnGroupMidle},
        {QStringLiteral("btnGroupLast"), &RibbonStyle::btnGroupLast},
        {QStringLiteral("comboBox"), &RibbonStyle::comboBox},
        {QStringLiteral("tabBarTabShape"), &RibbonStyle::tabBarTabShape},
        {QStringLiteral("tooltipBack"), &RibbonStyle::tooltipBack},
    };
    return table;
}

QImage rowImage(const QPixmap &sheet, int rowHeight, int row)
{
    return sheet.toImage().convertToFormat(QImage::Format_ARGB32).copy(0, row * rowHeight, sheet.width(), rowHeight);
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

private:
    const RibbonStyle &style() const { return zel::RibbonApplication::theApp().ribbonStyle(); }

    const QPixmap *image(const QString &getter) const
    {
        const auto it = getters().constFind(getter);
        return it == getters().constEnd() ? nullptr : &(style().*(it.value()))();
    }

private slots:
    // Width, the height of one state row (or of the whole image) and the number of rows
    // the painting code indexes; a sheet may carry spare rows up to maxRows.
    void geometry_data()
    {
        QTest::addColumn<QString>("getter");
        QTest::addColumn<int>("width");
        QTest::addColumn<int>("rowHeight");
        QTest::addColumn<int>("minRows");
        QTest::addColumn<int>("maxRows");

        const auto row = [](const char *getter, int width, int rowHeight, int minRows, int maxRows) {
            QTest::newRow(getter) << QString::fromLatin1(getter) << width << rowHeight << minRows << maxRows;
        };
        // Window frame: halves side by side for the active and the inactive window.
        row("mainBorderCaption", 70, 31, 1, 1);
        row("mainBorder", 70, 23, 1, 1);
        row("statusBar", 70, 23, 1, 1);              // its height is the status bar's height
        row("sysBtnBack", 17, 16, 2, 2);             // hover, pressed
        row("sysBtnMinimizeSmall", 13, 12, 5, 5);    // pressed y 0, hover y 12, normal y 24 / y 36
        row("sysBtnMaximizeSmall", 13, 12, 5, 5);
        row("sysBtnRestoreSmall", 13, 12, 5, 5);
        row("sysBtnCloseSmall", 13, 12, 5, 5);
        row("sysBtnMinimize", 17, 16, 5, 5);         // pressed, hover, active y 32, inactive y 64
        row("sysBtnMaximize", 17, 16, 5, 5);
        row("sysBtnRestore", 17, 16, 5, 5);
        row("sysBtnClose", 17, 16, 5, 5);
        // Tab row and panel.
        row("menuBarButton", 57, 24, 5, 5);          // 5 | 47 | 5, rows up to y 96
        row("fileBarButton", 57, 24, 2, 2);
        row("categories", 80, 92, 1, 1);             // 5 | 70 | 5
        row("categoryTop", 100, 68, 2, 2);           // normal, hovered
        row("categoryBottom", 100, 17, 2, 2);
        row("categoryWrapperBack", 52, 85, 3, 3);    // 3 | 46 | 3: normal, hover, open
        row("tabBarTabs", 21, 16, 2, 2);             // 4 | 1 | 16: normal, current
        // Button sheets, nine-sliced by state index.
        row("normalButtonSmall", 22, 22, 5, 5);
        row("paletteItemSmall", 22, 22, 5, 5);
        row("paletteItemLarge", 43, 66, 5, 5);
        row("btnGroupFirst", 22, 22, 5, 5);
        row("btnGroupMidle", 22, 22, 5, 5);
        row("btnGroupLast", 22, 22, 5, 5);
        row("horizontalMenuButtonCaption", 22, 22, 6, 6); // caption states 0-5
        row("horizontalMenuButtonMenu", 11, 22, 5, 6);    // arrow states 0-4
        row("verticalMenuButtonCaption", 43, 39, 6, 6);
        row("verticalMenuButtonMenu", 43, 27, 5, 6);
        row("mainPanelButton", 54, 23, 3, 3);
        // Palette popup and status bar.
        row("popupBorder", 7, 7, 1, 1);
        row("popupResizeBarBack", 3, 11, 1, 1);
        row("popupResizeBarIconBR", 9, 8, 1, 1);     // fills the 9 x 8 grip
        row("popupResizeBarIconTR", 9, 8, 1, 1);
        row("sliderMinus", 18, 18, 3, 3);
        row("sliderPlus", 18, 18, 3, 3);
        row("sliderThumb", 11, 15, 3, 3);
    }

    void geometry()
    {
        QFETCH(QString, getter);
        QFETCH(int, width);
        QFETCH(int, rowHeight);
        QFETCH(int, minRows);
        QFETCH(int, maxRows);

        const QPixmap *pm = image(getter);
        QVERIFY2(pm, qPrintable(QStringLiteral("no getter ") + getter));
        QVERIFY(!pm->isNull());
        QCOMPARE(pm->width(), width);
        QCOMPARE(pm->height() % rowHeight, 0);
        QVERIFY2(pm->height() / rowHeight >= minRows && pm->height() / rowHeight <= maxRows,
                 qPrintable(QStringLiteral("%1 rows").arg(pm->height() / rowHeight)));
    }

    // Images the library reads only through the standard-control style, or not at all:
    // their geometry is ours to choose, but they must load, and the state sheets of the
    // standard-control style must hold whole rows of the height it slices by.
    void presentImages_data()
    {
        QTest::addColumn<QString>("getter");
        QTest::addColumn<int>("rowHeight");
        QTest::addColumn<int>("rows");
        QTest::newRow("comboBox") << QStringLiteral("comboBox") << 22 << 4;
        QTest::newRow("checkableMenuItemBack") << QStringLiteral("checkableMenuItemBack") << 22 << 3;
        QTest::newRow("toolBoxTabBack") << QStringLiteral("toolBoxTabBack") << 24 << 3;
        QTest::newRow("tabBarTabShape") << QStringLiteral("tabBarTabShape") << 24 << 3;
        for (const char *name : {"tooltipBack", "mainPanelBack", "mainPanelBorder", "mainPanelSeparator", "popupResizeBarIconB"})
            QTest::newRow(name) << QString::fromLatin1(name) << 0 << 1;
    }

    void presentImages()
    {
        QFETCH(QString, getter);
        QFETCH(int, rowHeight);
        QFETCH(int, rows);
        const QPixmap *pm = image(getter);
        QVERIFY(pm);
        QVERIFY(!pm->isNull());
        QVERIFY(pm->width() >= 3 && pm->height() >= 3);
        if (rowHeight > 0)
            QCOMPARE(pm->height(), rowHeight * rows);
    }

    void dropDownArrowSource()
    {
        // drawSymbol(SymbolDropDown) and the folded group read the arrow at (0, 0, 5, 3).
        const QPixmap &icon = style().categoryWrapperIcon();
        QVERIFY(!icon.isNull());
        QVERIFY(icon.width() >= 5 && icon.height() >= 3);
        const QImage arrow = icon.toImage().copy(0, 0, 5, 3).convertToFormat(QImage::Format_ARGB32);
        QVERIFY(qAlpha(arrow.pixel(2, 0)) > 0);   // the tip column is inked...
        QVERIFY(qAlpha(arrow.pixel(2, 2)) > 0);
        QCOMPARE(qAlpha(arrow.pixel(0, 2)), 0);   // ...and the shape narrows downwards
    }

    void absentImages_data()
    {
        QTest::addColumn<QString>("getter");
        QTest::newRow("paletteBtnTop") << QStringLiteral("paletteBtnTop");
        QTest::newRow("paletteBtnMiddle") << QStringLiteral("paletteBtnMiddle");
        QTest::newRow("paletteBtnBottom") << QStringLiteral("paletteBtnBottom");
    }

    void absentImages()
    {
        QFETCH(QString, getter);
        const QPixmap *pm = image(getter);
        QVERIFY(pm);
        QVERIFY(pm->isNull());
    }

    void resourceDirectory_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<bool>("present");
        const char *present[] = {
            "BtnGroupFirst.png", "BtnGroupLast.png", "BtnGroupMidle.png", "Categories.png", "CategoryBottom.png",
            "CategoryTop.png", "CategoryWrapperBack.png", "CategoryWrapperIcon.png", "CheckableMenuItemBack.png",
            "ComboBox.png", "FileRibbonMenuBarButton.png", "HMenuButtonCaption.png", "HMenuButtonMenu.png",
            "MainBorder.png", "MainBorderCaption.png", "MainPanelBack.png", "MainPanelBorder.png", "MainPanelButton.png",
            "MainPanelSeparator.png", "MenuBarButton.png", "MenuPaneBarButton.png", "NormalButtonSmall.png",
            "PaletteItemLarge.png", "PaletteItemSmall.png", "PopupBorder.png", "PopupResizeBarBack.png",
            "PopupResizeBarIconB.png", "PopupResizeBarIconBR.png", "PopupResizeBarIconTR.png", "SliderMinus.png",
            "SliderPlus.png", "SliderThumb.png", "StatusBar.png", "SysBtnBack.png", "SysBtnClose.png",
            "SysBtnCloseSmall.png", "SysBtnMaximize.png", "SysBtnMaximizeSmall.png", "SysBtnMinimize.png",
            "SysBtnMinimizeSmall.png", "SysBtnRestore.png", "SysBtnRestoreSmall.png", "TabBarTabs.png",
            "ToolBoxBack.png", "TooltipBack.png"};
        for (const char *file : present)
            QTest::newRow(file) << QString::fromLatin1(file) << true;
        for (const char *file : {"PaletteButtonTop.png", "PaletteButtonMiddle.png", "PaletteButtonBottom.png", "TerminateButton.png"})
            QTest::newRow(file) << QString::fromLatin1(file) << false;
    }

    void resourceDirectory()
    {
        QFETCH(QString, file);
        QFETCH(bool, present);
        const QString path = QStringLiteral(":/zel/ribbon/windows/") + file;
        QCOMPARE(QFile::exists(path), present);
        QCOMPARE(!QPixmap(path).isNull(), present);
    }

    void freshPaletteMatchesApplication()
    {
        // A palette built on the same directory loads the same images.
        zel::DefaultRibbonStyle fresh(QStringLiteral(":/zel/ribbon/windows/"));
        QCOMPARE(fresh.menuBarButton().size(), style().menuBarButton().size());
        QCOMPARE(fresh.menuBarButton().toImage(), style().menuBarButton().toImage());
        QVERIFY(fresh.paletteBtnTop().isNull());

        zel::DefaultRibbonStyle nowhere(QStringLiteral(":/no/such/directory/"));
        QVERIFY(nowhere.categories().isNull());
    }

    void icons_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<int>("minSide");
        QTest::addColumn<int>("maxSide");
        QTest::newRow("DefaultAppIcon") << QStringLiteral(":/zel/ribbon/icons/DefaultAppIcon.png") << 16 << 256;
        QTest::newRow("Exit") << QStringLiteral(":/zel/ribbon/icons/Exit.ico") << 16 << 256;
        QTest::newRow("pinIcon") << QStringLiteral(":/zel/common/Resources/pinIcon.png") << 16 << 32;
        QTest::newRow("unpinIcon") << QStringLiteral(":/zel/common/Resources/unpinIcon.png") << 16 << 32;
        QTest::newRow("PinRibbon") << QStringLiteral(":/zel/common/Resources/PinRibbon.ico") << 16 << 32;
        QTest::newRow("MinimizeRibbon") << QStringLiteral(":/zel/common/Resources/MinimizeRibbon.ico") << 16 << 32;
        QTest::newRow("Check") << QStringLiteral(":/zel/common/Resources/Check.ico") << 16 << 16;
        QTest::newRow("QuickAccessToolbar") << QStringLiteral(":/zel/common/Resources/QuickAccessToolbar.ico") << 16 << 16;
    }

    void icons()
    {
        QFETCH(QString, path);
        QFETCH(int, minSide);
        QFETCH(int, maxSide);
        const QImage img(path);
        QVERIFY2(!img.isNull(), qPrintable(path));
        QCOMPARE(img.width(), img.height());
        QVERIFY(img.width() >= minSide && img.width() <= maxSide);
        QVERIFY(img.hasAlphaChannel());

        // Something is drawn, and it leaves a transparent margin.
        const QImage argb = img.convertToFormat(QImage::Format_ARGB32);
        int inked = 0;
        for (int y = 0; y < argb.height(); ++y) {
            for (int x = 0; x < argb.width(); ++x)
                inked += qAlpha(argb.pixel(x, y)) > 0;
        }
        QVERIFY(inked > 0);
        QVERIFY(inked < argb.width() * argb.height());

        const QIcon icon(path);
        QVERIFY(!icon.isNull());
        QCOMPARE(icon.pixmap(16, 16).size(), QSize(16, 16));
    }

    // Rows that a widget shows for different states must not look the same.
    void statesDiffer_data()
    {
        QTest::addColumn<QString>("getter");
        QTest::addColumn<int>("rowHeight");
        QTest::addColumn<int>("rowA");
        QTest::addColumn<int>("rowB");

        const auto row = [](const char *name, const char *getter, int h, int a, int b) {
            QTest::newRow(name) << QString::fromLatin1(getter) << h << a << b;
        };
        row("button: hover vs pressed", "paletteItemSmall", 22, 0, 1);
        row("button: hover vs checked", "paletteItemSmall", 22, 0, 2);
        row("button: checked vs checked+hover", "paletteItemSmall", 22, 2, 3);
        row("button: checked vs disabled", "paletteItemSmall", 22, 2, 4);
        row("large: hover vs checked", "paletteItemLarge", 66, 0, 2);
        row("large: checked vs checked+hover", "paletteItemLarge", 66, 2, 3);
        row("tool: hover vs checked", "normalButtonSmall", 22, 1, 4);
        row("tool: checked vs checked+hover", "normalButtonSmall", 22, 4, 3);
        row("tool: normal vs hover", "normalButtonSmall", 22, 0, 1);
        row("strip: normal vs hover", "btnGroupMidle", 22, 0, 1);
        row("strip: hover vs checked", "btnGroupMidle", 22, 1, 3);
        row("strip: checked vs checked+hover", "btnGroupFirst", 22, 3, 4);
        row("split caption: hover vs partner", "horizontalMenuButtonCaption", 22, 0, 5);
        row("split arrow: hover vs pressed", "horizontalMenuButtonMenu", 22, 0, 1);
        row("tab: hover vs current", "menuBarButton", 24, 2, 3);
        row("tab: current vs current+hover", "menuBarButton", 24, 3, 4);
        row("file: hover vs normal", "fileBarButton", 24, 0, 1);
        row("group: normal vs hovered", "categoryTop", 68, 0, 1);
        row("folded group: hover vs open", "categoryWrapperBack", 85, 1, 2);
        row("page button: hover vs checked", "mainPanelButton", 23, 1, 2);
        row("page button: light hover vs hover", "mainPanelButton", 23, 0, 1);
        row("sys back: hover vs pressed", "sysBtnBack", 16, 0, 1);
        row("glyph: hover vs normal", "sysBtnClose", 16, 1, 2);
        row("glyph: active vs inactive", "sysBtnClose", 16, 2, 4);
        row("small glyph: pressed vs normal", "sysBtnCloseSmall", 12, 0, 3);
        row("slider: normal vs hover", "sliderPlus", 18, 0, 1);
        row("thumb: hover vs pressed", "sliderThumb", 15, 1, 2);
        row("sheet tab: normal vs current", "tabBarTabs", 16, 0, 1);
    }

    void statesDiffer()
    {
        QFETCH(QString, getter);
        QFETCH(int, rowHeight);
        QFETCH(int, rowA);
        QFETCH(int, rowB);
        const QPixmap *pm = image(getter);
        QVERIFY(pm && !pm->isNull());
        QVERIFY(rowImage(*pm, rowHeight, rowA) != rowImage(*pm, rowHeight, rowB));
    }

    void tabJoinsPanel()
    {
        // The panel paints a 2-pixel strip in categoryColorUnderButton under the current
        // tab; the tab's fill and the panel's fill must be that colour or a seam shows.
        const QColor under = style().categoryColorUnderButton();
        QVERIFY(under.isValid());
        const QImage panel = style().categories().toImage();
        QCOMPARE(QColor(panel.pixel(40, 46)).rgb(), under.rgb());
        const QImage tabs = style().menuBarButton().toImage();
        for (int rowY : {72, 96})
            QCOMPARE(QColor(tabs.pixel(28, rowY + 23)).rgb(), under.rgb());
    }

    void whiteTextStaysReadable()
    {
        // The status bar and the File button carry white text from the palette.
        const QImage bar = style().statusBar().toImage();
        for (int x : {15, 34 + 15})
            QVERIFY(contrast(QColor(bar.pixel(x, 12)), style().statusBarTextColor()) >= 4.5);
        const QImage file = style().fileBarButton().toImage();
        for (int y : {12, 24 + 12})
            QVERIFY(contrast(QColor(file.pixel(28, y)), style().fileMenuBarTextColor()) >= 4.5);
    }

    void windowHalvesDiffer()
    {
        // Active and inactive halves of the window frame are told apart by the user.
        for (const QPixmap *pm : {&style().mainBorderCaption(), &style().mainBorder(), &style().statusBar()}) {
            const QImage img = pm->toImage();
            const int half = pm == &style().statusBar() ? 34 : 35;
            QVERIFY(img.copy(0, 0, half, img.height()) != img.copy(half, 0, half, img.height()));
        }
    }
};

ZEL_TEST_MAIN(tst_Images)
#include "tst_images.moc"
