/* Preloaded into a program, lets it fail to flush the file that FAILING_FLUSH names, as on a disk that breaks. */
#define _GNU_SOURCE
#include <errno.h>
#include <limits.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/syscall.h>
#include <unistd.h>

int fsync(int file) {
    char link[64];
    char path[PATH_MAX] = {0};
    snprintf(link, sizeof link, "/proc/self/fd/%d", file);
    const char* failing = getenv("FAILING_FLUSH");
    if (failing != NULL && readlink(link, path, sizeof path - 1) > 0 && strcmp(path, failing) == 0) {
        errno = EIO;
        return -1;
    }
    return (int)syscall(SYS_fsync, file);
}
