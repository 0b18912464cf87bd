#include "app/qt/form_skins.h"

#include <QGraphicsBlurEffect>
#include <QPainter>

#include "app/qt/pictures.h"
#include "app/qt/window_style.h"

namespace tourvane {

namespace {

// Shared by the dark screens: the office, the gig booking and the files.
const char* const kDarkStyle = R"(
* { font-family: "Liberation Sans", Arial; font-size: 11px; color: #ece6da; }
QLabel { background: transparent; }
QPushButton[kind="click"] {
    background: rgba(240, 182, 80, 18); border: 1px solid #b88a3a; border-radius: 3px;
    color: #f3c566; font-weight: bold; padding: 0px;
}
QPushButton[kind="click"]:hover { background: rgba(240, 182, 80, 70); color: #fff6e0; }
QPushButton[kind="click"]:pressed { background: rgba(240, 182, 80, 130); }
QPushButton[kind="click"]:focus { border: 1px solid #fff0c8; }
QPushButton[kind="click"]:disabled {
    color: #6d665c; border-color: #4a443c; background: transparent;
}
QPushButton[kind="button"] {
    background: qlineargradient(x1:0, y1:0, x2:0, y2:1, stop:0 #5a4f5e, stop:1 #2f2934);
    border: 1px solid #c9973f; border-radius: 4px; color: #f6e7c8; font-weight: bold;
}
QPushButton[kind="button"]:hover { background: #6a5c6e; }
QPushButton[kind="button"]:pressed { background: #2a2430; }
QPushButton[kind="button"]:focus { border: 1px solid #fff0c8; }
QPushButton[kind="button"]:disabled { color: #6d665c; border-color: #4a443c; }
QRadioButton { background: transparent; spacing: 5px; }
QRadioButton::indicator {
    width: 9px; height: 9px; border-radius: 5px; border: 1px solid #b88a3a; background: #0d0b10;
}
QRadioButton::indicator:checked {
    background: qradialgradient(cx:0.5, cy:0.5, radius:0.5, fx:0.5, fy:0.5,
                                stop:0 #ffe3a0, stop:0.55 #f0b650, stop:0.7 #0d0b10);
}
QRadioButton::indicator:disabled { border-color: #4a443c; }
QRadioButton:disabled { color: #6d665c; }
QRadioButton:focus { color: #fff0c8; }
QListWidget {
    background: #0d0b10; border: 1px solid #4d4438; border-radius: 2px; outline: 0;
    selection-background-color: #c9973f; selection-color: #141018;
}
QListWidget:focus { border-color: #c9973f; }
QListWidget::item { padding: 0px 2px; }
QListWidget::item:selected { background: #c9973f; color: #141018; }
QComboBox {
    background: #0d0b10; border: 1px solid #4d4438; border-radius: 2px; padding: 1px 6px;
}
QComboBox:focus { border-color: #c9973f; }
QComboBox:disabled { color: #6d665c; border-color: #35302b; }
QComboBox QAbstractItemView {
    background: #0d0b10; selection-background-color: #c9973f; selection-color: #141018;
}
)";

QString dark(const char* extra) {
    return QString(kDarkStyle) + kScrollBarStyle + extra;
}

}  // namespace

FormSkin title_skin() {
    FormSkin s;
    s.picture = [](QPainter& p, const FormView&) { paint_title(p); };
    s.style_sheet = R"(
* { font-family: "Liberation Sans", Arial; }
QLabel#Label2 {
    background: transparent; color: #f6c35c; font-size: 36px; font-weight: bold;
    qproperty-alignment: AlignCenter;
}
QPushButton[kind="click"] {
    background: rgba(46, 34, 56, 210); border: 1px solid rgba(201, 151, 63, 170);
    border-radius: 4px; color: #f5e6c8; font-size: 15px; font-weight: bold;
}
QPushButton[kind="click"]:hover { background: #f0b650; color: #1a1018; }
QPushButton[kind="click"]:pressed { background: #c9973f; color: #1a1018; }
QPushButton[kind="click"]:focus { border: 1px solid #fff0c8; }
QPushButton[kind="click"]:disabled { color: #6d665c; }
QFrame#offer {
    background: rgba(20, 14, 24, 228); border: 1px solid rgba(201, 151, 63, 170);
    border-radius: 6px;
}
QLabel#offerline { background: transparent; color: #f5e6c8; font-size: 13px; }
QLabel#hallhint {
    background: rgba(20, 14, 24, 200); color: #f5e6c8; font-size: 12px; border-radius: 4px;
}
)";
    return s;
}

FormSkin office_skin() {
    FormSkin s;
    s.picture = [](QPainter& p, const FormView& view) {
        paint_office(p, drawn_buttons(static_cast<const OfficeForm&>(view.form())));
    };
    s.style_sheet = dark(R"(
QLabel#txtname {
    color: #f5e6c8; font-size: 26px; font-weight: bold; padding-left: 10px;
}
QLabel#Label3 {
    color: #ff9a8c; font-size: 26px; font-weight: bold; qproperty-alignment: AlignCenter;
}
QPushButton#exitbtn { background: transparent; border: 1px solid transparent; border-radius: 5px; }
QPushButton#exitbtn:hover { background: rgba(255, 110, 90, 60); }
QPushButton#exitbtn:focus { border: 1px dotted #ffd0c8; }
QLabel#Label14, QLabel#Label15, QLabel#Label4, QLabel#Label16 {
    color: #f0b650; font-size: 12px; font-weight: bold; qproperty-alignment: AlignCenter;
}
QLabel#Label6, QLabel#Label5, QLabel#Label7, QLabel#Label9, QLabel#Label8, QLabel#Label10,
QLabel#Label11 {
    color: #b8ae9c; qproperty-alignment: 'AlignRight | AlignVCenter';
}
QLabel#txtage, QLabel#txtsex, QLabel#txtinstrument, QLabel#txttalent, QLabel#txtcharisma,
QLabel#txtattitude, QLabel#txtlooks { color: #fbf6ec; font-weight: bold; }
QLabel#Label19, QLabel#Label20 { color: #b8ae9c; font-weight: bold; }
QLabel#txtcash { color: #a8e6a1; font-size: 15px; font-weight: bold; }
QLabel#txtdate { color: #f5e6c8; font-size: 15px; font-weight: bold; }
QLabel#txtapplicant { color: #ece6da; qproperty-alignment: 'AlignLeft | AlignTop'; }
QRadioButton { font-size: 10px; }
)");
    return s;
}

FormSkin memo_skin() {
    FormSkin s;
    s.picture = [](QPainter& p, const FormView&) { paint_memo(p); };
    s.style_sheet = R"(
* { font-family: "Liberation Sans", Arial; font-size: 11px; color: #2b2620; }
QLabel { background: transparent; }
QLabel#Label1 {
    font-family: "Liberation Mono", monospace; font-size: 14px; font-weight: bold;
    color: #8a2a22; qproperty-alignment: AlignCenter;
}
QLabel#Label2, QLabel#Label3 { color: #7a6a52; font-size: 10px; font-weight: bold; }
QLabel#txtTo, QLabel#txtFrom { font-weight: bold; }
QLabel#thetxt { font-size: 11px; qproperty-alignment: 'AlignLeft | AlignTop'; }
QPushButton[kind="click"] {
    background: rgba(138, 42, 34, 22); border: 1px solid #8a2a22; border-radius: 3px;
    color: #8a2a22; font-weight: bold;
}
QPushButton[kind="click"]:hover { background: #8a2a22; color: #fff6e8; }
QPushButton[kind="click"]:focus { border: 2px solid #8a2a22; }
)";
    return s;
}

FormSkin gig_skin() {
    FormSkin s;
    s.picture = [](QPainter& p, const FormView&) { paint_gig(p); };
    s.style_sheet = dark(R"(
QLabel#Label16, QLabel#Label2 {
    color: #f0b650; font-size: 13px; font-weight: bold; qproperty-alignment: AlignCenter;
}
QLabel#Label1 { color: #c8bfae; font-style: italic; qproperty-alignment: AlignCenter; }
QLabel#Label4, QLabel#Label3, QLabel#Label5 {
    color: #b8ae9c; qproperty-alignment: 'AlignRight | AlignVCenter'; padding-right: 6px;
}
QLabel#txtcapacity, QLabel#txtticket, QLabel#txthire { color: #fbf6ec; font-weight: bold; }
QLabel#tracks_0, QLabel#tracks_1, QLabel#tracks_2 {
    color: #fbf6ec; font-size: 12px; padding-left: 6px;
    border-bottom: 1px solid rgba(201, 151, 63, 110);
}
QRadioButton { font-size: 12px; }
QPushButton[kind="click"] { font-size: 12px; }
)");
    return s;
}

FormSkin newspaper_skin() {
    FormSkin s;
    s.picture = [](QPainter& p, const FormView&) { paint_newspaper(p); };
    s.style_sheet = R"(
* { font-family: "Liberation Serif", "Times New Roman", serif; font-size: 13px; color: #1e1c1a; }
QLabel { background: transparent; }
QLabel#Label3 { font-size: 28px; font-weight: bold; qproperty-alignment: AlignCenter; }
QLabel#txtnews { qproperty-alignment: 'AlignJustify | AlignTop'; }
QLabel#Label1, QLabel#Label5 {
    font-family: "Liberation Sans", Arial; font-size: 11px; font-weight: bold; color: #4a443c;
}
QLabel#txtattend, QLabel#txtprofit { font-weight: bold; }
QPushButton[kind="click"] {
    font-family: "Liberation Sans", Arial; font-size: 11px; font-weight: bold;
    background: transparent; border: 1px solid #1e1c1a; border-radius: 3px; color: #1e1c1a;
}
QPushButton[kind="click"]:hover { background: #1e1c1a; color: #f2ede0; }
QPushButton[kind="click"]:focus { border: 2px solid #1e1c1a; }
)";
    return s;
}

FormSkin files_skin() {
    FormSkin s;
    s.picture = [](QPainter& p, const FormView&) { paint_files(p); };
    s.style_sheet = dark(R"(
QLabel#Label2 {
    color: #f0b650; font-size: 14px; font-weight: bold; qproperty-alignment: AlignCenter;
}
QRadioButton { font-size: 12px; font-weight: bold; }
)");
    return s;
}

FormSkin chart_skin() {
    FormSkin s;
    s.picture = [](QPainter& p, const FormView&) { paint_chart(p); };
    s.model_colours = true;
    s.style_sheet = R"(
* { font-family: "Liberation Sans", Arial; font-size: 12px; font-weight: bold; }
QLabel { background: transparent; }
QLabel#Label1, QLabel#Label2 { font-size: 24px; }
QLabel#track_0, QLabel#track_11, QLabel#track_12, QLabel#track_13, QLabel#track_14,
QLabel#track_15, QLabel#track_16, QLabel#track_17, QLabel#track_18, QLabel#track_19 {
    qproperty-alignment: AlignCenter;
}
QPushButton[kind="click"] {
    background: transparent; border: 1px solid #80ffff; border-radius: 3px; color: #ffffff;
    font-size: 11px;
}
QPushButton[kind="click"]:hover { background: #80ffff; color: #000080; }
QPushButton[kind="click"]:focus { border: 2px solid #ffffff; }
)";
    s.finish = [](FormView& view) {
        // The white title stands over its black twin, which is softened into a shadow.
        view.widget("Label1")->raise();
        auto* blur = new QGraphicsBlurEffect(view.widget("Label2"));
        blur->setBlurRadius(5);
        view.widget("Label2")->setGraphicsEffect(blur);
    };
    return s;
}

}  // namespace tourvane
