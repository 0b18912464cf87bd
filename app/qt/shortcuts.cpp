#include "app/qt/shortcuts.h"

#include <QKeyEvent>
#include <QKeySequence>
#include <QShortcut>
#include <QWidget>
#include <algorithm>

namespace tourvane {

void bind_keys(QWidget& window, std::string_view where, std::initializer_list<KeyAction> actions,
               std::function<void(const KeyBinding&)> act) {
    for (const KeyBinding& b : key_bindings()) {
        if (b.where != where ||
            std::find(actions.begin(), actions.end(), b.action) == actions.end())
            continue;
        each_key(b.key, [&](std::string_view key) {
            auto* shortcut = new QShortcut(QKeySequence(QString::fromLatin1(key)), &window);
            QObject::connect(shortcut, &QShortcut::activated, &window, [act, &b] { act(b); });
        });
    }
}

std::string key_name(const QKeyEvent& event) {
    const QKeyCombination pressed(event.modifiers() & ~Qt::KeypadModifier, Qt::Key(event.key()));
    return QKeySequence(pressed).toString(QKeySequence::PortableText).toStdString();
}

}  // namespace tourvane
