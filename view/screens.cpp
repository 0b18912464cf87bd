#include "view/screens.h"

#include <algorithm>

namespace tourvane {

ScreenFace screen_face(std::string_view form) {
    if (form == "Form1") return {"Tourvane", "Label4", "New"};
    if (form == "main") return {"Tourvane", "exitbtn", "command6"};
    if (form == "messageForm") return {"Message", "command1", "command1"};
    if (form == "gig") return {"Play a Gig", "Command2", "location(0)"};
    if (form == "thenewspaper") return {"Gig Report", "Label2", "Label2"};
    if (form == "savefrm") return {"Save and Load", "back", "saveslot(0)"};
    if (form == "Chart") return {"Music Chart", "command1", "command1"};
    return {};
}

Announcement memo_announcement(const Game& g) {
    const MemoForm& m = g.forms.messageForm;
    return {"Message from " + m.txtFrom.caption, m.thetxt.caption};
}

ControlRef quit_control(const Game& g) {
    const TitleForm& title = g.forms.Form1;
    if (title.loaded && title.visible) return {"Form1", "Label4"};
    return {"main", "exitbtn"};
}

bool wanted_open(const Game& g, const FormState& form) {
    return form.loaded && form.visible && !g.ended;
}

ScreenChanges ScreenOrder::sync(Game& g) {
    ScreenChanges changes;
    const FormState* forwarded = nullptr;
    std::size_t k = 0;
    g.forms.each_form([&](const FormState& form) {
        const bool asked = form.forward_requests != forward_seen_[k];
        forward_seen_[k++] = form.forward_requests;
        const bool is_open = std::find(open_.begin(), open_.end(), &form) != open_.end();
        if (wanted_open(g, form) && !is_open) {
            open_.push_back(&form);
            changes.opened.push_back(&form);
        } else if (!wanted_open(g, form) && is_open) {
            std::erase(open_, &form);
            changes.closed.push_back(&form);
        } else if (asked && is_open) {
            forwarded = &form;
        }
    });
    const FormState* memo = &g.forms.messageForm;
    const bool front_closed =
        front_ && std::find(open_.begin(), open_.end(), front_) == open_.end();
    if (std::find(open_.begin(), open_.end(), memo) != open_.end())
        changes.front = memo;
    else if (!changes.opened.empty())
        changes.front = changes.opened.back();
    else if (forwarded)
        changes.front = forwarded;
    else if (front_closed && !open_.empty())
        changes.front = open_.back();
    if (changes.front) front_ = changes.front;
    if (front_closed && !changes.front) front_ = nullptr;
    return changes;
}

}  // namespace tourvane
