#include "DocumentInfoPane.h"

#include "DemoStyle.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QFormLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QRegularExpression>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextFrame>
#include <QTextTable>
#include <QTreeWidget>

namespace {

QWidget *formPage(QFormLayout *&form)
{
    auto *page = new QWidget;
    form = new QFormLayout(page);
    form->setContentsMargins(16, 14, 16, 14);
    form->setHorizontalSpacing(24);
    form->setVerticalSpacing(8);
    form->setLabelAlignment(Qt::AlignLeft);
    return page;
}

// Tables anywhere in the frame tree below frame.
int countTables(QTextFrame *frame)
{
    int count = 0;
    for (QTextFrame *child : frame->childFrames())
        count += (qobject_cast<QTextTable *>(child) ? 1 : 0) + countTables(child);
    return count;
}

} // namespace

DocumentInfoPane::DocumentInfoPane(const QList<QPair<QString, QString>> &shortcuts, QWidget *parent)
    : RibbonStackedWidget(parent)
{
    QFormLayout *form = nullptr;
    QWidget *information = formPage(form);
    for (const QString &name : {tr("Name"), tr("Location"), tr("Size"), tr("Last saved"), tr("Author"), tr("State")})
        addRow(form, name);
    addItem(information, tr("Document information"));

    QWidget *statistics = formPage(form);
    for (const QString &name : {tr("Words"), tr("Characters (no spaces)"), tr("Characters (with spaces)"),
                                tr("Paragraphs"), tr("Headings"), tr("Tables"), tr("Pictures")})
        addRow(form, name);
    addItem(statistics, tr("Statistics"));

    auto *keys = new QTreeWidget;
    keys->setFrameShape(QFrame::NoFrame);
    keys->setRootIsDecorated(false);
    keys->setSelectionMode(QAbstractItemView::NoSelection);
    keys->setHeaderLabels({tr("Keys"), tr("Command")});
    keys->header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    for (const auto &shortcut : shortcuts)
        new QTreeWidgetItem(keys, {shortcut.first, shortcut.second});
    addItem(keys, tr("Keyboard shortcuts"));
}

void DocumentInfoPane::addRow(QFormLayout *form, const QString &name)
{
    auto *label = new QLabel;
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto *caption = new QLabel(name);
    followRibbonStyle(caption, [caption](const zel::RibbonStyle &style) {
        caption->setStyleSheet(textColorSheet(style.inactiveTextColor()));
    });
    form->addRow(caption, label);
    m_rows.append({name, label});
}

void DocumentInfoPane::showDocument(const Facts &facts, const QTextDocument &document)
{
    const QLocale locale;
    const QFileInfo file(facts.path);
    const bool saved = !facts.path.isEmpty() && file.exists();
    auto set = [this](const QString &name, const QString &text) {
        for (const auto &row : qAsConst(m_rows)) {
            if (row.first == name)
                row.second->setText(text);
        }
    };
    set(tr("Name"), facts.name);
    set(tr("Location"), saved ? QDir::toNativeSeparators(file.absolutePath()) : tr("Not saved yet"));
    set(tr("Size"), saved ? locale.formattedDataSize(file.size()) : tr("\u2014"));
    set(tr("Last saved"), saved ? locale.toString(file.lastModified(), QLocale::LongFormat) : tr("\u2014"));
    set(tr("Author"), facts.author.isEmpty() ? tr("Not set (File \u203a Options)") : facts.author);
    set(tr("State"), facts.modified ? tr("Unsaved changes") : tr("No unsaved changes"));

    const QString plain = document.toPlainText();
    int paragraphs = 0;
    int headings = 0;
    int pictures = 0;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        // Table cells are blocks too, but no paragraphs of the text.
        if (!block.text().trimmed().isEmpty() && !QTextCursor(block).currentTable())
            ++paragraphs;
        if (block.blockFormat().headingLevel() > 0)
            ++headings;
        for (QTextBlock::iterator it = block.begin(); !it.atEnd(); ++it) {
            if (it.fragment().charFormat().isImageFormat())
                pictures += it.fragment().length();
        }
    }
    const int words = plain.split(QRegularExpression(QStringLiteral("\\s+")), Qt::SkipEmptyParts).size();
    const int spaces = plain.count(QRegularExpression(QStringLiteral("\\s")));
    set(tr("Words"), locale.toString(words));
    set(tr("Characters (no spaces)"), locale.toString(plain.size() - spaces));
    set(tr("Characters (with spaces)"), locale.toString(plain.size()));
    set(tr("Paragraphs"), locale.toString(paragraphs));
    set(tr("Headings"), locale.toString(headings));
    set(tr("Tables"), locale.toString(countTables(document.rootFrame())));
    set(tr("Pictures"), locale.toString(pictures));
}
