#include "app/qt/form_view.h"

#include <QCloseEvent>
#include <QComboBox>
#include <QLabel>
#include <QPainter>
#include <QRadioButton>
#include <QShortcut>
#include <QStyle>

#include "app/qt/control_widgets.h"

namespace tourvane {

namespace {

QString qs(const std::string& text) {
    return QString::fromStdString(text);
}

/// Captions of buttons read '&' as a mnemonic; the game's captions mean the character.
QString literal(const std::string& text) {
    return qs(text).replace('&', "&&");
}

const char* kind_name(ControlKind kind) {
    switch (kind) {
        case ControlKind::Label:
            return "label";
        case ControlKind::ClickLabel:
            return "click";
        case ControlKind::HotSpot:
            return "hotspot";
        case ControlKind::Option:
            return "option";
        case ControlKind::Button:
            return "button";
        case ControlKind::ListBox:
            return "list";
        case ControlKind::ComboBox:
            return "combo";
    }
    return "label";
}

/// Labels at least this tall wrap their caption over several lines.
constexpr int kWrapHeight = 30;

}  // namespace

std::string control_key(const Control& c) {
    std::string key = c.name;
    if (c.index >= 0) key += "(" + std::to_string(c.index) + ")";
    return key;
}

FormView::FormView(FormState& form, std::vector<Control*> controls, FormSkin skin)
    : QWidget(nullptr), form_(form), skin_(std::move(skin)) {
    setObjectName(form.name);
    setFixedSize(form.width, form.height);
    setWindowTitle(skin_.title);
    setAccessibleName(skin_.title);
    setAttribute(Qt::WA_StyledBackground, !skin_.picture);
    for (Control* c : controls) bindings_.push_back(Binding{c, build(*c), {}, 0, false});
    setStyleSheet(skin_.style_sheet);
    if (skin_.finish) skin_.finish(*this);
    for (const auto& [key, sequence] : skin_.keys) {
        auto* shortcut = new QShortcut(sequence, this);
        connect(shortcut, &QShortcut::activated, this, [this, key = key] { click_key(key); });
    }
    if (!skin_.escape_control.empty()) {
        auto* escape = new QShortcut(QKeySequence(Qt::Key_Escape), this);
        connect(escape, &QShortcut::activated, this, [this] { click_key(skin_.escape_control); });
    }
    refresh();
}

QWidget* FormView::build(Control& c) {
    QWidget* w = nullptr;
    const Control* model = &c;
    switch (c.kind) {
        case ControlKind::Label: {
            auto* label = new QLabel(this);
            label->setTextFormat(Qt::PlainText);
            label->setWordWrap(c.pos.height >= kWrapHeight);
            w = label;
            break;
        }
        case ControlKind::ClickLabel: {
            auto* label = new ClickLabel(this);
            connect(label, &QAbstractButton::clicked, this,
                    [this, model] { emit controlClicked(model, model->index); });
            w = label;
            break;
        }
        case ControlKind::HotSpot: {
            auto* spot = new HotSpot(this);
            connect(spot, &QAbstractButton::clicked, this,
                    [this, model] { emit controlClicked(model, model->index); });
            w = spot;
            break;
        }
        case ControlKind::Option: {
            auto* option = new QRadioButton(this);
            option->setAutoExclusive(false);  // the model marks the chosen option
            connect(option, &QAbstractButton::clicked, this,
                    [this, model] { emit controlClicked(model, model->index); });
            w = option;
            break;
        }
        case ControlKind::Button: {
            auto* button = new QPushButton(this);
            button->setAutoDefault(false);
            connect(button, &QAbstractButton::clicked, this,
                    [this, model] { emit controlClicked(model, model->index); });
            w = button;
            break;
        }
        case ControlKind::ListBox: {
            auto* list = new ListBox(this);
            connect(list, &ListBox::rowClicked, this,
                    [this, model](int row) { emit controlClicked(model, row); });
            connect(list, &ListBox::rowDoubleClicked, this,
                    [this, model](int row) { emit controlDoubleClicked(model, row); });
            w = list;
            break;
        }
        case ControlKind::ComboBox: {
            auto* combo = new QComboBox(this);
            combo->setFocusPolicy(Qt::StrongFocus);
            connect(combo, &QComboBox::activated, this,
                    [this, model](int row) { emit controlClicked(model, row); });
            w = combo;
            break;
        }
    }
    QString object_name = c.name;
    if (c.index >= 0) object_name += "_" + QString::number(c.index);
    w->setObjectName(object_name);
    w->setProperty("kind", kind_name(c.kind));
    w->setGeometry(c.pos.left, c.pos.top, c.pos.width, c.pos.height);
    return w;
}

void FormView::refresh() {
    for (Binding& b : bindings_) refresh(b);
    update();  // the picture may show the controls' states
}

void FormView::refresh(Binding& b) {
    const Control& c = *b.control;
    QWidget* w = b.widget;
    const auto named = skin_.names.find(control_key(c));
    const bool has_name = named != skin_.names.end();
    const QString caption = qs(c.caption);

    w->setEnabled(c.enabled);
    switch (c.kind) {
        case ControlKind::Label: {
            auto* label = static_cast<QLabel*>(w);
            if (label->text() != caption) label->setText(caption);
            if (has_name) {
                label->setAccessibleName(named->second);
                label->setAccessibleDescription(caption);
            } else {
                label->setAccessibleName(caption);
            }
            break;
        }
        case ControlKind::ClickLabel:
        case ControlKind::Button: {
            auto* button = static_cast<QAbstractButton*>(w);
            button->setText(literal(c.caption));
            button->setAccessibleName(has_name ? named->second : caption);
            break;
        }
        case ControlKind::HotSpot:
            w->setAccessibleName(has_name ? named->second : qs(c.tooltip));
            break;
        case ControlKind::Option: {
            auto* option = static_cast<QRadioButton*>(w);
            option->setText(literal(c.caption));
            option->setChecked(c.value);
            option->setAccessibleName(has_name ? named->second : caption.simplified());
            break;
        }
        case ControlKind::ListBox: {
            auto* list = static_cast<ListBox*>(w);
            const QSignalBlocker quiet(list);
            if (b.rows != c.rows) {
                list->clear();
                for (const std::string& row : c.rows) list->addItem(qs(row));
                b.rows = c.rows;
            }
            const int selected = c.selected < list->count() ? c.selected : -1;
            list->setCurrentRow(selected);
            if (selected < 0) list->clearSelection();
            list->setAccessibleName(has_name ? named->second : QString(c.name));
            break;
        }
        case ControlKind::ComboBox: {
            auto* combo = static_cast<QComboBox*>(w);
            const QSignalBlocker quiet(combo);
            if (b.rows != c.rows) {
                combo->clear();
                for (const std::string& row : c.rows) combo->addItem(qs(row));
                b.rows = c.rows;
            }
            combo->setCurrentIndex(c.selected < combo->count() ? c.selected : -1);
            combo->setAccessibleName(has_name ? named->second : QString(c.name));
            break;
        }
    }

    if (c.kind != ControlKind::Label) {
        // A grey control says why; enabled again, it has its usual tip back.
        const std::string reason = !c.enabled && explain_ ? explain_(form_, c) : std::string();
        const QString tip = qs(reason.empty() ? c.tooltip : reason);
        w->setToolTip(tip);
        const bool named_by_tip = c.kind == ControlKind::HotSpot && reason.empty();
        w->setAccessibleDescription(named_by_tip ? QString() : tip);
    }

    const bool coloured = c.rule_colour || (skin_.model_colours && c.kind == ControlKind::Label);
    if (coloured && (!b.coloured || b.colour != c.color)) {
        w->setStyleSheet(QStringLiteral("color: #%1;").arg(c.color, 6, 16, QLatin1Char('0')));
        b.colour = c.color;
        b.coloured = true;
    }
    w->setVisible(c.visible);
}

const FormView::Binding* FormView::find(std::string_view key) const {
    for (const Binding& b : bindings_)
        if (control_key(*b.control) == key) return &b;
    return nullptr;
}

FormView::Binding* FormView::find(std::string_view key) {
    return const_cast<Binding*>(std::as_const(*this).find(key));
}

const Control* FormView::control(std::string_view key) const {
    const Binding* b = find(key);
    return b ? b->control : nullptr;
}

QWidget* FormView::widget(std::string_view key) const {
    const Binding* b = find(key);
    return b ? b->widget : nullptr;
}

void FormView::click_key(const std::string& key) {
    const Binding* b = find(key);
    if (!b) return;
    if (auto* button = qobject_cast<QAbstractButton*>(b->widget)) {
        // Through the widget, so a disabled or hidden control stays deaf as to the mouse.
        if (button->isEnabled() && button->isVisible()) button->click();
        return;
    }
    emit controlClicked(b->control, b->control->index);
}

void FormView::focus_first() {
    if (QWidget* w = widget(skin_.focus_control); w && w->isEnabled() && w->isVisible())
        w->setFocus(Qt::ActiveWindowFocusReason);
}

void FormView::paintEvent(QPaintEvent* event) {
    if (!skin_.picture) {
        QWidget::paintEvent(event);
        return;
    }
    QPainter p(this);
    skin_.picture(p, *this);
}

void FormView::closeEvent(QCloseEvent* event) {
    // The window stays as the game has it; the frame's close button is a click like any other.
    event->ignore();
    if (const Binding* b = find(skin_.close_control)) emit controlClicked(b->control, -1);
}

}  // namespace tourvane
