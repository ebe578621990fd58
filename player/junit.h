#pragma once

#include <string>
#include <vector>

/// What became of one events file.
struct TestResult {
    std::string name; // relative to the folder that was tested
    bool isDone = false;
    bool passed = false;
    std::string messages; // what it said on stderr
    double seconds = 0;
};

/// The results as build servers read them: one suite, a case for each file.
std::string junitReport(const std::string& suite, const std::vector<TestResult>& results);
