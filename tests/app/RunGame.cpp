// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "RunGame.h"

#include "support/Places.h"

#include <atomic>
#include <cstdlib>
#include <fcntl.h>
#include <fstream>
#include <iterator>
#include <sys/wait.h>
#include <unistd.h>

namespace bc {

namespace fs = std::filesystem;

namespace {

std::string slurp(const fs::path& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

}  // namespace

RunGame::RunGame() : data(test::gamePath("")) {
    static std::atomic<int> counter{0};
    folder_ = fs::temp_directory_path() /
              ("brightclash-run-" + std::to_string(getpid()) + '-' + std::to_string(counter++));
    fs::create_directories(folder_);
}

RunGame::~RunGame() {
    std::error_code ignored;
    fs::remove_all(folder_, ignored);
}

void RunGame::write(const std::string& name, const std::string& text) const {
    fs::create_directories((folder_ / name).parent_path());
    std::ofstream(folder_ / name, std::ios::binary) << text;
}

std::string RunGame::scriptPath(const std::string& name) {
    return test::sourcePath("tests/app/scripts/" + name);
}

std::string RunGame::scriptLines(const std::string& name) {
    return slurp(scriptPath(name));
}

void RunGame::provide(const std::string& name) const {
    write(name, slurp(test::sourcePath("tests/app/user/" + name)));
}

int RunGame::play(const std::string& name, const std::map<std::string, std::string>& values) {
    std::string lines = scriptLines(name + ".txt");
    // Without a script the program would never end.
    if (lines.empty())
        return -1;
    for (const auto& [key, value] : values)
        for (std::size_t at = 0; (at = lines.find('{' + key + '}', at)) != std::string::npos;)
            lines.replace(at, key.size() + 2, value);
    return playLines(lines);
}

int RunGame::playLines(const std::string& lines) {
    write("script.txt", lines);
    return headless({"--script", (folder_ / "script.txt").string()});
}

int RunGame::headless(std::vector<std::string> args) {
    args.insert(args.begin(), {"--headless", "--seed", "1"});
    return run(std::move(args));
}

int RunGame::run(std::vector<std::string> args) {
    std::vector<std::string> all = {(fs::path(test::gamePath("")) / "brightclash").string(),
                                    "--user", folder_.string(), "--data", data.string()};
    all.insert(all.end(), args.begin(), args.end());
    std::vector<char*> argv;
    argv.reserve(all.size() + 1);
    for (std::string& a : all)
        argv.push_back(a.data());
    argv.push_back(nullptr);
    const fs::path errorFile = folder_ / "stderr.txt";
    const pid_t child = fork();
    if (child == 0) {
        const int out = open(errorFile.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
        dup2(out, STDERR_FILENO);
        dup2(open("/dev/null", O_WRONLY), STDOUT_FILENO);
        for (std::string& variable : environment)
            putenv(variable.data());
        for (const int stream : closedStreams)
            close(stream);
        execv(argv[0], argv.data());
        _exit(127);
    }
    int status = 0;
    waitpid(child, &status, 0);
    error_ = slurp(errorFile);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

std::string RunGame::read(const std::string& name) const {
    return slurp(folder_ / name);
}
bool RunGame::has(const std::string& name) const {
    return fs::exists(folder_ / name);
}

}  // namespace bc
