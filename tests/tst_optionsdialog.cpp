// Button widths follow the text, measured at 96 and 144 DPI: ZEL_TEST_DPI_SENSITIVE
#include "PanelButtonChecks.h"
#include "ZelTest.h"

#include "RibbonApplication.h"
#include "RibbonMainWindow.h"
#include "RibbonOptionsButton.h"
#include "RibbonOptionsDialog.h"
#include "RibbonOptionsPage.h"
#include "RibbonStyle.h"

#include <QButtonGroup>
#include <QDialogButtonBox>
#include <QPointer>
#include <QPushButton>
#include <QStackedWidget>

#include <memory>

using namespace zel;

namespace {

// Writes who was asked to accept or reject, in order.
class RecordingDialog : public RibbonOptionsDialog
{
public:
    RecordingDialog(RibbonMainWindow &window, QStringList &log)
        : RibbonOptionsDialog(window)
        , m_log(log)
    {
    }

    void accept() override
    {
        m_log.append(QStringLiteral("dialog accept"));
        RibbonOptionsDialog::accept();
    }
    void reject() override
    {
        m_log.append(QStringLiteral("dialog reject"));
        RibbonOptionsDialog::reject();
    }

private:
    QStringList &m_log;
};

class RecordingPage : public RibbonOptionsPage
{
    Q_OBJECT
public:
    RecordingPage(RibbonOptionsDialog &dialog, const QString &title, QStringList &log)
        : RibbonOptionsPage(dialog)
        , m_log(log)
    {
        setWindowTitle(title);
    }

public slots:
    void accept() override { m_log.append(windowTitle() + QStringLiteral(" accept")); }
    void reject() override { m_log.append(windowTitle() + QStringLiteral(" reject")); }

private:
    QStringList &m_log;
};

} // namespace

class tst_OptionsDialog : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void construction();
    void setCurrentPage_data();
    void setCurrentPage();
    void strangersAndRemovalsKeepEveryPage();
    void closingReachesDialogThenPages_data();
    void closingReachesDialogThenPages();
    void buttonSizeHint_data();
    void buttonSizeHint();
    void buttonLooks();

private:
    RecordingPage *addPage(const QString &title);
    QList<RibbonOptionsButton *> buttons() const { return zelButtonsTopDown<RibbonOptionsButton>(m_dialog); }
    QList<RibbonOptionsButton *> checkedButtons() const { return zelCheckedButtons<RibbonOptionsButton>(m_dialog); }
    QWidget *currentPage() const { return zelCurrentPage(m_dialog); }
    QPushButton *boxButton(QDialogButtonBox::ButtonRole role) const;

    std::unique_ptr<RibbonMainWindow> m_window;
    QStringList m_log;
    RecordingDialog *m_dialog = nullptr;
    QList<RecordingPage *> m_pages;
};

void tst_OptionsDialog::init()
{
    m_window.reset(new RibbonMainWindow);
    m_log.clear();
    m_dialog = new RecordingDialog(*m_window, m_log);
    m_pages.clear();
}

void tst_OptionsDialog::cleanup()
{
    m_window.reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

RecordingPage *tst_OptionsDialog::addPage(const QString &title)
{
    auto *page = new RecordingPage(*m_dialog, title, m_log);
    m_dialog->addOptionsPage(page);
    m_pages.append(page);
    return page;
}

QPushButton *tst_OptionsDialog::boxButton(QDialogButtonBox::ButtonRole role) const
{
    auto *box = m_dialog->findChild<QDialogButtonBox *>();
    for (QAbstractButton *button : box->buttons()) {
        if (box->buttonRole(button) == role)
            return qobject_cast<QPushButton *>(button);
    }
    return nullptr;
}

void tst_OptionsDialog::construction()
{
    QCOMPARE(m_dialog->parentWidget(), m_window.get());
    QCOMPARE(&m_dialog->mainWindow(), m_window.get());
    QCOMPARE(m_dialog->size(), QSize(640, 398));
    QCOMPARE(m_dialog->windowTitle(), QStringLiteral("Zandor Options"));
    QVERIFY(!m_dialog->windowFlags().testFlag(Qt::WindowContextHelpButtonHint));
    QVERIFY(m_dialog->isWindow());

    auto *box = m_dialog->findChild<QDialogButtonBox *>();
    QVERIFY(box);
    QCOMPARE(box->orientation(), Qt::Horizontal);
    QCOMPARE(box->buttons().size(), 2);
    QCOMPARE(boxButton(QDialogButtonBox::AcceptRole)->text(), QStringLiteral("OK"));
    QCOMPARE(boxButton(QDialogButtonBox::RejectRole)->text(), QStringLiteral("Cancel"));
    QVERIFY(m_dialog->findChild<QButtonGroup *>()->exclusive());

    // The page column at the left of the pages, the box at the bottom.
    addPage(QStringLiteral("General"));
    m_dialog->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_dialog));
    const QRect stack = m_dialog->findChild<QStackedWidget *>()->geometry();
    const QRect button = buttons().first()->geometry();
    QVERIFY(button.right() < stack.left());
    QCOMPARE(button.top(), stack.top() + 1);
    QVERIFY(box->geometry().top() > stack.bottom());

    auto *page = m_pages.first();
    QCOMPARE(&page->dialog(), static_cast<RibbonOptionsDialog *>(m_dialog));
    QCOMPARE(page->palette().color(QPalette::Inactive, QPalette::Window), QColor(Qt::white));
    QCOMPARE(page->palette().color(QPalette::Disabled, QPalette::Window), QColor(Qt::white));
}

void tst_OptionsDialog::setCurrentPage_data()
{
    QTest::addColumn<int>("target"); // index of a page, -1 never added, -2 null
    QTest::addColumn<int>("expected");
    QTest::newRow("second") << 1 << 1;
    QTest::newRow("third") << 2 << 2;
    QTest::newRow("current") << 0 << 0;
    QTest::newRow("never added") << -1 << 0;
    QTest::newRow("null") << -2 << 0;
}

void tst_OptionsDialog::setCurrentPage()
{
    QFETCH(int, target);
    QFETCH(int, expected);
    // The first page added is current; later ones leave it so.
    QCOMPARE(currentPage(), nullptr);
    for (const char *title : {"General", "View", "Advanced"})
        addPage(QString::fromLatin1(title));
    QCOMPARE(currentPage(), m_pages.at(0));
    QStringList texts;
    for (RibbonOptionsButton *button : buttons())
        texts.append(button->text());
    QCOMPARE(texts, (QStringList{"General", "View", "Advanced"}));
    RecordingPage stranger(*m_dialog, QStringLiteral("Stranger"), m_log);
    RibbonOptionsPage *page = target >= 0 ? m_pages.at(target) : target == -1 ? &stranger : nullptr;

    QSignalSpy clicked(m_dialog->findChild<QButtonGroup *>(), SIGNAL(buttonClicked(QAbstractButton*)));
    m_dialog->setCurrentPage(page);
    QCOMPARE(currentPage(), m_pages.at(expected));
    QCOMPARE(checkedButtons(), QList<RibbonOptionsButton *>{buttons().at(expected)});
    QCOMPARE(clicked.count(), 0); // checked, not clicked
    QVERIFY(m_log.isEmpty());
}

// Pages are never removed, and a page added twice, a null one or one of another dialog is
// ignored: each page hears OK exactly once, the current page stays.
void tst_OptionsDialog::strangersAndRemovalsKeepEveryPage()
{
    RecordingPage *general = addPage(QStringLiteral("General"));
    addPage(QStringLiteral("View"));
    m_dialog->addOptionsPage(general);
    m_dialog->addOptionsPage(nullptr);
    RibbonMainWindow otherWindow;
    RecordingDialog other(otherWindow, m_log);
    auto *foreign = new RecordingPage(other, QStringLiteral("Foreign"), m_log);
    m_dialog->addOptionsPage(foreign);
    QCOMPARE(foreign->parentWidget(), &other);
    m_dialog->setCurrentPage(m_pages.at(1));
    m_dialog->removeOptionsPage(m_pages.at(1));
    m_dialog->removeOptionsPage(m_pages.at(0));
    m_dialog->removeOptionsPage(nullptr);
    QCOMPARE(buttons().size(), 2);
    QCOMPARE(m_dialog->findChild<QStackedWidget *>()->count(), 2);
    QCOMPARE(currentPage(), m_pages.at(1));
    QCOMPARE(checkedButtons(), QList<RibbonOptionsButton *>{buttons().at(1)});
    boxButton(QDialogButtonBox::AcceptRole)->click();
    QCOMPARE(m_log, (QStringList{"dialog accept", "General accept", "View accept"}));
}

void tst_OptionsDialog::closingReachesDialogThenPages_data()
{
    QTest::addColumn<int>("how");
    QTest::addColumn<bool>("pagesHear");
    QTest::newRow("OK") << 0 << true;
    QTest::newRow("Cancel") << 1 << true;
    QTest::newRow("Escape") << 2 << false;
    QTest::newRow("close") << 3 << false;
}

// OK and Cancel reach the dialog first, then each page in the order the pages were added
// (not the order of the buttons on screen, nor the current page first); Escape and
// close() reach only the dialog.
void tst_OptionsDialog::closingReachesDialogThenPages()
{
    QFETCH(int, how);
    QFETCH(bool, pagesHear);
    for (const char *title : {"General", "View", "Advanced"})
        addPage(QString::fromLatin1(title));
    m_dialog->setCurrentPage(m_pages.at(2));
    m_dialog->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_dialog));
    if (how == 0 || how == 1)
        QTest::mouseClick(boxButton(how == 0 ? QDialogButtonBox::AcceptRole : QDialogButtonBox::RejectRole),
                          Qt::LeftButton);
    else if (how == 2)
        QTest::keyClick(m_dialog, Qt::Key_Escape);
    else
        m_dialog->close();
    const QString verb = how == 0 ? QStringLiteral(" accept") : QStringLiteral(" reject");
    QStringList expected{QStringLiteral("dialog") + verb};
    if (pagesHear) {
        for (const char *title : {"General", "View", "Advanced"})
            expected << QLatin1String(title) + verb;
    }
    QCOMPARE(m_log, expected);
    QCOMPARE(m_dialog->result(), how == 0 ? int(QDialog::Accepted) : int(QDialog::Rejected));
    QVERIFY(!m_dialog->isVisible());
}

void tst_OptionsDialog::buttonSizeHint_data()
{
    PanelButtonChecks::addSizeHintRows();
}

void tst_OptionsDialog::buttonSizeHint()
{
    QFETCH(QString, text);
    addPage(text);
    PanelButtonChecks::verifySizeHint(*buttons().first());
}

// The dialog's buttons show a checked page in frame 1 and a hovered one in frame 0;
// at rest only the text.
void tst_OptionsDialog::buttonLooks()
{
    addPage(QString());
    addPage(QString());
    m_dialog->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_dialog));
    QTest::mouseMove(m_dialog, QPoint(630, 5));
    RibbonOptionsButton *checked = buttons().at(0);
    RibbonOptionsButton *other = buttons().at(1);
    QTRY_VERIFY(!other->underMouse());

    using namespace PanelButtonChecks;
    QVERIFY(drawsNothing(*other));
    QCOMPARE(centre(*checked), frameCentre(1));
    // The nine-slice keeps the frame's 2-pixel corners: the top-left pixel is the sheet's.
    const QImage sheet = RibbonApplication::theApp().ribbonStyle().mainPanelButton().toImage().convertToFormat(
        QImage::Format_ARGB32);
    QCOMPARE(grabArgb(*checked).pixel(1, 1), sheet.pixel(1, 23 + 1));

    QTest::mouseMove(other, QPoint(5, 5));
    QTRY_VERIFY(other->underMouse());
    QCOMPARE(centre(*other), frameCentre(0));
    QVERIFY(frameCentre(0) != frameCentre(1));
}

ZEL_TEST_MAIN(tst_OptionsDialog)
#include "tst_optionsdialog.moc"
