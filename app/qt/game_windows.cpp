#include "app/qt/game_windows.h"

#include <QApplication>
#include <QEvent>
#include <QScreen>
#include <QShortcut>
#include <algorithm>

#include "app/qt/form_skins.h"
#include "app/qt/pictures.h"
#include "app/qt/qt_port.h"
#include "flow/clicks.h"
#include "flow/reasons.h"

namespace tourvane {

namespace {

/// The space between the office and a window beside it.
constexpr int kGap = 12;

bool is_input(QEvent::Type type) {
    switch (type) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonRelease:
        case QEvent::MouseButtonDblClick:
        case QEvent::KeyPress:
        case QEvent::KeyRelease:
        case QEvent::Wheel:
        case QEvent::HoverEnter:
        case QEvent::HoverMove:
        case QEvent::ContextMenu:
            return true;
        default:
            return false;
    }
}

QRect screen_area(const QWidget* near) {
    const QScreen* screen =
        near && near->screen() ? near->screen() : QGuiApplication::primaryScreen();
    return screen ? screen->availableGeometry() : QRect(0, 0, 1024, 768);
}

/// Moves a rectangle inside the screen where it can.
QPoint keep_on_screen(QRect r, const QRect& screen) {
    r.moveRight(std::min(r.right(), screen.right()));
    r.moveBottom(std::min(r.bottom(), screen.bottom()));
    r.moveLeft(std::max(r.left(), screen.left()));
    r.moveTop(std::max(r.top(), screen.top()));
    return r.topLeft();
}

/// Puts a window in front and gives it the keys (headless platforms have no stacking order).
void bring_forward(QWidget* window) {
    const QString platform = QGuiApplication::platformName();
    if (platform != "offscreen" && platform != "minimal") window->raise();
    window->activateWindow();
}

}  // namespace

GameWindows::GameWindows(Game& g, QIcon icon) : g_(g), icon_(std::move(icon)) {
    Forms& f = g.forms;
    screens_.push_back({&f.Form1, title_skin, {}});
    screens_.push_back({&f.main, office_skin, {}});
    screens_.push_back({&f.messageForm, memo_skin, {}});
    screens_.push_back({&f.gig, gig_skin, {}});
    screens_.push_back({&f.thenewspaper, newspaper_skin, {}});
    screens_.push_back({&f.savefrm, files_skin, {}});
    screens_.push_back({&f.Chart, chart_skin, {}});
    build(screens_.front());
    qApp->installEventFilter(this);
}

GameWindows::~GameWindows() {
    qApp->removeEventFilter(this);
}

FormView* GameWindows::build(Screen& screen) {
    screen.view.reset(make_form_view(*screen.form, screen.skin()));
    FormView* view = screen.view.get();
    if (!icon_.isNull()) view->setWindowIcon(icon_);
    view->set_explainer(
        [this](const FormState& form, const Control& c) { return disabled_reason(g_, form, c); });
    connect(view, &FormView::controlClicked, this,
            [this, view](const Control* c, int index) { forward(view, c, index, false); });
    connect(view, &FormView::controlDoubleClicked, this,
            [this, view](const Control* c, int row) { forward(view, c, row, true); });
    view->refresh();  // now with the reasons of grey controls
    quit_key_for(*view);
    if (screen.form == &g_.forms.main) {
        // The office opens the side windows with its keys.
        side_ = std::make_unique<SideWindows>(g_, *view);
        for (QWidget* window :
             {static_cast<QWidget*>(&side_->diary()), static_cast<QWidget*>(&side_->graph()),
              static_cast<QWidget*>(&side_->keys())})
            quit_key_for(*window);
    }
    return view;
}

void GameWindows::quit_key_for(QWidget& window) {
    auto* shortcut = new QShortcut(quit_key(), &window);
    connect(shortcut, &QShortcut::activated, this, &GameWindows::quit);
}

FormView* GameWindows::view(std::string_view form) {
    for (Screen& s : screens_)
        if (form == s.form->name) return s.view ? s.view.get() : build(s);
    return nullptr;
}

FormView* GameWindows::built(std::string_view form) const {
    for (const Screen& s : screens_)
        if (form == s.form->name) return s.view.get();
    return nullptr;
}

SideWindows& GameWindows::side() {
    if (!side_) view("main");
    return *side_;
}

FormView* GameWindows::view_of(const QWidget* window) const {
    for (const Screen& s : screens_)
        if (s.view && s.view.get() == window) return s.view.get();
    return nullptr;
}

void GameWindows::forward(FormView* view, const Control* control, int index, bool double_click) {
    if (ended_) return;
    const char* form = view->form().name;
    // A refused click (ClickResult::NotUsableNow) changes nothing; the refresh below also puts
    // back anything the widget did by itself, such as an option marking itself.
    if (double_click)
        dblclick(g_, form, control->name, index);
    else
        click(g_, form, control->name, index);
    refresh();
    if (g_.ended && !ended_) {
        ended_ = true;
        for (Screen& s : screens_)
            if (s.view) s.view->hide();
        if (side_) side_->close_all();
        shown_.clear();
        emit ended();
    }
}

void GameWindows::quit() {
    FormView* title = view("Form1");
    const bool at_title = title->form().loaded && title->form().visible;
    FormView* window = at_title ? title : view("main");
    if (const Control* c =
            find_control(g_, window->form().name, at_title ? "Label4" : "exitbtn", -1))
        forward(window, c, -1, false);
}

bool GameWindows::wanted(const Screen& screen) const {
    return screen.form->loaded && screen.form->visible && !g_.ended;
}

void GameWindows::refresh() {
    for (Screen& s : screens_) {
        if (s.view)
            s.view->refresh();
        else if (wanted(s))
            build(s);
    }
    for (Screen& s : screens_) {
        FormView* view = s.view.get();
        const bool forward = s.form->forward_requests != s.forward_seen;
        s.forward_seen = s.form->forward_requests;
        if (!view) continue;  // never wanted yet
        const bool open = wanted(s);
        if (open && view->isVisible() && forward) bring_forward(view);
        if (open && !view->isVisible()) {
            show_view(view);
        } else if (!open && view->isVisible()) {
            view->hide();
            shown_.erase(std::remove(shown_.begin(), shown_.end(), view), shown_.end());
        }
    }
    // When the window in front has closed, the latest window still open takes the keys.
    const QWidget* active = QApplication::activeWindow();
    if ((!active || !active->isVisible()) && !shown_.empty()) {
        bring_forward(shown_.back());
    }
    // A memo stays in front of the office it has disabled.
    if (FormView* memo = built("messageForm"); memo && memo->isVisible()) {
        bring_forward(memo);
        announce_memo(*memo);
    } else {
        announced_memo_.clear();
    }
    if (side_) side_->refresh();
}

void GameWindows::announce_memo(FormView& memo) {
    const MemoForm& m = g_.forms.messageForm;
    std::string shown = m.txtFrom.caption + '\n' + m.thetxt.caption + '\n';
    shown += std::to_string(g_.memos.size());
    if (shown == announced_memo_) return;  // still the memo announced before
    announced_memo_ = std::move(shown);
    announce(memo, "Message from " + QString::fromStdString(m.txtFrom.caption),
             QString::fromStdString(m.thetxt.caption), QAccessible::Alert);
}

void GameWindows::show_view(FormView* view) {
    place(view);
    view->show();
    shown_.push_back(view);
    bring_forward(view);
    view->focus_first();
}

void GameWindows::place(FormView* view) {
    const std::string_view name = view->form().name;
    FormView* office = built("main");
    FormView* title = built("Form1");
    const bool stays = name == "main" || name == "Form1";
    if (stays && std::find(placed_.begin(), placed_.end(), view) != placed_.end()) return;

    // What the window opens over: the latest window on show, else the office.
    const QWidget* anchor = shown_.empty() ? nullptr : shown_.back();
    if (name == "main") anchor = title->testAttribute(Qt::WA_Moved) ? title : nullptr;
    if (!anchor && office && office->testAttribute(Qt::WA_Moved) && view != office) anchor = office;
    const QRect screen = screen_area(anchor);

    QRect frame(QPoint(0, 0), view->size());
    if (name == "Chart" && office && office->isVisible()) {
        // Beside the office, on the right if there is room, else on the left.
        QRect o = office->frameGeometry();
        const int both = o.width() + kGap + frame.width();
        if (o.right() + kGap + frame.width() > screen.right() &&
            o.left() - kGap - frame.width() < screen.left() && both <= screen.width()) {
            // Room for both only side by side across the screen: the office steps aside.
            o.moveLeft(screen.left() + (screen.width() - both) / 2);
            office->move(o.topLeft());
        }
        frame.moveTopLeft(QPoint(o.right() + kGap, o.top()));
        if (frame.right() > screen.right()) frame.moveTopRight(QPoint(o.left() - kGap, o.top()));
    } else if (anchor) {
        frame.moveCenter(anchor->geometry().center());
    } else {
        frame.moveCenter(screen.center());
    }
    view->move(keep_on_screen(frame, screen));
    if (stays) placed_.push_back(view);
}

bool GameWindows::eventFilter(QObject* watched, QEvent* event) {
    if (!is_input(event->type()) || !watched->isWidgetType()) return false;
    FormView* view = view_of(static_cast<QWidget*>(watched)->window());
    if (!view || view->form().enabled) return false;
    if (event->type() == QEvent::MouseButtonPress && !shown_.empty()) {
        // A click on the disabled office brings forward what holds it up.
        bring_forward(shown_.back());
    }
    return true;
}

}  // namespace tourvane
