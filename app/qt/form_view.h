#pragma once
// One screen of the game as a fixed-size window, built from the form model and kept in step
// with it. The view holds no rule: it reports every click on a control, and `refresh` copies
// the model's captions, states, rows and colours into the widgets.

#include <QKeySequence>
#include <QWidget>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "core/forms.h"

class QPainter;

namespace tourvane {

class FormView;

/// What a hover over a control tells: the whole caption where the widget shows it cut
/// (`cut_caption`), followed by `reason` (why it is grey) if any; else the model's tool tip.
QString hover_text(const Control& c, const QString& cut_caption, const QString& reason);

/// "name" for a single control, "name(i)" for a member of a control array.
std::string control_key(const Control& c);

/// How one screen looks: everything here is presentation, none of it changes what a click does.
struct FormSkin {
    QString title;               ///< window title
    QString style_sheet;         ///< widgets are named after their controls ("txtcash", "track_3")
    bool model_colours = false;  ///< every label takes its text colour from the model
    /// Drawn under the controls; reads the model through the view (e.g. greyed buttons).
    std::function<void(QPainter&, const FormView&)> picture;
    /// Accessible names by control key. A label listed here shows a value: it is named by this
    /// name and its value goes into the accessible description as it changes.
    std::map<std::string, QString> names;
    /// Keyboard shortcuts by control key; each clicks its control.
    std::vector<std::pair<std::string, QKeySequence>> keys;
    std::string close_control;              ///< clicked by the close button of the window frame
    std::string escape_control;             ///< clicked by Escape
    std::string focus_control;              ///< takes the keyboard focus when the screen opens
    std::function<void(FormView&)> finish;  ///< last touches once the widgets stand
};

class FormView : public QWidget {
    Q_OBJECT
  public:
    FormView(FormState& form, std::vector<Control*> controls, FormSkin skin);

    /// Copies the whole model of this screen into its widgets (not the window's visibility,
    /// which the set of windows decides, since it also places the window). Only what has
    /// changed is touched, and so repainted.
    void refresh();

    const FormState& form() const { return form_; }
    const FormSkin& skin() const { return skin_; }

    /// The model control by key ("name" or "name(i)"), or nullptr.
    const Control* control(std::string_view key) const;
    /// The widget that shows a control, by key, or nullptr.
    QWidget* widget(std::string_view key) const;

    /// Tells why a disabled control takes no clicks; the view shows it as the control's tool
    /// tip and accessible description for as long as the control stays disabled.
    using Explainer = std::function<std::string(const FormState&, const Control&)>;
    void set_explainer(Explainer explain) { explain_ = std::move(explain); }

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
        std::string caption, tooltip, reason;
        bool enabled = true, visible = true;
    };

    QWidget* build(Control& c);
    /// Copies one control into its widget; true if what it shows has changed.
    bool refresh(Binding& b);
    void click_key(const std::string& key);
    Binding* find(std::string_view key);
    const Binding* find(std::string_view key) const;

    FormState& form_;
    FormSkin skin_;
    Explainer explain_;
    std::vector<Binding> bindings_;
};

/// Builds the view of a form: one widget per control of the model, in the model's order.
template <class FormT>
FormView* make_form_view(FormT& form, FormSkin skin) {
    std::vector<Control*> controls;
    form.each([&](Control& c) { controls.push_back(&c); });
    return new FormView(form, std::move(controls), std::move(skin));
}

}  // namespace tourvane
