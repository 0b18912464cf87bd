#pragma once
// The seven screens of a running game as windows. Every click on a control goes to the game's
// one click entry; afterwards every screen is refreshed from the form model, which also decides
// which windows stand open (a screen's window is built the first time it is needed). When the game
// ends the windows close and `ended` is signalled.

#include <QIcon>
#include <QObject>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "app/qt/career_windows.h"
#include "app/qt/form_view.h"
#include "app/qt/pictures.h"
#include "app/qt/side_windows.h"
#include "core/game.h"

namespace tourvane {

class GameWindows : public QObject {
    Q_OBJECT
  public:
    /// Builds a window for each screen of `g`; call `refresh` to show what the model holds.
    /// The windows show `icon`, or with an empty one the program's (QApplication's).
    explicit GameWindows(Game& g, QIcon icon = program_icons());
    ~GameWindows() override;

    /// Copies the whole form model into the windows: controls, and which windows are shown.
    void refresh();

    /// The window of a screen by its form name ("main", "Form1" ...), or nullptr. A window is
    /// built the first time it is asked for or has to be shown.
    FormView* view(std::string_view form);

    Game& game() { return g_; }

    /// The diary, the week graph and the key help, opened from the office.
    SideWindows& side();

    /// What the quit key does in any window: clicks the quit control the game names.
    void quit();

    /// The program is ending, by whatever path: keeps a running career in the automatic save
    /// (or a finished one in the hall of fame), once.
    void program_ending();

    /// The title screen's offer to carry on with the career the automatic save kept: its line
    /// and its button (hidden when there is nothing to offer).
    QWidget* carry_on_offer() const { return offer_; }
    HallWindow& hall();
    SummaryWindow* summary() const { return summary_.get(); }

  signals:
    /// The program has ended: EXIT, quit, or the memo that ends the game acknowledged.
    void ended();

  protected:
    /// Keeps the mouse and keys away from a screen that the game has disabled (the office
    /// while a memo is open), without greying it.
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void forward(FormView* view, const Control* control, int index, bool double_click);
    /// Announces the memo on show to assistive technology, once for each memo.
    void announce_memo(FormView& memo);
    void show_view(FormView* view);
    void place(FormView* view);
    FormView* view_of(const QWidget* window) const;
    /// The latest screen on show other than `view`, or nullptr.
    FormView* latest_shown(const FormView* view = nullptr);

    /// A screen's window, built when first needed: the title at once, the others later, so
    /// that the title is on screen sooner.
    struct Screen {
        FormState* form;
        FormSkin (*skin)();
        std::unique_ptr<FormView> view;
    };
    FormView* build(Screen& screen);
    /// The window of a screen if it has been built, else nullptr.
    FormView* built(std::string_view form) const;
    void quit_key_for(QWidget& window);
    /// Puts the offer to carry on over the title screen, as the files stand.
    void build_offer(FormView& title);
    void carry_on_career();
    /// The memo that ends the game is up: the career goes into the hall, its summary beside it.
    void summarise();

    Game& g_;
    QIcon icon_;
    std::vector<Screen> screens_;
    std::unique_ptr<SideWindows> side_;
    ScreenOrder order_;              ///< the screens on show, in the order they were opened
    std::vector<FormView*> placed_;  ///< windows that stay where the player left them
    std::string announced_memo_;     ///< the memo last announced, or empty
    bool ended_ = false;
    bool kept_ = false;  ///< the career has been kept as the program ends
    QWidget* offer_ = nullptr;
    std::unique_ptr<SummaryWindow> summary_;
    std::unique_ptr<HallWindow> hall_;
};

}  // namespace tourvane
