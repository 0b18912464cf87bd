#pragma once
// The boxes of the game as Qt dialogs: MsgBox as a message box titled "Tourvane", InputBox as
// a text prompt. Each box is built in full and then handed to a presenter, which by default
// runs it modally; tests put in a presenter that reads the box and answers it.

#include <QAccessible>
#include <QString>
#include <functional>

#include "core/ui_port.h"

class QDialog;
class QWidget;

namespace tourvane {

/// Tells assistive technology that `w` has come up with something to say: it is named and
/// described, and the event of that kind is sent.
void announce(QWidget& w, const QString& name, const QString& description, QAccessible::Event kind);

class QtPort : public UiPort {
  public:
    /// Shows a built box and returns when it has been answered (clicked or accepted).
    using Presenter = std::function<void(QDialog&)>;

    /// Replaces the presenter; an empty one restores the modal run.
    void set_presenter(Presenter presenter) { presenter_ = std::move(presenter); }

    Answer msgbox(std::string_view text, Buttons buttons, bool critical) override;
    std::string inputbox(std::string_view prompt, std::string_view title) override;

  private:
    void present(QDialog& box, const QString& text);

    Presenter presenter_;
};

}  // namespace tourvane
