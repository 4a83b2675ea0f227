/* Preloaded into a program, sets its clock: the file named by FAKE_CLOCK holds the seconds to add, as an int64_t. It
   is mapped, so that what is written there counts at once. The monotonic clock goes on as it is, as when a user sets
   the time. */
#define _GNU_SOURCE
#include <fcntl.h>
#include <pthread.h>
#include <stdint.h>
#include <stdlib.h>
#include <sys/mman.h>
#include <sys/syscall.h>
#include <sys/time.h>
#include <time.h>
#include <unistd.h>

static const volatile int64_t* offset;

__attribute__((constructor)) static void mapOffset(void) {
    const char* name = getenv("FAKE_CLOCK");
    const int file = name == NULL ? -1 : open(name, O_RDONLY | O_CLOEXEC);
    if (file < 0) abort();
    void* mapped = mmap(NULL, sizeof *offset, PROT_READ, MAP_SHARED, file, 0);
    if (mapped == MAP_FAILED) abort();
    offset = mapped;
    close(file);
}

/* Other libraries may ask before the file is mapped. */
static time_t secondsToAdd(void) { return offset == NULL ? 0 : (time_t)*offset; }

static int isWallClock(clockid_t clock) { return clock == CLOCK_REALTIME || clock == CLOCK_REALTIME_COARSE; }

int clock_gettime(clockid_t clock, struct timespec* now) {
    const int failed = (int)syscall(SYS_clock_gettime, clock, now);
    if (!failed && isWallClock(clock)) now->tv_sec += secondsToAdd();
    return failed;
}

int gettimeofday(struct timeval* restrict now, void* restrict zone) {
    (void)zone;
    struct timespec precise;
    const int failed = clock_gettime(CLOCK_REALTIME, &precise);
    *now = (struct timeval){precise.tv_sec, precise.tv_nsec / 1000};
    return failed;
}

time_t time(time_t* result) {
    struct timespec now;
    clock_gettime(CLOCK_REALTIME, &now);
    if (result != NULL) *result = now.tv_sec;
    return now.tv_sec;
}

/* The system knows nothing of the jump and waits by the true time. Times since the start of the machine are far
 * smaller. */
int pthread_cond_timedwait(pthread_cond_t* restrict condition, pthread_mutex_t* restrict mutex,
                           const struct timespec* restrict deadline) {
    if (deadline->tv_sec < 1000000000) return pthread_cond_clockwait(condition, mutex, CLOCK_MONOTONIC, deadline);
    struct timespec trueDeadline = *deadline;
    trueDeadline.tv_sec -= secondsToAdd();
    return pthread_cond_clockwait(condition, mutex, CLOCK_REALTIME, &trueDeadline);
}
