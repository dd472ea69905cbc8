#include "EditorDemoPickers.h"

#include "EditorDemoIcons.h"

#include "RibbonCatColorMenuAction.h"
#include "RibbonCatMenuAction.h"
#include "RibbonCategoryAction.h"
#include "RibbonSimpleAction.h"

#include <QApplication>
#include <QPainter>
#include <QPixmap>
#include <QSignalBlocker>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextEdit>

#include <functional>

using namespace zel;

namespace {

// The context of this file's texts in the demo's catalogue.
struct EditorPickers
{
    Q_DECLARE_TR_FUNCTIONS(EditorPickers)
};

// Changes the character format of the selection, or of the word under the cursor, and
// the format of what is typed next. Unlike a merge it can also remove a property.
void changeCharFormat(QTextEdit *edit, const std::function<void(QTextCharFormat &)> &change)
{
    QTextCursor cursor = edit->textCursor();
    if (!cursor.hasSelection())
        cursor.select(QTextCursor::WordUnderCursor);
    if (cursor.hasSelection()) {
        // Each run of one format keeps its other properties; collected first, since
        // setting a format merges and splits the runs.
        struct Run
        {
            int start;
            int end;
            QTextCharFormat format;
        };
        QVector<Run> runs;
        const int start = cursor.selectionStart();
        const int end = cursor.selectionEnd();
        for (QTextBlock block = edit->document()->findBlock(start); block.isValid() && block.position() < end;
             block = block.next()) {
            for (auto it = block.begin(); !it.atEnd(); ++it) {
                const QTextFragment fragment = it.fragment();
                const int from = qMax(fragment.position(), start);
                const int to = qMin(fragment.position() + fragment.length(), end);
                if (from < to)
                    runs.append({from, to, fragment.charFormat()});
            }
        }
        QTextCursor part(edit->document());
        part.beginEditBlock();
        for (Run &run : runs) {
            change(run.format);
            part.setPosition(run.start);
            part.setPosition(run.end, QTextCursor::KeepAnchor);
            part.setCharFormat(run.format);
        }
        part.endEditBlock();
    }
    QTextCharFormat typing = edit->currentCharFormat();
    change(typing);
    edit->setCurrentCharFormat(typing);
    edit->setFocus();
}

QIcon symbolIcon(const QString &symbol)
{
    QPixmap pixmap(48, 48);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::TextAntialiasing);
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(28);
    painter.setFont(font);
    painter.setPen(EditorColors::Ink);
    painter.drawText(pixmap.rect(), Qt::AlignCenter, symbol);
    painter.end();
    return QIcon(pixmap);
}

} // namespace

EditorColorCommands addColorCommands(RibbonCategoryAction &category, int row, const CurrentEditor &editor,
                                     QObject *owner)
{
    using Color = RibbonCatColorMenuAction;
    EditorColorCommands commands;
    commands.fontColor = new Color(editorIcon(EditorIcon::FontColor), EditorPickers::tr("Font Color"),
                                   Color::ColorSizeSmall, owner);
    commands.fontColor->setToolTip(EditorPickers::tr("Font Color"));
    commands.fontColor->setHasAutomaticColor(true);
    commands.fontColor->setAutomaticColor(QApplication::palette().color(QPalette::Text));
    commands.highlight = new Color(editorIcon(EditorIcon::Highlight), EditorPickers::tr("Text Highlight Color"),
                                   Color::ColorSizeSmall, owner);
    commands.highlight->setToolTip(EditorPickers::tr("Text Highlight Color"));
    commands.highlight->setHasNoneColor(true);
    // Every choice applies, also the colour the button shows already: the next selection
    // may have another.
    for (Color *action : {commands.fontColor, commands.highlight}) {
        action->setKeepSelection(false);
        category.addAction(action, row);
    }

    const auto apply = [editor](const std::function<void(QTextCharFormat &)> &change) {
        if (QTextEdit *edit = editor())
            changeCharFormat(edit, change);
    };
    QObject::connect(commands.fontColor, &Color::colorSet, owner, [apply](const QColor &color) {
        apply([color](QTextCharFormat &f) { f.setForeground(color); });
    });
    QObject::connect(commands.fontColor, &Color::automaticSet, owner,
                     [apply] { apply([](QTextCharFormat &f) { f.clearForeground(); }); });
    QObject::connect(commands.highlight, &Color::colorSet, owner, [apply](const QColor &color) {
        apply([color](QTextCharFormat &f) { f.setBackground(color); });
    });
    QObject::connect(commands.highlight, &Color::noneSet, owner,
                     [apply] { apply([](QTextCharFormat &f) { f.clearBackground(); }); });

    // The buttons show the colours at the cursor; following them applies nothing.
    const EditorColorCommands actions = commands;
    commands.follow = [actions](const QTextCharFormat &format) {
        {
            const QSignalBlocker quiet(actions.fontColor);
            if (format.hasProperty(QTextFormat::ForegroundBrush))
                actions.fontColor->setColor(format.foreground().color());
            else
                actions.fontColor->setAutomatic();
        }
        const QSignalBlocker quiet(actions.highlight);
        if (format.hasProperty(QTextFormat::BackgroundBrush) && format.background().style() != Qt::NoBrush)
            actions.highlight->setColor(format.background().color());
        else
            actions.highlight->setNone();
    };
    return commands;
}

RibbonCatMenuAction *makeSymbolPalette(const CurrentEditor &editor, QObject *owner)
{
    auto *palette = new RibbonCatMenuAction(editorIcon(EditorIcon::Symbol), EditorPickers::tr("Symbol"),
                                            RibbonCatMenuAction::MenuTypeButton, RibbonCatMenuAction::MenuSizeMedium,
                                            RibbonCatMenuAction::PopupPalette, owner);
    palette->setToolTip(EditorPickers::tr("Insert a symbol"));
    const QList<QPair<ushort, QString>> symbols = {
        {0x00A9, EditorPickers::tr("Copyright")}, {0x00AE, EditorPickers::tr("Registered")}, {0x2122, EditorPickers::tr("Trade mark")},
        {0x20AC, EditorPickers::tr("Euro")}, {0x00A3, EditorPickers::tr("Pound")}, {0x00A5, EditorPickers::tr("Yen")},
        {0x00B0, EditorPickers::tr("Degree")}, {0x00B1, EditorPickers::tr("Plus-minus")}, {0x00D7, EditorPickers::tr("Multiplication")},
        {0x00F7, EditorPickers::tr("Division")}, {0x2260, EditorPickers::tr("Not equal")}, {0x2248, EditorPickers::tr("Almost equal")},
        {0x2264, EditorPickers::tr("Less or equal")}, {0x2265, EditorPickers::tr("Greater or equal")},
        {0x221E, EditorPickers::tr("Infinity")}, {0x03C0, EditorPickers::tr("Pi")}, {0x03A9, EditorPickers::tr("Omega")},
        {0x00B5, EditorPickers::tr("Micro")}, {0x00A7, EditorPickers::tr("Section")}, {0x00B6, EditorPickers::tr("Pilcrow")},
        {0x2022, EditorPickers::tr("Bullet")}, {0x2026, EditorPickers::tr("Ellipsis")}, {0x2014, EditorPickers::tr("Em dash")},
        {0x2192, EditorPickers::tr("Right arrow")}, {0x2190, EditorPickers::tr("Left arrow")}, {0x2191, EditorPickers::tr("Up arrow")},
        {0x2193, EditorPickers::tr("Down arrow")}, {0x00BD, EditorPickers::tr("One half")}, {0x00BC, EditorPickers::tr("One quarter")},
        {0x2713, EditorPickers::tr("Check mark")}};
    for (const auto &symbol : symbols) {
        const QString text(QChar(symbol.first));
        auto *item = new RibbonSimpleAction(symbolIcon(text), text, owner);
        item->setToolTip(symbol.second);
        palette->addAction(item, false);
        QObject::connect(item, &QAction::triggered, owner, [editor, text] {
            if (QTextEdit *edit = editor()) {
                edit->textCursor().insertText(text);
                edit->setFocus();
            }
        });
    }
    return palette;
}
