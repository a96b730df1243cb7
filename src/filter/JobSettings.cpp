// SPDX-License-Identifier: GPL-2.0-or-later
// Marks the job's choices in the PPD and derives the settings from the marks.
#include "filter/JobSettings.h"

#include "discovery/FileNameRule.h"
#include "profiles/DevicePath.h"
#include "profiles/ProfileStorage.h"
#include "profiles/QuickColorPresets.h"

#include <algorithm>
#include <cups/cups.h>
#include <optional>
#include <string_view>
#include <strings.h>

namespace bv {

namespace {

constexpr char kQuickColor[] = "BVQuickColor";
constexpr char kEconomy[] = "BVEconoMode";
constexpr char kGray[] = "BVColorAsGray";
constexpr char kSeparation[] = "BVColorSeparation";
constexpr char kColorMode[] = "print-color-mode";
// Values of print-color-mode (PWG 5100.13) without color.
constexpr std::string_view kGrayModes[] = {"monochrome", "auto-monochrome", "process-monochrome", "bi-level",
                                           "process-bi-level"};

// The options of a job. Freed by the destructor.
class Options
{
public:
    explicit Options(const char *text) : m_count(cupsParseOptions(text, 0, &m_options)) {}
    Options(const Options &) = delete;
    Options &operator=(const Options &) = delete;
    ~Options() { cupsFreeOptions(m_count, m_options); }

    void mark(ppd_file_t *ppd) const { cupsMarkOptions(ppd, m_count, m_options); }
    // Empty when the job does not have the option.
    std::string_view value(const std::string &name) const
    {
        const char *found = cupsGetOption(name.c_str(), m_count, m_options);
        return found ? found : "";
    }

private:
    cups_option_t *m_options = nullptr;
    int m_count;
};

// Index of the option's marked choice. -1 without an option or a mark.
int markedIndex(ppd_file_t *ppd, const char *keyword)
{
    const ppd_option_t *option = ppdFindOption(ppd, keyword);
    const ppd_choice_t *marked = option ? ppdFindMarkedChoice(ppd, keyword) : nullptr;
    return marked ? int(marked - option->choices) : -1;
}

bool isMarked(ppd_file_t *ppd, const char *keyword, const char *choice)
{
    const ppd_choice_t *marked = ppdFindMarkedChoice(ppd, keyword);
    return marked && strcasecmp(marked->choice, choice) == 0;
}

void add(JobSettings &job, const char *keyword, const ppd_choice_t &choice)
{
    job.settings.push_back({keyword, choice.choice, choice.code ? choice.code : ""});
}

void addByName(JobSettings &job, ppd_file_t *ppd, const char *keyword, const char *name)
{
    ppd_option_t *option = ppdFindOption(ppd, keyword);
    if (const ppd_choice_t *choice = option ? ppdFindChoice(option, name) : nullptr)
        add(job, keyword, *choice);
}

void addPreset(JobSettings &job, ppd_file_t *ppd, int16_t quickColor, bool economy)
{
    const auto economyRowsHere = economyRows(economy ? quickColor : kQuickColorFree);
    for (const PresetRow &row : quickColorPresets()) {
        const bool first = std::find(economyRowsHere.begin(), economyRowsHere.end(), &row) != economyRowsHere.end();
        const int index = first ? 0 : row.index[size_t(quickColor)];
        const ppd_option_t *option = ppdFindOption(ppd, row.option);
        // If the PPD lacks the choice, the job's own one stays, as in the dialog's menus.
        if (option && index < option->num_choices)
            add(job, row.option, option->choices[index]);
    }
}

// Decodes the path of a profile. Nothing unless the text is encoded correctly, the folder is a profile folder on one of
// the printer's storages, and the printer accepts the file name.
std::optional<std::string> profilePathOf(std::string_view encoded)
{
    std::string path = decodeDevicePath(encoded);
    // The decoder accepts malformed texts. Encoding the result again reveals them.
    if (encodeDevicePath(path) != encoded)
        return std::nullopt;
    for (const ProfileStorage &storage : kProfileStorages) {
        const std::string_view folder = storage.folder;
        if (path.starts_with(folder) && bJudgement8point3Format(std::string_view(path).substr(folder.size())))
            return path;
    }
    return std::nullopt;
}

// Returns the path as a PostScript string.
std::string postScriptString(std::string_view path)
{
    std::string text = "(";
    for (const char character : path) {
        if (character == '(' || character == ')' || character == '\\')
            text += '\\';
        text += character;
    }
    return text + ")";
}

void addProfiles(JobSettings &job, const Options &options)
{
    for (const PresetRow &row : quickColorPresets()) {
        const std::string option = row.option;
        // libcups passes the flag on as "true", in whatever case the job wrote it.
        if (row.profileKind == 0 || strcasecmp(std::string(options.value(option + "Custom")).c_str(), "true") != 0)
            continue;
        const std::optional<std::string> path = profilePathOf(options.value(option + "CustomFilename"));
        if (!path) {
            job.warnings.push_back(std::string(option)
                                       .append("CustomFilename names no profile of the printer; the choice of ")
                                       .append(option)
                                       .append(" is used."));
            continue;
        }
        job.settings.push_back(
            {option, "Profile",
             "<</DeviceRenderingInfo<</Type 70/" + option + postScriptString(*path) + ">>>>setpagedevice"});
    }
}

} // namespace

JobSettings jobSettings(ppd_file_t *ppd, const char *text)
{
    JobSettings job;
    const Options options(text);
    ppdMarkDefaults(ppd);
    options.mark(ppd);

    const std::string_view mode = options.value(kColorMode);
    if (std::find(std::begin(kGrayModes), std::end(kGrayModes), mode) != std::end(kGrayModes)) {
        // Usually the PPD's preset for gray has marked it already, but not where the job says otherwise.
        if (!isMarked(ppd, kGray, "True"))
            addByName(job, ppd, kGray, "True");
        // A gray job has no colors to separate. The dialog has the same rule.
        if (isMarked(ppd, kSeparation, "True"))
            addByName(job, ppd, kSeparation, "False");
    }

    const int quickColor = markedIndex(ppd, kQuickColor);
    if (quickColor >= 0 && quickColor < kPresetCount)
        addPreset(job, ppd, int16_t(quickColor), isMarked(ppd, kEconomy, "True"));
    else
        addProfiles(job, options);
    return job;
}

} // namespace bv
