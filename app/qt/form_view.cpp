#include "app/qt/form_view.h"

#include <QCloseEvent>
#include <QComboBox>
#include <QLabel>
#include <QPainter>
#include <QRadioButton>
#include <QStyle>
#include <QStyleOptionButton>

#include "app/qt/control_widgets.h"
#include "app/qt/shortcuts.h"
#include "app/qt/text.h"
#include "app/qt/window_style.h"
#include "view/controls.h"
#include "view/notes.h"

namespace tourvane {

namespace {

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

/// The part of a drop-down list's width taken by its arrow and padding.
constexpr int kComboArrow = 30;

/// `text` as it fits `room` pixels of one line in `font`: whole, or cut with "…".
QString fit_line(const QString& text, const QFontMetrics& font, int room) {
    return font.horizontalAdvance(text) <= room ? text
                                                : font.elidedText(text, Qt::ElideRight, room);
}

/// `text` as it fits `room`, wrapped at words: whole, or cut with "…" where the room ends.
QString fit_block(const QString& text, const QFontMetrics& font, const QRect& room) {
    const auto fits = [&](const QString& t) {
        return font.boundingRect(room, Qt::TextWordWrap, t).height() <= room.height();
    };
    if (fits(text)) return text;
    qsizetype lo = 0, hi = text.size();  // the longest cut that still fits
    while (lo < hi) {
        const qsizetype mid = (lo + hi + 1) / 2;
        if (fits(text.left(mid).trimmed() + QChar(0x2026)))
            lo = mid;
        else
            hi = mid - 1;
    }
    return text.left(lo).trimmed() + QChar(0x2026);
}

/// The width a button's caption has, inside its frame, padding and indicator.
int caption_room(const QAbstractButton& button, bool option) {
    QStyleOptionButton opt;
    opt.initFrom(&button);
    const auto element = option ? QStyle::SE_RadioButtonContents : QStyle::SE_PushButtonContents;
    return button.style()->subElementRect(element, &opt, &button).width() - 4;
}

}  // namespace

FormView::FormView(const Game& g, FormState& form, std::vector<Control*> controls, FormSkin skin)
    : QWidget(nullptr), g_(g), form_(form), skin_(std::move(skin)), face_(screen_face(form.name)) {
    setObjectName(form.name);
    setFixedSize(form.width, form.height);
    const QString title = QString::fromLatin1(face_.title);
    setWindowTitle(title);
    setAccessibleName(title);
    setAttribute(Qt::WA_StyledBackground, !skin_.picture);
    for (Control* c : controls) {
        Binding& b = bindings_.emplace_back();
        b.control = c;
        b.widget = build(*c);
    }
    setStyleSheet(skin_.style_sheet + kToolTipStyle);
    for (Binding& b : bindings_)
        if (auto* list = qobject_cast<ListBox*>(b.widget)) list->fit_whole_rows();
    if (skin_.finish) skin_.finish(*this);
    bind_keys(*this, form.name, {KeyAction::Click},
              [this](const KeyBinding& b) { click_key(std::string(b.control)); });
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
    QString object_name = QString::fromLatin1(c.name);
    if (c.index >= 0) object_name += "_" + QString::number(c.index);
    w->setObjectName(object_name);
    w->setProperty("kind", kind_name(c.kind));
    // No control reaches past the window's edge, where its text would be lost.
    w->setGeometry(QRect(c.pos.left, c.pos.top, c.pos.width, c.pos.height) & rect());
    return w;
}

void FormView::refresh() {
    bool picture = false;
    for (Binding& b : bindings_)
        if (refresh(b) && b.control->kind == ControlKind::HotSpot) picture = true;
    // A hot spot is drawn by the picture; every other widget repaints itself as it changes.
    if (picture) update();
}

bool FormView::refresh(Binding& b) {
    const Control& c = *b.control;
    QWidget* w = b.widget;
    // What a widget may change by itself goes back to the model's every time.
    if (c.kind == ControlKind::Option) {
        static_cast<QRadioButton*>(w)->setChecked(c.value);
    } else if (c.kind == ControlKind::ListBox && b.rows == c.rows) {
        auto* list = static_cast<ListBox*>(w);
        const QSignalBlocker quiet(list);
        const int selected = c.selected < list->count() ? c.selected : -1;
        list->setCurrentRow(selected);
        if (selected < 0) list->clearSelection();
    } else if (c.kind == ControlKind::ComboBox && b.rows == c.rows) {
        auto* combo = static_cast<QComboBox*>(w);
        const QSignalBlocker quiet(combo);
        combo->setCurrentIndex(c.selected < combo->count() ? c.selected : -1);
    }
    const std::string reason = grey_reason(g_, form_, c);
    const std::string note = control_note(g_, form_, c);
    const bool coloured = c.rule_colour || (skin_.model_colours && c.kind == ControlKind::Label);
    if (b.copied && b.rows == c.rows && b.caption == c.caption && b.tooltip == c.tooltip &&
        b.reason == reason && b.note == note && b.enabled == c.enabled && b.visible == c.visible &&
        (!coloured || (b.coloured && b.colour == c.color)))
        return false;
    b.copied = true;
    b.caption = c.caption;
    b.tooltip = c.tooltip;
    b.reason = reason;
    b.note = note;
    b.enabled = c.enabled;
    b.visible = c.visible;

    const QString caption = qs(c.caption);
    const QString name = qs(accessible_name(form_, c));

    bool cut = false;  // the caption is shown cut short with "…"
    w->setEnabled(c.enabled);
    switch (c.kind) {
        case ControlKind::Label: {
            auto* label = static_cast<QLabel*>(w);
            label->ensurePolished();
            const QRect room = label->contentsRect().adjusted(label->margin(), label->margin(),
                                                              -label->margin(), -label->margin());
            const QString shown = label->wordWrap()
                                      ? fit_block(caption, label->fontMetrics(), room)
                                      : fit_line(caption, label->fontMetrics(), room.width());
            if (label->text() != shown) label->setText(shown);
            cut = shown != caption;
            label->setAccessibleName(name);
            break;
        }
        case ControlKind::ClickLabel:
        case ControlKind::Button: {
            auto* button = static_cast<QAbstractButton*>(w);
            button->ensurePolished();
            const QString shown =
                fit_line(caption, button->fontMetrics(), caption_room(*button, false));
            // Captions of buttons read '&' as a mnemonic; the game's captions mean the character.
            button->setText(QString(shown).replace('&', "&&"));
            cut = shown != caption;
            button->setAccessibleName(name);
            break;
        }
        case ControlKind::HotSpot:
            w->setAccessibleName(name);
            break;
        case ControlKind::Option: {
            auto* option = static_cast<QRadioButton*>(w);
            option->ensurePolished();
            const QFontMetrics font = option->fontMetrics();
            const int room = caption_room(*option, true);
            QString shown = fit_line(caption, font, room);
            if (shown != caption && c.index >= 0) {
                // Options cut short keep their number, so that slots of one name still differ.
                const QString number = QString::number(c.index + 1) + ". ";
                shown = number + fit_line(caption, font, room - font.horizontalAdvance(number));
            }
            option->setText(QString(shown).replace('&', "&&"));
            cut = shown != caption;
            option->setChecked(c.value);
            option->setAccessibleName(name);
            break;
        }
        case ControlKind::ListBox: {
            auto* list = static_cast<ListBox*>(w);
            const QSignalBlocker quiet(list);
            if (b.rows != c.rows) {
                list->ensurePolished();  // rows are cut to the font of the screen's style
                list->clear();
                const int room = list->row_room(static_cast<int>(c.rows.size()));
                for (const std::string& row : shown_rows(g_, form_, c)) {
                    const QString whole = qs(row);
                    auto* item = new QListWidgetItem(fit_line(whole, list->fontMetrics(), room));
                    item->setSizeHint(QSize(room, list->row_height()));
                    if (item->text() != whole) {
                        item->setToolTip(whole);
                        item->setData(Qt::AccessibleDescriptionRole, whole);
                    }
                    list->addItem(item);
                }
                b.rows = c.rows;
            }
            const int selected = c.selected < list->count() ? c.selected : -1;
            list->setCurrentRow(selected);
            if (selected < 0) list->clearSelection();
            list->setAccessibleName(name);
            break;
        }
        case ControlKind::ComboBox: {
            auto* combo = static_cast<QComboBox*>(w);
            const QSignalBlocker quiet(combo);
            if (b.rows != c.rows) {
                combo->ensurePolished();
                combo->clear();
                const int room = combo->width() - kComboArrow;
                for (const std::string& row : shown_rows(g_, form_, c)) {
                    const QString whole = qs(row);
                    const QString shown = fit_line(whole, combo->fontMetrics(), room);
                    combo->addItem(shown);
                    if (shown != whole) {
                        combo->setItemData(combo->count() - 1, whole, Qt::ToolTipRole);
                        combo->setItemData(combo->count() - 1, whole,
                                           Qt::AccessibleDescriptionRole);
                    }
                }
                b.rows = c.rows;
            }
            combo->setCurrentIndex(c.selected < combo->count() ? c.selected : -1);
            combo->setAccessibleName(name);
            break;
        }
    }

    // A hover tells the whole caption where it is cut short, and a grey control says why;
    // enabled again, it has its usual tip back.
    w->setToolTip(qs(hover_text(c, cut, note, reason)));
    w->setAccessibleDescription(qs(accessible_description(form_, c, cut, note, reason)));

    if (coloured && (!b.coloured || b.colour != c.color)) {
        // For this label alone: a bare rule would colour its tool tip too.
        w->setStyleSheet(QStringLiteral("#%1 { color: #%2; }")
                             .arg(w->objectName())
                             .arg(c.color, 6, 16, QLatin1Char('0')));
        b.colour = c.color;
        b.coloured = true;
    }
    w->setVisible(c.visible);
    return true;
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
    if (QWidget* w = widget(face_.focus_control); w && w->isEnabled() && w->isVisible())
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
    if (const Binding* b = find(face_.close_control)) emit controlClicked(b->control, -1);
}

}  // namespace tourvane
