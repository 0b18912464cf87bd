// make_icons: draws the game's icon at the sizes a desktop asks for, with the very code that
// draws it in the game's windows, and writes one PNG a size.
//
//   make_icons FOLDER SIZE...   writes FOLDER/SIZExSIZE.png for each SIZE

#include <QDir>
#include <QGuiApplication>
#include <QPixmap>
#include <cstdio>
#include <cstdlib>

#include "app/qt/pictures.h"

int main(int argc, char** argv) {
    if (argc < 3) {
        std::fprintf(stderr, "usage: make_icons FOLDER SIZE...\n");
        return 2;
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");  // no display is needed to draw
    QGuiApplication app(argc, argv);
    const QDir folder(QString::fromLocal8Bit(argv[1]));
    if (!folder.mkpath(".")) return 1;
    for (int i = 2; i < argc; ++i) {
        const int size = std::atoi(argv[i]);
        const QString name = QString("%1x%1.png").arg(size);
        if (size <= 0 || !tourvane::program_icon(size).save(folder.filePath(name), "PNG")) {
            std::fprintf(stderr, "make_icons: cannot write %s\n", qPrintable(name));
            return 1;
        }
    }
    return 0;
}
