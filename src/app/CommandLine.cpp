// SPDX-License-Identifier: GPL-2.0-or-later
// The table of bvprint's options, how they are read, and the text of --help.
#include "app/CommandLine.h"

#include <QCommandLineParser>
#include <array>

namespace bv {

namespace {

// One option: its name, a letter for it (0: none), the word for its value (null: it takes none), where the value goes
// (null: read by itself), and its line of --help.
struct OptionRow
{
    const char *name;
    char letter;
    const char *value;
    QString &(*place)(CommandLine &line);
    const char *help;
};

// clang-format off
constexpr std::array<OptionRow, 26> kOptions = {{
    {"print",      0,   nullptr,  nullptr,                                                               "print the files without a window"},
    {"list",       0,   nullptr,  nullptr,                                                               "list all options with their choices, what is chosen, and what cannot be chosen and why"},
    {"summary",    0,   nullptr,  nullptr,                                                               "sum up what would be printed"},
    {"queue",      'd', "NAME",   [](CommandLine &line) -> QString & { return line.session.queue; },     "the print queue, or QUEUE/NAME for a set of your defaults (default: in the window the one printed on last, else the print server's; with --ppd: QL70)"},
    {"option",     'o', "KEYWORD=CHOICE", nullptr,                                                       "with --print, --list or --summary: choose this; again for each option. Paper, sides and the like also by the names that lp knows (media, sides ...)"},
    {"preset",     0,   "NAME",   [](CommandLine &line) -> QString & { return line.preset; },            "start from a preset that you saved for the queue"},
    {"copies",     'n', "NUMBER", [](CommandLine &line) -> QString & { return line.direct.copies; },     "with --print: this many copies"},
    {"pages",      'P', "RANGES", [](CommandLine &line) -> QString & { return line.direct.pages; },      "with --print: only these pages, such as 1-3,8"},
    {"title",      't', "TITLE",  [](CommandLine &line) -> QString & { return line.direct.title; },      "with --print: the title of the job (default: the first file's name)"},
    {"force",      0,   nullptr,  nullptr,                                                               "with --print: print even if choices do not go together or are grayed out"},
    {"json",       0,   nullptr,  nullptr,                                                               "with --print, --list or --summary: answer as JSON"},
    {"batch",      0,   "SCRIPT", [](CommandLine &line) -> QString & { return line.script; },            "carry out the commands of a file (-: standard input), without a window"},
    {"plugin",     0,   "FILE",   [](CommandLine &line) -> QString & { return line.plugin; },            "the plug-in to load (default: the one beside this program)"},
    {"ppd",        0,   "FILE",   [](CommandLine &line) -> QString & { return line.session.ppd; },       "take the options from a PPD file; no print server is needed"},
    {"device-uri", 0,   "URI",    [](CommandLine &line) -> QString & { return line.session.deviceUri; }, "the device URI of the queue"},
    {"ticket",     0,   "FILE",   [](CommandLine &line) -> QString & { return line.session.ticket; },    "a ticket to start from, as JSON"},
    {"job",        0,   "JOB",    [](CommandLine &line) -> QString & { return line.job; },               "print a job of yours that the print server holds, such as 12 or QL70-12; it has its documents already"},
    {"agent",      0,   "WORD",   [](CommandLine &line) -> QString & { return line.agent; },             "on: open the dialog by itself for each new job of yours that the print server holds; off: no longer; run: do it in this session"},
    {"screenshot", 0,   "FILE",   [](CommandLine &line) -> QString & { return line.screenshot; },        "write a picture of the ready window (PNG), and end"},
    {"no-printer", 0,   nullptr,  nullptr,                                                               "with --ppd: there is no current printer"},
    {"share-profiles", 0, nullptr, nullptr,                                                              "give a list of profiles to the users that are named in place of files; see --from, --replace"},
    {"from",       0,   "USER",   [](CommandLine &line) -> QString & { return line.share.from; },        "with --share-profiles: whose list (default: yours, or that of the user who called sudo)"},
    {"replace",    0,   nullptr,  nullptr,                                                               "with --share-profiles: also to users who have a list"},
    {"complete",   0,   "WORDS",  [](CommandLine &line) -> QString & { return line.complete; },          "for shells: write the options, queues, presets, keywords, or the choices of KEYWORD="},
    {"help",       'h', nullptr,  nullptr,                                                               "print this and end"},
    {"version",    0,   nullptr,  nullptr,                                                               "print the version and end"},
}};
// clang-format on

Result<CommandLine> failure(const QString &sentence)
{
    return Result<CommandLine>::failure(sentence);
}

QStringList namesOf(const OptionRow &row)
{
    QStringList names{QLatin1String(row.name)};
    if (row.letter != 0)
        names << QString(QLatin1Char(row.letter));
    return names;
}

// The options that need no window. The sentence says what does not go together; empty: all does.
QString readDirect(const QCommandLineParser &parser, CommandLine &line)
{
    struct Task
    {
        const char *name;
        DirectRequest::Task task;
    };
    constexpr std::array<Task, 3> kTasks = {{{"print", DirectRequest::Task::Print},
                                             {"summary", DirectRequest::Task::Summary},
                                             {"list", DirectRequest::Task::List}}};
    int count = 0;
    for (const Task &one : kTasks) {
        if (!parser.isSet(QLatin1String(one.name)))
            continue;
        ++count;
        line.direct.task = one.task;
    }
    if (count > 1)
        return QStringLiteral("Of the options --print, --list and --summary give one.");
    if (count == 0) {
        for (const char *name : {"o", "n", "P", "t", "force", "json"})
            if (parser.isSet(QLatin1String(name)))
                return QStringLiteral("The option %1%2 needs --print, --list or --summary.")
                    .arg(QLatin1String(name[1] == '\0' ? "-" : "--"), QLatin1String(name));
        return {};
    }
    line.mode = CommandLine::Mode::Direct;
    for (const char *name : {"batch", "job", "agent", "screenshot", "share-profiles", "complete"})
        if (parser.isSet(QLatin1String(name)))
            return QStringLiteral("The options --print, --list and --summary take no --%1.").arg(QLatin1String(name));
    line.direct.options = parser.values(QStringLiteral("option"));
    line.direct.json = parser.isSet(QStringLiteral("json"));
    line.direct.force = parser.isSet(QStringLiteral("force"));
    line.direct.session = line.session;
    line.direct.preset = line.preset;
    line.direct.documents = line.documents;
    const bool isPrint = line.direct.task == DirectRequest::Task::Print;
    return isPrint && line.documents.isEmpty()
               ? QStringLiteral("The option --print needs a file, or - for standard input.")
               : QString();
}

} // namespace

Result<CommandLine> parseCommandLine(const QStringList &arguments)
{
    QCommandLineParser parser;
    for (const OptionRow &row : kOptions)
        parser.addOption({namesOf(row), QLatin1String(row.help), QLatin1String(row.value)});
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
    if (line.session.noPrinter && line.session.usesServer())
        return failure(QStringLiteral("The option --no-printer needs --ppd."));
    if (!line.preset.isEmpty() && !line.session.ticket.isEmpty())
        return failure(QStringLiteral("The options --preset and --ticket both say what to start from; give one."));
    if (const QString problem = readDirect(parser, line); !problem.isEmpty())
        return failure(problem);
    if (!line.complete.isEmpty() && line.mode != CommandLine::Mode::Direct)
        line.mode = CommandLine::Mode::Complete;
    if (line.mode != CommandLine::Mode::Dialog)
        return line;

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
    if (!line.job.isEmpty() &&
        (!line.documents.isEmpty() || !line.session.usesServer() || !line.session.ticket.isEmpty()))
        return failure(QStringLiteral("The option --job takes no documents, no --ppd and no --ticket."));
    return line;
}

QStringList commandLineOptions()
{
    QStringList names;
    for (const OptionRow &row : kOptions) {
        names << QStringLiteral("--") + QLatin1String(row.name);
        if (row.letter != 0)
            names << QStringLiteral("-") + QLatin1Char(row.letter);
    }
    return names;
}

QString commandLineHelp()
{
    QString text =
        QStringLiteral("Usage: bvprint [options] [FILE...]\n"
                       "  or:  bvprint --print [options] FILE...\n"
                       "  or:  bvprint --list|--summary [options]\n"
                       "  or:  bvprint [options] --batch SCRIPT\n"
                       "  or:  bvprint [options] --job JOB\n"
                       "  or:  bvprint --agent on|off|run\n"
                       "  or:  bvprint --share-profiles [--from USER] [--replace] USER...\n"
                       "Opens the print dialog for the files, prints them without a window, or carries out a "
                       "batch.\n\n");
    for (const OptionRow &row : kOptions) {
        const QString letter = row.letter != 0 ? QStringLiteral("-%1, ").arg(QLatin1Char(row.letter)) : QString();
        const QString usage =
            QStringLiteral("%1--%2 %3").arg(letter, QLatin1String(row.name), QLatin1String(row.value)).trimmed();
        text += QStringLiteral("  %1  %2\n").arg(usage, -20).arg(QLatin1String(row.help));
    }
    text += QStringLiteral(
        "\nWithout a window the choices are the printer's defaults with yours (lpoptions) over them, or those of\n"
        "--preset or --ticket, and then those of -o, as if made in the window. Nothing is printed if choices are\n"
        "grayed out there or do not go together, unless there is --force.\n"
        "\nA batch starts from an empty job. Its print command sends what the controls show: restoreValues before it\n"
        "puts the printer's defaults and the ticket into them. Without it, print sends the first item of every\n"
        "menu after panelView, and none of the pane's options before.\n");
    text += QStringLiteral("\nExit status:\n"
                           "  0  printed, listed or cancelled\n"
                           "  1  a job was not printed, a command of the batch failed, or a user did not get the list "
                           "of profiles\n"
                           "  2  bad arguments, options, PPD, ticket or plug-in, or no print queue\n"
                           "  3  choices are grayed out or do not go together, and nothing was printed\n");
    return text;
}

QString commandLineVersion()
{
    return QStringLiteral("bvprint " BVPRINT_VERSION "\n");
}

} // namespace bv
