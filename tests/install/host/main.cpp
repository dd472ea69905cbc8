// A host built against the installed package, as the README shows one. With --check it
// verifies that the ribbon came up and exits instead of running the event loop.
#include <zelRibbon/RibbonApplication.h>
#include <zelRibbon/RibbonCatSimpleAction.h>
#include <zelRibbon/RibbonCategoriesPanelAction.h>
#include <zelRibbon/RibbonCategoryAction.h>
#include <zelRibbon/RibbonMainWindow.h>
#include <zelRibbon/RibbonMenuBar.h>
#include <zelRibbon/RibbonStyle.h>

#include <QTextEdit>

#include <cstdio>
#include <cstring>

int main(int argc, char *argv[])
{
    zel::RibbonApplication app(argc, argv);        // in place of QApplication
    zel::RibbonMainWindow window;
    auto *editor = new QTextEdit;
    window.setCentralWidget(editor);

    // Commands. Row -1 lets the category stack its short commands three to a column.
    auto *paste = new zel::RibbonCatSimpleAction(QIcon::fromTheme(QStringLiteral("edit-paste")),
                                                 QStringLiteral("Paste"),
                                                 zel::RibbonCatSimpleAction::SizeLarge, &window);
    auto *cut = new zel::RibbonCatSimpleAction(QIcon::fromTheme(QStringLiteral("edit-cut")),
                                               QStringLiteral("Cut"),
                                               zel::RibbonCatSimpleAction::SizeMedium, &window);
    auto *copy = new zel::RibbonCatSimpleAction(QIcon::fromTheme(QStringLiteral("edit-copy")),
                                                QStringLiteral("Copy"),
                                                zel::RibbonCatSimpleAction::SizeMedium, &window);
    QObject::connect(paste, &QAction::triggered, editor, &QTextEdit::paste);
    QObject::connect(cut, &QAction::triggered, editor, &QTextEdit::cut);
    QObject::connect(copy, &QAction::triggered, editor, &QTextEdit::copy);

    auto *clipboard = new zel::RibbonCategoryAction(QStringLiteral("Clipboard"), &window);
    clipboard->addAction(paste, -1);
    clipboard->addAction(cut, -1);
    clipboard->addAction(copy, -1);

    auto *home = new zel::RibbonCategoriesPanelAction(QStringLiteral("Home"), &window);
    home->addCategory(clipboard);                  // a category needs its commands first
    window.ribbonMenuBar().addAction(home);        // the tab appears in the ribbon

    window.resize(1000, 700);
    window.show();

    if (argc > 1 && std::strcmp(argv[1], "--check") == 0) {
        QCoreApplication::processEvents();
        if (!window.ribbonMenuBar().menuBarButton(home) || !home->isChecked()) {
            std::fprintf(stderr, "the ribbon did not show its tab\n");
            return 1;
        }
        if (app.ribbonStyle().categoryTop().isNull()
            || QPixmap(QStringLiteral(":/zel/common/Resources/pinIcon.png")).isNull()) {
            std::fprintf(stderr, "compiled-in images are not registered\n");
            return 1;
        }
        std::printf("host ok\n");
        return 0;
    }
    return app.exec();
}
