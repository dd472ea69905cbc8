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

using namespace zel;

namespace {

// A main window with one tab holding one group of twelve large buttons.
struct Fixture
{
    explicit Fixture(const QString &caption = QStringLiteral("Clipboard"))
    {
        tab = new RibbonCategoriesPanelAction(QStringLiteral("Home"), &window);
        category = new RibbonCategoryAction(caption, &window);
        for (int i = 0; i < 12; ++i) {
            const auto large = RibbonCatSimpleAction::SizeLarge;
            commands.append(new RibbonCatSimpleAction(QString::number(i), large, &window));
            category->addAction(commands.last(), -1);
        }
        tab->addCategory(category);
        window.ribbonMenuBar().addAction(tab);
    }

    RibbonCategoryWrapper *wrapper()
    {
        RibbonCategoryPanel *page = window.ribbonMenuBar().categoryPanels()->subject()->panel(tab);
        return page ? page->wrapper(category) : nullptr;
    }

    // Shows the window too narrow for the group, so that the page keeps it collapsed.
    RibbonCategoryWrapper *showCollapsed(const QPoint &pos = QPoint(0, 0))
    {
        window.setGeometry(QRect(pos, QSize(400, 160)));
        window.show();
        RibbonCategoryWrapper *w = wrapper();
        return QTest::qWaitForWindowExposed(&window) && QTest::qWaitFor([w] { return w->isColapsed(); }, 2000)
            ? w : nullptr;
    }

    RibbonMainWindow window;
    RibbonCategoriesPanelAction *tab = nullptr;
    RibbonCategoryAction *category = nullptr;
    QList<RibbonCatSimpleAction *> commands;
};

const QPoint inside(5, 5);

} // namespace

class tst_CategoryWrapper : public QObject
{
    Q_OBJECT

private slots:
    void colapsedSize_data();
    void colapsedSize();
    void clicksAndLooks();
    void popupPlacesAndCloses_data();
    void popupPlacesAndCloses();
};

void tst_CategoryWrapper::colapsedSize_data()
{
    QTest::addColumn<QString>("caption");
    QTest::newRow("empty") << QString();
    QTest::newRow("short") << QStringLiteral("Font");
    QTest::newRow("words") << QStringLiteral("Illustrations and Pictures of the Document");
    QTest::newRow("one long word") << QStringLiteral("Supercalifragilisticexpialidocious");
}

// The exact two-line search is checked with the large buttons that share it.
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
    const QRect captionRect(0, 0, size.width() - 12, 0);
    QVERIFY(fm.boundingRect(captionRect, Qt::TextWordWrap, caption).height() <= 2 * fm.height());
    QVERIFY(textWidth + 4 >= 35 || size.width() == 50);
    QVERIFY(!caption.contains(QLatin1Char(' ')) || captionRect.width() < textWidth);
}

// Only a left click on the collapsed button opens the popup, once; the checked look lasts as
// long as the popup; expanded, the wrapper paints nothing of its own.
void tst_CategoryWrapper::clicksAndLooks()
{
    Fixture f;
    RibbonCategoryWrapper *wrapper = f.wrapper();
    QVERIFY(wrapper);
    f.window.resize(1400, 300);
    f.window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&f.window));
    QTRY_VERIFY(!wrapper->isColapsed());
    QVERIFY(!wrapper->category()->isHidden());
    QTest::mouseClick(wrapper, Qt::LeftButton, {}, QPoint(wrapper->width() - 1, 1));
    QVERIFY(!wrapper->popup() && !wrapper->isMyChecked());

    QCOMPARE(f.showCollapsed(), wrapper);
    QVERIFY(wrapper->category()->isHidden());
    const QImage normal = wrapper->grab().toImage();
    QTest::mouseClick(wrapper, Qt::RightButton, {}, inside);
    QVERIFY(!wrapper->popup());
    QTest::mouseClick(wrapper, Qt::LeftButton, {}, inside);
    QPointer<RibbonCategoryWrapperPopup> popup = wrapper->popup();
    QVERIFY(popup && popup->isVisible() && wrapper->isMyChecked());
    QCOMPARE(popup->wrapper(), wrapper);
    QCOMPARE(popup->category()->action(), f.category);
    QVERIFY(popup->category() != wrapper->category());
    QVERIFY(wrapper->grab().toImage() != normal);
    QTest::mousePress(wrapper, Qt::LeftButton, {}, inside);
    QCOMPARE(wrapper->popup(), popup.data());
    popup->close();
    QVERIFY(!wrapper->isMyChecked());
    QCOMPARE(wrapper->grab().toImage(), normal);

    QWidget *page = wrapper->parentWidget();
    const QImage pageWithButton = page->grab(wrapper->geometry()).toImage();
    wrapper->setColapsed(false);
    wrapper->category()->hide();
    const QImage pageBehind = page->grab(wrapper->geometry()).toImage();
    wrapper->hide();
    QCOMPARE(page->grab(wrapper->geometry()).toImage(), pageBehind);
    QVERIFY(pageWithButton != pageBehind);
}

void tst_CategoryWrapper::popupPlacesAndCloses_data()
{
    QTest::addColumn<QPoint>("windowPos");
    QTest::addColumn<bool>("above");
    QTest::addColumn<bool>("shifted");
    QTest::addColumn<QString>("closeBy");
    QTest::newRow("below") << QPoint(0, 0) << false << false << "command";
    QTest::newRow("above") << QPoint(0, 420) << true << false << "escape";
    QTest::newRow("shifted left") << QPoint(300, 0) << false << true << "group removed";
    QTest::newRow("above and shifted") << QPoint(300, 420) << true << true << "escape";
}

void tst_CategoryWrapper::popupPlacesAndCloses()
{
    QFETCH(QPoint, windowPos);
    QFETCH(bool, above);
    QFETCH(bool, shifted);
    QFETCH(QString, closeBy);
    Fixture f;
    RibbonCategoryWrapper *wrapper = f.showCollapsed(windowPos);
    QVERIFY(wrapper);
    QTest::mouseClick(wrapper, Qt::LeftButton, {}, inside);
    QPointer<RibbonCategoryWrapperPopup> popup = wrapper->popup();
    QVERIFY(popup && QTest::qWaitForWindowExposed(popup.data()));
    QVERIFY(popup); // it must not close itself on showing

    const QPoint anchor = wrapper->mapToGlobal(QPoint(0, wrapper->height() - 1));
    const QRect placed = popup->geometry();
    QCOMPARE(placed.size(), popup->category()->sizeHint());
    QCOMPARE(above ? placed.bottom() : placed.top(), above ? anchor.y() - scaled(92) : anchor.y());
    QCOMPARE(shifted ? placed.right() : placed.left(),
             shifted ? wrapper->screen()->availableGeometry().right() : anchor.x());
    // The corner pixels are cut away; their neighbours stay.
    const QRegion mask = popup->mask();
    const int w = popup->width(), h = popup->height();
    for (const QPoint &cut : {QPoint(0, 0), QPoint(w - 1, 0), QPoint(0, h - 1)})
        QVERIFY(!mask.contains(cut));
    for (const QPoint &kept : {QPoint(1, 0), QPoint(0, 1), QPoint(w / 2, h / 2)})
        QVERIFY(mask.contains(kept));

    if (closeBy == QLatin1String("group removed")) { // the wrapper and its open popup go with it
        f.tab->removeCategory(f.category);
        QVERIFY(!f.wrapper());
        QVERIFY(!popup || !popup->isVisible());
        delete f.category;
        QTRY_VERIFY(!popup);
        return;
    }
    if (closeBy == QLatin1String("command")) {
        f.commands.at(1)->trigger();
        QVERIFY(!popup->isVisible());
    } else {
        QTest::keyClick(popup.data(), Qt::Key_Escape);
    }
    QVERIFY(!wrapper->isMyChecked());
    QTRY_VERIFY(!popup && !wrapper->popup());
    QTest::mouseClick(wrapper, Qt::LeftButton, {}, inside);
    QVERIFY(wrapper->popup()); // a fresh one
    wrapper->popup()->close();
}

ZEL_TEST_MAIN(tst_CategoryWrapper)
#include "tst_categorywrapper.moc"
