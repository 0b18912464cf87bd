// Pictures of the seven screens in a game under way, written to the build's screenshots
// folder so that a person can look at them; each must be a real picture, not a blank window.

#include <QDir>
#include <QSet>
#include <QtTest>

#include "music/songs.h"
#include "qt_harness.h"
#include "screens/ui.h"

using tourvane::testing::Harness;

namespace {

/// Saves the screen's picture and checks that it holds more than a few flat colours.
void shoot(tourvane::FormView* view, const char* file) {
    QDir().mkpath(TOURVANE_SCREENSHOT_DIR);
    const QImage image = view->grab().toImage();
    QCOMPARE(image.size(), view->size());
    QSet<QRgb> colours;
    for (int y = 0; y < image.height(); y += 3)
        for (int x = 0; x < image.width(); x += 3) colours.insert(image.pixel(x, y));
    QVERIFY2(colours.size() > 40, file);
    QVERIFY(image.save(QString(TOURVANE_SCREENSHOT_DIR) + "/" + file));
}

/// A game some weeks in: a full band, three songs, a member picked and promotion bought.
void game_under_way(Harness& h) {
    h.new_game("The Wasps", "Sam");
    for (int k = 0; k < 4; ++k) h.click("main", "hire");
    tourvane::Module1& r = h.g.rec;
    const char* songs[] = {"", "Paper Sting", "Neon Rain", "Velvet Static"};
    for (int i = 1; i <= 3; ++i) r.songname[i] = songs[i], r.songquality[i] = 40 * i;
    r.songcount = 3;
    tourvane::updatesonglist(h.g);
    h.windows->refresh();
    h.click_row("main", "members", 1);
    h.click("main", "promote(1)");
}

}  // namespace

class ScreenshotsTest : public QObject {
    Q_OBJECT

  private slots:
    void title() {
        Harness h;
        shoot(h.view("Form1"), "Form1.png");
    }

    void office() {
        Harness h;
        game_under_way(h);
        tourvane::FormView* main = h.view("main");
        QVERIFY(main->isVisible());
        main->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(main));
        h.widget("main", "command6")->setFocus(Qt::TabFocusReason);
        shoot(main, "main.png");
    }

    void memo() {
        Harness h;
        game_under_way(h);
        tourvane::message(h.g, "The band are playing well together. Keep them rehearsing!", "Dave");
        h.windows->refresh();
        QVERIFY(h.view("messageForm")->isVisible());
        shoot(h.view("messageForm"), "messageForm.png");
    }

    void gig() {
        // The booking screen as it stands part-way through building a set list.
        Harness h;
        game_under_way(h);
        tourvane::GigForm& gig = h.g.forms.gig;
        gig.loaded = gig.visible = true;
        h.g.forms.main.visible = false;
        for (int k = 0; k < 5; ++k) gig.location[k].enabled = k != 3;
        gig.location[1].value = true;
        gig.txtcapacity.caption = "240";
        gig.txtticket.caption = "£3";
        gig.txthire.caption = "£240";
        gig.command1.enabled = true;
        gig.Combo1.enabled = true;
        gig.Combo1.rows = {"Paper Sting", "Neon Rain", "Velvet Static"};
        gig.tracks[0].caption = "Neon Rain";
        gig.tracks[1].caption = "Paper Sting";
        gig.command3.enabled = true;
        h.windows->refresh();
        QVERIFY(h.view("gig")->isVisible());
        shoot(h.view("gig"), "gig.png");
    }

    void newspaper() {
        Harness h;
        game_under_way(h);
        tourvane::NewspaperForm& news = h.g.forms.thenewspaper;
        news.loaded = news.visible = true;
        news.txtnews.caption =
            "The Wasps played a pretty good gig last night, although many agreed they are far "
            "off the finished article. The best song of the gig was Neon Rain which really "
            "fired up the crowd.";
        news.txtattend.caption = "212";
        news.txtprofit.caption = "£396";
        h.windows->refresh();
        shoot(h.view("thenewspaper"), "thenewspaper.png");
    }

    void files() {
        Harness h;
        game_under_way(h);
        tourvane::SaveForm& files = h.g.forms.savefrm;
        files.loaded = files.visible = true;
        files.saveslot[0].caption = "The Wasps";
        files.saveslot[0].value = true;
        h.windows->refresh();
        shoot(h.view("savefrm"), "savefrm.png");
    }

    void chart() {
        Harness h;
        game_under_way(h);
        tourvane::Module1& r = h.g.rec;
        const char* bands[] = {"Hollow Crown", "The Lanterns", "Mirror Factory",
                               "Saint Jude",   "Copper Moth",  "The Fallow",
                               "Kite Lines",   "Brass Owls",   "Lowtide"};
        const char* titles[] = {"Glass Houses", "Ferris Wheel",  "Every Other Monday",
                                "Undertow",     "Radio Silence", "Small Hours",
                                "Paper Planes", "Cold Shoulder", "Driftwood"};
        for (int k = 0; k < 9; ++k) {
            const int row = tourvane::kFirstRivalRow + k;
            r.chartband[row] = bands[k];
            r.charttitle[row] = titles[k];
            r.chartsales[row] = 9000 - 700 * k;
        }
        r.chartband[1] = "The Wasps";
        r.charttitle[1] = "Paper Sting";
        r.chartsales[1] = 6000;
        h.g.forms.main.secret.enabled = true;
        h.windows->refresh();
        h.click("main", "secret");
        QVERIFY(h.view("Chart")->isVisible());
        shoot(h.view("Chart"), "Chart.png");
    }
};

QTEST_MAIN(ScreenshotsTest)
#include "screenshots_test.moc"
