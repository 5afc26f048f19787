// Serves a disk in memory with a fault, for scripts/check-capacity.
//
//   faulty-disk BYTES FAULT [LIMIT|EVERY|RATE|FIRST [SECOND]]
//
// Prints the path of the disk's file once it is there. It is good until SIGUSR1 arms the fault (DiskFault in
// tests/support/FaultyDisk.h), and ends with SIGTERM.

#include "support/FaultyDisk.h"

#include <csignal>
#include <cstdio>
#include <cstdlib>

int main(int argc, char** argv) {
    if (argc < 3)
        return 2;
    sigset_t awaited;
    sigemptyset(&awaited);
    for (const int number : {SIGUSR1, SIGTERM, SIGINT})
        sigaddset(&awaited, number);
    pthread_sigmask(SIG_BLOCK, &awaited, nullptr);

    test::FaultyDisk disk(std::atoll(argv[1]));
    if (!disk.problem().empty()) {
        std::puts(disk.problem().c_str());
        return 1;
    }
    const std::int64_t first = argc > 3 ? std::atoll(argv[3]) : 0;
    const test::DiskFault fault{.kind = test::diskFaultKind(argv[2]),
                                .limit = first,
                                .every = first,
                                .first = first,
                                .second = argc > 4 ? std::atoll(argv[4]) : -1,
                                .rate = first};
    std::puts(disk.file().c_str());
    std::fflush(stdout);
    for (int number = 0; sigwait(&awaited, &number) == 0 && number == SIGUSR1;) {
        disk.arm(fault);
        std::puts("armed");
        std::fflush(stdout);
    }
}
