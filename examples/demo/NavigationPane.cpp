#include "NavigationPane.h"

#include "RibbonChildWindow.h"
#include "RibbonWindow.h"
#include "RibbonWindowBorder.h"

#include <QCloseEvent>
#include <QListWidget>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextEdit>
#include <QTimer>
#include <QVBoxLayout>

namespace {

// A frameless window whose closing is announced, with the shadow border of the
// library's secondary windows.
class FloatingWindow : public zel::RibbonWindow
{
    Q_OBJECT
public:
    explicit FloatingWindow(QWidget *owner)
        : RibbonWindow(owner, Qt::Window | Qt::FramelessWindowHint)
    {
        new zel::RibbonWindowBorder(this, false);
    }

signals:
    void closing();

protected:
    void closeEvent(QCloseEvent *event) override
    {
        emit closing();
        RibbonWindow::closeEvent(event);
    }
};

} // namespace

NavigationPane::NavigationPane(QWidget *dockParent)
    : QObject(dockParent)
{
    m_docked = new zel::RibbonChildWindow(dockParent, true);
    m_docked->setWindowTitle(tr("Navigation"));
    m_docked->setObjectName(QStringLiteral("navigationPane"));
    auto *layout = new QVBoxLayout(m_docked);
    layout->setContentsMargins(4, 4, 4, 4);
    m_list = new QListWidget(m_docked);
    m_list->setFrameShape(QFrame::NoFrame);
    m_list->setTextElideMode(Qt::ElideRight);
    m_list->setToolTip(tr("Click a heading to go there"));
    layout->addWidget(m_list);
    m_docked->setFixedWidth(230);

    m_refresh = new QTimer(this);
    m_refresh->setSingleShot(true);
    m_refresh->setInterval(150); // typing runs together into one refresh
    connect(m_refresh, &QTimer::timeout, this, &NavigationPane::refresh);

    connect(m_list, &QListWidget::itemClicked, this, [this](QListWidgetItem *item) {
        if (!m_edit)
            return;
        QTextCursor cursor(m_edit->document());
        cursor.setPosition(qMin(item->data(Qt::UserRole).toInt(), m_edit->document()->characterCount() - 1));
        m_edit->setTextCursor(cursor);
        m_edit->ensureCursorVisible();
        m_edit->window()->activateWindow();
        m_edit->setFocus();
    });
    connect(m_docked, &zel::RibbonChildWindow::closed, this, [this] {
        m_shown = false;
        emit shownChanged(false);
    });
    connect(m_docked, &zel::RibbonChildWindow::undocking, this, &NavigationPane::undock);
}

NavigationPane::~NavigationPane()
{
    delete m_floating;
}

zel::RibbonChildWindow *NavigationPane::dockedWindow() const
{
    return m_docked;
}

zel::RibbonWindow *NavigationPane::floatingWindow() const
{
    return m_floating;
}

QListWidget *NavigationPane::headings() const
{
    return m_list;
}

void NavigationPane::setEditor(QTextEdit *edit)
{
    for (const QMetaObject::Connection &connection : qAsConst(m_editConnections))
        disconnect(connection);
    m_editConnections.clear();
    m_edit = edit;
    if (edit) {
        m_editConnections << connect(edit->document(), &QTextDocument::contentsChanged, m_refresh,
                                     QOverload<>::of(&QTimer::start))
                          << connect(edit, &QTextEdit::cursorPositionChanged, this, &NavigationPane::followCursor);
    }
    refresh();
}

// One row per heading, indented by its level; the row keeps where its block starts.
void NavigationPane::refresh()
{
    m_refresh->stop();
    m_list->clear();
    if (!m_edit)
        return;
    for (QTextBlock block = m_edit->document()->begin(); block.isValid(); block = block.next()) {
        const int level = block.blockFormat().headingLevel();
        const QString text = block.text().simplified();
        if (level <= 0 || text.isEmpty())
            continue;
        auto *item = new QListWidgetItem(QString(4 * (level - 1), QLatin1Char(' ')) + text, m_list);
        item->setData(Qt::UserRole, block.position());
        if (level == 1) {
            QFont bold = m_list->font();
            bold.setBold(true);
            item->setFont(bold);
        }
    }
    followCursor();
}

// Marks the heading of the section the cursor is in.
void NavigationPane::followCursor()
{
    if (!m_edit)
        return;
    const int position = m_edit->textCursor().position();
    QListWidgetItem *section = nullptr;
    for (int row = 0; row < m_list->count(); ++row) {
        if (m_list->item(row)->data(Qt::UserRole).toInt() <= position)
            section = m_list->item(row);
    }
    const QSignalBlocker quiet(m_list);
    m_list->setCurrentItem(section);
    if (!section)
        m_list->clearSelection();
}

bool NavigationPane::isShown() const
{
    return m_shown;
}

void NavigationPane::setShown(bool shown)
{
    if (shown == m_shown)
        return;
    m_shown = shown;
    if (shown) {
        m_docked->show();
    } else {
        if (isFloating())
            dock();
        m_docked->hide();
    }
    emit shownChanged(shown);
}

bool NavigationPane::isFloating() const
{
    return m_floating && m_list->parentWidget() == m_floating;
}

void NavigationPane::moveListTo(QWidget *holder)
{
    holder->layout()->addWidget(m_list);
    m_list->show();
}

void NavigationPane::undock()
{
    if (isFloating())
        return;
    if (!m_floating) {
        auto *window = new FloatingWindow(m_docked->window());
        window->setWindowTitle(tr("Navigation"));
        // The window keeps its caption and border out of the layout's rectangle itself.
        auto *layout = new QVBoxLayout(window);
        layout->setContentsMargins(2, 2, 2, 2);
        connect(window, &FloatingWindow::closing, this, &NavigationPane::dock);
        m_floating = window;
    }
    const QPoint at = m_docked->mapToGlobal(QPoint(24, 0));
    m_floating->setGeometry(QRect(at, QSize(qMax(260, m_docked->width()), qMax(360, m_docked->height()))));
    moveListTo(m_floating);
    m_docked->hide();
    m_floating->show();
    m_floating->raise();
}

// Back into the side panel; shown there unless the pane was hidden meanwhile.
void NavigationPane::dock()
{
    if (!isFloating())
        return;
    moveListTo(m_docked);
    m_floating->hide();
    if (m_shown)
        m_docked->show();
}

#include "NavigationPane.moc"
