// ZEL_TEST_DPI_SENSITIVE: expectations follow the vertical DPI factor.
#include "ZelTest.h"

#include "RibbonApplication.h"
#include "RibbonCatActionGroup.h"
#include "RibbonCatActionGroupWidget.h"
#include "RibbonCatComboAction.h"
#include "RibbonCatSimpleAction.h"
#include "RibbonCatSimpleButton.h"
#include "RibbonCategory.h"
#include "RibbonCategoryAction.h"
#include "RibbonCategoryLayout.h"

#include <QPointer>
#include <memory>

using namespace zel;

namespace {

double dy() { return RibbonApplication::theApp().dpiFactor().second; }
int S(int v) { return int(v * dy() + 0.5); }
// The category height, and the height left for controls between the margins and the caption.
int height() { return S(85); }
int usable() { return S(85) - 2 - 15; }
// Top of a control of height h centred in row n of a layout with rows of the given height.
int rowY(int rowHeight, int n, int h) { return 2 + n * rowHeight + (rowHeight - h) / 2; }

// A control of a given size hint, placed straight into a layout.
class Block : public QWidget
{
public:
    Block(const QSize &hint, QWidget *parent) : QWidget(parent), m_hint(hint) {}
    QSize sizeHint() const override { return m_hint; }

private:
    QSize m_hint;
};

} // namespace

class tst_CategoryLayout : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_owner.reset(new QObject); }
    void cleanup() { m_owner.reset(); }

    void emptyCategory();
    void placement_data();
    void placement();
    void shortThreshold();
    void comboAndStripCountAsShort();
    void addAndRemoveOnLiveCategory();
    void initialControlsArrangedOnFirstQuestion_data();
    void initialControlsArrangedOnFirstQuestion();
    void deleteActionsFirst();
    void deleteCategoryOrStripFirst();

private:
    RibbonCatSimpleAction *small(int minimalWidth = -1);
    RibbonCategoryAction *group() { return new RibbonCategoryAction(QStringLiteral("G"), m_owner.get()); }
    QRect rectOf(RibbonCategory &category, RibbonAction *action);

    std::unique_ptr<QObject> m_owner;
};

RibbonCatSimpleAction *tst_CategoryLayout::small(int minimalWidth)
{
    // A small button with an icon is 22 wide; a minimal width widens it.
    QPixmap pixmap(16, 16);
    pixmap.fill(Qt::red);
    auto *action = new RibbonCatSimpleAction(QIcon(pixmap), QString(), RibbonCatSimpleAction::SizeSmall,
                                             m_owner.get());
    action->setMinimalWidth(minimalWidth);
    return action;
}

QRect tst_CategoryLayout::rectOf(RibbonCategory &category, RibbonAction *action)
{
    category.resize(category.sizeHint());
    category.layout()->activate();
    QWidget *control = category.widget(action);
    return control ? control->geometry() : QRect();
}

void tst_CategoryLayout::emptyCategory()
{
    // At least 50 wide, or as wide as the caption.
    const QString longCaption = QStringLiteral("A caption far wider than fifty pixels");
    for (const QString &caption : {QStringLiteral("X"), longCaption}) {
        RibbonCategoryAction action(caption, m_owner.get());
        RibbonCategory category(nullptr, action);
        const int captionWidth = category.fontMetrics().horizontalAdvance(caption) + 6;
        QCOMPARE(category.sizeHint(), QSize(qMax(50, captionWidth), height()));
        QCOMPARE(category.categoryLayout()->heightForWidth(1000), height());

        // Emptied again, the layout keeps only its margins.
        RibbonCatSimpleAction *a = small();
        action.addAction(a, -1);
        action.removeAction(a);
        QCOMPARE(category.categoryLayout()->sizeHint(), QSize(3 + 4, height()));
    }
}

void tst_CategoryLayout::placement_data()
{
    // Each control: x = width of a small button (negative: a large one of that minimal
    // width), y = its row (-1: automatic). Expected rectangles in the same order.
    QTest::addColumn<QList<QPoint>>("controls");
    QTest::addColumn<QList<QRect>>("rects");
    QTest::addColumn<int>("width");

    const int h = S(22), r = usable() / 3, r2 = usable() / 2;

    QTest::newRow("single short control is centred")
        << QList<QPoint>{{22, -1}} << QList<QRect>{{3, rowY(usable(), 0, h), 22, h}} << 3 + 22 + 4;
    QTest::newRow("two short controls take the first rows")
        << QList<QPoint>{{30, -1}, {22, -1}}
        << QList<QRect>{{3, rowY(r, 0, h), 30, h}, {3, rowY(r, 1, h), 22, h}}
        << 3 + 30 + 4;

    // Columns of 3, 3 and 1, each as wide as its widest control, 2 pixels apart.
    const int widths[7] = {22, 30, 26, 40, 22, 22, 24};
    const int columnX[3] = {3, 3 + 30 + 2, 3 + 30 + 2 + 40 + 2};
    QList<QPoint> seven;
    QList<QRect> sevenRects;
    for (int i = 0; i < 7; ++i) {
        seven << QPoint(widths[i], -1);
        sevenRects << QRect(columnX[i / 3], rowY(r, i % 3, h), widths[i], h);
    }
    QTest::newRow("seven short controls fill columns") << seven << sevenRects << columnX[2] + 24 + 4;

    // The run after a tall control starts over in the first row.
    const int secondRun = 3 + 25 + 3 + 50 + 3;
    QTest::newRow("tall control splits runs")
        << QList<QPoint>{{25, -1}, {22, -1}, {-50, -1}, {22, -1}, {28, -1}}
        << QList<QRect>{{3, rowY(r, 0, h), 25, h}, {3, rowY(r, 1, h), 22, h},
                        {3 + 25 + 3, rowY(usable(), 0, S(66)), 50, S(66)},
                        {secondRun, rowY(r, 0, h), 22, h}, {secondRun, rowY(r, 1, h), 28, h}}
        << secondRun + 28 + 4;
    // The widest row decides the width.
    QTest::newRow("explicit rows")
        << QList<QPoint>{{30, 0}, {60, 1}, {24, 0}}
        << QList<QRect>{{3, rowY(r2, 0, h), 30, h}, {3, rowY(r2, 1, h), 60, h},
                        {3 + 30 + 2, rowY(r2, 0, h), 24, h}}
        << 3 + 60 + 4;
}

void tst_CategoryLayout::placement()
{
    QFETCH(QList<QPoint>, controls);
    QFETCH(QList<QRect>, rects);
    QFETCH(int, width);

    RibbonCategoryAction *g = group();
    QList<RibbonCatSimpleAction *> actions;
    for (const QPoint &c : controls) {
        if (c.x() < 0) {
            actions << new RibbonCatSimpleAction(QStringLiteral("Go"), RibbonCatSimpleAction::SizeLarge,
                                                 m_owner.get());
            actions.last()->setMinimalWidth(-c.x());
        } else {
            actions << small(c.x() == 22 ? -1 : c.x());
        }
        g->addAction(actions.last(), c.y());
    }
    RibbonCategory category(nullptr, *g);
    for (int i = 0; i < actions.size(); ++i)
        QCOMPARE(rectOf(category, actions.at(i)), rects.at(i));
    QCOMPARE(category.categoryLayout()->sizeHint(), QSize(width, height()));
}

void tst_CategoryLayout::shortThreshold()
{
    // Blocks straight in the layout of an empty category, which assigns no rows. The
    // first two form one run; one pixel above the threshold is tall.
    RibbonCategory category(nullptr, *group());
    RibbonCategoryLayout *layout = category.categoryLayout();
    const int t = S(22), r = usable() / 3;
    if (qFuzzyCompare(dy(), 1.5))
        QCOMPARE(t, 33);
    for (const QSize &hint : {QSize(20, 20), QSize(24, t), QSize(26, t + 1)})
        layout->addWidget(new Block(hint, &category));
    QCOMPARE(layout->itemRect(0), QRect(3, rowY(r, 0, 20), 20, 20));
    QCOMPARE(layout->itemRect(1), QRect(3, rowY(r, 1, t), 24, t));
    QCOMPARE(layout->itemRect(2), QRect(3 + 24 + 3, rowY(usable(), 0, t + 1), 26, t + 1));
    QCOMPARE(layout->sizeHint(), QSize(3 + 24 + 3 + 26 + 4, height()));
}

// Whatever its height, a combo joins the run of the button before it; a strip is 22 pixels
// high at every resolution and starts a run that the button after it joins.
void tst_CategoryLayout::comboAndStripCountAsShort()
{
    RibbonCategoryAction *g = group();
    RibbonCatSimpleAction *a = small();
    auto *combo = new RibbonCatComboAction(m_owner.get());
    g->addAction(a, -1);
    g->addAction(combo, -1);
    RibbonCategory category(nullptr, *g);
    QWidget *comboWidget = category.widget(combo);
    QVERIFY(comboWidget && comboWidget->inherits("zel::RibbonCatComboWidget"));
    const int r = usable() / 3;
    QCOMPARE(rectOf(category, a).x(), 3);
    QCOMPARE(rectOf(category, combo).topLeft(), QPoint(3, rowY(r, 1, comboWidget->sizeHint().height())));

    RibbonCategoryAction *g2 = group();
    auto *strip = new RibbonCatActionGroup(m_owner.get());
    for (int i = 0; i < 3; ++i)
        strip->addAction(small(), false);
    RibbonCatSimpleAction *b = small();
    g2->addAction(strip, -1);
    g2->addAction(b, -1);
    RibbonCategory second(nullptr, *g2);
    QVERIFY(qobject_cast<RibbonCatActionGroupWidget *>(second.widget(strip)));
    QCOMPARE(rectOf(second, strip), QRect(3, rowY(r, 0, 22), 66, 22));
    QCOMPARE(rectOf(second, b), QRect(3, rowY(r, 1, S(22)), 22, S(22)));
}

void tst_CategoryLayout::addAndRemoveOnLiveCategory()
{
    RibbonCategoryAction *g = group();
    g->addAction(small(), -1);
    RibbonCategory category(nullptr, *g);
    category.show();
    QVERIFY(QTest::qWaitForWindowExposed(&category));

    RibbonCatSimpleAction *b = small(40);
    g->addAction(b, -1);
    QPointer<QWidget> controlB = category.widget(b);
    QVERIFY(qobject_cast<RibbonCatSimpleButton *>(controlB.data()));
    QCOMPARE(category.action(controlB), b);
    QCOMPARE(category.categoryLayout()->count(), 2);
    // A control added to a shown category is visible and takes its place at once.
    QVERIFY(controlB->isVisibleTo(&category));
    QCOMPARE(category.sizeHint().width(), qMax(50, 3 + 40 + 4));
    QCOMPARE(rectOf(category, b), QRect(3, rowY(usable() / 3, 1, S(22)), 40, S(22)));

    // An unknown class of action gets no control; adding twice keeps one control.
    auto *plain = new RibbonAction(QStringLiteral("plain"), m_owner.get());
    g->addAction(plain, -1);
    QVERIFY(!category.widget(plain));
    category.addRibbonAction(b);
    QCOMPARE(category.categoryLayout()->count(), 2);

    g->removeAction(b);
    QVERIFY(controlB.isNull() && !category.widget(b));
    QCOMPARE(category.categoryLayout()->count(), 1);
    QCOMPARE(category.sizeHint().width(), 50);
    // Removing an unknown action changes nothing.
    g->removeAction(b);
    category.removeRibbonAction(nullptr);
    RibbonCategoryLayout *layout = category.categoryLayout();
    QCOMPARE(layout->count(), 1);
    QVERIFY(layout->itemAt(0) && !layout->itemAt(1) && !layout->itemAt(-1));
    QVERIFY(!layout->takeAt(5));
    QCOMPARE(layout->minimumSize(), layout->sizeHint());
}

void tst_CategoryLayout::initialControlsArrangedOnFirstQuestion_data()
{
    QTest::addColumn<int>("first");
    // What reaches the layout first: a question for its size, its minimum, a place, a
    // geometry to lay out, or one more control.
    QTest::newRow("size hint") << 0;
    QTest::newRow("minimum size") << 1;
    QTest::newRow("item rect") << 2;
    QTest::newRow("geometry") << 3;
    QTest::newRow("control added") << 4;
}

void tst_CategoryLayout::initialControlsArrangedOnFirstQuestion()
{
    QFETCH(int, first);
    // Two small buttons 30 and 40 wide share a column of automatic rows.
    RibbonCategoryAction *g = group();
    RibbonCatSimpleAction *a = small(30);
    RibbonCatSimpleAction *b = small(40);
    g->addAction(a, -1);
    g->addAction(b, -1);
    RibbonCategory category(nullptr, *g);
    RibbonCategoryLayout *layout = category.categoryLayout();
    const int row = usable() / 3;
    switch (first) {
    case 0:
        QCOMPARE(layout->sizeHint(), QSize(3 + 40 + 4, height()));
        break;
    case 1:
        QCOMPARE(layout->minimumSize(), QSize(3 + 40 + 4, height()));
        break;
    case 2:
        QCOMPARE(layout->itemRect(1), QRect(3, rowY(row, 1, S(22)), 40, S(22)));
        break;
    case 3:
        layout->setGeometry(QRect(10, 20, 200, height()));
        QCOMPARE(category.widget(b)->geometry(), QRect(13, 20 + rowY(row, 1, S(22)), 40, S(22)));
        break;
    case 4: {
        // The third control fills the column's last row and the column keeps its width.
        g->addAction(small(), -1);
        QCOMPARE(layout->itemRect(2), QRect(3, rowY(row, 2, S(22)), 22, S(22)));
        break;
    }
    }
    QCOMPARE(layout->itemRect(0), QRect(3, rowY(row, 0, S(22)), 30, S(22)));
    QCOMPARE(category.sizeHint(), QSize(50, height()));
    QCOMPARE(rectOf(category, b), QRect(3, rowY(row, 1, S(22)), 40, S(22)));
}

void tst_CategoryLayout::deleteActionsFirst()
{
    // A member goes, then the category action while another member lives on.
    RibbonCategoryAction *g = group();
    RibbonCatSimpleAction *a = small(), *b = small();
    g->addAction(a, -1);
    g->addAction(b, -1);
    RibbonCategory category(nullptr, *g);
    category.show();
    QPointer<QWidget> controlA = category.widget(a);
    QVERIFY(controlA);
    delete a;
    QVERIFY(controlA.isNull());
    QCOMPARE(category.categoryLayout()->count(), 1);
    category.repaint();

    delete g;
    QVERIFY(!category.action());
    QCOMPARE(category.actionRow(b), -1);
    category.repaint();
    // The member still has its control, and still goes when the member goes.
    QPointer<QWidget> controlB = category.widget(b);
    QVERIFY(controlB);
    delete b;
    QVERIFY(controlB.isNull());
    QCOMPARE(category.categoryLayout()->count(), 0);
    category.repaint();
}

void tst_CategoryLayout::deleteCategoryOrStripFirst()
{
    // The category goes first; the actions work on without their widgets.
    RibbonCategoryAction *first = group();
    auto *firstStrip = new RibbonCatActionGroup(m_owner.get());
    firstStrip->addAction(small(), false);
    first->addAction(small(), -1);
    first->addAction(firstStrip, -1);
    auto *doomed = new RibbonCategory(nullptr, *first);
    doomed->show();
    delete doomed;
    first->addAction(small(), -1);
    firstStrip->addAction(small(), false);
    QCOMPARE(first->actions().size(), 3);

    // The strip's last member goes, then the strip.
    RibbonCategoryAction *g = group();
    auto *strip = new RibbonCatActionGroup(m_owner.get());
    RibbonCatSimpleAction *inStrip = small();
    strip->addAction(inStrip, false);
    g->addAction(strip, -1);
    RibbonCategory category(nullptr, *g);
    category.show();
    QPointer<QWidget> stripWidget = category.widget(strip);
    QVERIFY(stripWidget);
    delete inStrip;
    stripWidget->repaint();
    QCOMPARE(stripWidget->sizeHint(), QSize(0, 22));
    delete strip;
    QVERIFY(stripWidget.isNull());
    QCOMPARE(category.categoryLayout()->count(), 0);
}

ZEL_TEST_MAIN(tst_CategoryLayout)
#include "tst_categorylayout.moc"
