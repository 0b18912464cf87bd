#include "core/forms.h"

namespace tourvane {

namespace {

Control make(const char* name, ControlKind kind, Rect pos, std::string caption = {},
             bool enabled = true, int index = -1) {
    Control c;
    c.name = name;
    c.index = index;
    c.kind = kind;
    c.pos = pos;
    c.caption = std::move(caption);
    c.enabled = enabled;
    return c;
}

Control label(const char* name, Rect pos, std::string caption = {}) {
    return make(name, ControlKind::Label, pos, std::move(caption));
}

Control click_label(const char* name, Rect pos, std::string caption, bool enabled = true) {
    return make(name, ControlKind::ClickLabel, pos, std::move(caption), enabled);
}

Control hot_spot(const char* name, Rect pos, std::string tooltip, bool enabled = true) {
    Control c = make(name, ControlKind::HotSpot, pos, {}, enabled);
    c.tooltip = std::move(tooltip);
    return c;
}

Control option(const char* name, int index, Rect pos, std::string caption) {
    return make(name, ControlKind::Option, pos, std::move(caption), true, index);
}

}  // namespace

TitleForm::TitleForm() : FormState{"Form1", 636, 500} {
    Label2 = label("Label2", {0, 10, 641, 41}, "TOURVANE");
    New = click_label("New", {248, 224, 145, 25}, "NEW GAME");
    load = click_label("load", {248, 272, 145, 25}, "LOAD GAME");
    Label4 = click_label("Label4", {248, 320, 145, 25}, "EXIT");
}

OfficeForm::OfficeForm() : FormState{"main", 591, 486} {
    command6 = hot_spot("command6", {30, 105, 99, 26}, "Next Week");
    label13 = hot_spot("label13", {30, 138, 100, 25}, "Music Lessons");
    command4 = hot_spot("command4", {30, 170, 100, 26}, "Play Gig");
    secret = hot_spot("secret", {30, 204, 99, 25}, "Music Chart", false);
    command3 = hot_spot("command3", {30, 236, 99, 26}, "Send Demo CD");
    command1 = hot_spot("command1", {29, 269, 101, 26}, "Record Song");
    interview = hot_spot("interview", {31, 302, 99, 25}, "Interview", false);
    holiday = hot_spot("holiday", {30, 335, 99, 25}, "Band Holiday");
    command5 = hot_spot("command5", {31, 369, 99, 24}, "Save Game");

    txtname = label("txtname", {56, 8, 521, 49});
    Label3 = label("Label3", {16, 8, 33, 41}, "X");
    exitbtn = click_label("exitbtn", {16, 8, 33, 49}, "");
    Label14 = label("Label14", {190, 84, 121, 16}, "PROMOTION");
    promote[0] = option("promote", 0, {157, 109, 92, 25}, "None");
    promote[1] = option("promote", 1, {247, 109, 94, 25}, "Small        £100");
    promote[2] = option("promote", 2, {156, 133, 91, 25}, "Medium   £250");
    promote[3] = option("promote", 3, {247, 133, 94, 25}, "High         £400");
    Label15 = label("Label15", {155, 176, 185, 17}, "TRACK LIST");
    songlist = make("songlist", ControlKind::ListBox, {152, 199, 189, 62});
    Label4 = label("Label4", {190, 315, 131, 25}, "APPLICANTS");
    txtapplicant = label("txtapplicant", {194, 336, 129, 97});
    hire = click_label("hire", {197, 443, 65, 17}, "HIRE");
    dismiss = click_label("dismiss", {266, 443, 65, 17}, "DISMISS");
    Label16 = label("Label16", {410, 86, 129, 25}, "BAND MEMBERS");
    members = make("members", ControlKind::ListBox, {353, 117, 227, 77});
    Label6 = label("Label6", {360, 208, 97, 25}, "Age:");
    txtage = label("txtage", {464, 208, 97, 25}, "...");
    Label5 = label("Label5", {360, 232, 97, 25}, "Gender:");
    txtsex = label("txtsex", {464, 232, 97, 25}, "...");
    Label7 = label("Label7", {352, 256, 105, 25}, "Instrument:");
    txtinstrument = label("txtinstrument", {464, 256, 97, 25}, "...");
    Label9 = label("Label9", {352, 280, 105, 25}, "Talent:");
    txttalent = label("txttalent", {464, 280, 97, 25}, "...");
    Label8 = label("Label8", {353, 303, 105, 25}, "Charisma:");
    txtcharisma = label("txtcharisma", {464, 304, 97, 25}, "...");
    Label10 = label("Label10", {368, 328, 89, 25}, "Attitude:");
    txtattitude = label("txtattitude", {464, 328, 97, 25}, "...");
    Label11 = label("Label11", {352, 352, 105, 25}, "Appearance:");
    txtlooks = label("txtlooks", {464, 352, 97, 25}, "...");
    Command2 = click_label("Command2", {392, 384, 161, 17}, "SACK THIS MEMBER", false);
    Label19 = label("Label19", {376, 416, 81, 25}, "CASH:");
    txtcash = label("txtcash", {448, 418, 129, 25});
    Label20 = label("Label20", {376, 441, 81, 25}, "DATE:");
    txtdate = label("txtdate", {448, 442, 129, 25});
}

MemoForm::MemoForm() : FormState{"messageForm", 194, 209} {
    Label1 = label("Label1", {8, 8, 177, 17}, "MESSAGE");
    Label2 = label("Label2", {8, 32, 41, 17}, "TO:");
    txtTo = label("txtTo", {56, 32, 137, 17});
    Label3 = label("Label3", {8, 48, 41, 17}, "FROM:");
    txtFrom = label("txtFrom", {56, 48, 137, 17});
    thetxt = label("thetxt", {16, 80, 161, 97});
    command1 = click_label("command1", {64, 184, 65, 17}, "OK");
}

GigForm::GigForm() : FormState{"gig", 577, 362} {
    static const char* const kVenueCaptions[5] = {"The Rose and Crown", "The Queens Head",
                                                  "Town Hall", "Nitro Nightclub",
                                                  "The Plaza Music Hall"};
    Label16 = label("Label16", {24, 16, 249, 25}, "CHOOSE LOCATION");
    for (int k = 0; k < 5; ++k)
        location[k] = option("location", k, {32, 52 + 30 * k, 233, 25}, kVenueCaptions[k]);
    Label4 = label("Label4", {32, 212, 113, 21}, "Capacity:");
    txtcapacity = label("txtcapacity", {152, 212, 113, 21}, "0");
    Label3 = label("Label3", {32, 238, 113, 21}, "Ticket Price:");
    txtticket = label("txtticket", {152, 238, 113, 21}, "0");
    Label5 = label("Label5", {32, 264, 113, 21}, "Hire Cost:");
    txthire = label("txthire", {152, 264, 113, 21}, "0");
    command1 = click_label("command1", {88, 300, 113, 21}, "APPLY", false);
    Label2 = label("Label2", {304, 16, 249, 25}, "CHOOSE TRACKS");
    Label1 = label("Label1", {304, 46, 249, 33}, "Choose the six tracks you are going to play.");
    Combo1 = make("Combo1", ControlKind::ComboBox, {304, 88, 249, 24}, {}, false);
    for (int i = 0; i < 3; ++i)
        tracks[i] = make("tracks", ControlKind::Label, {304, 128 + 28 * i, 249, 21}, {}, true, i);
    command3 = click_label("command3", {304, 222, 113, 21}, "CLEAR LIST", false);
    command4 = click_label("command4", {440, 222, 113, 21}, "PLAY GIG", false);
    Command2 = click_label("Command2", {232, 326, 113, 21}, "BACK");
}

NewspaperForm::NewspaperForm() : FormState{"thenewspaper", 329, 316} {
    Label3 = label("Label3", {8, 8, 313, 33}, "GIG REPORT");
    txtnews = label("txtnews", {16, 52, 297, 172});
    Label1 = label("Label1", {16, 232, 97, 21}, "Attendance:");
    txtattend = label("txtattend", {120, 232, 193, 21}, "0");
    Label5 = label("Label5", {16, 256, 97, 21}, "Profit:");
    txtprofit = label("txtprofit", {120, 256, 193, 21}, "0");
    Label2 = click_label("Label2", {132, 286, 65, 21}, "OK");
}

SaveForm::SaveForm() : FormState{"savefrm", 245, 247} {
    Label2 = label("Label2", {8, 8, 229, 25}, "FILE OPTIONS");
    for (int i = 0; i < 4; ++i)
        saveslot[i] = option("saveslot", i, {32, 40 + 34 * i, 185, 29}, "GAME SLOT 1");
    save = make("save", ControlKind::Button, {32, 184, 73, 25}, "Save");
    load = make("load", ControlKind::Button, {144, 184, 73, 25}, "Load");
    back = click_label("back", {88, 216, 73, 17}, "BACK");
}

ChartForm::ChartForm() : FormState{"Chart", 274, 389} {
    for (int place = 1; place <= 10; ++place) {
        int numeral = place == 1 ? 0 : place + 9;
        int numeral_top = place == 1 ? 44 : 75 + 32 * (place - 2);
        Control& n = track[numeral];
        n = make("track", ControlKind::Label, {0, numeral_top, 33, 17}, std::to_string(place), true,
                 numeral);
        n.color = place == 1 ? colour::kYellow : colour::kLightGrey;

        Control& line = track[place];
        Rect pos = place == 1 ? Rect{33, 45, 232, 17} : Rect{32, 77 + 32 * (place - 2), 233, 17};
        line = make("track", ControlKind::Label, pos, "...", true, place);
        line.color = colour::kLightCyan;
    }
    for (Control& c : track) c.rule_colour = true;
    Label1 = label("Label1", {8, 8, 267, 31}, "MUSIC CHART");
    Label1.color = colour::kBrightWhite;
    Label2 = label("Label2", {16, 16, 267, 31}, "MUSIC CHART");
    Label2.color = 0x000000;
    command1 = click_label("command1", {56, 364, 161, 17}, "OK");
}

}  // namespace tourvane
