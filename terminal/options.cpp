#include "terminal/options.h"

#include <QCommandLineParser>
#include <QFileInfo>
#include <QRegularExpression>
#include <cstdio>

#include "server/remote/loopback_address.h"
#include "terminal/language.h"
#include "terminal/theme/theme_switch.h"

namespace jogeon::terminal {
namespace {

constexpr int kWrongUse = 2;
constexpr char kGuest[] = "guest";

void Print(std::FILE* to, const QString& text) {
    std::fputs(text.toUtf8().constData(), to);
}

// What is wrong with --server, empty if nothing is.
QString ServerFault(const Options& options) {
    if (options.server.isEmpty()) return {};
    if (!options.market.isEmpty() || !options.store.isEmpty()) {
        return "--server takes neither --market nor --store: the server has its own";
    }
    try {
        const bool anyPort = remote::ReadLoopbackAddress(options.server.toStdString()) == 0;
        return anyPort ? "--server " + options.server + ": port 0 is nobody's" : QString();
    } catch (const remote::BadAddress& error) {
        return "--server " + QString(error.what());
    }
}

// What is wrong with the options, empty if nothing is.
QString Fault(const QCommandLineParser& parser, const Options& options) {
    if (!parser.positionalArguments().isEmpty()) {
        return "unexpected argument '" + parser.positionalArguments().constFirst() + "'; see --help";
    }
    static const QRegularExpression userId("^[A-Za-z0-9_]{1,8}$");
    if (!userId.match(options.user).hasMatch()) {
        return "--user " + options.user + ": a user id is 1 to 8 letters, digits or _";
    }
    if (!options.market.isEmpty() && !QFileInfo(options.market).isFile()) {
        return "--market " + options.market +
               ": no such file; make one with: jogeond import --out FILE INPUT...";
    }
    if (!options.lang.isEmpty() && !LanguageOf(options.lang)) return "--lang takes ko or en";
    if (!options.theme.isEmpty() && !ThemeChoiceOf(options.theme)) return "--theme takes auto, light or dark";
    return ServerFault(options);
}

}  // namespace

std::optional<Options> ReadOptions(const QStringList& arguments, int* status) {
    QCommandLineParser parser;
    parser.setApplicationDescription("Condition search for the Korean stock market.");
    const QCommandLineOption help = parser.addHelpOption();
    const QCommandLineOption version = parser.addVersionOption();
    const QCommandLineOption user("user", "Log in as this user.", "ID", kGuest);
    const QCommandLineOption home("home", "Keep data files and the user's own files here.", "DIR");
    const QCommandLineOption market("market", "Search this market file; without it, a generated market.",
                                    "FILE");
    const QCommandLineOption store("store", "Keep what the users save in this file, not in the home.",
                                   "FILE");
    const QCommandLineOption server(
        "server", "Use the service at this address, which jogeond serve offers, not one of this process.",
        "ADDRESS");
    const QCommandLineOption open("open", "Open this condition set at the start.", "SET");
    const QCommandLineOption lang("lang", "Show the terminal's own texts in Korean or English: ko or en.",
                                  "LANGUAGE");
    const QCommandLineOption theme("theme", "Light or dark for this run: auto, light or dark.", "THEME");
    const QCommandLineOption trace("trace", "Print each request and reply as it goes.");
    const QCommandLineOption demonstrate(
        "demonstrate", "Open a set, search, write a picture of the screen, print the first rows, end.",
        "PICTURE");
    parser.addOptions({user, home, market, store, server, open, lang, theme, trace, demonstrate});

    *status = kWrongUse;
    if (!parser.parse(arguments)) {
        Print(stderr, "jogeon: " + parser.errorText() + "\n");
        return std::nullopt;
    }
    if (parser.isSet(help) || parser.isSet(version)) {
        Print(stdout, parser.isSet(help) ? parser.helpText() : QString("jogeon " JOGEON_VERSION "\n"));
        *status = 0;
        return std::nullopt;
    }
    Options options{parser.value(user),   parser.value(home), parser.value(market),      parser.value(store),
                    parser.value(server), parser.value(open), parser.value(demonstrate), parser.isSet(trace),
                    parser.value(lang),   parser.value(theme)};
    if (const QString fault = Fault(parser, options); !fault.isEmpty()) {
        Print(stderr, "jogeon: " + fault + "\n");
        return std::nullopt;
    }
    return options;
}

}  // namespace jogeon::terminal
