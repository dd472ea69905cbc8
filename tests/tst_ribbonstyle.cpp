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
    void dpiFactorAndRowHeights();
    void colors_data();
    void colors();
    void styleSheets_data();
    void styleSheets();
    void imageDirectory();

    void symbols_data();
    void symbols();
    void symbolDropDownDrawsWrapperIcon();
    void drawSymbolKeepsPenAndBrush();

    void styleFactory();
};

void TestRibbonStyle::cleanup()
{
    QApplication::setStyle(createStyle(defaultStyle()));
}

void TestRibbonStyle::paletteIsSharedAndTyped()
{
    const RibbonStyle &first = RibbonApplication::theApp().ribbonStyle();
    QCOMPARE(&first, &RibbonApplication::theApp().ribbonStyle());
    QCOMPARE(first.metaObject()->className(), "zel::DefaultRibbonStyle");
    QCOMPARE(int(RibbonApplication::theApp().getRibbonStyle()), 1);
    // The welcome page's pressed colour is the blue pressed colour itself, not a copy.
    QCOMPARE(&first.backstageWelcomeBluePressedColor(), &first.backstageBluePressedColor());
    QCOMPARE(first.backstageWelcomeBluePressedColor(), QColor(163, 189, 227));
    QVERIFY(!first.toolBarFillColor().isValid());
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

    const auto rowRule = [](const char *height) {
        return QStringLiteral("QListWidget::item { border: 0px solid white; height: %1px; }").arg(QLatin1String(height));
    };
    const RibbonStyle &style = RibbonApplication::theApp().ribbonStyle();
    const QString &list = style.backstageListWidgetStyle();
    QVERIFY(list.contains(rowRule(highDpi ? "82.5" : "55")));
    QVERIFY(list.endsWith(style.backstageScrollBarStyle()));
    QCOMPARE(style.backstageListWidgetWithBorderStyle(), list + QStringLiteral("QListWidget { border: 1px solid #eeeeee; }"));
    QVERIFY(style.backstageMainLeftListWidget().contains(rowRule(highDpi ? "57" : "38")));
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
}

void TestRibbonStyle::styleSheets_data()
{
    QTest::addColumn<QString>("sheet");
    QTest::addColumn<QString>("expected"); // empty: the sheet is only checked to parse

    const RibbonStyle &s = RibbonApplication::theApp().ribbonStyle();
#define SHEET(name) QTest::newRow(#name) << s.name() << QString()
    SHEET(backstageScrollBarStyle); SHEET(backstageScrollBarStyleBlue); SHEET(backstageMenuStyle);
    SHEET(backstageSpinBoxStyle); SHEET(backstageToolButtonStyle); SHEET(backstageDateEditStyle);
    SHEET(backstageLineEditStyle); SHEET(backstageListWidgetStyle); SHEET(backstageMainLeftListWidget);
    SHEET(backstageOpenRecentListWidgetStyle); SHEET(backstageWelcomeRecentListWidgetStyle);
    SHEET(backstageLabelXLargeWhiteStyle); SHEET(backstageLabelLargeRecentWhiteStyle); SHEET(backstageLabelLargeStyle);
    SHEET(backstageLabelLargeWhiteStyle); SHEET(backstageLabelMediumStyle); SHEET(backstageLabelSmallStyle);
    SHEET(backstageLabelSmallWhiteStyle); SHEET(backstageLabelSmallNotUnderlineStyle);
    SHEET(backstageLabelXSmallNotUnderlineStyle); SHEET(backstageLabelXSmallUnderlineStyle);
    SHEET(backstageLabelXSmallWhiteStyle); SHEET(backstageLabelXSmallGrayStyle);
#undef SHEET
    // Bare declaration lists, some glued without a space.
    QTest::newRow("backstageTextEditStyle") << s.backstageTextEditStyle()
        << QString::fromLatin1("border: 1px solid rgb(198, 198, 198); font: 11pt \"Segoe UI\"; color: rgb(100, 100, 100);");
    QTest::newRow("backstageLabelXLargeStyle") << s.backstageLabelXLargeStyle()
        << QString::fromLatin1("font: 30pt \"Segoe UI Light\"; color: #444444;");
    QTest::newRow("backstageLabelLargeBlueStyle") << s.backstageLabelLargeBlueStyle()
        << QString::fromLatin1("font: 16pt \"Segoe UI\"; color: #2b579a;");
    QTest::newRow("backstageLabelSmallUnderlineStyle") << s.backstageLabelSmallUnderlineStyle()
        << QString::fromLatin1("font: 11pt \"Segoe UI Semibold\"; color: rgb(100, 100, 100);border-left: 0px solid none; border-right: 0px solid none; border-top: 0px solid none; border-bottom: 1px solid rgb(100, 100, 100);");
}

void TestRibbonStyle::styleSheets()
{
    QFETCH(QString, sheet);
    QFETCH(QString, expected);
    QVERIFY(!sheet.isEmpty());
    if (!expected.isEmpty())
        QCOMPARE(sheet, expected);
    // Qt warns about a sheet it cannot parse when a widget is polished with it.
    messageCount = 0;
    const QtMessageHandler previous = qInstallMessageHandler(countingHandler);
    QWidget widget;
    widget.setStyleSheet(sheet);
    widget.ensurePolished();
    qInstallMessageHandler(previous);
    QCOMPARE(messageCount, 0);
}

void TestRibbonStyle::imageDirectory()
{
    QTemporaryDir dir;
    QVERIFY(dir.isValid());
    QImage image(12, 21, QImage::Format_ARGB32);
    image.fill(Qt::red);
    QVERIFY(image.save(dir.filePath(QStringLiteral("ComboBox.png"))));
    QVERIFY(image.scaled(8, 30).save(dir.filePath(QStringLiteral("MenuPaneBarButton.png"))));

    // Missing images stay null, silently.
    messageCount = 0;
    const QtMessageHandler previous = qInstallMessageHandler(countingHandler);
    const DefaultRibbonStyle style(dir.path() + QLatin1Char('/'));
    const DefaultRibbonStyle nowhere(QStringLiteral(":/no/such/directory/"));
    qInstallMessageHandler(previous);
    QCOMPARE(messageCount, 0);
    QCOMPARE(style.comboBox().size(), QSize(12, 21));
    QCOMPARE(style.tabBarTabShape().size(), QSize(8, 30));
    QVERIFY(style.fileBarButton().isNull() && style.paletteBtnTop().isNull());
    QVERIFY(nowhere.mainBorder().isNull() && nowhere.categoryWrapperIcon().isNull() && nowhere.tooltipBack().isNull());
    // Everything that is not an image is still filled.
    QCOMPARE(nowhere.frameBorderColor(), QColor(0x2b, 0x57, 0x9a));
    QVERIFY(!nowhere.backstageMenuStyle().isEmpty());
}

void TestRibbonStyle::symbols_data()
{
    QTest::addColumn<int>("symbol");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QRect>("target");
    QTest::addColumn<QRect>("area"); // nothing is painted outside it
    QTest::addColumn<QVector<QPoint>>("black");
    QTest::addColumn<QVector<QPoint>>("white");

    using P = QVector<QPoint>;
    const QSize s16(16, 16);
    const QRect all(0, 0, 16, 16);
    for (int unknown : {0, 10, -1, 1000})
        QTest::addRow("unknown %d", unknown) << unknown << s16 << all << QRect() << P() << P();
    // Polygons are filled without their right and bottom edge pixels.
    // In 16 x 10 first and last use a 10 x 10 square at columns 3 to 12: a bar at column 7,
    // one pixel shorter than the square, and the arrow in the half beside it.
    const QRect wide(0, 0, 16, 10);
    QTest::newRow("first") << int(SymbolFirst) << wide.size() << wide << QRect(7, 0, 6, 10)
                           << P{{7, 0}, {7, 4}, {7, 8}, {10, 4}, {11, 4}} << P{{7, 9}, {9, 0}};
    QTest::newRow("last") << int(SymbolLast) << wide.size() << wide << QRect(3, 0, 5, 10)
                          << P{{7, 0}, {7, 4}, {7, 8}, {4, 4}, {5, 4}} << P{{7, 9}, {5, 0}};
    // Arrows in an 11 x 11 target: black near a corner of the base, white near the tip.
    const QRect r(2, 2, 11, 11);
    QTest::newRow("up") << int(SymbolArrowUp) << s16 << r << r << P{{3, 11}} << P{{3, 3}};
    QTest::newRow("left") << int(SymbolArrowLeft) << s16 << r << r << P{{11, 3}} << P{{3, 3}};
    QTest::newRow("right") << int(SymbolArrowRight) << s16 << r << r << P{{3, 3}} << P{{12, 3}};
    // Previous and next: a 5 x 11 triangle centred in a 16 x 11 target.
    const QRect band(0, 2, 16, 11);
    QTest::newRow("previous") << int(SymbolPrevious) << s16 << band << band << P{{8, 7}} << P{{3, 7}, {10, 7}};
    QTest::newRow("next") << int(SymbolNext) << s16 << band << band << P{{6, 7}} << P{{12, 7}};
    // 12 x 12: a bar of 11 x 3 at the top, then a triangle from row 6 down to the tip.
    QTest::newRow("bar arrow down") << int(SymbolBarArrowDown) << QSize(12, 12) << QRect(0, 0, 12, 12)
                                    << QRect(0, 0, 11, 12) << P{{0, 0}, {10, 0}, {0, 2}, {10, 2}, {5, 7}}
                                    << P{{0, 4}, {10, 4}, {0, 10}};
}

void TestRibbonStyle::symbols()
{
    QFETCH(int, symbol);
    QFETCH(QSize, size);
    QFETCH(QRect, target);
    QFETCH(QRect, area);
    QFETCH(QVector<QPoint>, black);
    QFETCH(QVector<QPoint>, white);
    const QImage image = paintSymbol(size, target, symbol);
    const auto where = [](int x, int y) { return QStringLiteral("%1,%2").arg(x).arg(y).toLatin1(); };
    for (const QPoint &p : black)
        QVERIFY2(image.pixel(p) == kBlack, where(p.x(), p.y()).constData());
    for (const QPoint &p : white)
        QVERIFY2(image.pixel(p) == kWhite, where(p.x(), p.y()).constData());
    for (int y = 0; y < size.height(); ++y)
        for (int x = 0; x < size.width(); ++x)
            if (!area.contains(x, y))
                QVERIFY2(image.pixel(x, y) == kWhite, where(x, y).constData());
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

void TestRibbonStyle::styleFactory()
{
    // Every kind, unknown ones included, is a ribbon style over a base style of its own.
    for (int kind : {int(StyleWindowsXP), int(StyleWindowsVista), int(StyleWindowsClassic), 42}) {
        QScopedPointer<QStyle> style(createStyle(Style(kind)));
        auto *ribbon = qobject_cast<RibbonQStyle *>(style.data());
        QVERIFY(ribbon);
        QVERIFY(ribbon->baseStyle() && ribbon->baseStyle() != ribbon);
    }
    QScopedPointer<QStyle> tabBar(createStyle(ControlStyleMainTabBar));
    QVERIFY(qobject_cast<RibbonMainTabBarStyle *>(tabBar.data()));
    QCOMPARE(createStyle(ControlStyle(1)), nullptr);
    QCOMPARE(createStyle(ControlStyle(-1)), nullptr);

    QCOMPARE(defaultStyle(), RibbonPlatform::usesVistaLook() ? StyleWindowsVista : StyleWindowsXP);
    // The application installs a ribbon style at start.
    QCOMPARE(currentStyle(), StyleWindowsXP);
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QCOMPARE(currentStyle(), StyleForeign);
    QApplication::setStyle(createStyle(StyleWindowsVista));
    QCOMPARE(currentStyle(), StyleWindowsXP);
}

ZEL_TEST_MAIN(TestRibbonStyle)
#include "tst_ribbonstyle.moc"
