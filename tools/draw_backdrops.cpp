// draw_backdrops: draws the picture under each of the seven screens with the very code that
// draws them in the game's windows, for the web page, which lays its controls over them. The
// office is drawn twice, with its column of buttons all enabled and all grey, so that the page
// can show a grey button by showing that part of the grey picture. At a scale of 2 the
// pictures are drawn at twice the pixels, as a scaled desktop draws them, so they stay sharp.
//
//   draw_backdrops FOLDER SCALE   writes FOLDER/NAME.png (scale 1) or FOLDER/NAME@2x.png
//                                 (scale 2), and at scale 1 the icons icon-32.png, icon-192.png

#include <QApplication>
#include <QDir>
#include <QPainter>
#include <QPixmap>
#include <QWidget>
#include <cstdio>
#include <functional>
#include <string>
#include <tuple>
#include <vector>

#include "app/qt/pictures.h"
#include "core/forms.h"

namespace {

using namespace tourvane;

/// A window that only paints a picture: grabbed, it gives the picture as a screen shows it.
class Canvas : public QWidget {
  public:
    Canvas(const FormState& form, std::function<void(QPainter&)> paint) : paint_(std::move(paint)) {
        setFixedSize(form.width, form.height);
        setAttribute(Qt::WA_DontShowOnScreen);
    }

  protected:
    void paintEvent(QPaintEvent*) override {
        QPainter p(this);
        paint_(p);
    }

  private:
    std::function<void(QPainter&)> paint_;
};

/// The office's buttons as the office screen draws them, all enabled or all grey.
std::vector<DrawnButton> all_buttons(const OfficeForm& office, bool enabled) {
    std::vector<DrawnButton> buttons = drawn_buttons(office);
    for (DrawnButton& b : buttons) b.enabled = enabled;
    return buttons;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 3 || (std::string(argv[2]) != "1" && std::string(argv[2]) != "2")) {
        std::fprintf(stderr, "usage: draw_backdrops FOLDER 1|2\n");
        return 2;
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");  // no display is needed to draw
    qputenv("QT_SCALE_FACTOR", argv[2]);
    QApplication app(argc, argv);
    const QDir folder(QString::fromLocal8Bit(argv[1]));
    if (!folder.mkpath(".")) {
        std::fprintf(stderr, "draw_backdrops: cannot make %s\n", argv[1]);
        return 1;
    }
    const bool twice = std::string(argv[2]) == "2";
    const QString suffix = twice ? "@2x.png" : ".png";

    Forms forms;
    const std::vector<DrawnButton> lit = all_buttons(forms.main, true);
    const std::vector<DrawnButton> grey = all_buttons(forms.main, false);
    const std::vector<std::tuple<const char*, const FormState*, std::function<void(QPainter&)>>>
        pictures{
            {"title", &forms.Form1, [](QPainter& p) { paint_title(p); }},
            {"office", &forms.main, [&](QPainter& p) { paint_office(p, lit); }},
            {"office-grey", &forms.main, [&](QPainter& p) { paint_office(p, grey); }},
            {"memo", &forms.messageForm, [](QPainter& p) { paint_memo(p); }},
            {"gig", &forms.gig, [](QPainter& p) { paint_gig(p); }},
            {"newspaper", &forms.thenewspaper, [](QPainter& p) { paint_newspaper(p); }},
            {"files", &forms.savefrm, [](QPainter& p) { paint_files(p); }},
            {"chart", &forms.Chart, [](QPainter& p) { paint_chart(p); }},
        };
    for (const auto& [name, form, paint] : pictures) {
        Canvas canvas(*form, paint);
        const QString file = folder.filePath(QString(name) + suffix);
        const QPixmap picture = canvas.grab();
        if (picture.devicePixelRatio() != (twice ? 2.0 : 1.0) || !picture.save(file, "PNG")) {
            std::fprintf(stderr, "draw_backdrops: cannot draw %s\n", qPrintable(file));
            return 1;
        }
    }
    if (!twice) {
        for (int size : {32, 192}) {
            const QString file = folder.filePath(QString("icon-%1.png").arg(size));
            if (!program_icon(size).save(file, "PNG")) {
                std::fprintf(stderr, "draw_backdrops: cannot write %s\n", qPrintable(file));
                return 1;
            }
        }
    }
    return 0;
}
