/* Measures the file system of a folder in C. Ctrl-C ends the run, and nothing of it stays. */
#include <OndelCore/c/ondel.h>

#include <signal.h>
#include <stdio.h>

static volatile sig_atomic_t is_interrupted = 0;

static void interrupt(int signal) {
    (void)signal;
    is_interrupted = 1;
}

static void show(const OndelProgress* progress, void* stop) {
    if (is_interrupted)
        ondel_cancel(stop);
    if (progress->total > 0)
        fprintf(stderr, "\r%3d %%", (int)(100 * progress->completed / progress->total));
}

int main(int argc, char** argv) {
    if (argc != 2) {
        fputs("measure-in-c FOLDER\n", stderr);
        return 2;
    }
    signal(SIGINT, interrupt);
    OndelPlan plan;
    ondel_plan_init(&plan, sizeof plan);
    plan.tests = ONDEL_SEQUENTIAL_WRITE | ONDEL_SEQUENTIAL_READ;
    plan.file_bytes = 268435456;
    OndelResult result;
    ondel_result_init(&result, sizeof result);
    OndelStop* stop = ondel_stop_new();
    const OndelStatus status = ondel_run(&plan, argv[1], show, stop, stop, &result);
    ondel_stop_free(stop);
    fputs("\r     \r", stderr);
    if (status != ONDEL_OK) {
        fprintf(stderr, "The run failed: %s\n", result.message);
        return 1;
    }
    printf("Write  %.0f MB/s\nRead   %.0f MB/s\n", result.write_bytes_per_second / 1e6,
           result.read_bytes_per_second / 1e6);
    for (uint32_t index = 0; index < result.remark_count; ++index)
        printf("Remark %s\n", result.remarks[index].code);
    return 0;
}
