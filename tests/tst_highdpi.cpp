// Runs twice: at a device pixel ratio of 1 and, as tst_highdpi_2x, at 2 (the marker
// ZEL_TEST_SCALE_FACTOR_2 registers it). At 2 the ribbon's art and the command icons
// must be drawn at the finer resolution, not doubled from a 1x drawing; at both the
// geometry in logical pixels is the same.

#include "ZelTest.h"

#include "RibbonButtonNormal.h"
#include "RibbonCatMenuAction.h"
#include "RibbonCatMenuButton.h"
#include "RibbonCatSimpleAction.h"
#include "RibbonCatSimpleButton.h"
#include "RibbonMainWindow.h"
#include "RibbonPaint_p.h"
#include "RibbonQuickAccessBar.h"
#include "RibbonSimpleAction.h"
#include "RibbonStyle.h"
#include "RibbonSysButton.h"

#include <QDirIterator>
#include <cstring>
#include <QPainter>

using namespace zel;

namespace {

// A ring drawn anew at each of the sizes, as a host's multi-size icon is: its larger
// drawings have detail that a smaller one scaled up cannot have.
QIcon ringIcon(std::initializer_list<int> extents)
{
    QIcon icon;
    for (const int extent : extents) {
        QPixmap pixmap(extent, extent);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(Qt::darkBlue, extent / 16.0));
        painter.drawEllipse(QRectF(1.5, 1.5, extent - 3, extent - 3));
        painter.end();
        icon.addPixmap(pixmap);
    }
    return icon;
}

// Rows that differ from the row above plus columns that differ from the column to their
// left: a drawing made at twice the resolution has about twice as many as a 1x one
// enlarged, whose rows and columns come in runs of equal ones.
int distinctLines(const QImage &image)
{
    const QImage img = image.convertToFormat(QImage::Format_ARGB32);
    int count = 0;
    for (int y = 1; y < img.height(); ++y) {
        if (memcmp(img.constScanLine(y), img.constScanLine(y - 1), size_t(img.bytesPerLine())) != 0)
            ++count;
    }
    for (int x = 1; x < img.width(); ++x) {
        for (int y = 0; y < img.height(); ++y) {
            if (img.pixel(x, y) != img.pixel(x - 1, y)) {
                ++count;
                break;
            }
        }
    }
    return count;
}

// The widget as the screen shows it, and as a 1x device shows it with every pixel doubled.
struct Renderings
{
    QImage screen;
    QImage doubled1x;
};

Renderings render(QWidget &widget, const QRect &logicalPart)
{
    Renderings r;
    const QPixmap grab = widget.grab(logicalPart);
    r.screen = grab.toImage();
    QImage low(logicalPart.size(), QImage::Format_ARGB32_Premultiplied);
    low.fill(Qt::transparent);
    widget.render(&low, QPoint(), QRegion(logicalPart));
    r.doubled1x = low.scaled(logicalPart.size() * grab.devicePixelRatio(), Qt::IgnoreAspectRatio,
                             Qt::FastTransformation);
    return r;
}

qreal screenRatio()
{
    return qApp->devicePixelRatio();
}

} // namespace

class tst_HighDpi : public QObject
{
    Q_OBJECT

    // At 2x a part of a rendering must have half as many distinct rows and columns again
    // as the same part rendered at 1x and enlarged (a drawing at twice the detail has
    // about twice as many); at 1x there is nothing to compare and the check only renders.
    static void verifyCrisp(QWidget &widget, const QRect &part)
    {
        const Renderings r = render(widget, part);
        QCOMPARE(r.screen.size(), r.doubled1x.size());
        if (screenRatio() < 2)
            return;
        const int screen = distinctLines(r.screen);
        const int doubled = distinctLines(r.doubled1x);
        if (2 * screen < 3 * doubled)
            qWarning() << widget.metaObject()->className() << part << "distinct lines" << screen << "vs" << doubled;
        QVERIFY(2 * screen >= 3 * doubled);
    }

private slots:
    void initTestCase()
    {
        // The application object turned high-resolution scaling on before it existed.
        QVERIFY(QCoreApplication::testAttribute(Qt::AA_EnableHighDpiScaling));
        QVERIFY(QCoreApplication::testAttribute(Qt::AA_UseHighDpiPixmaps));
        qInfo() << "device pixel ratio" << screenRatio();
    }

    // Every palette image has a drawing at twice its size, which the palette loads at
    // 2x with the ratio set: code that works in logical pixels sees the 1x sizes.
    void imagesCarryTheirRatio()
    {
        int pairs = 0;
        QDirIterator it(QStringLiteral(":/zel"), QDirIterator::Subdirectories);
        while (it.hasNext()) {
            const QString path = it.next();
            if (!path.contains(QLatin1String("@2x.")))
                continue;
            QString single = path;
            single.remove(QStringLiteral("@2x"));
            const QImage high(path);
            const QImage low(single);
            QVERIFY2(!low.isNull(), qPrintable(single));
            QCOMPARE(high.size(), low.size() * 2);
            ++pairs;
        }
        QVERIFY(pairs >= 50);

        const RibbonStyle &style = RibbonApplication::theApp().ribbonStyle();
        const qreal expected = screenRatio() >= 2 ? 2.0 : 1.0;
        for (const QPixmap *image : {&style.sysBtnClose(), &style.normalButtonSmall(), &style.mainBorderCaption(),
                                     &style.horizontalMenuButtonMenu()}) {
            QCOMPARE(image->devicePixelRatio(), expected);
        }
        QCOMPARE(RibbonPaint::logicalSize(style.sysBtnClose()), QSize(17, 80));
        QCOMPARE(RibbonPaint::logicalSize(style.normalButtonSmall()), QSize(22, 110));
    }

    // A checked small button: the rounded corners of its background and its icon.
    void button()
    {
        RibbonCatSimpleAction action(ringIcon({16, 32}), QString(), RibbonCatSimpleAction::SizeSmall, nullptr);
        action.setCheckable(true);
        action.setChecked(true);
        RibbonCatSimpleButton button(action, nullptr);
        button.resize(button.sizeHint());
        QCOMPARE(button.size(), QSize(22, 22));
        verifyCrisp(button, QRect(0, 0, 4, 4));
        verifyCrisp(button, QRect(3, 3, 16, 16));
    }

    // A small menu button: the icon and the drop-down arrow beside it.
    void menuButton()
    {
        RibbonCatMenuAction action(ringIcon({16, 32}), QString(), RibbonCatMenuAction::MenuTypeButton,
                                   RibbonCatMenuAction::MenuSizeSmall, RibbonCatMenuAction::PopupMenu, nullptr);
        RibbonCatMenuButton button(action, nullptr);
        button.resize(button.sizeHint());
        const QSize logical = button.size();
        QCOMPARE(logical.height(), 22);
        verifyCrisp(button, QRect(QPoint(0, 0), logical));
        // The arrow alone, right of the icon.
        verifyCrisp(button, QRect(20, 0, logical.width() - 20, logical.height()));
    }

    // The main window's minimise, maximise and close buttons, all of the same logical
    // size; only the close glyph has slanted edges, which show the finer drawing (the
    // others are straight lines on whole logical pixels).
    void windowButtons()
    {
        QWidget window;
        RibbonSysButton minimize(&window, RibbonSysButton::Minimize, &window);
        RibbonSysButton maximize(&window, RibbonSysButton::MaximizeRestore, &window);
        RibbonSysButton close(&window, RibbonSysButton::Close, &window);
        for (RibbonSysButton *b : {&minimize, &maximize, &close})
            QCOMPARE(b->size(), QSize(20, 20));
        verifyCrisp(close, close.rect());
    }

    // The quick-access bar in a main window: its command buttons draw the icon's own
    // 32-pixel drawing at 2x, and its customise arrow is not doubled either.
    void quickAccessBar()
    {
        RibbonMainWindow window;
        RibbonQuickAccessBar &bar = window.quickAccessBar();
        auto *save = new RibbonSimpleAction(ringIcon({16, 32}), QStringLiteral("Save"), &window);
        bar.addAction(save);
        window.resize(600, 400);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        RibbonButtonNormal *button = nullptr;
        for (RibbonButtonNormal *b : bar.findChildren<RibbonButtonNormal *>()) {
            if (b->actions().value(0) == save)
                button = b;
        }
        QVERIFY(button);
        const QSize logical = button->size();
        QVERIFY(logical.width() <= 24 && logical.height() <= 24);
        verifyCrisp(*button, button->rect());
        verifyCrisp(bar, bar.rect());
    }

    // An icon with only a 16-pixel drawing cannot be finer: the helper hands it out at
    // its logical size, whatever the ratio, never larger.
    void iconPixmapKeepsLogicalSize()
    {
        QImage device(10, 10, QImage::Format_ARGB32_Premultiplied);
        for (const qreal ratio : {1.0, 1.5, 2.0, 3.0}) {
            device.setDevicePixelRatio(ratio);
            const QPixmap only16 = RibbonPaint::iconPixmap(ringIcon({16}), 32, true, device);
            QCOMPARE(only16.size() / only16.devicePixelRatio(), QSize(16, 16));
            const QPixmap both = RibbonPaint::iconPixmap(ringIcon({16, 32}), 16, true, device);
            QCOMPARE(both.size() / both.devicePixelRatio(), QSize(16, 16));
            QCOMPARE(both.devicePixelRatio(), ratio);
        }
    }
};

ZEL_TEST_MAIN(tst_HighDpi)
#include "tst_highdpi.moc"
