#pragma once
// The game's pictures, drawn in code: the office with its column of buttons, the title
// stage, the backdrops of the smaller screens and the program's icon.

#include <QChar>
#include <QIcon>
#include <QImage>
#include <QPixmap>
#include <QRect>
#include <QString>
#include <vector>

#include "core/forms.h"

class QPainter;

namespace tourvane {

/// A button drawn in the office's left column, under its hot-spot.
struct DrawnButton {
    QRect rect;
    QString caption;
    QChar key;  ///< the keyboard shortcut, underlined in the caption
    bool enabled = true;
};

/// The office's buttons as the office stands, to draw.
std::vector<DrawnButton> drawn_buttons(const OfficeForm& office);

/// The office: a rehearsal room with panels for the controls and the column of buttons.
void paint_office(QPainter& p, const std::vector<DrawnButton>& buttons);

/// The title screen: a stage with amps, a lighting truss and a microphone.
void paint_title(QPainter& p);

/// A memo from the staff: a sheet of office paper.
void paint_memo(QPainter& p);

/// The gig booking screen: the venue and set list panels.
void paint_gig(QPainter& p);

/// The gig report: a cutting of newsprint.
void paint_newspaper(QPainter& p);

/// The save and load screen.
void paint_files(QPainter& p);

/// The music chart's decoration on its navy ground.
void paint_chart(QPainter& p);

/// The program's icon: a plectrum on a dark tile, `size` pixels square.
QPixmap program_icon(int size = 42);
/// The same drawn on any painter (a picture, an SVG file) at `size` units square.
void paint_program_icon(QPainter& p, qreal size);
/// The icon at every size a desktop asks of a window, 16 to 256 pixels.
QIcon program_icons();
/// The same sizes drawn into images: unlike pixmaps, any thread may draw them, so the game
/// draws its icon while its first window is being built. `program_icons(images)` is the icon.
std::vector<QImage> program_icon_images();
QIcon program_icons(const std::vector<QImage>& images);

}  // namespace tourvane
