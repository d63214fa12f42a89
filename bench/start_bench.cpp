// Measures how long programs with windows take until they are idle after the start, and how much memory they
// then use, as ratios to the first program. Needs a display. The programs are started alternately, so that a
// busy period of the machine affects all of them.
//
//     bench_start ROUNDS PROGRAM [ARGUMENT...] [-- PROGRAM [ARGUMENT...]]...
#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <string>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;
using Milliseconds = std::chrono::duration<double, std::milli>;

constexpr Milliseconds kSlice{20};
constexpr Milliseconds kQuiet{400};  // a program that is idle for this long has started
constexpr double kBusyShare = 0.05;  // the share of a slice above which a program is busy
constexpr double kNanoPerMilli = 1e6;

struct Program {
    std::vector<std::string> words;
    std::vector<double> quietMs, cpuMs, pssKib;
};

double CpuMilliseconds(pid_t pid) {
    double sum = 0;
    std::error_code gone;
    for (const auto& task :
         std::filesystem::directory_iterator("/proc/" + std::to_string(pid) + "/task", gone)) {
        std::ifstream file(task.path() / "schedstat");
        double nanoseconds = 0;
        if (file >> nanoseconds) sum += nanoseconds / kNanoPerMilli;
    }
    return sum;
}

double PssKib(pid_t pid) {
    std::ifstream file("/proc/" + std::to_string(pid) + "/smaps_rollup");
    for (std::string word; file >> word;) {
        double kib = 0;
        if (word == "Pss:" && file >> kib) return kib;
    }
    return 0;
}

pid_t Start(const Program& program) {
    std::vector<std::string> words = program.words;
    std::vector<char*> argv;
    argv.reserve(words.size() + 1);
    for (std::string& word : words) argv.push_back(word.data());
    argv.push_back(nullptr);
    const pid_t pid = fork();
    if (pid != 0) return pid;
    const int null = open("/dev/null", O_WRONLY);
    dup2(null, STDOUT_FILENO);
    dup2(null, STDERR_FILENO);
    execvp(argv[0], argv.data());
    _exit(127);
}

// Starts the program, waits until it has been idle for kQuiet, records its figures and ends it.
void Measure(Program& program) {
    const auto begin = Clock::now();
    const pid_t pid = Start(program);
    Milliseconds lastBusy{0};
    double cpu = 0;
    for (;;) {
        std::this_thread::sleep_for(kSlice);
        const Milliseconds now = Clock::now() - begin;
        const double used = CpuMilliseconds(pid);
        if (used - cpu > kBusyShare * kSlice.count()) lastBusy = now;
        cpu = used;
        if (now - lastBusy > kQuiet) break;
    }
    program.quietMs.push_back(lastBusy.count());
    program.cpuMs.push_back(cpu);
    program.pssKib.push_back(PssKib(pid));
    kill(pid, SIGTERM);
    waitpid(pid, nullptr, 0);
}

double Median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

std::vector<Program> ReadPrograms(int argc, char** argv) {
    std::vector<Program> programs(1);
    for (int i = 2; i < argc; ++i) {
        const std::string word = argv[i];
        if (word == "--")
            programs.emplace_back();
        else
            programs.back().words.push_back(word);
    }
    std::erase_if(programs, [](const Program& program) { return program.words.empty(); });
    return programs;
}

}  // namespace

int main(int argc, char** argv) {
    const int rounds = argc > 1 ? std::atoi(argv[1]) : 0;
    std::vector<Program> programs = ReadPrograms(argc, argv);
    if (rounds < 1 || programs.empty()) {
        std::fprintf(stderr,
                     "usage: bench_start ROUNDS PROGRAM [ARGUMENT...] [-- PROGRAM [ARGUMENT...]]...\n");
        return EXIT_FAILURE;
    }
    for (int round = 0; round < rounds; ++round)
        for (Program& program : programs) Measure(program);
    const double floorMs = Median(programs[0].quietMs);
    const double floorCpu = Median(programs[0].cpuMs);
    const double floorPss = Median(programs[0].pssKib);
    std::printf("%-40s %9s %7s %8s %7s %9s %7s\n", "program", "quiet ms", "ratio", "cpu ms", "ratio",
                "PSS KiB", "ratio");
    for (const Program& p : programs)
        std::printf("%-40.40s %9.1f %7.2f %8.1f %7.2f %9.0f %7.2f\n", p.words[0].c_str(), Median(p.quietMs),
                    Median(p.quietMs) / floorMs, Median(p.cpuMs), Median(p.cpuMs) / floorCpu,
                    Median(p.pssKib), Median(p.pssKib) / floorPss);
    return EXIT_SUCCESS;
}
