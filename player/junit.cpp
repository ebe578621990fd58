#include "player/junit.h"

#include <algorithm>
#include <cstdio>

namespace tgx {

namespace {

/// Escapes text for an attribute or an element. Bytes that are not ASCII or not allowed in XML become ?.
std::string escaped(const std::string& text)
{
    std::string result;
    for (const char c : text) {
        const bool isPlain = (c >= 0x20 && c <= 0x7E) || c == '\n' || c == '\t';
        if (c == '&')
            result += "&amp;";
        else if (c == '<')
            result += "&lt;";
        else if (c == '>')
            result += "&gt;";
        else if (c == '"')
            result += "&quot;";
        else
            result += isPlain ? c : '?';
    }
    return result;
}

std::string secondsText(double seconds)
{
    char text[32];
    std::snprintf(text, sizeof text, "%.3f", seconds);
    return text;
}

} // namespace

std::string junitReport(const std::string& suite, const std::vector<TestResult>& results)
{
    double seconds = 0;
    for (const TestResult& result : results)
        seconds += result.seconds;
    const auto failed = std::count_if(results.begin(), results.end(),
                                      [](const TestResult& result) { return !result.passed; });
    std::string xml = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<testsuite name=\"" + escaped(suite) +
                      "\" tests=\"" + std::to_string(results.size()) + "\" failures=\"" +
                      std::to_string(failed) + "\" time=\"" + secondsText(seconds) + "\">\n";
    for (const TestResult& result : results) {
        xml += "  <testcase classname=\"" + escaped(suite) + "\" name=\"" + escaped(result.name) +
               "\" time=\"" + secondsText(result.seconds) + '"';
        if (result.passed) {
            xml += "/>\n";
            continue;
        }
        const std::string firstLine = result.messages.substr(0, result.messages.find('\n'));
        xml += "><failure message=\"" + escaped(firstLine) + "\">" + escaped(result.messages) +
               "</failure></testcase>\n";
    }
    return xml + "</testsuite>\n";
}

} // namespace tgx
