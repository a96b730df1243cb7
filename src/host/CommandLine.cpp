// The table of bvprint's options, its parser and the text of --help.
#include "host/CommandLine.h"

#include <algorithm>
#include <array>

namespace bv {

namespace {

// One option: its name, the word for its value (null: it takes none), where it is kept, and its line of --help.
struct Option
{
    const char *name;
    const char *value;
    QString CommandLine::*text;
    const char *help;
};

// clang-format off
constexpr std::array<Option, 10> kOptions = {{
    {"--batch",      "SCRIPT", &CommandLine::script,    "carry out the commands of a file (-: standard input), without a window"},
    {"--plugin",     "FILE",   &CommandLine::plugin,    "the plug-in to load (default: the one beside this program)"},
    {"--queue",      "NAME",   &CommandLine::queue,     "the print queue (default: the print server's; with --ppd: QL70)"},
    {"--ppd",        "FILE",   &CommandLine::ppd,       "take the options from a PPD file; no print server is needed"},
    {"--device-uri", "URI",    &CommandLine::deviceUri, "the device URI of the queue"},
    {"--ticket",     "FILE",   &CommandLine::ticket,    "a ticket to start from, as JSON"},
    {"--screenshot", "FILE",   &CommandLine::screenshot, "write a picture of the ready window (PNG), and end"},
    {"--no-printer", nullptr,  nullptr,                 "with --ppd: there is no current printer"},
    {"--help",       nullptr,  nullptr,                 "print this and end"},
    {"--version",    nullptr,  nullptr,                 "print the version and end"},
}};
// clang-format on

Result<CommandLine> failure(const QString &sentence)
{
    return Result<CommandLine>::failure(sentence);
}

void applyFlag(CommandLine &line, const QString &name)
{
    if (name == u"--no-printer")
        line.noPrinter = true;
    else if (line.mode != CommandLine::Mode::Help)
        line.mode = name == u"--help" ? CommandLine::Mode::Help : CommandLine::Mode::Version;
}

} // namespace

QString CommandLine::queueWithoutServer() const
{
    return queue.isEmpty() ? QStringLiteral("QL70") : queue;
}

Result<CommandLine> parseCommandLine(const QStringList &arguments)
{
    CommandLine line;
    bool onlyDocuments = false;
    for (qsizetype i = 0; i < arguments.size(); ++i) {
        const QString &argument = arguments[i];
        if (onlyDocuments || !argument.startsWith(u'-') || argument == u"-") {
            line.documents.append(argument);
            continue;
        }
        if (argument == u"--") {
            onlyDocuments = true;
            continue;
        }
        const qsizetype equals = argument.indexOf(u'=');
        const QString name = argument.left(equals);
        const auto *option = std::find_if(kOptions.begin(), kOptions.end(),
                                          [&](const Option &row) { return name == QLatin1String(row.name); });
        if (option == kOptions.end())
            return failure(QStringLiteral("There is no option %1; see --help.").arg(name));
        if (!option->value) {
            if (equals >= 0)
                return failure(QStringLiteral("The option %1 takes no value.").arg(name));
            applyFlag(line, name);
            continue;
        }
        if (equals < 0 && i + 1 == arguments.size())
            return failure(
                QStringLiteral("The option %1 needs a value: %1 %2.").arg(name, QLatin1String(option->value)));
        const QString value = equals < 0 ? arguments[++i] : argument.mid(equals + 1);
        if (value.isEmpty())
            return failure(QStringLiteral("The value of the option %1 is empty.").arg(name));
        line.*(option->text) = value;
    }
    if (line.mode == CommandLine::Mode::Help || line.mode == CommandLine::Mode::Version)
        return line;
    if (!line.script.isEmpty())
        line.mode = CommandLine::Mode::Batch;
    if (line.mode == CommandLine::Mode::Batch && !line.documents.isEmpty())
        return failure(QStringLiteral("A batch takes no documents; its print command names them."));
    if (line.mode == CommandLine::Mode::Batch && !line.screenshot.isEmpty())
        return failure(QStringLiteral("A batch takes no --screenshot; its screenshot command names the picture."));
    if (line.noPrinter && line.ppd.isEmpty())
        return failure(QStringLiteral("The option --no-printer needs --ppd."));
    return line;
}

QString commandLineHelp()
{
    QString text = QStringLiteral("Usage: bvprint [options] [FILE...]\n"
                                  "       bvprint [options] --batch SCRIPT\n"
                                  "Opens the print dialog for the files, or carries out a batch.\n\n");
    for (const Option &option : kOptions) {
        const QString usage = option.value
                                  ? QStringLiteral("%1 %2").arg(QLatin1String(option.name), QLatin1String(option.value))
                                  : QString::fromLatin1(option.name);
        text += QStringLiteral("  %1 %2\n").arg(usage, -18).arg(QLatin1String(option.help));
    }
    text += QStringLiteral("\nExit status: 0 printed or cancelled, 1 a command or job of the batch failed,\n"
                           "2 bad arguments, PPD, ticket or plug-in, or no print queue.\n");
    return text;
}

QString commandLineVersion()
{
    return QStringLiteral("bvprint " BVPRINT_VERSION "\n");
}

} // namespace bv
