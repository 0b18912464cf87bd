// make_icons: draws the game's icon at the sizes a desktop asks for, with the very code that
// draws it in the game's windows, and writes one PNG a size and one scalable SVG.
//
//   make_icons FOLDER SIZE...   writes FOLDER/SIZExSIZE.png for each SIZE and FOLDER/icon.svg

#include <QDir>
#include <QGuiApplication>
#include <QPainter>
#include <QPixmap>
#include <QSvgGenerator>
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
    constexpr int kSvgSize = 42;  // the drawing's own units
    QSvgGenerator svg;
    svg.setFileName(folder.filePath("icon.svg"));
    svg.setSize(QSize(kSvgSize, kSvgSize));
    svg.setViewBox(QRect(0, 0, kSvgSize, kSvgSize));
    svg.setTitle("Tourvane");
    QPainter p;
    if (!p.begin(&svg)) {
        std::fprintf(stderr, "make_icons: cannot write icon.svg\n");
        return 1;
    }
    tourvane::paint_program_icon(p, kSvgSize);
    return p.end() ? 0 : 1;
}
