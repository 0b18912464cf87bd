#include "app/qt/game_windows.h"

#include <QApplication>
#include <QEvent>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <algorithm>

#include "app/qt/form_skins.h"
#include "app/qt/pictures.h"
#include "app/qt/qt_port.h"
#include "app/qt/shortcuts.h"
#include "app/qt/text.h"
#include "flow/career.h"
#include "flow/clicks.h"
#include "view/career.h"

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

/// Where the offer to carry on stands over the title screen: under its three choices.
const QRect kOfferPlace(40, 372, 556, 84);
const QRect kHintPlace(40, 466, 556, 24);

/// Puts a window in front and gives it the keys (headless platforms have no stacking order).
void bring_forward(QWidget* window) {
    const QString platform = QGuiApplication::platformName();
    if (platform != "offscreen" && platform != "minimal") window->raise();
    window->activateWindow();
}

/// Shows `window` beside `anchor`, right of it where the screen has room, else left of it.
void show_beside(QWidget& window, const QWidget& anchor) {
    const QRect screen = screen_area(&anchor);
    QRect frame(QPoint(0, 0), window.size());
    frame.moveTopLeft(anchor.frameGeometry().topRight() + QPoint(kGap, 0));
    if (frame.right() > screen.right())
        frame.moveTopRight(anchor.frameGeometry().topLeft() - QPoint(kGap, 0));
    window.move(keep_on_screen(frame, screen));
    window.show();
    bring_forward(&window);
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
    screen.view.reset(make_form_view(g_, *screen.form, screen.skin()));
    FormView* view = screen.view.get();
    if (!icon_.isNull()) view->setWindowIcon(icon_);
    connect(view, &FormView::controlClicked, this,
            [this, view](const Control* c, int index) { forward(view, c, index, false); });
    connect(view, &FormView::controlDoubleClicked, this,
            [this, view](const Control* c, int row) { forward(view, c, row, true); });
    quit_key_for(*view);
    if (screen.form == &g_.forms.main) {
        // The office opens the side windows with its keys.
        side_ = std::make_unique<SideWindows>(g_, *view);
        for (QWidget* window :
             {static_cast<QWidget*>(&side_->diary()), static_cast<QWidget*>(&side_->graph()),
              static_cast<QWidget*>(&side_->keys())})
            quit_key_for(*window);
    }
    if (screen.form == &g_.forms.Form1) build_offer(*view);
    return view;
}

void GameWindows::build_offer(FormView& title) {
    bind_keys(title, "Form1", {KeyAction::OpenHall, KeyAction::CarryOn},
              [this](const KeyBinding& b) {
                  if (!g_.forms.Form1.usable() || ended_) return;
                  if (b.action == KeyAction::CarryOn)
                      carry_on_career();
                  else
                      show_beside(hall(), *view("Form1"));
              });
    auto* hint = new QLabel(qs(hall_hint()), &title);
    hint->setObjectName("hallhint");
    hint->setGeometry(kHintPlace);
    hint->setAlignment(Qt::AlignCenter);
    hint->show();
    const std::string offer = tourvane::carry_on_offer(autosaved_career(*g_.files));
    if (offer.empty()) return;
    offer_ = new QFrame(&title);
    offer_->setObjectName("offer");
    offer_->setGeometry(kOfferPlace);
    auto* line = new QLabel(qs(offer), offer_);
    line->setObjectName("offerline");
    line->setWordWrap(true);
    line->setTextFormat(Qt::PlainText);
    auto* layout = new QHBoxLayout(offer_);
    layout->addWidget(line, 1);
    if (autosaved_career(*g_.files).state == AutosavedCareer::State::Ready) {
        auto* button = new QPushButton(qs(kCarryOn), offer_);
        button->setProperty("kind", "click");
        button->setAccessibleName(qs(kCarryOn));
        button->setAccessibleDescription(qs(offer));
        button->setMinimumWidth(110);
        connect(button, &QPushButton::clicked, this, [this] { carry_on_career(); });
        layout->addWidget(button);
    }
    line->setAccessibleName(qs(offer));
    offer_->show();
}

void GameWindows::carry_on_career() {
    if (!g_.forms.Form1.usable() || ended_) return;
    carry_on(g_);
    refresh();
}

HallWindow& GameWindows::hall() {
    if (!hall_) {
        hall_ = std::make_unique<HallWindow>(*g_.files);
        hall_->setWindowIcon(QApplication::windowIcon());
        quit_key_for(*hall_);
    }
    return *hall_;
}

void GameWindows::summarise() {
    add_to_hall(g_);
    summary_ = std::make_unique<SummaryWindow>();
    summary_->show_summary(career_summary(g_));
    if (FormView* memo = built("messageForm")) {
        show_beside(*summary_, *memo);
        bring_forward(memo);  // the memo keeps the keys: its OK ends the program
    }
}

void GameWindows::program_ending() {
    if (kept_) return;
    kept_ = true;
    keep_running_career(g_);
}

void GameWindows::quit_key_for(QWidget& window) {
    bind_keys(window, place::kEverywhere, {KeyAction::Quit}, [this](const KeyBinding&) { quit(); });
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
    if (g_.game_over && !summary_) summarise();
    if (g_.ended && !ended_) {
        ended_ = true;
        program_ending();
        for (Screen& s : screens_)
            if (s.view) s.view->hide();
        if (side_) side_->close_all();
        for (QWidget* w :
             {static_cast<QWidget*>(summary_.get()), static_cast<QWidget*>(hall_.get())})
            if (w) w->hide();
        emit ended();
    }
}

void GameWindows::quit() {
    const ControlRef target = quit_control(g_);
    if (const Control* c = find_control(g_, target.form, target.control, -1))
        forward(view(target.form), c, -1, false);
}

void GameWindows::refresh() {
    for (Screen& s : screens_) {
        if (s.view)
            s.view->refresh();
        else if (wanted_open(g_, *s.form))
            build(s);
    }
    const ScreenChanges changes = order_.sync(g_);
    for (const FormState* form : changes.closed) view(form->name)->hide();
    for (const FormState* form : changes.opened) show_view(view(form->name));
    if (changes.front) bring_forward(view(changes.front->name));
    if (offer_ && !g_.forms.Form1.visible) offer_->hide();
    if (FormView* memo = built("messageForm"); memo && memo->isVisible())
        announce_memo(*memo);
    else
        announced_memo_.clear();
    if (side_) side_->refresh();
}

FormView* GameWindows::latest_shown(const FormView* view) {
    const auto& open = order_.open();
    for (auto it = open.rbegin(); it != open.rend(); ++it)
        if (FormView* shown = built((*it)->name); shown && shown != view && shown->isVisible())
            return shown;
    return nullptr;
}

void GameWindows::announce_memo(FormView& memo) {
    const MemoForm& m = g_.forms.messageForm;
    std::string shown = m.txtFrom.caption + '\n' + m.thetxt.caption + '\n';
    shown += std::to_string(g_.memos.size());
    if (shown == announced_memo_) return;  // still the memo announced before
    announced_memo_ = std::move(shown);
    const Announcement said = memo_announcement(g_);
    announce(memo, QString::fromStdString(said.name), QString::fromStdString(said.text),
             QAccessible::Alert);
}

void GameWindows::show_view(FormView* view) {
    place(view);
    view->show();
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
    const QWidget* anchor = latest_shown(view);
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
    if (event->type() == QEvent::MouseButtonPress) {
        // A click on the disabled office brings forward what holds it up.
        if (FormView* latest = latest_shown()) bring_forward(latest);
    }
    return true;
}

}  // namespace tourvane
