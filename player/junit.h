#pragma once

#include <string>
#include <vector>

namespace tgx {

/// The result of one events file.
struct TestResult {
    std::string name; // relative to the folder that was tested
    bool isDone = false;
    bool passed = false;
    std::string messages; // what it wrote on stderr
    double seconds = 0;
};

/// Returns the results as JUnit XML: one suite with a case for each file.
std::string junitReport(const std::string& suite, const std::vector<TestResult>& results);

} // namespace tgx
