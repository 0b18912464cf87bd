#pragma once
// One screen of the game as a fixed-size window, built from the form model and kept in step
// with it. The view holds no rule: it reports every click on a control, and `refresh` copies
// the model's captions, states, rows and colours into the widgets.

#include <QWidget>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "core/game.h"
#include "view/screens.h"

class QPainter;

namespace tourvane {

class FormView;

/// How one screen looks in Qt: its style, its picture and last touches. What it is called, its
/// controls' names, keys and hover texts come from the presentation layer (view/).
struct FormSkin {
    QString style_sheet;         ///< widgets are named after their controls ("txtcash", "track_3")
    bool model_colours = false;  ///< every label takes its text colour from the model
    /// Drawn under the controls; reads the model through the view (e.g. greyed buttons).
    std::function<void(QPainter&, const FormView&)> picture;
    std::function<void(FormView&)> finish;  ///< last touches once the widgets stand
};

class FormView : public QWidget {
    Q_OBJECT
  public:
    FormView(const Game& g, FormState& form, std::vector<Control*> controls, FormSkin skin);

    /// Copies the whole model of this screen into its widgets (not the window's visibility,
    /// which the set of windows decides, since it also places the window). Only what has
    /// changed is touched, and so repainted.
    void refresh();

    const FormState& form() const { return form_; }
    const FormSkin& skin() const { return skin_; }
    const ScreenFace& face() const { return face_; }

    /// The model control by key ("name" or "name(i)"), or nullptr.
    const Control* control(std::string_view key) const;
    /// The widget that shows a control, by key, or nullptr.
    QWidget* widget(std::string_view key) const;

    /// Gives the keyboard focus to the screen's first control.
    void focus_first();

  signals:
    /// A click on a control: `index` is the array index, the list row, or -1.
    void controlClicked(const tourvane::Control* control, int index);
    /// A double click on a list box: the row, or -1 on the empty part.
    void controlDoubleClicked(const tourvane::Control* control, int row);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

  private:
    struct Binding {
        Control* control = nullptr;
        QWidget* widget = nullptr;
        std::vector<std::string> rows;  ///< rows last copied into a list
        std::uint32_t colour = 0;
        bool coloured = false;
        /// What was last copied from the control, to skip a control that has not changed.
        bool copied = false;
        std::string caption, tooltip, reason, note;
        bool enabled = true, visible = true;
    };

    QWidget* build(Control& c);
    /// Copies one control into its widget; true if what it shows has changed.
    bool refresh(Binding& b);
    void click_key(const std::string& key);
    Binding* find(std::string_view key);
    const Binding* find(std::string_view key) const;

    const Game& g_;
    FormState& form_;
    FormSkin skin_;
    ScreenFace face_;
    std::vector<Binding> bindings_;
};

/// Builds the view of a form of `g`: one widget per control of the model, in the model's order.
template <class FormT>
FormView* make_form_view(const Game& g, FormT& form, FormSkin skin) {
    std::vector<Control*> controls;
    form.each([&](Control& c) { controls.push_back(&c); });
    return new FormView(g, form, std::move(controls), std::move(skin));
}

}  // namespace tourvane
