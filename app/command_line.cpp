#include "app/command_line.h"

#include <QCommandLineParser>
#include <cstdio>

#include "app/driver/invocation.h"
#include "core/about.h"

namespace tourvane {

int print_and_stop(const CommandLine& line) {
    std::FILE* to = line.status == 0 ? stdout : stderr;
    std::fputs(line.output.toLocal8Bit().constData(), to);
    std::fflush(to);
    return line.status;
}

QString version_text() {
    return QString::fromStdString(tourvane::version_text("tourvane"));
}

CommandLine parse_command_line(const QStringList& arguments) {
    QCommandLineParser parser;
    parser.setApplicationDescription(
        "Tourvane: manage a four-piece rock band one week at a time.\n"
        "With --seed the game's random draws start from N instead of the clock, so the same\n"
        "seed and the same clicks give the same game.");
    const QCommandLineOption help({"h", "help"}, "Print this text and exit.");
    const QCommandLineOption version({"v", "version"},
                                     "Print the version and the licence, and exit.");
    const QCommandLineOption seed("seed", "Start the random draws from the whole number N.", "N");
    const QCommandLineOption measure(
        "measure-startup",
        "Print how many milliseconds after the start the title screen was drawn, and quit.");
    parser.addOption(help);
    parser.addOption(version);
    parser.addOption(seed);
    parser.addOption(measure);
    // Qt's own options, which QApplication takes out of the list later; knowing them here lets
    // every other mistake be told before a display is needed. Options are words after one dash
    // too, as Qt writes its own (-platform offscreen).
    parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    for (const char* name : {"platform", "platformpluginpath", "platformtheme", "plugin",
                             "qwindowgeometry", "qwindowicon", "qwindowtitle", "session", "display",
                             "geometry", "style", "stylesheet", "qmljsdebugger"}) {
        QCommandLineOption qt(name, "", "value");
        qt.setFlags(QCommandLineOption::HiddenFromHelp);
        parser.addOption(qt);
    }
    for (const char* name : {"reverse", "widgetcount", "nograb", "dograb", "sync"}) {
        QCommandLineOption qt(name, "");
        qt.setFlags(QCommandLineOption::HiddenFromHelp);
        parser.addOption(qt);
    }

    CommandLine out;
    const QString program = arguments.isEmpty() ? QString("tourvane") : arguments.first();
    auto fail = [&](const QString& why) {
        out.stop = true;
        out.status = 2;
        out.output = QString("tourvane: %1\nTry '%2 --help'.\n").arg(why, program);
        return out;
    };
    if (!parser.parse(arguments)) return fail(parser.errorText());
    if (parser.isSet(help)) {
        out.stop = true;
        // The usage line names the program as it was started.
        out.output = parser.helpText().replace("<executable_name>", program);
        return out;
    }
    if (!parser.positionalArguments().isEmpty())
        return fail("unexpected argument '" + parser.positionalArguments().first() + "'");
    if (parser.isSet(version)) {
        out.stop = true;
        out.output = version_text();
        return out;
    }
    out.measure_startup = parser.isSet(measure);
    if (parser.isSet(seed)) {
        if (parser.values(seed).size() > 1) return fail("--seed given twice");
        out.seed = driver::parse_seed(parser.value(seed).toStdString());
        if (!out.seed) return fail(driver::kSeedError);
    }
    return out;
}

}  // namespace tourvane
