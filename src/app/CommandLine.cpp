// SPDX-License-Identifier: GPL-2.0-or-later
// The table of bvprint's options, how they are read, and the text of --help.
#include "app/CommandLine.h"

#include <QCommandLineParser>
#include <array>

namespace bv {

namespace {

// One option: its name, the word for its value (null: it takes none), where the value goes, and its line of --help.
struct OptionRow
{
    const char *name;
    const char *value;
    QString &(*place)(CommandLine &line);
    const char *help;
};

// clang-format off
constexpr std::array<OptionRow, 16> kOptions = {{
    {"batch",      "SCRIPT", [](CommandLine &line) -> QString & { return line.script; },            "carry out the commands of a file (-: standard input), without a window"},
    {"plugin",     "FILE",   [](CommandLine &line) -> QString & { return line.plugin; },            "the plug-in to load (default: the one beside this program)"},
    {"queue",      "NAME",   [](CommandLine &line) -> QString & { return line.session.queue; },     "the print queue, or QUEUE/NAME for a set of your defaults (default: the one printed on last, in a batch the print server's; with --ppd: QL70)"},
    {"ppd",        "FILE",   [](CommandLine &line) -> QString & { return line.session.ppd; },       "take the options from a PPD file; no print server is needed"},
    {"device-uri", "URI",    [](CommandLine &line) -> QString & { return line.session.deviceUri; }, "the device URI of the queue"},
    {"ticket",     "FILE",   [](CommandLine &line) -> QString & { return line.session.ticket; },    "a ticket to start from, as JSON"},
    {"job",        "JOB",    [](CommandLine &line) -> QString & { return line.job; },               "print a job of yours that the print server holds, such as 12 or QL70-12; it has its documents already"},
    {"agent",      "WORD",   [](CommandLine &line) -> QString & { return line.agent; },             "on: open the dialog by itself for each new job of yours that the print server holds; off: no longer; run: do it in this session"},
    {"preset",     "NAME",   [](CommandLine &line) -> QString & { return line.preset; },            "start from a preset that you saved for the queue"},
    {"screenshot", "FILE",   [](CommandLine &line) -> QString & { return line.screenshot; },        "write a picture of the ready window (PNG), and end"},
    {"no-printer", nullptr,  nullptr,                                                               "with --ppd: there is no current printer"},
    {"share-profiles", nullptr, nullptr,                                                            "give a list of profiles to the users that are named in place of files; see --from, --replace"},
    {"from",       "USER",   [](CommandLine &line) -> QString & { return line.share.from; },        "with --share-profiles: whose list (default: yours, or that of the user who called sudo)"},
    {"replace",    nullptr,  nullptr,                                                               "with --share-profiles: also to users who have a list"},
    {"help",       nullptr,  nullptr,                                                               "print this and end"},
    {"version",    nullptr,  nullptr,                                                               "print the version and end"},
}};
// clang-format on

Result<CommandLine> failure(const QString &sentence)
{
    return Result<CommandLine>::failure(sentence);
}

} // namespace

Result<CommandLine> parseCommandLine(const QStringList &arguments)
{
    QCommandLineParser parser;
    for (const OptionRow &row : kOptions)
        parser.addOption({QLatin1String(row.name), QLatin1String(row.help), QLatin1String(row.value)});
    // The parser passes over the first word, the program's name.
    if (!parser.parse(QStringList(QStringLiteral("bvprint")) + arguments))
        return failure(QStringLiteral("%1 See bvprint --help.").arg(parser.errorText()));

    CommandLine line;
    if (parser.isSet(QStringLiteral("help")) || parser.isSet(QStringLiteral("version"))) {
        line.mode = parser.isSet(QStringLiteral("help")) ? CommandLine::Mode::Help : CommandLine::Mode::Version;
        return line;
    }
    for (const OptionRow &row : kOptions) {
        const QString name = QLatin1String(row.name);
        if (!row.place || !parser.isSet(name))
            continue;
        row.place(line) = parser.value(name);
        if (row.place(line).isEmpty())
            return failure(QStringLiteral("The value of the option --%1 is empty.").arg(name));
    }
    line.session.noPrinter = parser.isSet(QStringLiteral("no-printer"));
    line.documents = parser.positionalArguments();

    line.share.replace = parser.isSet(QStringLiteral("replace"));
    const bool isShared = parser.isSet(QStringLiteral("share-profiles"));
    if (!isShared && (line.share.replace || !line.share.from.isEmpty()))
        return failure(QStringLiteral("The options --from and --replace need --share-profiles."));
    if (isShared) {
        line.mode = CommandLine::Mode::Share;
        line.share.users = line.documents;
        if (line.share.users.isEmpty() || !line.script.isEmpty())
            return failure(QStringLiteral("The option --share-profiles takes the login names of users, and no batch."));
        return line;
    }

    if (!line.agent.isEmpty()) {
        line.mode = CommandLine::Mode::Agent;
        if (!QStringList{QStringLiteral("on"), QStringLiteral("off"), QStringLiteral("run")}.contains(line.agent) ||
            arguments.filter(QStringLiteral("--agent")).size() != 1 || arguments.size() > 2)
            return failure(QStringLiteral("The option --agent takes on, off or run, and nothing else."));
        return line;
    }
    if (!line.script.isEmpty())
        line.mode = CommandLine::Mode::Batch;
    if (line.mode == CommandLine::Mode::Batch && !line.documents.isEmpty())
        return failure(QStringLiteral("A batch takes no documents; its print command names them."));
    if (line.mode == CommandLine::Mode::Batch && !line.screenshot.isEmpty())
        return failure(QStringLiteral("A batch takes no --screenshot; its screenshot command names the picture."));
    if (line.mode == CommandLine::Mode::Batch && !line.preset.isEmpty())
        return failure(QStringLiteral("A batch takes no --preset; its preset command names it."));
    if (!line.preset.isEmpty() && !line.session.ticket.isEmpty())
        return failure(QStringLiteral("The options --preset and --ticket both say what to start from; give one."));
    if (line.session.noPrinter && line.session.usesServer())
        return failure(QStringLiteral("The option --no-printer needs --ppd."));
    if (!line.job.isEmpty() &&
        (!line.documents.isEmpty() || !line.session.usesServer() || !line.session.ticket.isEmpty()))
        return failure(QStringLiteral("The option --job takes no documents, no --ppd and no --ticket."));
    return line;
}

QString commandLineHelp()
{
    QString text = QStringLiteral("Usage: bvprint [options] [FILE...]\n"
                                  "       bvprint [options] --batch SCRIPT\n"
                                  "       bvprint [options] --job JOB\n"
                                  "       bvprint --agent on|off|run\n"
                                  "       bvprint --share-profiles [--from USER] [--replace] USER...\n"
                                  "Opens the print dialog for the files, or carries out a batch.\n\n");
    for (const OptionRow &row : kOptions) {
        const QString usage =
            QStringLiteral("--%1 %2").arg(QLatin1String(row.name), QLatin1String(row.value)).trimmed();
        text += QStringLiteral("  %1 %2\n").arg(usage, -18).arg(QLatin1String(row.help));
    }
    text += QStringLiteral(
        "\nA batch starts from an empty job. Its print command sends what the controls show: restoreValues before it\n"
        "puts the printer's defaults and the ticket into them. Without it, print sends the first item of every\n"
        "menu after panelView, and none of the pane's options before.\n");
    text += QStringLiteral("\nExit status: 0 printed or cancelled, 1 a command or job of the batch failed,\n"
                           "or a user did not get the list of profiles,\n"
                           "2 bad arguments, PPD, ticket or plug-in, or no print queue.\n");
    return text;
}

QString commandLineVersion()
{
    return QStringLiteral("bvprint " BVPRINT_VERSION "\n");
}

} // namespace bv
