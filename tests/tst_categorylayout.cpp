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

double dy()
{
    return RibbonApplication::theApp().dpiFactor().second;
}

int round85() { return int(85 * dy() + 0.5); }
int threshold() { return int(22 * dy() + 0.5); }
int usable() { return round85() - 2 - 15; }
int smallHeight() { return int(22 * dy() + 0.5); }
int largeHeight() { return int(66 * dy() + 0.5); }

// A control of a given size hint, placed straight into a layout.
class Block : public QWidget
{
public:
    Block(const QSize &hint, QWidget *parent)
        : QWidget(parent)
        , m_hint(hint)
    {
    }
    QSize sizeHint() const override { return m_hint; }

private:
    QSize m_hint;
};

} // namespace

class tst_CategoryLayout : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void emptyCategory_data();
    void emptyCategory();
    void placement_data();
    void placement();
    void shortThreshold();
    void comboCountsAsShort();
    void layoutOverrides();
    void stripWidthAndPlacement();

    void addAndRemoveOnLiveCategory();
    void deleteCategoryFirst();
    void deleteActionsFirst();
    void deleteCategoryActionFirst();
    void deleteGroupActionFirst();

private:
    RibbonCatSimpleAction *small(int minimalWidth = -1);
    QRect rectOf(RibbonCategory &category, RibbonAction *action);

    std::unique_ptr<QObject> m_owner;
};

void tst_CategoryLayout::init()
{
    m_owner.reset(new QObject);
}

void tst_CategoryLayout::cleanup()
{
    m_owner.reset();
}

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

void tst_CategoryLayout::emptyCategory_data()
{
    QTest::addColumn<QString>("caption");
    QTest::newRow("short caption") << QStringLiteral("X");
    QTest::newRow("long caption") << QStringLiteral("A caption far wider than fifty pixels");
}

void tst_CategoryLayout::emptyCategory()
{
    QFETCH(QString, caption);
    RibbonCategoryAction group(caption, m_owner.get());
    RibbonCategory category(nullptr, group);
    const int captionWidth = category.fontMetrics().horizontalAdvance(caption) + 6;
    QCOMPARE(category.sizeHint(), QSize(qMax(50, captionWidth), round85()));
    QCOMPARE(category.categoryLayout()->heightForWidth(1000), round85());

    // Emptied again, the layout keeps only its margins.
    auto *a = new RibbonCatSimpleAction(QStringLiteral("a"), RibbonCatSimpleAction::SizeLarge, m_owner.get());
    group.addAction(a, -1);
    group.removeAction(a);
    QCOMPARE(category.categoryLayout()->sizeHint(), QSize(3 + 4, round85()));
}

void tst_CategoryLayout::placement_data()
{
    // Each control: x = width of a small button (negative: a large one of that minimal
    // width), y = its row (-1: automatic). Expected rectangles in the same order.
    QTest::addColumn<QList<QPoint>>("controls");
    QTest::addColumn<QList<QRect>>("rects");
    QTest::addColumn<int>("width");

    const int h = smallHeight();
    const int r = usable() / 3;
    const auto row = [h](int rowHeight, int n) { return 2 + n * rowHeight + (rowHeight - h) / 2; };

    QTest::newRow("single short control is centred")
        << QList<QPoint>{{22, -1}} << QList<QRect>{{3, 2 + (usable() - h) / 2, 22, h}} << 3 + 22 + 4;
    QTest::newRow("two short controls take the first rows")
        << QList<QPoint>{{30, -1}, {22, -1}} << QList<QRect>{{3, row(r, 0), 30, h}, {3, row(r, 1), 22, h}}
        << 3 + 30 + 4;

    // Columns of 3, 3 and 1, each as wide as its widest control, 2 pixels apart.
    const int widths[7] = {22, 30, 26, 40, 22, 22, 24};
    const int columnX[3] = {3, 3 + 30 + 2, 3 + 30 + 2 + 40 + 2};
    QList<QPoint> seven;
    QList<QRect> sevenRects;
    for (int i = 0; i < 7; ++i) {
        seven << QPoint(widths[i], -1);
        sevenRects << QRect(columnX[i / 3], row(r, i % 3), widths[i], h);
    }
    QTest::newRow("seven short controls fill columns") << seven << sevenRects << 3 + 30 + 2 + 40 + 2 + 24 + 4;

    // The run after a tall control starts over in the first row.
    const int secondRun = 3 + 25 + 3 + 50 + 3;
    QTest::newRow("tall control splits runs")
        << QList<QPoint>{{25, -1}, {22, -1}, {-50, -1}, {22, -1}, {28, -1}}
        << QList<QRect>{{3, row(r, 0), 25, h}, {3, row(r, 1), 22, h},
                        {3 + 25 + 3, 2 + (usable() - largeHeight()) / 2, 50, largeHeight()},
                        {secondRun, row(r, 0), 22, h}, {secondRun, row(r, 1), 28, h}}
        << secondRun + 28 + 4;
    // The widest row decides the width.
    const int r2 = usable() / 2;
    QTest::newRow("explicit rows")
        << QList<QPoint>{{30, 0}, {60, 1}, {24, 0}}
        << QList<QRect>{{3, row(r2, 0), 30, h}, {3, row(r2, 1), 60, h}, {3 + 30 + 2, row(r2, 0), 24, h}}
        << 3 + 60 + 4;
}

void tst_CategoryLayout::placement()
{
    QFETCH(QList<QPoint>, controls);
    QFETCH(QList<QRect>, rects);
    QFETCH(int, width);

    RibbonCategoryAction group(QStringLiteral("G"), m_owner.get());
    QList<RibbonCatSimpleAction *> actions;
    for (const QPoint &c : controls) {
        if (c.x() < 0) {
            actions << new RibbonCatSimpleAction(QStringLiteral("Go"), RibbonCatSimpleAction::SizeLarge,
                                                 m_owner.get());
            actions.last()->setMinimalWidth(-c.x());
        } else {
            actions << small(c.x() == 22 ? -1 : c.x());
        }
        group.addAction(actions.last(), c.y());
    }
    RibbonCategory category(nullptr, group);
    for (int i = 0; i < actions.size(); ++i)
        QCOMPARE(rectOf(category, actions.at(i)), rects.at(i));
    QCOMPARE(category.categoryLayout()->sizeHint(), QSize(width, round85()));
}

void tst_CategoryLayout::shortThreshold()
{
    // Blocks straight in the layout of an empty category, which assigns no rows.
    RibbonCategoryAction group(QStringLiteral("G"), m_owner.get());
    RibbonCategory category(nullptr, group);
    RibbonCategoryLayout *layout = category.categoryLayout();
    auto *low = new Block(QSize(20, 20), &category);
    auto *atThreshold = new Block(QSize(24, threshold()), &category);
    auto *above = new Block(QSize(26, threshold() + 1), &category);
    layout->addWidget(low);
    layout->addWidget(atThreshold);
    layout->addWidget(above);

    if (qFuzzyCompare(dy(), 1.5))
        QCOMPARE(threshold(), 33);
    const int r = usable() / 3;
    // The first two form one run; one pixel above the threshold is tall.
    QCOMPARE(layout->itemRect(0), QRect(3, 2 + (r - 20) / 2, 20, 20));
    QCOMPARE(layout->itemRect(1), QRect(3, 2 + r + (r - threshold()) / 2, 24, threshold()));
    QCOMPARE(layout->itemRect(2), QRect(3 + 24 + 3, 2 + (usable() - threshold() - 1) / 2, 26, threshold() + 1));
    QCOMPARE(layout->sizeHint(), QSize(3 + 24 + 3 + 26 + 4, round85()));
}

void tst_CategoryLayout::comboCountsAsShort()
{
    RibbonCategoryAction group(QStringLiteral("G"), m_owner.get());
    RibbonCatSimpleAction *a = small();
    auto *combo = new RibbonCatComboAction(m_owner.get());
    group.addAction(a, -1);
    group.addAction(combo, -1);
    RibbonCategory category(nullptr, group);
    QWidget *comboWidget = category.widget(combo);
    QVERIFY(comboWidget);
    QVERIFY(comboWidget->inherits("zel::RibbonCatComboWidget"));

    // Whatever its height, the combo joins the run of the button before it: both sit
    // in the first column.
    const QRect comboRect = rectOf(category, combo);
    QCOMPARE(comboRect.x(), 3);
    QCOMPARE(rectOf(category, a).x(), 3);
    const int r = usable() / 3;
    QCOMPARE(comboRect.y(), 2 + r + (r - comboWidget->sizeHint().height()) / 2);
}

void tst_CategoryLayout::layoutOverrides()
{
    RibbonCategoryAction group(QStringLiteral("G"), m_owner.get());
    RibbonCatSimpleAction *a = small();
    group.addAction(a, -1);
    RibbonCategory category(nullptr, group);
    RibbonCategoryLayout *layout = category.categoryLayout();
    QCOMPARE(layout->count(), 1);
    QVERIFY(layout->itemAt(0));
    QVERIFY(!layout->itemAt(1));
    QVERIFY(!layout->itemAt(-1));
    QVERIFY(!layout->takeAt(5));
    QCOMPARE(layout->expandingDirections(), Qt::Orientations());
    QCOMPARE(layout->minimumSize(), layout->sizeHint());
    QVERIFY(layout->hasHeightForWidth());
    QCOMPARE(layout->contentsMargins(), QMargins(3, 2, 4, 15));

    // Rectangles are translated by the layout's origin.
    layout->setGeometry(QRect(10, 20, 100, round85()));
    QCOMPARE(category.widget(a)->pos(), QPoint(10 + 3, 20 + 2 + (usable() - smallHeight()) / 2));
}

void tst_CategoryLayout::stripWidthAndPlacement()
{
    RibbonCategoryAction group(QStringLiteral("G"), m_owner.get());
    auto *strip = new RibbonCatActionGroup(m_owner.get());
    for (int i = 0; i < 3; ++i)
        strip->addAction(small(), false);
    RibbonCatSimpleAction *b = small();
    group.addAction(strip, -1);
    group.addAction(b, -1);
    RibbonCategory category(nullptr, group);
    QVERIFY(qobject_cast<RibbonCatActionGroupWidget *>(category.widget(strip)));
    const int r = usable() / 3;
    // The strip is 22 pixels high at every resolution.
    QCOMPARE(rectOf(category, strip), QRect(3, 2 + (r - 22) / 2, 66, 22));
    QCOMPARE(rectOf(category, b), QRect(3, 2 + r + (r - smallHeight()) / 2, 22, smallHeight()));
}

void tst_CategoryLayout::addAndRemoveOnLiveCategory()
{
    RibbonCategoryAction group(QStringLiteral("G"), m_owner.get());
    RibbonCatSimpleAction *a = small();
    group.addAction(a, -1);
    RibbonCategory category(nullptr, group);
    category.show();
    QVERIFY(QTest::qWaitForWindowExposed(&category));
    QCOMPARE(category.categoryLayout()->count(), 1);

    RibbonCatSimpleAction *b = small(40);
    group.addAction(b, -1);
    QPointer<QWidget> controlB = category.widget(b);
    QVERIFY(qobject_cast<RibbonCatSimpleButton *>(controlB.data()));
    QCOMPARE(category.action(controlB), b);
    QCOMPARE(category.categoryLayout()->count(), 2);
    // A control added to a shown category is visible and takes its place at once.
    QVERIFY(controlB->isVisibleTo(&category));
    QCOMPARE(category.sizeHint().width(), qMax(50, 3 + 40 + 4));
    category.resize(category.sizeHint());
    category.layout()->activate();
    const int r = usable() / 3;
    QCOMPARE(controlB->geometry(), QRect(3, 2 + r + (r - smallHeight()) / 2, 40, smallHeight()));

    // An unknown class of action gets no control.
    auto *plain = new RibbonAction(QStringLiteral("plain"), m_owner.get());
    group.addAction(plain, -1);
    QVERIFY(!category.widget(plain));
    QCOMPARE(category.categoryLayout()->count(), 2);

    // Adding twice keeps one control.
    category.addRibbonAction(b);
    QCOMPARE(category.categoryLayout()->count(), 2);

    group.removeAction(b);
    QVERIFY(controlB.isNull());
    QVERIFY(!category.widget(b));
    QCOMPARE(category.categoryLayout()->count(), 1);
    QCOMPARE(category.sizeHint().width(), 50);

    // Removing an unknown action changes nothing.
    group.removeAction(b);
    category.removeRibbonAction(nullptr);
    QCOMPARE(category.categoryLayout()->count(), 1);
}

void tst_CategoryLayout::deleteCategoryFirst()
{
    auto *group = new RibbonCategoryAction(QStringLiteral("G"), m_owner.get());
    auto *strip = new RibbonCatActionGroup(m_owner.get());
    strip->addAction(small(), false);
    group->addAction(small(), -1);
    group->addAction(strip, -1);
    auto *category = new RibbonCategory(nullptr, *group);
    category->show();
    delete category;
    // The actions work on without their widgets.
    group->addAction(small(), -1);
    strip->addAction(small(), false);
    QCOMPARE(group->actions().size(), 3);
    m_owner.reset();
}

void tst_CategoryLayout::deleteActionsFirst()
{
    auto *group = new RibbonCategoryAction(QStringLiteral("G"), m_owner.get());
    RibbonCatSimpleAction *a = small();
    RibbonCatSimpleAction *b = small();
    group->addAction(a, -1);
    group->addAction(b, -1);
    RibbonCategory category(nullptr, *group);
    category.show();
    QPointer<QWidget> controlA = category.widget(a);
    QVERIFY(controlA);

    delete a;
    QVERIFY(controlA.isNull());
    QCOMPARE(category.categoryLayout()->count(), 1);
    category.repaint();

    delete b;
    delete group;
    QVERIFY(!category.action());
    QCOMPARE(category.categoryLayout()->count(), 0);
    category.repaint();
}

void tst_CategoryLayout::deleteCategoryActionFirst()
{
    auto *group = new RibbonCategoryAction(QStringLiteral("G"), m_owner.get());
    RibbonCatSimpleAction *a = small();
    group->addAction(a, -1);
    RibbonCategory category(nullptr, *group);
    category.show();
    delete group;
    QVERIFY(!category.action());
    QCOMPARE(category.actionRow(a), -1);
    category.repaint();
    // The member still has its control, and still goes when the member goes.
    QPointer<QWidget> control = category.widget(a);
    QVERIFY(control);
    delete a;
    QVERIFY(control.isNull());
}

void tst_CategoryLayout::deleteGroupActionFirst()
{
    auto *group = new RibbonCategoryAction(QStringLiteral("G"), m_owner.get());
    auto *strip = new RibbonCatActionGroup(m_owner.get());
    RibbonCatSimpleAction *inStrip = small();
    strip->addAction(inStrip, false);
    group->addAction(strip, -1);
    RibbonCategory category(nullptr, *group);
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
