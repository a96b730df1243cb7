// SPDX-License-Identifier: GPL-2.0-or-later
// Reads and changes the files of lpoptions. libcups' own calls for this (cupsGetDests2, cupsSetDests2) also look for
// printers on the network, mix in the print server's defaults, and write the server's default printer down as the
// user's. The options in a line are taken apart by libcups.
#include "queues/UserDefaults.h"

#include "queues/InputFile.h"
#include "queues/JobOnlyKeys.h"
#include "queues/PpdFile.h"
#include "queues/StandardOptions.h"
#include "queues/StateFolder.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <cups/cups.h>

namespace bv {

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("UserDefaults", text);
}

constexpr qint64 kLargestFile = qint64{1024} * 1024;
constexpr char kKeptOptions[] = "options"; // the entry of a kept ticket that holds a line's options

// A choice of the PPD and the standard option that means the same.
struct StandardForm
{
    const char *option;
    const char *choice; // null: any, which is then the standard option's value
    const char *standard;
    const char *value;
};
constexpr StandardForm kStandardForms[] = {
    {"Duplex", "None", "sides", "one-sided"},
    {"Duplex", "DuplexNoTumble", "sides", "two-sided-long-edge"},
    {"Duplex", "DuplexTumble", "sides", "two-sided-short-edge"},
    {"PageSize", nullptr, "media", nullptr},
};

// Standard options that were taken in as choices of the PPD, and would go before a new choice.
constexpr const char *kSuperseded[] = {"media",     "sides", "print-color-mode", "output-mode", "printer-resolution",
                                       "PageRegion"};

// A line "Dest NAME OPTIONS" or "Default NAME OPTIONS". Other lines have no name.
struct Line
{
    QByteArray text; // as it stands in the file, without its end
    QByteArray word;
    QByteArray name;
    QByteArray options;
};

Line lineOf(const QByteArray &text)
{
    Line line{text, {}, {}, {}};
    const QByteArray trimmed = QByteArray(text.constData()).trimmed(); // libcups' lines end at a zero byte, too
    const QByteArray simple = trimmed.left(1024).simplified();
    const QByteArray word = simple.left(simple.indexOf(' '));
    if (qstricmp(word.constData(), "Dest") != 0 && qstricmp(word.constData(), "Default") != 0)
        return line;
    const QByteArray rest = trimmed.mid(word.size()).trimmed();
    const auto end = std::find_if(rest.begin(), rest.end(), [](char one) { return one == ' ' || one == '\t'; });
    line.word = word;
    line.name = rest.left(end - rest.begin());
    line.options = rest.mid(line.name.size()).trimmed();
    return line;
}

bool isOf(const Line &line, const QueueInstance &of)
{
    return !line.name.isEmpty() && qstricmp(line.name.constData(), of.name().toUtf8().constData()) == 0;
}

QString systemFile()
{
    return qEnvironmentVariable("CUPS_SERVERROOT", QStringLiteral("/etc/cups")) + QStringLiteral("/lpoptions");
}

QString userFile()
{
    return QDir::homePath() + QStringLiteral("/.cups/lpoptions");
}

// The lines of a file. None when it cannot be read; most users have no such file.
std::vector<Line> linesOf(const QString &path)
{
    const Result<QByteArray> text = readInputFile(path, path, kLargestFile);
    std::vector<Line> lines;
    if (!text)
        return lines;
    for (const QByteArray &one : text.value().split('\n'))
        lines.push_back(lineOf(one));
    if (!lines.empty() && lines.back().text.isEmpty())
        lines.pop_back();
    return lines;
}

// libcups tells no options apart by case, so the last one written counts, under its own name.
void removeOption(const QString &name, UserDefaults::Options &options)
{
    std::erase_if(options, [&name](const auto &one) { return one.first.compare(name, Qt::CaseInsensitive) == 0; });
}

void putOption(const QString &name, const QString &value, UserDefaults::Options &options)
{
    removeOption(name, options);
    options[name] = value;
}

void addOptions(const QByteArray &text, UserDefaults::Options &options)
{
    cups_option_t *list = nullptr;
    const int count = cupsParseOptions(text.constData(), 0, &list);
    for (int i = 0; i < count; ++i)
        putOption(QString::fromUtf8(list[i].name), QString::fromUtf8(list[i].value), options);
    cupsFreeOptions(count, list);
}

// Programs choose paper and sides by standard options, and libcups passes over those beside the PPD's own. So what is
// stored is the standard form, which a program's choice replaces. `system` are the options of the computer's file,
// which cannot be taken out.
UserDefaults::Options storedForm(const UserDefaults::Options &options, const UserDefaults::Options &system)
{
    UserDefaults::Options stored = options;
    for (const StandardForm &form : kStandardForms) {
        const QString option = QLatin1String(form.option);
        const auto chosen = options.find(option);
        if (chosen == options.end() || system.count(option) != 0 || chosen->second.isEmpty() ||
            chosen->second.startsWith(u"Custom") || (form.choice && chosen->second != QLatin1String(form.choice)))
            continue;
        stored[QLatin1String(form.standard)] = form.choice ? QString(QLatin1String(form.value)) : chosen->second;
        stored[option].clear();
    }
    for (const char *superseded : kSuperseded)
        stored.try_emplace(QLatin1String(superseded));
    return stored;
}

// Options as they stand in a line.
QByteArray optionsText(const UserDefaults::Options &options)
{
    QByteArray text;
    for (const auto &[name, value] : options) {
        QByteArray bytes = value.toUtf8();
        const bool quoted = std::any_of(bytes.begin(), bytes.end(), [](char one) {
            return one == ' ' || (one >= '\t' && one <= '\r') || one == '\'' || one == '"' || one == '\\' ||
                   one == '{' || one == '}';
        });
        if (quoted)
            bytes = '"' + bytes.replace('\\', "\\\\").replace('"', "\\\"") + '"';
        text += (text.isEmpty() ? "" : " ") + name.toUtf8() + '=' + bytes;
    }
    return text;
}

// Whether the entry can stand in a line and be read again.
bool canBeStored(const QString &name, const QString &value)
{
    const auto isPlain = [](QChar one) { return one.unicode() >= ' ' && one.unicode() != 0x7F; };
    // libcups takes a value that begins with a brace for a collection of values.
    return !name.isEmpty() && !value.startsWith(u'{') && std::all_of(value.begin(), value.end(), isPlain) &&
           std::all_of(name.begin(), name.end(), [](QChar one) {
               return one.unicode() < 0x7F && (one.isLetterOrNumber() || QStringLiteral("-_.").contains(one));
           });
}

// Gives the instance these options in the user's file, or takes its line out when there are none.
QString write(const QueueInstance &of, const QByteArray &options)
{
    const QString path = userFile();
    std::vector<Line> lines = linesOf(path);
    if (lines.empty() && QFileInfo(path).size() > 0)
        return tr("The file of your defaults, %1, cannot be read.").arg(path);
    const auto first = std::find_if(lines.begin(), lines.end(), [&of](const Line &line) { return isOf(line, of); });
    QByteArray text;
    const auto put = [&text](const QByteArray &line) { text += line + '\n'; };
    const QByteArray name = of.name().toUtf8();
    for (auto line = lines.begin(); line != lines.end(); ++line) {
        if (!isOf(*line, of))
            put(line->text);
        else if (line == first && (!options.isEmpty() || qstricmp(line->word.constData(), "Default") == 0))
            put((line->word + ' ' + name + ' ' + options).trimmed());
    }
    if (first == lines.end() && !options.isEmpty())
        put("Dest " + name + ' ' + options);
    QString error;
    return storeFile(path, text, &error) ? QString()
                                         : tr("Your defaults could not be written: %1: %2.").arg(path, error);
}

bool isInstanceName(const QString &text)
{
    constexpr qsizetype kLongest = 127; // as for a queue's name
    return text.size() <= kLongest && std::all_of(text.begin(), text.end(), [](QChar one) {
               return one.isLetterOrNumber() || one == u'-' || one == u'_' || one == u'.';
           });
}

} // namespace

QueueInstance QueueInstance::fromName(const QString &name)
{
    const qsizetype slash = name.indexOf(u'/');
    return slash < 0 ? QueueInstance{name, {}} : QueueInstance{name.left(slash), name.mid(slash + 1)};
}

UserDefaults::UserDefaults(QString folder) : m_replaced(std::move(folder)) {}

QString UserDefaults::defaultFolder()
{
    return stateFolder() + QStringLiteral("/bvprint/replaced-defaults");
}

std::optional<UserDefaults::Options> UserDefaults::options(const QueueInstance &of) const
{
    Options options;
    bool isThere = of.instance.isEmpty();
    for (const QString &path : {systemFile(), userFile()}) {
        for (const Line &line : linesOf(path)) {
            if (!isOf(line, of))
                continue;
            isThere = true;
            addOptions(line.options, options);
        }
    }
    return isThere ? std::optional<Options>(options) : std::nullopt;
}

QStringList UserDefaults::instances(const QString &queue) const
{
    QStringList names;
    for (const QString &path : {systemFile(), userFile()}) {
        for (const Line &line : linesOf(path)) {
            const QString name = QString::fromUtf8(line.name);
            const QueueInstance of = QueueInstance::fromName(name);
            // A name that is not UTF-8 could be offered, but not be found again.
            if (name.toUtf8() == line.name && !of.instance.isEmpty() &&
                of.queue.compare(queue, Qt::CaseInsensitive) == 0 && !names.contains(of.instance))
                names << of.instance;
        }
    }
    return names;
}

QString UserDefaults::store(const QueueInstance &of, const Options &options) const
{
    if (!isInstanceName(of.instance))
        return tr("“%1” cannot be the name of defaults: use letters, digits, “-”, “_” and “.” only.").arg(of.instance);
    Options own;
    QByteArray before;
    for (const Line &line : linesOf(userFile())) {
        if (!isOf(line, of))
            continue;
        addOptions(line.options, own);
        before += (before.isEmpty() ? "" : " ") + line.options;
    }
    if (!canTakeBack(of)) {
        // Lines that do not end as they should, as in a quoted value, cannot be put one behind another.
        Options again;
        addOptions(before, again);
        if (again != own)
            before = optionsText(own);
        PrintDictionary kept;
        kept.setValue(QLatin1String(kKeptOptions), PrintValue(QString::fromUtf8(before)));
        if (!m_replaced.store(of.name(), kept))
            return tr("Your present defaults could not be kept, so they were not replaced.");
    }
    Options system;
    for (const Line &line : linesOf(systemFile())) {
        if (isOf(line, of))
            addOptions(line.options, system);
    }
    for (const auto &[name, value] : storedForm(options, system)) {
        if (value.isEmpty())
            removeOption(name, own);
        else if (canBeStored(name, value))
            putOption(name, value, own);
    }
    return write(of, optionsText(own));
}

bool UserDefaults::canTakeBack(const QueueInstance &of) const
{
    return QFile::exists(m_replaced.filePath(of.name()));
}

QString UserDefaults::takeBack(const QueueInstance &of) const
{
    const std::optional<PrintDictionary> kept = m_replaced.load(of.name());
    const PrintValue before = kept ? kept->value(QLatin1String(kKeptOptions)) : PrintValue();
    if (!before.string())
        return tr("There are no earlier defaults of “%1”.").arg(of.name());
    QString problem = write(of, before.string()->toUtf8());
    if (problem.isEmpty())
        QFile::remove(m_replaced.filePath(of.name()));
    return problem;
}

PrintDictionary ticketFromDefaults(const UserDefaults::Options &options, ppd_file_t *ppd)
{
    cups_option_t *list = nullptr;
    int count = 0;
    for (const auto &[name, value] : options)
        count = cupsAddOption(name.toUtf8().constData(), value.toUtf8().constData(), count, &list);
    ppdMarkDefaults(ppd);
    cupsMarkOptions(ppd, count, list);
    cupsFreeOptions(count, list);

    PrintDictionary ticket;
    for (const auto &[name, value] : options) {
        if (!isStandardOption(name) && !ppdFindOption(ppd, name.toUtf8().constData()))
            ticket.setValue(name, PrintValue(value));
    }
    for (const ppd_option_t *option : ppdOptions(ppd)) {
        const ppd_choice_t *marked = ppdFindMarkedChoice(ppd, option->keyword);
        if (!marked || qstricmp(marked->choice, option->defchoice) == 0)
            continue;
        // A custom choice has its numbers in the option's value.
        const QString keyword = QString::fromUtf8(option->keyword);
        const auto given = options.find(keyword);
        const bool isCustom = qstrcmp(marked->choice, "Custom") == 0 && given != options.end();
        ticket.setValue(keyword, PrintValue(isCustom ? given->second : QString::fromUtf8(marked->choice)));
    }
    ppdMarkDefaults(ppd);
    removeJobOnlyKeys(&ticket);
    return ticket;
}

UserDefaults::Options defaultsFromTicket(const PrintDictionary &ticket)
{
    PrintDictionary kept = ticket;
    removeJobOnlyKeys(&kept);
    UserDefaults::Options options;
    for (const auto &[key, value] : kept.entries) {
        if (const QString *text = value.string())
            options[key] = *text;
        else if (const int64_t *number = value.integer())
            options[key] = QString::number(*number);
    }
    return options;
}

} // namespace bv
