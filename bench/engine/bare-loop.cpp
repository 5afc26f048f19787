// What the machine gives when nothing but system calls is done: the yardstick for the engine's loops.
//
//   bare-loop GROUP FOLDER SIZE BLOCK RANDOM_BLOCK RANDOM_OPS FILES DIRECT
//
// GROUP is sequential, random or files; sizes in bytes, DIRECT 0 or 1. It makes a folder inside FOLDER, runs
// the group's tests as the engine does, removes the folder and prints one JSON object of rates: bytes or
// operations per second. No
// samples, no progress, no cancellation, offsets from a generator that costs next to nothing. The
// loops run on a second thread, as in every program with an interface: Linux looks up descriptors more slowly
// in a process of several threads. Any failing call ends it with status 1; SIZE must be a multiple of both
// blocks.

#include <fcntl.h>
#include <sys/random.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <string>
#include <thread>
#include <utility>
#include <vector>

namespace {

std::string folder;

void removeAll() { std::filesystem::remove_all(folder); }

template <class Answer>
Answer must(Answer answer, const char* call) {
    if (answer >= 0)
        return answer;
    std::perror(call);
    removeAll();
    std::exit(1);
}

double now() {
    timespec time{};
    clock_gettime(CLOCK_MONOTONIC, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

/// Prints the rate since `start` as the next pair of the JSON object.
void tell(const char* name, double amount, double start) {
    static const char* separator = "{";
    std::printf("%s\"%s\": %.0f", std::exchange(separator, ", "), name, amount / (now() - start));
}

std::uint64_t nextRandom() {
    static std::uint64_t state = 0x853c49e6748fea9bU; // xorshift64: G. Marsaglia, "Xorshift RNGs", 2003
    state ^= state << 13;
    state ^= state >> 7;
    state ^= state << 17;
    return state;
}

int openData(int flags, bool direct) {
    const int file = must(open((folder + "/data").c_str(), flags, 0600), "open");
    if (direct)
        fcntl(file, F_SETFL, flags | O_DIRECT);
    return file;
}

struct Request {
    std::uint64_t size, block, randomBlock, randomOps, files;
    bool direct;
};

void writeData(const Request& ask, char* buffer) {
    const int file = openData(O_WRONLY | O_CREAT | O_TRUNC, ask.direct);
    for (std::uint64_t moved = 0; moved < ask.size;)
        moved += static_cast<std::uint64_t>(must(write(file, buffer, ask.block), "write"));
    fsync(file);
    close(file);
}

void sequential(const Request& ask, char* buffer) {
    const auto bytes = static_cast<double>(ask.size);
    double start = now();
    writeData(ask, buffer);
    tell("sequentialWrite", bytes, start);

    const int file = openData(O_RDONLY, ask.direct);
    start = now();
    while (must(read(file, buffer, ask.block), "read") > 0) {
    }
    tell("sequentialRead", bytes, start);
    close(file);
}

template <class Transfer>
void random(const Request& ask, const char* name, int flags, Transfer transfer) {
    const std::uint64_t blocks = ask.size / ask.randomBlock;
    const auto operations = static_cast<double>(ask.randomOps);
    const int file = openData(flags, ask.direct);
    const double start = now();
    for (std::uint64_t i = 0; i < ask.randomOps; ++i)
        must(transfer(file, static_cast<off_t>(nextRandom() % blocks * ask.randomBlock)), name);
    if (flags != O_RDONLY)
        fsync(file);
    tell(name, operations, start);
    close(file);
}

void random(const Request& ask, char* buffer) {
    writeData(ask, buffer);
    random(ask, "randomRead", O_RDONLY,
           [&](int file, off_t offset) { return pread(file, buffer, ask.randomBlock, offset); });
    random(ask, "randomWrite", O_RDWR,
           [&](int file, off_t offset) { return pwrite(file, buffer, ask.randomBlock, offset); });
}

template <class Operation>
void phase(const char* name, std::uint64_t files, Operation operation) {
    const double start = now();
    for (std::uint64_t i = 0; i < files; ++i)
        operation(i);
    tell(name, static_cast<double>(files), start);
}

void fileOps(const Request& ask) {
    const std::string dir = folder + "/files";
    must(mkdir(dir.c_str(), 0700), "mkdir");
    std::vector<std::string> names, newNames;
    for (std::uint64_t i = 0; i < ask.files; ++i) {
        names.push_back(dir + "/f" + std::to_string(i));
        newNames.push_back(names.back() + ".r");
    }
    struct stat facts{};
    phase("create", ask.files,
          [&](auto i) { close(must(open(names[i].c_str(), O_WRONLY | O_CREAT | O_EXCL, 0600), "create")); });
    phase("stat", ask.files, [&](auto i) { must(lstat(names[i].c_str(), &facts), "lstat"); });
    phase("rename", ask.files,
          [&](auto i) { must(std::rename(names[i].c_str(), newNames[i].c_str()), "rename"); });
    phase("delete", ask.files, [&](auto i) { must(unlink(newNames[i].c_str()), "unlink"); });
}

} // namespace

int main(int argc, char** argv) {
    const std::string group = argc == 9 ? argv[1] : "";
    if (group != "sequential" && group != "random" && group != "files") {
        std::fputs("usage: bare-loop sequential|random|files FOLDER SIZE BLOCK RANDOM_BLOCK RANDOM_OPS FILES "
                   "DIRECT\n",
                   stderr);
        return 2;
    }
    const auto number = [&](int i) { return std::strtoull(argv[i], nullptr, 10); };
    const Request ask{number(3), number(4), number(5), number(6), number(7), number(8) != 0};
    const std::size_t largest = ask.block > ask.randomBlock ? ask.block : ask.randomBlock;
    auto* buffer = static_cast<char*>(std::aligned_alloc(4096, largest));
    for (std::size_t filled = 0; filled < largest;)
        filled +=
            static_cast<std::size_t>(must(getrandom(buffer + filled, largest - filled, 0), "getrandom"));

    folder = std::string(argv[2]) + "/.bare-loop-XXXXXX";
    if (!mkdtemp(folder.data()))
        return std::perror("mkdtemp"), 1;
    std::thread([&] {
        if (group == "sequential")
            sequential(ask, buffer);
        else if (group == "random")
            random(ask, buffer);
        else
            fileOps(ask);
    }).join();
    std::puts("}");
    removeAll();
}
