#include "app/qt/side_windows.h"

#include <QEvent>
#include <QGuiApplication>
#include <QScreen>

#include "app/qt/form_view.h"
#include "app/qt/shortcuts.h"

namespace tourvane {

SideWindows::SideWindows(Game& g, FormView& office)
    : g_(g),
      office_(office),
      diary_(std::make_unique<DiaryWindow>(g)),
      graph_(std::make_unique<WeekGraphWindow>(g)),
      keys_(std::make_unique<KeyHelpWindow>(g)) {
    using enum KeyAction;
    bind_keys(office_, "main", {OpenDiary, OpenGraph, OpenHelp}, [this](const KeyBinding& b) {
        open(b.action == OpenDiary   ? static_cast<QWidget&>(*diary_)
             : b.action == OpenGraph ? static_cast<QWidget&>(*graph_)
                                     : static_cast<QWidget&>(*keys_));
    });
    for (QWidget* window :
         {static_cast<QWidget*>(diary_.get()), static_cast<QWidget*>(graph_.get()),
          static_cast<QWidget*>(keys_.get())}) {
        window->setWindowIcon(office_.windowIcon());
        window->installEventFilter(this);
    }
}

SideWindows::~SideWindows() = default;

void SideWindows::refresh() {
    diary_->refresh();
    graph_->refresh();
}

void SideWindows::close_all() {
    for (QWidget* w : {static_cast<QWidget*>(diary_.get()), static_cast<QWidget*>(graph_.get()),
                       static_cast<QWidget*>(keys_.get())})
        w->hide();
}

void SideWindows::open(QWidget& window) {
    if (!g_.forms.main.usable() || g_.ended) return;
    if (!window.isVisible()) {
        if (!window.testAttribute(Qt::WA_Moved)) {
            // The first time over the office, a little down and right of its corner.
            const QScreen* screen =
                office_.screen() ? office_.screen() : QGuiApplication::primaryScreen();
            // The frame the window manager puts round a window, as it does round the office.
            const QSize border = office_.frameGeometry().size() - office_.size();
            QRect frame(office_.geometry().topLeft() + QPoint(40, 40), window.size() + border);
            if (screen) {
                // No taller or wider than the desktop, which a scaled one may well be.
                const QRect area = screen->availableGeometry();
                frame.setSize(frame.size().boundedTo(area.size()));
                window.resize((frame.size() - border).expandedTo(window.minimumSize()));
                frame.moveRight(std::min(frame.right(), area.right()));
                frame.moveBottom(std::min(frame.bottom(), area.bottom()));
                frame.moveLeft(std::max(frame.left(), area.left()));
                frame.moveTop(std::max(frame.top(), area.top()));
            }
            window.move(frame.topLeft());
        }
        window.show();
    }
    const QString platform = QGuiApplication::platformName();
    if (platform != "offscreen" && platform != "minimal") window.raise();
    window.activateWindow();
}

bool SideWindows::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Hide && watched->isWidgetType() && office_.isVisible() &&
        !static_cast<QWidget*>(watched)->isMinimized())
        office_.activateWindow();
    return false;
}

}  // namespace tourvane
