// ZEL_TEST_DPI_SENSITIVE: the rows of the lists scale with the resolution, the tiles do not.
#include "ZelTest.h"

#include "RibbonCatMenuAction.h"
#include "RibbonCatMenuButton.h"
#include "RibbonSeparatorAction.h"
#include "RibbonSimpleAction.h"
#include "RibbonStyle.h"
#include "RibbonViewButton.h"
#include "RibbonViewPopup.h"

#include <QActionGroup>
#include <QCursor>
#include <QFrame>
#include <QGridLayout>
#include <QLineEdit>

using namespace zel;

namespace {

const QColor kOutline(QStringLiteral("#C5C5C5"));
const QColor kGutter(QStringLiteral("#E9EEEE"));
const QColor kBackground(QStringLiteral("#F9F8F7"));

const RibbonStyle &style()
{
    return RibbonApplication::theApp().ribbonStyle();
}

QIcon flatIcon(const QColor &colour)
{
    QPixmap pixmap(16, 16);
    pixmap.fill(colour);
    return QIcon(pixmap);
}

QImage grabImage(QWidget *widget)
{
    return widget->grab().toImage().convertToFormat(QImage::Format_RGB32);
}

bool shown(RibbonViewPopup &popup)
{
    popup.popup(QPoint(100, 100));
    return zelPopupShown(&popup);
}

// Owns the actions a popup is built from.
struct Actions
{
    RibbonSimpleAction *add(const QString &text, const QIcon &icon = QIcon())
    {
        return new RibbonSimpleAction(icon, text, &owner);
    }

    // One tile per character of enabled, disabled where it is '0'.
    QActionGroup *group(const QString &enabled)
    {
        auto *group = new QActionGroup(&owner);
        for (int i = 0; i < enabled.size(); ++i)
            group->addAction(add(QStringLiteral("Tile %1").arg(i), flatIcon(Qt::darkCyan)))
                ->setEnabled(enabled.at(i) == QLatin1Char('1'));
        return group;
    }

    QObject owner;
};

QStringList texts(const QList<RibbonViewButton *> &entries)
{
    QStringList result;
    for (const RibbonViewButton *entry : entries)
        result << entry->text();
    return result;
}

// The horizontal lines, in the popup's child order: the two between the sections first.
QList<QFrame *> lines(const RibbonViewPopup &popup)
{
    QList<QFrame *> result;
    for (QFrame *frame : popup.findChildren<QFrame *>(QString(), Qt::FindDirectChildrenOnly)) {
        if (frame->frameShape() == QFrame::HLine)
            result << frame;
    }
    return result;
}

} // namespace

class tst_ViewPopup : public QObject
{
    Q_OBJECT

    int m_widgets = 0;

private slots:
    void initTestCase() { qRegisterMetaType<RibbonSimpleAction *>("RibbonSimpleAction*"); }

    void init()
    {
        m_widgets = QApplication::allWidgets().size();
        // Away from where the popups open: an entry under the cursor shows the marker.
        QCursor::setPos(QPoint(790, 590));
    }

    void cleanup() { QTRY_COMPARE(zelWidgetsLeft(), m_widgets); }

    void gridWithoutGaps_data()
    {
        QTest::addColumn<QString>("enabled");
        QTest::addColumn<int>("columns");
        QTest::addColumn<QStringList>("tiles");
        QTest::addColumn<QList<QPoint>>("cells"); // (column, row) of each tile

        QTest::newRow("fifth tile starts the second row")
            << "11111" << 4 << QStringList{"Tile 0", "Tile 1", "Tile 2", "Tile 3", "Tile 4"}
            << QList<QPoint>{{0, 0}, {1, 0}, {2, 0}, {3, 0}, {0, 1}};
        QTest::newRow("a disabled tile leaves no gap")
            << "110111" << 4 << QStringList{"Tile 0", "Tile 1", "Tile 3", "Tile 4", "Tile 5"}
            << QList<QPoint>{{0, 0}, {1, 0}, {2, 0}, {3, 0}, {0, 1}};
        QTest::newRow("three columns, first and last disabled")
            << "0111110" << 3 << QStringList{"Tile 1", "Tile 2", "Tile 3", "Tile 4", "Tile 5"}
            << QList<QPoint>{{0, 0}, {1, 0}, {2, 0}, {0, 1}, {1, 1}};
        QTest::newRow("no columns counts as one")
            << "111" << 0 << QStringList{"Tile 0", "Tile 1", "Tile 2"} << QList<QPoint>{{0, 0}, {0, 1}, {0, 2}};
    }

    void gridWithoutGaps()
    {
        QFETCH(QString, enabled);
        QFETCH(int, columns);
        QFETCH(QStringList, tiles);
        QFETCH(QList<QPoint>, cells);

        Actions actions;
        QActionGroup *group = actions.group(enabled);
        group->addAction(new QAction(QStringLiteral("not a ribbon action"), &actions.owner)); // no tile
        RibbonViewPopup popup({}, {}, group, columns, true, true, false, nullptr);
        const QList<RibbonViewButton *> made = popup.buttons();
        QCOMPARE(texts(made), tiles);
        QVERIFY(shown(popup));
        auto *grid = popup.findChild<QGridLayout *>();
        for (int k = 0; k < made.size(); ++k) {
            int row = -1, column = -1, rowSpan = 0, columnSpan = 0;
            grid->getItemPosition(grid->indexOf(made[k]), &row, &column, &rowSpan, &columnSpan);
            QCOMPARE(QPoint(column, row), cells[k]);
            // 64 by 56 tiles touching each other inside the one-pixel border.
            QCOMPARE(made[k]->geometry(), QRect(1 + 64 * cells[k].x(), 1 + 56 * cells[k].y(), 64, 56));
        }
    }

    void listsAndLines()
    {
        Actions a;
        const QList<RibbonSimpleAction *> top{a.add(QStringLiteral("Print Layout")), new RibbonSeparatorAction(&a.owner),
                                              a.add(QStringLiteral("&Web Layout")), nullptr};
        const QList<RibbonSimpleAction *> bottom{a.add(QString()), new RibbonSeparatorAction(&a.owner)};
        RibbonViewPopup popup(top, bottom, a.group(QStringLiteral("11")), nullptr);
        QCOMPARE(texts(popup.buttons()), (QStringList{"Print Layout", "&Web Layout", "Tile 0", "Tile 1", ""}));
        QVERIFY(shown(popup));
        QCOMPARE(popup.size(), popup.sizeHint());
        QCOMPARE(QSize(popup.getWidgetWidth(), popup.getWidgetHeight()), popup.size());

        // Rows are 26 pixels high, scaled; a row without text is the gutter and margins.
        const RibbonViewButton *empty = popup.buttons().last();
        QCOMPARE(empty->sizeHint(), QSize(56, RibbonApplication::theApp().dpiFactor().second > 1.25 ? 39 : 26));
        QVERIFY(popup.buttons().at(1)->sizeHint().width() > 56 + 30);

        // Separators become lines starting right of the gutter, 36 pixels into the list;
        // the first one lies between the two top rows.
        const QList<QFrame *> all = lines(popup);
        QCOMPARE(all.size(), 4);
        for (const QFrame *line : all.mid(2)) {
            QCOMPARE(line->x(), 1 + 36);
            QCOMPARE(line->geometry().right(), popup.width() - 2);
        }
        QVERIFY(all[2]->y() > popup.buttons().at(0)->geometry().bottom());
        QVERIFY(all[2]->geometry().bottom() < popup.buttons().at(1)->y());
    }

    void sectionLines_data()
    {
        QTest::addColumn<bool>("top");
        QTest::addColumn<bool>("grid");
        QTest::addColumn<bool>("bottom");
        QTest::addColumn<QList<bool>>("shown"); // below the top list, below the grid
        QTest::newRow("all three") << true << true << true << QList<bool>{true, true};
        QTest::newRow("grid only") << false << true << false << QList<bool>{false, false};
        QTest::newRow("lists only") << true << false << true << QList<bool>{true, false};
        QTest::newRow("grid and bottom") << false << true << true << QList<bool>{false, true};
        QTest::newRow("top and grid") << true << true << false << QList<bool>{true, false};
    }

    // A line separates two sections that are there, never an empty one.
    void sectionLines()
    {
        QFETCH(bool, top);
        QFETCH(bool, grid);
        QFETCH(bool, bottom);
        QFETCH(QList<bool>, shown);
        Actions a;
        RibbonViewPopup popup(top ? QList<RibbonSimpleAction *>{a.add(QStringLiteral("Top"))} : QList<RibbonSimpleAction *>(),
                              bottom ? QList<RibbonSimpleAction *>{a.add(QStringLiteral("Bottom"))}
                                     : QList<RibbonSimpleAction *>(),
                              grid ? a.group(QStringLiteral("1")) : nullptr, nullptr);
        QVERIFY(::shown(popup));
        const QList<QFrame *> all = lines(popup);
        QCOMPARE((QList<bool>{all[0]->isVisible(), all[1]->isVisible()}), shown);
    }

    void entryFollowsItsAction()
    {
        Actions a;
        RibbonSimpleAction *action = a.add(QStringLiteral("Draft"), flatIcon(Qt::red));
        QFont big = action->font();
        big.setPointSize(20);
        big.setItalic(true);
        action->setFont(big);
        action->setToolTip(QStringLiteral("Draft view"));
        RibbonViewButton entry(action, true, true, false, nullptr);
        QCOMPARE(entry.toolTip(), QStringLiteral("Draft view"));
        QCOMPARE(entry.font().pointSize(), 8);
        QVERIFY(entry.font().italic());
        const int width = entry.sizeHint().width();

        action->setText(QStringLiteral("Outline view of the document"));
        action->setEnabled(false);
        QCOMPARE(entry.text(), action->text());
        QVERIFY(entry.sizeHint().width() > width);
        QVERIFY(!entry.isEnabled());

        delete action;
        QVERIFY(!entry.action());
        entry.resize(entry.sizeHint());
        entry.grab(); // paints without its action
    }

    void clicks_data()
    {
        QTest::addColumn<int>("how");
        QTest::addColumn<bool>("triggers");
        QTest::newRow("press and release") << 0 << true;
        QTest::newRow("release without press") << 1 << false;
        QTest::newRow("press on one entry, release on another") << 2 << false;
        QTest::newRow("press, release off the entry") << 3 << false;
        QTest::newRow("release carrying no button") << 4 << false;
    }

    void clicks()
    {
        QFETCH(int, how);
        QFETCH(bool, triggers);
        Actions a;
        RibbonSimpleAction *first = a.add(QStringLiteral("First"));
        RibbonSimpleAction *second = a.add(QStringLiteral("Second"));
        QPointer<RibbonViewPopup> popup = new RibbonViewPopup({first, second}, {}, nullptr, nullptr);
        popup->setAttribute(Qt::WA_DeleteOnClose);
        QVERIFY(shown(*popup));
        RibbonViewButton *one = popup->buttons().at(0);
        RibbonViewButton *two = popup->buttons().at(1);
        QSignalSpy firstTriggered(first, &QAction::triggered);
        QSignalSpy secondTriggered(second, &QAction::triggered);
        QSignalSpy buttonClicked(one, &RibbonViewButton::buttonClicked);
        const QPoint centre = one->rect().center();

        switch (how) {
        case 0:
            QTest::mouseClick(one, Qt::LeftButton, Qt::NoModifier, centre);
            break;
        case 1:
            QTest::mouseRelease(one, Qt::LeftButton, Qt::NoModifier, centre);
            break;
        case 2:
            QTest::mousePress(two, Qt::LeftButton, Qt::NoModifier, centre);
            QTest::mouseRelease(one, Qt::LeftButton, Qt::NoModifier, centre);
            break;
        case 3:
            QTest::mousePress(one, Qt::LeftButton, Qt::NoModifier, centre);
            QTest::mouseRelease(one, Qt::LeftButton, Qt::NoModifier, QPoint(centre.x(), one->height() + 5));
            break;
        default: {
            QTest::mousePress(one, Qt::LeftButton, Qt::NoModifier, centre);
            QMouseEvent release(QEvent::MouseButtonRelease, centre, Qt::NoButton, Qt::NoButton, Qt::NoModifier);
            QCoreApplication::sendEvent(one, &release);
            // That release spent the press: a later one alone does nothing either.
            QTest::mouseRelease(one, Qt::LeftButton, Qt::NoModifier, centre);
            break;
        }
        }
        QCOMPARE(firstTriggered.count(), triggers ? 1 : 0);
        QCOMPARE(secondTriggered.count(), 0);
        QCOMPARE(buttonClicked.count(), triggers ? 1 : 0);
        if (triggers) {
            QCOMPARE(buttonClicked.at(0).at(0).value<RibbonSimpleAction *>(), first);
            QTRY_VERIFY(!popup);
        } else {
            QVERIFY(popup->isVisible());
        }
    }

    void hoverMarker()
    {
        Actions a;
        RibbonViewPopup popup({a.add(QStringLiteral("First")), a.add(QStringLiteral("Second"))}, {},
                              a.group(QStringLiteral("1")), nullptr);
        QVERIFY(shown(popup));
        const QList<RibbonViewButton *> entries = popup.buttons();
        QVERIFY(!popup.hoveredButton());

        // The marker's left edge is the caption image's left column, its right edge the
        // arrow image's right column; both are opaque in their middle.
        const QColor left = style().horizontalMenuButtonCaption().toImage().pixelColor(0, 11);
        const QColor right = style().horizontalMenuButtonMenu().toImage().pixelColor(10, 11);
        QVERIFY(left.alpha() == 255 && right.alpha() == 255);
        const auto marked = [&](RibbonViewButton *entry) {
            const QImage image = grabImage(entry);
            const int y = entry->height() / 2;
            return image.pixelColor(0, y) == left.rgb() && image.pixelColor(entry->width() - 1, y) == right.rgb();
        };
        for (RibbonViewButton *entry : entries)
            QVERIFY(!marked(entry));
        for (int i = 0; i < entries.size(); ++i) {
            QTest::mouseMove(entries[i], QPoint(30, 5));
            QTRY_COMPARE(popup.hoveredButton(), entries[i]);
            QVERIFY(marked(entries[i]));
            if (i > 0)
                QVERIFY(!marked(entries[i - 1]));
        }
    }

    void checkMark()
    {
        Actions a;
        RibbonSimpleAction *plain = a.add(QStringLiteral("Plain"));
        RibbonSimpleAction *checked = a.add(QStringLiteral("Checked"));
        RibbonSimpleAction *checkedWithIcon = a.add(QStringLiteral("Checked"), flatIcon(Qt::red));
        RibbonSimpleAction *withIcon = a.add(QStringLiteral("Checked"), flatIcon(Qt::red));
        for (RibbonSimpleAction *action : {plain, checked, checkedWithIcon, withIcon})
            action->setCheckable(true);
        checked->setChecked(true);
        checkedWithIcon->setChecked(true);
        RibbonViewPopup popup({plain, checked, checkedWithIcon, withIcon}, {}, nullptr, nullptr);
        QVERIFY(shown(popup));
        const QList<RibbonViewButton *> rows = popup.buttons();
        QImage image[4];
        for (int i = 0; i < 4; ++i)
            image[i] = grabImage(rows[i]);
        const int h = rows[0]->height();
        const QRect mark(8, (h - 16) / 2, 16, 16); // a 16-pixel image centred in the 32-pixel gutter

        // Without an icon, the mark shows in the gutter of the checked row; with one, the icon.
        QVERIFY(image[0].copy(mark) != image[1].copy(mark));
        QVERIFY(image[2].copy(mark) != image[1].copy(mark));
        QCOMPARE(image[2].pixelColor(mark.center()), QColor(Qt::red));
        // The marker lies behind the gutter of a checked row, not behind its text.
        const QColor right = style().horizontalMenuButtonMenu().toImage().pixelColor(10, 11);
        QCOMPARE(image[2].pixelColor(31, h / 2), right);
        QVERIFY(image[3].pixelColor(31, h / 2) != right);
        QCOMPARE(image[2].pixelColor(rows[2]->width() - 1, h / 2), image[3].pixelColor(rows[3]->width() - 1, h / 2));
        // So does a disabled one.
        checked->setEnabled(false);
        QCOMPARE(grabImage(rows[1]).pixelColor(31, h / 2), right);
    }

    void painting_data()
    {
        QTest::addColumn<bool>("topIcons");
        QTest::addColumn<bool>("bottomIcons");
        QTest::newRow("both gutters") << true << true;
        QTest::newRow("top only") << true << false;
        QTest::newRow("bottom only") << false << true;
    }

    void painting()
    {
        QFETCH(bool, topIcons);
        QFETCH(bool, bottomIcons);
        Actions a;
        RibbonViewPopup popup({a.add(QStringLiteral("Top"))}, {a.add(QStringLiteral("Bottom"))},
                              a.group(QStringLiteral("1")), 4, topIcons, bottomIcons, false, nullptr);
        QVERIFY(shown(popup));
        const QImage image = grabImage(&popup);
        QCOMPARE(image.pixelColor(0, 0), kOutline);
        QCOMPARE(image.pixelColor(popup.width() - 1, popup.height() - 1), kOutline);
        const int topY = popup.buttons().first()->y() + 2;
        const int bottomY = popup.buttons().last()->y() + 2;
        QCOMPARE(image.pixelColor(3, topY), topIcons ? kGutter : kBackground);
        QCOMPARE(image.pixelColor(1 + 32, topY), topIcons ? kOutline : kBackground);
        QCOMPARE(image.pixelColor(3, bottomY), bottomIcons ? kGutter : kBackground);
        QCOMPARE(image.pixelColor(1 + 32, bottomY), bottomIcons ? kOutline : kBackground);
        QCOMPARE(image.pixelColor(popup.width() - 4, topY), kBackground);
    }

    // A view-popup menu command opens the view popup of its lists and group; the focus
    // comes back when it closes, and a thousand openings leave nothing behind.
    void openedByAMenuCommand()
    {
        RibbonCatMenuAction layout(QStringLiteral("Layout"), RibbonCatMenuAction::MenuTypeButton,
                                   RibbonCatMenuAction::MenuSizeLarge, RibbonCatMenuAction::PopupView, nullptr);
        Actions a;
        layout.addTopAction(a.add(QStringLiteral("Print Layout")));
        RibbonSimpleAction *options = a.add(QStringLiteral("Options..."));
        layout.addBottomAction(options);
        layout.iconActionGroup()->addAction(a.add(QStringLiteral("Page")));
        ZelControlHost<RibbonCatMenuButton> host(layout);
        QVERIFY(host.exposed());
        RibbonCatMenuButton *button = host.button;
        QLineEdit *edit = host.edit;

        const auto open = [button] {
            QTest::mousePress(button, Qt::LeftButton, Qt::NoModifier, QPoint(5, 5));
            auto *popup = qobject_cast<RibbonViewPopup *>(QApplication::activePopupWidget());
            return zelPopupShown(popup) ? popup : nullptr;
        };
        QPointer<RibbonViewPopup> popup = open();
        QVERIFY(popup);
        QCOMPARE(texts(popup->buttons()), (QStringList{"Print Layout", "Page", "Options..."}));
        QCOMPARE(popup->pos(), button->mapToGlobal(QPoint(0, button->height())));
        QSignalSpy triggered(options, &QAction::triggered);
        QTest::mouseClick(popup->buttons().last(), Qt::LeftButton);
        QCOMPARE(triggered.count(), 1);
        QTRY_VERIFY(!popup);
        QTRY_COMPARE(QApplication::focusWidget(), edit);

        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        const int widgets = QApplication::allWidgets().size();
        for (int i = 0; i < 1000; ++i) {
            popup = open();
            QVERIFY(popup);
            QTest::keyClick(popup, Qt::Key_Escape);
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            QVERIFY(!popup);
        }
        QCOMPARE(QApplication::allWidgets().size(), widgets);
        QCOMPARE(QApplication::focusWidget(), edit);
    }

    // An entry whose action died while the popup is open still closes it, and triggers nothing.
    void actionDestroyedWhileOpen()
    {
        Actions a;
        RibbonSimpleAction *gone = a.add(QStringLiteral("Gone"));
        RibbonViewPopup popup({gone}, {}, a.group(QStringLiteral("1")), nullptr);
        QVERIFY(shown(popup));
        delete gone;
        RibbonViewButton *entry = popup.buttons().at(0);
        QVERIFY(!entry->action());
        QTest::mouseClick(entry, Qt::LeftButton);
        QTRY_VERIFY(!popup.isVisible());
    }
};

ZEL_TEST_MAIN(tst_ViewPopup)
#include "tst_viewpopup.moc"
