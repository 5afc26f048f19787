#pragma once

/*
 * The engine for programs in C, and in languages that call C. Everything here has C linkage and plain values.
 *
 * Structs begin with their own size. `ondel_plan_init` and `ondel_result_init` write it; a program that was
 * built with an older header has smaller structs, and the library neither reads nor writes beyond what it
 * knows. Later releases add fields at the end and never change one.
 */

#include "OndelCore/Export.h"
#include "OndelCore/health/OndelSMART.h"

#include <stddef.h>
#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/** The tests, as bits of `OndelPlan::tests`, in the order in which they run. */
enum {
    ONDEL_SEQUENTIAL_WRITE = 1,
    ONDEL_SEQUENTIAL_READ = 2,
    ONDEL_RANDOM_READ = 4,
    ONDEL_RANDOM_WRITE = 8,
    ONDEL_FILE_OPS = 16,
    ONDEL_ALL_TESTS = 31
};

/** How a run ended. */
typedef enum OndelStatus {
    ONDEL_OK = 0,
    ONDEL_CANCELLED = 1,      /**< `ondel_cancel` was called */
    ONDEL_BAD_ARGUMENT = 2,   /**< a null pointer, a size that no header had, a negative count */
    ONDEL_NO_SPACE = 3,       /**< the volume has less room than the plan takes */
    ONDEL_NOT_WRITABLE = 4,   /**< nothing can be written into the folder */
    ONDEL_FILE_TOO_SMALL = 5, /**< the data file holds no random block */
    ONDEL_IO_ERROR = 6,       /**< a system call failed */
    ONDEL_FAILED = 7          /**< anything else: no memory, no thread */
} OndelStatus;

/** What a run is asked to do. */
typedef struct OndelPlan {
    size_t struct_size;         /**< sizeof(OndelPlan) of the caller */
    uint32_t tests;             /**< bits; none gives an empty result */
    uint32_t bypass_cache;      /**< 0 or 1: keep the data file out of the system's cache */
    int64_t file_bytes;         /**< size of the data file; -1: fill the volume but for `leave_free` */
    int64_t leave_free;         /**< bytes; used when `file_bytes` is -1 */
    int64_t write_block_bytes;  /**< per call of the sequential write; becomes whole pages */
    int64_t read_block_bytes;   /**< per call of the sequential read */
    int64_t random_block_bytes; /**< per random operation */
    int64_t random_ops;         /**< in each random test; 0 or more */
    int64_t file_ops;           /**< files; 0 or more */
    double sample_seconds;      /**< least distance of two rates in the progress */
} OndelPlan;

/** How far the running test is. Counts are bytes, of files operations. */
typedef struct OndelProgress {
    size_t struct_size;
    uint32_t test; /**< its bit */
    int64_t completed;
    int64_t total;           /**< 0 while it is not known */
    double bytes_per_second; /**< of the last interval; 0 outside of the sequential tests */
    double elapsed_seconds;  /**< since this test began */
} OndelProgress;

/** One sentence's worth of doubt about a figure, or about the run. */
typedef struct OndelRemark {
    const char* code; /**< its stable name: "fromMemory", "virtualDisk"; lives as long as the library */
    uint32_t test;    /**< the test's bit; 0: about the whole run */
    int32_t weight;   /**< 0 a note, 1 a caution, 2 the figure is not the disk's */
} OndelRemark;

enum { ONDEL_MOST_REMARKS = 32 };

/** What a run brought. A figure of a test that did not run is 0; see `tests`. */
typedef struct OndelResult {
    size_t struct_size; /**< sizeof(OndelResult) of the caller */
    uint32_t tests;     /**< bits of the tests that have figures */
    uint32_t remark_count;
    double write_bytes_per_second;
    double write_sustained_bytes_per_second; /**< median of the last third */
    double write_peak_bytes_per_second;
    double read_bytes_per_second;
    double read_sustained_bytes_per_second;
    double read_peak_bytes_per_second;
    double random_read_iops; /**< one operation at a time */
    double random_write_iops;
    double random_read_p99_seconds; /**< 99 of 100 operations took no longer; 0: not known */
    double random_write_p99_seconds;
    double files_created_per_second;
    double files_looked_up_per_second;
    double files_renamed_per_second;
    double files_deleted_per_second;
    OndelRemark remarks[ONDEL_MOST_REMARKS]; /**< the worst first */
    char message[256];                       /**< in English, why there is no result; "" when there is one */
} OndelResult;

/** A way to end a run from any thread. */
typedef struct OndelStop OndelStop;

/**
 * Hears how a run goes on. Called on the thread that measures: it must return quickly, must not throw and may
 * write no files. It may call `ondel_cancel`.
 */
typedef void (*OndelProgressFunction)(const OndelProgress* progress, void* context);

/** Fills a plan with the defaults: all tests, 5 GiB, past the cache. `struct_size`: sizeof(OndelPlan). Null:
 * nothing. */
ONDEL_PUBLIC void ondel_plan_init(OndelPlan* plan, size_t struct_size);

/** Empties a result. `struct_size`: sizeof(OndelResult). Null: nothing. */
ONDEL_PUBLIC void ondel_result_init(OndelResult* result, size_t struct_size);

/** Owner: the caller, who gives it back with `ondel_stop_free`. Fails: null without memory. */
ONDEL_PUBLIC OndelStop* ondel_stop_new(void);

/** Gives it back, once no run has it. Null: nothing. */
ONDEL_PUBLIC void ondel_stop_free(OndelStop* stop);

/**
 * Ends the runs that were given `stop`, within one system call each, and those that will be given it.
 * Threads: any; does not block. Null: nothing.
 */
ONDEL_PUBLIC void ondel_cancel(OndelStop* stop);

/**
 * Measures the file system of `folder`, and returns when everything that it wrote is gone again.
 *
 * `folder`: bytes of a path, NUL-terminated. `progress`, `context`, `stop`: may be null. `result`: made by
 * `ondel_result_init`.
 *
 * Threads: any, several at once, each with a result of its own; blocks for the whole run. Needs no locale, no
 * event loop and no initialisation. The library stays loaded once it was, so that a run ends well whatever is
 * unloaded meanwhile. Fails: as the status says, with a message.
 */
ONDEL_PUBLIC OndelStatus ondel_run(const OndelPlan* plan, const char* folder, OndelProgressFunction progress,
                                   void* context, OndelStop* stop, OndelResult* result);

/** The release of the library that runs: "0.2.0". Lives as long as the library. */
ONDEL_PUBLIC const char* ondel_version(void);

#ifdef __cplusplus
} /* extern "C" */
#endif
