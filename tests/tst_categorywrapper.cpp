// The collapsed-group button and its popup. Heights follow the DPI: ZEL_TEST_DPI_SENSITIVE

#include "ZelTest.h"

#include "RibbonCatSimpleAction.h"
#include "RibbonCategoriesPanelAction.h"
#include "RibbonCategory.h"
#include "RibbonCategoryAction.h"
#include "RibbonCategoryPanel.h"
#include "RibbonCategoryPanels.h"
#include "RibbonCategoryPanelsProxy.h"
#include "RibbonCategoryWrapper.h"
#include "RibbonCategoryWrapperPopup.h"
#include "RibbonMainWindow.h"
#include "RibbonMenuBar.h"
#include "RibbonScale_p.h"

#include <QPointer>
#include <QScreen>

#include <memory>

using namespace zel;

namespace {

// A main window with one tab holding one group of the given caption and buttons.
struct Fixture
{
    explicit Fixture(const QString &caption, int buttons = 12)
    {
        window.reset(new RibbonMainWindow);
        tab = new RibbonCategoriesPanelAction(QStringLiteral("Home"), window.get());
        category = new RibbonCategoryAction(caption, window.get());
        for (int i = 0; i < buttons; ++i) {
            auto *a = new RibbonCatSimpleAction(QStringLiteral("B%1").arg(i), RibbonCatSimpleAction::SizeLarge,
                                                window.get());
            commands.append(a);
            category->addAction(a, -1);
        }
        tab->addCategory(category);
        window->ribbonMenuBar().addAction(tab);
    }

    RibbonCategoryWrapper *wrapper() const
    {
        RibbonCategoryPanel *page = window->ribbonMenuBar().categoryPanels()->subject()->panel(tab);
        return page ? page->wrapper(category) : nullptr;
    }

    // Shows the window too narrow for the group, so that the page keeps it collapsed.
    RibbonCategoryWrapper *showCollapsed(const QPoint &pos = QPoint(0, 0))
    {
        window->setGeometry(QRect(pos, QSize(400, 160)));
        window->show();
        if (!QTest::qWaitForWindowExposed(window.get()))
            return nullptr;
        RibbonCategoryWrapper *w = wrapper();
        return QTest::qWaitFor([w] { return w->isColapsed(); }, 2000) ? w : nullptr;
    }

    std::unique_ptr<RibbonMainWindow> window;
    RibbonCategoriesPanelAction *tab = nullptr;
    RibbonCategoryAction *category = nullptr;
    QList<RibbonCatSimpleAction *> commands;
};

} // namespace

class tst_CategoryWrapper : public QObject
{
    Q_OBJECT

private slots:
    void colapsedSize_data();
    void colapsedSize();
    void collapsingAndClicks();
    void popupPlacement_data();
    void popupPlacement();
    void closesPopup_data();
    void closesPopup();
    void paintsStates();
    void deleteWrapperWithOpenPopup();
};

void tst_CategoryWrapper::colapsedSize_data()
{
    QTest::addColumn<QString>("caption");
    QTest::newRow("empty") << QString();
    QTest::newRow("short") << QStringLiteral("Font");
    QTest::newRow("two words") << QStringLiteral("Paragraph Settings");
    QTest::newRow("long") << QStringLiteral("Illustrations and Pictures of the Document");
    QTest::newRow("one long word") << QStringLiteral("Supercalifragilisticexpialidocious");
}

void tst_CategoryWrapper::colapsedSize()
{
    QFETCH(QString, caption);
    Fixture f(caption);
    RibbonCategoryWrapper *wrapper = f.wrapper();
    QVERIFY(wrapper);

    const QFontMetrics fm = wrapper->fontMetrics();
    const int textWidth = fm.horizontalAdvance(caption);
    const QSize size = wrapper->colapsedSize();
    QCOMPARE(size.height(), scaled(85));
    QCOMPARE(wrapper->minimumSizeHint(), size);
    if (textWidth + 4 < 35) {
        QCOMPARE(size.width(), 50);
        return;
    }

    // The narrowest width at which the caption takes at most two lines, found by
    // halving the step from the one-line width.
    const int flags = Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap;
    const auto bounds = [&](int w) { return fm.boundingRect(QRect(0, 0, w, 0), flags, caption); };
    int best = textWidth;
    int trial = textWidth;
    int step = textWidth;
    do {
        step /= 2;
        const QRect r = bounds(trial);
        if (r.height() <= 2 * fm.height()) {
            best = r.width();
            trial -= step;
        } else {
            trial += step;
        }
    } while (step != 0);
    QCOMPARE(size.width(), qMax(best, 38) + 12);
    // The button's caption rectangle holds the caption in two lines.
    QVERIFY(bounds(size.width() - 12).height() <= 2 * fm.height());
    if (caption.contains(QLatin1Char(' ')))
        QVERIFY(size.width() - 12 < textWidth);
}

void tst_CategoryWrapper::collapsingAndClicks()
{
    Fixture f(QStringLiteral("Clipboard"));
    RibbonCategoryWrapper *wrapper = f.wrapper();
    QVERIFY(wrapper);
    QCOMPARE(wrapper->sizeHint(), wrapper->category()->sizeHint());
    QCOMPARE(wrapper->normalSize(), wrapper->category()->sizeHint());
    // Collapsing hides the group, expanding shows it again.
    wrapper->setColapsed(true);
    QVERIFY(wrapper->category()->isHidden());
    wrapper->setColapsed(false);
    QVERIFY(!wrapper->category()->isHidden());

    f.window->resize(1400, 300);
    f.window->show();
    QVERIFY(QTest::qWaitForWindowExposed(f.window.get()));
    QTRY_VERIFY(!wrapper->isColapsed());

    // Expanded: the group handles clicks, the wrapper opens nothing.
    QTest::mouseClick(wrapper, Qt::LeftButton, {}, QPoint(wrapper->width() - 1, 1));
    QVERIFY(!wrapper->popup());
    QVERIFY(!wrapper->isMyChecked());

    QCOMPARE(f.showCollapsed(), wrapper);
    QTest::mouseClick(wrapper, Qt::RightButton, {}, QPoint(5, 5));
    QVERIFY(!wrapper->popup());

    QTest::mouseClick(wrapper, Qt::LeftButton, {}, QPoint(5, 5));
    QPointer<RibbonCategoryWrapperPopup> popup = wrapper->popup();
    QVERIFY(popup && popup->isVisible());
    QVERIFY(wrapper->isMyChecked());
    QCOMPARE(popup->wrapper(), wrapper);
    QCOMPARE(popup->category()->action(), f.category);
    QVERIFY(popup->category() != wrapper->category());

    // A second click while it is open opens nothing new.
    QTest::mousePress(wrapper, Qt::LeftButton, {}, QPoint(5, 5));
    QCOMPARE(wrapper->popup(), popup.data());
    popup->close();
}

void tst_CategoryWrapper::popupPlacement_data()
{
    QTest::addColumn<QPoint>("windowPos");
    QTest::addColumn<bool>("above");
    QTest::addColumn<bool>("shifted");
    QTest::newRow("below") << QPoint(0, 0) << false << false;
    QTest::newRow("above") << QPoint(0, 420) << true << false;
    QTest::newRow("shifted left") << QPoint(300, 0) << false << true;
    QTest::newRow("above and shifted") << QPoint(300, 420) << true << true;
}

void tst_CategoryWrapper::popupPlacement()
{
    QFETCH(QPoint, windowPos);
    QFETCH(bool, above);
    QFETCH(bool, shifted);

    // A group too wide for the window: the layout keeps it collapsed.
    Fixture f(QStringLiteral("Clipboard"));
    RibbonCategoryWrapper *wrapper = f.showCollapsed(windowPos);
    QVERIFY(wrapper);
    QTest::mouseClick(wrapper, Qt::LeftButton, {}, QPoint(5, 5));
    QPointer<RibbonCategoryWrapperPopup> popup = wrapper->popup();
    QVERIFY(popup);
    QVERIFY(QTest::qWaitForWindowExposed(popup.data()));
    QVERIFY(popup); // it must not close itself on showing

    const QRect screen = wrapper->screen()->availableGeometry();
    const QPoint anchor = wrapper->mapToGlobal(QPoint(0, wrapper->height() - 1));
    const QRect placed = popup->geometry();
    QCOMPARE(placed.size(), popup->category()->sizeHint());
    if (above)
        QCOMPARE(placed.bottom(), anchor.y() - scaled(92));
    else
        QCOMPARE(placed.top(), anchor.y());
    if (shifted)
        QCOMPARE(placed.right(), screen.right());
    else
        QCOMPARE(placed.left(), anchor.x());

    const QRegion mask = popup->mask();
    const int w = popup->width(), h = popup->height();
    // The corner pixels are cut away; their neighbours stay.
    for (const QPoint &cut : {QPoint(0, 0), QPoint(w - 1, 0), QPoint(0, h - 1)})
        QVERIFY(!mask.contains(cut));
    for (const QPoint &kept : {QPoint(1, 0), QPoint(0, 1), QPoint(w / 2, h / 2)})
        QVERIFY(mask.contains(kept));
    popup->close();
}

void tst_CategoryWrapper::closesPopup_data()
{
    QTest::addColumn<bool>("byCommand");
    QTest::newRow("command") << true;
    QTest::newRow("escape") << false;
}

void tst_CategoryWrapper::closesPopup()
{
    QFETCH(bool, byCommand);
    Fixture f(QStringLiteral("Clipboard"));
    RibbonCategoryWrapper *wrapper = f.showCollapsed();
    QVERIFY(wrapper);
    QTest::mouseClick(wrapper, Qt::LeftButton, {}, QPoint(5, 5));
    QPointer<RibbonCategoryWrapperPopup> popup = wrapper->popup();
    QVERIFY(popup);

    if (byCommand) {
        QSignalSpy triggered(f.commands.at(1), &QAction::triggered);
        f.commands.at(1)->trigger();
        QCOMPARE(triggered.count(), 1);
        QVERIFY(!popup->isVisible());
    } else {
        QTest::keyClick(popup.data(), Qt::Key_Escape);
    }
    QVERIFY(!wrapper->isMyChecked());
    QTRY_VERIFY(!popup);
    QVERIFY(!wrapper->popup());

    // The next click opens a fresh popup.
    QTest::mouseClick(wrapper, Qt::LeftButton, {}, QPoint(5, 5));
    QVERIFY(wrapper->popup());
    wrapper->popup()->close();
}

void tst_CategoryWrapper::paintsStates()
{
    Fixture f(QStringLiteral("Clipboard"));
    RibbonCategoryWrapper *wrapper = f.showCollapsed();
    QVERIFY(wrapper);

    const QImage normal = wrapper->grab().toImage();
    wrapper->setMyChecked(true);
    const QImage open = wrapper->grab().toImage();
    QVERIFY(wrapper->popup());
    wrapper->popup()->close();
    QVERIFY(!wrapper->isMyChecked());
    QCOMPARE(wrapper->grab().toImage(), normal);
    QVERIFY(normal != open);

    // Expanded, the wrapper itself paints nothing: with the group hidden, what shows
    // through is the panel behind it.
    QWidget *page = wrapper->parentWidget();
    const QImage pageWithButton = page->grab(wrapper->geometry()).toImage();
    wrapper->setColapsed(false);
    wrapper->category()->hide();
    const QImage pageBehind = page->grab(wrapper->geometry()).toImage();
    wrapper->hide();
    QCOMPARE(page->grab(wrapper->geometry()).toImage(), pageBehind);
    QVERIFY(pageWithButton != pageBehind);
}

void tst_CategoryWrapper::deleteWrapperWithOpenPopup()
{
    Fixture f(QStringLiteral("Clipboard"));
    RibbonCategoryWrapper *wrapper = f.showCollapsed();
    QVERIFY(wrapper);
    wrapper->setMyChecked(true);
    QPointer<RibbonCategoryWrapperPopup> popup = wrapper->popup();
    QVERIFY(popup);

    // Removing the group from the tab takes its wrapper and the popup with it.
    f.tab->removeCategory(f.category);
    QVERIFY(!f.wrapper());
    QVERIFY(!popup || !popup->isVisible());
    delete f.category;
    QTRY_VERIFY(!popup);
}

ZEL_TEST_MAIN(tst_CategoryWrapper)
#include "tst_categorywrapper.moc"
