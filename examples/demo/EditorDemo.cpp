#include "EditorDemo.h"

#include "DemoIcons.h"
#include "DemoStyle.h"
#include "DocumentInfoPane.h"
#include "EditorDemoIcons.h"
#include "EditorDemoPickers.h"
#include "EditorGalleries.h"
#include "EditorOptions.h"
#include "NavigationPane.h"

#include "BackstageListModel.h"
#include "BackstageView.h"
#include "BackstageWelcomeScreen.h"
#include "RibbonApplication.h"
#include "RibbonCatActionGroup.h"
#include "RibbonCatCheckBoxAction.h"
#include "RibbonCatComboAction.h"
#include "RibbonCatFontFamilyAction.h"
#include "RibbonCatMenuAction.h"
#include "RibbonCatSimpleAction.h"
#include "RibbonChildWindow.h"
#include "RibbonCategoriesPanelAction.h"
#include "RibbonCategoryAction.h"
#include "RibbonContextCategoryPanel.h"
#include "RibbonContextCategoryPanelAction.h"
#include "RibbonMenuBar.h"
#include "RibbonOptionsDialog.h"
#include "RibbonPercAction.h"
#include "RibbonQuickAccessBar.h"
#include "RibbonSimpleAction.h"
#include "RibbonStatusBar.h"
#include "RibbonTabBar.h"

#include <QAbstractItemDelegate>
#include <QApplication>
#include <QBuffer>
#include <QClipboard>
#include <QCloseEvent>
#include <QDateTime>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QInputDialog>
#include <QLabel>
#include <QLinearGradient>
#include <QListView>
#include <QMessageBox>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QScrollBar>
#include <QSettings>
#include <QShortcut>
#include <QStackedWidget>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocumentWriter>
#include <QTextEdit>
#include <QTextList>
#include <QTextStream>
#include <QTextTable>
#include <QToolButton>
#include <QUrl>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>

using namespace zel;

namespace {

const QString AppName = QStringLiteral("Writer");
const QString KeyRecent = QStringLiteral("editor/recentDocuments");
const QString KeyHiddenQuick = QStringLiteral("editor/hiddenQuickAccess");

const QList<int> FontSizes = {8, 9, 10, 11, 12, 14, 16, 18, 20, 22, 24, 28, 36, 48, 72};

// The text font of new documents, at 100 %.
QFont documentFont()
{
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPointSize(11);
    return font;
}

// Full-width tables with thin blue-grey rules, as inserted and in the sample report.
QTextTableFormat documentTableFormat(qreal cellPadding)
{
    QTextTableFormat f;
    f.setCellPadding(cellPadding);
    f.setCellSpacing(0);
    f.setBorder(1);
    f.setBorderBrush(QColor(0xA6, 0xB8, 0xD2));
    f.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
    f.setWidth(QTextLength(QTextLength::PercentageLength, 100));
    return f;
}

// The document area: a grey desk with the text as a white page of fixed width.
class PageEdit : public QTextEdit
{
public:
    explicit PageEdit(QWidget *parent)
        : QTextEdit(parent)
    {
        setFrameShape(QFrame::NoFrame);
        setAutoFillBackground(true);
        // Paper and ink keep their colours in either palette of the ribbon; the desk
        // around the page follows it.
        followRibbonStyle(this, [this](const zel::RibbonStyle &style) {
            QPalette pal = palette();
            pal.setColor(QPalette::Base, Qt::white);
            pal.setColor(QPalette::Text, Qt::black);
            pal.setColor(QPalette::Window, style.separatorColor());
            setPalette(pal);
        });
        viewport()->setAutoFillBackground(true);
        updatePage();
    }

    // Zoom as a percentage of the 100 % text size.
    void setZoom(int percent)
    {
        if (percent == m_zoom)
            return;
        m_zoom = percent;
        QFont f = font();
        f.setPointSizeF(m_baseSize * m_zoom / 100.0);
        setFont(f);
        relayout();
    }
    int zoom() const { return m_zoom; }
    // A page column of fixed width (print layout) or text across the window (web layout).
    void setPrintLayout(bool on)
    {
        if (on == m_printLayout)
            return;
        m_printLayout = on;
        relayout();
    }
    void setBaseSize(qreal points)
    {
        m_baseSize = points;
        QFont f = font();
        f.setPointSizeF(m_baseSize * m_zoom / 100.0);
        setFont(f);
        relayout();
    }

    // The page margins follow the window, so they must not hold the window wide.
    QSize minimumSizeHint() const override { return QSize(160, 120); }
    QSize sizeHint() const override { return QSize(760, 480); }

protected:
    void resizeEvent(QResizeEvent *event) override
    {
        updatePage();
        QTextEdit::resizeEvent(event);
    }

private:
    void relayout()
    {
        updatePage();
        QResizeEvent again(size(), size());
        QTextEdit::resizeEvent(&again);
    }

    void updatePage()
    {
        // A page column that grows with the zoom, centred on the grey desk.
        const int pageWidth = int(std::lround(760 * m_zoom / 100.0));
        const int side =
            m_printLayout ? qMax(0, (width() - verticalScrollBar()->sizeHint().width() - pageWidth) / 2) : 0;
        setViewportMargins(side, 0, side, 0);
        // The margin is a format change of the document, which would count as an edit.
        const bool modified = document()->isModified();
        document()->setDocumentMargin(qMax(16, 56 * m_zoom / 100));
        document()->setModified(modified);
    }

    int m_zoom = 100;
    qreal m_baseSize = 11;
    bool m_printLayout = true;
};

// Rows of the Open page's recent list: name, folder and a pin at the right.
class RecentDelegate : public QAbstractItemDelegate
{
public:
    using QAbstractItemDelegate::QAbstractItemDelegate;

    static QRect pinRect(const QRect &row) { return QRect(row.right() - 34, row.center().y() - 10, 20, 20); }

    void paint(QPainter *p, const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        const auto entry = index.data(Qt::UserRole).value<QSharedPointer<BackstageListItem>>();
        if (!entry)
            return;
        p->save();
        p->setRenderHint(QPainter::Antialiasing);
        const zel::RibbonStyle &style = zel::RibbonApplication::theApp().ribbonStyle();
        if (entry->isSeparator()) {
            const int y = option.rect.center().y();
            p->setPen(style.backstageSeparatorColor());
            p->drawLine(option.rect.left() + 8, y, option.rect.right() - 8, y);
            p->restore();
            return;
        }
        if (option.state & QStyle::State_MouseOver)
            p->fillRect(option.rect, style.backstageBlueHoverColor());
        const QFileInfo info(entry->path());
        p->drawPixmap(option.rect.left() + 10, option.rect.center().y() - 16,
                      editorIcon(EditorIcon::Page).pixmap(32, 32));
        const QRect text = option.rect.adjusted(52, 7, -48, -7);
        QFont name = option.font;
        name.setPointSizeF(name.pointSizeF() + 1.5);
        p->setFont(name);
        p->setPen(style.backstageBlackTextColor());
        p->drawText(text, Qt::AlignLeft | Qt::AlignTop, info.fileName());
        p->setFont(option.font);
        p->setPen(style.inactiveTextColor());
        p->drawText(text, Qt::AlignLeft | Qt::AlignBottom,
                    p->fontMetrics().elidedText(QDir::toNativeSeparators(info.path()), Qt::ElideMiddle,
                                                text.width()));
        if (entry->isPinned() || (option.state & QStyle::State_MouseOver))
            drawPin(*p, pinRect(option.rect), entry->isPinned(), style);
        p->restore();
    }

    QSize sizeHint(const QStyleOptionViewItem &, const QModelIndex &index) const override
    {
        const auto entry = index.data(Qt::UserRole).value<QSharedPointer<BackstageListItem>>();
        return QSize(420, entry && entry->isSeparator() ? 9 : 50);
    }

private:
    static void drawPin(QPainter &p, const QRect &r, bool pinned, const zel::RibbonStyle &style)
    {
        p.save();
        p.translate(r.center());
        if (!pinned)
            p.rotate(90);
        p.setPen(QPen(style.backstageBlackTextColor(), 1.4));
        p.setBrush(pinned ? QColor(0x2B, 0x57, 0x9A) : style.backstageSimpleButtonColor());
        p.drawRoundedRect(QRectF(-3.5, -8, 7, 9), 1.5, 1.5);
        p.drawLine(QPointF(-6, 1), QPointF(6, 1));
        p.drawLine(QPointF(0, 1), QPointF(0, 8));
        p.restore();
    }
};

// A pane of the File page with a large title, in the page's colours.
QWidget *titledPane(const QString &title, QVBoxLayout *&body)
{
    auto *pane = new QWidget;
    pane->setAutoFillBackground(true);
    auto *layout = new QVBoxLayout(pane);
    layout->setContentsMargins(40, 28, 40, 20);
    layout->setSpacing(12);
    auto *label = new QLabel(title, pane);
    QFont big = label->font();
    big.setPointSizeF(big.pointSizeF() * 2.6);
    big.setWeight(QFont::Light);
    label->setFont(big);
    followRibbonStyle(pane, [pane, label](const zel::RibbonStyle &style) {
        QPalette pal = pane->palette();
        pal.setColor(QPalette::Window, style.backstageSimpleButtonColor());
        pal.setColor(QPalette::WindowText, style.backstageBlackTextColor());
        pal.setColor(QPalette::Base, style.backstageSimpleButtonColor());
        pal.setColor(QPalette::Text, style.backstageBlackTextColor());
        pane->setPalette(pal);
        label->setStyleSheet(textColorSheet(style.backstageBlackTextColor()));
    });
    layout->addWidget(label);
    layout->addSpacing(8);
    body = layout;
    return pane;
}

QToolButton *tileButton(const QString &text, const QIcon &icon, QWidget *parent)
{
    auto *tile = new QToolButton(parent);
    tile->setText(text);
    tile->setIcon(icon);
    tile->setIconSize(QSize(32, 32));
    tile->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    tile->setAutoRaise(true);
    QFont caption = QApplication::font();
    caption.setPointSize(10);
    tile->setFont(caption);
    tile->setFixedSize(qMax(132, QFontMetrics(caption).horizontalAdvance(text) + 28), 96);
    followRibbonStyle(tile, [tile](const zel::RibbonStyle &style) {
        tile->setStyleSheet(QStringLiteral("QToolButton { border: 1px solid %1; background: %2; color: %3; }"
                                           "QToolButton:hover { border-color: %4; background: %5; }"
                                           "QToolButton:pressed { background: %6; }")
                                .arg(style.backstageGrayBorderColor().name(), style.backstageSimpleButtonColor().name(),
                                     style.backstageBlackTextColor().name(),
                                     style.backstageBlueBorderHoverColor().name(),
                                     style.backstageBlueHoverColor().name(), style.backstageBluePressedColor().name()));
    });
    return tile;
}

// A generated picture: a small bar chart with a soft background.
QImage makeChartPicture(int seed)
{
    QImage image(240, 150, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    QLinearGradient back(0, 0, 0, 150);
    back.setColorAt(0, QColor(0xF4, 0xF8, 0xFD));
    back.setColorAt(1, QColor(0xDD, 0xE8, 0xF6));
    p.fillRect(image.rect(), back);
    p.setPen(QPen(QColor(0xB8, 0xC8, 0xDE), 1));
    for (int y = 30; y <= 120; y += 30)
        p.drawLine(16, y, 224, y);
    const QColor colors[3] = {EditorColors::Accent, QColor(0x4A, 0x9A, 0xD8), QColor(0xF0, 0x96, 0x09)};
    for (int i = 0; i < 6; ++i) {
        const int h = 30 + ((i * 37 + seed * 23) % 80);
        p.setPen(Qt::NoPen);
        p.setBrush(colors[(i + seed) % 3]);
        p.drawRoundedRect(QRectF(26 + i * 33, 128 - h, 22, h), 2, 2);
    }
    p.setPen(QPen(QColor(0x60, 0x60, 0x60), 1.5));
    p.drawLine(16, 128, 224, 128);
    return image;
}

// Inserts generated chart number `seed` at `cursor`; a data URL keeps the picture
// inside the saved HTML.
void insertChartPicture(QTextCursor &cursor, int seed)
{
    const QImage image = makeChartPicture(seed);
    QByteArray png;
    QBuffer buffer(&png);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    const QString name = QStringLiteral("data:image/png;base64,") + QString::fromLatin1(png.toBase64());
    cursor.document()->addResource(QTextDocument::ImageResource, QUrl(name), image);
    QTextImageFormat f;
    f.setName(name);
    f.setWidth(image.width());
    f.setHeight(image.height());
    cursor.insertImage(f);
}

QPixmap templatePreview(bool letter)
{
    QPixmap page(138, 178);
    page.fill(Qt::white);
    QPainter p(&page);
    p.setPen(Qt::NoPen);
    if (letter) {
        p.fillRect(QRect(14, 16, 70, 8), EditorColors::Accent);
        p.setBrush(QColor(200, 200, 200));
        for (int y = 40; y < 160; y += 10)
            p.drawRect(QRect(14, y, y % 30 ? 110 : 80, 3));
    } else {
        p.fillRect(QRect(0, 0, 138, 52), EditorColors::Accent);
        p.fillRect(QRect(14, 20, 90, 10), Qt::white);
        p.setBrush(QColor(200, 200, 200));
        for (int y = 66; y < 120; y += 9)
            p.drawRect(QRect(14, y, 110, 3));
        p.setBrush(QColor(0xDD, 0xE8, 0xF6));
        p.drawRect(QRect(14, 126, 110, 38));
    }
    return page;
}

RibbonCatSimpleAction *command(QObject *owner, EditorIcon icon, const QString &text, RibbonCatSimpleAction::eSize size)
{
    auto *a = new RibbonCatSimpleAction(editorIcon(icon), text, size, owner);
    a->setToolTip(text);
    return a;
}

// Whether the character at pos is a picture.
bool isPictureAt(QTextDocument *doc, int pos)
{
    if (pos < 0 || pos >= doc->characterCount() - 1)
        return false;
    const QTextBlock block = doc->findBlock(pos);
    for (QTextBlock::iterator it = block.begin(); !it.atEnd(); ++it) {
        const QTextFragment fragment = it.fragment();
        if (fragment.isValid() && fragment.contains(pos))
            return fragment.charFormat().isImageFormat();
    }
    return false;
}

// The picture the cursor has selected or stands right before, as a cursor selecting it;
// a null cursor when there is none.
QTextCursor pictureAt(const QTextCursor &cursor)
{
    QTextDocument *doc = cursor.document();
    QList<int> candidates;
    if (cursor.hasSelection()) {
        if (cursor.selectionEnd() - cursor.selectionStart() == 1)
            candidates << cursor.selectionStart();
    } else {
        candidates << cursor.position() << cursor.position() - 1;
    }
    for (int pos : candidates) {
        if (isPictureAt(doc, pos)) {
            QTextCursor picture(doc);
            picture.setPosition(pos);
            picture.setPosition(pos + 1, QTextCursor::KeepAnchor);
            return picture;
        }
    }
    return QTextCursor();
}

} // namespace

struct EditorDemo::Document
{
    PageEdit *edit = nullptr;
    QString path;     // empty until saved or opened
    int untitled = 0; // its number in "DocumentN" while it has no file
    RibbonSimpleAction *tab = nullptr;
};

struct EditorDemo::Priv
{
    QSettings *settings = nullptr;
    EditorPreferences *preferences = nullptr;
    std::vector<std::unique_ptr<Document>> documents;
    Document *current = nullptr;
    PageEdit *edit = nullptr; // the current document's
    int nextUntitled = 1;
    int pictures = 0;
    bool syncing = false;

    QStackedWidget *pages = nullptr;
    RibbonMenuAction *tabs = nullptr;
    NavigationPane *navigation = nullptr;
    RibbonCatCheckBoxAction *showNavigation = nullptr;
    DocumentInfoPane *info = nullptr;
    QList<QPair<QString, QString>> shortcuts;

    // The ribbon and status bar following the current editor.
    std::function<void()> updateWords;
    std::function<void()> updatePage;
    std::function<void(const QTextCharFormat &)> updateFormat;
    std::function<void()> updateBlock;
    std::function<void()> updateContext;
    EditorColorCommands colors;
    EditorStyles styles;

    CurrentEditor currentEditor()
    {
        return [this]() -> QTextEdit * { return edit; };
    }

    QString name(const Document *document) const
    {
        return document->path.isEmpty() ? EditorDemo::tr("Document%1").arg(document->untitled)
                                        : QFileInfo(document->path).fileName();
    }
    // Documents are counted in the order of their tabs, which the user may change.
    int tabIndex(const Document *document) const
    {
        return document ? tabs->menuActions().indexOf(document->tab) : -1;
    }
    Document *atTab(int index) const
    {
        const RibbonAction *tab = tabs->menuActions().value(index);
        for (const auto &document : documents) {
            if (tab && document->tab == tab)
                return document.get();
        }
        return nullptr;
    }

    BackstageListModel *recent = nullptr;
    QListView *recentView = nullptr;

    RibbonCatFontFamilyAction *family = nullptr;
    RibbonCatComboAction *size = nullptr;
    RibbonCatSimpleAction *bold = nullptr;
    RibbonCatSimpleAction *italic = nullptr;
    RibbonCatSimpleAction *underline = nullptr;
    RibbonCatSimpleAction *strike = nullptr;
    RibbonCatSimpleAction *alignLeft = nullptr;
    RibbonCatSimpleAction *alignCenter = nullptr;
    RibbonCatSimpleAction *alignRight = nullptr;
    RibbonCatSimpleAction *justify = nullptr;
    RibbonCatSimpleAction *bullets = nullptr;
    RibbonCatSimpleAction *numbering = nullptr;
    RibbonCatSimpleAction *cut = nullptr;
    RibbonCatSimpleAction *copy = nullptr;
    RibbonCatSimpleAction *minimise = nullptr;
    RibbonSimpleAction *quickUndo = nullptr;
    RibbonSimpleAction *quickRedo = nullptr;

    RibbonContextCategoryPanelAction *tableTools = nullptr;
    RibbonContextCategoryPanelAction *pictureTools = nullptr;
    RibbonCategoriesPanelAction *home = nullptr;

    RibbonCatMenuAction *pageStatus = nullptr;
    RibbonCatMenuAction *wordStatus = nullptr;
    RibbonPercAction *zoom = nullptr;
};

EditorDemo::EditorDemo(QSettings &settings, QWidget *parent)
    : RibbonMainWindow(parent)
    , d(new Priv)
{
    d->settings = &settings;
    d->preferences = new EditorPreferences(settings, this);
    QFont uiFont = font();
    uiFont.setPointSize(9);
    setFont(uiFont);

    buildDocumentArea();

    // Recent documents, restored with their pins.
    d->recent = new BackstageListModel(this, d->preferences->recentLength());
    d->recent->restoreState(settings.value(KeyRecent).toList());

    buildQuickAccess();
    buildStatusBar();
    RibbonMenuBar &bar = ribbonMenuBar();
    for (RibbonCategoriesPanelAction *tab : {buildHomeTab(), buildInsertTab(), buildViewTab()})
        bar.addAction(tab);
    d->home->setChecked(true);
    buildContextTabs();

    auto *help = new RibbonSimpleAction(editorIcon(EditorIcon::Help), tr("Help"), this);
    connect(help, &QAction::triggered, this, [this] {
        QMessageBox::about(this, AppName,
                           tr("A small rich-text editor built on the zelRibbon library: every command of "
                              "its ribbon works on the document."));
    });
    bar.setHelpAction(help);

    buildShortcuts(); // before the File page, whose Info pane lists them
    buildFilePage();
    buildWelcomeScreen();
    followEditor();

    connect(d->preferences, &EditorPreferences::recentLengthChanged, this, [this] {
        d->recent->setMaxNumberOfItems(d->preferences->recentLength());
        writeSettings();
    });
    connect(d->preferences, &EditorPreferences::defaultZoomChanged, this,
            [this] { zoomTo(d->preferences->defaultZoom()); });
    connect(d->preferences, &EditorPreferences::authorChanged, this, &EditorDemo::refreshInfo);
    connect(this, &RibbonMainWindow::activeViewChanged, this, [this] {
        if (activeView() == BackstagePanel)
            refreshInfo();
        // Back from the welcome or File page the user types into the document at once.
        else if (activeView() == MainView && d->edit)
            d->edit->setFocus();
    });

    if (d->preferences->startMinimised()) {
        d->minimise->setChecked(true);
        ribbonMenuBar().setMinimizeRibbon(true);
    }

    activate(createDocument());
    setActiveView(WelcomeScreen);
}

// The documents' area: the Navigation panel at the left; at the right a tab per open
// document above the documents themselves.
void EditorDemo::buildDocumentArea()
{
    auto *area = new QWidget(this);
    auto *row = new QHBoxLayout(area);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    d->navigation = new NavigationPane(area);
    row->addWidget(d->navigation->dockedWindow());

    auto *column = new QVBoxLayout;
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    d->tabs = new RibbonMenuAction(tr("Documents"), this);
    d->tabs->setExclusive(true);
    d->pages = new QStackedWidget(area);
    column->addWidget(new RibbonTabBar(*d->tabs, area));
    column->addWidget(d->pages, 1);
    row->addLayout(column, 1);
    setCentralWidget(area);
}

EditorDemo::Document *EditorDemo::createDocument()
{
    auto document = std::make_unique<Document>();
    Document *raw = document.get();
    raw->edit = new PageEdit(d->pages);
    raw->edit->setAcceptRichText(true);
    raw->edit->setFont(documentFont());
    raw->edit->setBaseSize(documentFont().pointSizeF());
    raw->edit->setZoom(d->preferences->defaultZoom());
    // Nothing to undo in a new document, not even the page margins.
    raw->edit->document()->clearUndoRedoStacks();
    raw->untitled = d->nextUntitled++;
    d->pages->addWidget(raw->edit);

    // Document tabs are no commands: made without a text, they stay out of the registry
    // of commands by name.
    raw->tab = new RibbonSimpleAction(this);
    raw->tab->setCheckable(true);
    d->tabs->addAction(raw->tab, false);
    connect(raw->tab, &QAction::triggered, this, [this, raw] { activate(raw); });

    d->documents.push_back(std::move(document));
    connectEditor(raw);
    updateTitle(raw);
    return raw;
}

// The current document when nothing has been done with it yet: a new or opened
// document takes its place instead of opening beside it.
EditorDemo::Document *EditorDemo::blankCurrentDocument() const
{
    Document *document = d->current;
    if (!document || !document->path.isEmpty() || document->edit->document()->isModified()
        || !document->edit->document()->isEmpty())
        return nullptr;
    return document;
}

void EditorDemo::activate(Document *document)
{
    if (!document)
        return;
    d->current = document;
    d->edit = document->edit;
    d->pages->setCurrentWidget(document->edit);
    document->tab->setChecked(true);
    d->navigation->setEditor(document->edit);
    syncWithEditor();
    updateTitle(document);
}

void EditorDemo::removeDocument(Document *document)
{
    const auto owned = std::find_if(d->documents.begin(), d->documents.end(),
                                    [document](const auto &candidate) { return candidate.get() == document; });
    if (owned == d->documents.end())
        return;
    if (d->current == document) {
        d->current = nullptr;
        d->edit = nullptr;
        d->navigation->setEditor(nullptr);
    }
    d->tabs->removeAction(document->tab);
    delete document->tab;
    delete document->edit;
    d->documents.erase(owned);
}

int EditorDemo::documentCount() const
{
    return int(d->documents.size());
}

int EditorDemo::currentDocument() const
{
    return d->tabIndex(d->current);
}

void EditorDemo::setCurrentDocument(int index)
{
    activate(d->atTab(index));
}

NavigationPane &EditorDemo::navigationPane() const
{
    return *d->navigation;
}

// The tab shows the document's name, starred while it has unsaved changes; the
// window's title follows the current document.
void EditorDemo::updateTitle(Document *document)
{
    const bool modified = document->edit->document()->isModified();
    const QString name = d->name(document);
    document->tab->setText(modified ? name + QStringLiteral("*") : name);
    document->tab->setToolTip(document->path.isEmpty() ? name : QDir::toNativeSeparators(document->path));
    if (document == d->current)
        setWindowTitle(QStringLiteral("%1%2 - %3").arg(name, modified ? QStringLiteral("*") : QString(), AppName));
}

// The hidden list is restored before the commands arrive, so hidden ones never show.
void EditorDemo::buildQuickAccess()
{
    RibbonQuickAccessBar &quick = quickAccessBar();
    quick.setQuickAccessBarItems(d->settings->value(KeyHiddenQuick).toStringList());
    auto quickCommand = [&](EditorIcon icon, const QString &text, const QString &name, const QString &shortcut) {
        auto *a = new RibbonSimpleAction(editorIcon(icon), text, this);
        a->setData(name);
        a->setToolTip(shortcut.isEmpty() ? text : QStringLiteral("%1 (%2)").arg(text, shortcut));
        quick.addAction(a);
        return a;
    };
    RibbonSimpleAction *quickSave = quickCommand(EditorIcon::Save, tr("Save"), QStringLiteral("quick.save"), tr("Ctrl+S"));
    d->quickUndo = quickCommand(EditorIcon::Undo, tr("Undo"), QStringLiteral("quick.undo"), tr("Ctrl+Z"));
    d->quickRedo = quickCommand(EditorIcon::Redo, tr("Redo"), QStringLiteral("quick.redo"), tr("Ctrl+Y"));
    connect(quickSave, &QAction::triggered, this, &EditorDemo::save);
    connect(d->quickUndo, &QAction::triggered, this, [this] { d->edit->undo(); });
    connect(d->quickRedo, &QAction::triggered, this, [this] { d->edit->redo(); });
    d->quickUndo->setEnabled(false);
    d->quickRedo->setEnabled(false);
}

RibbonCategoriesPanelAction *EditorDemo::buildHomeTab()
{
    using S = RibbonCatSimpleAction;
    d->home = new RibbonCategoriesPanelAction(tr("Home"), this);

    auto *clipboard = new RibbonCategoryAction(editorIcon(EditorIcon::Paste), tr("Clipboard"), this);
    auto *paste = new RibbonCatMenuAction(editorIcon(EditorIcon::Paste), tr("Paste"), RibbonCatMenuAction::MenuTypeButton,
                                          RibbonCatMenuAction::MenuSizeLarge, RibbonCatMenuAction::PopupMenu, this);
    auto *pasteNow = new RibbonSimpleAction(editorIcon(EditorIcon::Paste), tr("Paste"), this);
    pasteNow->setToolTip(tr("Paste (Ctrl+V)"));
    auto *pasteText = new RibbonSimpleAction(editorIcon(EditorIcon::Words), tr("Paste as Text"), this);
    paste->addAction(pasteNow, true);
    paste->addAction(pasteText, false);
    connect(pasteNow, &QAction::triggered, this, [this] { d->edit->paste(); });
    connect(pasteText, &QAction::triggered, this, [this] {
        d->edit->textCursor().insertText(QApplication::clipboard()->text());
    });
    d->cut = command(this, EditorIcon::Cut, tr("Cut"), S::SizeMedium);
    d->copy = command(this, EditorIcon::Copy, tr("Copy"), S::SizeMedium);
    connect(d->cut, &QAction::triggered, this, [this] { d->edit->cut(); });
    connect(d->copy, &QAction::triggered, this, [this] { d->edit->copy(); });
    // Given before they are disabled, the reason shows in their screen tips.
    d->cut->setProperty("disabledReason", tr("Select some text first."));
    d->copy->setProperty("disabledReason", tr("Select some text first."));
    d->cut->setEnabled(false);
    d->copy->setEnabled(false);
    auto *selectAll = command(this, EditorIcon::SelectAll, tr("Select All"), S::SizeMedium);
    connect(selectAll, &QAction::triggered, this, [this] { d->edit->selectAll(); });
    clipboard->addAction(paste, -1);
    clipboard->addAction(d->cut, -1);
    clipboard->addAction(d->copy, -1);
    clipboard->addAction(selectAll, -1);
    d->home->addCategory(clipboard);

    auto *fontCategory = new RibbonCategoryAction(editorIcon(EditorIcon::Bold), tr("Font"), this);
    d->family = new RibbonCatFontFamilyAction(documentFont(), this);
    d->family->setToolTip(tr("Font"));
    d->size = new RibbonCatComboAction(this);
    for (int s : FontSizes)
        d->size->addItem(QString::number(s));
    d->size->setWidth(48);
    d->size->setToolTip(tr("Font Size"));
    d->size->setSelectionText(QStringLiteral("11"));
    auto *growShrink = new RibbonCatActionGroup(this);
    auto *grow = command(this, EditorIcon::Grow, tr("Grow Font"), S::SizeSmall);
    auto *shrink = command(this, EditorIcon::Shrink, tr("Shrink Font"), S::SizeSmall);
    growShrink->addAction(grow, false);
    growShrink->addAction(shrink, false);
    auto *styleGroup = new RibbonCatActionGroup(this);
    d->bold = command(this, EditorIcon::Bold, tr("Bold"), S::SizeSmall);
    d->italic = command(this, EditorIcon::Italic, tr("Italic"), S::SizeSmall);
    d->underline = command(this, EditorIcon::Underline, tr("Underline"), S::SizeSmall);
    d->strike = command(this, EditorIcon::Strikethrough, tr("Strikethrough"), S::SizeSmall);
    d->bold->setToolTip(tr("Bold (Ctrl+B)"));
    d->italic->setToolTip(tr("Italic (Ctrl+I)"));
    d->underline->setToolTip(tr("Underline (Ctrl+U)"));
    for (RibbonCatSimpleAction *a : {d->bold, d->italic, d->underline, d->strike}) {
        a->setCheckable(true);
        styleGroup->addAction(a, false);
    }
    auto *clear = command(this, EditorIcon::ClearFormat, tr("Clear Formatting"), S::SizeSmall);
    auto *clearGroup = new RibbonCatActionGroup(this);
    clearGroup->addAction(clear, false);
    fontCategory->addAction(d->family, 0);
    fontCategory->addAction(d->size, 0);
    fontCategory->addAction(growShrink, 0);
    fontCategory->addAction(styleGroup, 1);
    fontCategory->addAction(clearGroup, 1);
    d->colors = addColorCommands(*fontCategory, 1, d->currentEditor(), this);
    d->home->addCategory(fontCategory);

    auto *paragraph = new RibbonCategoryAction(editorIcon(EditorIcon::AlignLeft), tr("Paragraph"), this);
    auto *lists = new RibbonCatActionGroup(this);
    d->bullets = command(this, EditorIcon::Bullets, tr("Bullets"), S::SizeSmall);
    d->numbering = command(this, EditorIcon::Numbering, tr("Numbering"), S::SizeSmall);
    for (RibbonCatSimpleAction *a : {d->bullets, d->numbering}) {
        a->setCheckable(true);
        lists->addAction(a, false);
    }
    auto *align = new RibbonCatActionGroup(this);
    align->setExclusive(true);
    d->alignLeft = command(this, EditorIcon::AlignLeft, tr("Align Left"), S::SizeSmall);
    d->alignCenter = command(this, EditorIcon::AlignCenter, tr("Center"), S::SizeSmall);
    d->alignRight = command(this, EditorIcon::AlignRight, tr("Align Right"), S::SizeSmall);
    d->justify = command(this, EditorIcon::Justify, tr("Justify"), S::SizeSmall);
    for (RibbonCatSimpleAction *a : {d->alignLeft, d->alignCenter, d->alignRight, d->justify}) {
        a->setCheckable(true);
        align->addAction(a, false);
    }
    d->alignLeft->setChecked(true);
    paragraph->addAction(lists, 0);
    paragraph->addAction(align, 1);
    d->home->addCategory(paragraph);

    d->styles = buildStylesCategory(d->currentEditor(), this);
    d->home->addCategory(d->styles.category);

    auto *editing = new RibbonCategoryAction(editorIcon(EditorIcon::Find), tr("Editing"), this);
    auto *find = command(this, EditorIcon::Find, tr("Find"), S::SizeLarge);
    find->setToolTip(tr("Find text in the document"));
    connect(find, &QAction::triggered, this, [this] {
        QTextEdit *edit = d->edit;
        bool ok = false;
        const QString text = QInputDialog::getText(this, tr("Find"), tr("Find what:"), QLineEdit::Normal,
                                                   edit->textCursor().selectedText(), &ok);
        if (!ok || text.isEmpty())
            return;
        if (!edit->find(text)) {
            edit->moveCursor(QTextCursor::Start);
            if (!edit->find(text))
                QMessageBox::information(this, AppName, tr("\"%1\" was not found.").arg(text));
        }
    });
    editing->addAction(find, -1);
    d->home->addCategory(editing);

    // Formatting commands.
    auto mergeFormat = [this](const QTextCharFormat &format) {
        if (d->syncing)
            return;
        QTextCursor cursor = d->edit->textCursor();
        if (!cursor.hasSelection())
            cursor.select(QTextCursor::WordUnderCursor);
        cursor.mergeCharFormat(format);
        d->edit->mergeCurrentCharFormat(format);
        d->edit->setFocus();
    };
    connect(d->bold, &QAction::triggered, this, [mergeFormat](bool on) {
        QTextCharFormat f;
        f.setFontWeight(on ? QFont::Bold : QFont::Normal);
        mergeFormat(f);
    });
    connect(d->italic, &QAction::triggered, this, [mergeFormat](bool on) {
        QTextCharFormat f;
        f.setFontItalic(on);
        mergeFormat(f);
    });
    connect(d->underline, &QAction::triggered, this, [mergeFormat](bool on) {
        QTextCharFormat f;
        f.setFontUnderline(on);
        mergeFormat(f);
    });
    connect(d->strike, &QAction::triggered, this, [mergeFormat](bool on) {
        QTextCharFormat f;
        f.setFontStrikeOut(on);
        mergeFormat(f);
    });
    connect(d->family, &RibbonCatFontFamilyAction::fontFamilyChanged, this, [mergeFormat](const QFont &font) {
        QTextCharFormat f;
        f.setFontFamily(font.family());
        mergeFormat(f);
    });
    connect(d->size, &RibbonCatComboAction::selectionTextChanged, this, [this, mergeFormat] {
        bool ok = false;
        const qreal points = d->size->selectionText().toDouble(&ok);
        if (!ok || points < 1 || points > 400)
            return;
        QTextCharFormat f;
        f.setFontPointSize(points);
        mergeFormat(f);
    });
    auto stepSize = [this, mergeFormat](int direction) {
        const qreal current = d->edit->currentCharFormat().fontPointSize() > 0
            ? d->edit->currentCharFormat().fontPointSize() : 11;
        int next = direction > 0 ? FontSizes.last() : FontSizes.first();
        for (int s : FontSizes) {
            if (direction > 0 && s > current) {
                next = s;
                break;
            }
            if (direction < 0 && s < current)
                next = s;
        }
        QTextCharFormat f;
        f.setFontPointSize(next);
        mergeFormat(f);
    };
    connect(grow, &QAction::triggered, this, [stepSize] { stepSize(1); });
    connect(shrink, &QAction::triggered, this, [stepSize] { stepSize(-1); });
    connect(clear, &QAction::triggered, this, [this] {
        QTextCursor cursor = d->edit->textCursor();
        if (!cursor.hasSelection())
            cursor.select(QTextCursor::BlockUnderCursor);
        cursor.setCharFormat(QTextCharFormat());
        d->edit->setCurrentCharFormat(QTextCharFormat());
    });
    auto setAlign = [this](Qt::Alignment a) {
        if (!d->syncing)
            d->edit->setAlignment(a);
    };
    connect(d->alignLeft, &QAction::triggered, this, [setAlign] { setAlign(Qt::AlignLeft | Qt::AlignAbsolute); });
    connect(d->alignCenter, &QAction::triggered, this, [setAlign] { setAlign(Qt::AlignHCenter); });
    connect(d->alignRight, &QAction::triggered, this, [setAlign] { setAlign(Qt::AlignRight | Qt::AlignAbsolute); });
    connect(d->justify, &QAction::triggered, this, [setAlign] { setAlign(Qt::AlignJustify); });
    auto setList = [this](QTextListFormat::Style style, bool on) {
        QTextCursor cursor = d->edit->textCursor();
        cursor.beginEditBlock();
        if (QTextList *list = cursor.currentList()) {
            // Leave the list, or switch its style.
            if (!on || list->format().style() == style) {
                for (int i = list->count() - 1; i >= 0; --i) {
                    if (!cursor.hasSelection() && list->item(i) != cursor.block())
                        continue;
                    list->remove(list->item(i));
                }
                QTextBlockFormat indent = cursor.blockFormat();
                indent.setIndent(0);
                cursor.setBlockFormat(indent);
            } else {
                QTextListFormat f = list->format();
                f.setStyle(style);
                list->setFormat(f);
            }
        } else if (on) {
            QTextListFormat f;
            f.setStyle(style);
            f.setIndent(1);
            cursor.createList(f);
        }
        cursor.endEditBlock();
    };
    connect(d->bullets, &QAction::triggered, this, [setList](bool on) { setList(QTextListFormat::ListDisc, on); });
    connect(d->numbering, &QAction::triggered, this, [setList](bool on) { setList(QTextListFormat::ListDecimal, on); });
    // Letters for the keyboard (Alt, H, then these) and descriptions for the screen tips;
    // the other commands get letters of their own.
    const QList<QPair<QAction *, QString>> keyTips = {
        {paste, QStringLiteral("V")},        {d->cut, QStringLiteral("X")},         {d->copy, QStringLiteral("C")},
        {selectAll, QStringLiteral("SA")},   {d->family, QStringLiteral("FF")},     {d->size, QStringLiteral("FS")},
        {grow, QStringLiteral("FG")},        {shrink, QStringLiteral("FK")},        {d->bold, QStringLiteral("1")},
        {d->italic, QStringLiteral("2")},    {d->underline, QStringLiteral("3")},   {d->strike, QStringLiteral("4")},
        {clear, QStringLiteral("E")},        {d->bullets, QStringLiteral("U")},     {d->numbering, QStringLiteral("N")},
        {d->alignLeft, QStringLiteral("AL")}, {d->alignCenter, QStringLiteral("AC")},
        {d->alignRight, QStringLiteral("AR")}, {d->justify, QStringLiteral("AJ")}, {find, QStringLiteral("FD")},
    };
    for (const auto &keyTip : keyTips)
        keyTip.first->setProperty("keyTip", keyTip.second);
    d->home->setProperty("keyTip", QStringLiteral("H"));
    d->styles.category->setProperty("keyTip", QStringLiteral("L"));
    // The split button's tip is its default command's.
    for (QAction *a : {static_cast<QAction *>(paste), static_cast<QAction *>(pasteNow)})
        a->setStatusTip(tr("Adds the contents of the clipboard to the document."));
    d->cut->setStatusTip(tr("Removes the selection and puts it on the clipboard."));
    d->copy->setStatusTip(tr("Puts a copy of the selection on the clipboard."));
    d->bold->setStatusTip(tr("Makes the selected text bold."));
    d->italic->setStatusTip(tr("Sets the selected text in italics."));
    d->underline->setStatusTip(tr("Underlines the selected text."));
    find->setStatusTip(tr("Looks for text in the document."));
    return d->home;
}

RibbonCategoriesPanelAction *EditorDemo::buildInsertTab()
{
    using S = RibbonCatSimpleAction;
    auto *insert = new RibbonCategoriesPanelAction(tr("Insert"), this);
    insert->setProperty("keyTip", QStringLiteral("N"));
    auto *tables = new RibbonCategoryAction(editorIcon(EditorIcon::Table), tr("Tables"), this);
    auto *table = new RibbonCatMenuAction(editorIcon(EditorIcon::Table), tr("Table"), RibbonCatMenuAction::MenuTypeButton,
                                          RibbonCatMenuAction::MenuSizeLarge, RibbonCatMenuAction::PopupMenu, this);
    auto insertTable = [this](int rows, int columns) {
        const QTextTableFormat f = documentTableFormat(4);
        QTextCursor cursor = d->edit->textCursor();
        cursor.beginEditBlock();
        QTextTable *t = cursor.insertTable(rows, columns, f);
        QTextCharFormat head;
        head.setFontWeight(QFont::Bold);
        QTextCharFormat headBack;
        for (int c = 0; c < columns; ++c) {
            QTextTableCell cell = t->cellAt(0, c);
            QTextCharFormat cf = cell.format();
            cf.setBackground(QColor(0xDD, 0xE8, 0xF6));
            cell.setFormat(cf);
            cell.firstCursorPosition().setCharFormat(head);
        }
        cursor.endEditBlock();
        d->edit->setTextCursor(t->cellAt(0, 0).firstCursorPosition());
        d->edit->setFocus();
    };
    const QList<QPair<int, int>> shapes = {{3, 3}, {2, 2}, {4, 3}, {5, 4}, {6, 6}};
    for (int i = 0; i < shapes.size(); ++i) {
        const auto shape = shapes.at(i);
        auto *item = new RibbonSimpleAction(editorIcon(EditorIcon::Table),
                                            i == 0 ? tr("Insert Table") : tr("%1 \u00d7 %2 Table").arg(shape.second).arg(shape.first),
                                            this);
        table->addAction(item, i == 0);
        connect(item, &QAction::triggered, this, [insertTable, shape] { insertTable(shape.first, shape.second); });
    }
    table->setToolTip(tr("Insert a table"));
    tables->addAction(table, -1);
    insert->addCategory(tables);

    auto *illustrations = new RibbonCategoryAction(editorIcon(EditorIcon::Picture), tr("Illustrations"), this);
    auto *picture = command(this, EditorIcon::Picture, tr("Picture"), S::SizeLarge);
    picture->setToolTip(tr("Insert a generated chart picture"));
    connect(picture, &QAction::triggered, this, [this] {
        QTextCursor cursor = d->edit->textCursor();
        insertChartPicture(cursor, d->pictures++);
        d->edit->setFocus();
    });
    auto *line = command(this, EditorIcon::Line, tr("Horizontal Line"), S::SizeLarge);
    connect(line, &QAction::triggered, this, [this] { d->edit->textCursor().insertHtml(QStringLiteral("<hr/>")); });
    illustrations->addAction(picture, -1);
    illustrations->addAction(line, -1);
    insert->addCategory(illustrations);

    auto *text = new RibbonCategoryAction(editorIcon(EditorIcon::DateTime), tr("Text"), this);
    auto *date = new RibbonCatMenuAction(editorIcon(EditorIcon::DateTime), tr("Date"), RibbonCatMenuAction::MenuTypeButton,
                                         RibbonCatMenuAction::MenuSizeLarge, RibbonCatMenuAction::PopupMenu, this);
    const QList<QPair<QString, QLocale::FormatType>> dateFormats = {{tr("Date and Time"), QLocale::LongFormat},
                                                                     {tr("Short Date"), QLocale::ShortFormat},
                                                                     {tr("Long Date"), QLocale::LongFormat}};
    for (int i = 0; i < dateFormats.size(); ++i) {
        const auto format = dateFormats.at(i);
        auto *item = new RibbonSimpleAction(editorIcon(EditorIcon::DateTime), format.first, this);
        date->addAction(item, i == 0);
        connect(item, &QAction::triggered, this, [this, i, format] {
            const QDateTime now = QDateTime::currentDateTime();
            const QString s = i == 0 ? QLocale().toString(now, QLocale::ShortFormat)
                                     : QLocale().toString(now.date(), format.second);
            d->edit->textCursor().insertText(s);
            d->edit->setFocus();
        });
    }
    text->addAction(date, -1);
    text->addAction(makeSymbolPalette(d->currentEditor(), this), -1);
    insert->addCategory(text);
    return insert;
}

RibbonCategoriesPanelAction *EditorDemo::buildViewTab()
{
    using S = RibbonCatSimpleAction;
    auto *viewTab = new RibbonCategoriesPanelAction(tr("View"), this);
    viewTab->setProperty("keyTip", QStringLiteral("W"));
    auto *zoomCategory = new RibbonCategoryAction(editorIcon(EditorIcon::ZoomIn), tr("Zoom"), this);
    auto *zoomIn = command(this, EditorIcon::ZoomIn, tr("Zoom In"), S::SizeMedium);
    auto *zoomOut = command(this, EditorIcon::ZoomOut, tr("Zoom Out"), S::SizeMedium);
    auto *zoom100 = command(this, EditorIcon::Zoom100, tr("100%"), S::SizeLarge);
    zoom100->setToolTip(tr("Zoom to 100%"));
    zoomCategory->addAction(zoom100, -1);
    zoomCategory->addAction(zoomIn, -1);
    zoomCategory->addAction(zoomOut, -1);
    viewTab->addCategory(zoomCategory);
    auto *ribbonCategory = new RibbonCategoryAction(editorIcon(EditorIcon::MinimiseRibbon), tr("Window"), this);
    d->minimise = command(this, EditorIcon::MinimiseRibbon, tr("Minimise Ribbon"), S::SizeLarge);
    d->minimise->setCheckable(true);
    d->minimise->setToolTip(tr("Show only the tab names (Ctrl+F1)"));
    connect(d->minimise, &QAction::triggered, this, [this](bool on) { ribbonMenuBar().setMinimizeRibbon(on); });
    ribbonCategory->addAction(d->minimise, -1);
    const auto printLayout = [this](bool print) {
        if (d->edit)
            d->edit->setPrintLayout(print);
    };
    viewTab->addCategory(buildLayoutCategory(d->zoom, d->currentEditor(), printLayout, this));
    viewTab->addCategory(ribbonCategory);

    auto *show = new RibbonCategoryAction(editorIcon(EditorIcon::Page), tr("Show"), this);
    d->showNavigation = new RibbonCatCheckBoxAction(tr("Navigation Pane"), this);
    d->showNavigation->setToolTip(tr("Show the headings of the document at the left"));
    d->showNavigation->setChecked(d->navigation->isShown());
    connect(d->showNavigation, &QAction::toggled, d->navigation, &NavigationPane::setShown);
    connect(d->navigation, &NavigationPane::shownChanged, d->showNavigation, &QAction::setChecked);
    show->addAction(d->showNavigation, 0);
    // The library's two palettes, switched while the program runs.
    auto *dark = new RibbonCatCheckBoxAction(tr("Dark"), this);
    dark->setObjectName(QStringLiteral("darkPalette"));
    dark->setToolTip(tr("Show the ribbon in its dark palette"));
    dark->setChecked(RibbonApplication::theApp().getRibbonStyle() == RibbonApplication::RibbonStyleDark);
    connect(dark, &QAction::toggled, this, [](bool on) {
        RibbonApplication::theApp().setRibbonStyle(on ? RibbonApplication::RibbonStyleDark
                                                      : RibbonApplication::RibbonStyleDefault);
    });
    show->addAction(dark, 1);
    viewTab->addCategory(show);
    connect(zoomIn, &QAction::triggered, this, [this] { zoomStep(1); });
    connect(zoomOut, &QAction::triggered, this, [this] { zoomStep(-1); });
    connect(zoom100, &QAction::triggered, this, [this] { zoomTo(100); });
    return viewTab;
}

// Tab sets shown while the cursor is in a table or on a picture.
void EditorDemo::buildContextTabs()
{
    RibbonMenuBar &bar = ribbonMenuBar();
    using S = RibbonCatSimpleAction;
    d->tableTools = new RibbonContextCategoryPanelAction(QColor(0xEF, 0xE8, 0xF7), EditorColors::TableTools,
                                                         EditorColors::TableTools.darker(120), this);
    d->tableTools->setText(tr("Table Tools"));
    auto *layoutTab = new RibbonCategoriesPanelAction(tr("Layout"), this);
    auto *rowsColumns = new RibbonCategoryAction(editorIcon(EditorIcon::RowAbove), tr("Rows & Columns"), this);
    auto *removeCategory = new RibbonCategoryAction(editorIcon(EditorIcon::DeleteRow), tr("Delete"), this);
    auto tableCommand = [this](RibbonCategoryAction *category, EditorIcon icon, const QString &text,
                               RibbonCatSimpleAction::eSize size, std::function<void(QTextTable *, int, int)> run) {
        auto *a = new RibbonCatSimpleAction(editorIcon(icon), text, size, this);
        category->addAction(a, -1);
        connect(a, &QAction::triggered, this, [this, run] {
            QTextCursor cursor = d->edit->textCursor();
            QTextTable *t = cursor.currentTable();
            if (!t)
                return;
            const QTextTableCell cell = t->cellAt(cursor);
            run(t, cell.row(), cell.column());
            d->edit->setFocus();
        });
    };
    tableCommand(rowsColumns, EditorIcon::RowAbove, tr("Insert Above"), S::SizeLarge,
                 [](QTextTable *t, int row, int) { t->insertRows(row, 1); });
    tableCommand(rowsColumns, EditorIcon::RowBelow, tr("Insert Below"), S::SizeLarge,
                 [](QTextTable *t, int row, int) { t->insertRows(row + 1, 1); });
    tableCommand(rowsColumns, EditorIcon::ColumnLeft, tr("Insert Left"), S::SizeMedium,
                 [](QTextTable *t, int, int column) { t->insertColumns(column, 1); });
    tableCommand(rowsColumns, EditorIcon::ColumnRight, tr("Insert Right"), S::SizeMedium,
                 [](QTextTable *t, int, int column) { t->insertColumns(column + 1, 1); });
    tableCommand(removeCategory, EditorIcon::DeleteRow, tr("Delete Rows"), S::SizeMedium,
                 [](QTextTable *t, int row, int) { t->removeRows(row, 1); });
    tableCommand(removeCategory, EditorIcon::DeleteColumn, tr("Delete Columns"), S::SizeMedium,
                 [](QTextTable *t, int, int column) { t->removeColumns(column, 1); });
    tableCommand(removeCategory, EditorIcon::DeleteTable, tr("Delete Table"), S::SizeMedium,
                 [](QTextTable *t, int, int) { t->removeRows(0, t->rows()); });
    layoutTab->addCategory(rowsColumns);
    layoutTab->addCategory(removeCategory);

    auto *designTab = new RibbonCategoriesPanelAction(tr("Design"), this);
    auto *tableStyle = new RibbonCategoryAction(editorIcon(EditorIcon::Table), tr("Table Style"), this);
    tableCommand(tableStyle, EditorIcon::Table, tr("Grid Lines"), S::SizeLarge, [](QTextTable *t, int, int) {
        QTextTableFormat f = t->format();
        f.setBorder(f.border() > 0 ? 0 : 1);
        t->setFormat(f);
    });
    auto shadeRow = [](QTextTable *t, int row, const QColor &color) {
        for (int c = 0; c < t->columns(); ++c) {
            QTextTableCell cell = t->cellAt(row, c);
            QTextCharFormat cf = cell.format();
            if (color.isValid())
                cf.setBackground(color);
            else
                cf.clearBackground();
            cell.setFormat(cf);
        }
    };
    tableCommand(tableStyle, EditorIcon::RowAbove, tr("Header Row"), S::SizeLarge, [shadeRow](QTextTable *t, int, int) {
        const bool shaded = t->cellAt(0, 0).format().background().style() != Qt::NoBrush;
        shadeRow(t, 0, shaded ? QColor() : QColor(0xDD, 0xE8, 0xF6));
    });
    tableCommand(tableStyle, EditorIcon::SelectAll, tr("Shade Row"), S::SizeMedium, [shadeRow](QTextTable *t, int row, int) {
        shadeRow(t, row, QColor(0xF2, 0xF2, 0xF2));
    });
    tableCommand(tableStyle, EditorIcon::ClearFormat, tr("Clear Shading"), S::SizeMedium, [shadeRow](QTextTable *t, int row, int) {
        shadeRow(t, row, QColor());
    });
    designTab->addCategory(tableStyle);
    d->tableTools->addPanelAction(designTab);
    d->tableTools->addPanelAction(layoutTab);
    bar.ribbonContextCategoryPanel().addContextPanelAction(d->tableTools);

    d->pictureTools = new RibbonContextCategoryPanelAction(QColor(0xFD, 0xE9, 0xD9), QColor(0xF0, 0x96, 0x09),
                                                           EditorColors::PictureTools, this);
    d->pictureTools->setText(tr("Picture Tools"));
    auto *formatTab = new RibbonCategoriesPanelAction(tr("Format"), this);
    auto *sizeCategory = new RibbonCategoryAction(editorIcon(EditorIcon::PictureLarger), tr("Size"), this);
    auto pictureCommand = [this, sizeCategory](EditorIcon icon, const QString &text, qreal factor) {
        auto *a = new RibbonCatSimpleAction(editorIcon(icon), text, RibbonCatSimpleAction::SizeLarge, this);
        sizeCategory->addAction(a, -1);
        connect(a, &QAction::triggered, this, [this, factor] {
            QTextCursor probe = pictureAt(d->edit->textCursor());
            if (probe.isNull())
                return;
            QTextImageFormat f = probe.charFormat().toImageFormat();
            const QImage original = d->edit->document()->resource(QTextDocument::ImageResource, QUrl(f.name())).value<QImage>();
            const QSizeF base = original.isNull() ? QSizeF(240, 150) : QSizeF(original.size());
            if (factor <= 0) {
                f.setWidth(base.width());
                f.setHeight(base.height());
            } else {
                f.setWidth(qBound(24.0, f.width() * factor, 1200.0));
                f.setHeight(qBound(15.0, f.height() * factor, 750.0));
            }
            probe.setCharFormat(f);
            d->edit->setTextCursor(probe);
        });
    };
    pictureCommand(EditorIcon::PictureLarger, tr("Larger"), 1.25);
    pictureCommand(EditorIcon::PictureSmaller, tr("Smaller"), 0.8);
    pictureCommand(EditorIcon::PictureReset, tr("Original Size"), 0);
    formatTab->addCategory(sizeCategory);
    auto *arrangeTab = new RibbonCategoriesPanelAction(tr("Arrange"), this);
    auto *position = new RibbonCategoryAction(editorIcon(EditorIcon::AlignCenter), tr("Position"), this);
    const QList<QPair<EditorIcon, QPair<QString, Qt::Alignment>>> positions = {
        {EditorIcon::AlignLeft, {tr("Left"), Qt::AlignLeft | Qt::AlignAbsolute}},
        {EditorIcon::AlignCenter, {tr("Centre"), Qt::AlignHCenter}},
        {EditorIcon::AlignRight, {tr("Right"), Qt::AlignRight | Qt::AlignAbsolute}}};
    for (const auto &entry : positions) {
        auto *a = new RibbonCatSimpleAction(editorIcon(entry.first), entry.second.first, RibbonCatSimpleAction::SizeLarge, this);
        a->setToolTip(tr("Place the picture's paragraph: %1").arg(entry.second.first));
        position->addAction(a, -1);
        const Qt::Alignment alignment = entry.second.second;
        connect(a, &QAction::triggered, this, [this, alignment] {
            QTextCursor picture = pictureAt(d->edit->textCursor());
            if (picture.isNull())
                return;
            QTextBlockFormat f = picture.blockFormat();
            f.setAlignment(alignment);
            picture.setBlockFormat(f);
        });
    }
    arrangeTab->addCategory(position);
    d->pictureTools->addPanelAction(formatTab);
    d->pictureTools->addPanelAction(arrangeTab);
    bar.ribbonContextCategoryPanel().addContextPanelAction(d->pictureTools);
}

void EditorDemo::buildStatusBar()
{
    RibbonStatusBar &status = ribbonStatusBar();
    d->pageStatus = new RibbonCatMenuAction(editorIcon(EditorIcon::Page, DemoColors::Ink), tr("Page 1 of 1"),
                                            RibbonCatMenuAction::MenuTypeButton, RibbonCatMenuAction::MenuSizeMedium,
                                            RibbonCatMenuAction::PopupMenu, this);
    auto *top = new RibbonSimpleAction(tr("Go to Beginning"), this);
    auto *end = new RibbonSimpleAction(tr("Go to End"), this);
    connect(top, &QAction::triggered, this, [this] { d->edit->moveCursor(QTextCursor::Start); });
    connect(end, &QAction::triggered, this, [this] { d->edit->moveCursor(QTextCursor::End); });
    d->pageStatus->addAction(top, false);
    d->pageStatus->addAction(end, false);
    d->wordStatus = new RibbonCatMenuAction(editorIcon(EditorIcon::Words, DemoColors::Ink), tr("0 words"),
                                            RibbonCatMenuAction::MenuTypeButton, RibbonCatMenuAction::MenuSizeMedium,
                                            RibbonCatMenuAction::PopupMenu, this);
    auto *stats = new RibbonSimpleAction(tr("Word Count..."), this);
    connect(stats, &QAction::triggered, this, [this] {
        const QString plain = d->edit->toPlainText();
        const int words = plain.split(QRegExp(QStringLiteral("\\s+")), Qt::SkipEmptyParts).size();
        QMessageBox::information(this, tr("Word Count"),
                                 tr("Words: %1\nCharacters: %2\nParagraphs: %3")
                                     .arg(words)
                                     .arg(plain.size())
                                     .arg(d->edit->document()->blockCount()));
    });
    d->wordStatus->addAction(stats, false);
    // Menu buttons go in front of the ones already there.
    status.addAction(d->wordStatus);
    status.addAction(d->pageStatus);
    d->zoom = new RibbonPercAction(10, 400, 100, this);
    status.addAction(d->zoom);
    connect(d->zoom, &RibbonPercAction::percentageChanged, this, [this](int p) { d->edit->setZoom(p); });
}

void EditorDemo::buildFilePage()
{
    BackstageView &backstage = backstageView();
    QVBoxLayout *body = nullptr;
    QWidget *newPane = titledPane(tr("New"), body);
    auto *tiles = new QHBoxLayout;
    tiles->setSpacing(16);
    QToolButton *blank = tileButton(tr("Blank document"), editorIcon(EditorIcon::NewDocument), newPane);
    QToolButton *sample = tileButton(tr("Sample document"), editorIcon(EditorIcon::Table), newPane);
    tiles->addWidget(blank);
    tiles->addWidget(sample);
    tiles->addStretch();
    body->addLayout(tiles);
    body->addStretch();
    connect(blank, &QToolButton::clicked, this, [this] {
        newDocument();
        showMainView();
    });
    connect(sample, &QToolButton::clicked, this, [this] {
        loadSampleDocument();
        showMainView();
    });

    QWidget *openPane = titledPane(tr("Open"), body);
    auto *browse = tileButton(tr("Browse..."), editorIcon(EditorIcon::OpenFolder), openPane);
    body->addWidget(browse);
    connect(browse, &QToolButton::clicked, this, &EditorDemo::open);
    auto *recentTitle = new QLabel(tr("Recent Documents"), openPane);
    QFont mid = recentTitle->font();
    mid.setPointSizeF(mid.pointSizeF() * 1.6);
    recentTitle->setFont(mid);
    followRibbonStyle(recentTitle, [recentTitle](const zel::RibbonStyle &style) {
        recentTitle->setStyleSheet(textColorSheet(style.backstageBlackTextColor()));
    });
    body->addSpacing(8);
    body->addWidget(recentTitle);
    d->recentView = new QListView(openPane);
    d->recentView->setFrameShape(QFrame::NoFrame);
    d->recentView->setMaximumWidth(560);
    d->recentView->setMouseTracking(true);
    d->recentView->setSelectionMode(QAbstractItemView::NoSelection);
    d->recentView->setModel(d->recent);
    d->recentView->setItemDelegate(new RecentDelegate(d->recentView));
    body->addWidget(d->recentView, 1);
    connect(d->recentView, &QListView::clicked, this, [this](const QModelIndex &index) {
        const auto entry = index.data(Qt::UserRole).value<QSharedPointer<BackstageListItem>>();
        if (!entry || entry->isSeparator())
            return;
        const QPoint at = d->recentView->viewport()->mapFromGlobal(QCursor::pos());
        if (RecentDelegate::pinRect(d->recentView->visualRect(index)).contains(at)) {
            d->recent->pinItem(index);
            writeSettings();
            return;
        }
        d->recent->selectItem(index);
    });
    connect(d->recent, &BackstageListModel::itemSelected, this, [this](const QString &path) {
        if (openDocument(path))
            showMainView();
    });

    QWidget *infoPane = titledPane(tr("Info"), body);
    d->info = new DocumentInfoPane(d->shortcuts, infoPane);
    d->info->setMaximumWidth(640);
    body->addWidget(d->info, 1);

    backstage.addItem(tr("Info"), infoPane);
    backstage.addItem(tr("New"), newPane);
    backstage.addItem(tr("Open"), openPane);
    backstage.addItem(tr("Save"), nullptr);
    backstage.addItem(tr("Save As"), nullptr);
    backstage.addItem(tr("Close"), nullptr);
    backstage.addSeparator();
    backstage.addItem(tr("Options"), nullptr);
    backstage.addItem(tr("Exit"), nullptr);
    connect(&backstage, &BackstageView::itemClicked, this, [this](const QString &name) {
        auto is = [&name](const char *item) { return name.compare(QLatin1String(item), Qt::CaseInsensitive) == 0; };
        if (is("Save")) {
            showMainView();
            save();
        } else if (is("Save As")) {
            showMainView();
            saveAs();
        } else if (is("Close")) {
            if (closeDocument())
                showMainView();
        } else if (is("Options")) {
            showOptions();
        } else if (is("Exit")) {
            close();
        }
    });
}

void EditorDemo::buildWelcomeScreen()
{
    BackstageWelcomeScreen &welcome = welcomeScreen();
    welcome.setTitle(AppName);
    welcome.setRecentModel(d->recent);
    welcome.addTemplate(tr("Letter"), templatePreview(true));
    welcome.addTemplate(tr("Report"), templatePreview(false));
    connect(&welcome, &BackstageWelcomeScreen::blankDocumentSelected, this, [this] {
        newDocument();
        showMainView();
    });
    connect(&welcome, &BackstageWelcomeScreen::templateSelected, this, [this](const QString &name) {
        newDocument();
        if (name == tr("Report"))
            loadSampleDocument();
        else
            d->edit->setHtml(tr("<p>Dear reader,</p><p></p><p>Kind regards,</p>"));
        showMainView();
    });
}

// How the ribbon, the contextual tabs and the status bar follow the current editor.
void EditorDemo::followEditor()
{
    d->updateWords = [this] {
        const QString plain = d->edit->toPlainText();
        const int words = plain.split(QRegExp(QStringLiteral("\\s+")), Qt::SkipEmptyParts).size();
        d->wordStatus->setText(words == 1 ? tr("1 word") : tr("%1 words").arg(words));
    };
    d->updatePage = [this] {
        // Pages of the printed layout: an A4 page holds about 1000 pixels of text at 100 %.
        const qreal pageHeight = 1000.0 * d->edit->zoom() / 100.0;
        const qreal height = d->edit->document()->size().height();
        const int pages = qMax(1, int(std::ceil(height / pageHeight)));
        const int y = d->edit->cursorRect().top() + d->edit->verticalScrollBar()->value();
        const int page = qBound(1, int(y / pageHeight) + 1, pages);
        d->pageStatus->setText(tr("Page %1 of %2").arg(page).arg(pages));
    };
    d->updateFormat = [this](const QTextCharFormat &format) {
        d->syncing = true;
        d->bold->setChecked(format.fontWeight() >= QFont::Bold);
        d->italic->setChecked(format.fontItalic());
        d->underline->setChecked(format.fontUnderline());
        d->strike->setChecked(format.fontStrikeOut());
        QFont family(format.fontFamily().isEmpty() ? d->edit->document()->defaultFont().family() : format.fontFamily());
        if (family.family() != d->family->fontFamily().family())
            d->family->setFontFamily(family);
        const qreal points = format.fontPointSize() > 0 ? format.fontPointSize() : 11;
        d->size->setSelectionText(QString::number(points));
        d->colors.follow(format);
        d->styles.follow();
        d->syncing = false;
    };
    d->updateBlock = [this] {
        d->syncing = true;
        const Qt::Alignment a = d->edit->alignment();
        if (a & Qt::AlignHCenter)
            d->alignCenter->setChecked(true);
        else if (a & Qt::AlignRight)
            d->alignRight->setChecked(true);
        else if (a & Qt::AlignJustify)
            d->justify->setChecked(true);
        else
            d->alignLeft->setChecked(true);
        QTextList *list = d->edit->textCursor().currentList();
        const auto style = list ? list->format().style() : QTextListFormat::ListStyleUndefined;
        d->bullets->setChecked(list && style >= QTextListFormat::ListSquare && style <= QTextListFormat::ListDisc);
        d->numbering->setChecked(list && style < QTextListFormat::ListSquare);
        d->styles.follow();
        d->syncing = false;
    };
    d->updateContext = [this] {
        QTextCursor cursor = d->edit->textCursor();
        RibbonContextCategoryPanelAction *wanted = nullptr;
        if (cursor.currentTable()) {
            wanted = d->tableTools;
        } else if (!pictureAt(cursor).isNull()) {
            wanted = d->pictureTools;
        }
        RibbonMenuBar &bar = ribbonMenuBar();
        RibbonContextCategoryPanelAction *shown = bar.displayedContextPanel();
        if (shown == wanted)
            return;
        if (wanted)
            bar.showContextPanelAction(wanted);
        else if (shown)
            bar.hideContextPanelAction(shown);
    };
}

// The editor's signals reach the ribbon only while its document is the current one;
// the tab and the title follow each document's changes.
void EditorDemo::connectEditor(Document *document)
{
    PageEdit *edit = document->edit;
    auto whenCurrent = [this, document](const std::function<void()> &update) {
        return [this, document, update] {
            if (document == d->current)
                update();
        };
    };
    connect(edit, &QTextEdit::textChanged, this, whenCurrent([this] {
        d->updateWords();
        d->updatePage();
    }));
    connect(edit, &QTextEdit::cursorPositionChanged, this, whenCurrent([this] {
        d->updatePage();
        d->updateBlock();
        d->updateContext();
    }));
    connect(edit, &QTextEdit::selectionChanged, this, whenCurrent([this] { d->updateContext(); }));
    connect(edit, &QTextEdit::currentCharFormatChanged, this, [this, document](const QTextCharFormat &format) {
        if (document == d->current)
            d->updateFormat(format);
    });
    connect(edit, &QTextEdit::copyAvailable, this, [this, document](bool available) {
        if (document != d->current)
            return;
        d->cut->setEnabled(available);
        d->copy->setEnabled(available);
    });
    connect(edit, &QTextEdit::undoAvailable, this, [this, document](bool available) {
        if (document == d->current)
            d->quickUndo->setEnabled(available);
    });
    connect(edit, &QTextEdit::redoAvailable, this, [this, document](bool available) {
        if (document == d->current)
            d->quickRedo->setEnabled(available);
    });
    connect(edit->document(), &QTextDocument::modificationChanged, this, [this, document] { updateTitle(document); });
}

// Brings the ribbon and the status bar in line with the editor that just became current.
void EditorDemo::syncWithEditor()
{
    PageEdit *edit = d->edit;
    const bool selection = edit->textCursor().hasSelection();
    d->cut->setEnabled(selection);
    d->copy->setEnabled(selection);
    d->quickUndo->setEnabled(edit->document()->isUndoAvailable());
    d->quickRedo->setEnabled(edit->document()->isRedoAvailable());
    d->zoom->setPercentage(edit->zoom());
    d->updateWords();
    d->updatePage();
    d->updateFormat(edit->currentCharFormat());
    d->updateBlock();
    d->updateContext();
}

// Keys that work anywhere in the window; the File page's Info pane lists them with the
// editing keys of the document itself.
void EditorDemo::buildShortcuts()
{
    struct Key
    {
        QKeySequence keys;
        QString text;
        std::function<void()> run;
    };
    const QList<Key> keys = {
        {QKeySequence::New, tr("New document"), [this] { newDocument(); }},
        {QKeySequence::Open, tr("Open a document"), [this] { open(); }},
        {QKeySequence::Save, tr("Save the document"), [this] { save(); }},
        {QKeySequence(Qt::CTRL | Qt::Key_W), tr("Close the document"), [this] { closeDocument(); }},
        {QKeySequence(Qt::CTRL | Qt::Key_Tab), tr("Next document"),
         [this] { setCurrentDocument((currentDocument() + 1) % documentCount()); }},
        {QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Tab), tr("Previous document"),
         [this] { setCurrentDocument((currentDocument() + documentCount() - 1) % documentCount()); }},
        {QKeySequence::Bold, tr("Bold"), [this] { d->bold->trigger(); }},
        {QKeySequence::Italic, tr("Italic"), [this] { d->italic->trigger(); }},
        {QKeySequence::Underline, tr("Underline"), [this] { d->underline->trigger(); }},
    };
    for (const Key &key : keys) {
        auto *shortcut = new QShortcut(key.keys, this);
        shortcut->setContext(Qt::WindowShortcut);
        connect(shortcut, &QShortcut::activated, this, key.run);
        d->shortcuts.append({key.keys.toString(QKeySequence::NativeText), key.text});
    }
    // Handled by the text itself and by the ribbon.
    const QList<QPair<QKeySequence, QString>> builtIn = {
        {QKeySequence::Undo, tr("Undo")},
        {QKeySequence::Redo, tr("Redo")},
        {QKeySequence::Cut, tr("Cut")},
        {QKeySequence::Copy, tr("Copy")},
        {QKeySequence::Paste, tr("Paste")},
        {QKeySequence::SelectAll, tr("Select all")},
        {QKeySequence(Qt::CTRL | Qt::Key_F1), tr("Minimise or restore the ribbon")},
        {QKeySequence(Qt::Key_Escape), tr("Leave the File page")},
    };
    for (const auto &key : builtIn)
        d->shortcuts.append({key.first.toString(QKeySequence::NativeText), key.second});
}

RibbonOptionsDialog *EditorDemo::showOptions()
{
    RibbonOptionsDialog *dialog = makeEditorOptionsDialog(*this, *d->preferences);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->open();
    return dialog;
}

void EditorDemo::refreshInfo()
{
    if (!d->current || !d->info)
        return;
    DocumentInfoPane::Facts facts;
    facts.name = d->name(d->current);
    facts.path = d->current->path;
    facts.author = d->preferences->author();
    facts.modified = d->edit->document()->isModified();
    d->info->showDocument(facts, *d->edit->document());
}

void EditorDemo::zoomTo(int percent)
{
    percent = qBound(d->zoom->minimum(), percent, d->zoom->maximum());
    d->zoom->setPercentage(percent);
    d->edit->setZoom(percent);
}

void EditorDemo::zoomStep(int direction)
{
    // To the next multiple of ten in the given direction.
    const int now = d->edit->zoom();
    zoomTo(direction > 0 ? (now / 10 + 1) * 10 : ((now + 9) / 10 - 1) * 10);
}

EditorDemo::~EditorDemo()
{
    writeSettings();
}

QTextEdit *EditorDemo::editor() const
{
    return d->edit;
}

void EditorDemo::writeSettings()
{
    if (!d->settings)
        return;
    d->settings->setValue(KeyRecent, d->recent->saveState());
    d->settings->setValue(KeyHiddenQuick, quickAccessBar().disabledQuickAccessBarItems());
    d->settings->sync();
}

void EditorDemo::closeEvent(QCloseEvent *event)
{
    for (size_t i = 0; i < d->documents.size(); ++i) {
        if (!maybeSave(d->documents[i].get())) {
            event->ignore();
            return;
        }
    }
    writeSettings();
    RibbonMainWindow::closeEvent(event);
}

// Asks whether to save a changed document; false when the user cancels or the save
// fails.
bool EditorDemo::maybeSave(Document *document)
{
    QTextDocument *text = document->edit->document();
    if (!text->isModified() || text->isEmpty())
        return true;
    activate(document);
    const auto answer = QMessageBox::question(this, AppName, tr("Save the changes to %1?").arg(d->name(document)),
                                              QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel);
    if (answer == QMessageBox::Cancel)
        return false;
    if (answer == QMessageBox::Save) {
        save();
        return !text->isModified();
    }
    return true;
}

void EditorDemo::newDocument()
{
    Document *document = blankCurrentDocument();
    activate(document ? document : createDocument());
}

bool EditorDemo::openDocument(const QString &path)
{
    const QString absolute = QFileInfo(path).absoluteFilePath();
    for (const auto &document : d->documents) {
        if (document->path == absolute) {
            activate(document.get());
            return true;
        }
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        QMessageBox::warning(this, AppName, tr("Cannot open %1:\n%2").arg(QDir::toNativeSeparators(path), file.errorString()));
        return false;
    }
    Document *document = blankCurrentDocument();
    if (!document)
        document = createDocument();
    PageEdit *edit = document->edit;
    const QByteArray bytes = file.readAll();
    const QString suffix = QFileInfo(path).suffix().toLower();
    if (suffix == QLatin1String("html") || suffix == QLatin1String("htm") || Qt::mightBeRichText(QString::fromUtf8(bytes)))
        edit->setHtml(QString::fromUtf8(bytes));
    else
        edit->setPlainText(QString::fromUtf8(bytes));
    document->path = absolute;
    d->recent->addItem(absolute);
    edit->document()->setModified(false);
    edit->document()->clearUndoRedoStacks();
    activate(document);
    writeSettings();
    return true;
}

bool EditorDemo::saveDocument(const QString &path)
{
    Document *document = d->current;
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate)) {
        QMessageBox::warning(this, AppName, tr("Cannot save %1:\n%2").arg(QDir::toNativeSeparators(path), file.errorString()));
        return false;
    }
    const QString suffix = QFileInfo(path).suffix().toLower();
    const QString content = suffix == QLatin1String("txt") ? d->edit->toPlainText() : d->edit->toHtml();
    file.write(content.toUtf8());
    file.close();
    document->path = QFileInfo(path).absoluteFilePath();
    d->recent->addItem(document->path);
    d->edit->document()->setModified(false);
    updateTitle(document);
    writeSettings();
    return true;
}

bool EditorDemo::closeDocument()
{
    Document *document = d->current;
    if (!document || !maybeSave(document))
        return false;
    const int index = d->tabIndex(document);
    removeDocument(document);
    if (d->documents.empty())
        createDocument();
    setCurrentDocument(qMin(index, documentCount() - 1));
    return true;
}

void EditorDemo::save()
{
    if (d->current->path.isEmpty())
        saveAs();
    else
        saveDocument(d->current->path);
}

void EditorDemo::saveAs()
{
    const Document *document = d->current;
    const QString suggested = document->path.isEmpty()
        ? QDir::home().filePath(tr("Document%1.html").arg(document->untitled))
        : document->path;
    const QString path = QFileDialog::getSaveFileName(this, tr("Save As"), suggested,
                                                      tr("HTML documents (*.html *.htm);;Plain text (*.txt)"));
    if (!path.isEmpty())
        saveDocument(path);
}

void EditorDemo::open()
{
    const QString &current = d->current->path;
    const QString path = QFileDialog::getOpenFileName(this, tr("Open"), current.isEmpty() ? QDir::homePath() : QFileInfo(current).path(),
                                                      tr("Documents (*.html *.htm *.txt);;All files (*)"));
    if (!path.isEmpty() && openDocument(path))
        showMainView();
}

void EditorDemo::showBackstagePage(const QString &name)
{
    setActiveView(BackstagePanel);
    backstageView().setCurrentItem(name);
}

void EditorDemo::loadSampleDocument()
{
    newDocument();
    PageEdit *edit = d->edit;
    edit->setHtml(tr(
        "<h1 style='color:#2B579A; font-weight:normal'>Harbour Renewal Project</h1>"
        "<p style='color:#666666'><i>Quarterly report \u2014 prepared for the steering group</i></p>"
        "<p>The second quarter brought the <b>new quay wall</b> to completion and the dredging "
        "works close to their final depth. Costs remain <u>within the approved budget</u>, while the "
        "schedule gained two weeks thanks to the mild winter.</p>"
        "<h2 style='color:#2B579A; font-weight:normal'>Highlights</h2>"
        "<ul><li>Quay wall finished and inspected</li>"
        "<li>Dredging at <b>92 %</b> of the planned volume</li>"
        "<li>Public walkway opened one month early</li></ul>"
        "<h2 style='color:#2B579A; font-weight:normal'>Budget overview</h2>"));
    QTextCursor cursor(edit->document());
    cursor.movePosition(QTextCursor::End);
    QTextTableFormat f = documentTableFormat(5);
    f.setColumnWidthConstraints({QTextLength(QTextLength::PercentageLength, 34), QTextLength(QTextLength::PercentageLength, 22),
                                 QTextLength(QTextLength::PercentageLength, 22), QTextLength(QTextLength::PercentageLength, 22)});
    const QStringList rows[4] = {{tr("Work package"), tr("Budget"), tr("Spent"), tr("Status")},
                                 {tr("Quay wall"), tr("4.2 M"), tr("4.0 M"), tr("Done")},
                                 {tr("Dredging"), tr("2.8 M"), tr("2.5 M"), tr("On track")},
                                 {tr("Walkway"), tr("0.9 M"), tr("0.6 M"), tr("Open", "status of a work package")}};
    QTextTable *table = cursor.insertTable(4, 4, f);
    QTextCharFormat head;
    head.setFontWeight(QFont::Bold);
    head.setForeground(QColor(0x1F, 0x3F, 0x70));
    for (int r = 0; r < 4; ++r) {
        for (int c = 0; c < 4; ++c) {
            QTextTableCell cell = table->cellAt(r, c);
            if (r == 0) {
                QTextCharFormat cf = cell.format();
                cf.setBackground(QColor(0xDD, 0xE8, 0xF6));
                cell.setFormat(cf);
            }
            cell.firstCursorPosition().insertText(rows[r].at(c), r == 0 ? head : QTextCharFormat());
        }
    }
    cursor.movePosition(QTextCursor::End);
    cursor.insertBlock();
    cursor.insertText(tr("Progress of the dredging works per month:"));
    cursor.insertBlock();
    insertChartPicture(cursor, d->pictures++);
    cursor.insertBlock();
    cursor.insertText(tr("The next report follows at the end of the third quarter."));
    edit->moveCursor(QTextCursor::Start);
    edit->document()->setModified(false);
    edit->document()->clearUndoRedoStacks();
    updateTitle(d->current);
    d->navigation->refresh();
}

void EditorDemo::activateContextTab(const QString &name)
{
    RibbonContextCategoryPanelAction *shown = ribbonMenuBar().displayedContextPanel();
    if (!shown)
        return;
    // The bar may show (and store) tab names in capitals.
    for (RibbonCategoriesPanelAction *tab : shown->panelActions()) {
        if (tab->text().compare(name, Qt::CaseInsensitive) == 0)
            tab->setChecked(true);
    }
}

void EditorDemo::moveCursorIntoTable()
{
    for (QTextBlock block = d->edit->document()->begin(); block.isValid(); block = block.next()) {
        QTextCursor cursor(block);
        if (QTextTable *table = cursor.currentTable()) {
            d->edit->setTextCursor(table->cellAt(1, 0).firstCursorPosition());
            return;
        }
    }
}

void EditorDemo::selectFirstPicture()
{
    QTextDocument *doc = d->edit->document();
    for (int pos = 0; pos < doc->characterCount() - 1; ++pos) {
        if (isPictureAt(doc, pos)) {
            QTextCursor picture(doc);
            picture.setPosition(pos);
            picture.setPosition(pos + 1, QTextCursor::KeepAnchor);
            d->edit->setTextCursor(picture);
            return;
        }
    }
}
