#include "language/check/check.h"

#include "language/check/allowances.h"
#include "language/check/rules.h"
#include "language/check/tree.h"
#include "language/text/print.h"
#include "platform/framework/datadir.h"
#include "tgx/script/token.h"

#include <algorithm>
#include <filesystem>

namespace fs = std::filesystem;

namespace tgx::script_check {

namespace {

constexpr const char* noDataDirectory = "/dev/null"; // a data directory without files
constexpr int defaultWidth = 640;                    // pixels, if no screen has a size
constexpr int defaultHeight = 480;

void parseAll(std::vector<ScriptFile>& files, const script_text::ReadFile& read, CheckReport& report)
{
    for (ScriptFile& file : files) {
        std::string name =
            file.name.empty() ? fs::path(file.path).filename().replace_extension(".tgx").string() : file.name;
        std::string text = file.isCompiled ? script_text::print(file.contents) : std::move(file.contents);
        report.scripts.emplace_back(std::move(name), file.isCompiled, file.isReported,
                                    script_text::parse(file.path, std::move(text), read),
                                    file.isCompiled ? std::move(file.contents) : std::string());
    }
}

/// Sorts scripts that add fonts to the front, and the main script before all others. If several scripts act
/// as main script, scripts without fonts are read after the one with the most fonts and use those.
void putInReadingOrder(std::vector<Script*>& scripts)
{
    const auto rank = [](const Script* script) {
        const int fonts = script->fontCount();
        return std::pair(fonts == 0 ? 2 : isMain(*script) ? 0 : 1, fonts);
    };
    std::stable_sort(scripts.begin(), scripts.end(),
                     [&](const Script* a, const Script* b) { return rank(a) < rank(b); });
}

/// Sets the screen size to that of the first screen, unless the options give one.
void findScreenSize(CheckOptions& options, const std::vector<Script*>& scripts)
{
    for (const Script* script : scripts)
        for (const int line : script->topWindows)
            if (script->isKeyword(line, "SCREEN") && options.screenWidth <= 0) {
                options.screenWidth = std::max(script->number(line, 2) + script->number(line, 4), 0);
                options.screenHeight = std::max(script->number(line, 3) + script->number(line, 5), 0);
            }
}

void checkTrees(const std::vector<Script*>& scripts, const ScriptSet& set, CheckOptions options,
                Findings& findings)
{
    const bool isSizeGiven = options.screenWidth > 0;
    findScreenSize(options, scripts);
    const bool hasData = !options.dataDirectory.empty();
    Reading reading(scripts, set,
                    {options.screenWidth > 0 ? options.screenWidth : defaultWidth,
                     options.screenHeight > 0 ? options.screenHeight : defaultHeight, options.fonts, hasData,
                     options.scriptLines, options.scriptWork},
                    findings);
    Pictures pictures(reading);
    const PointerTargets pointerTargets(scripts, set);
    TreeCheck tree{
        reading,    pictures, findings, pointerTargets, hasData, options.screenWidth, options.screenHeight,
        isSizeGiven};
    for (Script* script : scripts) {
        if (script->isBroken || script->isUnbalanced || (!script->isReported && script->fontCount() == 0))
            continue;
        if (hasData)
            checkPictures(*script, pictures, findings);
        checkMissingBlocks(*script, pointerTargets, findings);
        reading.read(*script);
        AWnd& root = *reading.window().getScreenList();
        checkControls(tree, root);
        checkLayout(tree, root);
        checkTexts(tree, root);
        checkStrips(tree, root);
        checkLists(tree, root);
        checkTraps(tree, root);
    }
    if (hasData && options.unusedFiles)
        checkUnusedFiles(options.dataDirectory, scripts, findings);
}

/// By place, but what may follow from a line that fails comes after what is found there.
void sort(Findings& findings, const std::deque<Script>& scripts)
{
    std::map<std::string, std::size_t> order; // of the files
    for (const Script& script : scripts)
        for (const script_text::SourceFile& file : script.text.files)
            order.try_emplace(file.name, order.size());
    const auto key = [&](const script_text::Place& place) {
        return std::tuple(order[place.in->file->name], place.line, place.at.column);
    };
    std::vector<std::pair<decltype(key({})), script_text::Diagnostic>> keyed;
    for (script_text::Diagnostic& each : findings.all) {
        auto place = key(each.place);
        if (const std::optional<script_text::Place> cause = findings.causeOf(each))
            place = std::max(place, key(*cause));
        keyed.emplace_back(std::move(place), std::move(each));
    }
    std::stable_sort(keyed.begin(), keyed.end(),
                     [](const auto& a, const auto& b) { return a.first < b.first; });
    std::transform(keyed.begin(), keyed.end(), findings.all.begin(),
                   [](auto& each) { return std::move(each.second); });
}

} // namespace

CheckReport check(std::vector<ScriptFile> files, const script_text::ReadFile& read, const CheckOptions& given)
{
    CheckReport report;
    CheckOptions options = given;
    const OtherDataDirectory other(options.dataDirectory.empty() ? noDataDirectory : options.dataDirectory);
    parseAll(files, read, report);

    ScriptSet set;
    Findings findings;
    for (Script& script : report.scripts) {
        set.add(script);
        outline(script);
        if (!script.isReported)
            continue;
        for (script_text::Diagnostic& each : script.text.diagnostics)
            findings.add(each);
        checkLines(script, findings);
        report.broken += script.isBroken;
        if (script.isBroken)
            continue;
        checkArguments(script, findings);
        checkUnread(script, findings);
        script.isUnbalanced = !checkBlocks(script, findings);
        checkOverridden(script, findings);
        checkTopNames(script, findings);
        checkEmptyScreens(script, findings);
    }
    std::vector<Script*> order;
    for (Script& script : report.scripts)
        order.push_back(&script);
    findFonts(order, set);
    putInReadingOrder(order);
    checkCalls(order, set, findings);
    checkScreenNames(order, findings);
    checkTrees(order, set, options, findings);
    applyAllowances(report.scripts, options, findings);
    sort(findings, report.scripts);
    report.findings = std::move(findings.all);
    return report;
}

} // namespace tgx::script_check
