// ZEL_TEST_DPI_SENSITIVE: two style sheets carry row heights scaled by the screen resolution.

#include "ZelTest.h"

#include "DefaultRibbonStyle.h"
#include "RibbonMainTabBarStyle.h"
#include "RibbonPlatform.h"
#include "RibbonQStyle.h"
#include "RibbonStyle.h"
#include "RibbonStyles.h"

#include <QImage>
#include <QPainter>
#include <QStyleFactory>
#include <QTemporaryDir>

using namespace zel;

namespace {

// The grey scroll-bar sheet that several sheets end with.
const char kScrollBarSheet[] =
    "QScrollBar:horizontal { background-color: #f3f3f3; height: 15px; margin: 0px 15px 0px 15px; }"
    "QScrollBar::handle:horizontal { border: 1px solid; border-color: #ababab; background-color: white; min-width: 15px; }"
    "QScrollBar::handle:horizontal:hover { border-color: #ababab; background-color: #f0f0f0; }"
    "QScrollBar::handle:horizontal:pressed { border-color: #767676; background-color: #f0f0f0; }"
    "QScrollBar::add-line:horizontal { border: 1px solid; border-color: #ababab; background-color: white; width: 15px; subcontrol-position: right; subcontrol-origin: margin; }"
    "QScrollBar::add-line:horizontal:hover { border-color: #767676; background-color: white; }"
    "QScrollBar::add-line:horizontal:pressed { border-color: #767676; background-color: #f0f0f0; }"
    "QScrollBar::sub-line:horizontal { border: 1px solid; border-color: #ababab; background-color: white; width: 15px; subcontrol-position: left; subcontrol-origin: margin; }"
    "QScrollBar::sub-line:horizontal:hover { border-color: #767676; background-color: white; }"
    "QScrollBar::sub-line:horizontal:pressed { border-color: #767676; background-color: #f0f0f0; }"
    "QScrollBar::left-arrow { border-right: 4px solid #767676; border-top: 4px solid none; border-bottom: 4px solid none; width: 0px; height: 0px; }"
    "QScrollBar::left-arrow:hover { border-right: 4px solid #767676; border-top: 4px solid none; border-bottom: 4px solid none; width: 0px; height: 0px; }"
    "QScrollBar::left-arrow:pressed { border-right: 4px solid #767676; border-top: 4px solid none; border-bottom: 4px solid none; width: 0px; height: 0px; }"
    "QScrollBar::right-arrow { border-left: 4px solid #767676; border-top: 4px solid none; border-bottom: 4px solid none; width: 0px; height: 0px; }"
    "QScrollBar::right-arrow:hover { border-left: 4px solid #767676; border-top: 4px solid none; border-bottom: 4px solid none; width: 0px; height: 0px; }"
    "QScrollBar::right-arrow:pressed { border-left: 4px solid #767676; border-top: 4px solid none; border-bottom: 4px solid none; width: 0px; height: 0px; }"
    "QScrollBar::add-page:horizontal, QScrollBar::sub-page:horizontal { background: none; }"
    "QScrollBar:vertical { background-color: #f3f3f3; width: 15px; margin: 15px 0px 15px 0px; }"
    "QScrollBar::handle:vertical { border: 1px solid; border-color: #ababab; background-color: white; min-height: 15px; }"
    "QScrollBar::handle:vertical:hover { border-color: #ababab; background-color: #f0f0f0; }"
    "QScrollBar::handle:vertical:pressed { border-color: #767676; background-color: #f0f0f0; }"
    "QScrollBar::add-line:vertical { border: 1px solid; border-color: #ababab; background-color: white; height: 15px; subcontrol-position: bottom; subcontrol-origin: margin; }"
    "QScrollBar::add-line:vertical:hover { border-color: #767676; background-color: white; }"
    "QScrollBar::add-line:vertical:pressed { border-color: #767676; background-color: #f0f0f0; }"
    "QScrollBar::sub-line:vertical { border: 1px solid; border-color: #ababab; background-color: white; height: 15px; subcontrol-position: top; subcontrol-origin: margin; }"
    "QScrollBar::sub-line:vertical:hover { border-color: #767676; background-color: white; }"
    "QScrollBar::sub-line:vertical:pressed { border-color: #767676; background-color: #f0f0f0; }"
    "QScrollBar::up-arrow { border-left: 4px solid none; border-right: 4px solid none; border-bottom: 4px solid #767676; width: 0px; height: 0px; }"
    "QScrollBar::up-arrow:hover { border-left: 4px solid none; border-right: 4px solid none; border-bottom: 4px solid #767676; width: 0px; height: 0px; }"
    "QScrollBar::up-arrow:pressed { border-left: 4px solid none; border-right: 4px solid none; border-bottom: 4px solid #767676; width: 0px; height: 0px; }"
    "QScrollBar::down-arrow { border-left: 4px solid none; border-right: 4px solid none; border-top: 4px solid #767676; width: 0px; height: 0px; }"
    "QScrollBar::down-arrow:hover { border-left: 4px solid none; border-right: 4px solid none; border-top: 4px solid #767676; width: 0px; height: 0px; }"
    "QScrollBar::down-arrow:pressed { border-left: 4px solid none; border-right: 4px solid none; border-top: 4px solid #767676; width: 0px; height: 0px; }"
    "QScrollBar::add-page:vertical, QScrollBar::sub-page:vertical { background: none; }";

const char kMainLeftListHead[] =
    "QListWidget {spacing: 0; background-color: #2b579a; border: 0px solid none; font: 9pt \"Segoe UI\"; color: white;}";
const char kMainLeftListTail[] =
    "QListWidget::item:selected:!active { background: #3e6db5; color: white; }"
    "QListWidget::item:hover { background: #19478a; color: white; }"
    "QListWidget::item:disabled { background: #2b579a; color: #3e6db5; }";

const char kListHead[] =
    "QListWidget { border-right: 1px solid #e1e1e1; font: 11pt \"Segoe UI\"; color: #444444; }";
const char kListTail[] =
    "QListWidget::item:selected:!active { background: #7ab0e7; color: #444444; }"
    "QListWidget::item:hover { background: #d5e1f2; }"
    "QListWidget::item:disabled { background: transparent; }";

QString rowRule(const char *height)
{
    return QStringLiteral("QListWidget::item { border: 0px solid white; height: ") + QLatin1String(height)
        + QStringLiteral("px; }");
}

int messageCount = 0;

void countingHandler(QtMsgType, const QMessageLogContext &, const QString &)
{
    ++messageCount;
}

const QRgb kWhite = qRgb(255, 255, 255);
const QRgb kBlack = qRgb(0, 0, 0);

// Paints symbol into rect on a white image with a black brush and no pen, so that
// exactly the filled area of the shape turns black.
QImage paintSymbol(const QSize &size, const QRect &rect, int symbol)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(kWhite);
    QPainter painter(&image);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::black);
    RibbonStyle::drawSymbol(painter, rect, eSymbolType(symbol));
    return image;
}

bool isBlank(const QImage &image)
{
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (image.pixel(x, y) != kWhite)
                return false;
    return true;
}

} // namespace

class TestRibbonStyle : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();

    void paletteIsSharedAndTyped();
    void emptyBasePalette();
    void dpiFactorAndRowHeights();
    void colors_data();
    void colors();
    void styleSheets_data();
    void styleSheets();
    void fonts_data();
    void fonts();
    void compiledInImages_data();
    void compiledInImages();
    void imagesLoadFromGivenDirectory();
    void missingImagesStayNullSilently();

    void symbolsOutsideRangePaintNothing_data();
    void symbolsOutsideRangePaintNothing();
    void firstAndLastSymbols_data();
    void firstAndLastSymbols();
    void arrowSymbols_data();
    void arrowSymbols();
    void symbolBarArrowDown();
    void symbolDropDownDrawsWrapperIcon();
    void drawSymbolKeepsPenAndBrush();

    void createStyleKinds_data();
    void createStyleKinds();
    void controlStyles();
    void defaultAndCurrentStyle();
};

void TestRibbonStyle::cleanup()
{
    QApplication::setStyle(createStyle(defaultStyle()));
}

void TestRibbonStyle::paletteIsSharedAndTyped()
{
    const RibbonStyle &first = RibbonApplication::theApp().ribbonStyle();
    const RibbonStyle &second = RibbonApplication::theApp().ribbonStyle();
    QCOMPARE(&first, &second);
    QVERIFY(qobject_cast<const DefaultRibbonStyle *>(&first));
    QCOMPARE(first.metaObject()->className(), "zel::DefaultRibbonStyle");
    QCOMPARE(RibbonStyle::staticMetaObject.className(), "zel::RibbonStyle");
    QCOMPARE(int(RibbonApplication::theApp().getRibbonStyle()), 1);
    // The welcome page's pressed colour is the blue pressed colour itself, not a copy.
    QCOMPARE(&first.backstageWelcomeBluePressedColor(), &first.backstageBluePressedColor());
    QCOMPARE(first.backstageWelcomeBluePressedColor(), QColor(163, 189, 227));
    QVERIFY(!first.toolBarFillColor().isValid());
}

void TestRibbonStyle::emptyBasePalette()
{
    const RibbonStyle empty;
    QVERIFY(!empty.mainClientColor().isValid());
    QVERIFY(!empty.backstageWelcomeBluePressedColor().isValid());
    QVERIFY(empty.comboBox().isNull());
    QVERIFY(empty.tooltipBack().isNull());
    QVERIFY(empty.backstageScrollBarStyle().isEmpty());
    QCOMPARE(empty.backstageSmallFont(), QFont());
}

void TestRibbonStyle::dpiFactorAndRowHeights()
{
    const QByteArray dpi = qgetenv("QT_FONT_DPI");
    const bool highDpi = dpi == "144";
    if (!highDpi && dpi != "96")
        QSKIP("Run with QT_FONT_DPI=96 or 144 to check the resolution factor");

    const QPair<double, double> factor = RibbonApplication::theApp().dpiFactor();
    QCOMPARE(factor.first, highDpi ? 1.5 : 1.0);
    QCOMPARE(factor.second, highDpi ? 1.5 : 1.0);

    const RibbonStyle &style = RibbonApplication::theApp().ribbonStyle();
    const QString listSheet = QLatin1String(kListHead) + rowRule(highDpi ? "82.5" : "55")
        + QLatin1String(kListTail) + QLatin1String(kScrollBarSheet);
    QCOMPARE(style.backstageListWidgetStyle(), listSheet);
    QCOMPARE(style.backstageListWidgetWithBorderStyle(),
             listSheet + QStringLiteral("QListWidget { border: 1px solid #eeeeee; }"));
    QCOMPARE(style.backstageMainLeftListWidget(),
             QLatin1String(kMainLeftListHead) + rowRule(highDpi ? "57" : "38") + QLatin1String(kMainLeftListTail));
}

void TestRibbonStyle::colors_data()
{
    QTest::addColumn<QColor>("actual");
    QTest::addColumn<QColor>("expected");

    const RibbonStyle &s = RibbonApplication::theApp().ribbonStyle();
#define COLOR(name, ...) QTest::newRow(#name) << s.name() << QColor(__VA_ARGS__)
    COLOR(mainClientColor, 240, 240, 240); COLOR(mainMenuBgColor, 250, 250, 250); COLOR(activeTextColor, 92, 98, 106);
    COLOR(activeTitleTextColor, 53, 110, 170); COLOR(highlightedCategoryTextColor, 76, 83, 92);
    COLOR(disabledCategoryTextColor, 167, 167, 167); COLOR(categoryCaptionTextColor, 83, 84, 89);
    COLOR(frameOutlineColor, 0x82, 0x87, 0x90); COLOR(frameBorderColor, 0x2b, 0x57, 0x9a);
    COLOR(frameHighlightedFillColor, 240, 241, 242); COLOR(frameSunkenColor, 37, 37, 37);
    COLOR(frameRaiseColor, 204, 204, 204); COLOR(fileMenuBarTextColor, 255, 255, 255);
    COLOR(separatorColor, 229, 229, 229); COLOR(statusBarTextColor, Qt::white);
    COLOR(categoryColorUnderButton, 250, 250, 250); COLOR(backstageSimpleButtonColor, 253, 253, 253);
    COLOR(backstageGrayBorderPressedColor, 118, 118, 118); COLOR(backstageBlueBorderPressedColor, 122, 176, 231);
    COLOR(backstageBlueHoverColor, 213, 225, 242); COLOR(backstageSeparatorColor, 225, 225, 225);
    COLOR(backstagePrintPreviewBorderColor, 192, 192, 192);
#undef COLOR
}

void TestRibbonStyle::colors()
{
    QFETCH(QColor, actual);
    QFETCH(QColor, expected);
    QCOMPARE(actual, expected);
    QCOMPARE(actual.alpha(), 255);
}

void TestRibbonStyle::styleSheets_data()
{
    QTest::addColumn<QString>("actual");
    QTest::addColumn<QString>("expected");

    const RibbonStyle &s = RibbonApplication::theApp().ribbonStyle();
    QTest::newRow("backstageScrollBarStyle") << s.backstageScrollBarStyle() << QString::fromLatin1(kScrollBarSheet);
    QTest::newRow("backstageScrollBarStyleBlue") << s.backstageScrollBarStyleBlue() << QString::fromLatin1(
        "QScrollBar:vertical { background-color: #2b579a; width: 15px; margin: 15px 0px 15px 0px; }"
        "QScrollBar::handle:vertical { border: 1px solid; border-color: white; background-color: #2b579a ; min-height: 15px; }"
        "QScrollBar::handle:vertical:hover { border-color: white; background-color: #2b579a; }"
        "QScrollBar::handle:vertical:pressed { border-color: white; background-color: #2b579a; }"
        "QScrollBar::add-line:vertical { border: 1px solid; border-color: white; background-color: #2b579a; height: 15px; subcontrol-position: bottom; subcontrol-origin: margin; }"
        "QScrollBar::add-line:vertical:hover { border-color: white; background-color: #2b579a; }"
        "QScrollBar::add-line:vertical:pressed { border-color: white; background-color: #2b579a; }"
        "QScrollBar::sub-line:vertical { border: 1px solid; border-color: white; background-color: #2b579a; height: 15px; subcontrol-position: top; subcontrol-origin: margin; }"
        "QScrollBar::sub-line:vertical:hover { border-color: white; background-color: #2b579a; }"
        "QScrollBar::sub-line:vertical:pressed { border-color: white; background-color: #2b579a; }"
        "QScrollBar::up-arrow { border-left: 4px solid none; border-right: 4px solid none; border-bottom: 4px solid white; width: 0px; height: 0px; }"
        "QScrollBar::up-arrow:hover { border-left: 4px solid none; border-right: 4px solid none; border-bottom: 4px solid white; width: 0px; height: 0px; }"
        "QScrollBar::up-arrow:pressed { border-left: 4px solid none; border-right: 4px solid none; border-bottom: 4px solid white; width: 0px; height: 0px; }"
        "QScrollBar::down-arrow { border-left: 4px solid none; border-right: 4px solid none; border-top: 4px solid white; width: 0px; height: 0px; }"
        "QScrollBar::down-arrow:hover { border-left: 4px solid none; border-right: 4px solid none; border-top: 4px solid white; width: 0px; height: 0px; }"
        "QScrollBar::down-arrow:pressed { border-left: 4px solid none; border-right: 4px solid none; border-top: 4px solid white; width: 0px; height: 0px; }"
        "QScrollBar::add-page:vertical, QScrollBar::sub-page:vertical { background: none; }");
    QTest::newRow("backstageMenuStyle") << s.backstageMenuStyle() << QString::fromLatin1(
        "QComboBox { font: 9pt \"Segoe UI\"; color: #444444; border: 1px solid; border-color: #b5b5b5; background-color: white; }"
        "QComboBox:hover { border-color: #7ab0e7; background-color: #d5e1f2; }"
        "QComboBox:pressed { border-color: #7ab0e7; background-color: #a3bde3; }"
        "QComboBox::drop-down { border-width: 0px; }"
        "QComboBox::down-arrow { border-left: 4px solid none; border-right: 4px solid none; border-top: 4px solid #444444; width: 0px; height: 0px; }"
        "QComboBox::down-arrow::hover { border-left: 4px solid none; border-right: 4px solid none; border-top: 4px solid #444444; width: 0px; height: 0px; }"
        "QComboBox::down-arrow::pressed { border-left: 4px solid none; border-right: 4px solid none; border-top: 4px solid #444444; width: 0px; height: 0px; }"
        "QComboBox QAbstractItemView { font: 9pt \"Segoe UI\"; color: #444444; outline: 0px; border: 1px solid #b5b5b5;selection-color: #444444; selection-background-color: #d5e1f2; }"
        "QComboBox QAbstractItemView::item { border: 1px solid white; }")
        + QLatin1String(kScrollBarSheet);
    QTest::newRow("backstageSpinBoxStyle") << s.backstageSpinBoxStyle() << QString::fromLatin1(
        "QSpinBox { border: 1px solid; border-color: #b5b5b5; background-color: white; }"
        "QSpinBox:hover { border-color: #7ab0e7; }"
        "QSpinBox::up-arrow { border-left: 4px solid none; border-right: 4px solid none; border-bottom: 4px solid #767676; width: 0px; height: 0px; }"
        "QSpinBox::up-arrow:hover { border-left: 4px solid none; border-right: 4px solid none; border-bottom: 4px solid #767676; width: 0px; height: 0px; }"
        "QSpinBox::up-arrow:pressed { border-left: 4px solid none; border-right: 4px solid none; border-bottom: 4px solid #767676; width: 0px; height: 0px; }"
        "QSpinBox::up-button { width: 16px; background-color: white; }"
        "QSpinBox::up-button:hover { border-left: 1px solid; border-bottom: 1px solid; border-color: #7ab0e7; width: 15px; height: 10px; background-color: #d5e1f2; }"
        "QSpinBox::up-button:pressed { border-left: 1px solid; border-bottom: 1px solid; border-color: #7ab0e7; width: 15px; height: 10px; background-color: #a3bde3; }"
        "QSpinBox::down-arrow { border-left: 4px solid none; border-right: 4px solid none; border-top: 4px solid #767676; width: 0px; height: 0px; }"
        "QSpinBox::down-arrow:hover { border-left: 4px solid none; border-right: 4px solid none; border-top: 4px solid #767676; width: 0px; height: 0px; }"
        "QSpinBox::down-arrow:pressed { border-left: 4px solid none; border-right: 4px solid none; border-top: 4px solid #767676; width: 0px; height: 0px; }"
        "QSpinBox::down-button { width: 16px; background-color: white; }"
        "QSpinBox::down-button:hover { border-left: 1px solid; border-top: 1px solid; border-color: #7ab0e7; width: 15px; height: 10px; background-color: #d5e1f2; }"
        "QSpinBox::down-button:pressed { border-left: 1px solid; border-top: 1px solid; border-color: #7ab0e7; width: 15px; height: 10px; background-color: #a3bde3; }");
    QTest::newRow("backstageToolButtonStyle") << s.backstageToolButtonStyle() << QString::fromLatin1(
        "QToolButton { border: 1px solid; border-color: #b5b5b5; background-color: white; }"
        "QToolButton:hover { border-left: 1px solid; border-bottom: 1px solid; border-color: #7ab0e7; width: 15px; height: 10px; background-color: #d5e1f2; }"
        "QToolButton:pressed { border-left: 1px solid; border-bottom: 1px solid; border-color: #7ab0e7; width: 15px; height: 10px; background-color: #a3bde3; }");
    QTest::newRow("backstageDateEditStyle") << s.backstageDateEditStyle() << QString::fromLatin1(
        "QDateEdit { border: 1px solid; border-color: #b5b5b5; background-color: white; }"
        "QDateEdit:focus { border-color: #7ab0e7; }"
        "QDateEdit::down-arrow { border-left: 4px solid none; border-right: 4px solid none; border-top: 4px solid #444444; width: 0px; height: 0px; }"
        "QDateEdit::down-arrow:focus { border-left: 4px solid none; border-right: 4px solid none; border-top: 4px solid #444444; width: 0px; height: 0px; }"
        "QDateEdit::drop-down { background-color: white; }");
    QTest::newRow("backstageLineEditStyle") << s.backstageLineEditStyle() << QString::fromLatin1(
        "QLineEdit { border: 1px solid; border-color: #b5b5b5; background-color: white; }"
        "QLineEdit:focus { border-color: #7ab0e7; }");
    QTest::newRow("backstageOpenRecentListWidgetStyle") << s.backstageOpenRecentListWidgetStyle() << QString::fromLatin1(
        "QListView { background-color: white; }"
        "QListView { alternate-background-color: #444444; }"
        "QListView::item:selected:!active { background: #7ab0e7; }"
        "QListView::item:selected:active { background: #7ab0e7; }"
        "QListView::item:hover { background: #d5e1f2; }");
    QTest::newRow("backstageTextEditStyle") << s.backstageTextEditStyle()
        << QString::fromLatin1("border: 1px solid rgb(198, 198, 198); font: 11pt \"Segoe UI\"; color: rgb(100, 100, 100);");
    QTest::newRow("backstageLabelXLargeStyle") << s.backstageLabelXLargeStyle()
        << QString::fromLatin1("font: 30pt \"Segoe UI Light\"; color: #444444;");
    QTest::newRow("backstageLabelLargeBlueStyle") << s.backstageLabelLargeBlueStyle()
        << QString::fromLatin1("font: 16pt \"Segoe UI\"; color: #2b579a;");
    QTest::newRow("backstageLabelSmallWhiteStyle") << s.backstageLabelSmallWhiteStyle()
        << QString::fromLatin1("font: 11pt \"Segoe UI Semibold\"; color: white;");
    QTest::newRow("backstageLabelSmallUnderlineStyle") << s.backstageLabelSmallUnderlineStyle()
        << QString::fromLatin1("font: 11pt \"Segoe UI Semibold\"; color: rgb(100, 100, 100);border-left: 0px solid none; border-right: 0px solid none; border-top: 0px solid none; border-bottom: 1px solid rgb(100, 100, 100);");
    QTest::newRow("backstageLabelXSmallUnderlineStyle") << s.backstageLabelXSmallUnderlineStyle()
        << QString::fromLatin1("font: 9pt \"Segoe UI\"; color: #444444;border-left: 0px solid none; border-right: 0px solid none; border-top: 0px solid none; border-bottom: 1px solid rgb(100, 100, 100);");
    QTest::newRow("backstageLabelXSmallGrayStyle") << s.backstageLabelXSmallGrayStyle()
        << QString::fromLatin1("font: 9pt \"Segoe UI\"; color: #444444;background-color: #eeeeee;");
}

void TestRibbonStyle::styleSheets()
{
    QFETCH(QString, actual);
    QFETCH(QString, expected);
    QCOMPARE(actual, expected);
}

void TestRibbonStyle::fonts_data()
{
    QTest::addColumn<QFont>("font");
    QTest::addColumn<QString>("family");
    QTest::addColumn<int>("pointSize");

    const RibbonStyle &s = RibbonApplication::theApp().ribbonStyle();
    QTest::newRow("backstageSmallFont") << s.backstageSmallFont() << QStringLiteral("Segoe UI") << 11;
    QTest::newRow("backstageXSmallFont") << s.backstageXSmallFont() << QStringLiteral("Segoe UI") << 9;
    QTest::newRow("backstageXSmallBoldFont") << s.backstageXSmallBoldFont() << QStringLiteral("Segoe UI Semibold") << 9;
}

void TestRibbonStyle::fonts()
{
    QFETCH(QFont, font);
    QFETCH(QString, family);
    QFETCH(int, pointSize);
    QCOMPARE(font.family(), family);
    QCOMPARE(font.pointSize(), pointSize);
    QCOMPARE(font.weight(), int(QFont::Normal));
    QVERIFY(!font.italic());
}

void TestRibbonStyle::compiledInImages_data()
{
    QTest::addColumn<bool>("isNull");
    QTest::addColumn<bool>("expectNull");

    // Every image entry of the default palette; the palette-button images are not compiled in.
    const RibbonStyle &s = RibbonApplication::theApp().ribbonStyle();
#define IMAGE(name, expectNull) QTest::newRow(#name) << s.name().isNull() << expectNull
    IMAGE(mainBorder, false); IMAGE(mainBorderCaption, false); IMAGE(statusBar, false);
    IMAGE(sysBtnBack, false); IMAGE(toolBoxTabBack, false); IMAGE(sysBtnClose, false);
    IMAGE(sysBtnCloseSmall, false); IMAGE(sysBtnMaximize, false); IMAGE(sysBtnMaximizeSmall, false);
    IMAGE(sysBtnMinimize, false); IMAGE(sysBtnMinimizeSmall, false); IMAGE(sysBtnRestore, false);
    IMAGE(sysBtnRestoreSmall, false); IMAGE(normalButtonSmall, false); IMAGE(menuBarButton, false);
    IMAGE(fileBarButton, false); IMAGE(categories, false); IMAGE(categoryTop, false);
    IMAGE(categoryBottom, false); IMAGE(categoryWrapperBack, false); IMAGE(categoryWrapperIcon, false);
    IMAGE(mainPanelBack, false); IMAGE(horizontalMenuButtonCaption, false); IMAGE(horizontalMenuButtonMenu, false);
    IMAGE(verticalMenuButtonCaption, false); IMAGE(verticalMenuButtonMenu, false); IMAGE(mainPanelBorder, false);
    IMAGE(mainPanelSeparator, false); IMAGE(mainPanelButton, false); IMAGE(paletteBtnTop, true);
    IMAGE(paletteBtnMiddle, true); IMAGE(paletteBtnBottom, true); IMAGE(paletteItemLarge, false);
    IMAGE(paletteItemSmall, false); IMAGE(popupBorder, false); IMAGE(popupResizeBarBack, false);
    IMAGE(popupResizeBarIconB, false); IMAGE(popupResizeBarIconBR, false); IMAGE(popupResizeBarIconTR, false);
    IMAGE(checkableMenuItemBack, false); IMAGE(tabBarTabs, false); IMAGE(sliderPlus, false);
    IMAGE(sliderMinus, false); IMAGE(sliderThumb, false); IMAGE(btnGroupFirst, false);
    IMAGE(btnGroupMidle, false); IMAGE(btnGroupLast, false); IMAGE(comboBox, false);
    IMAGE(tabBarTabShape, false); IMAGE(tooltipBack, false);
#undef IMAGE
}

void TestRibbonStyle::compiledInImages()
{
    QFETCH(bool, isNull);
    QFETCH(bool, expectNull);
    QCOMPARE(isNull, expectNull);
}

void TestRibbonStyle::imagesLoadFromGivenDirectory()
{
    QTemporaryDir dir;
    QVERIFY(dir.isValid());
    QImage combo(12, 21, QImage::Format_ARGB32);
    combo.fill(Qt::red);
    QVERIFY(combo.save(dir.filePath(QStringLiteral("ComboBox.png"))));
    QImage shape(8, 30, QImage::Format_ARGB32);
    shape.fill(Qt::blue);
    QVERIFY(shape.save(dir.filePath(QStringLiteral("MenuPaneBarButton.png"))));

    const DefaultRibbonStyle style(dir.path() + QLatin1Char('/'));
    QCOMPARE(style.comboBox().size(), QSize(12, 21));
    QCOMPARE(style.tabBarTabShape().size(), QSize(8, 30));
    QVERIFY(style.fileBarButton().isNull());
    QVERIFY(style.paletteBtnTop().isNull());
}

void TestRibbonStyle::missingImagesStayNullSilently()
{
    messageCount = 0;
    const QtMessageHandler previous = qInstallMessageHandler(countingHandler);
    {
        const DefaultRibbonStyle style(QStringLiteral(":/no/such/directory/"));
        QVERIFY(style.mainBorder().isNull());
        QVERIFY(style.sysBtnClose().isNull());
        QVERIFY(style.categoryWrapperIcon().isNull());
        QVERIFY(style.checkableMenuItemBack().isNull());
        QVERIFY(style.tooltipBack().isNull());
        // Everything that is not an image is still filled.
        QCOMPARE(style.frameBorderColor(), QColor(0x2b, 0x57, 0x9a));
        QVERIFY(!style.backstageMenuStyle().isEmpty());
    }
    qInstallMessageHandler(previous);
    QCOMPARE(messageCount, 0);
}

void TestRibbonStyle::symbolsOutsideRangePaintNothing_data()
{
    QTest::addColumn<int>("symbol");
    QTest::newRow("none") << 0;
    QTest::newRow("ten") << 10;
    QTest::newRow("negative") << -1;
    QTest::newRow("large") << 1000;
}

void TestRibbonStyle::symbolsOutsideRangePaintNothing()
{
    QFETCH(int, symbol);
    QVERIFY(isBlank(paintSymbol(QSize(16, 16), QRect(0, 0, 16, 16), symbol)));
}

void TestRibbonStyle::firstAndLastSymbols_data()
{
    QTest::addColumn<int>("symbol");
    QTest::addColumn<int>("left");
    QTest::addColumn<int>("right");
    QTest::addColumn<QPoint>("arrow");
    QTest::addColumn<QPoint>("aboveSlant");

    // In 16 x 10 the symbol uses a 10 x 10 square at columns 3 to 12; the bar is column 7,
    // the arrow fills the half beside it. Polygons are filled without their right and bottom edges.
    QTest::newRow("first") << int(SymbolFirst) << 7 << 12 << QPoint(10, 4) << QPoint(9, 0);
    QTest::newRow("last") << int(SymbolLast) << 3 << 7 << QPoint(4, 4) << QPoint(5, 0);
}

void TestRibbonStyle::firstAndLastSymbols()
{
    QFETCH(int, symbol);
    QFETCH(int, left);
    QFETCH(int, right);
    QFETCH(QPoint, arrow);
    QFETCH(QPoint, aboveSlant);
    const QImage image = paintSymbol(QSize(16, 10), QRect(0, 0, 16, 10), symbol);
    for (int y = 0; y < 10; ++y)
        for (int x = 0; x < 16; ++x)
            if (x < left || x > right)
                QVERIFY2(image.pixel(x, y) == kWhite, qPrintable(QStringLiteral("%1,%2").arg(x).arg(y)));
    for (int y = 0; y < 9; ++y)
        QCOMPARE(image.pixel(7, y), kBlack);
    QCOMPARE(image.pixel(7, 9), kWhite); // the bar is one pixel shorter than the square
    QCOMPARE(image.pixel(arrow), kBlack);
    QCOMPARE(image.pixel(arrow + QPoint(1, 0)), kBlack);
    QCOMPARE(image.pixel(aboveSlant), kWhite);
}

void TestRibbonStyle::arrowSymbols_data()
{
    QTest::addColumn<int>("symbol");
    QTest::addColumn<QRect>("rect");
    QTest::addColumn<QPoint>("inside");
    QTest::addColumn<QPoint>("outside");

    // A 16 x 16 image with an 11 x 11 target at (2, 2): the tip and the base of each
    // arrow are told apart by probing near a corner of the base and of the tip. Polygons
    // are filled without their right and bottom edge pixels.
    const QRect r(2, 2, 11, 11);
    QTest::newRow("up: base at bottom") << int(SymbolArrowUp) << r << QPoint(3, 11) << QPoint(3, 3);
    QTest::newRow("left: base at right") << int(SymbolArrowLeft) << r << QPoint(11, 3) << QPoint(3, 3);
    QTest::newRow("right: base at left") << int(SymbolArrowRight) << r << QPoint(3, 3) << QPoint(12, 3);
    // Previous and next use a 5 x 11 rectangle centred in a 16 x 11 target.
    QTest::newRow("previous") << int(SymbolPrevious) << QRect(0, 2, 16, 11) << QPoint(8, 7) << QPoint(3, 7);
    QTest::newRow("previous: narrow") << int(SymbolPrevious) << QRect(0, 2, 16, 11) << QPoint(8, 7) << QPoint(10, 7);
    QTest::newRow("next") << int(SymbolNext) << QRect(0, 2, 16, 11) << QPoint(6, 7) << QPoint(12, 7);
}

void TestRibbonStyle::arrowSymbols()
{
    QFETCH(int, symbol);
    QFETCH(QRect, rect);
    QFETCH(QPoint, inside);
    QFETCH(QPoint, outside);
    const QImage image = paintSymbol(QSize(16, 16), rect, symbol);
    QCOMPARE(image.pixel(inside), kBlack);
    QCOMPARE(image.pixel(outside), kWhite);
    // Nothing outside the target rectangle.
    for (int y = 0; y < 16; ++y)
        for (int x = 0; x < 16; ++x)
            if (!rect.contains(x, y))
                QCOMPARE(image.pixel(x, y), kWhite);
}

void TestRibbonStyle::symbolBarArrowDown()
{
    // 12 x 12: a bar of 11 x 3 at the top, then a triangle from row 6 down to the tip.
    const QImage image = paintSymbol(QSize(12, 12), QRect(0, 0, 12, 12), SymbolBarArrowDown);
    for (int x = 0; x < 11; ++x) {
        QCOMPARE(image.pixel(x, 0), kBlack);
        QCOMPARE(image.pixel(x, 2), kBlack);
        QCOMPARE(image.pixel(x, 4), kWhite);
    }
    QCOMPARE(image.pixel(11, 0), kWhite);
    QCOMPARE(image.pixel(5, 7), kBlack);
    QCOMPARE(image.pixel(0, 10), kWhite);
}

void TestRibbonStyle::symbolDropDownDrawsWrapperIcon()
{
    const QPixmap &icon = RibbonApplication::theApp().ribbonStyle().categoryWrapperIcon();
    QVERIFY(!icon.isNull());
    // The 5 x 3 arrow at the icon's top left, scaled into the target and nowhere else.
    const QRect target(4, 4, 10, 6);
    const QImage image = paintSymbol(QSize(16, 16), target, SymbolDropDown);
    QImage expected(16, 16, QImage::Format_RGB32);
    expected.fill(kWhite);
    {
        QPainter painter(&expected);
        painter.drawPixmap(target, icon, QRect(0, 0, 5, 3));
    }
    QVERIFY(!isBlank(image));
    QCOMPARE(image, expected);
}

void TestRibbonStyle::drawSymbolKeepsPenAndBrush()
{
    QImage image(16, 16, QImage::Format_RGB32);
    QPainter painter(&image);
    const QPen pen(Qt::green, 2);
    const QBrush brush(Qt::magenta, Qt::Dense4Pattern);
    painter.setPen(pen);
    painter.setBrush(brush);
    for (int symbol = SymbolNone; symbol <= SymbolLast; ++symbol) {
        RibbonStyle::drawSymbol(painter, QRect(0, 0, 16, 16), eSymbolType(symbol));
        QCOMPARE(painter.pen(), pen);
        QCOMPARE(painter.brush(), brush);
    }
}

void TestRibbonStyle::createStyleKinds_data()
{
    QTest::addColumn<int>("kind");
    QTest::newRow("xp") << int(StyleWindowsXP);
    QTest::newRow("vista") << int(StyleWindowsVista);
    QTest::newRow("classic") << int(StyleWindowsClassic);
    QTest::newRow("unknown") << 42;
}

void TestRibbonStyle::createStyleKinds()
{
    QFETCH(int, kind);
    QScopedPointer<QStyle> style(createStyle(Style(kind)));
    auto *ribbon = qobject_cast<RibbonQStyle *>(style.data());
    QVERIFY(ribbon);
    QVERIFY(ribbon->baseStyle());
    QVERIFY(ribbon->baseStyle() != ribbon);
}

void TestRibbonStyle::controlStyles()
{
    QScopedPointer<QStyle> tabBar(createStyle(ControlStyleMainTabBar));
    QVERIFY(qobject_cast<RibbonMainTabBarStyle *>(tabBar.data()));
    QCOMPARE(createStyle(ControlStyle(1)), nullptr);
    QCOMPARE(createStyle(ControlStyle(-1)), nullptr);
}

void TestRibbonStyle::defaultAndCurrentStyle()
{
    QCOMPARE(defaultStyle(), RibbonPlatform::usesVistaLook() ? StyleWindowsVista : StyleWindowsXP);
    // The application installs a ribbon style at start.
    QCOMPARE(int(currentStyle()), 0);

    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QCOMPARE(int(currentStyle()), 3);

    QApplication::setStyle(createStyle(StyleWindowsVista));
    QCOMPARE(int(currentStyle()), 0);
}

ZEL_TEST_MAIN(TestRibbonStyle)
#include "tst_ribbonstyle.moc"
