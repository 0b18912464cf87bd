#pragma once
// A career's story: the summary window that opens beside the memo that ends the game, and the
// hall of fame, opened from the title screen, with each finished career's summary, diary and
// week graph to read.

#include <QWidget>
#include <memory>
#include <vector>

#include "core/career.h"
#include "core/scripted_port.h"
#include "rules/files/hall_of_fame.h"

class QTreeWidget;

namespace tourvane {

class DiaryWindow;
class WeekGraphWindow;

/// A career's figures, a line each, read out line by line.
class SummaryView : public QWidget {
    Q_OBJECT
  public:
    explicit SummaryView(QWidget* parent = nullptr);
    void show_summary(const CareerSummary& s);
    QTreeWidget* lines() const { return lines_; }

  private:
    QTreeWidget* lines_;
};

/// The summary of the career just ended, beside its last memo.
class SummaryWindow : public QWidget {
    Q_OBJECT
  public:
    SummaryWindow();
    void show_summary(const CareerSummary& s) { view_->show_summary(s); }
    SummaryView* view() const { return view_; }

  private:
    SummaryView* view_;
};

/// The finished careers, best first: pick one to read its summary, and open its diary or its
/// week graph. It reads the hall once, as it opens.
class HallWindow : public QWidget {
    Q_OBJECT
  public:
    explicit HallWindow(FilePort& files);
    ~HallWindow() override;

    QTreeWidget* careers() const { return careers_; }
    SummaryView* summary() const { return summary_; }
    DiaryWindow& diary() { return *diary_; }
    WeekGraphWindow& graph() { return *graph_; }

  protected:
    void showEvent(QShowEvent* event) override;

  private:
    void pick(int row);

    FilePort& files_;
    std::vector<FameEntry> hall_;
    QTreeWidget* careers_;
    SummaryView* summary_;
    ScriptedPort quiet_;  ///< the career shown is only read, never played
    Game shown_;          ///< the picked career's diary and weeks, for its windows
    std::unique_ptr<DiaryWindow> diary_;
    std::unique_ptr<WeekGraphWindow> graph_;
};

}  // namespace tourvane
