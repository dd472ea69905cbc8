// The caption strip grows with the resolution, at 96 and 144 DPI: ZEL_TEST_DPI_SENSITIVE
#include "ZelTest.h"

#include "RibbonApplication.h"
#include "RibbonChildWindow.h"
#include "RibbonSmallSysBtnClose.h"
#include "RibbonStyle.h"
#include "RibbonSysDockButton.h"

#include <memory>

using namespace zel;

namespace {

bool highDpi()
{
    return RibbonApplication::theApp().dpiFactor().second > 1.25;
}

const RibbonStyle &style()
{
    return RibbonApplication::theApp().ribbonStyle();
}

QImage grabImage(QWidget &widget)
{
    return widget.grab().toImage().convertToFormat(QImage::Format_RGB32);
}

// Whether every pixel of area in image has the given colour.
bool allPixels(const QImage &image, const QRect &area, const QColor &color)
{
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) {
            if (image.pixelColor(x, y) != color)
                return false;
        }
    }
    return true;
}

} // namespace

class tst_ChildWindow : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void layout_data();
    void layout();
    void cornersAreCut();
    void dockButton();
    void closesAfterAnnouncing_data();
    void closesAfterAnnouncing();
    void withoutCloseHintTheButtonIsInert();
    void captionLine();
    void titleStopsBeforeTheButtons();
    void buttonStates();

private:
    // Shows a child window of the given size in a host window, the mouse elsewhere.
    RibbonChildWindow *showChild(bool dockable, const QSize &size = QSize(200, 150));

    std::unique_ptr<QWidget> m_host;
};

void tst_ChildWindow::init()
{
    m_host.reset(new QWidget);
    m_host->resize(320, 240);
}

void tst_ChildWindow::cleanup()
{
    m_host.reset();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

RibbonChildWindow *tst_ChildWindow::showChild(bool dockable, const QSize &size)
{
    auto *child = new RibbonChildWindow(m_host.get(), dockable);
    child->setGeometry(QRect(QPoint(10, 10), size));
    m_host->show();
    if (!QTest::qWaitForWindowExposed(m_host.get()))
        return nullptr;
    QTest::mouseMove(m_host.get(), QPoint(315, 235));
    return child;
}

void tst_ChildWindow::layout_data()
{
    QTest::addColumn<bool>("dockable");
    QTest::newRow("plain") << false;
    QTest::newRow("dockable") << true;
}

// The caption buttons sit at the right of the strip after every resize; the content
// starts below the strip.
void tst_ChildWindow::layout()
{
    QFETCH(bool, dockable);
    RibbonChildWindow *child = showChild(dockable);
    QVERIFY(child);
    QVERIFY(!child->isWindow());
    const int caption = highDpi() ? 30 : 20;
    const int y = highDpi() ? 6 : 1;
    QCOMPARE(child->contentsMargins(), QMargins(1, caption, 1, 1));

    auto *close = child->findChild<RibbonSmallSysBtnClose *>();
    QVERIFY(close);
    QCOMPARE(close->geometry(), QRect(182, y, 17, 16));
    QCOMPARE(close->focusPolicy(), Qt::NoFocus);
    auto *dock = child->findChild<RibbonSysDockButton *>();
    QCOMPARE(dock != nullptr, dockable);

    child->resize(260, 90);
    QCOMPARE(close->geometry(), QRect(242, y, 17, 16));
    if (dock) {
        QCOMPARE(dock->geometry(), QRect(224, y, 17, 16));
        QCOMPARE(dock->focusPolicy(), Qt::NoFocus);
    }
    // The caption fill, put back over the host's palette when the ribbon's palette changes.
    QPalette changed = child->palette();
    changed.setColor(QPalette::Window, Qt::red);
    child->setPalette(changed);
    emit RibbonApplication::theApp().ribbonStyleChanged();
    for (QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
        QCOMPARE(child->palette().color(group, QPalette::Window), style().frameNormalFillColor());
}

void tst_ChildWindow::cornersAreCut()
{
    RibbonChildWindow *child = showChild(false, QSize(40, 30));
    QVERIFY(child);
    const QRegion mask = child->mask();
    for (const QPoint &corner : {QPoint(0, 0), QPoint(39, 0), QPoint(0, 29), QPoint(39, 29)})
        QVERIFY2(!mask.contains(corner), qPrintable(QStringLiteral("%1,%2").arg(corner.x()).arg(corner.y())));
    for (const QPoint &edge : {QPoint(1, 0), QPoint(38, 0), QPoint(0, 1), QPoint(39, 1), QPoint(39, 28),
                               QPoint(38, 29), QPoint(1, 29), QPoint(0, 28), QPoint(20, 15)})
        QVERIFY2(mask.contains(edge), qPrintable(QStringLiteral("%1,%2").arg(edge.x()).arg(edge.y())));
    QCOMPARE(mask.rectCount(), 3);

    child->resize(50, 30);
    QVERIFY(child->mask().contains(QPoint(48, 0)));
    QVERIFY(!child->mask().contains(QPoint(49, 0)));
}

// A plain window never gets a dock button, whatever the host asks; a dockable one shows and
// hides it, and a click announces undocking, not closing.
void tst_ChildWindow::dockButton()
{
    RibbonChildWindow *plain = showChild(false);
    QVERIFY(plain);
    plain->showDockingButton(true);
    QCOMPARE(plain->findChildren<QAbstractButton *>().size(), 1); // the close button alone

    auto *dockable = new RibbonChildWindow(m_host.get(), true);
    dockable->show();
    auto *dock = dockable->findChild<RibbonSysDockButton *>();
    QVERIFY(dock && dock->isVisible());
    dockable->showDockingButton(false);
    QVERIFY(!dock->isVisible());
    dockable->showDockingButton(true);
    QVERIFY(dock->isVisible());
    QSignalSpy undocking(dockable, SIGNAL(undocking()));
    QSignalSpy closed(dockable, SIGNAL(closed()));
    QTest::mouseClick(dock, Qt::LeftButton);
    QCOMPARE(undocking.count(), 1);
    QCOMPARE(closed.count(), 0);
    QVERIFY(dockable->isVisible());
}

void tst_ChildWindow::closesAfterAnnouncing_data()
{
    QTest::addColumn<bool>("byButton");
    QTest::newRow("close button") << true;
    QTest::newRow("host's close()") << false;
}

// closed() comes while the window is still shown; then it closes.
void tst_ChildWindow::closesAfterAnnouncing()
{
    QFETCH(bool, byButton);
    RibbonChildWindow *child = showChild(false);
    QVERIFY(child);
    QList<bool> visibleWhenAnnounced;
    connect(child, &RibbonChildWindow::closed, this, [&] { visibleWhenAnnounced.append(child->isVisible()); });
    if (byButton)
        QTest::mouseClick(child->findChild<RibbonSmallSysBtnClose *>(), Qt::LeftButton);
    else
        QVERIFY(child->close());
    QCOMPARE(visibleWhenAnnounced, QList<bool>{true});
    QVERIFY(!child->isVisible());
    QVERIFY(m_host->isVisible());
}

void tst_ChildWindow::withoutCloseHintTheButtonIsInert()
{
    RibbonChildWindow *child = showChild(false);
    QVERIFY(child);
    auto *close = child->findChild<RibbonSmallSysBtnClose *>();
    QVERIFY(close->isVisible());
    QVERIFY(child->windowFlags().testFlag(Qt::WindowCloseButtonHint)); // Qt's default
    const QImage withGlyph = grabImage(*child);

    // The button looks at the hint each time it is shown.
    child->setWindowFlags(child->windowFlags() & ~Qt::WindowCloseButtonHint);
    child->hide();
    child->show();
    QVERIFY(!child->isWindow());
    QVERIFY(close->signalsBlocked());
    QSignalSpy closed(child, SIGNAL(closed()));
    QSignalSpy clicked(close, SIGNAL(clicked()));
    QTest::mouseClick(close, Qt::LeftButton);
    QCOMPARE(closed.count(), 0);
    QCOMPARE(clicked.count(), 0);
    QVERIFY(child->isVisible());

    // No glyph, not even hovered: the caption's fill shows through.
    QTest::mouseMove(close, QPoint(8, 8));
    QTRY_VERIFY(close->underMouse());
    const QImage without = grabImage(*child);
    QVERIFY(allPixels(without, close->geometry(), style().frameNormalFillColor()));
    QVERIFY(!allPixels(withGlyph, close->geometry(), style().frameNormalFillColor()));

    // A hint cleared while the button is shown already refuses the press.
    child->setWindowFlags(child->windowFlags() | Qt::WindowCloseButtonHint);
    child->hide();
    child->show();
    QVERIFY(!close->signalsBlocked());
    child->setWindowFlags(child->windowFlags() & ~Qt::WindowCloseButtonHint);
    QTest::mouseClick(close, Qt::LeftButton);
    QCOMPARE(closed.count(), 0);
}

void tst_ChildWindow::captionLine()
{
    RibbonChildWindow *child = showChild(false);
    QVERIFY(child);
    const int line = highDpi() ? 29 : 19;
    const QRect row(0, line, child->width(), 1);
    QVERIFY(allPixels(grabImage(*child), row, style().frameOutlineColor()));
    QVERIFY(allPixels(grabImage(*child), row.translated(0, 1), style().frameNormalFillColor()));

    child->drawCaptionFrame(false);
    QVERIFY(allPixels(grabImage(*child), row, style().frameNormalFillColor()));
    child->drawCaptionFrame(true);
    QVERIFY(allPixels(grabImage(*child), row, style().frameOutlineColor()));
}

// A long title is cut short of the caption buttons instead of running under them.
void tst_ChildWindow::titleStopsBeforeTheButtons()
{
    RibbonChildWindow *child = showChild(true);
    QVERIFY(child);
    child->setWindowFlags(child->windowFlags() & ~Qt::WindowCloseButtonHint);
    const QColor fill = style().frameNormalFillColor();
    const QRect captionText(0, 0, child->width() - 36, highDpi() ? 29 : 19);
    QVERIFY(allPixels(grabImage(*child), captionText, fill));

    child->setWindowTitle(QStringLiteral("Navigation through a rather long list of headings"));
    const QImage titled = grabImage(*child);
    QVERIFY(!allPixels(titled, QRect(5, 1, 40, captionText.height() - 1), fill));
    QVERIFY(allPixels(titled, QRect(0, 0, 5, captionText.height()), fill));
    // Right of the title: the five pixels before the undock button and the close
    // button's own place (it paints nothing without the hint).
    const int undockLeft = child->width() - 36;
    QVERIFY(allPixels(titled, QRect(undockLeft - 5, 0, 5, captionText.height()), fill));
    QVERIFY(allPixels(titled, QRect(child->width() - 18, 0, 18, captionText.height()), fill));

    // Without the undock button the title takes its room.
    child->showDockingButton(false);
    const QImage wider = grabImage(*child);
    QVERIFY(!allPixels(wider, QRect(undockLeft, 0, 13, captionText.height()), fill));
    QVERIFY(allPixels(wider, QRect(child->width() - 23, 0, 23, captionText.height()), fill));
}

// At rest, hovered and pressed: the back of sysBtnBack's rows and the glyph's frames.
void tst_ChildWindow::buttonStates()
{
    RibbonChildWindow *child = showChild(true);
    QVERIFY(child);
    QList<QAbstractButton *> buttons = {child->findChild<RibbonSmallSysBtnClose *>(),
                                        child->findChild<RibbonSysDockButton *>()};
    const QImage back = style().sysBtnBack().toImage();
    const QColor hoverBack = back.pixelColor(8, 8);
    const QColor pressedBack = back.pixelColor(8, 16 + 8);
    QVERIFY(hoverBack != pressedBack);
    for (QAbstractButton *button : buttons) {
        const QString name = QString::fromLatin1(button->metaObject()->className());
        QTest::mouseMove(m_host.get(), QPoint(315, 235));
        QTRY_VERIFY(!button->underMouse());
        const QImage rest = grabImage(*button);
        QVERIFY2(rest.pixelColor(1, 1) == style().frameNormalFillColor(), qPrintable(name));

        QTest::mouseMove(button, QPoint(8, 8));
        QTRY_VERIFY(button->underMouse());
        const QImage hovered = grabImage(*button);
        QVERIFY2(hovered.pixelColor(1, 8) == hoverBack, qPrintable(name));

        QTest::mousePress(button, Qt::LeftButton, Qt::NoModifier, QPoint(8, 8));
        QVERIFY(button->isDown());
        const QImage pressed = grabImage(*button);
        QVERIFY2(pressed.pixelColor(1, 8) == pressedBack, qPrintable(name));
        QVERIFY2(rest != hovered && hovered != pressed, qPrintable(name));
        // The glyph itself changes between the three looks too.
        const QRect glyphArea(4, 4, 9, 8);
        QVERIFY2(rest.copy(glyphArea) != hovered.copy(glyphArea) || hovered.copy(glyphArea) != pressed.copy(glyphArea),
                 qPrintable(name));
        // Released outside: no click.
        QTest::mouseRelease(m_host.get(), Qt::LeftButton, Qt::NoModifier, QPoint(315, 235));
    }
    QVERIFY(child->isVisible());
}

ZEL_TEST_MAIN(tst_ChildWindow)
#include "tst_childwindow.moc"
