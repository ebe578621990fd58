#pragma once

#include "language/check/check.h"
#include "language/check/codes.h"
#include "language/check/output.h"
#include "tests/fuzz/data_directory.h"

#include <nlohmann/json.hpp>

#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

/// Prints the fault and aborts, so that libFuzzer keeps the input.
[[noreturn]] inline void fail(const char* what, const std::string& text)
{
    std::fprintf(stderr, "%s:\n%s\n", what, text.c_str());
    std::abort();
}

/// Returns whether an editor can show the place.
inline bool isIn(const tgx::script_text::Place& place)
{
    return place.line >= 1 && place.line <= place.in->file->lineCount() && place.at.column >= 1 &&
           place.at.length >= 0;
}

/// Fails unless each finding has a known code, a valid place and one line of text.
inline void requireUsefulFindings(const tgx::script_check::CheckReport& report)
{
    std::vector<const tgx::script_text::Diagnostic*> findings;
    for (const tgx::script_text::Diagnostic& each : report.findings) {
        const std::string text = tgx::script_check::asText(each, tgx::script_text::Colour::No);
        if (!tgx::script_check::codeCalled(each.code))
            fail("unknown code", text);
        if (each.text.empty() || each.text.find('\n') != std::string::npos)
            fail("the text is not one line", text);
        if (!isIn(each.place))
            fail("invalid place", text);
        findings.push_back(&each);
    }
    const std::string text = tgx::script_check::asJson(findings);
    const nlohmann::json json = nlohmann::json::parse(text, nullptr, false); // false: no exceptions
    if (!json.is_array() || json.size() != findings.size())
        fail("not a JSON array of the findings", text);
}

inline tgx::script_check::CheckOptions optionsFor(const FuzzDataDirectory& directory)
{
    tgx::script_check::CheckOptions options;
    options.dataDirectory = directory.path.string();
    // Much less than a game allows, because this build is slow.
    options.scriptLines = 3000;
    options.scriptWork = 2'000'000;
    return options;
}
