#include "player/suite.h"

#include "player/files.h"
#include "player/junit.h"
#include "player/words.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <map>
#ifdef __linux__
#include <sys/prctl.h>
#endif
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace fs = std::filesystem;

namespace tgx {

namespace {

using Clock = std::chrono::steady_clock;

constexpr const char* headerForm = "# tgx: play DATA --script NAME";

/// Returns the names of the events files below the folder, sorted. Raises std::runtime_error if there are
/// none.
std::vector<std::string> findEventsFiles(const TestOptions& options)
{
    std::error_code error;
    if (!fs::is_directory(options.directory, error))
        throw std::runtime_error("no folder " + quoteName(options.directory));
    std::vector<std::string> names;
    for (const auto& entry : fs::recursive_directory_iterator(options.directory, error)) {
        if (!entry.is_regular_file(error) || entry.path().extension() != ".events")
            continue;
        const std::string name = entry.path().lexically_relative(options.directory).generic_string();
        if (name.find(options.filter) != std::string::npos)
            names.push_back(name);
    }
    if (names.empty())
        throw std::runtime_error(
            "no events file below " + quoteName(options.directory) +
            (options.filter.empty() ? "" : " has " + quoteName(options.filter) + " in its name"));
    std::sort(names.begin(), names.end());
    return names;
}

/// Reads how the file is played from a comment in its first lines: "# tgx: play DATA --script NAME", with
/// DATA relative to the file. Returns what is wrong with it, or "".
std::string readHeader(const std::string& path, PlayOptions& options)
{
    constexpr std::string_view mark = "# tgx:";
    std::ifstream file(path, std::ios::binary);
    std::string line;
    for (int number = 1; std::getline(file, line) && (line.starts_with('#') || line.empty()); ++number) {
        if (line.ends_with('\r'))
            line.pop_back();
        if (!line.starts_with(mark))
            continue;
        std::string reason;
        try {
            std::vector<std::string> words;
            for (const Word& word : splitWords(line.substr(mark.size()), Characters::Utf8))
                words.push_back(word.text);
            if (words.empty() || words[0] != "play")
                reason = "expected " + std::string(headerForm) + ", found " + line;
            else
                reason = readPlayWords({words.begin() + 1, words.end()},
                                       fs::path(path).parent_path().string(), options);
        } catch (const WrongLine& wrong) {
            reason = wrong.what();
        }
        return reason.empty() ? "" : path + ':' + std::to_string(number) + ": " + reason + '\n';
    }
    return "";
}

/// Plays one file in the child process. Of its output only stderr is kept.
[[noreturn]] void playInChild(const PlayOptions& options, const MainWinFactory& factory, int stderrFile,
                              [[maybe_unused]] pid_t suite)
{
#ifdef __linux__
    prctl(PR_SET_PDEATHSIG, SIGTERM); // however the suite ends, its runs end with it
    if (getppid() != suite)
        _exit(1);
#endif
    const int nothing = open("/dev/null", O_RDWR);
    dup2(nothing, STDIN_FILENO);
    dup2(nothing, STDOUT_FILENO);
    dup2(stderrFile, STDERR_FILENO);
    const int status = play(options, factory);
    std::cout.flush();
    std::fflush(nullptr);
    _exit(status); // not exit: the parent's exit handlers must not run here
}

class Suite {
public:
    Suite(const TestOptions& testOptions, const MainWinFactory& mainWinFactory, std::ostream& outStream)
        : options(testOptions), factory(mainWinFactory), out(outStream)
    {
        for (const std::string& name : findEventsFiles(options))
            results.push_back({.name = name, .messages = ""});
    }

    void run()
    {
        std::signal(SIGCHLD, SIG_DFL); // a parent may have ignored it, and waitpid would then get no status
        const auto processors = std::max(std::thread::hardware_concurrency(), 1u);
        const std::size_t jobs = options.jobs > 0 ? static_cast<std::size_t>(options.jobs) : processors;
        std::size_t next = 0;
        std::size_t shown = 0;
        while (shown < results.size()) {
            while (next < results.size() && running.size() < jobs)
                begin(results[next++]);
            if (!running.empty())
                endOne();
            for (; shown < results.size() && results[shown].isDone; ++shown)
                show(results[shown]);
        }
    }

    std::size_t failedCount() const
    {
        return static_cast<std::size_t>(std::count_if(
            results.begin(), results.end(), [](const TestResult& result) { return !result.passed; }));
    }
    const std::vector<TestResult>& getResults() const { return results; }

private:
    struct Running {
        TestResult* result;
        FILE* messages;
        Clock::time_point since;
    };

    void begin(TestResult& result)
    {
        PlayOptions play = options.play;
        play.eventsFile = (fs::path(options.directory) / result.name).string();
        play.outDirectory = (fs::path(options.play.outDirectory) / result.name).replace_extension().string();
        play.messagesFail = true;
        std::string reason = readHeader(play.eventsFile, play);
        if (reason.empty() && (play.dataDirectory.empty() || play.script.empty()))
            reason = play.eventsFile + ": no data directory and script: begin it with \"" + headerForm +
                     "\", or give --data and --script\n";
        if (!reason.empty())
            return refuse(result, reason);
        FILE* messages = std::tmpfile();
        if (!messages)
            return refuse(result, std::string("no temporary file: ") + std::strerror(errno) + '\n');
        const pid_t suite = getpid();
        const pid_t child = fork();
        if (child == 0)
            playInChild(play, factory, fileno(messages), suite);
        if (child > 0) {
            running[child] = {&result, messages, Clock::now()};
            return;
        }
        refuse(result, std::string("no process: ") + std::strerror(errno) + '\n');
        std::fclose(messages);
    }

    static void refuse(TestResult& result, const std::string& reason)
    {
        result.isDone = true;
        result.messages = reason;
    }

    void endOne()
    {
        int status = 0;
        const pid_t child = waitpid(-1, &status, 0);
        if (child == -1 && errno == ECHILD)
            throw std::runtime_error("the processes are gone");
        const auto found = running.find(child);
        if (found == running.end())
            return; // not one of ours
        const Running ended = found->second;
        running.erase(found);

        TestResult& result = *ended.result;
        result.isDone = true;
        result.passed = WIFEXITED(status) && WEXITSTATUS(status) == 0;
        result.seconds = std::chrono::duration<double>(Clock::now() - ended.since).count();
        std::rewind(ended.messages);
        for (int c = 0; (c = std::fgetc(ended.messages)) != EOF;)
            result.messages += static_cast<char>(c);
        std::fclose(ended.messages);
        if (WIFSIGNALED(status))
            result.messages += result.name + ": ended by signal " + std::to_string(WTERMSIG(status)) + ", " +
                               strsignal(WTERMSIG(status)) + '\n';
    }

    void show(const TestResult& result)
    {
        out << (result.passed ? "ok    " : "FAIL  ") << result.name << '\n';
        for (std::size_t start = 0; start < result.messages.size();) {
            const std::size_t end = std::min(result.messages.find('\n', start), result.messages.size());
            out << "      " << result.messages.substr(start, end - start) << '\n';
            start = end + 1;
        }
        out << std::flush;
    }

    const TestOptions& options;
    const MainWinFactory& factory;
    std::ostream& out;
    std::vector<TestResult> results;
    std::map<pid_t, Running> running;
};

} // namespace

int runTests(const TestOptions& options, const MainWinFactory& factory, std::ostream& out, std::ostream& err)
{
    try {
        Suite suite(options, factory, out);
        suite.run();
        const std::size_t all = suite.getResults().size();
        const std::size_t failed = suite.failedCount();
        out << all << (all == 1 ? " file, " : " files, ") << all - failed << " ok, " << failed << " failed\n";
        if (!options.junitFile.empty() &&
            !writeWhole(options.junitFile, junitReport(options.directory, suite.getResults())))
            throw std::runtime_error("cannot write " + quoteName(options.junitFile));
        return failed > 0 ? 1 : 0;
    } catch (const std::runtime_error& wrongCall) {
        err << "test: " << wrongCall.what() << '\n';
        return 2;
    }
}

} // namespace tgx
