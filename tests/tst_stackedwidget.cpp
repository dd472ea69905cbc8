// Button widths follow the text, measured at 96 and 144 DPI: ZEL_TEST_DPI_SENSITIVE
#include "PanelButtonChecks.h"
#include "ZelTest.h"

#include "RibbonApplication.h"
#include "RibbonStackedButton.h"
#include "RibbonStackedWidget.h"
#include "RibbonStyle.h"

#include <QButtonGroup>
#include <QLabel>
#include <QPointer>
#include <QStackedWidget>

#include <memory>

using namespace zel;

namespace {

const RibbonStyle &style()
{
    return RibbonApplication::theApp().ribbonStyle();
}

} // namespace

class tst_StackedWidget : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void firstPageIsCurrent();
    void buttonsShowTheirPages();
    void strangersChangeNothing();
    void deletedPageTakesItsButton();
    void buttonSizeHint_data();
    void buttonSizeHint();
    void buttonLooks();
    void panelFrames();

private:
    QWidget *addPage(const QString &text);
    QList<RibbonStackedButton *> buttons() const { return zelButtonsTopDown<RibbonStackedButton>(m_widget.get()); }
    QList<RibbonStackedButton *> checkedButtons() const { return zelCheckedButtons<RibbonStackedButton>(m_widget.get()); }
    QWidget *currentPage() const { return zelCurrentPage(m_widget.get()); }

    std::unique_ptr<RibbonStackedWidget> m_widget;
    QList<QWidget *> m_pages;
};

void tst_StackedWidget::init()
{
    m_widget.reset(new RibbonStackedWidget);
    m_widget->resize(300, 400);
    m_pages.clear();
}

void tst_StackedWidget::cleanup()
{
    m_widget.reset();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

QWidget *tst_StackedWidget::addPage(const QString &text)
{
    auto *page = new QLabel(text);
    m_widget->addItem(page, text);
    m_pages.append(page);
    return page;
}

void tst_StackedWidget::firstPageIsCurrent()
{
    QCOMPARE(currentPage(), nullptr);
    QWidget *first = addPage(QStringLiteral("Information"));
    QCOMPARE(currentPage(), first);
    QCOMPARE(checkedButtons().size(), 1);
    QCOMPARE(checkedButtons().first()->text(), QStringLiteral("Information"));

    addPage(QStringLiteral("Statistics"));
    addPage(QStringLiteral("Shortcuts"));
    QCOMPARE(currentPage(), first);
    QCOMPARE(checkedButtons().size(), 1);
    QCOMPARE(checkedButtons().first()->text(), QStringLiteral("Information"));

    RibbonStackedButton *button = buttons().first();
    QVERIFY(button->isCheckable());
    QCOMPARE(&button->stackedWidget(), m_widget.get());
    QCOMPARE(button->sizePolicy().horizontalPolicy(), QSizePolicy::Minimum);
    QCOMPARE(button->sizePolicy().verticalPolicy(), QSizePolicy::Fixed);
}

void tst_StackedWidget::buttonsShowTheirPages()
{
    for (const char *name : {"One", "Two", "Three"})
        addPage(QString::fromLatin1(name));
    m_widget->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_widget.get()));
    const QList<RibbonStackedButton *> list = buttons();
    QCOMPARE(list.size(), 3);
    QCOMPARE(list.at(2)->text(), QStringLiteral("Three"));
    // The buttons stand under the pages.
    QVERIFY(list.first()->y() > m_widget->findChild<QStackedWidget *>()->geometry().bottom());

    QTest::mouseClick(list.at(2), Qt::LeftButton);
    QCOMPARE(currentPage(), m_pages.at(2));
    QCOMPARE(checkedButtons(), QList<RibbonStackedButton *>{list.at(2)});
    QTest::mouseClick(list.at(2), Qt::LeftButton); // stays checked
    QCOMPARE(checkedButtons(), QList<RibbonStackedButton *>{list.at(2)});

    m_widget->setCurrentWidget(m_pages.at(1));
    QCOMPARE(currentPage(), m_pages.at(1));
    QCOMPARE(checkedButtons(), QList<RibbonStackedButton *>{list.at(1)});
}

// A page never added, a null one or one added again: no current page change, no new button.
void tst_StackedWidget::strangersChangeNothing()
{
    QWidget *one = addPage(QStringLiteral("One"));
    addPage(QStringLiteral("Two"));
    m_widget->setCurrentWidget(m_pages.at(1));
    QLabel stranger(QStringLiteral("Stranger"));
    m_widget->setCurrentWidget(&stranger);
    m_widget->setCurrentWidget(nullptr);
    m_widget->addItem(one, QStringLiteral("Again"));
    m_widget->addItem(nullptr, QStringLiteral("Nothing"));
    QCOMPARE(currentPage(), m_pages.at(1));
    QCOMPARE(checkedButtons(), QList<RibbonStackedButton *>{buttons().at(1)});
    QVERIFY(!stranger.parent());
    QCOMPARE(buttons().size(), 2);
    QCOMPARE(m_widget->findChild<QStackedWidget *>()->count(), 2);
    QCOMPARE(m_widget->findChild<QButtonGroup *>()->buttons().size(), 2);
}

// A host that deletes a page loses its button too; the page shown next keeps its
// button checked.
void tst_StackedWidget::deletedPageTakesItsButton()
{
    for (const char *name : {"One", "Two", "Three"})
        addPage(QString::fromLatin1(name));
    m_widget->setCurrentWidget(m_pages.at(1));
    delete m_pages.at(0);
    QCOMPARE(buttons().size(), 2);
    QCOMPARE(checkedButtons(), QList<RibbonStackedButton *>{buttons().at(0)});

    delete m_pages.at(1);
    QCOMPARE(buttons().size(), 1);
    QCOMPARE(currentPage(), m_pages.at(2));
    QCOMPARE(checkedButtons(), QList<RibbonStackedButton *>{buttons().at(0)});
    QCOMPARE(buttons().at(0)->text(), QStringLiteral("Three"));

    // The deleted page is unknown from now on.
    m_widget->setCurrentWidget(m_pages.at(1));
    QCOMPARE(currentPage(), m_pages.at(2));

    // The page the group now holds alone again becomes current when added first.
    delete m_pages.at(2);
    QCOMPARE(buttons().size(), 0);
    QWidget *fresh = addPage(QStringLiteral("Fresh"));
    QCOMPARE(currentPage(), fresh);
    QCOMPARE(checkedButtons().size(), 1);
}

void tst_StackedWidget::buttonSizeHint_data()
{
    PanelButtonChecks::addSizeHintRows();
}

void tst_StackedWidget::buttonSizeHint()
{
    QFETCH(QString, text);
    addPage(text);
    PanelButtonChecks::verifySizeHint(*buttons().first());
}

// An unchecked button at rest draws its text only; hovered it takes frame 1 of
// mainPanelButton, checked frame 2.
void tst_StackedWidget::buttonLooks()
{
    addPage(QString());
    addPage(QString());
    m_widget->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_widget.get()));
    QTest::mouseMove(m_widget.get(), QPoint(1, 1));
    RibbonStackedButton *checked = buttons().at(0);
    RibbonStackedButton *other = buttons().at(1);
    QTRY_VERIFY(!other->underMouse());
    QVERIFY(checked->isChecked());

    using namespace PanelButtonChecks;
    QVERIFY(drawsNothing(*other));
    QCOMPARE(centre(*checked), frameCentre(2));

    QTest::mouseMove(other, QPoint(5, 5));
    QTRY_VERIFY(other->underMouse());
    QCOMPARE(centre(*other), frameCentre(1));
    QVERIFY(frameCentre(1) != frameCentre(2));

    // Text colour by the enabled state.
    other->setText(QStringLiteral("Statistics"));
    QTest::mouseMove(m_widget.get(), QPoint(1, 1));
    QTRY_VERIFY(!other->underMouse());
    auto inks = [](QWidget *button) {
        QSet<QRgb> found;
        const QImage image = grabArgb(*button);
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                if (qAlpha(image.pixel(x, y)) == 255)
                    found.insert(image.pixel(x, y));
        return found;
    };
    QVERIFY(inks(other).contains(style().highlightedCategoryTextColor().rgb()));
    other->setEnabled(false);
    QVERIFY(inks(other).contains(style().disabledCategoryTextColor().rgb()));
    QVERIFY(!inks(other).contains(style().highlightedCategoryTextColor().rgb()));
}

// The buttons in a white box with a grey outline, the pages in a grey frame.
void tst_StackedWidget::panelFrames()
{
    addPage(QStringLiteral("One"));
    m_widget->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_widget.get()));
    const QRect stack = m_widget->findChild<QStackedWidget *>()->geometry();
    const QRect button = buttons().first()->geometry();
    const QImage image = m_widget->grab().toImage().convertToFormat(QImage::Format_RGB32);
    const QColor grey(Qt::gray);
    QCOMPARE(image.pixelColor(stack.left() - 1, stack.center().y()), grey);
    QCOMPARE(image.pixelColor(stack.center().x(), stack.top() - 1), grey);
    QCOMPARE(image.pixelColor(stack.right() + 1, stack.center().y()), grey);
    // Between the box's outline and the button: the box's white (the layout's margin of 1).
    QCOMPARE(image.pixelColor(button.left() - 1, button.center().y()), QColor(Qt::white));
    QCOMPARE(image.pixelColor(button.left() - 2, button.center().y()), grey);
}

ZEL_TEST_MAIN(tst_StackedWidget)
#include "tst_stackedwidget.moc"
