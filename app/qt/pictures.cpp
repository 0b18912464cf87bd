#include "app/qt/pictures.h"

#include <QFont>
#include <QFontMetrics>
#include <QFontMetricsF>
#include <QLinearGradient>
#include <QPaintDevice>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>
#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>

#include "view/keys.h"

namespace tourvane {

namespace {

// The house colours.
const QColor kBrass(201, 151, 63);
const QColor kAmber(240, 182, 80);
const QColor kCream(246, 231, 200);
const QColor kSoot(14, 12, 18);

QFont sans(int pixels, bool bold = false) {
    QFont f;
    f.setFamilies({"Liberation Sans", "Arial", "DejaVu Sans"});
    f.setPixelSize(pixels);
    f.setBold(bold);
    return f;
}

QFont serif(int pixels, bool bold = false) {
    QFont f;
    f.setFamilies({"Liberation Serif", "Times New Roman", "DejaVu Serif"});
    f.setPixelSize(pixels);
    f.setBold(bold);
    return f;
}

QRect area(const QPainter& p) {
    return QRect(0, 0, p.device()->width(), p.device()->height());
}

/// A small fixed scramble, so the bricks and the weave vary without any random draw.
std::uint32_t scramble(std::uint32_t x) {
    x ^= x >> 16;
    x *= 0x7feb352dU;
    x ^= x >> 15;
    x *= 0x846ca68bU;
    x ^= x >> 16;
    return x;
}

/// Draws the edge of a shape with the current pen, leaving its inside as it is.
void outline(QPainter& p, const QPainterPath& path) {
    p.save();
    p.setBrush(Qt::NoBrush);
    p.drawPath(path);
    p.restore();
}

void paint_bricks(QPainter& p, const QRect& r) {
    constexpr int kRow = 14, kBrick = 40;
    p.fillRect(r, QColor(30, 24, 27));
    for (int y = r.top(), row = 0; y < r.bottom(); y += kRow, ++row) {
        const int offset = (row % 2) ? kBrick / 2 : 0;
        for (int x = r.left() - offset, col = 0; x < r.right(); x += kBrick, ++col) {
            const std::uint32_t h = scramble(static_cast<std::uint32_t>(row * 131 + col * 7919));
            const int shade = static_cast<int>(h % 18);
            const QColor brick(70 + shade, 40 + shade / 2, 38 + shade / 3);
            p.fillRect(QRect(x + 1, y + 1, kBrick - 2, kRow - 2).intersected(r), brick);
        }
    }
}

void panel(QPainter& p, const QRectF& r, int alpha = 226) {
    QPainterPath path;
    path.addRoundedRect(r, 6, 6);
    p.fillPath(path, QColor(kSoot.red(), kSoot.green(), kSoot.blue(), alpha));
    p.setPen(QPen(QColor(kBrass.red(), kBrass.green(), kBrass.blue(), 150), 1));
    outline(p, path);
}

void screw(QPainter& p, QPointF c) {
    QRadialGradient g(c - QPointF(1, 1), 4);
    g.setColorAt(0, QColor(170, 166, 160));
    g.setColorAt(1, QColor(70, 66, 64));
    p.setPen(Qt::NoPen);
    p.setBrush(g);
    p.drawEllipse(c, 3, 3);
    p.setPen(QPen(QColor(40, 38, 36), 1));
    p.drawLine(c + QPointF(-2, 0), c + QPointF(2, 0));
}

void knob(QPainter& p, QPointF c, qreal r, qreal turn) {
    QRadialGradient g(c - QPointF(r / 3, r / 3), r * 1.4);
    g.setColorAt(0, QColor(90, 86, 84));
    g.setColorAt(1, QColor(18, 16, 18));
    p.setPen(QPen(QColor(8, 8, 8), 1));
    p.setBrush(g);
    p.drawEllipse(c, r, r);
    p.setPen(QPen(QColor(235, 225, 205), 1.2));
    p.drawLine(c, c + QPointF(r * 0.8 * std::cos(turn), r * 0.8 * std::sin(turn)));
}

/// Draws a caption centred in `r` with its shortcut letter underlined.
void caption_with_key(QPainter& p, const QRectF& r, const QString& text, QChar key) {
    const QFontMetricsF fm(p.font());
    const qreal x0 = r.center().x() - fm.horizontalAdvance(text) / 2;
    const qreal baseline = r.center().y() + (fm.ascent() - fm.descent()) / 2;
    p.drawText(QPointF(x0, baseline), text);
    const int at = text.indexOf(key, 0, Qt::CaseInsensitive);
    if (at < 0) return;
    const qreal ux = x0 + fm.horizontalAdvance(text.left(at));
    const qreal uw = fm.horizontalAdvance(text.at(at));
    p.drawLine(QPointF(ux, baseline + 2), QPointF(ux + uw, baseline + 2));
}

void drawn_button(QPainter& p, const DrawnButton& b) {
    const QRectF r = QRectF(b.rect).adjusted(0.5, 0.5, -0.5, -0.5);
    QPainterPath path;
    path.addRoundedRect(r, 4, 4);
    QLinearGradient face(r.topLeft(), r.bottomLeft());
    if (b.enabled) {
        face.setColorAt(0, QColor(84, 74, 88));
        face.setColorAt(0.5, QColor(56, 49, 60));
        face.setColorAt(1, QColor(38, 33, 42));
    } else {
        face.setColorAt(0, QColor(44, 42, 46));
        face.setColorAt(1, QColor(34, 32, 36));
    }
    p.fillPath(path, face);
    p.setPen(QPen(b.enabled ? kBrass : QColor(64, 60, 66), 1));
    outline(p, path);
    if (b.enabled) {
        p.setPen(QPen(QColor(255, 240, 210, 50), 1));
        p.drawLine(r.topLeft() + QPointF(4, 1.5), r.topRight() + QPointF(-4, 1.5));
    }

    // The lamp at the left of each button: lit while the button can be pressed.
    const QPointF lamp(r.left() + 9, r.center().y());
    p.setPen(Qt::NoPen);
    if (b.enabled) {
        QRadialGradient glow(lamp, 6);
        glow.setColorAt(0, QColor(140, 255, 150, 200));
        glow.setColorAt(1, QColor(140, 255, 150, 0));
        p.setBrush(glow);
        p.drawEllipse(lamp, 6, 6);
        p.setBrush(QColor(120, 230, 130));
    } else {
        p.setBrush(QColor(58, 56, 60));
    }
    p.drawEllipse(lamp, 2.5, 2.5);

    p.setFont(sans(11, true));
    p.setPen(b.enabled ? kCream : QColor(104, 98, 108));
    caption_with_key(p, r.adjusted(14, 0, -2, 0), b.caption, b.key);
}

void paint_office_room(QPainter& p, const QRect& all) {
    paint_bricks(p, all);

    // Dim the wall, with a warm lamp over the desk.
    QLinearGradient dusk(all.topLeft(), all.bottomLeft());
    dusk.setColorAt(0, QColor(10, 8, 14, 190));
    dusk.setColorAt(0.5, QColor(10, 8, 14, 120));
    dusk.setColorAt(1, QColor(10, 8, 14, 205));
    p.fillRect(all, dusk);
    QRadialGradient lamp(QPointF(300, 250), 300);
    lamp.setColorAt(0, QColor(255, 180, 110, 46));
    lamp.setColorAt(1, QColor(255, 180, 110, 0));
    p.fillRect(all, lamp);

    // The name board across the top.
    QLinearGradient board(QPointF(0, 0), QPointF(0, 64));
    board.setColorAt(0, QColor(22, 19, 26));
    board.setColorAt(1, QColor(34, 29, 38));
    p.fillRect(QRect(0, 0, all.width(), 64), board);
    p.setPen(QPen(kBrass, 1));
    p.drawLine(0, 63, all.width(), 63);
    p.setPen(QPen(QColor(0, 0, 0, 160), 1));
    p.drawLine(0, 64, all.width(), 64);

    // The quit plate in the corner, under the X.
    QPainterPath plate;
    plate.addRoundedRect(QRectF(14.5, 10.5, 36, 44), 5, 5);
    p.fillPath(plate, QColor(60, 20, 22));
    p.setPen(QPen(QColor(150, 60, 56), 1));
    outline(p, plate);

    // The rack that holds the week's buttons.
    const QRectF rack(12.5, 70.5, 134, 334);
    QLinearGradient metal(rack.topLeft(), rack.topRight());
    metal.setColorAt(0, QColor(30, 28, 34));
    metal.setColorAt(0.5, QColor(44, 41, 48));
    metal.setColorAt(1, QColor(28, 26, 32));
    QPainterPath rack_path;
    rack_path.addRoundedRect(rack, 5, 5);
    p.fillPath(rack_path, metal);
    p.setPen(QPen(QColor(8, 7, 10), 1));
    outline(p, rack_path);
    for (qreal x : {rack.left() + 1, rack.right() - 10}) {
        p.fillRect(QRectF(x, rack.top() + 1, 9, rack.height() - 2), QColor(24, 22, 27));
        for (qreal y = rack.top() + 14; y < rack.bottom() - 6; y += 32)
            screw(p, QPointF(x + 4.5, y));
    }
    p.setFont(sans(10, true));
    p.setPen(QColor(170, 156, 132));
    p.drawText(QRectF(rack.left(), rack.top() + 8, rack.width(), 20), Qt::AlignCenter, "THIS WEEK");
    p.setPen(QPen(QColor(170, 156, 132, 120), 1));
    p.drawLine(QPointF(rack.left() + 28, rack.top() + 28),
               QPointF(rack.right() - 28, rack.top() + 28));

    // An amplifier head on the floor below the rack.
    const QRectF amp(12.5, 412.5, 134, 66);
    QPainterPath amp_path;
    amp_path.addRoundedRect(amp, 5, 5);
    p.fillPath(amp_path, QColor(20, 18, 22));
    p.setPen(QPen(QColor(4, 4, 6), 1));
    outline(p, amp_path);
    const QRectF face(amp.left() + 6, amp.top() + 6, amp.width() - 12, 20);
    QLinearGradient gold(face.topLeft(), face.bottomLeft());
    gold.setColorAt(0, QColor(196, 168, 110));
    gold.setColorAt(1, QColor(150, 124, 76));
    p.fillRect(face, gold);
    for (int k = 0; k < 6; ++k)
        knob(p, QPointF(face.left() + 14 + k * 19.5, face.center().y()), 6, 0.6 + 0.5 * k);
    const QRectF grille(amp.left() + 6, amp.top() + 30, amp.width() - 12, 30);
    p.fillRect(grille, QColor(46, 40, 36));
    p.setPen(QPen(QColor(80, 70, 60), 1));
    for (qreal x = grille.left() - grille.height(); x < grille.right(); x += 4)
        p.drawLine(
            QPointF(std::max(x, grille.left()), grille.top() + std::max(0.0, grille.left() - x)),
            QPointF(std::min(x + grille.height(), grille.right()),
                    grille.bottom() - std::max(0.0, x + grille.height() - grille.right())));
    p.setFont(sans(9, true));
    p.setPen(kAmber);
    p.drawText(grille, Qt::AlignCenter, "TOURVANE");

    // The panels that hold the office's papers.
    panel(p, QRectF(146.5, 78.5, 202, 86));    // promotion
    panel(p, QRectF(146.5, 170.5, 202, 96));   // track list
    panel(p, QRectF(184.5, 308.5, 158, 160));  // applicants
    panel(p, QRectF(346.5, 78.5, 240, 330));   // band members
    panel(p, QRectF(368.5, 412.5, 218, 66));   // cash and date

    // A neon sign on the wall between the panels.
    const QRectF sign(186.5, 274.5, 122, 26);
    QPainterPath sign_path;
    sign_path.addRoundedRect(sign, 4, 4);
    p.fillPath(sign_path, QColor(20, 12, 22, 220));
    p.setPen(QPen(QColor(255, 90, 170, 90), 3));
    outline(p, sign_path);
    p.setPen(QPen(QColor(255, 140, 200), 1));
    outline(p, sign_path);
    p.setFont(sans(12, true));
    p.setPen(QColor(255, 80, 160, 110));
    p.drawText(sign.translated(0, 1), Qt::AlignCenter, "REHEARSAL");
    p.setPen(QColor(255, 196, 228));
    p.drawText(sign, Qt::AlignCenter, "REHEARSAL");

    // A set list taped to the bricks.
    const QRectF sheet(152.5, 322.5, 26, 96);
    p.save();
    p.translate(sheet.center());
    p.rotate(-3);
    p.translate(-sheet.center());
    p.fillRect(sheet, QColor(222, 214, 196));
    p.setPen(QPen(QColor(60, 60, 90), 1));
    for (int k = 0; k < 9; ++k) {
        const qreal y = sheet.top() + 12 + k * 9;
        const qreal w = 8 + static_cast<qreal>(scramble(static_cast<std::uint32_t>(k) + 3U) % 10);
        p.drawLine(QPointF(sheet.left() + 4, y), QPointF(sheet.left() + 4 + w, y));
    }
    p.fillRect(QRectF(sheet.center().x() - 7, sheet.top() - 3, 14, 7), QColor(230, 220, 170, 170));
    p.restore();
}

}  // namespace

std::vector<DrawnButton> drawn_buttons(const OfficeForm& office) {
    std::vector<DrawnButton> drawn;
    for (const OfficeButton& b : office_buttons(office))
        drawn.push_back({QRect(b.rect.left, b.rect.top, b.rect.width, b.rect.height),
                         QString::fromStdString(b.caption), QChar(b.key), b.enabled});
    return drawn;
}

void paint_office(QPainter& p, const std::vector<DrawnButton>& buttons) {
    const QRect all = area(p);
    // Drawn once per size and device pixel ratio, in device pixels, so that it stays as sharp
    // as the controls over it on a scaled desktop.
    static QPixmap room;
    const qreal ratio = p.device()->devicePixelRatioF();
    if (room.deviceIndependentSize().toSize() != all.size() || room.devicePixelRatio() != ratio) {
        room = QPixmap((QSizeF(all.size()) * ratio).toSize());
        room.setDevicePixelRatio(ratio);
        QPainter rp(&room);
        rp.setRenderHint(QPainter::Antialiasing);
        paint_office_room(rp, all);
    }
    p.drawPixmap(0, 0, room);
    p.setRenderHint(QPainter::Antialiasing);
    for (const DrawnButton& b : buttons) drawn_button(p, b);
}

namespace {

void speaker_cabinet(QPainter& p, const QRectF& r) {
    QPainterPath box;
    box.addRoundedRect(r, 4, 4);
    p.fillPath(box, QColor(18, 16, 20));
    p.setPen(QPen(QColor(60, 56, 62), 1.5));
    outline(p, box);
    const QRectF cloth = r.adjusted(6, 6, -6, -6);
    p.fillRect(cloth, QColor(34, 31, 36));
    const qreal rad = std::min(cloth.width(), cloth.height()) / 4.4;
    for (int row = 0; row < 2; ++row) {
        for (int col = 0; col < 2; ++col) {
            const QPointF c(cloth.left() + cloth.width() * (0.25 + 0.5 * col),
                            cloth.top() + cloth.height() * (0.25 + 0.5 * row));
            QRadialGradient cone(c, rad);
            cone.setColorAt(0, QColor(70, 66, 72));
            cone.setColorAt(0.25, QColor(22, 20, 24));
            cone.setColorAt(0.9, QColor(44, 41, 46));
            cone.setColorAt(1, QColor(12, 11, 14));
            p.setPen(Qt::NoPen);
            p.setBrush(cone);
            p.drawEllipse(c, rad, rad);
        }
    }
}

void amp_stack(QPainter& p, qreal left, qreal floor) {
    speaker_cabinet(p, QRectF(left, floor - 92, 112, 92));
    speaker_cabinet(p, QRectF(left, floor - 186, 112, 92));
    const QRectF head(left + 2, floor - 220, 108, 32);
    QPainterPath path;
    path.addRoundedRect(head, 4, 4);
    p.fillPath(path, QColor(16, 14, 18));
    const QRectF face = head.adjusted(5, 6, -5, -12);
    p.fillRect(face, QColor(176, 150, 98));
    for (int k = 0; k < 6; ++k)
        knob(p, QPointF(face.left() + 8 + k * 16.5, face.center().y()), 4.5, 0.4 + 0.7 * k);
    p.setPen(QPen(QColor(240, 80, 60), 2));
    p.drawPoint(QPointF(head.right() - 8, head.bottom() - 6));
}

void light_beam(QPainter& p, QPointF from, QPointF to, qreal spread, QColor colour) {
    QPainterPath beam;
    beam.moveTo(from + QPointF(-5, 0));
    beam.lineTo(to + QPointF(-spread, 0));
    beam.lineTo(to + QPointF(spread, 0));
    beam.lineTo(from + QPointF(5, 0));
    beam.closeSubpath();
    QLinearGradient fade(from, to);
    QColor bright = colour, dim = colour;
    bright.setAlpha(120);
    dim.setAlpha(0);
    fade.setColorAt(0, bright);
    fade.setColorAt(1, dim);
    p.fillPath(beam, fade);
    QRadialGradient pool(to, spread * 1.2);
    QColor pool_colour = colour;
    pool_colour.setAlpha(60);
    pool.setColorAt(0, pool_colour);
    pool.setColorAt(1, dim);
    p.setPen(Qt::NoPen);
    p.setBrush(pool);
    p.drawEllipse(to, spread * 1.2, spread * 0.3);
}

}  // namespace

void paint_title(QPainter& p) {
    const QRect all = area(p);
    const qreal w = all.width(), h = all.height();
    p.setRenderHint(QPainter::Antialiasing);

    // Backdrop.
    QLinearGradient night(QPointF(0, 0), QPointF(0, h));
    night.setColorAt(0, QColor(8, 7, 16));
    night.setColorAt(0.7, QColor(30, 14, 40));
    night.setColorAt(1, QColor(12, 8, 16));
    p.fillRect(all, night);

    // Stage floor with its boards and front edge.
    const qreal stage = 392;
    QLinearGradient boards(QPointF(0, stage), QPointF(0, h));
    boards.setColorAt(0, QColor(44, 30, 26));
    boards.setColorAt(1, QColor(20, 14, 12));
    p.fillRect(QRectF(0, stage, w, h - stage), boards);
    p.setPen(QPen(QColor(10, 7, 6), 1));
    for (int k = -12; k <= 12; ++k)
        p.drawLine(QPointF(w / 2 + k * 26, stage), QPointF(w / 2 + k * 70, h));
    p.setPen(QPen(QColor(120, 90, 60), 2));
    p.drawLine(QPointF(0, stage), QPointF(w, stage));

    // Lights on the truss, their beams falling onto the stage.
    const std::array<QColor, 6> gels{QColor(255, 60, 160), QColor(255, 190, 70),
                                     QColor(80, 200, 255), QColor(80, 200, 255),
                                     QColor(255, 190, 70), QColor(255, 60, 160)};
    const std::array<qreal, 6> hang{70, 170, 262, 374, 466, 566};
    const std::array<qreal, 6> aim{170, 250, 300, 336, 386, 466};
    p.setCompositionMode(QPainter::CompositionMode_Plus);
    for (std::size_t k = 0; k < gels.size(); ++k)
        light_beam(p, QPointF(hang[k], 96), QPointF(aim[k], stage + 30), 60, gels[k]);
    p.setCompositionMode(QPainter::CompositionMode_SourceOver);

    // The truss.
    const QRectF truss(10, 76, w - 20, 14);
    p.setPen(QPen(QColor(150, 150, 160), 2));
    p.drawLine(truss.topLeft(), truss.topRight());
    p.drawLine(truss.bottomLeft(), truss.bottomRight());
    p.setPen(QPen(QColor(120, 120, 130), 1));
    for (qreal x = truss.left(); x < truss.right(); x += 14) {
        p.drawLine(QPointF(x, truss.top()), QPointF(x + 14, truss.bottom()));
        p.drawLine(QPointF(x + 14, truss.top()), QPointF(x, truss.bottom()));
    }
    for (std::size_t k = 0; k < hang.size(); ++k) {
        const QPointF c(hang[k], truss.bottom() + 4);
        p.setPen(QPen(QColor(30, 30, 34), 1));
        p.setBrush(QColor(44, 44, 50));
        p.drawRoundedRect(QRectF(c.x() - 9, c.y() - 2, 18, 14), 3, 3);
        p.setBrush(gels[k].lighter(130));
        p.setPen(Qt::NoPen);
        p.drawEllipse(QPointF(c.x(), c.y() + 10), 6, 3);
    }

    // Stage haze.
    QRadialGradient haze(QPointF(w / 2, stage - 40), w / 2);
    haze.setColorAt(0, QColor(255, 255, 255, 26));
    haze.setColorAt(1, QColor(255, 255, 255, 0));
    p.fillRect(all, haze);

    // Amp stacks on both sides.
    amp_stack(p, 26, stage + 12);
    amp_stack(p, w - 26 - 112, stage + 12);

    // The microphone at the front of the stage.
    const QPointF mic_base(w / 2, h - 20);
    p.setPen(QPen(QColor(20, 20, 22), 4, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(mic_base, QPointF(w / 2, 380));
    p.drawLine(QPointF(w / 2, 380), QPointF(w / 2 + 26, 368));
    p.setPen(QPen(QColor(20, 20, 22), 3, Qt::SolidLine, Qt::RoundCap));
    for (int dx : {-22, 0, 22}) p.drawLine(mic_base, mic_base + QPointF(dx, 12));
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(70, 70, 76));
    p.drawEllipse(QPointF(w / 2 + 30, 366), 7, 6);
    p.setBrush(QColor(150, 150, 160));
    p.drawEllipse(QPointF(w / 2 + 31, 365), 3, 2.5);

    // The line under the name and the plate behind the menu.
    p.setFont(sans(13, false));
    p.setPen(QColor(226, 208, 176));
    p.drawText(QRectF(0, 50, w, 20), Qt::AlignCenter, "the rock band management game");
    QPainterPath menu;
    menu.addRoundedRect(QRectF(220.5, 204.5, 200, 162), 10, 10);
    p.fillPath(menu, QColor(10, 8, 14, 200));
    p.setPen(QPen(QColor(kBrass.red(), kBrass.green(), kBrass.blue(), 200), 1.5));
    outline(p, menu);
}

void paint_memo(QPainter& p) {
    const QRect all = area(p);
    p.setRenderHint(QPainter::Antialiasing);
    QLinearGradient paper(all.topLeft(), all.bottomRight());
    paper.setColorAt(0, QColor(250, 244, 224));
    paper.setColorAt(1, QColor(238, 228, 200));
    p.fillRect(all, paper);
    // A red rule under the heading and a margin beside the text.
    p.setPen(QPen(QColor(190, 60, 50), 2));
    p.drawLine(QPointF(8, 28), QPointF(all.width() - 8, 28));
    p.setPen(QPen(QColor(190, 60, 50, 120), 1));
    p.drawLine(QPointF(12.5, 68), QPointF(12.5, 178));
    p.setPen(QPen(QColor(150, 130, 90), 1));
    p.setBrush(Qt::NoBrush);
    p.drawRect(QRectF(all).adjusted(0.5, 0.5, -0.5, -0.5));
}

void paint_gig(QPainter& p) {
    const QRect all = area(p);
    paint_bricks(p, all);
    QLinearGradient dusk(all.topLeft(), all.bottomLeft());
    dusk.setColorAt(0, QColor(10, 8, 14, 200));
    dusk.setColorAt(1, QColor(10, 8, 14, 150));
    p.fillRect(all, dusk);
    p.setRenderHint(QPainter::Antialiasing);
    panel(p, QRectF(16.5, 10.5, 264, 314));   // venues, APPLY inside
    panel(p, QRectF(294.5, 10.5, 266, 240));  // set list
    // A ticket stub as decoration in the empty corner.
    const QRectF ticket(330.5, 266.5, 196, 44);
    QPainterPath stub;
    stub.addRoundedRect(ticket, 5, 5);
    p.fillPath(stub, QColor(226, 196, 120, 60));
    p.setPen(QPen(QColor(226, 196, 120, 150), 1, Qt::DashLine));
    outline(p, stub);
    p.drawLine(QPointF(ticket.right() - 40, ticket.top() + 4),
               QPointF(ticket.right() - 40, ticket.bottom() - 4));
    p.setFont(sans(13, true));
    p.setPen(QColor(240, 214, 150));
    p.drawText(ticket.adjusted(0, 0, -40, 0), Qt::AlignCenter, "ADMIT ONE");
    p.setFont(sans(10, true));
    p.drawText(QRectF(ticket.right() - 40, ticket.top(), 40, ticket.height()), Qt::AlignCenter,
               "LIVE");
}

void paint_newspaper(QPainter& p) {
    const QRect all = area(p);
    p.setRenderHint(QPainter::Antialiasing);
    p.fillRect(all, QColor(242, 237, 224));
    // Specks of newsprint.
    for (std::uint32_t k = 0; k < 160; ++k) {
        const std::uint32_t h = scramble(k * 2654435761U);
        p.setPen(QColor(120, 110, 90, 40));
        p.drawPoint(static_cast<int>(h % static_cast<std::uint32_t>(all.width())),
                    static_cast<int>((h >> 12) % static_cast<std::uint32_t>(all.height())));
    }
    p.setPen(QPen(QColor(30, 28, 26), 2));
    p.drawLine(QPointF(8, 44), QPointF(all.width() - 8, 44));
    p.setPen(QPen(QColor(30, 28, 26), 0.8));
    p.drawLine(QPointF(8, 47.5), QPointF(all.width() - 8, 47.5));
    p.drawLine(QPointF(16, 228.5), QPointF(all.width() - 16, 228.5));
    p.setFont(serif(9, false));
    p.setPen(QColor(80, 74, 66));
    p.drawText(QRectF(8, 2, all.width() - 16, 10), Qt::AlignRight, "MUSIC  ·  REVIEWS");
}

void paint_files(QPainter& p) {
    const QRect all = area(p);
    QLinearGradient ground(all.topLeft(), all.bottomLeft());
    ground.setColorAt(0, QColor(32, 28, 38));
    ground.setColorAt(1, QColor(18, 16, 22));
    p.fillRect(all, ground);
    p.setRenderHint(QPainter::Antialiasing);
    panel(p, QRectF(22.5, 36.5, all.width() - 45, 140), 200);
}

void paint_chart(QPainter& p) {
    const QRect all = area(p);
    p.fillRect(all, QColor(0, 0, 128));
    p.setPen(QPen(QColor(128, 255, 255, 110), 1));
    p.drawLine(QPointF(8, 40.5), QPointF(all.width() - 8, 40.5));
    p.drawLine(QPointF(8, 356.5), QPointF(all.width() - 8, 356.5));
    for (int place = 1; place < 10; ++place) {
        const qreal y = 70.5 + 32 * (place - 1);
        p.setPen(QPen(QColor(128, 255, 255, 34), 1));
        p.drawLine(QPointF(8, y), QPointF(all.width() - 8, y));
    }
}

void paint_program_icon(QPainter& p, qreal size) {
    p.save();
    p.setRenderHint(QPainter::Antialiasing);
    p.scale(size / 42.0, size / 42.0);
    QPainterPath tile;
    tile.addRoundedRect(QRectF(1, 1, 40, 40), 8, 8);
    QLinearGradient ground(QPointF(0, 0), QPointF(0, 42));
    ground.setColorAt(0, QColor(52, 40, 64));
    ground.setColorAt(1, QColor(20, 16, 26));
    p.fillPath(tile, ground);
    // A plectrum.
    QPainterPath pick;
    pick.moveTo(21, 36);
    pick.cubicTo(12, 28, 6, 18, 8, 11);
    pick.cubicTo(10, 5, 32, 5, 34, 11);
    pick.cubicTo(36, 18, 30, 28, 21, 36);
    QLinearGradient shine(QPointF(8, 6), QPointF(34, 34));
    shine.setColorAt(0, QColor(255, 214, 120));
    shine.setColorAt(1, QColor(214, 134, 40));
    p.fillPath(pick, shine);
    p.setPen(QPen(QColor(120, 70, 20), 1));
    outline(p, pick);
    // The letter as a shape, centred where the text box (8, 6, 26, 24) would put it, so that
    // a drawing in SVG needs no font.
    QPainterPath letter;
    letter.addText(0, 0, sans(17, true), "T");
    const QRectF box(8, 6, 26, 24);
    const QFontMetricsF metrics(sans(17, true));
    letter.translate(box.center().x() - metrics.horizontalAdvance("T") / 2,
                     box.center().y() + (metrics.ascent() - metrics.descent()) / 2);
    p.fillPath(letter, QColor(40, 24, 30));
    p.restore();
}

QPixmap program_icon(int size) {
    QPixmap icon(size, size);
    icon.fill(Qt::transparent);
    QPainter p(&icon);
    paint_program_icon(p, size);
    return icon;
}

QIcon program_icons() {
    return program_icons(program_icon_images());
}

std::vector<QImage> program_icon_images() {
    std::vector<QImage> images;
    for (int size : {16, 22, 24, 32, 48, 64, 128, 256}) {
        QImage& image = images.emplace_back(size, size, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter p(&image);
        paint_program_icon(p, size);
    }
    return images;
}

QIcon program_icons(const std::vector<QImage>& images) {
    QIcon icon;
    for (const QImage& image : images) icon.addPixmap(QPixmap::fromImage(image));
    return icon;
}

}  // namespace tourvane
