// A host built against the installed package: the umbrella header, the exported
// classes and the compiled-in images must all be reachable without any set-up.
#include <zelRibbon.h>

#include <cstdio>

int main(int argc, char *argv[])
{
    zel::RibbonApplication app(argc, argv);
    const zel::RibbonStyle &style = app.ribbonStyle();
    if (style.categoryTop().isNull()) {
        std::fprintf(stderr, "compiled-in images are not registered\n");
        return 1;
    }
    if (QPixmap(QStringLiteral(":/zel/common/Resources/pinIcon.png")).isNull()) {
        std::fprintf(stderr, "common resources are not registered\n");
        return 1;
    }
    std::printf("host ok\n");
    return 0;
}
